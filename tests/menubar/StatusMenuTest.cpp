// The status item: its titles, and the menu as a model with its lines, grid and commands.
#include "../lock/DaySimulator.h"
#include "timetable/Timetable.h"

#include "app/Agent.h"
#include "base/StateFiles.h"
#include "engine/CalcMethods.h"
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "integrations/FocusShortcuts.h"
#include "records/History.h"
#include "records/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

using StatusMenuTest = SimTest;
using Sim = DaySimulator;

// Before Fajr there is nothing to mark; once a window has ended it is qada, not elsewhere.
TEST_F(StatusMenuTest, DayRowsTheGridAndMarkAsPrayedOffersQadaOnlyAfterTheWindowEnds) {
    DaySimulator sim(fixedTimesConfig(), at("01:00"));
    auto mark = [&] { return sim.item("Mark as Prayed").submenu; };
    ASSERT_EQ(mark().size(), 1);
    EXPECT_FALSE(mark()[0].enabled);
    EXPECT_EQ(sim.item("🔥").text, "🔥 Streak: 0 days");

    sim.sleepUntil(at("12:00"));
    sim.step();
    const MenuModel menu = sim.app->buildMenu();
    EXPECT_EQ(menu[0].text, "London — " + methodSummary(fixedTimesConfig()));
    EXPECT_TRUE(menu[1].text.endsWith(" AH")) << menu[1].text.toStdString();
    EXPECT_EQ(menu[2].kind, MenuItem::Kind::Separator);
    const QStringList rows = Sim::texts(menu.mid(3, 6));
    EXPECT_TRUE(rows[0].startsWith("Fajr\t6:30 AM  (waqt "));
    EXPECT_EQ(rows[1].indexOf("(waqt"), -1); // Sunrise has no lock time of its own
    EXPECT_TRUE(rows[2].startsWith("Dhuhr\t1:00 PM  (waqt "));
    EXPECT_EQ(Sim::texts(menu).filter("  ◀ next"), QStringList{rows[2]});

    // Seven days, oldest first, five marks each.
    QStringList grid;
    for (const MenuItem& item : menu)
        if (item.monospaced) grid << item.text;
    ASSERT_EQ(grid.size(), 7);
    EXPECT_TRUE(grid[0].startsWith("Thu 8   ")) << grid[0].toStdString();
    EXPECT_TRUE(grid[6].startsWith("Wed 14  ")) << grid[6].toStdString();
    for (const QString& row : grid)
        EXPECT_EQ(row.mid(8).split(' ').size(), 5);

    sim.sleepUntil(at("13:00"));
    sim.step();
    EXPECT_EQ(Sim::texts(mark()),
              QStringList({"Fajr: Prayed Late (Qada)", "Dhuhr: Prayed Elsewhere"}));
    EXPECT_EQ(mark()[0].tag, 100);
    mark()[0].action();
    EXPECT_TRUE(sim.logs.contains("Tarvanel: marked Fajr as qada"));
    EXPECT_EQ(mark()[0].text, "✓ Fajr");
    EXPECT_EQ(sim.item("🔥").text, "🔥 Streak: 1 day");

    // No prayer is next after Isha; Isha is never late; out-of-range tags do nothing.
    sim.sleepUntil(at("23:30"));
    sim.step();
    EXPECT_TRUE(sim.menuTexts().filter("◀ next").isEmpty());
    EXPECT_EQ(mark().last().text, "Isha: Prayed Elsewhere");
    const HistoryMap before = loadHistory();
    for (const int tag : {5, 105, -1})
        sim.app->markPrayed(tag);
    EXPECT_EQ(loadHistory(), before);
}

