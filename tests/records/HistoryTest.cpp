#include "records/History.h"
#include "base/StateFiles.h"
#include "engine/Schedule.h"
#include "records/DayLedger.h"
#include "records/Excused.h"
#include "records/LockState.h"
#include "support/TestEnv.h"
#include "timetable/Timetable.h"

#include <QDir>
#include <QFile>
#include <QTimeZone>

using namespace tarvanel;

namespace {
class HistoryTest : public test::ScratchTest {
protected:
    // saveHistory leaves creating the folder to the other stores, as in real use.
    void SetUp() override {
        ScratchTest::SetUp();
        ensureSupportDir();
        ledger = std::make_unique<DayLedger>();
    }
    std::unique_ptr<DayLedger> ledger;
};

QDateTime utc(int y, int m, int d, int h = 12, int min = 0, int s = 0) {
    return QDateTime(QDate(y, m, d), QTime(h, min, s), QTimeZone::utc());
}

Config london() {
    Config c;
    c.locationName = QStringLiteral("London");
    c.latitude = 51.5074;
    c.longitude = -0.1278;
    return c;
}

QByteArray fileBytes(const QString& name) {
    return readWholeFile(supportPath(name)).value_or(QByteArray());
}
} // namespace

TEST_F(HistoryTest, MarkingAndLoggingKeepOneEntryInRecordOrder) {
    ledger->markKept({"Fajr"}, "2025-03-01", QStringLiteral("qada"));
    ledger->markKept({"Fajr"}, "2025-03-01", QStringLiteral("qada"));
    // History and lock state are compact; marks are pretty-printed with sorted keys.
    EXPECT_EQ(fileBytes("history.json"), QByteArray(R"({"2025-03-01":["Fajr"]})"));
    EXPECT_EQ(fileBytes("state.json"), QByteArray(R"(["2025-03-01-Fajr"])"));
    const QByteArray marks = "{\n    \"2025-03-01\": {\n        \"Fajr\": \"qada\"\n    }\n}\n";
    EXPECT_EQ(fileBytes("marks.json"), marks);
    ledger->markKept({"Isha", "Fajr"}, "2025-03-01", std::nullopt);
    EXPECT_EQ(fileBytes("marks.json"), marks); // unmarked keeping writes no marks
    EXPECT_EQ(fileBytes("history.json"), QByteArray(R"({"2025-03-01":["Fajr","Isha"]})"));
    EXPECT_EQ(loadCompletedLocks(), QSet<QString>({"2025-03-01-Isha", "2025-03-01-Fajr"}));
    EXPECT_EQ(loadCompletedLocks(), ledger->completedLocks());

    // logKept splits the lock key and adds the partner.
    ledger->logKept("2025-03-01-Dhuhr", QStringLiteral("Asr"));
    ledger->logKept("2025-03-01-Dhuhr", std::nullopt);
    EXPECT_TRUE(ledger->completedLocks().contains("2025-03-01-Asr"));
    // Empty pieces are dropped before counting; anything but four pieces is ignored.
    ledger->logKept("2025--03-02-Fajr", std::nullopt);
    for (const char* bad : {"2025-03-03", "2025-03-03-Fajr-Extra", "", "----"})
        ledger->logKept(QString::fromLatin1(bad), QStringLiteral("Asr"));
    EXPECT_EQ(fileBytes("history.json"),
              R"({"2025-03-01":["Fajr","Isha","Dhuhr","Asr"],"2025-03-02":["Fajr"]})");

    // History alone does not create the folder.
    ASSERT_TRUE(QDir(supportDir()).removeRecursively());
    saveHistory({{"2025-03-01", {"Fajr"}}});
    EXPECT_FALSE(QFile::exists(supportPath("history.json")));
}

