// The controller's life: creation, launch, settings reload and apply, termination, and the
// small schedule helpers the tick, the title and the menu share.
#include "lock/AppDelegate.h"

#include "app/Agent.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "guardian/Guardian.h"
#include "lock/Presence.h"
#include "records/Excused.h"
#include "records/History.h"
#include "records/LockState.h"
#include "records/Log.h"
#include "records/Modes.h"
#include "records/StateFiles.h"
#include "records/TravelLocator.h"
#include "records/UserDefaults.h"

#include <QFile>
#include <cmath>

namespace tarvanel {

AppDelegate::AppDelegate(Platform& platform, const CommandLine& cl, QObject* parent)
    : QObject(parent), clock(systemNow), callCheck(Presence::inCall), platform_(platform),
      lockState_(new LockScreenState(this)), config_(loadConfig()),
      defaults_(std::make_unique<UserDefaults>()), travel_(new TravelLocator(this)),
      configPath_(QFile::encodeName(configURL())), completedLocks_(loadCompletedLocks()) {
    travel_->onScheduleInvalidated = [self = QPointer<AppDelegate>(this)] {
        if (self) self->invalidateSchedule();
    };
    if (cl.testLockSeconds) testLockSeconds_ = cl.testLockSeconds;
    testNudge_ = cl.testNudge;
}

AppDelegate::~AppDelegate() = default;

LockScreenState* AppDelegate::lockState() {
    return lockState_;
}

void AppDelegate::launchFinished() {
    if (launched_) return;
    launched_ = true;
    const bool testRun = testLockSeconds_.has_value() || testNudge_;
    if (!testRun) {
        if (!launchedByAgent()) handOffToAgent();
        if (!acquireInstanceLock()) {
            logLine(QStringLiteral("Tarvanel already running; exiting."));
            platform_.exitProcess(0);
            return;
        }
    }
    // The application menu, the observers and the one-second timer are the desktop's; it
    // forwards their events here.
    configStamp_ = FileStamp::of(configPath_);
    setStatusTitle(QStringLiteral("🕌"), TitleColor::Label);

    if (testLockSeconds_) {
        exitAfterTest_ = true;
        const QDateTime now = currentTime();
        startLock(QStringLiteral("Test"), QStringLiteral("Test"),
                  now.addMSecs(qint64(*testLockSeconds_ * 1000.0)));
        return;
    }
    if (testNudge_) {
        showNudge(QStringLiteral("Asr"), 10, 10);
        platform_.singleShot(17000, [self = QPointer<AppDelegate>(this)] {
            if (self) self->platform_.exitProcess(0);
        });
        return;
    }
    tick();
    const QString marker = showSettingsMarker();
    if (QFile::exists(marker) || !QFile::exists(configURL())) {
        QFile::remove(marker);
        openSettings();
    }
}

void AppDelegate::screensChanged() {
    if (lockEnd_) buildLockWindows();
}

void AppDelegate::showSettingsRequested() {
    openSettings();
}

void AppDelegate::poweringOff() {
    poweringOff_ = true;
}

void AppDelegate::terminateRequested() {
    // Under the agent a plain quit must not stop the program for good: status 1 restarts it.
    platform_.exitProcess(launchedByAgent() && !poweringOff_ ? 1 : 0);
}

void AppDelegate::reloadConfigIfChanged() {
    reloadIfChanged(FileStamp::of(configPath_));
}

// Only the file's stamp is compared, never its content.
bool AppDelegate::reloadIfChanged(const FileStamp& stamp) {
    if (stamp == configStamp_) return false;
    configStamp_ = stamp;
    config_ = loadConfig();
    cachedDayKey_.clear();
    logLine(QStringLiteral("Tarvanel: config reloaded"));
    return true;
}

void AppDelegate::applyConfig(const Config& cfg) {
    saveConfig(cfg);
    config_ = cfg;
    // Calendar blocking is a separate piece of work; nothing to sync here yet.
    configStamp_ = FileStamp::of(configPath_); // our own write is not an outside change
    cachedDayKey_.clear();
    clearTravelLocation();
    tick();
}

const QString& AppDelegate::dayKeyOf(const QDateTime& now) {
    if (dayKeyCache_.isEmpty() || now < dayStart_ || now >= nextDayStart_) {
        const QDate date = localDate(now);
        dayKeyCache_ = dayKey(date);
        dayStart_ = startOfLocalDay(date);
        nextDayStart_ = startOfLocalDay(date.addDays(1));
        if (!dayStart_.isValid() || !nextDayStart_.isValid()) {
            // A day the zone cannot represent: never trust the cache for it.
            dayStart_ = now;
            nextDayStart_ = now;
        }
    }
    return dayKeyCache_;
}

const DayTimes& AppDelegate::todaysTimes() {
    reloadConfigIfChanged();
    return scheduleFor(currentTime());
}

const DayTimes& AppDelegate::scheduleFor(const QDateTime& now) {
    const QString& today = dayKeyOf(now);
    if (today != cachedDayKey_) {
        const EffectiveTimes eff = effectiveTimes(now, activeConfig());
        cachedWaqt_ = eff.waqt;
        cachedTimes_ = eff.final;
        cachedJumuah_ = eff.jumuah;
        cachedDayKey_ = today;
        ++scheduleGeneration_;
        for (int i = 0; i < int(slots_.size()); ++i) {
            PrayerSlot& slot = slots_[size_t(i)];
            slot.name = prayerNames()[i];
            slot.lockKey = today + QLatin1Char('-') + slot.name;
            slot.nudgeKeys.clear();
            for (double offset : config_.nudgeOffsetsMinutes)
                slot.nudgeKeys << slot.lockKey + QLatin1Char('-') +
                                      QString::number(qint64(std::trunc(offset)));
            const std::optional<QDateTime> t = cachedTimes_.value(slot.name);
            slot.valid = t && t->isValid();
            slot.at = slot.valid ? t->toMSecsSinceEpoch() : 0;
        }
        // Keys of earlier days go. Keys of a later day stay: the clock went back over midnight
        // (NTP, a hand correction) and those prayers are done all the same.
        auto keepToday = [&today](QSet<QString>& keys) {
            for (auto it = keys.begin(); it != keys.end();)
                it = QStringView(*it).left(10) >= QStringView(today) ? std::next(it)
                                                                     : keys.erase(it);
        };
        keepToday(firedNudges_);
        keepToday(completedLocks_);
        saveLocks();
    }
    return cachedTimes_;
}

Config AppDelegate::activeConfig() const {
    Config cfg = config_;
    if (const auto coords = travelCoords()) {
        cfg.latitude = coords->lat;
        cfg.longitude = coords->lon;
        cfg.locationName = coords->name;
    }
    return cfg;
}

bool AppDelegate::combiningPrayers(const QDateTime& now) {
    if (!config_.isOn(config_.combineWhenTravelling, false)) return false;
    const auto until = travellingUntil();
    return (until && *until > now) || travelCoords().has_value();
}

std::optional<QString> AppDelegate::combinedPartner(const QString& name) const {
    if (name == QLatin1String("Dhuhr") && !cachedJumuah_) return QStringLiteral("Asr");
    if (name == QLatin1String("Maghrib")) return QStringLiteral("Isha");
    return std::nullopt;
}

bool AppDelegate::isCombinedAway(const QString& name) const {
    return (name == QLatin1String("Asr") && !cachedJumuah_) || name == QLatin1String("Isha");
}

QString AppDelegate::lockName(const QString& name, bool combining) const {
    const bool dhuhr = name == QLatin1String("Dhuhr");
    if (dhuhr && cachedJumuah_) return QStringLiteral("Jumu'ah");
    if (combining && dhuhr) return name + QStringLiteral(" & Asr");
    if (combining && name == QLatin1String("Maghrib")) return name + QStringLiteral(" & Isha");
    return name;
}

double AppDelegate::lockDuration(const QString& name) const {
    if (name == QLatin1String("Dhuhr") && cachedJumuah_) return config_.jumuahLock();
    return config_.lockMinutes;
}

// The Hijri month of a local day never changes within it.
bool AppDelegate::ramadanToday(const QDateTime& now) {
    const QString& today = dayKeyOf(now);
    if (!ramadanCache_ || ramadanDay_ != today) {
        ramadanCache_ = isRamadan(now);
        ramadanDay_ = today;
    }
    return *ramadanCache_;
}

bool AppDelegate::configExists() const {
    return QFile::exists(configURL());
}

void AppDelegate::saveLocks() {
    saveCompletedLocks(completedLocks_);
}

void AppDelegate::recordKept(const QString& key, const std::optional<QString>& partner) {
    logKept(key, partner, completedLocks_);
}

bool AppDelegate::guardianIsSet() const {
    return Guardian::isSet();
}

AppDelegate::GuardianAnswer AppDelegate::verifyGuardian(const QString& code, const QDateTime& at) {
    switch (Guardian::verify(code, at)) {
    case Guardian::Check::ok:
        return GuardianAnswer::ok;
    case Guardian::Check::tooManyTries:
        return GuardianAnswer::tooManyTries;
    case Guardian::Check::wrong:
        break;
    }
    return GuardianAnswer::wrong;
}

bool AppDelegate::excusedNow(const QDateTime& now) {
    return Excused::current(config_.excusedDays(), now).has_value();
}

// Only this process writes the two mode instants (the running copy is the only one), so they
// are read at the first need and again after each of our own writes, not on every tick.
void AppDelegate::refreshModes() {
    if (modesFresh_) return;
    modesFresh_ = true;
    pausedCache_ = defaults_->pausedUntil();
    travellingCache_ = defaults_->travellingUntil();
}

std::optional<QDateTime> AppDelegate::pausedUntil() {
    refreshModes();
    return pausedCache_;
}
void AppDelegate::clearPause() {
    defaults_->setPausedUntil(std::nullopt);
    modesFresh_ = false;
}
std::optional<QDateTime> AppDelegate::travellingUntil() {
    refreshModes();
    return travellingCache_;
}
void AppDelegate::clearTravellingUntil() {
    defaults_->setTravellingUntil(std::nullopt);
    modesFresh_ = false;
}

std::optional<TravelCoords> AppDelegate::travelCoords() const {
    return travel_->travelCoords();
}
void AppDelegate::checkTravelLocation(const QDateTime& now) {
    travel_->check(config_, now);
}
void AppDelegate::clearTravelLocation() {
    travel_->clear();
}

void AppDelegate::checkWeeklyReport(const QDateTime& now, const QString& dayKey) {
    if (const std::optional<QString> text = weeklyReportDue(config_, now, dayKey, firedNudges_))
        showBanner(*text, std::nullopt, BannerStyle::normal);
}

} // namespace tarvanel
