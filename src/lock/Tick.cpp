// The one-second tick: the single decision point of the running program.
#include "app/Agent.h"
#include "lock/AppDelegate.h"
#include "records/Log.h"
#include "records/StateFiles.h"

#include <QFile>
#include <cmath>

namespace tarvanel {

namespace {

QString lockKeyOf(const QString& dayKey, const QString& name) {
    return dayKey + QLatin1Char('-') + name;
}

QString nudgeKeyOf(const QString& lockKey, double offset) {
    return lockKey + QLatin1Char('-') + QString::number(qint64(std::trunc(offset)));
}

qint64 minutesMs(double minutes) { return qint64(std::llround(minutes * 60000.0)); }

} // namespace

void AppDelegate::tick() {
    const QDateTime now = clock();
    if (!now.isValid()) return;

    // 1. Not set up.
    if (!lockEnd_ && !testLockSeconds_ && !configExists()) {
        setStatusTitle(QStringLiteral("🕌 Set up"), TitleColor::Orange);
        return;
    }
    // 2–4. Keep the schedule and its inputs current.
    checkTravelLocation(now);
    const DayTimes& times = todaysTimes();
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
    walkPrayers(times, now);

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
        lockState_->setCountdown(QString::asprintf("Screen unlocks in %lld:%02lld", s / 60, s % 60));
    }
    updateStatusTitle(times, now);
}

bool AppDelegate::walkPrayers(const DayTimes& times, const QDateTime& now) {
    const bool combining = combiningPrayers(now);
    const qint64 nowMs = now.toMSecsSinceEpoch();
    const qint64 leadMs = minutesMs(config_.leadMinutes());
    const QString& dayKey = cachedDayKey_;
    for (const QString& name : prayerNames()) {
        const std::optional<QDateTime> at = times.value(name);
        if (!at || !at->isValid()) continue;
        if (combining && isCombinedAway(name)) continue;
        const QString key = lockKeyOf(dayKey, name);
        if (completedLocks_.contains(key)) continue;
        const qint64 t = at->toMSecsSinceEpoch();
        const QString display = lockName(name, combining);

        if (nowMs < t) {
            for (double offset : config_.nudgeOffsetsMinutes) {
                const qint64 due = t - minutesMs(offset);
                if (nowMs < due) continue;
                const QString nkey = nudgeKeyOf(key, offset);
                if (firedNudges_.contains(nkey)) continue;
                firedNudges_.insert(nkey);
                if (nowMs - due < 90000)
                    showNudge(display, int((t - nowMs) / 60000) + 1, offset);
            }
        }

        const qint64 start = t - leadMs;
        const qint64 windowEnd = start + minutesMs(lockDuration(name));
        if (nowMs < start || nowMs >= windowEnd) continue;
        if (config_.callGrace() > 0 && callCheck && callCheck()) {
            deferred_ = DeferredLock{key, name, display, now};
            showBanner(QStringLiteral("🕌  ") + display + QStringLiteral(" locks when your call ends"),
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
