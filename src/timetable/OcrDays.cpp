// The day column: numbers counted down the rows, where small print and photos lose them. One
// that is no number, or breaks the count between its neighbours, is read again; the count tells
// what it should be.
#include "timetable/MonthInText.h"
#include "timetable/OcrWords.h"

#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace tarvanel::OcrLines::words {

namespace {

// The doubts in one column of days: `firsts` holds the column's word in each row. A column
// that holds few readable days is read again word by word only when `sparse` allows it.
QList<Doubt> countedDoubts(const QList<RecognizedItem>& items, const QList<qsizetype>& firsts,
                           const QSet<qsizetype>& wholeRows, qreal timesBegin, bool sparse) {
    QList<Doubt> doubts;
    const auto days = std::count_if(firsts.begin(), firsts.end(),
                                    [&](qsizetype i) { return isDay(items[i].text); });
    auto read = [&](qsizetype k) {
        return k >= 0 && k < firsts.size() && isDay(items[firsts[k]].text)
                   ? items[firsts[k]].text.toInt()
                   : -1;
    };
    QHash<qsizetype, int> digitLost; // days read with a digit lost, and the day
    // Days the count below has set right: the rows after them count on from what they should be
    // (28 read as 26 and set right, the unreadable row after it is the 29th, not the 27th).
    QHash<qsizetype, int> setRight;
    auto day = [&](qsizetype k) { return setRight.value(k, digitLost.value(k, read(k))); };
    // The readable day nearest row k (up to `reach` rows off) above (step -1) or below (+1),
    // as the count gives it for row k; -1 for none.
    auto nearest = [&](qsizetype k, int step, qsizetype reach) {
        for (qsizetype d = 1; d <= reach; ++d)
            if (const int v = day(k + step * d); v > 0) return int(v - step * d);
        return -1;
    };
    // Serif print loses a day's tens digit to the gap before it: 13, 14, 15 read as 3, 4, 5
    // after 12; and a last digit to a rule after it: 30 and 31 read as 3 and 3 after 29. Such
    // a run counts on from the nearest readable day above it, past any rows read too poorly to
    // tell (small print loses several in a row); a new month (30, then 1) does not drop by ten
    // or twenty, nor to its tens.
    for (qsizetype k = 1, run = -1; k < firsts.size(); ++k) {
        if (read(k) < 0) continue;
        if (run >= 0 && read(k) == read(run) + (k - run)) {
            digitLost[k] = digitLost[run] + int(k - run);
            run = k;
            continue;
        }
        run = -1;
        const int counted = nearest(k, -1, firsts.size()); // as the rows above count it
        const int lost = counted - read(k);
        // A 2 where the count has reached a month's end, below an unreadable row, is the next
        // month's when the days below count on from it too; straight after the 28th, or with
        // the days below counting on from the month before, it is 29 that lost a digit.
        const int below = nearest(k, 1, firsts.size());
        const bool monthTurned =
            counted >= 28 && read(k) == 2 && read(k - 1) < 0 && (below < 0 || below == read(k));
        if (counted > 0 && !monthTurned &&
            ((read(k) < 10 && (lost == 10 || lost == 20)) ||
             (counted >= 10 && counted / 10 == read(k))) &&
            isDay(QString::number(counted))) {
            digitLost[k] = counted;
            run = k;
        }
    }
    // A photo may leave most of a column of small print unreadable; what it does read still
    // counts once several days keep the count with the readable day nearest them.
    qsizetype counting = 0;
    for (qsizetype k = 0; k < firsts.size(); ++k)
        counting += day(k) > 0 && (nearest(k, -1, firsts.size()) == day(k) ||
                                   nearest(k, 1, firsts.size()) == day(k));
    if (days * 2 < firsts.size() && (counting < 3 || counting * 2 < days)) {
        if (!sparse) return doubts;
        // Too few to count by: a short word where the days stand is each read again on its own
        // ("01" read as "o" among the table's rules); a whole date or a weekday is no day.
        static const QRegularExpression weekday(QStringLiteral("^(mon|tue|wed|thu|fri|sat|sun)"),
                                                QRegularExpression::CaseInsensitiveOption);
        for (qsizetype i : firsts)
            if (const QString& text = items[i].text;
                text.size() <= 3 && !text.contains(u'/') && !isTimeLike(text) &&
                !weekday.match(text).hasMatch() && items[i].box.right() < timesBegin)
                doubts.append({i, Doubt::Day, -1});
        return doubts;
    }
    // A run read wrong between two that count on (22, then 1, 2, 3, 6, 2, then 28): days that
    // keep the count with the day above them, and days as many rows further down that keep it
    // with the day below, give every row between them its day.
    QHash<qsizetype, int> bridged;
    for (qsizetype a = 1; a < firsts.size(); ++a) {
        if (day(a) <= 0 || day(a - 1) != day(a) - 1) continue;
        for (qsizetype b = a + 2; b < firsts.size() && b - a <= 7; ++b)
            if (day(b) - day(a) == b - a && (b + 1 == firsts.size() || day(b + 1) == day(b) + 1)) {
                for (qsizetype k = a + 1; k < b; ++k)
                    bridged[k] = day(a) + int(k - a);
                break;
            }
    }
    auto doubt = [&](qsizetype k, int expected) {
        doubts.append({firsts[k], Doubt::Day, expected});
        if (expected > 0) setRight[k] = expected;
    };
    for (qsizetype k = 0; k < firsts.size(); ++k) {
        // A row that lost its day begins with a time, where the times stand.
        if (items[firsts[k]].box.left() >= timesBegin) continue;
        const int before = day(k - 1), after = day(k + 1);
        const bool between = before > 0 && after == before + 2;
        if (digitLost.contains(k)) {
            doubts.append({firsts[k], Doubt::Day, day(k)});
            continue;
        }
        if (bridged.contains(k) && day(k) != bridged[k]) {
            doubt(k, bridged[k]);
            continue;
        }
        if (day(k) > 0) {
            // A number is only overruled by two neighbours that agree; at either end of the
            // count, by the two rows next to it. A footer's or heading's line may stand inside
            // the table (it holds a time) and ends the count as the table's edge does.
            const bool last =
                nearest(k, 1, firsts.size()) < 0 && before > 1 && day(k - 2) == before - 1;
            const bool first =
                nearest(k, -1, firsts.size()) < 0 && after > 0 && day(k + 2) == after + 1;
            if ((between || last) && day(k) != before + 1)
                doubt(k, before + 1);
            else if (first && day(k) != after - 1)
                doubt(k, after - 1);
            continue;
        }
        // Unreadable: counted from the nearest readable day above, else below (three rows off at
        // most: unreadable days come in runs), or from days further off on both sides that keep
        // the count between them.
        const int above = nearest(k, -1, 3), below = nearest(k, 1, 3);
        const int further = nearest(k, -1, firsts.size());
        // Past the readable days a word is a misread day only when it could be one.
        // A last day misread as a word ("Wian 4:45 1:30 ...") holds a whole row of times.
        const bool outside = further < 0 || nearest(k, 1, firsts.size()) < 0;
        if (outside && wordOnly(items[firsts[k]].text) && !wholeRows.contains(firsts[k])) continue;
        // Above a 2, a new month's first day, whatever the month before ended on.
        int counted = above > 0 && (below < 0 || below == above) ? above
                      : below > 0 && (above < 0 || below == 1)   ? below
                                                                 : -1;
        if (counted < 0 && further > 0 && further == nearest(k, 1, firsts.size()))
            counted = further;
        doubt(k, counted);
    }
    return doubts;
}

} // namespace

