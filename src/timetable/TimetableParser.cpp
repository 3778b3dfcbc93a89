#include "timetable/TimetableParser.h"
#include "base/StateFiles.h"
#include "engine/DayTimes.h"
#include "engine/Digits.h"
#include "timetable/MonthInText.h"
#include "timetable/SideBySide.h"

#include <QMap>
#include <QRegularExpression>
#include <QtGlobal>
#include <algorithm>
#include <climits>
#include <functional>

namespace tarvanel {
namespace {

// Default options on purpose: without Unicode properties, \d is 0-9 only.
QRegularExpression compile(const QString& pattern) {
    QRegularExpression re(pattern);
    if (!re.isValid())
        qFatal("timetable pattern does not compile: %s", qPrintable(re.errorString()));
    re.optimize();
    return re;
}

struct Patterns {
    // "h:mm" or "h.mm", or "??:??" for a cell no reading gave (captures 1 and 2 left empty).
    // After the minutes, an am/pm marker: Latin letters, "a" or "p" alone only when glued to
    // the minutes ("6:48a"; a lone letter further off may be a stray mark), or the Arabic sad
    // (morning) or meem (evening) standing alone, not the first letter of a word such as a
    // prayer's name.
    QRegularExpression time =
        compile(R"((?<![\d:.?])(?:([01]?\d|2[0-3])[:.]([0-5]\d)|\?\?:\?\?)(?![\d?])\s*)"
                R"(([AaPp]\.?[Mm]\.?|(?<=\d)[AaPp]\.?(?![\p{L}\p{M}])|)"
                R"([\x{0635}\x{0645}](?![\p{L}\p{M}]))?)");
    QRegularExpression isoDate = compile(R"(\b(20\d\d)-(\d{1,2})-(\d{1,2})\b)");
    QRegularExpression slashDate = compile(R"(\b(\d{1,2})([/.-])(\d{1,2})[/.-](20\d\d|\d\d)\b)");
    // A Hijri day with its month's name ("17 Rabi II", "1 Ramadan") and the words up to the
    // next number: no date.
    QRegularExpression hijriDay = compile(R"((?i)\b([0-2]?\d|30)\s*(?:muhar|safar|rab|raj|jumad|)"
                                          R"(sha.?ban|ramad|shaww|dh?ul?\b|dhu)\D*)");
    // Day and month, or month and day, with a slash; also the first two parts of a whole date.
    QRegularExpression dayAndMonth = compile(R"((?<![\d/])(\d{1,2})/(\d{1,2})(?!\d))");
    QRegularExpression leadingDay = compile(R"(^\D{0,12}?\b([0-2]?\d|3[01])\b)");
    // After a weekday or month name the recogniser garbled (Arabic script read as Latin
    // letters), the day stands right before the first time.
    QRegularExpression lastDay = compile(R"(^\D*\b([0-2]?\d|3[01])\s*$)");
    QRegularExpression dayNumber = compile(R"(\b([0-2]?\d|3[01])\b)");
    // A day printed with its month's name ("01-Oct", "Sep 1"): the date, where a Hijri day or
    // a fast's number stands before it.
    QRegularExpression namedDay =
        compile(QStringLiteral(R"((?i)\b([0-2]?\d|3[01])[\s./-]*(?:%1)[a-z]*\b|\b(?:%1)[a-z]*)"
                               R"(\.?[\s/-]*([0-2]?\d|3[01])\b)")
                    .arg(MonthInText::shortEnglish));
    // Between two times, the start of a second table's row (capture 1): its day, perhaps after
    // a weekday's name and before a month's name or a Hijri day.
    QRegularExpression rowStart =
        compile(R"(^\s*((?:[A-Za-z]{2,9}\.?\s+)?\b([0-2]?\d|3[01])\b))"
                R"((\s*[A-Za-z]{2,9}\.?|\s+([0-2]?\d|3[01])\b){0,2}\s*$)");
};

const Patterns& patterns() {
    static const Patterns p;
    return p;
}

// Out-of-range months and days carry into the following month or year, as a lenient
// calendar does.
std::optional<QDate> lenientDate(int year, int month, int day) {
    const QDate first(year, 1, 1);
    if (!first.isValid()) return std::nullopt;
    const QDate d = first.addMonths(month - 1).addDays(day - 1);
    if (!d.isValid()) return std::nullopt;
    return d;
}

bool isBidiMark(char16_t c) {
    return c == 0x200E || c == 0x200F || c == 0x061C || (c >= 0x202A && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

// "am" or "pm" as printed, letters only and lower case; the Arabic sad and meem as "am" and "pm".
QString meridiem(QStringView marker) {
    if (marker == u"\u0635") return QStringLiteral("am");
    if (marker == u"\u0645") return QStringLiteral("pm");
    QString letters;
    for (QChar c : marker)
        if (c.isLetter()) letters += c.toLower();
    if (letters.size() == 1) letters += u'm';
    return letters;
}

// Whether the sheet prints its dates month first (02/25/2026, an American sheet). A sheet
// keeps one order: a first part above 12 says day first, a second part above 12 month first.
bool monthFirst(const QStringList& lines) {
    int dayFirst = 0, monthFirst = 0;
    for (const QString& line : lines)
        for (auto it = patterns().dayAndMonth.globalMatch(TimetableParser::plainDigits(line));
             it.hasNext();) {
            const QRegularExpressionMatch m = it.next();
            const int first = m.captured(1).toInt(), second = m.captured(2).toInt();
            dayFirst += first > 12 && second <= 12;
            monthFirst += second > 12 && first <= 12;
        }
    return monthFirst > dayFirst;
}

std::optional<ParsedRow> parseLine(const QString& raw, bool monthFirst) {
    const Patterns& p = patterns();
    ParsedRow row;
    row.raw = raw;
    QString line = TimetableParser::plainDigits(raw);

    QRegularExpressionMatch dateMatch = p.isoDate.match(line);
    if (dateMatch.hasMatch()) {
        row.date = lenientDate(dateMatch.captured(1).toInt(), dateMatch.captured(2).toInt(),
                               dateMatch.captured(3).toInt());
    } else {
        dateMatch = p.slashDate.match(line);
        if (dateMatch.hasMatch()) {
            const bool swapped = monthFirst && dateMatch.captured(2) == u"/";
            const int month = dateMatch.captured(swapped ? 1 : 3).toInt();
            if (month >= 1 && month <= 12) {
                int year = dateMatch.captured(4).toInt();
                if (year < 100) year += 2000;
                row.date = lenientDate(year, month, dateMatch.captured(swapped ? 3 : 1).toInt());
            }
        }
    }
    // A date's digits and dots must not be read as times (01.03.2025 is no 01:03).
    if (dateMatch.hasMatch())
        line = line.left(dateMatch.capturedStart()) + u' ' + line.mid(dateMatch.capturedEnd());

    qsizetype firstTime = -1, lastTime = 0;
    auto it = p.time.globalMatch(line);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        if (firstTime < 0) firstTime = m.capturedStart();
        lastTime = m.capturedEnd();
        ParsedTime t{-1, -1, std::nullopt};
        if (m.hasCaptured(1)) {
            t.hour = m.captured(1).toInt();
            t.minute = m.captured(2).toInt();
        }
        if (m.hasCaptured(3)) t.meridiem = meridiem(m.capturedView(3));
        row.times << t;
    }
    if (row.readTimes() < 3) return std::nullopt;
    for (auto more = p.dayNumber.globalMatch(line, lastTime); more.hasNext();)
        row.numbersAfter.prepend(more.next().captured(1).toInt());

    if (!row.date) {
        const QString before = line.left(firstTime).replace(p.hijriDay, QStringLiteral(" "));
        QRegularExpressionMatch d = p.leadingDay.match(before);
        if (!d.hasMatch()) d = p.lastDay.match(before);
        if (d.hasMatch()) {
            row.day = d.captured(1).toInt();
            for (auto more = p.dayNumber.globalMatch(before, d.capturedEnd()); more.hasNext();)
                row.dayNumbers << more.next().captured(1).toInt();
            row.dayNumbers.prepend(*row.day);
        }
        // The day of a date printed with its month, by name or by number ("Sun 02/25").
        int day = 0;
        if (const QRegularExpressionMatch named = p.namedDay.match(before); named.hasMatch())
            day = named.captured(named.hasCaptured(1) ? 1 : 2).toInt();
        else if (const QRegularExpressionMatch m = p.dayAndMonth.match(before); m.hasMatch())
            day = m.captured(monthFirst ? 2 : 1).toInt();
        if (day >= 1 && day <= 31) {
            row.dayNumbers.removeOne(day);
            row.dayNumbers.prepend(day);
            row.day = day;
        }
    }
    return row;
}

// Where a second table's row starts on the line (two months side by side): a day after three
// times or more and before three more, else, its day unread, after the `perTable` times of the
// first table's row; -1 where there is none.
qsizetype secondTable(const QString& line, qsizetype perTable = 0) {
    const Patterns& p = patterns();
    QList<std::pair<qsizetype, qsizetype>> times; // where each starts and ends
    for (auto it = p.time.globalMatch(line); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        times.append({m.capturedStart(), m.capturedEnd()});
    }
    for (qsizetype t = 3; t + 3 <= times.size(); ++t) {
        const qsizetype end = times[t - 1].second;
        const QRegularExpressionMatch day = p.rowStart.match(line.mid(end, times[t].first - end));
        if (day.hasMatch()) return end + day.capturedStart(1);
    }
    return perTable >= 3 && times.size() >= perTable + 3 ? times[perTable - 1].second : -1;
}

} // namespace

QString ParsedTime::label() const {
    if (!read()) return QString::fromLatin1(unreadTime);
    QString text = QString::asprintf("%d:%02d", hour, minute);
    if (meridiem) text += u' ' + *meridiem;
    return text;
}

std::optional<QString> ParsedTime::clock(const QString& prayer) const {
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59) return std::nullopt;
    int h = hour;
    if (meridiem == QLatin1String("pm")) {
        if (hour < 12) h = hour + 12;
    } else if (meridiem == QLatin1String("am")) {
        if (hour == 12) h = 0;
    } else if (meridiem) {
        // Letters other than am/pm say nothing about the half of the day: read as unmarked.
        return ParsedTime{hour, minute, std::nullopt}.clock(prayer);
    } else if (hour > 12) {
        h = hour;
    } else if (prayer == QLatin1String("Fajr")) {
        h = hour == 12 ? 0 : hour;
    } else if (prayer == QLatin1String("Dhuhr") || prayer == QLatin1String("Jumu'ah")) {
        h = (hour >= 1 && hour <= 4) ? hour + 12 : hour;
    } else {
        h = hour == 12 ? 12 : hour + 12;
    }
    return QString::asprintf("%02d:%02d", h, minute);
}

namespace TimetableParser {

QString plainDigits(const QString& line) {
    QString plain;
    plain.reserve(line.size());
    for (QChar c : line) {
        const char16_t u = c.unicode();
        if (const int d = digitValue(u); d >= 0)
            plain += QChar(u'0' + d);
        else if (u == 0x060C || u == 0x066C) // Arabic comma, thousands separator
            plain += u',';
        else if (u == 0x061B) // Arabic semicolon
            plain += u';';
        else if (u == 0x066B || u == 0x06D4) // Arabic decimal separator, full stop
            plain += u'.';
        else if (u == 0x2236 || u == 0xFF1A) // ratio sign, full-width colon
            plain += u':';
        else if (!isBidiMark(u))
            plain += c;
    }
    return plain;
}

QList<ParsedRow> parse(const QStringList& lines) {
    const bool americanDates = monthFirst(lines);
    auto parseRow = [americanDates](const QString& line) { return parseLine(line, americanDates); };
    QList<ParsedRow> rows;
    QStringList plain; // each row's line, read through plainDigits
    QList<qsizetype> splits;
    for (int i = 0; i < lines.size(); ++i) {
        if (auto row = parseRow(lines[i])) {
            row->line = i;
            plain << plainDigits(lines[i]);
            splits << secondTable(plain.last());
            rows << std::move(*row);
        }
    }
    // Two months side by side: when most rows hold a second table's row, that is a row of its
    // own, and those rows follow all of the first table's. A row whose second day went unread
    // is cut after as many times as most first tables' rows hold.
    const auto split =
        std::count_if(splits.begin(), splits.end(), [](qsizetype at) { return at >= 0; });
    QMap<qsizetype, int> count;
    for (qsizetype r = 0; r < rows.size(); ++r)
        if (splits[r] >= 0)
            if (const auto row = parseRow(plain[r].left(splits[r]))) ++count[row->times.size()];
    qsizetype perTable =
        count.isEmpty()
            ? 0
            : std::max_element(count.keyValueBegin(), count.keyValueEnd(), [](auto a, auto b) {
                  return a.second < b.second;
              })->first;
    // Where few second days were read, or none, the times must say it too: most lines hold
    // two days' times.
    if (split < 3 || 2 * split < rows.size()) {
        const qsizetype byTimes = SideBySide::timesPerDay(rows);
        if (byTimes == 0 || (split > 0 && byTimes != perTable)) return rows;
        perTable = byTimes;
    }
    if (perTable == 0) return rows;
    for (qsizetype r = 0; r < rows.size(); ++r)
        if (splits[r] < 0) splits[r] = secondTable(plain[r], perTable);
    // How far apart two rows' times are, in minutes: a printed time moves a minute or two a day.
    auto apart = [](const ParsedRow& a, const ParsedRow& b) {
        if (a.times.size() != b.times.size()) return INT_MAX;
        int minutes = 0;
        for (qsizetype t = 0; t < a.times.size(); ++t)
            minutes += std::abs((a.times[t].hour - b.times[t].hour) * 60 + a.times[t].minute -
                                b.times[t].minute);
        return minutes;
    };
    QList<ParsedRow> first, second;
    QList<std::pair<qsizetype, qsizetype>> sameLine; // a row of each table, on one line
    for (qsizetype r = 0; r < rows.size(); ++r) {
        // A row of one table alone (the longer month's last days) goes on the table whose last
        // row its times follow.
        if (splits[r] < 0) {
            const bool later = !first.isEmpty() && !second.isEmpty() &&
                               apart(rows[r], second.last()) < apart(rows[r], first.last());
            (later ? second : first) << rows[r];
            continue;
        }
        for (auto [half, to] : {std::pair{plain[r].left(splits[r]), &first},
                                std::pair{plain[r].mid(splits[r]), &second}})
            if (auto row = parseRow(half)) {
                row->line = rows[r].line;
                *to << std::move(*row);
            }
        if (!first.isEmpty() && !second.isEmpty() && first.last().line == second.last().line)
            sameLine.append({first.size() - 1, second.size() - 1});
    }
    // The months go day by day down the page, unless a line read with both days says not: a
    // second day unread is then the first's.
    auto dayByDay = [&](const auto& pair) {
        const ParsedRow &a = first[pair.first], &b = second[pair.second];
        return !a.day || !b.day || a.date || b.date || a.day == b.day;
    };
    if (std::all_of(sameLine.begin(), sameLine.end(), dayByDay))
        for (auto [a, b] : sameLine)
            if (!second[b].day && !second[b].date) {
                second[b].day = first[a].day;
                second[b].dayNumbers = first[a].dayNumbers;
            }
    return first + second;
}

ColumnMap guessColumns(int columnCount) {
    const QStringList& names = prayerNames();
    auto map = [&](std::initializer_list<int> positions) {
        ColumnMap columns;
        int i = 0;
        for (int position : positions)
            columns.insert(names[i++], position);
        return columns;
    };
    if (columnCount >= 11) return map({1, 4, 6, 8, 10});
    if (columnCount == 10) return map({1, 3, 5, 7, 9});
    if (columnCount == 6) return map({0, 2, 3, 4, 5});
    ColumnMap columns;
    for (int i = 0; i < names.size() && i < columnCount; ++i)
        columns.insert(names[i], i);
    return columns;
}

std::optional<QDate> dateOf(const ParsedRow& row, int month, int year) {
    if (row.date || !row.day) return row.date;
    // Only a day that exists in the chosen month counts; no carrying over here.
    std::optional<QDate> date = lenientDate(year, month, *row.day);
    if (date && date->month() != month) date.reset();
    return date;
}

bool unreadIn(const ParsedRow& row, const ColumnMap& columns) {
    return std::any_of(columns.begin(), columns.end(), [&](int position) {
        return position >= 0 && position < row.times.size() && !row.times[position].read();
    });
}

DayTable days(const QList<ParsedRow>& rows, int month, int year, const ColumnMap& columns) {
    DayTable table;
    for (const ParsedRow& row : rows) {
        const std::optional<QDate> date = dateOf(row, month, year);
        if (!date || unreadIn(row, columns)) continue;
        QMap<QString, QString> entries;
        for (auto it = columns.begin(); it != columns.end(); ++it) {
            const int position = it.value();
            if (position < 0 || position >= row.times.size()) continue;
            if (const auto clock = row.times[position].clock(it.key()))
                entries.insert(it.key(), *clock);
        }
        if (!entries.isEmpty()) table.insert(dayKey(*date), entries);
    }
    return table;
}

} // namespace TimetableParser
} // namespace tarvanel
