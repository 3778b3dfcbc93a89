// The lock session: one lock at a time, clock jumps, the guardian entry, screens, test modes.
#include "DaySimulator.h"

#include "app/Agent.h"
#include "base/StateFiles.h"
#include "guardian/Guardian.h"
#include "integrations/PrayerCalendar.h"
#include "records/History.h"
#include "timetable/Timetable.h"

#include <QDir>
#include <QFile>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

using LockSessionTest = SimTest;

// Back ten minutes inside Dhuhr's lock, then three days ahead inside Asr's.
TEST_F(LockSessionTest, ClockJumpsInsideALockKeepTheStateConsistent) {
    DaySimulator sim(fixedTimesConfig(), at("12:54:59"));
    sim.runUntil(at("13:00"));
    sim.sleepUntil(at("12:50")); // NTP pulls the clock back ten minutes
    sim.step();                  // the ten minutes that were left at the last tick are still left
    EXPECT_EQ(sim.app->lockState()->countdown(), "Screen unlocks in 10:00");
    sim.runUntil(at("13:01"));
    EXPECT_EQ(sim.times("unlock"), QStringList{"13:00:01"});
    EXPECT_EQ(sim.whats("lock:").size(), 1); // Dhuhr's window is open again, but done
    EXPECT_EQ(loadHistory().value("2026-01-14"), QStringList{"Dhuhr"});

    sim.runUntil(at("15:00"));
    ASSERT_TRUE(sim.app->isLocked());
    sim.sleepUntil(at("12:00", kDay.addDays(3)));
    sim.step();
    EXPECT_FALSE(sim.app->isLocked());
    EXPECT_EQ(sim.app->cachedDayKey(), "2026-01-17");
    EXPECT_EQ(loadHistory().value("2026-01-14"), QStringList({"Dhuhr", "Asr"}));
    sim.runUntil(at("13:00", kDay.addDays(3)));
    EXPECT_EQ(sim.whats("lock:"), QStringList({"lock: Dhuhr", "lock: Asr", "lock: Dhuhr"}));
}

const QString kPrompt = "Emergency? Type your guardian's 6-digit code";

TEST_F(LockSessionTest, GuardianEntryLineByLine) {
    const QByteArray secret = Guardian::newSecret();
    Guardian::save(secret);
    Guardian::resetFailuresForTesting();
    DaySimulator sim(fixedTimesConfig(), at("12:55"));
    const LockScreenState* state = sim.app->lockState();
    auto type = [&](LockKey key, const QString& text, const QString& shown) {
        sim.app->lockKey(key, text);
        EXPECT_EQ(state->guardian(), shown) << text.toStdString();
    };
    EXPECT_EQ(state->guardian(), kPrompt);
    sim.app->previewLock(); // a second start leaves the first lock alone
    EXPECT_EQ(sim.app->lockEnd(), at("13:10"));
    EXPECT_EQ(sim.platform.raises, 0);
    sim.step();
    EXPECT_EQ(sim.platform.raises, 1);
    type(LockKey::Other, "1a2", "● ● ○ ○ ○ ○");
    // Other scripts' digits and other numerals do nothing; Arabic-Indic and Persian ones count.
    type(LockKey::Other, "४½²", "● ● ○ ○ ○ ○");
    type(LockKey::Other, "٤۵", "● ● ● ● ○ ○");
    type(LockKey::Backspace, {}, "● ● ● ○ ○ ○");
    type(LockKey::Backspace, {}, "● ● ○ ○ ○ ○");
    type(LockKey::Backspace, {}, "● ○ ○ ○ ○ ○");
    type(LockKey::Escape, {}, kPrompt);

    // A wrong code (one that cannot be the current one), then a digit clears the message.
    const QString good = Guardian::code(secret, sim.now);
    type(LockKey::Other, QChar('0' + (good[0].digitValue() + 5) % 10) + good.mid(1),
         "That code didn't work");
    type(LockKey::Other, "7", "● ○ ○ ○ ○ ○");

    // Screens change: the windows are rebuilt and the typed digit survives.
    sim.platform.screens = 2;
    sim.app->screensChanged();
    EXPECT_EQ(sim.platform.lockShows.value(1).size(), 2);
    // Every window carries the lock's end, for a lock that outlives a killed agent.
    EXPECT_EQ(sim.platform.lockShows.value(1).value(1).ends, at("13:10"));
    EXPECT_EQ(state->guardian(), "● ○ ○ ○ ○ ○");

    // The right code, Arabic-Indic then Persian digits around a space, ends the lock early:
    // done for today, but not prayed.
    sim.app->lockKey(LockKey::Escape, {});
    QString typed;
    for (const QChar c : Guardian::code(secret, sim.now))
        typed += QChar(char16_t((typed.size() < 3 ? 0x0660 : 0x06F0) + c.digitValue()));
    type(LockKey::Other, typed.insert(3, ' ') + "99", {});
    EXPECT_FALSE(sim.platform.lockWindowsUp);
    EXPECT_TRUE(sim.logs.contains("Tarvanel: Dhuhr lock ended early with the guardian code"));
    EXPECT_TRUE(sim.app->completedLocks().contains("2026-01-14-Dhuhr"));
    EXPECT_TRUE(loadHistory().isEmpty());
    sim.runUntil(at("13:10"));
    EXPECT_EQ(sim.platform.lockShows.size(), 2); // the start and the rebuild, nothing since

    // Without a guardian the digits do nothing.
    QFile::remove(supportPath(".guardian"));
    sim.sleepUntil(at("15:00"));
    sim.step();
    EXPECT_TRUE(state->guardian().isEmpty());
    sim.app->lockKey(LockKey::Other, "123456");
    EXPECT_TRUE(sim.app->isLocked());
}