// The mode lines and commands, each showing at once in the title. Every question runs ticks
// while it is open, as the desktop's nested event loop does; the answer still takes effect.
TEST_F(StatusMenuTest, ModeLinesAndCommands) {
    Config cfg = fixedTimesConfig();
    cfg.combineWhenTravelling = true;
    UserDefaults().setTravellingUntil(startOfLocalDay(kFriday));
    UserDefaults().setPausedUntil(at("18:00"));
    DaySimulator sim(cfg, at("12:00"));
    EXPECT_EQ(sim.item("⏸").text, "⏸ Locks paused until Wednesday 6:00 PM");
    EXPECT_EQ(sim.item("✈️ Travelling").text,
              "✈️ Travelling until Thursday 15 Jan · combining prayers");
    EXPECT_TRUE(sim.has("Asr (with Dhuhr)\t"));
    EXPECT_TRUE(sim.has("Isha (with Maghrib)\t"));
    EXPECT_FALSE(sim.has("Pause Locks"));
    EXPECT_EQ(sim.platform.title, "🕌 Paused");

    sim.item("Resume Locks").action();
    EXPECT_EQ(sim.platform.title, "🕌 Dhuhr & Asr in 1h 0m");
    EXPECT_TRUE(sim.logs.contains("Tarvanel: resumed"));
    sim.item("Stop Travelling").action();
    EXPECT_EQ(sim.platform.title, "🕌 Dhuhr in 1h 0m");
    EXPECT_FALSE(sim.has("⏸") || sim.has("✈️") || sim.has("Resume Locks"));
    const MenuItem pause = sim.item("Pause Locks");
    EXPECT_EQ(Sim::texts(pause.submenu),
              QStringList({"For the Rest of Today", "For 3 Days", "For a Week"}));
    EXPECT_EQ(pause.submenu[2].tag, 7);

    // Paused for the rest of today: Dhuhr's lock does not come.
    sim.platform.answerAlert(1000);
    pause.submenu[0].action();
    EXPECT_EQ(sim.platform.alerts.last().info,
              "No reminders and no locks until Thursday 15 January at midnight. You can resume "
              "any time from the menu.");
    EXPECT_EQ(sim.platform.title, "🕌 Paused");
    EXPECT_TRUE(sim.logs.contains("Tarvanel: paused until 2026-01-15 00:00:00 +0000"));
    sim.runUntil(at("13:20"));
    EXPECT_EQ(sim.whats(""), QStringList{"alert: Pause Tarvanel?"}); // no reminder, no lock

    sim.item("Resume Locks").action();
    sim.platform.dateAnswers.push_back(kDay);
    sim.item("I'm Travelling…").action();
    EXPECT_EQ(sim.platform.title, "🕌 Maghrib & Isha in 3h 9m");
    EXPECT_TRUE(sim.has("Stop Travelling") && !sim.has("I'm Travelling…"));

    sim.platform.answerAlert(1000);
    sim.item("I'm Excused…").action();
    EXPECT_EQ(sim.platform.title, "🕌");
    EXPECT_EQ(sim.platform.titleColor, TitleColor::Secondary);
    EXPECT_TRUE(sim.has("Excused · reminders and locks are off"));
    sim.item("No Longer Excused").action();
    EXPECT_EQ(sim.platform.title, "🕌 Maghrib & Isha in 3h 9m");

    // A pause written by hand shows at the next tick.
    writeFile(UserDefaults::defaultPath(), "[General]\npausedUntil=2026-01-14T20:00:00Z\n");
    sim.step();
    EXPECT_EQ(sim.platform.title, "🕌 Paused");
}

// A lock holds settings, pause and uninstall back; marking a prayer that waits for a call
// drops its lock.
TEST_F(StatusMenuTest, ALockHoldsCommandsBackAndMarkingDropsAWaitingLock) {
    DaySimulator sim(fixedTimesConfig(), at("12:55"));
    sim.app->openSettings();
    sim.app->showSettingsRequested();
    sim.platform.answerAlert(1000);
    sim.app->pauseLocks(7);
    sim.app->uninstall();
    EXPECT_EQ(sim.platform.alerts.size() + sim.platform.settingsOpened, 0);
    sim.inCall = true;
    sim.runUntil(at("14:55"));
    sim.app->openSettings();
    EXPECT_EQ(sim.platform.settingsOpened, 1);
    EXPECT_FALSE(sim.platform.settingsFirstRun);
    ASSERT_TRUE(sim.app->hasDeferredLock());
    sim.app->markPrayed(2);
    sim.inCall = false;
    sim.runUntil(at("15:20"));
    EXPECT_EQ(sim.whats("lock:"), QStringList{"lock: Dhuhr"});
}

