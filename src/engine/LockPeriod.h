#pragma once
// The lock window of a prayer: it opens the lead before the prayer's lock time and lasts the
// bounded lock length (Jumu'ah's own on a Jumu'ah Dhuhr). The scheduler, the reminders, the
// title, the calendar, the settings preview and --times all take it from here, so they agree
// to the millisecond.
#include "engine/Config.h"

#include <QDateTime>
#include <QString>

namespace tarvanel {

// Minutes as whole milliseconds (rounded to the nearest).
qint64 minutesMs(double minutes);

// How long a prayer locks, in minutes: `jumuahLock()` for Dhuhr on a Jumu'ah day, otherwise
// `lockLength()`; both already bounded.
double lockLengthMinutes(const QString& prayer, bool jumuah, const Config& cfg);

// The half-open interval [start, end), in milliseconds since the epoch.
struct LockPeriodMs {
    qint64 start = 0;
    qint64 end = 0;
};
LockPeriodMs lockPeriodMs(qint64 lockTimeMs, const QString& prayer, bool jumuah, const Config& cfg);

struct LockPeriod {
    QDateTime start;
    QDateTime end;
};
// Invalid instants in, invalid instants out.
LockPeriod lockPeriod(const QDateTime& lockTime, const QString& prayer, bool jumuah,
                      const Config& cfg);

} // namespace tarvanel
