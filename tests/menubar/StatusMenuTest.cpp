// The status menu as a model: its lines, its grid and its commands.
#include "../lock/DaySimulator.h"

#include "app/Agent.h"
#include "engine/CalcMethods.h"
#include "engine/LocalTime.h"
#include "records/History.h"
#include "records/StateFiles.h"
#include "records/UserDefaults.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

const QDate kDay(2026, 1, 14); // Wednesday

class StatusMenuTest : public ScratchTest {
protected:
    static QDateTime at(const QString& time, const QDate& date = kDay) {
        return localAt(date, time);
    }
    static std::optional<MenuItem> find(const MenuModel& menu, const QString& prefix) {
        for (const MenuItem& item : menu)
            if (item.text.startsWith(prefix)) return item;
        return std::nullopt;
    }
    static QStringList texts(const QList<MenuItem>& items) {
        QStringList out;
        for (const MenuItem& item : items)
            out << item.text;
        return out;
    }
};

TEST_F(StatusMenuTest, DayRowsWaqtPartsAndTheNextMarker) {
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    sim.launch();
    const MenuModel menu = sim.app->buildMenu();
    EXPECT_EQ(menu[0].text, "London — " + methodSummary(fixedTimesConfig()));
    EXPECT_TRUE(menu[1].text.endsWith(" AH")) << menu[1].text.toStdString();
    EXPECT_EQ(menu[2].kind, MenuItem::Kind::Separator);
    QStringList rows;
    for (int i = 3; i < 9; ++i)
        rows << menu[i].text;
    EXPECT_TRUE(rows[0].startsWith("Fajr\t6:30 AM  (waqt "));
    EXPECT_EQ(rows[1].indexOf("(waqt"), -1); // Sunrise has no lock time of its own
    EXPECT_TRUE(rows[2].startsWith("Dhuhr\t1:00 PM  (waqt "));
    EXPECT_TRUE(rows[2].endsWith("  ◀ next"));
    EXPECT_EQ(rows.filter("◀ next").size(), 1);
    for (int i = 3; i < 9; ++i)
        EXPECT_FALSE(menu[i].enabled);

    sim.sleepUntil(at("19:00"));
    sim.step();
    EXPECT_TRUE(texts(sim.app->buildMenu()).filter("◀ next").isEmpty());
}

TEST_F(StatusMenuTest, MarkAsPrayedOffersQadaOnlyAfterTheWindowEnds) {
    DaySimulator sim(fixedTimesConfig(), at("13:00"));
    sim.launch();
    const auto mark = find(sim.app->buildMenu(), "Mark as Prayed");
    ASSERT_TRUE(mark.has_value());
    ASSERT_EQ(mark->submenu.size(), 2);
    EXPECT_EQ(mark->submenu[0].text, "Fajr: Prayed Late (Qada)");
    EXPECT_EQ(mark->submenu[0].tag, 100);
    EXPECT_EQ(mark->submenu[1].text, "Dhuhr: Prayed Elsewhere");
    EXPECT_EQ(mark->submenu[1].tag, 1);

    mark->submenu[0].action();
    EXPECT_TRUE(sim.logs.contains("Tarvanel: marked Fajr as qada"));
    const auto again = find(sim.app->buildMenu(), "Mark as Prayed");
    EXPECT_EQ(again->submenu[0].text, "✓ Fajr");
    EXPECT_FALSE(again->submenu[0].enabled);
    EXPECT_EQ(find(sim.app->buildMenu(), "🔥")->text, "🔥 Streak: 1 day");

    // Isha is never late; out-of-range tags do nothing.
    sim.sleepUntil(at("23:30"));
    sim.step();
    const auto night = find(sim.app->buildMenu(), "Mark as Prayed");
    EXPECT_EQ(night->submenu.last().text, "Isha: Prayed Elsewhere");
    const HistoryMap before = loadHistory();
    sim.app->markPrayed(5);
    sim.app->markPrayed(105);
    sim.app->markPrayed(-1);
    EXPECT_EQ(loadHistory(), before);
}

TEST_F(StatusMenuTest, NothingToMarkBeforeFajr) {
    DaySimulator sim(fixedTimesConfig(), at("01:00"));
    sim.launch();
    const auto mark = find(sim.app->buildMenu(), "Mark as Prayed");
    ASSERT_EQ(mark->submenu.size(), 1);
    EXPECT_EQ(mark->submenu[0].text, "Nothing to mark yet");
    EXPECT_FALSE(mark->submenu[0].enabled);
    EXPECT_EQ(find(sim.app->buildMenu(), "🔥")->text, "🔥 Streak: 0 days");
}

TEST_F(StatusMenuTest, SevenDayGridIsMonospacedOldestFirst) {
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    sim.launch();
    const MenuModel menu = sim.app->buildMenu();
    QStringList grid;
    for (const MenuItem& item : menu)
        if (item.monospaced) grid << item.text;
    ASSERT_EQ(grid.size(), 7);
    EXPECT_TRUE(grid[0].startsWith("Thu 8   ")) << grid[0].toStdString();
    EXPECT_TRUE(grid[6].startsWith("Wed 14  ")) << grid[6].toStdString();
    for (const QString& row : grid)
        EXPECT_EQ(row.mid(8).split(' ').size(), 5);
}