// The service steps of uninstalling are AgentTest's; here the menu asks and ends the process.
TEST_F(StatusMenuTest, ExportAndUninstallAskAndDoWhatWasChosen) {
    setSystemctlForTesting("/bin/true");
    DaySimulator sim(fixedTimesConfig(), at("13:30"));
    sim.app->markPrayed(1);
    const QString path = scratchHome() + "/export.csv";
    sim.platform.savePathAnswers.push_back(path);
    sim.app->exportHistory();
    sim.app->exportHistory(); // cancelled: nothing happens
    EXPECT_EQ(readWholeFile(path).value_or(QByteArray()),
              "date,prayer,status\n2026-01-14,Dhuhr,elsewhere\n");
    ASSERT_EQ(sim.platform.alerts.size(), 1);
    EXPECT_EQ(sim.platform.alerts[0].message, "Exported 1 prayer to " + path);
    // A write that fails is said on screen with the path and the reason, and logged.
    const QString nowhere = scratchHome() + "/no such folder/export.csv";
    sim.platform.savePathAnswers.push_back(nowhere);
    sim.app->exportHistory();
    ASSERT_EQ(sim.platform.alerts.size(), 2);
    EXPECT_EQ(sim.platform.alerts[1].message, "Couldn't export the history to " + nowhere);
    EXPECT_EQ(sim.platform.alerts[1].info, "No such file or directory.");
    EXPECT_EQ(sim.platform.alerts[1].buttons, QStringList{"OK"});
    EXPECT_EQ(
        sim.logsContaining("could not save " + nowhere + " (No such file or directory)").size(), 1);
    EXPECT_FALSE(QFileInfo::exists(nowhere));
    sim.platform.alerts.removeLast();
    // A long history: the count in the locale's grouping, and the file holds every row.
    HistoryMap many;
    for (int d = 0; d < 246; ++d)
        many[kDay.addDays(-300 + d).toString("yyyy-MM-dd")] = prayerNames();
    many[kDay.toString("yyyy-MM-dd")] = {"Fajr", "Dhuhr", "Asr", "Maghrib"};
    saveHistory(many);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    sim.platform.savePathAnswers.push_back(path);
    sim.app->exportHistory();
    QLocale::setDefault(QLocale::c());
    ASSERT_EQ(sim.platform.alerts.size(), 2);
    EXPECT_EQ(sim.platform.alerts[1].message, "Exported 1,234 prayers to " + path);
    EXPECT_EQ(readWholeFile(path).value_or(QByteArray()).count('\n'), 1235);
    sim.platform.alerts.clear();
    sim.app->uninstall(); // cancelled
    ASSERT_EQ(sim.platform.alerts.size(), 1);
    EXPECT_EQ(sim.platform.alerts[0].message, "Uninstall Tarvanel?");
    EXPECT_TRUE(sim.platform.alerts[0].firstIsDestructive);
    EXPECT_FALSE(sim.platform.exitStatus.has_value());

    sim.platform.answerAlert(1000, true);
    sim.app->uninstall();
    // The service steps run beside the event loop; the process ends after them.
    waitFor([&] { return sim.platform.exitStatus.has_value(); });
    EXPECT_EQ(sim.platform.exitStatus, 0);
    EXPECT_FALSE(QDir(supportDir()).exists());
    EXPECT_TRUE(sim.logs.contains("Tarvanel: uninstalled"));
    setSystemctlForTesting({});
}

