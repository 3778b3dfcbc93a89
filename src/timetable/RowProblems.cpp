#include "timetable/RowProblems.h"

#include <QHash>
#include <algorithm>

namespace tarvanel::RowProblems {

namespace {

// "a", "a and b", "a, b and c".
QString joinAnd(const QStringList& parts) {
    if (parts.size() < 2) return parts.value(0);
    return QStringList(parts.mid(0, parts.size() - 1)).join(QStringLiteral(", ")) +
           QStringLiteral(" and ") + parts.last();
}

// "4, 12 and 19 March and 1 April", then rows without a date by their line: "line 7".
QString names(const QList<RowProblem>& problems, const QStringList& monthNames) {
    QList<std::pair<int, QStringList>> months; // year × 12 + month, in order of appearance
    QStringList lines;
    for (const RowProblem& p : problems) {
        if (!p.date) {
            lines << QStringLiteral("line %1").arg(p.line + 1);
            continue;
        }
        const int key = p.date->year() * 12 + p.date->month() - 1;
        auto it = std::find_if(months.begin(), months.end(),
                               [key](const auto& m) { return m.first == key; });
        if (it == months.end()) it = months.insert(months.end(), {key, {}});
        it->second << QString::number(p.date->day());
    }
    QStringList groups;
    for (const auto& [key, days] : months)
        groups << joinAnd(days) + u' ' + monthNames.value(key % 12);
    return joinAnd(groups + lines);
}

QString phrase(RowProblem::Reason reason, const QList<RowProblem>& problems, int month,
               const QStringList& monthNames) {
    const bool one = problems.size() == 1;
    switch (reason) {
    case RowProblem::MissingTime:
        return names(problems, monthNames) +
               (one ? QStringLiteral(" is") : QStringLiteral(" are")) +
               QStringLiteral(" missing a time in a chosen column");
    case RowProblem::NoDay:
        return names(problems, monthNames) +
               (one ? QStringLiteral(" has") : QStringLiteral(" have")) +
               QStringLiteral(" no day number or date");
    case RowProblem::NotInMonth: {
        QStringList days;
        for (const RowProblem& p : problems)
            days << QString::number(p.day);
        return (one ? QStringLiteral("day ") : QStringLiteral("days ")) + joinAnd(days) +
               (one ? QStringLiteral(" is") : QStringLiteral(" are")) + QStringLiteral(" not in ") +
               monthNames.value(month - 1);
    }
    case RowProblem::Repeated:
        return names(problems, monthNames) +
               (one ? QStringLiteral(" appears twice (the later row is used)")
                    : QStringLiteral(" appear twice (the later rows are used)"));
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
        if (row.times.size() < largest + 1)
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
    const qsizetype n = problems.size();
    return QStringLiteral("%1 row%2 can't be used: ").arg(n).arg(n == 1 ? "" : "s") +
           parts.join(QStringLiteral("; ")) + u'.';
}

} // namespace tarvanel::RowProblems
