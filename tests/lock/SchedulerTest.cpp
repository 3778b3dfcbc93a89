// Whole simulated days through the real controller: the road of each prayer to the second.
#include "DaySimulator.h"
#include "records/ConfigFile.h"

#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "records/History.h"
#include "records/LockState.h"
#include "records/UserDefaults.h"

#include <QFile>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

using SchedulerTest = SimTest;

Config with(std::function<void(Config&)> change, Config cfg = fixedTimesConfig()) {
    change(cfg);
    return cfg;
}

// Ticks half a second after each whole second, as a real timer falls: every reminder counts
// down to the lock's start at 12:55 and shows before it; the title's colours follow that moment.
TEST_F(SchedulerTest, RoadOfDhuhrToTheSecond) {
    DaySimulator sim(fixedTimesConfig(), at("12:30:00.5"));
    sim.runUntil(at("13:20"), [&] {
        if (sim.now < at("12:55")) {
            const qint64 toStart = sim.now.msecsTo(at("12:55"));
            EXPECT_EQ(sim.platform.titleColor, toStart <= 300000    ? TitleColor::Red
                                               : toStart <= 1200000 ? TitleColor::Orange
                                                                    : TitleColor::Label);
            EXPECT_FALSE(sim.platform.lockWindowsUp);
        } else if (sim.now < at("13:10")) {
            EXPECT_TRUE(sim.platform.lockWindowsUp);
            EXPECT_EQ(sim.platform.title, "🕌 Dhuhr");
            EXPECT_EQ(sim.platform.titleColor, TitleColor::Label);
        }
    });
    EXPECT_EQ(sim.timeline(),
              QStringList({
                  "12:35:00 banner: 🕌  Dhuhr in 20 minutes — begin wrapping up.",
                  "12:45:00 banner: 🕌  Dhuhr in 10 minutes. Start finishing up.",
                  "12:50:00 banner: 🕌  Dhuhr in 5 minutes. Save your work now.",
                  "12:53:00 banner: 🕌  Dhuhr in 2 min — the screen is about to lock. Go make "
                  "wudu.",
                  "12:55:00 lock: Dhuhr",
                  "13:10:00 unlock",
              }));
    EXPECT_EQ(sim.platform.banners.last().style, BannerStyle::urgent);
    EXPECT_EQ(sim.platform.sounds,
              QStringList({"Glass", "Glass", "Glass", "Sosumi", "Blow", "Glass"}));
    EXPECT_TRUE(sim.logs.contains("Tarvanel: locked for Dhuhr until 2026-01-14 13:10:00 +0000"));
    EXPECT_EQ(loadHistory().value("2026-01-14"), QStringList{"Dhuhr"});
    EXPECT_EQ(loadCompletedLocks(), QSet<QString>{"2026-01-14-Dhuhr"});
}

// "Dhuhr in 10 minutes" is due on the millisecond ten minutes before the screens go dark, with
// any lead, and a reminder never shows once the window is open.
TEST_F(SchedulerTest, ReminderIsDueItsOffsetBeforeTheLockStarts) {
    for (const double lead : {5.0, 0.0, 12.0}) {
        SCOPED_TRACE(lead);
        wipeScratchHome();
        const QDateTime start = at("13:00").addMSecs(-qint64(lead * 60000));
        DaySimulator sim(with([&](Config& c) { c.lockLeadMinutes = lead; }),
                         start.addMSecs(-600001));
        EXPECT_EQ(sim.platform.banners.size(), 0); // launched 1 ms early: nothing yet
        sim.step(0.002);
        ASSERT_EQ(sim.platform.banners.size(), 1);
        EXPECT_EQ(sim.platform.banners[0].message,
                  "🕌  Dhuhr in 10 minutes. Start finishing up.");
        sim.runUntil(start.addMSecs(1));
        EXPECT_EQ(sim.platform.lockShows.size(), 1);
        EXPECT_EQ(sim.times("banner:"),
                  QStringList({formatLocal(start.addSecs(-600), "HH:mm:ss"),
                               formatLocal(start.addSecs(-300), "HH:mm:ss"),
                               formatLocal(start.addSecs(-120), "HH:mm:ss")}));
    }
}

