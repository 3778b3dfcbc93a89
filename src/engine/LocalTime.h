#pragma once
// Local calendar days in the process's time zone (TZ), through the C library: the same zone
// data as the rest of the system, and cheap enough for the one-second tick.
#include <QDate>
#include <QDateTime>
#include <QString>

namespace tarvanel {

struct LocalFields {
    int year = 1970, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0;
    int weekday = 5; // 1 = Sunday … 7 = Saturday
    int utcOffsetSeconds = 0;
};

LocalFields localFields(const QDateTime& instant);
QDate localDate(const QDateTime& instant);
int utcOffsetSeconds(const QDateTime& instant);
int localWeekday(const QDateTime& instant); // 1 = Sunday … 7 = Saturday

// Start of a local calendar day as a UTC instant (handles days that start at 01:00 after a
// daylight-saving jump). Invalid when the date cannot be represented.
QDateTime startOfLocalDay(const QDate& date);
QDateTime startOfLocalDay(const QDateTime& instant);

// Formats an instant in the process's time zone with a Qt date pattern in the user's locale
// ("h:mm AP", "dddd d MMMM yyyy").
QString formatLocal(const QDateTime& instant, const QString& pattern);

// Day key "yyyy-MM-dd" of an instant in the process's time zone.
QString dayKey(const QDateTime& instant);
QString dayKey(const QDate& date);

// Re-reads TZ after a change of the environment (tests switch zones).
void resetLocalTimeZone();

} // namespace tarvanel
