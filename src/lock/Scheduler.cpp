#include "lock/Scheduler.h"
#include <QTimeZone>

#include "lock/DayRules.h"

#include <cmath>

namespace tarvanel {

qint64 minutesMs(double minutes) {
    return qint64(std::llround(minutes * 60000.0));
}

PrayerDecision decidePrayers(const TodaySchedule& today, const Config& cfg, const QDateTime& now,
                             bool combining, const QSet<QString>& completedLocks,
                             QSet<QString>& firedNudges) {
    PrayerDecision decision;
    const bool jumuah = today.jumuah();
    const qint64 nowMs = now.toMSecsSinceEpoch();
    const qint64 leadMs = minutesMs(cfg.leadMinutes());
    const QList<double> offsets = cfg.nudgeOffsets();
    for (const PrayerSlot& slot : today.prayerSlots()) {
        if (!slot.valid) continue;
        const QString& name = slot.name;
        if (combining && isCombinedAway(name, jumuah)) continue;
        if (completedLocks.contains(slot.lockKey)) continue;
        const qint64 t = slot.at;

        if (nowMs < t) {
            for (qsizetype i = 0; i < offsets.size() && i < slot.nudgeKeys.size(); ++i) {
                const qint64 due = t - minutesMs(offsets[i]);
                if (nowMs < due || firedNudges.contains(slot.nudgeKeys[i])) continue;
                firedNudges.insert(slot.nudgeKeys[i]);
                if (nowMs - due < 90000)
                    decision.nudges << Nudge{lockName(name, combining, jumuah),
                                             int((t - nowMs) / 60000) + 1, offsets[i]};
            }
        }

        const qint64 start = t - leadMs;
        const qint64 windowEnd = start + minutesMs(lockDuration(name, jumuah, cfg));
        if (nowMs < start || nowMs >= windowEnd) continue;
        decision.lock = DueLock{slot.lockKey, name, lockName(name, combining, jumuah),
                                combining ? combinedPartner(name, jumuah) : std::nullopt,
                                QDateTime::fromMSecsSinceEpoch(windowEnd, QTimeZone::utc())};
        break;
    }
    return decision;
}

} // namespace tarvanel