// A preview records nothing and runs no Focus script; a scheduled lock runs On at its start and
// Off at its end, and goes on when On fails. The calendar fills once a day and after an import.
TEST_F(LockSessionTest, PreviewRecordsNothingAndIntegrationsFollowScheduledLocks) {
    const QString out = scratchHome() + "/focus.txt",
                  calendar = PrayerCalendar::rootPath() + "/local/prayer";
    for (const QString word : {"On", "Off"})
        writeFile(supportPath("shortcuts/Tarvanel Focus " + word),
                  ("#!/bin/sh\necho " + word + " >> " + out + "\n").toUtf8(), true);
    QDir().mkpath(calendar);
    Config cfg = fixedTimesConfig();
    cfg.strictMode = cfg.focusShortcuts = cfg.calendarSync = true;
    cfg.calendarID = "local/prayer";
    DaySimulator sim(cfg, at("12:00"));
    const auto written = [&](int lines) { // the scripts answer through the event loop
        waitFor(
            [&] {
                return readWholeFile(out).value_or("").count('\n') >= lines ||
                       !sim.logsContaining("shortcut").isEmpty();
            },
            3000);
        return readWholeFile(out).value_or("");
    };
    const auto events = [&] { return QDir(calendar).entryList({"*.ics"}).size(); };
    EXPECT_GT(events(), 0);
    sim.app->buildMenu().value(sim.app->buildMenu().size() - 2).action(); // "Preview Lock (10 s)"
    EXPECT_EQ(sim.platform.lockShows.value(0).value(0).prayer, "Preview");
    sim.runUntil(at("12:00:10"));
    EXPECT_EQ(sim.times("unlock"), QStringList{"12:00:10"});
    EXPECT_TRUE(sim.platform.alerts.isEmpty());
    EXPECT_TRUE(loadHistory().isEmpty() && sim.app->completedLocks().isEmpty());
    EXPECT_EQ(written(1), "");

    for (const QString& file : QDir(calendar).entryList({"*.ics"}))
        QFile::remove(calendar + "/" + file);
    sim.step();
    EXPECT_EQ(events(), 0);                                  // synced once today
    Timetable::merge({{"2030-01-01", {{"Fajr", "06:00"}}}}); // an import, of a day far off
    sim.step();
    EXPECT_GT(events(), 0);

    sim.didPrayAnswers = {true};
    sim.runUntil(at("12:55"));
    EXPECT_EQ(written(1), "On\n");
    sim.runUntil(at("13:10"));
    EXPECT_EQ(written(2), "On\nOff\n");
    writeFile(supportPath("shortcuts/Tarvanel Focus On"), "#!/bin/sh\nexit 1\n", true);
    sim.runUntil(at("14:55"));
    written(3);
    EXPECT_EQ(sim.logsContaining("shortcut"),
              QStringList{"Tarvanel: shortcut \"Tarvanel Focus On\" failed (1)"});
    EXPECT_TRUE(sim.app->isLocked());
}

