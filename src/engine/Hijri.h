#pragma once
// Umm al-Qura dates through ICU. The local Gregorian date comes from the system's zone data;
// ICU only converts that date, so its own (older) zone tables never decide the day.
#include <QDateTime>
#include <QString>

namespace tarvanel {

struct HijriDate {
    int day = 0, month = 0, year = 0;
};

HijriDate hijriDate(const QDateTime& instant);
QString hijriString(const QDateTime& instant); // "14 Ramadan 1446 AH"
bool isRamadan(const QDateTime& instant);

} // namespace tarvanel
