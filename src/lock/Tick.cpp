// The one-second tick, the single decision point of the running program, and the road of a
// lock from its start to what its end records.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/DayRules.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerNames.h"
#include "integrations/FocusShortcuts.h"
#include "integrations/PrayerCalendar.h"
#include "lock/AppDelegate.h"
#include "lock/Scheduler.h"
#include "records/ConfigFile.h"
#include "records/Excused.h"
#include "records/TravelLocator.h"

namespace tarvanel {

QString stageName(LockStage stage) {
    switch (stage) {
    case LockStage::Idle:
        return QStringLiteral("idle");
    case LockStage::WaitingForCall:
        return QStringLiteral("deferred for a call");
    case LockStage::Locked:
        return QStringLiteral("locked");
    case LockStage::AskingDidYouPray:
        return QStringLiteral("asking \u201CDid you pray?\u201D");
    }
    return {};
}

void AppDelegate::setStage(LockStage next, std::optional<DeferredLock> waiting,
                           std::optional<StrictPending> asking) {
    deferred_ = std::move(waiting);
    strict_ = std::move(asking);
    if (next == stage_) return;
    logLine(lcLock, QStringLiteral("Tarvanel: lock stage: ") + stageName(stage_) +
                        QStringLiteral(" \u2192 ") + stageName(next));
    stage_ = next;
}

void AppDelegate::tick() {
    const QDateTime now = currentTime();
    if (!now.isValid() || holdUntilSetUp()) return;
    keepInputsCurrent(now);

    // A running lock, a prayer's or a preview, wins over everything.
    if (session_.isLocked()) {
        if (session_.tick(now)) endLock(false);
        updateStatusTitle(now);
        return;
    }
    // An open "Did you pray?" holds everything, the title included.
    if (stage_ == LockStage::AskingDidYouPray) return;
    if (holdForNewVersion() || holdForModes(now) || holdForCall(now)) return;
    if (Excused::current(config_.excusedDays(), now)) {
        setStatusTitle(QStringLiteral("🕌"), TitleColor::Secondary);
        return;
    }
    lookAtPrayers(now);
    updateStatusTitle(now);
}

// No settings file, or one that has never decoded in this run: a typo must not lock at the
// times of 0° N 0° E. One stat serves this check and the reload.
bool AppDelegate::holdUntilSetUp() {
    const FileStamp configStamp = FileStamp::of(configPath_);
    if (configStamp.exists) reloadIfChanged(configStamp);
    const std::optional<QString> neverValid =
        configStamp.exists && !lastGoodConfig() ? lastConfigError() : std::nullopt;
    if (session_.isLocked() || options_.testLockSeconds || (configStamp.exists && !neverValid)) {
        noticeConfigError();
        return false;
    }
    //: Tray title while the program has no settings yet
    setStatusTitle(QStringLiteral("🕌 ") + tr("Set up"), TitleColor::Orange);
    // Once per error: a user who closes the window is not pestered every second.
    if (neverValid && *neverValid != configErrorShown_) {
        configErrorShown_ = *neverValid;
        openSettings();
    }
    return true;
}

// The schedule and its inputs: the travel location, the pause/travel file (one stat), the
// day's times, and the calendar once per schedule (never in a dry run).
void AppDelegate::keepInputsCurrent(const QDateTime& now) {
    travel_->check(config_, now);
    modes_.refresh();
    scheduleFor(now);
    if (!options_.testLockSeconds && !options_.testNudge)
        PrayerCalendar::syncIfNeeded(activeConfig(), now, today_.dayKey(), calendarSyncedDay_);
}

// A newer program file: let the agent start it.
bool AppDelegate::holdForNewVersion() {
    if (!options_.programReplaced || !options_.programReplaced() || platform_.settingsWindowOpen())
        return false;
    logLine(lcAgent, QStringLiteral("Tarvanel: new version installed, restarting"));
    platform_.exitProcess(1);
    return true;
}

// A pause holds everything until it ends; both modes are forgotten once over.
bool AppDelegate::holdForModes(const QDateTime& now) {
    if (const auto paused = modes_.pausedUntil(now)) {
        if (now < *paused) {
            //: Tray title while the locks are paused
            setStatusTitle(QStringLiteral("🕌 ") + tr("Paused"), TitleColor::Secondary);
            return true;
        }
        modes_.setPausedUntil(std::nullopt);
    }
    if (const auto travelling = modes_.travellingUntil(now); travelling && now >= *travelling)
        modes_.setTravellingUntil(std::nullopt);
    return false;
}

// A lock waiting for a call starts when the call ends or its grace is used up.
bool AppDelegate::holdForCall(const QDateTime& now) {
    if (stage_ != LockStage::WaitingForCall) return false;
    if (now < deferred_->since) deferred_->since = now; // the clock went back: wait afresh
    const qint64 waited = deferred_->since.msecsTo(now);
    if (callCheck && callCheck() && waited < minutesMs(config_.callGrace())) {
        //: Tray title: %1 is a prayer name; its lock waits for the end of a call
        setStatusTitle(QStringLiteral("🕌 ") +
                           tr("%1 after your call").arg(prayerLabel(deferred_->displayName)),
                       TitleColor::Orange);
        return true;
    }
    const DeferredLock d = *deferred_;
    const bool jumuah = today_.jumuah();
    startDueLock(d, combiningPrayers(now) ? combinedPartner(d.prayer, jumuah) : std::nullopt,
                 now.addMSecs(minutesMs(lockLengthMinutes(d.prayer, jumuah, config_))));
    if (stage_ == LockStage::WaitingForCall) setStage(LockStage::Idle); // it could not start
    updateStatusTitle(now);
    return true;
}

// The five prayers: due reminders, then at most one lock started or put off for a call; then
// the day's one-off banners while nothing locks.
void AppDelegate::lookAtPrayers(const QDateTime& now) {
    const PrayerDecision decision = decidePrayers(today_, config_, now, combiningPrayers(now),
                                                  ledger_.completedLocks(), ledger_.firedNudges());
    ledger_.fire(decision.fired);
    for (const Nudge& n : decision.nudges)
        reminders_.showNudge(n.prayer, n.minutesLeft, n.offset);
    if (const std::optional<DueLock>& due = decision.lock) {
        const DeferredLock lock{due->key, due->prayer, due->displayName, now};
        if (config_.callGrace() > 0 && callCheck && callCheck()) {
            setStage(LockStage::WaitingForCall, lock);
            //: %1 is a prayer name: its lock waits for the end of a call
            reminders_.showBanner(
                QStringLiteral("🕌  ") +
                    tr("%1 locks when your call ends").arg(prayerLabel(due->displayName)),
                std::nullopt, BannerStyle::urgent);
            logLine(lcLock, QStringLiteral("Tarvanel: ") + due->displayName +
                                QStringLiteral(" lock waiting for a call to end"));
        } else {
            startDueLock(lock, due->partner, due->windowEnd);
        }
    }
    if (!session_.isLocked())
        ledger_.fire(reminders_.checkDay(config_, now, today_.dayKey(), today_.waqt(),
                                         today_.times(), today_.ramadan(), ledger_.completedLocks(),
                                         ledger_.firedNudges()));
}

void AppDelegate::startDueLock(const DeferredLock& due, const std::optional<QString>& partner,
                               const QDateTime& until) {
    if (!session_.start(due.displayName, until, due.key, partner, config_)) return;
    setStage(LockStage::Locked);
    focusOn_ = config_.focusOn();
    if (focusOn_) FocusShortcuts::run(true, this);
}

void AppDelegate::startLock(const QString&, const QString& displayName, const QDateTime& until) {
    session_.start(displayName, until, std::nullopt, std::nullopt, config_);
}

void AppDelegate::endLock(bool early) {
    const LockSession::Ended ended = session_.close();
    if (focusOn_) FocusShortcuts::run(false, this);
    focusOn_ = false;
    if (ended.key) {
        if (early) {
            setStage(LockStage::Idle);
            ledger_.completeUnkept(*ended.key);
            logLine(lcLock, QStringLiteral("Tarvanel: ") + ended.displayName +
                                QStringLiteral(" lock ended early with the guardian code"));
        } else if (config_.strictOn()) {
            setStage(LockStage::AskingDidYouPray, std::nullopt,
                     StrictPending{*ended.key, ended.partner, ended.displayName});
            platform_.post([self = QPointer<AppDelegate>(this)] {
                if (self) self->askStrict();
            });
        } else {
            setStage(LockStage::Idle);
            recordKept(*ended.key, ended.partner);
        }
    }
    platform_.playNamedSound(QStringLiteral("Glass"));
    logLine(lcLock, QStringLiteral("Tarvanel: unlocked after ") + ended.displayName);
    if (exitAfterTest_) platform_.exitProcess(0);
}

void AppDelegate::lockKey(LockKey key, const QString& text) {
    if (session_.keyInput(key, text, currentTime())) endLock(true);
}

// "Did you pray?": yes records the lock as kept; "Not yet" locks again for five minutes.
void AppDelegate::askStrict() {
    if (!strict_) return;
    const StrictPending pending = *strict_;
    std::optional<bool> yes;
    if (askDidPray) yes = askDidPray(pending.displayName);
    if (!yes) {
        const AlertAnswer answer = platform_.showAlert(
            AlertRequest{//: %1 is a prayer name
                         tr("Did you pray %1?").arg(prayerLabel(pending.displayName)),
                         //: “Not yet” is the second button of this question
                         tr("“Not yet” locks the screen again for %Ln minutes.", nullptr, 5),
                         {tr("Yes, I Prayed"), tr("Not Yet")},
                         {},
                         false});
        yes = answer.response == 1000;
    }
    if (*yes) {
        setStage(LockStage::Idle);
        recordKept(pending.key, pending.partner);
        return;
    }
    const QString prayer = pending.key.mid(pending.key.lastIndexOf(QLatin1Char('-')) + 1);
    startDueLock({pending.key, prayer, pending.displayName, {}}, pending.partner,
                 currentTime().addSecs(300));
    if (stage_ == LockStage::AskingDidYouPray) setStage(LockStage::Idle); // it could not start
}

} // namespace tarvanel
