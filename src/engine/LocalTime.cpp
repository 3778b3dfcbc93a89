#include "engine/LocalTime.h"
#include "engine/Clock.h"

#include <QLocale>
#include <QTimeZone>
#include <cmath>
#include <ctime>

namespace tarvanel {

QDateTime systemNow() {
    return QDateTime::currentDateTimeUtc();
}

namespace {
struct TzInit {
    TzInit() { tzset(); }
};

bool toTm(const QDateTime& instant, std::tm& out) {
    static TzInit once;
    if (!instant.isValid()) return false;
    const qint64 msecs = instant.toMSecsSinceEpoch();
    const std::time_t t = std::time_t(std::floor(double(msecs) / 1000.0));
    return localtime_r(&t, &out) != nullptr;
}
} // namespace

LocalFields localFields(const QDateTime& instant) {
    LocalFields f;
    std::tm tm{};
    if (!toTm(instant, tm)) return f;
    f.year = tm.tm_year + 1900;
    f.month = tm.tm_mon + 1;
    f.day = tm.tm_mday;
    f.hour = tm.tm_hour;
    f.minute = tm.tm_min;
    f.second = tm.tm_sec;
    f.weekday = tm.tm_wday + 1;
    f.utcOffsetSeconds = int(tm.tm_gmtoff);
    return f;
}

QDate localDate(const QDateTime& instant) {
    const LocalFields f = localFields(instant);
    return QDate(f.year, f.month, f.day);
}

int utcOffsetSeconds(const QDateTime& instant) {
    return localFields(instant).utcOffsetSeconds;
}

int localWeekday(const QDateTime& instant) {
    return localFields(instant).weekday;
}

QDateTime startOfLocalDay(const QDate& date) {
    static TzInit once;
    if (!date.isValid()) return {};
    // Fast path: midnight minus the offset in force an hour later is right on every day
    // whose first hour has no transition; otherwise ask mktime.
    std::tm tm{};
    tm.tm_year = date.year() - 1900;
    tm.tm_mon = date.month() - 1;
    tm.tm_mday = date.day();
    tm.tm_hour = 0;
    tm.tm_isdst = -1;
    std::time_t t = mktime(&tm);
    if (t == std::time_t(-1) && !(tm.tm_year == 69 && tm.tm_mon == 11 && tm.tm_mday == 31))
        return {};
    // mktime normalises a midnight that does not exist (zones that jump at 00:00) to the
    // first valid instant of the day, which is what "start of day" means.
    std::tm check{};
    localtime_r(&t, &check);
    if (check.tm_mday != date.day()) {
        // The normalised instant fell on the previous day (a repeated hour); step forward.
        while (check.tm_mday != date.day()) {
            t += 900;
            localtime_r(&t, &check);
        }
    }
    return QDateTime::fromSecsSinceEpoch(qint64(t), QTimeZone::utc());
}

QDateTime startOfLocalDay(const QDateTime& instant) {
    return startOfLocalDay(localDate(instant));
}

QString formatLocal(const QDateTime& instant, const QString& pattern) {
    if (!instant.isValid()) return {};
    const LocalFields f = localFields(instant);
    // Build a wall-clock value with the offset in force, so formatting never consults another
    // zone database than the C library's.
    const QDateTime wall(QDate(f.year, f.month, f.day), QTime(f.hour, f.minute, f.second),
                         QTimeZone(f.utcOffsetSeconds));
    return QLocale().toString(wall, pattern);
}

void resetLocalTimeZone() {
    tzset();
}

QString dayKey(const QDateTime& instant) {
    const LocalFields f = localFields(instant);
    return QString::asprintf("%04d-%02d-%02d", f.year, f.month, f.day);
}

} // namespace tarvanel
