// The controller's life: creation, launch, settings reload and apply, termination, and the
// schedule helpers the tick, the title and the menu share.
#include "lock/AppDelegate.h"
#include "base/InstanceLock.h"
#include "records/ConfigFile.h"

#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/DayRules.h"
#include "engine/LocalTime.h"
#include "integrations/PrayerCalendar.h"
#include "lock/Presence.h"
#include "records/TravelLocator.h"

#include <QFile>

namespace tarvanel {

AppDelegate::AppDelegate(Platform& platform, ControllerOptions options, QObject* parent)
    : QObject(parent), clock(systemNow), callCheck(Presence::inCall), platform_(platform),
      options_(std::move(options)), config_(loadConfig()),
      configPath_(QFile::encodeName(configURL())), travel_(new TravelLocator(this)),
      session_(platform, this), reminders_(platform) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::launchFinished() {
    if (launched_) return;
    launched_ = true;
    const bool testRun = options_.testLockSeconds.has_value() || options_.testNudge;
    if (!testRun) {
        if (!acquireInstanceLock()) {
            logLine(lcAgent, QStringLiteral("Tarvanel already running; exiting."));
            platform_.exitProcess(0);
            return;
        }
    }
    // The application menu, the observers and the one-second timer are the desktop's; it
    // forwards their events here.
    configStamp_ = FileStamp::of(configPath_);
    setStatusTitle(QStringLiteral("🕌"), TitleColor::Label);

    if (options_.testLockSeconds) {
        exitAfterTest_ = true;
        const QDateTime now = currentTime();
        startLock(QStringLiteral("Test"), QStringLiteral("Test"),
                  now.addMSecs(qint64(*options_.testLockSeconds * 1000.0)));
        return;
    }
    if (options_.testNudge) {
        reminders_.showNudge(QStringLiteral("Asr"), 10, 10);
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
    if (session_.isLocked()) session_.rebuildWindows();
}

void AppDelegate::showSettingsRequested() {
    openSettings();
}

void AppDelegate::poweringOff() {
    poweringOff_ = true;
}

void AppDelegate::terminateRequested() {
    // Under the agent a plain quit must not stop the program for good: status 1 restarts it.
    platform_.exitProcess(options_.underService && !poweringOff_ ? 1 : 0);
}

// Only the file's stamp is compared, never its content.
bool AppDelegate::reloadIfChanged(const FileStamp& stamp) {
    if (stamp == configStamp_) return false;
    configStamp_ = stamp;
    config_ = loadConfig();
    logLine(lcSettings, QStringLiteral("Tarvanel: config reloaded"));
    if (stamp.exists && !lastConfigError() && platform_.settingsWindowOpen())
        platform_.settingsFileChanged(config_);
    return true;
}

// A hand edit that does not decode while good settings run: said on screen once per distinct
// error (a fixed file forgets it), and not over a lock, whose end it then waits for.
void AppDelegate::noticeConfigError() {
    const std::optional<QString>& error = lastConfigError();
    if (!error || !lastGoodConfig()) {
        configErrorNoticed_.clear();
        return;
    }
    if (*error == configErrorNoticed_ || session_.isLocked()) return;
    configErrorNoticed_ = *error;
    //: %1 says what is wrong with the settings file config.json
    reminders_.showBanner(QStringLiteral("⚠️  ") +
                              tr("config.json can't be used (%1). Tarvanel keeps the last good "
                                 "settings.")
                                  .arg(*error),
                          std::nullopt, BannerStyle::urgent);
}

void AppDelegate::applyConfig(const Config& cfg) {
    saveConfig(cfg);
    const Config before = config_;
    config_ = cfg;
    configStamp_ = FileStamp::of(configPath_); // our own write is not an outside change
    travel_->clear();
    // The calendar gets the settings the schedule now runs on, as the tick would give it.
    // Turning blocking off empties the calendars of our events, so "was on" counts too.
    const QDateTime now = currentTime();
    scheduleFor(now);
    if (!options_.testLockSeconds && !options_.testNudge &&
        PrayerCalendar::syncAfterSave(before, activeConfig(), now))
        calendarSyncedDay_ = today_.dayKey();
    tick();
}

const DayTimes& AppDelegate::scheduleFor(const QDateTime& now) {
    if (today_.update(now, activeConfig())) {
        ledger_.keepOnly(today_.dayKey());
        calendarSyncedDay_.clear(); // the events follow the new times
    }
    return today_.times();
}

Config AppDelegate::activeConfig() const {
    Config cfg = config_;
    if (const auto& coords = travel_->travelCoords()) {
        cfg.latitude = coords->lat;
        cfg.longitude = coords->lon;
        cfg.locationName = coords->name;
    }
    return cfg;
}

bool AppDelegate::travelLocationKnown() const {
    return travel_->travelCoords().has_value();
}

bool AppDelegate::combiningPrayers(const QDateTime& now) const {
    return config_.combineOn() && modes_.isTravelling(now, travelLocationKnown());
}

void AppDelegate::recordKept(const QString& key, const std::optional<QString>& partner) {
    ledger_.logKept(key, partner);
}

void AppDelegate::setStatusTitle(const QString& title, TitleColor color) {
    if (titleSet_ && title == lastTitle_ && color == lastTitleColor_) return;
    titleSet_ = true;
    lastTitle_ = title;
    lastTitleColor_ = color;
    platform_.setStatusTitle(title, color);
}

void AppDelegate::updateStatusTitle(const QDateTime& now) {
    const std::optional<Title> title = tarvanel::statusTitle(
        TitleView{now, today_.times(), config_,
                  session_.isLocked() ? std::optional<QString>(session_.prayer()) : std::nullopt,
                  combiningPrayers(now), today_.jumuah(), today_.ramadan() && config_.ramadanOn(),
                  [this, &now] { return today_.tomorrowsFajr(now, activeConfig()); }});
    if (title) setStatusTitle(title->text, title->color);
}

} // namespace tarvanel