TEST_F(HistoryTest, StreakCountsLocalDaysBackStopsAtAGapAndSkipsExcusedDays) {
    const QDateTime now = utc(2025, 3, 10, 9);
    EXPECT_EQ(streakDays(now, 15), 0);
    saveHistory({{"2025-03-09", {"Fajr"}}, {"2025-03-08", {"Isha"}}, {"2025-03-06", {"Isha"}}});
    EXPECT_EQ(streakDays(now, 15), 2);
    saveHistory({{"2025-03-10", {}}, {"2025-03-09", {"Fajr"}}}); // an empty list is no kept day
    EXPECT_EQ(streakDays(now, 15), 1);
    ledger->markKept({"Fajr"}, "2025-03-10", std::nullopt);
    EXPECT_EQ(streakDays(now, 15), 2);

    // Excused days neither break nor count: excused from 2 March evening to early 6 March.
    saveHistory({{"2025-03-01", {"Fajr"}}, {"2025-03-02", {"Fajr"}}, {"2025-03-07", {"Asr"}}});
    const QDateTime friday = utc(2025, 3, 7, 20);
    EXPECT_EQ(streakDays(friday, 15), 1);
    Excused::save({{utc(2025, 3, 2, 18), utc(2025, 3, 6, 0, 0, 1)}});
    EXPECT_EQ(streakDays(friday, 15), 3);
    // An open period reaches start + maxDays: 1.5 days from 2 March 18:00 ends before 5 March.
    Excused::save({{utc(2025, 3, 2, 18), std::nullopt}});
    EXPECT_EQ(streakDays(friday, 1.5), 1);
    EXPECT_EQ(streakDays(friday, 4), 3);

    // 30 March 2025 has 23 hours in London; every day from 25 March to 2 April is kept.
    HistoryMap h;
    for (QDate d(2025, 3, 25); d <= QDate(2025, 4, 2); d = d.addDays(1))
        h[dayKey(d)] = {"Fajr"};
    saveHistory(h);
    EXPECT_EQ(streakDays(utc(2025, 4, 2, 5), 15), 9);
    EXPECT_EQ(streakDays(utc(2025, 3, 30, 23, 30), 15), 7);
}

TEST_F(HistoryTest, GridCellsShowQadaThenKeptThenExcused) {
    const HistoryMap history{{"2025-03-01", {"Fajr", "Dhuhr", "Asr"}}};
    const Marks::Map marks{{"2025-03-01", {{"Fajr", "qada"}, {"Dhuhr", "elsewhere"}}}};
    // Cells in turn: qada, "elsewhere" on an excused day, kept, excused, nothing, no records.
    QStringList cells;
    for (const auto& [prayer, day, excused] : {std::tuple{"Fajr", "2025-03-01", false},
                                               {"Dhuhr", "2025-03-01", true},
                                               {"Asr", "2025-03-01", false},
                                               {"Maghrib", "2025-03-01", true},
                                               {"Isha", "2025-03-01", false},
                                               {"Isha", "2025-03-02", false}})
        cells << gridMark(prayer, day, history, marks, excused);
    EXPECT_EQ(cells.join(' '), QStringLiteral("Fq D\u2713 A\u2713 M\u2013 I\u00B7 I\u00B7"));
}

TEST_F(HistoryTest, CsvListsKeptAndExcusedPrayersInOrderUpToNow) {
    EXPECT_EQ(historyCSV(london(), utc(2025, 3, 5)), QStringLiteral("date,prayer,status\n"));

    ledger->markKept({"Dhuhr"}, "2025-03-01", std::nullopt);
    ledger->markKept({"Fajr"}, "2025-03-01", QStringLiteral("qada"));
    // Asr of 2 March falls inside a short excused period; Dhuhr and Maghrib do not.
    const QDateTime asr = *Timetable::scheduledTimes(utc(2025, 3, 2), london()).final.value(u"Asr");
    Excused::save({{asr.addSecs(-60), asr.addSecs(60)}});
    EXPECT_EQ(historyCSV(london(), utc(2025, 3, 5)),
              "date,prayer,status\n2025-03-01,Fajr,qada\n"
              "2025-03-01,Dhuhr,locked\n2025-03-02,Asr,excused\n");

    // Marking the excused Asr as prayed elsewhere replaces the excused row.
    ledger->markKept({"Asr"}, "2025-03-02", QStringLiteral("elsewhere"));
    EXPECT_TRUE(historyCSV(london(), utc(2025, 3, 5)).endsWith("2025-03-02,Asr,elsewhere\n"));

    // Excused rows stop at now; unknown prayers sort last.
    Marks::save({});
    saveHistory({{"2025-03-03", {"Jumu'ah", "Isha", "Fajr"}}});
    // Excused for the whole of 4 March and beyond (open, 15 days); "now" is 4 March at noon.
    Excused::save({{utc(2025, 3, 4, 0), std::nullopt}});
    EXPECT_EQ(historyCSV(london(), utc(2025, 3, 4, 12, 30)),
              "date,prayer,status\n2025-03-03,Fajr,locked\n2025-03-03,Isha,locked\n"
              "2025-03-03,Jumu'ah,locked\n2025-03-04,Fajr,excused\n2025-03-04,Dhuhr,excused\n");

    // Periods years apart, overlapping or backwards.
    saveHistory({});
    Excused::save({{utc(2025, 3, 4, 8), utc(2025, 3, 4, 23, 59, 59)}, // overlaps the next one
                   {utc(2024, 1, 10, 0), utc(2024, 1, 11, 0)}, // a whole winter day, a year earlier
                   {utc(2024, 6, 1, 12), utc(2024, 6, 1, 6)},  // ends before it starts: empty
                   {utc(2025, 3, 4, 0), utc(2025, 3, 4, 10)}});
    QString expected = QStringLiteral("date,prayer,status\n");
    for (const char* day : {"2024-01-10", "2025-03-04"})
        for (const char* prayer : {"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha"})
            expected += QStringLiteral("%1,%2,excused\n").arg(day, prayer);
    EXPECT_EQ(historyCSV(london(), utc(2025, 3, 5)), expected);
}