// An ordinary day and both days with a clock change lock at the same wall-clock times.
TEST_F(SchedulerTest, WholeDaysLockEachPrayerOnceAndAskAboutCallsOnlyWhenDue) {
    for (const QDate day : {kDay, QDate(2026, 3, 29), QDate(2026, 10, 25)}) {
        SCOPED_TRACE(day.toString(Qt::ISODate).toStdString());
        wipeScratchHome();
        DaySimulator sim(fixedTimesConfig({"06:30", "13:00", "15:00", "18:30", "20:30"}),
                         at("00:00", day));
        sim.runUntil(at("23:59:59", day));
        EXPECT_EQ(sim.timeline("lock:"),
                  QStringList({"06:25:00 lock: Fajr", "12:55:00 lock: Dhuhr", "14:55:00 lock: Asr",
                               "18:25:00 lock: Maghrib", "20:25:00 lock: Isha"}));
        EXPECT_EQ(sim.whats("banner: 🕌").size(), 20); // all four before each lock
        EXPECT_EQ(loadHistory().value(dayKey(day)),
                  QStringList({"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha"}));
        EXPECT_EQ(sim.platform.title, "🕌 Fajr at 6:30 AM");
        EXPECT_EQ(sim.callChecks, 5); // never on idle ticks
    }
}

TEST_F(SchedulerTest, SleepBeforeInsideAndAfterAWindow) {
    DaySimulator sim(fixedTimesConfig(), at("06:00"));
    // Wakes before Fajr's window opens at 06:25: only the reminders over 90 s old are skipped.
    sim.sleepUntil(at("06:18:30.5"));
    sim.runUntil(at("06:41"));
    EXPECT_EQ(sim.whats("banner:"),
              QStringList(
                  {"banner: 🕌  Fajr in 5 minutes. Save your work now.",
                   "banner: 🕌  Fajr in 2 min — the screen is about to lock. Go make wudu."}));

    sim.sleepUntil(at("13:00:00")); // wakes 5 minutes into Dhuhr's window
    sim.step();
    EXPECT_EQ(sim.whats("banner:").size(), 2); // every reminder is too old
    sim.runUntil(at("13:11"));
    EXPECT_EQ(sim.timeline("").mid(3),
              QStringList({"06:40:00 unlock", "13:00:01 lock: Dhuhr", "13:10:00 unlock"}));

    sim.sleepUntil(at("15:20")); // asleep across Asr's whole window
    sim.runUntil(at("15:30"));
    EXPECT_EQ(sim.whats("lock:").size(), 2);
    EXPECT_EQ(loadHistory().value("2026-01-14"), QStringList({"Fajr", "Dhuhr"}));
}

// A call puts the lock off once; after the call it runs its full length. A clock put back
// starts the wait afresh; a call that goes on locks when the grace runs out (at once with none).
TEST_F(SchedulerTest, CallDefersOnceAndTheLockRunsItsFullLengthAfterIt) {
    DaySimulator sim(fixedTimesConfig(), at("14:54:30"));
    sim.inCall = true;
    sim.runUntil(at("15:02"), [&] {
        if (sim.now > at("14:55")) {
            EXPECT_EQ(sim.platform.title, "🕌 Asr after your call");
            EXPECT_EQ(sim.platform.titleColor, TitleColor::Orange);
        }
    });
    EXPECT_EQ(sim.whats("banner: 🕌  Asr locks"),
              QStringList{"banner: 🕌  Asr locks when your call ends"});
    EXPECT_EQ(sim.platform.banners.last().style, BannerStyle::urgent);
    EXPECT_FALSE(sim.platform.banners.last().quote.has_value());
    EXPECT_EQ(sim.logsContaining("waiting for a call"),
              QStringList{"Tarvanel: Asr lock waiting for a call to end"});
    EXPECT_TRUE(sim.menuTexts().contains("📞 Asr locks when your call ends"));
    EXPECT_EQ(sim.app->lockStage(), LockStage::WaitingForCall);
    sim.inCall = false;
    sim.step();                                    // 15:02:01
    EXPECT_EQ(sim.app->lockEnd(), at("15:17:01")); // past the window's end at 15:10
    EXPECT_EQ(sim.app->lockStage(), LockStage::Locked);
    EXPECT_EQ(sim.logsContaining("lock stage"),
              QStringList({"Tarvanel: lock stage: idle → deferred for a call",
                           "Tarvanel: lock stage: deferred for a call → locked"}));

    sim.sleepUntil(at("16:20"));
    sim.inCall = true;
    sim.runUntil(at("16:30"));
    sim.sleepUntil(at("16:00")); // the first tick after the jump starts the wait
    sim.runUntil(at("16:20"));
    EXPECT_FALSE(sim.app->isLocked());
    sim.step();
    EXPECT_EQ(sim.app->lockEnd(), at("16:35:01"));
    EXPECT_EQ(loadHistory().value("2026-01-14"), QStringList{"Asr"});
}

