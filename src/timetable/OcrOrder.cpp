// A row's times in the order of the day: the one cell that breaks it has its hour misread.
#include "timetable/OcrLines.h"

#include <QMap>
#include <QRegularExpression>
#include <climits>
#include <optional>

namespace tarvanel::OcrLines {

namespace {

constexpr int day = 24 * 60;
const QString gap = QStringLiteral("   ");

// An unmarked time ("5:15", "17.15"): its hour and minutes; marked ones are left alone.
std::optional<std::pair<int, int>> clock(const QString& word) {
    static const QRegularExpression re(QStringLiteral("^(\\d{1,2})[:.]([0-5]\\d)$"));
    const QRegularExpressionMatch m = re.match(word);
    if (!m.hasMatch() || m.captured(1).toInt() > 23) return std::nullopt;
    return std::pair{m.captured(1).toInt(), m.captured(2).toInt()};
}

// Minutes since the row's first time, each time the first on the sheet's dial (twelve or
// twenty-four hours) not before the one to its left: the prayers of one day, read left to right,
// span less than a day.
QList<int> unrolled(const QList<int>& dialMinutes, int dial) {
    QList<int> out;
    for (int m : dialMinutes) {
        int at = m;
        if (!out.isEmpty())
            while (at < out.last())
                at += dial;
        out.append(at);
    }
    return out;
}

int span(const QList<int>& dialMinutes, int dial) {
    const QList<int> at = unrolled(dialMinutes, dial);
    return at.isEmpty() ? 0 : at.last() - at.first();
}

// The row with at most two times given the hour that puts them between their neighbours, each
// time the one whose absence tightens the row most, so that the row spans less than a day; none
// when it does already or cannot. Between two that tighten it alike, the one further from the
// times its column reads in the rows around (`offColumn`) is the misread one.
std::optional<QList<int>> inOrder(QList<int> minutes, const QList<int>& offColumn, int dial) {
    if (minutes.size() < 5 || span(minutes, dial) < day) return std::nullopt;
    for (int round = 0; round < 2 && span(minutes, dial) >= day; ++round) {
        qsizetype odd = -1;
        int tightest = INT_MAX;
        for (qsizetype i = 0; i < minutes.size(); ++i) {
            QList<int> without = minutes;
            without.remove(i);
            const int s = span(without, dial);
            if (s < tightest || (s == tightest && odd >= 0 && offColumn[i] > offColumn[odd])) {
                tightest = s;
                odd = i;
            } else if (s == tightest && (odd < 0 || offColumn[i] == offColumn[odd])) {
                odd = -1;
            }
        }
        if (odd < 0) return std::nullopt;
        // Its minutes stand; the hour is the first after the time to its left (a jamaat follows
        // its begins), or the last before the time to its right for the row's first time.
        QList<int> without = minutes;
        without.remove(odd);
        const QList<int> row = unrolled(without, dial);
        const int own = minutes[odd] % 60;
        int value;
        if (odd > 0) {
            value = row[odd - 1] - row[odd - 1] % 60 + own;
            if (value < row[odd - 1]) value += 60;
            if (odd < row.size() && value > row[odd]) return std::nullopt;
        } else {
            value = row[0] - row[0] % 60 + own;
            if (value > row[0]) value -= 60;
        }
        minutes[odd] = (value % dial + dial) % dial;
    }
    if (span(minutes, dial) >= day) return std::nullopt;
    return minutes;
}

} // namespace

QStringList hoursInOrder(QStringList lines, QList<TextMark>& marks) {
    struct Row {
        qsizetype line;
        QStringList words;
        QList<qsizetype> at;            // the words that are times
        QList<int> minutes, dayMinutes; // on the twelve-hour dial, and as printed
    };
    QList<Row> rows;
    int afternoon = 0; // times printed 13:00 or later: a twenty-four-hour sheet has several a row
    for (qsizetype l = 0; l < lines.size(); ++l) {
        Row row{l, lines[l].split(gap), {}, {}, {}};
        bool marked = false;
        // The first word is the row's day or date ("09.03" reads as a time).
        for (qsizetype w = 1; w < row.words.size(); ++w) {
            if (const auto c = clock(row.words[w])) {
                row.at.append(w);
                row.minutes.append(c->first % 12 * 60 + c->second);
                row.dayMinutes.append(c->first * 60 + c->second);
            } else if (isTime(row.words[w])) {
                marked = true; // am/pm say what the order would
            }
        }
        if (marked || row.at.size() < 5) continue;
        afternoon += int(std::count_if(row.dayMinutes.begin(), row.dayMinutes.end(),
                                       [](int m) { return m >= 13 * 60; }));
        rows.append(row);
    }
    const bool twentyFour = afternoon >= rows.size() && !rows.isEmpty();
    const int dial = twentyFour ? day : day / 2;
    if (twentyFour)
        for (Row& row : rows)
            row.minutes = row.dayMinutes;
    // A width that several rows have and none of them in the day's order is a sheet's own
    // order (an iftar column after isha, say), not a misreading. A day's times pass noon on a
    // twelve-hour clock once and turn no hour back on a twenty-four-hour one: begins and jamaat
    // in two groups turn it once more, though Isha's jamaat may stop short of Fajr's begins on
    // the dial (6:35 after 6:47) and so span less than a day.
    auto turns = [&](const QList<int>& minutes) {
        int n = 0;
        for (qsizetype i = 1; i < minutes.size(); ++i)
            n += minutes[i] < minutes[i - 1];
        return n;
    };
    QMap<qsizetype, int> rowsOfWidth, inDaysOrder;
    for (const Row& row : rows) {
        ++rowsOfWidth[row.at.size()];
        if (span(row.minutes, dial) < day && turns(row.minutes) <= (twentyFour ? 0 : 1))
            ++inDaysOrder[row.at.size()];
    }
    for (qsizetype r = 0; r < rows.size(); ++r) {
        Row& row = rows[r];
        if (rowsOfWidth[row.at.size()] >= 3 && !inDaysOrder.value(row.at.size())) continue;
        QList<int> offColumn(row.minutes.size(), dial);
        for (qsizetype other : {r - 1, r + 1}) {
            if (other < 0 || other >= rows.size() || rows[other].at.size() != row.at.size())
                continue;
            for (qsizetype i = 0; i < row.minutes.size(); ++i) {
                const int d = std::abs(rows[other].minutes[i] - row.minutes[i]);
                offColumn[i] = std::min(offColumn[i], std::min(d, dial - d));
            }
        }
        const std::optional<QList<int>> minutes = inOrder(row.minutes, offColumn, dial);
        if (!minutes) continue;
        // Back on the sheet's clock, from a time left as it was: unrolled, the row's times lie
        // a whole number of half days from where the sheet prints them.
        const QList<int> at = unrolled(*minutes, dial);
        qsizetype kept = 0;
        while ((*minutes)[kept] != row.minutes[kept])
            ++kept;
        const int base = row.dayMinutes[kept] - at[kept];
        // A misread puts one figure for another: an hour that needs more or fewer figures than
        // were read is an order the sheet has (begins and jamaat times in two groups, say).
        QStringList words = row.words;
        bool sameFigures = true;
        for (qsizetype i = 0; i < at.size(); ++i) {
            if ((*minutes)[i] == row.minutes[i]) continue;
            const int hours = ((at[i] + base) % day + day) % day / 60;
            const int hour = twentyFour ? hours % 24 : (hours % 12 == 0 ? 12 : hours % 12);
            QString& word = words[row.at[i]];
            const QString written =
                (hour < 10 && word.startsWith(u'0') ? QStringLiteral("0") : QString()) +
                QString::number(hour) + word.right(3);
            sameFigures = sameFigures && written.size() == word.size();
            word = written;
        }
        if (!sameFigures) continue;
        for (qsizetype i = 0; i < at.size(); ++i) {
            if ((*minutes)[i] == row.minutes[i]) continue;
            const int start =
                int(words.mid(0, row.at[i]).join(gap).size() + (row.at[i] > 0 ? gap.size() : 0));
            const int line = int(row.line);
            marks.removeIf([&](const TextMark& m) { return m.line == line && m.start == start; });
            marks.append({line, start, int(words[row.at[i]].size())});
        }
        lines[row.line] = words.join(gap);
    }
    return lines;
}

} // namespace tarvanel::OcrLines
