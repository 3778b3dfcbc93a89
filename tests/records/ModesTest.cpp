// Excused, pause and travel: the modes that hold reminders and locks back.
#include "records/Modes.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "records/Excused.h"
#include "records/UserDefaults.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTimeZone>

using namespace tarvanel;

namespace {
using ModesTest = test::ScratchTest;
using ExcusedTest = test::ScratchTest;

QDateTime utc(int y, int m, int d, int h = 0, int min = 0, int s = 0) {
    return QDateTime(QDate(y, m, d), QTime(h, min, s), QTimeZone::utc());
}

QByteArray excusedBytes() {
    return readWholeFile(supportPath("excused.json")).value_or(QByteArray());
}
} // namespace

TEST_F(ExcusedTest, FileHoldsUtcSecondsReadsOffsetsAndNothingElse) {
    EXPECT_TRUE(Excused::load().isEmpty());
    const QDateTime start = utc(2025, 3, 1, 18, 2, 11).addMSecs(750);
    Excused::save({{utc(2025, 2, 1), utc(2025, 2, 3, 6)}, {start, std::nullopt}});
    EXPECT_EQ(excusedBytes(),
              QByteArray("[\n    {\n        \"end\": \"2025-02-03T06:00:00Z\",\n"
                         "        \"start\": \"2025-02-01T00:00:00Z\"\n    },\n"
                         "    {\n        \"start\": \"2025-03-01T18:02:11Z\"\n    }\n]\n"));
    // The fraction is gone.
    EXPECT_EQ(Excused::load(), QList<ExcusedRange>({{utc(2025, 2, 1), utc(2025, 2, 3, 6)},
                                                    {utc(2025, 3, 1, 18, 2, 11), std::nullopt}}));

    // Offsets and null ends are read; any other form spoils the file.
    test::writeSupportFile("excused.json",
                           R"([{"start": "2025-03-01T20:00:00+02:00", "end": null}])");
    EXPECT_EQ(Excused::load(), QList<ExcusedRange>({{utc(2025, 3, 1, 18), std::nullopt}}));

    for (const char* bad :
         {R"({"start": "2025-03-01T18:00:00Z"})", R"([{"start": "2025-03-01T18:00:00"}])",
          R"([{"start": "2025-03-01T18:00:00.5Z"}])", R"([{"start": 1740852000}])",
          R"([{"start": "2025-03-01T18:00:00Z", "end": "soon"}])", "["}) {
        SCOPED_TRACE(bad);
        test::writeSupportFile("excused.json", bad);
        EXPECT_TRUE(Excused::load().isEmpty());
        EXPECT_FALSE(Excused::current(15, utc(2025, 3, 2)).has_value());
    }
    // begin starts a fresh list over the damaged file.
    Excused::begin(utc(2025, 3, 2));
    EXPECT_EQ(Excused::load(), QList<ExcusedRange>({{utc(2025, 3, 2), std::nullopt}}));
}

TEST_F(ExcusedTest, BeginKeepsOneOpenPeriodAndFinishClosesIt) {
    // Finishing with no open period writes nothing.
    Excused::finish(utc(2025, 3, 4));
    EXPECT_FALSE(QFile::exists(supportPath("excused.json")));

    Excused::begin(utc(2025, 3, 1, 18));
    Excused::begin(utc(2025, 3, 2, 18));
    ASSERT_EQ(Excused::load().size(), 1);
    Excused::finish(utc(2025, 3, 4, 9));
    const QByteArray closed = excusedBytes();
    Excused::finish(utc(2025, 3, 5));
    EXPECT_EQ(excusedBytes(), closed);
    Excused::begin(utc(2025, 3, 10));
    EXPECT_EQ(Excused::load(), QList<ExcusedRange>({{utc(2025, 3, 1, 18), utc(2025, 3, 4, 9)},
                                                    {utc(2025, 3, 10), std::nullopt}}));

    // An open period closes itself at the limit read at each call: 7.5 days end 17 March 12:00.
    EXPECT_EQ(Excused::current(15, utc(2025, 3, 17, 18))->start, utc(2025, 3, 10));
    EXPECT_FALSE(Excused::load()[1].end.has_value());
    EXPECT_TRUE(Excused::current(7.5, utc(2025, 3, 17, 11, 59, 59)).has_value());
    EXPECT_FALSE(Excused::current(7.5, utc(2025, 3, 17, 12)).has_value());
    // Closed at the limit, not at the moment of the call; closed ranges never count.
    EXPECT_EQ(Excused::load()[1].end, utc(2025, 3, 17, 12));
    EXPECT_FALSE(Excused::current(15, utc(2025, 3, 12)).has_value());

    // Ending by hand logs; the alert names whole days of the limit.
    Excused::begin(utc(2025, 3, 20, 18));
    endExcused(utc(2025, 3, 22, 7));
    EXPECT_EQ(logs, QStringList{"Tarvanel: no longer excused"});
    EXPECT_EQ(Excused::load()[2].end, utc(2025, 3, 22, 7));
    Config cfg;
    EXPECT_EQ(excusedWholeDays(cfg), 15);
    cfg.excusedMaxDays = 7.5;
    EXPECT_EQ(excusedWholeDays(cfg), 7);
}