// "Resume Locks" inside a lock window asks first and Cancel keeps the pause; outside one it
// resumes at once. The grid ends in its legend and "Settings…" shows its whole shortcut.
TEST_F(StatusMenuTest, ResumeInsideAWindowAsksAndTheMenuExplainsItself) {
    UserDefaults().setPausedUntil(at("18:00"));
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    sim.item("Resume Locks").action();
    EXPECT_TRUE(sim.platform.alerts.isEmpty());
    EXPECT_EQ(sim.platform.title, "🕌 Dhuhr in 1h 0m");

    sim.platform.answerAlert(1000);
    sim.item("Pause Locks").submenu[0].action();
    sim.sleepUntil(at("12:55"));
    sim.step();
    EXPECT_EQ(sim.platform.title, "🕌 Paused");
    sim.item("Resume Locks").action(); // no answer scripted: Cancel
    ASSERT_EQ(sim.platform.alerts.size(), 2);
    EXPECT_EQ(sim.platform.alerts[1].message, "Dhuhr's lock is due now: lock now?");
    EXPECT_EQ(sim.platform.alerts[1].buttons, QStringList({"Lock Now", "Cancel"}));
    EXPECT_FALSE(sim.app->isLocked());
    EXPECT_TRUE(sim.has("Resume Locks"));
    sim.platform.answerAlert(1000);
    sim.item("Resume Locks").action();
    EXPECT_TRUE(sim.app->isLocked());
    EXPECT_EQ(sim.app->lockPrayer(), "Dhuhr");

    const MenuModel menu = sim.app->buildMenu();
    qsizetype last = -1;
    for (qsizetype i = 0; i < menu.size(); ++i)
        if (menu[i].monospaced) last = i;
    ASSERT_GT(last, 0);
    EXPECT_EQ(menu[last + 1].text, "✓ prayed   q qada   – excused   · not kept");
    EXPECT_FALSE(menu[last + 1].enabled);
    EXPECT_EQ(sim.item("Settings…").shortcut, "Ctrl+,");
}

// Set up for the first time: one notification says where the program lives and what comes
// next; with no tray host, a log line says it instead. Cancel on a first run is logged too.
TEST_F(StatusMenuTest, FirstStartSaysWhereTheProgramLivesAndTheNextLock) {
    DaySimulator sim(std::nullopt, at("14:00"));
    sim.app->openSettings();
    ASSERT_TRUE(sim.platform.settingsFirstRun);
    sim.platform.settingsActions.cancel();
    EXPECT_EQ(sim.logsContaining("Tarvanel: not set up yet").size(), 1);
    sim.app->openSettings();
    sim.platform.settingsActions.save(fixedTimesConfig());
    EXPECT_EQ(sim.platform.announcements,
              QStringList{"Tarvanel is running: Tarvanel lives in the tray: its menu has today's "
                          "times and Settings.\nNext lock: Asr at 2:55 PM"});
    EXPECT_TRUE(sim.logsContaining("no tray icon").isEmpty());

    // Not a first run: no notification. After the last lock of the day: tomorrow's Fajr.
    sim.app->openSettings();
    sim.platform.settingsActions.save(fixedTimesConfig());
    EXPECT_EQ(sim.platform.announcements.size(), 1);
    sim.sleepUntil(at("23:00"));
    sim.step();
    EXPECT_EQ(sim.app->nextLockText(), "Next lock: Fajr tomorrow at 6:25 AM");

    QFile::remove(configURL());
    sim.platform.trayHost = false;
    sim.app->openSettings();
    sim.platform.settingsActions.save(fixedTimesConfig());
    ASSERT_EQ(sim.platform.announcements.size(), 2);
    EXPECT_EQ(sim.logsContaining("no tray icon"),
              QStringList{"Tarvanel: running in the background with no tray icon (no tray "
                          "host); open Tarvanel from the applications menu for its settings. "
                          "Next lock: Fajr tomorrow at 6:25 AM"});
}

using StatusTitleTest = SimTest;

// The colour turns exactly 20 and 5 minutes before the lock's start (12:55).
TEST_F(StatusTitleTest, CountdownAndColourByMinutesToTheLockStart) {
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    using Case = std::tuple<const char*, double, const char*, TitleColor>; // the tick: wake + step
    for (const auto& [wake, step, title, color] :
         {Case{"12:36:29", 1, "🕌 Dhuhr in 23m", TitleColor::Orange},
          Case{"12:50:59", 1, "🕌 Dhuhr in 9m", TitleColor::Red},
          Case{"12:34:59", 1, "🕌 Dhuhr in 25m", TitleColor::Orange},
          Case{"12:34:59.999", 0.001, "🕌 Dhuhr in 25m", TitleColor::Orange},
          Case{"12:34:58", 1, "🕌 Dhuhr in 25m", TitleColor::Label}}) {
        SCOPED_TRACE(wake);
        sim.sleepUntil(at(wake));
        sim.step(step);
        EXPECT_EQ(std::pair(sim.platform.title, sim.platform.titleColor),
                  std::pair(QString(title), color));
    }
    // A prayer at this very instant is no longer next.
    sim.app->markPrayed(2);
    sim.sleepUntil(at("14:59:59"));
    sim.step(); // 15:00:00, Asr's time, Asr done
    EXPECT_EQ(sim.platform.title, "🕌 Maghrib in 1h 30m");
}