TEST_F(SchedulerTest, CallThatGoesOnLocksWhenTheGraceRunsOut) {
    for (const int grace : {20, 0}) {
        SCOPED_TRACE(grace);
        wipeScratchHome();
        DaySimulator sim(with([&](Config& c) { c.callGraceMinutes = grace; }), at("14:54:59"));
        sim.inCall = true;
        sim.runUntil(at("15:16"));
        EXPECT_EQ(sim.times("lock:"), QStringList{grace ? "15:15:00" : "14:55:00"});
        EXPECT_EQ(sim.callChecks > 0, grace > 0);
    }
}

// "Not yet" twice, once through the controller's question and once through the alert.
TEST_F(SchedulerTest, StrictModeAsksUntilYesAndRecordsOnce) {
    DaySimulator sim(with([](Config& c) { c.strictMode = true; }), at("12:54:59"));
    sim.didPrayAnswers = {false};
    sim.platform.answerAlert(1001); // Not Yet
    sim.platform.answerAlert(1000);
    sim.runUntil(at("13:19:59"));
    // Two seconds tick by while each question is open; "Not yet" counts from the answer.
    EXPECT_EQ(sim.app->lockEnd(), at("13:20:02"));
    EXPECT_TRUE(loadHistory().isEmpty());
    sim.runUntil(at("13:25"));
    EXPECT_EQ(sim.times("lock:"), QStringList({"12:55:00", "13:10:00", "13:15:02"}));
    EXPECT_EQ(sim.times("alert: Did you pray Dhuhr?"), QStringList({"13:15:02", "13:20:04"}));
    EXPECT_EQ(sim.app->lockEnd(), std::nullopt);
    EXPECT_EQ(loadHistory().value("2026-01-14"), QStringList{"Dhuhr"});
    const QString locked = "Tarvanel: lock stage: idle → locked",
                  asking = "Tarvanel: lock stage: locked → asking “Did you pray?”",
                  again = "Tarvanel: lock stage: asking “Did you pray?” → locked";
    EXPECT_EQ(sim.logsContaining("lock stage"),
              QStringList({locked, asking, again, asking, again, asking,
                           "Tarvanel: lock stage: asking “Did you pray?” → idle"}));
    EXPECT_EQ(sim.app->lockStage(), LockStage::Idle);
}

// Travelling combines Dhuhr with Asr and Maghrib with Isha, but never Jumu'ah with Asr.
TEST_F(SchedulerTest, TravellingCombinesPrayers) {
    const Config cfg = with([](Config& c) { c.combineWhenTravelling = true; });
    for (const QDate day : {kDay, kFriday}) {
        SCOPED_TRACE(day.toString(Qt::ISODate).toStdString());
        wipeScratchHome();
        UserDefaults().setTravellingUntil(at("00:00", day.addDays(1)));
        DaySimulator sim(cfg, at("12:00", day));
        if (day == kFriday) {
            sim.runUntil(at("23:00", day));
            EXPECT_EQ(sim.timeline("lock:"),
                      QStringList({"13:25:00 lock: Jumu'ah", "14:55:00 lock: Asr",
                                   "16:25:00 lock: Maghrib & Isha"}));
            EXPECT_EQ(sim.times("unlock").mid(0, 2), QStringList({"14:10:00", "15:10:00"}));
            continue;
        }
        EXPECT_EQ(sim.platform.title, "🕌 Dhuhr & Asr in 1h 0m");
        sim.runUntil(at("23:00"), [&] {
            if (sim.now == at("16:00:01")) {
                EXPECT_EQ(sim.platform.title, "🕌 Maghrib & Isha in 29m");
            }
        });
        EXPECT_EQ(sim.whats("lock:"), QStringList({"lock: Dhuhr & Asr", "lock: Maghrib & Isha"}));
        EXPECT_EQ(loadHistory().value("2026-01-14"),
                  QStringList({"Dhuhr", "Asr", "Maghrib", "Isha"}));
    }
}

