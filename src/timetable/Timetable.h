#pragma once
// The imported masjid timetable: ~/.tarvanel/timetable.json, day key → prayer → "HH:mm".
#include <QDateTime>
#include <QMap>
#include <QString>
#include <optional>

namespace tarvanel {

using DayTable = QMap<QString, QMap<QString, QString>>;

namespace Timetable {

QString url();
DayTable all();                                    // cached by the file's modification time
QMap<QString, QString> day(const QDateTime& date); // empty when nothing covers the date
void merge(const DayTable& days);
void clear();
std::optional<QString> summary(); // "30 days, 1 Mar 2025 – 30 Mar 2025"

// Name of the process-local notification posted after merge and clear.
inline constexpr const char* changedNote = "TarvanelTimetableChanged";

} // namespace Timetable
} // namespace tarvanel