QList<Doubt> dayDoubts(const QList<RecognizedItem>& items, const QList<QList<qsizetype>>& lines,
                       const QList<qsizetype>& table) {
    // The times a whole row holds: the count most of the table's rows read.
    QMap<qsizetype, int> rowsWith;
    for (qsizetype l : table)
        ++rowsWith[timesIn(items, lines[l])];
    const qsizetype whole =
        std::max_element(rowsWith.keyValueBegin(), rowsWith.keyValueEnd(), [](auto a, auto b) {
            return a.second < b.second;
        })->first;
    // Where the rows' times begin: the first time of most rows, its colon perhaps lost.
    QList<qreal> starts;
    for (qsizetype l : table)
        for (qsizetype i : lines[l])
            if (isTimeLike(items[i].text)) {
                starts << items[i].box.left();
                break;
            }
    std::sort(starts.begin(), starts.end());
    const qreal timesBegin = starts.isEmpty() ? 0 : starts[starts.size() / 2];
    // The first word of a row, or the second after a weekday's name, perhaps misread; two
    // letters only as a weekday's short name, or Thursday's and Tuesday's with the T lost ("ll"
    // is 11 misread). A short name with a digit run into it ("Sunt", "Mon1") holds the day
    // itself.
    static const QRegularExpression name(
        QStringLiteral("^([A-Za-z]{3,9}|mo|tu|we|th|fr|sa|su|hu|ue)\\.?$"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression withDay(
        QStringLiteral("^(mon|tue|wed|thu|fri|sat|sun)[\\dlIit|]{1,2}$"),
        QRegularExpression::CaseInsensitiveOption);
    QList<qsizetype> firsts, rows; // the word and its line
    for (qsizetype l = table.first(); l <= table.last(); ++l) {
        const QList<qsizetype>& line = lines[l];
        static const QRegularExpression clock(QStringLiteral("\\d[:.]\\d"));
        // A month's name first ("Jun 445") is a date whose day went unread.
        static const QRegularExpression month(QStringLiteral("^(") + MonthInText::shortEnglish +
                                                  u')',
                                              QRegularExpression::CaseInsensitiveOption);
        const QString& first = items[line[0]].text;
        // After the name, digits left of where the rows' times begin are the day ("Sat 130",
        // 13 and a mark run together); else they are the first time, and the name a misread
        // day ("Wian 445").
        const QString second = line.size() > 1 ? items[line[1]].text : QString();
        const bool weekday = line.size() > 1 && name.match(first).hasMatch() &&
                             !withDay.match(first).hasMatch() && !month.match(first).hasMatch() &&
                             !clock.match(second).hasMatch() &&
                             (!isTimeLike(second) || items[line[1]].box.center().x() < timesBegin);
        // A row whose times all went unreadable still holds its place in the count; a heading
        // between two months' tables does not.
        if (table.contains(l) || isDay(items[line[weekday ? 1 : 0]].text)) {
            firsts << line[weekday ? 1 : 0];
            rows << l;
        }
    }
    QSet<qsizetype> wholeRows; // the first words of lines that hold as many
    for (qsizetype l : table)
        if (timesIn(items, lines[l]) >= whole) wholeRows << lines[l][0];
    QList<Doubt> doubts = countedDoubts(items, firsts, wholeRows, timesBegin, true);
    // A second column of days beside the first (a Ramadan day, then the date, perhaps after the
    // weekday) counts as well, once most of it reads as days.
    QList<qsizetype> seconds;
    for (qsizetype k = 0; k < firsts.size(); ++k) {
        const QList<qsizetype>& line = lines[rows[k]];
        qsizetype at = line.indexOf(firsts[k]) + 1;
        while (at < line.size() && name.match(items[line[at]].text).hasMatch())
            ++at;
        const bool beside = at < line.size() && items[line[at]].box.right() < timesBegin;
        seconds << (beside ? line[at] : -1);
    }
    const auto secondDays = std::count_if(seconds.begin(), seconds.end(), [&](qsizetype i) {
        return i >= 0 && isDay(items[i].text);
    });
    if (secondDays * 4 >= seconds.size() * 3 && !seconds.contains(-1))
        doubts << countedDoubts(items, seconds, wholeRows, timesBegin, false);
    return doubts;
}

} // namespace tarvanel::OcrLines::words