TEST_F(SchedulerTest, OverlappingWindowsLockOneAfterTheOther) {
    DaySimulator sim(fixedTimesConfig({"06:30", "13:00", "13:10"}), at("12:54:59"));
    sim.runUntil(at("13:30"));
    // The tick that ends Dhuhr does nothing else; Asr starts at the next.
    EXPECT_EQ(sim.timeline("lock:").join(", "), "12:55:00 lock: Dhuhr, 13:10:01 lock: Asr");
    EXPECT_EQ(sim.times("unlock"), QStringList({"13:10:00", "13:20:00"}));
    EXPECT_EQ(sim.app->completedLocks(), QSet<QString>({"2026-01-14-Dhuhr", "2026-01-14-Asr"}));
}

TEST_F(SchedulerTest, RestartOnTheSameDayRemembersWhatWasDone) {
    DaySimulator sim(fixedTimesConfig(), at("12:50"));
    sim.app->markPrayed(1);
    EXPECT_EQ(loadCompletedLocks(), QSet<QString>{"2026-01-14-Dhuhr"});
    sim.step();
    sim.restart();
    sim.runUntil(at("13:15"));
    EXPECT_TRUE(sim.whats("lock:").isEmpty());

    // The next morning the old keys are gone from memory and from the file.
    sim.sleepUntil(at("06:00", kDay.addDays(1)));
    sim.restart();
    EXPECT_TRUE(loadCompletedLocks().isEmpty());

    // A broken state file starts the day afresh.
    writeSupportFile("state.json", "[\"2026-01-15-Dhuhr\", 7");
    sim.sleepUntil(at("12:56", kDay.addDays(1)));
    sim.restart();
    EXPECT_TRUE(sim.app->isLocked());
    EXPECT_EQ(sim.app->lockEnd(), at("13:10", kDay.addDays(1)));
}

TEST_F(SchedulerTest, MidnightAndAClockPutBackKeepOnlyTheKeysOfTheDay) {
    const QDate thursday = kDay.addDays(1);
    DaySimulator sim(fixedTimesConfig({"06:30", "13:00", "15:00", "16:30", "23:30"}), at("23:00"));
    sim.runUntil(at("23:59:59"));
    EXPECT_TRUE(sim.app->firedNudges().contains("2026-01-14-Isha-20"));
    sim.runUntil(at("00:00:01", thursday));
    EXPECT_TRUE(sim.app->completedLocks().isEmpty());
    EXPECT_TRUE(sim.app->firedNudges().isEmpty());
    EXPECT_TRUE(loadCompletedLocks().isEmpty());
    EXPECT_EQ(sim.platform.title, "🕌 Fajr in 6h 29m");

    // A clock that ran a day ahead and is put back: that day's marks do not hold its locks.
    sim.app->markPrayed(0);
    EXPECT_EQ(sim.app->completedLocks(), QSet<QString>{"2026-01-15-Fajr"});
    sim.sleepUntil(at("23:59:50"));
    sim.step();
    EXPECT_TRUE(loadCompletedLocks().isEmpty());
    sim.runUntil(at("06:40", thursday));
    EXPECT_EQ(sim.timeline("lock:"), QStringList({"23:25:00 lock: Isha", "06:25:00 lock: Fajr"}));
}

// A touched, broken or missing settings file: nothing of today repeats, the last good settings
// hold, a missing file shows "Set up". Settings applied from the window are no outside change.
TEST_F(SchedulerTest, SettingsFileChangesRepeatNothingAndNeverLoseTheDay) {
    DaySimulator sim(fixedTimesConfig(), at("12:39:59"));
    sim.runUntil(at("12:45"));
    QFile::remove(configURL());
    saveConfig(with([](Config& c) { c.lockMinutes = 20; })); // a new file: a new date
    sim.runUntil(at("12:50"));
    QFile::remove(configURL());
    writeSupportFile("config.json", "{ not json");
    sim.runUntil(at("13:20"));
    EXPECT_EQ(sim.logsContaining("config reloaded").size(), 2);
    // The broken file is said on screen at the tick that reads it; the reminders go on.
    EXPECT_EQ(sim.times("banner:"), QStringList({"12:45:00", "12:50:00", "12:50:01", "12:53:00"}));
    EXPECT_TRUE(
        sim.whats("banner:")[2].startsWith("banner: ⚠️  config.json can't be used (line 1: "));
    EXPECT_EQ(sim.times("unlock"), QStringList{"13:15:00"});
    QFile::remove(configURL());
    sim.runUntil(at("14:56"));
    EXPECT_EQ(sim.platform.title, "🕌 Set up");
    sim.app->applyConfig(fixedTimesConfig()); // back inside Asr's window
    sim.step();
    EXPECT_EQ(sim.logsContaining("config reloaded").size(), 2);
    EXPECT_EQ(sim.whats("lock:"), QStringList({"lock: Dhuhr", "lock: Asr"}));
}

