#pragma once
// Drives a real AppDelegate over FakePlatform with a clock that moves one second per tick, so
// whole days run in a moment and every failure names the simulated second.
#include "app/CommandLine.h"
#include "engine/Config.h"
#include "lock/AppDelegate.h"
#include "support/FakePlatform.h"
#include "support/TestEnv.h"

#include <QDate>
#include <QDateTime>
#include <QStringList>
#include <deque>
#include <functional>
#include <memory>

namespace tarvanel::test {

// A local wall-clock moment in the process's zone ("13:00" or "12:39:59.5").
QDateTime localAt(const QDate& date, const QString& time);
// "2026-01-14 12:55:00.000" local: how traces and event records name an instant.
QString localText(const QDateTime& instant);

// Settings with fixed lock times, so a day's schedule is known to the second. The times given
// replace Fajr's, Dhuhr's, … in order; the rest stay 06:30 13:00 15:00 16:30 18:30.
Config fixedTimesConfig(const QStringList& times = {});

class DaySimulator {
public:
    // Writes cfg as config.json unless absent; the controller is created and launched at `start`.
    DaySimulator(const std::optional<Config>& cfg, const QDateTime& start,
                 const CommandLine& cl = {});
    ~DaySimulator();

    FakePlatform platform;
    std::unique_ptr<AppDelegate> app;
    QDateTime now;
    QStringList logs;
    QStringList events; // "HH:mm:ss banner: …", "… lock: …", "… unlock", "… alert: …"
    bool inCall = false;
    int callChecks = 0;
    std::deque<std::optional<bool>> didPrayAnswers; // empty: the question goes to the alert
    int modalTicks = 2; // seconds that tick by while each modal question is open

    // One tick `seconds` from now; the posted work of that tick runs after it.
    void step(double seconds = 1);
    // Ticks once a second until `end` (inclusive). `check` runs after every tick under a
    // trace naming the instant.
    void runUntil(const QDateTime& end, const std::function<void()>& check = {});
    // The computer sleeps: the clock moves without ticks.
    void sleepUntil(const QDateTime& wake) { now = wake; }
    // Ends this controller and starts a new one at the current instant (a restart).
    void restart(const CommandLine& cl = {});

    // Events whose text starts with `prefix`: as recorded, their texts, their local times.
    QStringList timeline(const QString& prefix = {}, int from = 0, int length = -1) const;
    QStringList whats(const QString& prefix) const { return timeline(prefix, 9); }
    QStringList times(const QString& prefix) const { return timeline(prefix, 0, 8); }
    QStringList logsContaining(const QString& part) const { return logs.filter(part); }
    // The texts of the status menu's top level, as it would open now.
    QStringList menuTexts() const { return texts(app->buildMenu()); }
    static QStringList texts(const QList<MenuItem>& items);
    // The first top-level item starting with `prefix` (a failure and an empty item if none).
    // Its actions, like a click, return to the event loop: the work they post runs after them.
    MenuItem item(const QString& prefix);
    bool has(const QString& prefix) const { return find(prefix).has_value(); }

private:
    std::optional<MenuItem> find(const QString& prefix) const;
    void makeApp(const CommandLine& cl); // and runs its launch callback at the current instant
    void record();

    qsizetype seenBanners_ = 0, seenShows_ = 0, seenCloses_ = 0, seenAlerts_ = 0;
};

// Fixture: a scratch home and Wednesday 14 January 2026 in London, an ordinary winter weekday.
class SimTest : public ScratchTest {
protected:
    static inline const QDate kDay{2026, 1, 14};
    static inline const QDate kFriday{2026, 1, 16};
    static QDateTime at(const QString& time, const QDate& date = kDay) {
        return localAt(date, time);
    }
};

} // namespace tarvanel::test
