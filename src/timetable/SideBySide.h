#pragma once
// Two months printed side by side whose day columns went unread: each line holds two days'
// times, and nothing but the times tells where the second begins.
#include "timetable/TimetableParser.h"

namespace tarvanel::SideBySide {

// How many times each month's row holds when most rows hold two days': each time of a row's
// second half within hours of the first half's in the same column, as a month on, and the
// columns rounded to five minutes (jamaat times) standing alike in both halves, as they do
// not where a group of jamaat times follows the begins times. 0 when they do not.
qsizetype timesPerDay(const QList<ParsedRow>& rows);

} // namespace tarvanel::SideBySide
