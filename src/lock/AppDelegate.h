#pragma once
// The controller: the one owner of the running program's state. Each second's decisions are
// made by small units it holds: TodaySchedule (the day's times), DayLedger (what today has
// recorded), decidePrayers (reminders and the lock due now), LockSession (the running lock),
// Reminders (banners), and the title and menu of menubar/, which see only a StatusView. The
// units decide and hand back; the controller applies. The desktop forwards events here.
#include "base/FileStamp.h"
#include "engine/Clock.h"
#include "engine/Config.h"
#include "engine/DayTimes.h"
#include "lock/ControllerOptions.h"
#include "lock/LockScreenState.h"
#include "lock/LockSession.h"
#include "lock/Reminders.h"
#include "lock/TodaySchedule.h"
#include "menubar/MenuModel.h"
#include "menubar/StatusView.h"
#include "platform/Platform.h"
#include "records/ConfigFile.h"
#include "records/DayLedger.h"
#include "records/Modes.h"

#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QString>
#include <functional>
#include <optional>

namespace tarvanel {

class TravelLocator;

// Where a prayer's lock is in its life. A preview or test lock runs beside it and records
// nothing.
enum class LockStage {
    Idle,             // nothing pending: the prayers are looked at every second
    WaitingForCall,   // a lock is due but a call runs; it starts when the call ends
    Locked,           // a prayer's lock is on the screens
    AskingDidYouPray, // the lock ended under strict mode and the question is open
};
QString stageName(LockStage stage);

class AppDelegate : public QObject, public PlatformEvents {
    Q_OBJECT
public:
    // Reads config.json and state.json; applies --test-lock / --test-nudge from the command line.
    AppDelegate(Platform& platform, ControllerOptions options, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Replaceable for tests: the current instant, whether a call is running, the "Did you
    // pray?" question (a value answers it; absent falls back to the alert).
    Clock clock;
    std::function<bool()> callCheck;
    std::function<std::optional<bool>(const QString&)> askDidPray;

    LockScreenState* lockState() { return session_.state(); }
    // Built each time the status menu opens.
    MenuModel buildMenu();
    // What the title and menu show, as the last tick left the state.
    StatusView statusView() const;

    // PlatformEvents
    void launchFinished() override;
    void tick() override;
    void lockKey(LockKey key, const QString& text) override;
    void screensChanged() override;
    void showSettingsRequested() override;
    void poweringOff() override;
    void terminateRequested() override;

    // The settings with a detected travel location in place of home.
    Config activeConfig() const;

    // Settings: a changed file is reloaded at the next tick; the settings window saves here.
    void applyConfig(const Config& cfg);
    const Config& config() const { return config_; }

    // The lock session. `startLock` with no prayer key (preview, test) records nothing.
    void startLock(const QString& prayer, const QString& displayName, const QDateTime& until);
    void endLock(bool early);

    // Menu commands, also reached from the settings window. Those that change a mode ask
    // through the platform and write the store; the tick they post afterwards applies it.
    void openSettings();
    // The import window, with `file` already read when given.
    void openTimetableImport(const QString& file = {});
    void markPrayed(int tag);
    void previewLock();
    void exportHistory();
    void uninstall();
    void startExcused();
    void endExcused();
    void startTravelling();
    void stopTravelling();
    void pauseLocks(int days);
    // Inside a prayer's lock window it asks first, since resuming locks at once.
    void resumeLocks();
    // "Next lock: Asr at 3:17 PM" (or Fajr tomorrow); empty when nothing is ahead.
    QString nextLockText();
    // After the first save: a tray notification saying where the program lives and what comes
    // next, or a log line when there is no tray host.
    void announceRunning();
    // The display name of the lock whose window is open now, unless excused.
    std::optional<QString> lockDueNow();

    // Read-only views of the state, for the desktop and for tests.
    bool isLocked() const { return session_.isLocked(); }
    std::optional<QDateTime> lockEnd() const { return session_.end(); }
    const QString& lockPrayer() const { return session_.prayer(); }
    const QSet<QString>& completedLocks() const { return ledger_.completedLocks(); }
    const QSet<QString>& firedNudges() const { return ledger_.firedNudges(); }
    const QString& cachedDayKey() const { return today_.dayKey(); }
    const DayTimes& cachedWaqt() const { return today_.waqt(); }
    LockStage lockStage() const { return stage_; }
    bool hasDeferredLock() const { return stage_ == LockStage::WaitingForCall; }

private:
    struct DeferredLock {
        QString key;
        QString prayer;
        QString displayName;
        QDateTime since;
    };
    struct StrictPending {
        QString key;
        std::optional<QString> partner;
        QString displayName;
    };

    // `clock`, or the system clock should someone clear it.
    QDateTime currentTime() const { return clock ? clock() : systemNow(); }
    bool reloadIfChanged(const FileStamp& stamp);
    void noticeConfigError();
    // Today's schedule for `now`; on a new day, keys of other days are dropped.
    const DayTimes& scheduleFor(const QDateTime& now);
    bool combiningPrayers(const QDateTime& now) const;
    bool travelLocationKnown() const;
    // The one place the stage changes: the lock waiting for a call and the open question
    // belong to their stages and are replaced with it. Each change is logged.
    void setStage(LockStage next, std::optional<DeferredLock> waiting = std::nullopt,
                  std::optional<StrictPending> asking = std::nullopt);
    // The tick's steps; each returns true when it holds the rest of the second.
    bool holdUntilSetUp();
    void keepInputsCurrent(const QDateTime& now);
    bool holdForNewVersion();
    bool holdForModes(const QDateTime& now);
    bool holdForCall(const QDateTime& now);
    void lookAtPrayers(const QDateTime& now);
    void startDueLock(const DeferredLock& due, const std::optional<QString>& partner,
                      const QDateTime& until);
    void askStrict();
    void recordKept(const QString& key, const std::optional<QString>& partner);
    void setStatusTitle(const QString& title, TitleColor color);
    void updateStatusTitle(const QDateTime& now);
    // `command` holding the controller weakly, as every callback handed out does.
    std::function<void()> weak(void (AppDelegate::*command)());
    // One tick after the running command returns; several requests share it.
    void refreshSoon();

    Platform& platform_;
    const ControllerOptions options_;
    Config config_;
    QByteArray configPath_;
    FileStamp configStamp_; // as last seen; a missing file compares equal to a missing file
    ModeStore modes_;       // pause and declared travel
    TravelLocator* travel_ = nullptr; // child object
    TodaySchedule today_;
    LockSession session_;
    Reminders reminders_;
    DayLedger ledger_; // completed locks and fired reminders: written only through it
    LockStage stage_ = LockStage::Idle;
    std::optional<DeferredLock> deferred_; // only while WaitingForCall
    std::optional<StrictPending> strict_;  // only while AskingDidYouPray
    bool focusOn_ = false;
    QString calendarSyncedDay_;  // the day the calendar was last filled; cleared by a new schedule
    QString configErrorShown_;   // the never-valid settings error the window was opened for
    QString configErrorNoticed_; // the last bad hand edit the banner named

    bool exitAfterTest_ = false;
    bool poweringOff_ = false;
    bool launched_ = false;
    bool refreshPosted_ = false;

    // The title last handed to the platform: it is only handed over again when it differs.
    QString lastTitle_;
    TitleColor lastTitleColor_ = TitleColor::Label;
    bool titleSet_ = false;
};

} // namespace tarvanel
