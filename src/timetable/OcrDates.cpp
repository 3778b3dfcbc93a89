#include "timetable/OcrLines.h"

#include <QDate>
#include <QMap>
#include <QRegularExpression>
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

QStringList datesFromClocks(QStringList lines, QList<TextMark>& marks) {
    const QString gap = QStringLiteral("   ");
    static const QRegularExpression clock(QStringLiteral("^(\\d{1,2})[:.](\\d\\d)$"));
    struct Row {
        qsizetype line, word;
        int day, month;
    };
    QList<Row> rows;
    qsizetype timed = 0;
    for (qsizetype l = 0; l < lines.size(); ++l) {
        const QStringList words = lines[l].split(gap);
        if (std::count_if(words.begin(), words.end(), isTime) < 4) continue;
        ++timed;
        // The date stands first, or after a weekday's name.
        const qsizetype at = std::find_if(words.begin(), words.end(), isTime) - words.begin();
        if (const QRegularExpressionMatch m = clock.match(words[at]); at <= 1 && m.hasMatch())
            rows.append({l, at, m.captured(1).toInt(), m.captured(2).toInt()});
    }
    QMap<int, int> months;
    for (const Row& row : rows)
        ++months[row.month];
    const auto month = std::max_element(months.keyValueBegin(), months.keyValueEnd(),
                                        [](auto a, auto b) { return a.second < b.second; });
    if (month == months.keyValueEnd() || month->first < 1 || month->first > 12 ||
        3 * month->second < 2 * timed)
        return lines;
    qsizetype counting = 0;
    for (qsizetype r = 1; r < rows.size(); ++r)
        counting += rows[r].day == rows[r - 1].day + 1;
    if (3 * counting < rows.size()) return lines;
    for (const Row& row : rows) {
        if (row.month != month->first || row.day < 1 || row.day > 31) continue;
        QStringList words = lines[row.line].split(gap);
        const int start =
            int(words.mid(0, row.word).join(gap).size() + (row.word > 0 ? gap.size() : 0));
        words[row.word] = QString::asprintf("%02d/%02d", row.day, row.month);
        lines[row.line] = words.join(gap);
        marks.append({int(row.line), start, int(words[row.word].size())});
    }
    return lines;
}

} // namespace tarvanel::OcrLines
