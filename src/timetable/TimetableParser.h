#pragma once
// Turns a masjid's monthly sheet (pasted text, CSV, recognised lines) into rows of clock times,
// guesses which column is which prayer, and makes the per-day table the store keeps.
#include "timetable/Timetable.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <functional>
#include <optional>

namespace tarvanel {

// What stands for a time the recogniser could not read, in its column: the row's other times
// keep their places, and the user sees where to type it.
inline constexpr char unreadTime[] = "??:??";

struct ParsedTime {
    int hour = 0; // -1 for an unread time

    int minute = 0;
    // "am" / "pm" as printed, letters only, lower case; the Arabic sad and meem as "am" and "pm"
    std::optional<QString> meridiem;

    // As printed: "5:12 am", "13:05", "??:??".
    QString label() const;
    bool read() const { return hour >= 0; }
    // 24-hour "HH:mm" for the named prayer; absent outside 0:00–23:59.
    std::optional<QString> clock(const QString& prayer) const;
    bool operator==(const ParsedTime&) const = default;
};

struct ParsedRow {
    std::optional<int> day;    // day of the month, before the times (or after, right to left)
    QList<int> dayNumbers;     // the numbers up to 31 before the first time, `day` the first
    QList<int> numbersAfter;   // those after the last time, right to left (a right-to-left table)
    std::optional<QDate> date; // a full date printed on the line
    QList<ParsedTime> times;   // every time on the line, read or not, left to right: the columns
    QString raw;
    int line = -1; // index of the line among those given to `parse`

    int readTimes() const {
        return int(std::count_if(times.begin(), times.end(), std::mem_fn(&ParsedTime::read)));
    }
};

// Prayer name → column position; -1 for a prayer the sheet does not have.
using ColumnMap = QMap<QString, int>;

namespace TimetableParser {

// The line with Arabic-Indic and Extended Arabic-Indic digits as 0–9, the Arabic comma,
// semicolon and decimal and thousands separators as their Latin counterparts, and bidi marks
// (which a right-to-left sheet scatters between digits) removed.
QString plainDigits(const QString& line);
// One row per line holding at least three times that read, in line order. Lines are read through
// `plainDigits`; `raw` keeps them as given. Two months printed side by side make two rows of a
// line: the first table's rows come first, then the second's.
QList<ParsedRow> parse(const QStringList& lines);
ColumnMap guessColumns(int columnCount);
// The day a row stands for: its full date, else its day number in `month` of `year` when that
// month has such a day.
std::optional<QDate> dateOf(const ParsedRow& row, int month, int year);
// Whether a position of `columns` holds a time of the row that did not read.
bool unreadIn(const ParsedRow& row, const ColumnMap& columns);
// Day key → prayer → "HH:mm"; no day of a row with a time unread in `columns`. `columns` holds
// positions ≥ 0 only.
DayTable days(const QList<ParsedRow>& rows, int month, int year, const ColumnMap& columns);

} // namespace TimetableParser
} // namespace tarvanel