// One window per screen; the adhan file plays, or the chime when it cannot or is turned off.
TEST_F(LockSessionTest, EachScreenGetsAWindowAndTheAdhanOrTheChimePlays) {
    writeSupportFile("adhan.mp3", "ID3");
    DaySimulator sim(fixedTimesConfig(), at("12:54:59"));
    sim.platform.screens = 3;
    sim.step();
    ASSERT_EQ(sim.platform.lockShows.value(0).size(), 3);
    EXPECT_EQ(sim.platform.lockShows[0][2].prayer, "Dhuhr");
    EXPECT_EQ(sim.platform.sounds.last(), "file:" + supportPath("adhan.mp3"));
    EXPECT_EQ(sim.platform.activations, 1);
    sim.app->endLock(false);
    sim.platform.soundFilesPlay = false;
    sim.app->previewLock();
    sim.app->endLock(false);
    Config off = fixedTimesConfig();
    off.adhanEnabled = false;
    sim.app->applyConfig(off);
    sim.platform.soundFilesPlay = true;
    sim.app->previewLock();
    EXPECT_EQ(sim.platform.sounds,
              QStringList({"file:" + supportPath("adhan.mp3"), "Glass", "Blow", "Glass", "Blow"}));
}

TEST_F(LockSessionTest, TestLockAndTestNudgeRunAndExit) {
    CommandLine cl;
    cl.testLockSeconds = 3;
    DaySimulator sim(std::nullopt, at("12:00"), cl);
    sim.step();
    EXPECT_EQ(sim.platform.title, "🕌 Test");
    EXPECT_FALSE(sim.platform.exitStatus.has_value());
    sim.step(2);
    EXPECT_EQ(sim.platform.exitStatus, 0);

    cl = CommandLine{};
    cl.testNudge = true;
    DaySimulator nudge(std::nullopt, at("12:00"), cl);
    ASSERT_EQ(nudge.platform.banners.size(), 1);
    EXPECT_EQ(nudge.platform.banners[0].message, "🕌  Asr in 10 minutes. Start finishing up.");
    ASSERT_EQ(nudge.platform.timers.size(), 1);
    EXPECT_EQ(nudge.platform.timers[0].first, 17000);
    nudge.platform.timers[0].second();
    EXPECT_EQ(nudge.platform.exitStatus, 0);
}

// The marker opens the settings once, after the first tick; a second copy exits quietly.
TEST_F(LockSessionTest, ShowSettingsMarkerAndASecondCopy) {
    writeSupportFile(".show-settings", "");
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    EXPECT_EQ(sim.platform.title, "🕌 Dhuhr in 1h 0m"); // the tick ran first
    EXPECT_FALSE(QFile::exists(supportPath(".show-settings")));
    sim.restart();
    EXPECT_EQ(sim.platform.settingsOpened, 1);
    releaseInstanceLockForTesting(); // what the first copy holds, another process holds now
    const int fd = ::open(QFile::encodeName(supportPath(".instance.lock")).constData(),
                          O_RDWR | O_CREAT, 0644);
    ASSERT_EQ(::flock(fd, LOCK_EX | LOCK_NB), 0);
    DaySimulator second(fixedTimesConfig(), at("12:00"));
    EXPECT_EQ(second.platform.exitStatus, 0);
    EXPECT_TRUE(second.platform.titles.isEmpty());
    ::close(fd);
}

// Under the agent a replaced program file or a plain quit ends with status 1 (restart), unless
// the settings window is open or the computer powers off.
TEST_F(LockSessionTest, UnderTheAgentReplacementAndQuitRestart) {
    const QString exe = scratchHome() + "/tarvanel-exe";
    writeFile(exe, "v1");
    setExecutablePathForTesting(exe);
    qputenv("TARVANEL_AGENT", "com.velmora.tarvanel");
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    sim.step();
    EXPECT_FALSE(sim.platform.exitStatus.has_value());

    QFile f(exe); // rewritten in place: a new modification time
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.setFileTime(QDateTime::currentDateTimeUtc().addSecs(60),
                              QFileDevice::FileModificationTime));
    f.close();
    sim.platform.settingsOpen = true;
    sim.step();
    EXPECT_FALSE(sim.platform.exitStatus.has_value());
    sim.platform.settingsOpen = false;
    sim.step();
    EXPECT_EQ(sim.platform.exitStatus, 1);
    EXPECT_TRUE(sim.logs.contains("Tarvanel: new version installed, restarting"));
    sim.platform.exitStatus.reset();
    sim.app->terminateRequested();
    EXPECT_EQ(sim.platform.exitStatus, 1);
    sim.app->poweringOff();
    sim.app->terminateRequested();
    EXPECT_EQ(sim.platform.exitStatus, 0);
    qunsetenv("TARVANEL_AGENT");
    setExecutablePathForTesting({});
}

} // namespace
