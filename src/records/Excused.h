#pragma once
// Excused periods (excused.json): reminders and locks stop, the streak is kept.
#include "engine/Config.h"

#include <QDateTime>
#include <QList>
#include <optional>

namespace tarvanel {

struct ExcusedRange {
    QDateTime start;
    std::optional<QDateTime> end; // absent while the period is open

    // `end`, or start + maxDays days for an open range.
    QDateTime effectiveEnd(double maxDays) const;
    bool operator==(const ExcusedRange&) const = default;
};

namespace Excused {

// Missing: empty. Unreadable, or any element malformed: moved aside, then empty.
QList<ExcusedRange> load();
// ISO 8601 UTC without fractional seconds; an absent end is omitted. Atomic.
void save(const QList<ExcusedRange>& ranges);

// The open period in force at `now`. An open period whose limit has passed is closed at its
// limit in the file and no longer counts.
std::optional<ExcusedRange> current(double maxDays, const QDateTime& now);
// Opens a period at `now` unless one is open.
void begin(const QDateTime& now);
// Closes the open period at `now`; nothing is written when none is open.
void finish(const QDateTime& now);

// start ≤ date < effective end, for some range.
bool contains(const QDateTime& date, const QList<ExcusedRange>& ranges, double maxDays);
// Some range overlaps [dayStart, dayStart + 24 h).
bool touchesDay(const QDateTime& dayStart, const QList<ExcusedRange>& ranges, double maxDays);

} // namespace Excused

// Whole days of `excusedMaxDays` for the alert text.
long long excusedWholeDays(const Config& cfg);

// "No Longer Excused": closes the open period at `now` and logs.
void endExcused(const QDateTime& now);

} // namespace tarvanel