// The weekly report as the controller applies it: the key handed back enters `fired`.
std::optional<QString> weeklyReport(const Config& cfg, const QDateTime& now, const QString& day,
                                    QSet<QString>& fired) {
    const std::optional<WeeklyReport> report = weeklyReportDue(cfg, now, day, fired);
    if (!report) return std::nullopt;
    EXPECT_EQ(report->key, day + "-weekly");
    fired.insert(report->key);
    return report->text;
}

TEST_F(HistoryTest, WeeklyReportShowsOnceWithinAQuarterHourOfTheLocalSundayNine) {
    // 2 March 2025 is a Sunday; London is on GMT.
    // clang-format off
    saveHistory({{"2025-02-23", {"Fajr"}}, {"2025-02-25", {"Fajr", "Dhuhr"}},
                 {"2025-03-02", {"Fajr"}}, {"2025-03-01", {"Asr"}}});
    // clang-format on
    Marks::save({{"2025-03-01", {{"Asr", "qada"}}}});
    QSet<QString> fired;
    const Config cfg = london();
    EXPECT_FALSE(weeklyReport(cfg, utc(2025, 3, 2, 20, 59, 59), "2025-03-02", fired));
    EXPECT_TRUE(fired.isEmpty());
    // 23 February is a week back and not counted.
    EXPECT_EQ(weeklyReport(cfg, utc(2025, 3, 2, 21, 5), "2025-03-02", fired),
              QStringLiteral("\U0001F4FF  This week: 4/35 prayers at the computer \u2022 "
                             "streak 2 days"));
    EXPECT_TRUE(fired.contains("2025-03-02-weekly"));
    EXPECT_FALSE(weeklyReport(cfg, utc(2025, 3, 2, 21, 6), "2025-03-02", fired));

    // First tick 15 minutes late: the key is recorded, nothing is shown.
    QSet<QString> late;
    EXPECT_FALSE(weeklyReport(cfg, utc(2025, 3, 2, 21, 15), "2025-03-02", late));
    EXPECT_TRUE(late.contains("2025-03-02-weekly"));

    QSet<QString> other;
    EXPECT_FALSE(weeklyReport(cfg, utc(2025, 3, 3, 21, 5), "2025-03-03", other)); // Monday
    Config off = cfg;
    off.weeklyReport = false;
    EXPECT_FALSE(weeklyReport(off, utc(2025, 3, 2, 21, 5), "2025-03-02", other));
    EXPECT_TRUE(other.isEmpty());

    // Absent counts as on; a streak of one is a "day"; 21:05 in New York is 02:05 UTC Monday.
    off.weeklyReport = std::nullopt;
    saveHistory({{"2025-03-02", {"Fajr"}}});
    test::setTimeZone("America/New_York");
    const auto text = weeklyReport(off, utc(2025, 3, 3, 2, 5), "2025-03-02", other);
    ASSERT_TRUE(text.has_value());
    EXPECT_TRUE(text->endsWith("streak 1 day")) << text->toStdString();
}
