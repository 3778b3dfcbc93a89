// The one-second tick, the single decision point of the running program, and the road of a
// lock from its start to what its end records.
#include "app/Agent.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/LockPeriod.h"
#include "integrations/FocusShortcuts.h"
#include "integrations/PrayerCalendar.h"
#include "lock/AppDelegate.h"
#include "lock/DayRules.h"
#include "lock/Scheduler.h"
#include "records/Excused.h"
#include "records/TravelLocator.h"

namespace tarvanel {

void AppDelegate::tick() {
    const QDateTime now = currentTime();
    if (!now.isValid()) return;

    // 1. Not set up: no settings file, or one that has never decoded in this run (a typo must
    // not lock at the times of 0° N 0° E). One stat serves this check and the reload.
    const FileStamp configStamp = FileStamp::of(configPath_);
    if (configStamp.exists) reloadIfChanged(configStamp);
    const std::optional<QString> neverValid =
        configStamp.exists && !lastGoodConfig() ? lastConfigError() : std::nullopt;
    if (!session_.isLocked() && !testLockSeconds_ && (!configStamp.exists || neverValid)) {
        setStatusTitle(QStringLiteral("🕌 Set up"), TitleColor::Orange);
        // Once per error: a user who closes the window is not pestered every second.
        if (neverValid && *neverValid != configErrorShown_) {
            configErrorShown_ = *neverValid;
            openSettings();
        }
        return;
    }
    noticeConfigError();
    // 2–4. Keep the schedule and its inputs current: one stat each for the settings and the
    // pause/travel file; the calendar once a day (never in a dry run).
    travel_->check(config_, now);
    modes_.refresh();
    scheduleFor(now);
    const QString dayKey = today_.dayKey();
    if (!testLockSeconds_ && !testNudge_)
        PrayerCalendar::syncIfNeeded(activeConfig(), now, dayKey, calendarSyncedDay_);

    // 5. A running lock wins over everything.
    if (session_.isLocked()) {
        if (session_.tick(now)) endLock(false);
        updateStatusTitle(now);
        return;
    }
    // 6. An open "Did you pray?" holds everything, the title included.
    if (strict_) return;

    // 7. A newer program file: let the agent start it.
    if (appWasReplaced() && !platform_.settingsWindowOpen()) {
        logLine(QStringLiteral("Tarvanel: new version installed, restarting"));
        platform_.exitProcess(1);
        return;
    }
    // 8. Pause.
    if (const auto paused = modes_.pausedUntil(now)) {
        if (now < *paused) {
            setStatusTitle(QStringLiteral("🕌 Paused"), TitleColor::Secondary);
            return;
        }
        modes_.setPausedUntil(std::nullopt);
    }
    // 9. Travel expiry.
    if (const auto travelling = modes_.travellingUntil(now); travelling && now >= *travelling)
        modes_.setTravellingUntil(std::nullopt);

    // 10. A lock waiting for a call.
    if (deferred_) {
        if (now < deferred_->since) deferred_->since = now; // the clock went back: wait afresh
        const qint64 waited = deferred_->since.msecsTo(now);
        if (callCheck && callCheck() && waited < minutesMs(config_.callGrace())) {
            setStatusTitle(QStringLiteral("🕌 ") + deferred_->displayName +
                               QStringLiteral(" after your call"),
                           TitleColor::Orange);
            return;
        }
        const DeferredLock d = *deferred_;
        deferred_.reset();
        const bool jumuah = today_.jumuah();
        startDueLock(d, combiningPrayers(now) ? combinedPartner(d.prayer, jumuah) : std::nullopt,
                     now.addMSecs(minutesMs(lockLengthMinutes(d.prayer, jumuah, config_))));
        updateStatusTitle(now);
        return;
    }
    // 11. Excused.
    if (Excused::current(config_.excusedDays(), now)) {
        setStatusTitle(QStringLiteral("🕌"), TitleColor::Secondary);
        return;
    }
    // 12–13. The five prayers: due reminders, then at most one lock started or put off.
    const PrayerDecision decision = decidePrayers(today_, config_, now, combiningPrayers(now),
                                                  ledger_.completedLocks(), ledger_.firedNudges());
    ledger_.fire(decision.fired);
    for (const Nudge& n : decision.nudges)
        reminders_.showNudge(n.prayer, n.minutesLeft, n.offset);
    if (const std::optional<DueLock>& due = decision.lock) {
        const DeferredLock lock{due->key, due->prayer, due->displayName, now};
        if (config_.callGrace() > 0 && callCheck && callCheck()) {
            deferred_ = lock;
            reminders_.showBanner(QStringLiteral("🕌  ") + due->displayName +
                                      QStringLiteral(" locks when your call ends"),
                                  std::nullopt, BannerStyle::urgent);
            logLine(QStringLiteral("Tarvanel: ") + due->displayName +
                    QStringLiteral(" lock waiting for a call to end"));
        } else {
            startDueLock(lock, due->partner, due->windowEnd);
        }
    }
    // 14. The day's one-off banners, only while nothing locks.
    if (!session_.isLocked())
        ledger_.fire(reminders_.checkDay(config_, now, dayKey, today_.waqt(), today_.times(),
                                         today_.ramadan(), ledger_.completedLocks(),
                                         ledger_.firedNudges()));
    // 15.
    updateStatusTitle(now);
}

void AppDelegate::startDueLock(const DeferredLock& due, const std::optional<QString>& partner,
                               const QDateTime& until) {
    if (!session_.start(due.displayName, until, due.key, partner, config_)) return;
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
            ledger_.completeUnkept(*ended.key);
            logLine(QStringLiteral("Tarvanel: ") + ended.displayName +
                    QStringLiteral(" lock ended early with the guardian code"));
        } else if (config_.strictOn()) {
            strict_ = StrictPending{*ended.key, ended.partner, ended.displayName};
            platform_.post([self = QPointer<AppDelegate>(this)] {
                if (self) self->askStrict();
            });
        } else {
            recordKept(*ended.key, ended.partner);
        }
    }
    platform_.playNamedSound(QStringLiteral("Glass"));
    logLine(QStringLiteral("Tarvanel: unlocked after ") + ended.displayName);
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
        const AlertAnswer answer = platform_.showAlert(AlertRequest{
            QStringLiteral("Did you pray ") + pending.displayName + QStringLiteral("?"),
            QStringLiteral("“Not yet” locks the screen again for 5 minutes."),
            {QStringLiteral("Yes, I Prayed"), QStringLiteral("Not Yet")},
            {},
            false});
        yes = answer.response == 1000;
    }
    strict_.reset();
    if (*yes) {
        recordKept(pending.key, pending.partner);
        return;
    }
    const QString prayer = pending.key.mid(pending.key.lastIndexOf(QLatin1Char('-')) + 1);
    startDueLock({pending.key, prayer, pending.displayName, {}}, pending.partner,
                 currentTime().addSecs(300));
}

} // namespace tarvanel