TEST_F(SchedulerTest, PauseEndingInsideAWindowLocksAtOnce) {
    UserDefaults().setPausedUntil(at("13:05"));
    DaySimulator sim(fixedTimesConfig(), at("12:50"));
    EXPECT_EQ(sim.platform.titleColor, TitleColor::Secondary);
    sim.runUntil(at("13:05")); // the pause is over inside Dhuhr's window
    EXPECT_EQ(sim.times("lock:"), QStringList{"13:05:00"});
    EXPECT_FALSE(UserDefaults().pausedUntil().has_value());
}

TEST_F(SchedulerTest, NotSetUpShowsTheSetUpTitleAndOpensSettings) {
    DaySimulator sim(std::nullopt, at("12:00"));
    EXPECT_EQ(sim.platform.title, "🕌 Set up");
    EXPECT_TRUE(sim.platform.settingsFirstRun);
    EXPECT_EQ(sim.menuTexts().size(), 2);
    sim.app->buildMenu()[1].action();
    EXPECT_EQ(sim.platform.settingsOpened, 2);
}

// Fajr locking after sunrise lets the time of Fajr run out unlocked: warnings, unless it is done.
TEST_F(SchedulerTest, FajrEndWarningsSkipTheOneThatIsTooOld) {
    for (const bool done : {false, true}) {
        SCOPED_TRACE(done);
        wipeScratchHome();
        DaySimulator sim(fixedTimesConfig({"09:00"}), at("06:00"));
        const auto sunrise = sim.app->cachedWaqt().value(u"Sunrise");
        ASSERT_TRUE(sunrise.has_value());
        if (done) sim.app->markPrayed(0);
        sim.sleepUntil(sunrise->addSecs(-25 * 60));
        sim.runUntil(*sunrise);
        const QStringList warnings = sim.whats("banner: ⚠️");
        EXPECT_EQ(warnings.isEmpty(), done);
        if (done) continue;
        // Shown on the second: the minutes left round up like a reminder's.
        const QString text =
            "banner: ⚠️  Fajr ends at sunrise " + formatLocal(*sunrise, "h:mm AP");
        EXPECT_EQ(warnings,
                  QStringList({text + " — only 16 min left!", text + " — only 8 min left!"}));
        EXPECT_EQ(sim.times("banner: ⚠️")[0],
                  formatLocal(sunrise->addSecs(-15 * 60), "HH:mm:ss"));
        EXPECT_EQ(sim.platform.banners.last().style, BannerStyle::critical);
        EXPECT_TRUE(sim.app->firedNudges().contains("2026-01-14-FajrEnd-30"));
    }
}

// Ramadan: the Iftar title and Tarawih two minutes after Isha's window. Sunday 21:00: the report.
TEST_F(SchedulerTest, TarawihAndTheWeeklyReportComeOnceOnTime) {
    const QDate ramadanDay(2026, 2, 25), sunday(2026, 3, 1);
    DaySimulator sim(fixedTimesConfig({"06:30", "13:00", "15:00", "17:30", "19:30"}),
                     at("17:00", ramadanDay));
    EXPECT_EQ(sim.platform.title, "🌙 Iftar in 30m");
    sim.runUntil(at("20:00", ramadanDay));
    sim.sleepUntil(at("20:59:58", sunday));
    sim.runUntil(at("21:30", sunday));
    EXPECT_EQ(
        sim.timeline("banner: 🌙") + sim.timeline("banner: 📿"),
        QStringList({"19:42:00 banner: 🌙  Tarawih tonight — don't miss it.",
                     "21:00:00 banner: 📿  This week: 2/35 prayers at the computer • streak 0 "
                     "days"}));
    EXPECT_EQ(sim.platform.banners.last().style, BannerStyle::normal);
}

} // namespace
