#include "engine/LockPeriod.h"

#include <QTimeZone>
#include <cmath>

namespace tarvanel {

qint64 minutesMs(double minutes) {
    return qint64(std::llround(minutes * 60000.0));
}

double lockLengthMinutes(const QString& prayer, bool jumuah, const Config& cfg) {
    if (jumuah && prayer == QLatin1String("Dhuhr")) return cfg.jumuahLock();
    return cfg.lockLength();
}

LockPeriodMs lockPeriodMs(qint64 lockTimeMs, const QString& prayer, bool jumuah,
                          const Config& cfg) {
    const qint64 start = lockTimeMs - minutesMs(cfg.leadMinutes());
    return {start, start + minutesMs(lockLengthMinutes(prayer, jumuah, cfg))};
}

LockPeriod lockPeriod(const QDateTime& lockTime, const QString& prayer, bool jumuah,
                      const Config& cfg) {
    if (!lockTime.isValid()) return {};
    const LockPeriodMs w = lockPeriodMs(lockTime.toMSecsSinceEpoch(), prayer, jumuah, cfg);
    return {QDateTime::fromMSecsSinceEpoch(w.start, QTimeZone::utc()),
            QDateTime::fromMSecsSinceEpoch(w.end, QTimeZone::utc())};
}

} // namespace tarvanel
