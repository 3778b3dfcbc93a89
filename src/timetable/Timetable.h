#pragma once
// The imported masjid timetable: ~/.tarvanel/timetable.json, day key → prayer → "HH:mm".
#include "engine/Schedule.h"

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>
#include <optional>

namespace tarvanel {

using DayTable = QMap<QString, QMap<QString, QString>>;

namespace Timetable {

QString url();
DayTable all();                                    // read again only when the file changed
QMap<QString, QString> day(const QDateTime& date); // empty when nothing covers the date
// The day's times with the imported timetable applied: what every lock, event and menu uses.
EffectiveTimes scheduledTimes(const QDateTime& date, const Config& cfg);
void merge(const DayTable& days); // replaces the given days whole
void clear();
std::optional<QString> summary(); // "30 days, 1 Mar 2025 – 30 Mar 2025"

// Name of the process-local notification posted after merge and clear.
inline constexpr const char* changedNote = "TarvanelTimetableChanged";

// Forgets the cache (tests that rewrite the file within one time-stamp tick).
void resetCacheForTesting();

} // namespace Timetable

// The process-local "TarvanelTimetableChanged" notification: callers post it after merge and
// clear; views connect to `posted` (queued to their own thread as usual).
class TimetableChangedNote : public QObject {
    Q_OBJECT
public:
    static TimetableChangedNote& instance();
    static void post() { emit instance().posted(); }
signals:
    void posted();
};

inline TimetableChangedNote& timetableChangedNote() {
    return TimetableChangedNote::instance();
}

} // namespace tarvanel