TEST_F(StatusMenuTest, ModeLinesAndToggles) {
    Config cfg = fixedTimesConfig();
    cfg.combineWhenTravelling = true;
    UserDefaults().setTravellingUntil(startOfLocalDay(QDate(2026, 1, 16))); // Friday 00:00
    UserDefaults().setPausedUntil(at("18:00"));
    DaySimulator sim(cfg, at("12:00"));
    sim.launch();
    MenuModel menu = sim.app->buildMenu();
    EXPECT_EQ(find(menu, "⏸")->text, "⏸ Locks paused until Wednesday 6:00 PM");
    EXPECT_EQ(find(menu, "✈️ Travelling")->text,
              "✈️ Travelling until Thursday 15 Jan · combining prayers");
    EXPECT_TRUE(find(menu, "Asr (with Dhuhr)\t").has_value());
    EXPECT_TRUE(find(menu, "Isha (with Maghrib)\t").has_value());
    EXPECT_TRUE(find(menu, "Resume Locks").has_value());
    EXPECT_FALSE(find(menu, "Pause Locks").has_value());
    EXPECT_TRUE(find(menu, "Stop Travelling").has_value());

    find(menu, "Resume Locks")->action();
    find(menu, "Stop Travelling")->action();
    menu = sim.app->buildMenu();
    EXPECT_FALSE(find(menu, "⏸").has_value());
    EXPECT_FALSE(find(menu, "✈️").has_value());
    const auto pause = find(menu, "Pause Locks");
    ASSERT_TRUE(pause.has_value());
    EXPECT_EQ(texts(pause->submenu),
              QStringList({"For the Rest of Today", "For 3 Days", "For a Week"}));
    EXPECT_EQ(pause->submenu[2].tag, 7);
    EXPECT_TRUE(find(menu, "I'm Travelling…").has_value());
    EXPECT_TRUE(find(menu, "I'm Excused…").has_value());
    EXPECT_EQ(menu.last().text, "Settings…");
    EXPECT_EQ(menu.last().shortcut, ",");
    EXPECT_EQ(menu[menu.size() - 2].text, "Preview Lock (10 s)");
}

TEST_F(StatusMenuTest, MarkingTheWaitingPrayerDropsItsLock) {
    DaySimulator sim(fixedTimesConfig(), at("14:55"));
    sim.inCall = true;
    sim.launch();
    ASSERT_TRUE(sim.app->hasDeferredLock());
    sim.app->markPrayed(2);
    EXPECT_FALSE(sim.app->hasDeferredLock());
    sim.inCall = false;
    sim.runUntil(at("15:20"));
    EXPECT_FALSE(sim.app->isLocked());
    EXPECT_TRUE(sim.eventsStarting("lock:").isEmpty());
}

TEST_F(StatusMenuTest, SettingsAreClosedToALockButNotToATestLock) {
    DaySimulator sim(fixedTimesConfig(), at("12:55"));
    sim.launch();
    ASSERT_TRUE(sim.app->isLocked());
    sim.app->openSettings();
    sim.app->showSettingsRequested();
    EXPECT_EQ(sim.platform.settingsOpened, 0);
    sim.runUntil(at("13:10"));
    sim.app->openSettings();
    EXPECT_EQ(sim.platform.settingsOpened, 1);
    EXPECT_FALSE(sim.platform.settingsFirstRun);
}

TEST_F(StatusMenuTest, ExportWritesTheCsvWhereTheUserChose) {
    DaySimulator sim(fixedTimesConfig(), at("13:30"));
    sim.launch();
    sim.app->markPrayed(1);
    const QString path = scratchHome() + "/export.csv";
    sim.platform.savePathAnswers.push_back(path);
    sim.app->exportHistory();
    EXPECT_EQ(readWholeFile(path).value_or(QByteArray()),
              "date,prayer,status\n2026-01-14,Dhuhr,elsewhere\n");
    sim.app->exportHistory(); // cancelled: nothing happens
    EXPECT_EQ(sim.platform.activations, 2);
}

TEST_F(StatusMenuTest, UninstallAsksAndRemovesWhatWasChosen) {
    const QString systemctl = scratchHome() + "/systemctl";
    {
        QFile f(systemctl);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("#!/bin/sh\nexit 0\n");
        f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    setSystemctlForTesting(systemctl);
    DaySimulator sim(fixedTimesConfig(), at("12:00"));
    sim.launch();
    sim.app->uninstall(); // cancelled
    ASSERT_EQ(sim.platform.alerts.size(), 1);
    EXPECT_EQ(sim.platform.alerts[0].message, "Uninstall Tarvanel?");
    EXPECT_EQ(sim.platform.alerts[0].info,
              "Tarvanel stops running, stops starting at login, and moves to the Trash. Your "
              "prayer times stop locking the screen.");
    EXPECT_EQ(sim.platform.alerts[0].checkBox, "Also delete my settings and history");
    EXPECT_TRUE(sim.platform.alerts[0].firstIsDestructive);
    EXPECT_FALSE(sim.platform.exitStatus.has_value());

    sim.platform.answerAlert(1000, true);
    sim.app->uninstall();
    EXPECT_EQ(sim.platform.exitStatus, 0);
    EXPECT_FALSE(QDir(supportDir()).exists());
    EXPECT_TRUE(sim.logs.contains("Tarvanel: uninstalled"));
    setSystemctlForTesting({});
}

} // namespace