// The evening title comes from a cache; at every tick it must equal what the rule gives when
// tomorrow is computed afresh, across a settings change and the eve of a clock change.
TEST_F(StatusTitleTest, CachedFajrTitleMatchesTheRuleEverySecond) {
    const QDate eve(2026, 3, 28); // London moves to summer time at 01:00 on the 29th
    Config cfg = fixedTimesConfig({"06:30", "13:00", "15:00", "18:00", "20:00"});
    cfg.prayerOverrides->remove("Fajr");
    DaySimulator sim(cfg, at("20:00", eve));
    auto expected = [&](const Config& c) {
        const auto fajr = Timetable::scheduledTimes(sim.now.addSecs(86400), c).final.value(u"Fajr");
        return "🕌 Fajr at " + formatLocal(*fajr, "h:mm AP");
    };
    QSet<QString> seen;
    sim.runUntil(at("21:00", eve), [&] {
        if (!sim.app->isLocked()) {
            EXPECT_EQ(sim.platform.title, expected(cfg));
        }
    });
    Config later = cfg;
    later.prayerOverrides->insert("Fajr", "+10");
    sim.app->applyConfig(later);
    sim.runUntil(at("23:59:59", eve), [&] {
        EXPECT_EQ(sim.platform.title, expected(later));
        seen << sim.platform.title;
    });
    // Before 23:00 "now + 24 h" is Sunday; after it, Monday.
    EXPECT_EQ(seen.size(), 2);
}

} // namespace

// Write Scripts in the settings replaces Tarvanel's own pair at once and asks before replacing
// a script the user wrote; Cancel, the default, keeps it as it was.
TEST_F(StatusMenuTest, WriteScriptsAsksBeforeReplacingTheUsersOwn) {
    DaySimulator sim(fixedTimesConfig(), at("10:00"));
    sim.app->openSettings();
    ASSERT_TRUE(sim.platform.settingsModel);
    PrayerSettingsModel& m = *sim.platform.settingsModel;
    const QString on = FocusShortcuts::folder() + "/Tarvanel Focus On",
                  off = FocusShortcuts::folder() + "/Tarvanel Focus Off";
    m.writeFocusScripts("GNOME");
    EXPECT_TRUE(sim.platform.alerts.isEmpty());
    EXPECT_TRUE(readWholeFile(off).value_or("").contains("show-banners true"));

    const QByteArray mine = "#!/bin/sh\nkdeconnect-cli --ping\n";
    writeFile(on, mine, true);
    m.writeFocusScripts("XFCE"); // no answer scripted: Cancel
    ASSERT_EQ(sim.platform.alerts.size(), 1);
    const AlertRequest& ask = sim.platform.alerts[0];
    EXPECT_EQ(ask.message, "Replace your own “Tarvanel Focus On”?");
    EXPECT_EQ(ask.info, "Tarvanel's pair for XFCE takes the place of what you wrote.");
    EXPECT_EQ(ask.buttons, QStringList({"Replace", "Cancel"}));
    EXPECT_TRUE(ask.firstIsDestructive); // so the question defaults to Cancel
    EXPECT_EQ(readWholeFile(on), mine);
    EXPECT_TRUE(readWholeFile(off).value_or("").contains("show-banners true")); // pair kept whole
    EXPECT_EQ(m.focusMessage(), "Kept your own “Tarvanel Focus On”.");

    sim.platform.answerAlert(1000);
    m.writeFocusScripts("XFCE");
    EXPECT_EQ(sim.platform.alerts.size(), 2);
    EXPECT_TRUE(readWholeFile(on).value_or("").contains("xfce4-notifyd"));
    EXPECT_TRUE(readWholeFile(off).value_or("").contains("xfce4-notifyd"));
    EXPECT_TRUE(FocusShortcuts::handWritten().isEmpty());
    EXPECT_EQ(m.focusMessage(), "Wrote “Tarvanel Focus On” and “Tarvanel Focus Off” for XFCE.");
}
