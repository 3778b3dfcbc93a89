#include "base/StateFiles.h"
#include "support/TestEnv.h"
#include "timetable/Timetable.h"

#include <QFile>
#include <QTimeZone>

using namespace tarvanel;

namespace {
class TimetableStoreTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        Timetable::resetCacheForTesting();
    }
};

QMap<QString, QString> fivePrayers(const QString& fajr) {
    // clang-format off
    return {{"Fajr", fajr}, {"Dhuhr", "13:15"}, {"Asr", "16:40"}, {"Maghrib", "18:22"}, {"Isha", "20:50"}};
    // clang-format on
}

DayTable month(int m, int daysInMonth, const QString& fajr) {
    DayTable t;
    for (int d = 1; d <= daysInMonth; ++d)
        t.insert(dayKey(QDate(2025, m, d)), fivePrayers(fajr));
    return t;
}

QDateTime noon(int y, int m, int d) {
    return QDateTime(QDate(y, m, d), QTime(12, 0), QTimeZone::utc());
}
} // namespace

TEST_F(TimetableStoreTest, MergingMonthsBuildsUpAndReplacesDaysWhole) {
    Timetable::merge(month(3, 1, "05:45"));
    EXPECT_EQ(Timetable::summary(), "1 day, 1 Mar 2025 \u2013 1 Mar 2025");
    Timetable::merge(month(3, 31, "05:45"));
    Timetable::merge(month(4, 30, "05:00"));
    EXPECT_EQ(Timetable::all().size(), 61);
    EXPECT_EQ(Timetable::day(noon(2025, 4, 30))["Fajr"], "05:00");

    // Re-importing part of March replaces those days whole and keeps the rest.
    Timetable::merge({{"2025-03-02", {{"Fajr", "05:30"}, {"Isha", "21:00"}}}});
    EXPECT_EQ(Timetable::day(noon(2025, 3, 2)),
              (QMap<QString, QString>{{"Fajr", "05:30"}, {"Isha", "21:00"}}));
    EXPECT_EQ(Timetable::day(noon(2025, 3, 3)), fivePrayers("05:45"));
    EXPECT_EQ(Timetable::summary(), "61 days, 1 Mar 2025 \u2013 30 Apr 2025");
    // Looked up by the local day: 20:00 UTC on 1 March is already 2 March in Tokyo.
    test::setTimeZone("Asia/Tokyo");
    EXPECT_EQ(Timetable::day(QDateTime(QDate(2025, 3, 1), QTime(20, 0), QTimeZone::utc()))["Isha"],
              "21:00");
    EXPECT_TRUE(
        Timetable::day(QDateTime(QDate(2025, 4, 30), QTime(20, 0), QTimeZone::utc())).isEmpty());

    // Pretty-printed with keys in order, so days come in date order.
    const QByteArray bytes = *readWholeFile(Timetable::url());
    EXPECT_TRUE(bytes.contains("\n    \"2025-03-01\": {\n        \"Asr\": \"16:40\""));
    EXPECT_LT(bytes.indexOf("2025-03-31"), bytes.indexOf("2025-04-01"));

    // Clearing is seen at once despite the cache; clearing nothing is fine.
    Timetable::clear();
    EXPECT_FALSE(QFile::exists(Timetable::url()));
    EXPECT_TRUE(Timetable::all().isEmpty());
    EXPECT_TRUE(Timetable::day(noon(2025, 3, 1)).isEmpty());
    EXPECT_FALSE(Timetable::summary().has_value());
    Timetable::clear();
}

TEST_F(TimetableStoreTest, HandEditsAreSeenAndBadFilesReadEmptyUntilReplaced) {
    Timetable::merge(month(3, 31, "05:45"));
    ASSERT_EQ(Timetable::all().size(), 31);
    // A different size is noticed even within the same time-stamp tick.
    test::writeSupportFile("timetable.json", R"({"2025-05-05": {"Fajr": "04:00"}})");
    EXPECT_EQ(Timetable::all().keys(), QStringList({"2025-05-05"}));
    // A hand-edited key that is no date has no summary.
    test::writeSupportFile("timetable.json", R"({"2025-03-01": {}, "someday": {}})");
    Timetable::resetCacheForTesting(); // same size as the file before
    EXPECT_EQ(Timetable::all().size(), 2);
    EXPECT_FALSE(Timetable::summary().has_value());

    for (const QByteArray& bad :
         {QByteArray("{not json"), QByteArray("[]"), QByteArray(R"({"2025-03-01": ["05:45"]})"),
          QByteArray(R"({"2025-03-01": {"Fajr": 545}})"), QByteArray(""),
          QByteArray(R"({"2025-03-01": {"Fajr": "05:45"})"), QByteArray("\xff\xfe{}")}) {
        SCOPED_TRACE(bad.toStdString());
        test::writeSupportFile("timetable.json", bad);
        Timetable::resetCacheForTesting();
        EXPECT_TRUE(Timetable::all().isEmpty());
        EXPECT_FALSE(Timetable::summary().has_value());
    }
    // The next merge replaces the bad file with just the new days.
    Timetable::merge({{"2025-03-01", {{"Fajr", "05:45"}}}});
    Timetable::resetCacheForTesting();
    EXPECT_EQ(Timetable::all().keys(), QStringList({"2025-03-01"}));
}
