#include "timetable/OcrLines.h"

#include <QDate>
#include <algorithm>

namespace tarvanel::OcrLines {

// Full dates of a table, counted a day a row: their thin slashes make dates the first thing
// small print loses.
QStringList datesCounted(QStringList lines, QList<TextMark>& marks) {
    const QString gap = QStringLiteral("   ");
    const QString format = QStringLiteral("dd/MM/yyyy");
    struct Row {
        qsizetype line;
        qsizetype dateWords; // the words before the first time, or the first word alone
        QDate date;
    };
    QList<Row> rows;
    // The date alone before the times, or first with other columns after it (the Hijri day,
    // the weekday): then the date is the first word and only that.
    qsizetype alone = 0, first = 0;
    for (qsizetype l = 0; l < lines.size(); ++l) {
        const QStringList words = lines[l].split(gap);
        const auto times = std::count_if(words.begin(), words.end(), isTime);
        if (times < 3) continue;
        const qsizetype at = std::find_if(words.begin(), words.end(), isTime) - words.begin();
        const QDate date = QDate::fromString(words[0], format);
        rows.append({l, at, at > 0 ? date : QDate()});
        (at == 1 ? alone : first) += date.isValid();
    }
    for (Row& row : rows)
        if (first > alone)
            row.dateWords = std::min<qsizetype>(row.dateWords, 1);
        else if (row.dateWords != 1)
            row.date = QDate();
    const auto dated =
        std::count_if(rows.begin(), rows.end(), [](const Row& r) { return r.date.isValid(); });
    if (dated < 2 || dated * 4 < rows.size()) return lines;
    // A counted date is a settled cell too: marked, and the marks after it on its line moved.
    auto write = [&](Row& row, QDate date) {
        row.date = date;
        QStringList words = lines[row.line].split(gap);
        const qsizetype oldDate = words.mid(0, row.dateWords).join(gap).size();
        words.erase(words.begin(), words.begin() + row.dateWords);
        const QString written = date.toString(format);
        words.prepend(written);
        lines[row.line] = words.join(gap);
        const int line = int(row.line), shift = int(written.size() - oldDate);
        marks.removeIf([&](const TextMark& m) { return m.line == line && m.start < oldDate; });
        for (TextMark& m : marks)
            if (m.line == line) m.start += shift;
        marks.append({line, 0, int(written.size())});
    };
    // A short run that the rows on both sides count past (06 and 07 read as 16 and 17, each
    // going on from the other) is counted with them.
    struct Run {
        qint64 offset; // the date less its row's place: the same all down a run
        QList<qsizetype> rows;
    };
    QList<Run> runs;
    for (qsizetype r = 0; r < rows.size(); ++r) {
        if (!rows[r].date.isValid()) continue;
        const qint64 offset = rows[r].date.toJulianDay() - r;
        if (runs.isEmpty() || runs.last().offset != offset) runs.append(Run{offset, {}});
        runs.last().rows << r;
    }
    for (qsizetype i = 1; i + 1 < runs.size(); ++i)
        if (runs[i - 1].offset == runs[i + 1].offset && runs[i].rows.size() <= 3 &&
            runs[i].rows.size() < std::min(runs[i - 1].rows.size(), runs[i + 1].rows.size())) {
            for (qsizetype r : runs[i].rows)
                write(rows[r], QDate::fromJulianDay(runs[i - 1].offset + r));
            runs[i].offset = runs[i - 1].offset;
        }
    // Down the rows, each from the one above it (set right already) ...
    for (qsizetype r = 1; r < rows.size(); ++r) {
        const QDate counted = rows[r - 1].date.isValid() ? rows[r - 1].date.addDays(1) : QDate();
        const QDate next = r + 1 < rows.size() ? rows[r + 1].date : QDate();
        if (!counted.isValid() || rows[r].date == counted) continue;
        // A readable date off the count stands only when the row below goes on from it.
        if (!rows[r].date.isValid() || next != rows[r].date.addDays(1)) write(rows[r], counted);
    }
    // A short run at the top read ahead of the rows below it (23 and 24 read as 29 and 30) is
    // counted back from them: a timetable's rows run forward.
    for (qsizetype r = 0; r + 1 < rows.size() && r < 3; ++r)
        if (rows[r].date.isValid() && rows[r + 1].date.isValid() &&
            rows[r].date >= rows[r + 1].date) {
            for (qsizetype up = r; up >= 0; --up)
                write(rows[up], rows[up + 1].date.addDays(-1));
            break;
        }
    // ... and the rows above the first readable one from below.
    for (qsizetype r = rows.size() - 2; r >= 0; --r)
        if (!rows[r].date.isValid() && rows[r + 1].date.isValid())
            write(rows[r], rows[r + 1].date.addDays(-1));
    return lines;
}

} // namespace tarvanel::OcrLines
