#include "timetable/RowProblems.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <algorithm>

namespace tarvanel::RowProblems {

namespace {

// "a", "a and b", "a, b and c".
QString joinAnd(const QStringList& parts) {
    if (parts.size() < 2) return parts.value(0);
    QString head = parts.first();
    for (qsizetype i = 1; i + 1 < parts.size(); ++i)
        //: Items of a list before its last: "4, 12" in "4, 12 and 19 March".
        head = QCoreApplication::translate("RowProblems", "%1, %2").arg(head, parts[i]);
    //: The last item of a list: "4 and 12", "4, 12 and 19 March".
    return QCoreApplication::translate("RowProblems", "%1 and %2").arg(head, parts.last());
}

// "4, 12 and 19 March and 1 April", then rows without a date by their line: "line 7".
QString names(const QList<RowProblem>& problems, const QStringList& monthNames) {
    const QLocale locale;
    QList<std::pair<int, QStringList>> months; // year × 12 + month, in order of appearance
    QStringList lines;
    for (const RowProblem& p : problems) {
        if (!p.date) {
            //: A row of the pasted or read timetable text, counted from 1.
            lines << QCoreApplication::translate("RowProblems", "line %1")
                         .arg(locale.toString(p.line + 1));
            continue;
        }
        const int key = p.date->year() * 12 + p.date->month() - 1;
        auto it = std::find_if(months.begin(), months.end(),
                               [key](const auto& m) { return m.first == key; });
        if (it == months.end()) it = months.insert(months.end(), {key, {}});
        it->second << locale.toString(p.date->day());
    }
    QStringList groups;
    for (const auto& [key, days] : months)
        //: Days of one month: %1 is one or more day numbers ("4, 12 and 19"), %2 the month.
        groups << QCoreApplication::translate("RowProblems", "%1 %2")
                      .arg(joinAnd(days), monthNames.value(key % 12));
    return joinAnd(groups + lines);
}

// Each reason one sentence part; the count decides the verb's number.
QString phrase(RowProblem::Reason reason, const QList<RowProblem>& problems, int month,
               const QStringList& monthNames) {
    const int n = int(problems.size());
    switch (reason) {
    case RowProblem::MissingTime:
        //: %1 names the rows: days ("4, 12 and 19 March") or lines ("line 7"); %n counts them.
        return QCoreApplication::translate("RowProblems",
                                           "%1 are missing a time in a chosen column", nullptr, n)
            .arg(names(problems, monthNames));
    case RowProblem::NoDay:
        //: %1 names the rows ("line 7 and line 9"); %n counts them.
        return QCoreApplication::translate("RowProblems", "%1 have no day number or date", nullptr,
                                           n)
            .arg(names(problems, monthNames));
    case RowProblem::NotInMonth: {
        QStringList days;
        for (const RowProblem& p : problems)
            days << QLocale().toString(p.day);
        //: %1 is one or more day numbers ("30 and 31"), %2 a month ("February"); %n counts
        //: the days.
        return QCoreApplication::translate("RowProblems", "days %1 are not in %2", nullptr, n)
            .arg(joinAnd(days), monthNames.value(month - 1));
    }
    case RowProblem::Repeated:
        //: %1 names the rows ("4 and 5 March"); %n counts them.
        return QCoreApplication::translate("RowProblems",
                                           "%1 appear twice (the later rows are used)", nullptr, n)
            .arg(names(problems, monthNames));
    }
    return {};
}

} // namespace

QList<RowProblem> find(const QList<ParsedRow>& rows, int month, int year, int largest,
                       const ColumnMap& chosen) {
    if (chosen.isEmpty()) return {};
    QList<RowProblem> problems;
    QHash<QDate, qsizetype> lastRowOf; // of the rows that give a day
    QList<std::pair<qsizetype, QDate>> dated;
    for (qsizetype r = 0; r < rows.size(); ++r) {
        const ParsedRow& row = rows[r];
        const std::optional<QDate> date = TimetableParser::dateOf(row, month, year);
        if (row.times.size() < largest + 1 || TimetableParser::unreadIn(row, chosen))
            problems.append({RowProblem::MissingTime, row.line, date});
        else if (!date && row.day)
            problems.append({RowProblem::NotInMonth, row.line, {}, *row.day});
        else if (!date)
            problems.append({RowProblem::NoDay, row.line, {}});
        else {
            lastRowOf.insert(*date, r);
            dated.append({r, *date});
        }
    }
    for (const auto& [r, date] : dated)
        if (lastRowOf.value(date) != r) problems.append({RowProblem::Repeated, rows[r].line, date});
    std::stable_sort(problems.begin(), problems.end(),
                     [](const RowProblem& a, const RowProblem& b) { return a.line < b.line; });
    return problems;
}

QString describe(const QList<RowProblem>& problems, int month, const QStringList& monthNames) {
    if (problems.isEmpty()) return {};
    QStringList parts;
    for (auto reason : {RowProblem::MissingTime, RowProblem::NoDay, RowProblem::NotInMonth,
                        RowProblem::Repeated}) {
        QList<RowProblem> these;
        std::copy_if(problems.begin(), problems.end(), std::back_inserter(these),
                     [reason](const RowProblem& p) { return p.reason == reason; });
        if (!these.isEmpty()) parts << phrase(reason, these, month, monthNames);
    }
    //: Separates the reasons in the sentence below: "… in a chosen column; line 7 has …".
    const QString separator = QCoreApplication::translate("RowProblems", "; ");
    //: %Ln counts the rows, %1 gives the reasons ("4 March is missing a time in a chosen
    //: column").
    return QCoreApplication::translate("RowProblems", "%Ln rows can't be used: %1.", nullptr,
                                       int(problems.size()))
        .arg(parts.join(separator));
}

} // namespace tarvanel::RowProblems
