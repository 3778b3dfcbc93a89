#include "lock/Scheduler.h"

#include "engine/DayRules.h"
#include "engine/LockPeriod.h"

#include <QTimeZone>

namespace tarvanel {

PrayerDecision decidePrayers(const TodaySchedule& today, const Config& cfg, const QDateTime& now,
                             bool combining, const QSet<QString>& completedLocks,
                             const QSet<QString>& firedNudges) {
    PrayerDecision decision;
    const bool jumuah = today.jumuah();
    const qint64 nowMs = now.toMSecsSinceEpoch();
    const QList<double> offsets = cfg.nudgeOffsets();
    for (const PrayerSlot& slot : today.prayerSlots()) {
        if (!slot.valid) continue;
        const QString& name = slot.name;
        if (combining && isCombinedAway(name, jumuah)) continue;
        if (completedLocks.contains(slot.lockKey)) continue;
        const LockPeriodMs window = lockPeriodMs(slot.at, name, jumuah, cfg);

        // Reminders count down to the moment the screens go dark, so every one of them shows
        // before the lock and none falls inside it.
        if (nowMs < window.start) {
            for (qsizetype i = 0; i < offsets.size() && i < slot.nudgeKeys.size(); ++i) {
                const qint64 due = window.start - minutesMs(offsets[i]);
                if (nowMs < due || firedNudges.contains(slot.nudgeKeys[i])) continue;
                decision.fired << slot.nudgeKeys[i];
                if (nowMs - due < 90000)
                    decision.nudges << Nudge{lockName(name, combining, jumuah),
                                             int((window.start - nowMs) / 60000) + 1, offsets[i]};
            }
        }

        if (nowMs < window.start || nowMs >= window.end) continue;
        decision.lock = DueLock{slot.lockKey, name, lockName(name, combining, jumuah),
                                combining ? combinedPartner(name, jumuah) : std::nullopt,
                                QDateTime::fromMSecsSinceEpoch(window.end, QTimeZone::utc())};
        break;
    }
    return decision;
}

} // namespace tarvanel