TEST_F(ExcusedTest, ContainsAndTouchesDayEdges) {
    const QList<ExcusedRange> ranges = {{utc(2025, 3, 1, 18), utc(2025, 3, 2, 6)},
                                        {utc(2025, 3, 10), std::nullopt}};
    // Start inclusive, end exclusive; the open range runs to start + maxDays before it is closed.
    const QList<std::tuple<QDateTime, double, bool>> contains = {
        {utc(2025, 3, 1, 18), 15, true}, {utc(2025, 3, 1, 17, 59, 59), 15, false},
        {utc(2025, 3, 2, 6), 15, false}, {utc(2025, 3, 11, 23, 59, 59), 2, true},
        {utc(2025, 3, 12), 2, false},    {utc(2999, 1, 1), 1e300, true},
        {utc(2025, 3, 10), -1, false},   {utc(2025, 3, 10), std::nan(""), false}};
    for (const auto& [at, maxDays, expected] : contains)
        EXPECT_EQ(Excused::contains(at, ranges, maxDays), expected) << at.toString().toStdString();
    EXPECT_FALSE(Excused::contains(utc(2025, 3, 12), {}, 2));
    EXPECT_TRUE(ranges[1].effectiveEnd(std::numeric_limits<double>::infinity()).isValid());

    // A graze of a second counts; touching the day's edge does not.
    const QDateTime day = utc(2025, 3, 5);
    // clang-format off
    const QList<std::tuple<ExcusedRange, double, bool>> touches = {
        {{utc(2025, 3, 4, 12), utc(2025, 3, 5, 0, 0, 1)}, 15, true},
        {{utc(2025, 3, 4, 12), utc(2025, 3, 5)}, 15, false},
        {{utc(2025, 3, 5, 23, 59, 59), utc(2025, 3, 7)}, 15, true},
        {{utc(2025, 3, 6), utc(2025, 3, 7)}, 15, false},
        {{utc(2025, 3, 1), std::nullopt}, 4.5, true}, {{utc(2025, 3, 1), std::nullopt}, 4, false}};
    // clang-format on
    for (const auto& [range, maxDays, expected] : touches)
        EXPECT_EQ(Excused::touchesDay(day, {range}, maxDays), expected)
            << range.start.toString().toStdString() << " " << maxDays;
}

TEST_F(ModesTest, DefaultsLiveInTheUsersConfigFolderAndUnreadableValuesAreAbsent) {
    const QString path = UserDefaults::defaultPath();
    EXPECT_EQ(path, test::scratchHome() + "/.config/com.velmora.tarvanel/settings.ini");
    {
        UserDefaults d;
        EXPECT_FALSE(d.pausedUntil().has_value());
        d.setPausedUntil(utc(2025, 3, 2).addMSecs(123));
        d.setTravellingUntil(utc(2025, 3, 5));
    }
    UserDefaults again;
    EXPECT_EQ(again.pausedUntil(), utc(2025, 3, 2).addMSecs(123));
    EXPECT_EQ(again.travellingUntil(), utc(2025, 3, 5));
    again.setPausedUntil(std::nullopt);
    EXPECT_FALSE(QSettings(path, QSettings::IniFormat).contains("pausedUntil"));

    test::writeFile(path, QByteArray("[General]\npausedUntil=42\n\x00\xff [[[", 31));
    EXPECT_FALSE(UserDefaults().pausedUntil().has_value());
}

TEST_F(ModesTest, PauseAndTravelEndAtMidnightsAndFarInstantsReadAsAbsent) {
    // 23:59 on Saturday 1 March (GMT): one day ends a minute later. Three days from Friday
    // 24 October run across the end of summer time to Monday's midnight.
    EXPECT_EQ(pauseEnd(1, utc(2025, 3, 1, 23, 59)), utc(2025, 3, 2));
    EXPECT_EQ(pauseEnd(3, utc(2025, 10, 24, 9)), utc(2025, 10, 27));
    // The picker's default at 10:00 on 1 March (4 March) ends with 4 March; no day before today.
    EXPECT_EQ(travelEnd(QDate(2025, 3, 4), utc(2025, 3, 1, 10)), utc(2025, 3, 5));
    EXPECT_EQ(travelEnd(QDate(2025, 2, 1), utc(2025, 3, 1, 10)), utc(2025, 3, 2));

    const QDateTime now = utc(2025, 3, 1, 10);
    ModeStore store;
    store.setPausedUntil(now.addDays(8));
    store.setTravellingUntil(now.addDays(366));
    EXPECT_TRUE(store.isPaused(now));
    EXPECT_FALSE(store.isPaused(now.addDays(8)));
    EXPECT_TRUE(store.isTravelling(now, false));
    // A hand edit shows at the next refresh; further ahead than any command sets is absent.
    test::writeFile(UserDefaults::defaultPath(), "[General]\npausedUntil=9999-12-31T00:00:00Z\n"
                                                 "travellingUntil=2026-03-03T10:00:00Z\n");
    store.refresh();
    EXPECT_FALSE(store.pausedUntil(now).has_value());
    EXPECT_FALSE(store.isTravelling(now, false));
    EXPECT_TRUE(store.isTravelling(now, true)); // a detected location
    store.setTravellingUntil(now.addDays(2));
    EXPECT_EQ(store.travellingUntil(now), now.addDays(2));
    store.removeAll(); // the files go with the uninstall; the cached value goes too
    EXPECT_FALSE(store.travellingUntil(now).has_value());
}
