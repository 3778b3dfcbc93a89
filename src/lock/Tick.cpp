// The one-second tick: the single decision point of the running program.
#include "app/Agent.h"
#include "lock/AppDelegate.h"
#include "records/Log.h"
#include "records/StateFiles.h"

#include <QFile>
#include <cmath>

namespace tarvanel {

namespace {

qint64 minutesMs(double minutes) {
    return qint64(std::llround(minutes * 60000.0));
}

} // namespace

void AppDelegate::tick() {
    const QDateTime now = currentTime();
    if (!now.isValid()) return;

    // 1. Not set up. One stat of the settings file serves this check and the reload.
    const FileStamp configStamp = FileStamp::of(configPath_);
    if (!lockEnd_ && !testLockSeconds_ && !configStamp.exists) {
        setStatusTitle(QStringLiteral("🕌 Set up"), TitleColor::Orange);
        return;
    }
    // 2–4. Keep the schedule and its inputs current.
    checkTravelLocation(now);
    reloadIfChanged(configStamp);
    const DayTimes& times = scheduleFor(now);
    const QString dayKey = cachedDayKey_;
    // Calendar blocking is a separate piece of work; no daily sync here yet.

    // 5. A running lock wins over everything.
    if (lockEnd_) {
        runLockTick(times, now);
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
    if (const auto paused = pausedUntil()) {
        if (now < *paused) {
            setStatusTitle(QStringLiteral("🕌 Paused"), TitleColor::Secondary);
            return;
        }
        clearPause();
    }
    // 9. Travel expiry.
    if (const auto travelling = travellingUntil(); travelling && now >= *travelling)
        clearTravellingUntil();

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
        completedLocksKeyPending_ = d.key;
        combinedPending_ = combiningPrayers(now) ? combinedPartner(d.prayer) : std::nullopt;
        startLock(d.prayer, d.displayName, now.addMSecs(minutesMs(lockDuration(d.prayer))));
        updateStatusTitle(times, now);
        return;
    }
    // 11. Excused.
    if (excusedNow(now)) {
        setStatusTitle(QStringLiteral("🕌"), TitleColor::Secondary);
        return;
    }
    // 12–13. The five prayers.
    walkPrayers(now);

    // 14. The day's one-off banners, only while nothing locks.
    if (!lockEnd_) {
        checkFajrEndWarning(now, dayKey);
        checkTarawihNudge(now, dayKey, times);
        checkWeeklyReport(now, dayKey);
    }
    // 15.
    updateStatusTitle(times, now);
}

void AppDelegate::runLockTick(const DayTimes& times, const QDateTime& now) {
    // A clock that went backwards (NTP, a manual change) would stretch the lock; keep the
    // time that was left at the previous tick instead.
    if (lockLastSeen_.isValid() && now < lockLastSeen_)
        lockEnd_ = lockEnd_->addMSecs(now.msecsTo(lockLastSeen_) * -1);
    lockLastSeen_ = now;

    if (now >= *lockEnd_) {
        endLock(false);
    } else {
        platform_.activateApp();
        platform_.raiseLockWindows(guardianIsSet());
        const qint64 s = now.msecsTo(*lockEnd_) / 1000;
        lockState_->setCountdown(
            QString::asprintf("Screen unlocks in %lld:%02lld", s / 60, s % 60));
    }
    updateStatusTitle(times, now);
}

// The slots made with the schedule carry the same instants as `times`.
bool AppDelegate::walkPrayers(const QDateTime& now) {
    const bool combining = combiningPrayers(now);
    const qint64 nowMs = now.toMSecsSinceEpoch();
    const qint64 leadMs = minutesMs(config_.leadMinutes());
    const QList<double>& offsets = config_.nudgeOffsetsMinutes;
    for (const PrayerSlot& slot : slots_) {
        if (!slot.valid) continue;
        const QString& name = slot.name;
        if (combining && isCombinedAway(name)) continue;
        const QString& key = slot.lockKey;
        if (completedLocks_.contains(key)) continue;
        const qint64 t = slot.at;

        if (nowMs < t) {
            for (qsizetype i = 0; i < offsets.size() && i < slot.nudgeKeys.size(); ++i) {
                const qint64 due = t - minutesMs(offsets[i]);
                if (nowMs < due) continue;
                const QString& nkey = slot.nudgeKeys[i];
                if (firedNudges_.contains(nkey)) continue;
                firedNudges_.insert(nkey);
                if (nowMs - due < 90000)
                    showNudge(lockName(name, combining), int((t - nowMs) / 60000) + 1, offsets[i]);
            }
        }

        const qint64 start = t - leadMs;
        const qint64 windowEnd = start + minutesMs(lockDuration(name));
        if (nowMs < start || nowMs >= windowEnd) continue;
        const QString display = lockName(name, combining);
        if (config_.callGrace() > 0 && callCheck && callCheck()) {
            deferred_ = DeferredLock{key, name, display, now};
            showBanner(QStringLiteral("🕌  ") + display +
                           QStringLiteral(" locks when your call ends"),
                       std::nullopt, BannerStyle::urgent);
            logLine(QStringLiteral("Tarvanel: ") + display +
                    QStringLiteral(" lock waiting for a call to end"));
            return true;
        }
        completedLocksKeyPending_ = key;
        combinedPending_ = combining ? combinedPartner(name) : std::nullopt;
        startLock(name, display, QDateTime::fromMSecsSinceEpoch(windowEnd, Qt::UTC));
        return true;
    }
    return false;
}

} // namespace tarvanel
