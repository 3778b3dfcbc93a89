#pragma once
// The controller: owns every piece of runtime state and makes every decision of the running
// program. The desktop renders what it is handed and forwards events here.
#include "app/CommandLine.h"
#include "engine/Clock.h"
#include "engine/Config.h"
#include "engine/DayTimes.h"
#include "lock/FileStamp.h"
#include "lock/LockScreenState.h"
#include "menubar/MenuModel.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace tarvanel {

class TravelLocator;
class UserDefaults;
struct TravelCoords;

class AppDelegate : public QObject, public PlatformEvents {
    Q_OBJECT
public:
    // Reads config.json and state.json; applies --test-lock / --test-nudge from the command line.
    AppDelegate(Platform& platform, const CommandLine& cl, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Replaceable for tests: the current instant, whether a call is running, the "Did you
    // pray?" question (a value answers it; absent falls back to the alert).
    Clock clock;
    std::function<bool()> callCheck;
    std::function<std::optional<bool>(const QString&)> askDidPray;

    LockScreenState* lockState();
    // Built each time the status menu opens.
    MenuModel buildMenu();

    // PlatformEvents
    void launchFinished() override;
    void tick() override;
    void lockKey(LockKey key, const QString& text) override;
    void screensChanged() override;
    void showSettingsRequested() override;
    void poweringOff() override;
    void terminateRequested() override;

    // Schedule.
    const DayTimes& todaysTimes();
    Config activeConfig() const;
    bool combiningPrayers(const QDateTime& now);
    std::optional<QString> combinedPartner(const QString& name) const;
    bool isCombinedAway(const QString& name) const;
    QString lockName(const QString& name, bool combining) const;
    double lockDuration(const QString& name) const;

    // Lock session.
    void startLock(const QString& prayer, const QString& displayName, const QDateTime& until);
    void endLock(bool early);
    QString guardianLine() const;
    void guardianKeyInput(const QString& text, bool del);

    // Reminders and banners.
    void showNudge(const QString& prayer, int minutesLeft, double offset);
    void showBanner(const QString& message, const std::optional<Quote>& quote, BannerStyle style);
    void checkFajrEndWarning(const QDateTime& now, const QString& dayKey);
    void checkTarawihNudge(const QDateTime& now, const QString& dayKey, const DayTimes& times);
    void askStrict();

    // Settings.
    void reloadConfigIfChanged();
    void applyConfig(const Config& cfg);
    const Config& config() const { return config_; }

    // Status title.
    void setStatusTitle(const QString& title, TitleColor color);
    void updateStatusTitle(const DayTimes& times, const QDateTime& now);

    // Menu commands, also reached from the settings window.
    void openSettings();
    void markPrayed(int tag);
    void previewLock();
    void exportHistory();
    void uninstall();
    void startExcused();
    void endExcused();
    void startTravelling();
    void stopTravelling();
    void pauseLocks(int days);
    void resumeLocks();

    // Forces the schedule to be recomputed at the next tick (timetable import, new location).
    void invalidateSchedule() { cachedDayKey_.clear(); }

    // Read-only views of the state, for the desktop and for tests.
    bool isLocked() const { return lockEnd_.has_value(); }
    std::optional<QDateTime> lockEnd() const { return lockEnd_; }
    const QString& lockPrayer() const { return lockPrayer_; }
    const QSet<QString>& completedLocks() const { return completedLocks_; }
    const QSet<QString>& firedNudges() const { return firedNudges_; }
    const QString& cachedDayKey() const { return cachedDayKey_; }
    bool cachedJumuah() const { return cachedJumuah_; }
    const DayTimes& cachedWaqt() const { return cachedWaqt_; }
    bool hasDeferredLock() const { return deferred_.has_value(); }
    bool hasStrictQuestion() const { return strict_.has_value(); }
    // The title last handed to the platform, for a tray that appears late.
    const QString& statusTitle() const { return lastTitle_; }
    TitleColor statusTitleColor() const { return lastTitleColor_; }

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

    enum class GuardianAnswer { ok, wrong, tooManyTries };

    // `clock`, or the system clock should someone clear it.
    QDateTime currentTime() const { return clock ? clock() : systemNow(); }

    // One prayer of today's schedule with the keys the tick looks up, made once per schedule.
    struct PrayerSlot {
        QString name;
        QString lockKey;
        QStringList nudgeKeys; // one per configured offset, in order
        qint64 at = 0;         // lock time, ms since the epoch
        bool valid = false;
    };

    const QString& dayKeyOf(const QDateTime& now);
    bool reloadIfChanged(const FileStamp& stamp);
    const DayTimes& scheduleFor(const QDateTime& now);
    void refreshModes();
    bool ramadanToday(const QDateTime& now);
    std::optional<QDateTime> tomorrowsFajr(const QDateTime& now);
    void runLockTick(const DayTimes& times, const QDateTime& now);
    bool walkPrayers(const QDateTime& now);
    void buildLockWindows();

    // What the controller asks of the stores.
    bool configExists() const;
    void recordKept(const QString& key, const std::optional<QString>& partner);
    void saveLocks();
    bool guardianIsSet() const;
    GuardianAnswer verifyGuardian(const QString& code, const QDateTime& at);
    bool excusedNow(const QDateTime& now);
    std::optional<QDateTime> pausedUntil();
    void clearPause();
    std::optional<QDateTime> travellingUntil();
    void clearTravellingUntil();
    std::optional<TravelCoords> travelCoords() const;
    void checkTravelLocation(const QDateTime& now);
    void clearTravelLocation();
    void checkWeeklyReport(const QDateTime& now, const QString& dayKey);

    Platform& platform_;
    QPointer<LockScreenState> lockState_;
    Config config_;
    std::unique_ptr<UserDefaults> defaults_;
    TravelLocator* travel_ = nullptr; // child object
    QByteArray configPath_;
    FileStamp configStamp_; // as last seen; a missing file compares equal to a missing file
    QString cachedDayKey_;
    DayTimes cachedTimes_;
    DayTimes cachedWaqt_;
    bool cachedJumuah_ = false;
    std::array<PrayerSlot, 5> slots_;
    QSet<QString> firedNudges_;
    QSet<QString> completedLocks_;

    std::optional<QDateTime> lockEnd_;
    QDateTime lockLastSeen_; // the previous tick's instant while locked (clock jumps)
    QString lockPrayer_;
    std::optional<QString> completedLocksKeyPending_;
    std::optional<QString> combinedPending_;
    std::optional<DeferredLock> deferred_;
    std::optional<StrictPending> strict_;
    QString guardianBuffer_;
    QString guardianMessage_;
    bool focusOn_ = false;

    std::optional<double> testLockSeconds_;
    bool testNudge_ = false;
    bool exitAfterTest_ = false;
    bool poweringOff_ = false;
    bool launched_ = false;

    // Cheap per-tick answers: the local day of "now" and the things that only change per day.
    QDateTime dayStart_, nextDayStart_;
    QString dayKeyCache_;
    std::optional<bool> ramadanCache_;
    QString ramadanDay_;
    struct TomorrowCache {
        QDateTime from, until; // the local day that "now + 24 h" falls in
        quint64 generation = 0;
        std::optional<QDateTime> fajr;
    };
    std::optional<TomorrowCache> tomorrow_;
    quint64 scheduleGeneration_ = 0;
    // The user defaults as last read; our own writes mark them stale.
    bool modesFresh_ = false;
    std::optional<QDateTime> pausedCache_, travellingCache_;
    // The countdown title's inputs at the last tick: the text is only rebuilt when they change.
    struct TitleInputs {
        int prayer = -1;
        qint64 minutes = 0;
        TitleColor color = TitleColor::Label;
        bool combining = false, iftar = false;
        quint64 generation = 0;
        bool operator==(const TitleInputs&) const = default;
    };
    std::optional<TitleInputs> titleInputs_;
    QString lastTitle_;
    TitleColor lastTitleColor_ = TitleColor::Label;
    bool titleSet_ = false;
};

} // namespace tarvanel
