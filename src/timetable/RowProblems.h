#pragma once
// The rows of a sheet that "Use This Timetable" would not save, and why, said in words, so that
// no day goes missing from the timetable unnoticed.
#include "timetable/TimetableParser.h"

#include <QDate>
#include <QList>
#include <QString>
#include <optional>

namespace tarvanel {

struct RowProblem {
    // In the order the summary names them.
    enum Reason { MissingTime, NoDay, NotInMonth, Repeated };
    Reason reason;
    int line;                  // the row's line in the text, from 0
    std::optional<QDate> date; // the day the row stands for, when it names one
    int day = 0;               // its day number, for a day the month does not have
};

namespace RowProblems {

// In line order. `largest` is the largest chosen column position (-1 with none chosen);
// `chosen` holds the positions of 0 or more only. Nothing is a problem while no column is
// chosen: then no row gives a day, and the preview says so.
QList<RowProblem> find(const QList<ParsedRow>& rows, int month, int year, int largest,
                       const ColumnMap& chosen);
// "3 rows can't be used: 4, 12 and 19 March are missing a time in a chosen column."; empty
// when there is no problem. `monthNames` January first.
QString describe(const QList<RowProblem>& problems, int month, const QStringList& monthNames);

} // namespace RowProblems
} // namespace tarvanel
