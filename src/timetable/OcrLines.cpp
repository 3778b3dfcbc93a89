#include "timetable/OcrLines.h"
#include "timetable/OcrWords.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace tarvanel::OcrLines {

namespace {

// Item indices per line, top to bottom, each line left to right.
QList<QList<qsizetype>> lineIndices(const QList<RecognizedItem>& items) {
    if (items.isEmpty()) return {};
    QList<qreal> heights;
    for (const RecognizedItem& item : items)
        heights << item.box.height();
    std::sort(heights.begin(), heights.end());
    const qreal typical = heights[heights.size() / 2];

    QList<qsizetype> order(items.size());
    std::iota(order.begin(), order.end(), 0);
    auto middle = [&](qsizetype i) { return items[i].box.center().y(); };
    std::stable_sort(order.begin(), order.end(),
                     [&](qsizetype a, qsizetype b) { return middle(a) > middle(b); });

    QList<QList<qsizetype>> lines;
    for (qsizetype i : order) {
        if (!lines.isEmpty() && std::abs(middle(i) - middle(lines.last().first())) < 0.6 * typical)
            lines.last() << i;
        else
            lines.append(QList<qsizetype>{i});
    }
    for (QList<qsizetype>& line : lines)
        std::stable_sort(line.begin(), line.end(), [&](qsizetype a, qsizetype b) {
            return items[a].box.left() < items[b].box.left();
        });
    return lines;
}

// The lines that read as rows of times.
QList<qsizetype> tableLines(const QList<RecognizedItem>& items,
                            const QList<QList<qsizetype>>& lines) {
    QList<qsizetype> table;
    for (qsizetype l = 0; l < lines.size(); ++l)
        if (std::count_if(lines[l].begin(), lines[l].end(),
                          [&](qsizetype i) { return words::isTimeLike(items[i].text); }) >= 3)
            table << l;
    return table;
}

bool isMeridiem(const QString& word) {
    static const QRegularExpression re(QStringLiteral("^[AaPp]\\.?[Mm]\\.?$"));
    return re.match(word).hasMatch();
}

} // namespace

bool isTime(const QString& word) {
    static const QRegularExpression re(
        QStringLiteral("^([01]?\\d|2[0-3])[:.][0-5]\\d( ?[AaPp]\\.?[Mm]\\.?)?$"));
    return re.match(word).hasMatch();
}

namespace words {
const QRegularExpression& colonless() {
    static const QRegularExpression re(QStringLiteral("^([01]?\\d|2[0-3])[0-5]\\d$"));
    return re;
}
// A time, or one whose colon went missing.
bool isTimeLike(const QString& word) {
    return isTime(word) || colonless().match(word).hasMatch();
}
// S for 5, O for 0, l for 1 and the like: what a blurred digit is read as without a list of
// the characters allowed.
QString asDigits(QString reading) {
    static const QHash<QChar, QChar> digitFor{
        {u'S', u'5'}, {u's', u'5'}, {u'$', u'5'}, {u'O', u'0'}, {u'o', u'0'}, {u'D', u'0'},
        {u'l', u'1'}, {u'I', u'1'}, {u'|', u'1'}, {u'B', u'8'}, {u'Z', u'2'}, {u'z', u'2'},
        {u'G', u'6'}, {u'b', u'6'}, {u'q', u'9'}, {u'g', u'9'}, {u'?', u'7'}};
    for (QChar& c : reading)
        c = digitFor.value(c, c);
    return reading;
}
} // namespace words

bool isDay(const QString& word) {
    static const QRegularExpression re(QStringLiteral("^([1-9]|[12]\\d|3[01])$"));
    return re.match(word).hasMatch();
}

QStringList group(const QList<RecognizedItem>& items) {
    QList<TextMark> marks;
    return group(items, marks);
}

QStringList group(const QList<RecognizedItem>& items, QList<TextMark>& marks) {
    static const QString gap = QStringLiteral("   ");
    QStringList out;
    for (const QList<qsizetype>& line : lineIndices(items)) {
        QString text;
        for (qsizetype i : line) {
            if (!text.isEmpty()) text += gap;
            if (items[i].doubtful)
                marks.append({int(out.size()), int(text.size()), int(items[i].text.size())});
            text += items[i].text;
        }
        out << text;
    }
    return out;
}

namespace words {

// Minutes on a twelve-hour dial: a sheet may print 13:05 or 1:05 for the same time.
int dialMinutes(const QString& time) {
    qsizetype colon = time.indexOf(u':');
    if (colon < 0) colon = time.indexOf(u'.');
    return (time.left(colon).toInt() % 12) * 60 + time.mid(colon + 1, 2).toInt();
}

int dialDistance(int a, int b) {
    const int d = std::abs(a - b) % 720;
    return std::min(d, 720 - d);
}
} // namespace words

namespace {

int midway(int a, int b) {
    int d = (b - a + 720) % 720;
    if (d > 360) d -= 720;
    return (a + d / 2 + 720) % 720;
}

} // namespace

QString timeCharacters(const QList<RecognizedItem>& items) {
    QString allowed = QStringLiteral("0123456789:.");
    for (const RecognizedItem& item : items)
        if (isTime(item.text) || isMeridiem(item.text))
            for (QChar c : item.text)
                if (c.isLetter() && !allowed.contains(c)) allowed += c;
    return allowed;
}

QList<Doubt> doubtful(const QList<RecognizedItem>& items) {
    using namespace words;
    const QList<QList<qsizetype>> lines = lineIndices(items);
    const QList<qsizetype> table = tableLines(items, lines);
    if (table.size() < 2) return {};

    // The time of another line that stands in the same column as item i: under its middle, or
    // anywhere under it for a word that may be two cells run together.
    auto timeBelowOrAbove = [&](qsizetype line, qsizetype i, bool anywhere = false) {
        const QRectF box = items[i].box;
        const qreal x = box.center().x();
        for (qsizetype j : lines[line]) {
            const QRectF other = items[j].box;
            if (isTimeLike(items[j].text) &&
                (anywhere ? other.left() < box.right() && box.left() < other.right()
                          : other.left() <= x && x <= other.right()))
                return j;
        }
        return qsizetype(-1);
    };

    // The clean time the nearest table rows above and below line l hold under item i, when
    // they read the same.
    auto agreedAround = [&](qsizetype l, qsizetype i) {
        auto nearest = [&](int step) {
            for (qsizetype t = l + step; t >= table.first() && t <= table.last(); t += step) {
                if (!table.contains(t)) continue;
                const qsizetype j = timeBelowOrAbove(t, i);
                return j >= 0 && isTime(items[j].text) ? items[j].text : QString();
            }
            return QString();
        };
        const QString above = nearest(-1);
        return !above.isEmpty() && above == nearest(1) ? above : QString();
    };

    QList<Doubt> doubts;
    // A word stands in a column of times when times of several other rows stand above or
    // below it. Only lines between the table's first and last row count: the heading above
    // the time columns is no time.
    // A word with digits right of a row's first time is taken for a time too: a column the
    // print made hard to read may hold no clean time in any row. Letters that look like
    // digits count as digits there ("SS" for a blurred 5.15).
    const int evidence = std::max<int>(2, int(table.size() / 3));
    static const QRegularExpression digit(QStringLiteral("\\d"));
    for (qsizetype l = table.first(); l <= table.last(); ++l) {
        // Where the row's times begin: its first time, or first word of three or four digits
        // (a time with a mark glued to it, "442.6"), which no day or date column holds.
        static const QRegularExpression digitCell(QStringLiteral("^\\d[^/]*$"));
        qreal firstTime = 2;
        for (qsizetype i : lines[l]) {
            const QString& text = items[i].text;
            const auto count = text.count(digit);
            if (isTimeLike(text) || (count >= 3 && count <= 4 && digitCell.match(text).hasMatch()))
                firstTime = std::min(firstTime, items[i].box.left());
        }
        for (qsizetype i : lines[l]) {
            if (isTime(items[i].text) || isMeridiem(items[i].text)) continue;
            const QString digits = asDigits(items[i].text);
            const bool amongTimes =
                table.contains(l) && items[i].box.left() >= firstTime &&
                (items[i].text.contains(digit) || digits.count(digit) * 2 >= digits.size());
            const auto rows = std::count_if(table.begin(), table.end(), [&](qsizetype t) {
                return t != l && timeBelowOrAbove(t, i, true) >= 0;
            });
            if (amongTimes || rows >= evidence)
                doubts.append({i, Doubt::Time, -1, agreedAround(l, i)});
        }
    }

    // A printed time moves by a minute or two from day to day. One that stands apart from the
    // agreeing days above and below it is likely misread (1 for 7, 3 for 8).
    for (qsizetype k = 1; k + 1 < table.size(); ++k) {
        for (qsizetype i : lines[table[k]]) {
            if (!isTime(items[i].text)) continue;
            const qsizetype above = timeBelowOrAbove(table[k - 1], i);
            const qsizetype below = timeBelowOrAbove(table[k + 1], i);
            if (above < 0 || below < 0) continue;
            const int a = dialMinutes(items[above].text), b = dialMinutes(items[below].text);
            const int x = dialMinutes(items[i].text);
            if (dialDistance(a, b) <= 4 && std::min(dialDistance(x, a), dialDistance(x, b)) >= 4)
                doubts.append({i, Doubt::Time, midway(a, b),
                               a == b ? items[above].text
                                      : withHourNear(items[i].text, items[above].text, a, b)});
        }
    }

    // Day numbers down the first column: one that is no number, or breaks the count between
    // its neighbours, is read again; the count tells what it should be.
    // The first word of a row, or the second after a weekday's name.
    static const QRegularExpression name(QStringLiteral("^[A-Za-z]{2,9}\\.?$"));
    QList<qsizetype> firsts;
    for (qsizetype l = table.first(); l <= table.last(); ++l) {
        const QList<qsizetype>& line = lines[l];
        static const QRegularExpression clock(QStringLiteral("\\d[:.]\\d"));
        // A month's name first ("Jun 445") is a date whose day went unread.
        static const QRegularExpression month(
            QStringLiteral("^(jan|feb|mar|apr|may|jun|jul|aug|sep|oct|nov|dec)"),
            QRegularExpression::CaseInsensitiveOption);
        const QString& first = items[line[0]].text;
        const bool weekday = line.size() > 1 && name.match(first).hasMatch() &&
                             !month.match(first).hasMatch() &&
                             !clock.match(items[line[1]].text).hasMatch();
        // A row whose times all went unreadable still holds its place in the count; a heading
        // between two months' tables does not.
        if (table.contains(l) || isDay(items[line[weekday ? 1 : 0]].text))
            firsts << line[weekday ? 1 : 0];
    }
    const auto days = std::count_if(firsts.begin(), firsts.end(),
                                    [&](qsizetype i) { return isDay(items[i].text); });
    auto read = [&](qsizetype k) {
        return k >= 0 && k < firsts.size() && isDay(items[firsts[k]].text)
                   ? items[firsts[k]].text.toInt()
                   : -1;
    };
    QHash<qsizetype, int> tensLost; // days read without their tens digit, and the day
    auto day = [&](qsizetype k) { return tensLost.value(k, read(k)); };
    // The readable day nearest row k (up to `reach` rows off) above (step -1) or below (+1),
    // as the count gives it for row k; -1 for none.
    auto nearest = [&](qsizetype k, int step, qsizetype reach) {
        for (qsizetype d = 1; d <= reach; ++d)
            if (const int v = day(k + step * d); v > 0) return int(v - step * d);
        return -1;
    };
    // Serif print loses a day's tens digit to the gap before it: 13, 14, 15 read as 3, 4, 5
    // after 12. Such a run counts on from the days above it; a new month (30, then 1) does not
    // drop by ten or twenty.
    for (qsizetype k = 1, run = -1; k < firsts.size(); ++k) {
        if (read(k) < 0) continue;
        if (run >= 0 && read(k) == read(run) + (k - run)) {
            tensLost[k] = tensLost[run] + int(k - run);
            run = k;
            continue;
        }
        run = -1;
        const int counted = nearest(k, -1, 3); // as the rows above count it
        const int lost = counted - read(k);
        if (counted > 0 && (lost == 10 || lost == 20) && isDay(QString::number(counted))) {
            tensLost[k] = counted;
            run = k;
        }
    }
    // A photo may leave most of a column of small print unreadable; what it does read still
    // counts once several days keep the count with the readable day nearest them.
    qsizetype counting = 0;
    for (qsizetype k = 0; k < firsts.size(); ++k)
        counting += day(k) > 0 && (nearest(k, -1, firsts.size()) == day(k) ||
                                   nearest(k, 1, firsts.size()) == day(k));
    if (days * 2 < firsts.size() && (counting < 3 || counting * 2 < days)) return doubts;
    for (qsizetype k = 0; k < firsts.size(); ++k) {
        const int before = day(k - 1), after = day(k + 1);
        const bool between = before > 0 && after == before + 2;
        if (tensLost.contains(k)) {
            doubts.append({firsts[k], Doubt::Day, day(k)});
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
                doubts.append({firsts[k], Doubt::Day, before + 1});
            else if (first && day(k) != after - 1)
                doubts.append({firsts[k], Doubt::Day, after - 1});
            continue;
        }
        // Unreadable: counted from the nearest readable day above, else below (three rows off at
        // most: unreadable days come in runs), or from days further off on both sides that keep
        // the count between them.
        const int above = nearest(k, -1, 3), below = nearest(k, 1, 3);
        const int further = nearest(k, -1, firsts.size());
        // Past the readable days a word is a misread day only when it could be one: a footer's
        // "Jumu'ah 12:45 1:30 2:15" is no day's row, "1440" (14 run into 4:40) is.
        static const QRegularExpression word(QStringLiteral("^\\D{4,}$"));
        const bool outside = further < 0 || nearest(k, 1, firsts.size()) < 0;
        if (outside && word.match(items[firsts[k]].text).hasMatch()) continue;
        int counted = above > 0 && (below < 0 || below == above) ? above
                      : above < 0 && below > 0                   ? below
                                                                 : -1;
        if (counted < 0 && further > 0 && further == nearest(k, 1, firsts.size()))
            counted = further;
        doubts.append({firsts[k], Doubt::Day, counted});
    }
    return doubts;
}

QList<Doubt> columnDoubts(const QList<RecognizedItem>& items) {
    const QList<QList<qsizetype>> lines = lineIndices(items);
    QList<Doubt> doubts;
    for (const words::Slot& slot : words::emptySlots(items, lines, tableLines(items, lines))) {
        if (slot.item >= 0 && isTime(items[slot.item].text)) // misread: what the rows agree on
            doubts.append({slot.item, Doubt::Time, words::dialMinutes(slot.above), slot.above});
        else
            doubts.append({slot.item, Doubt::Time, -1, {}, slot.above, slot.below, slot.box});
    }
    return doubts;
}

QRectF relativeBox(int left, int top, int right, int bottom, int width, int height) {
    return relativeBox(QRectF(QPointF(left, top), QPointF(right, bottom)), QSizeF(width, height));
}

QRectF relativeBox(const QRectF& box, const QSizeF& page) {
    if (page.width() <= 0 || page.height() <= 0) return {};
    const qreal w = page.width();
    const qreal h = page.height();
    return QRectF(box.left() / w, (h - box.bottom()) / h, box.width() / w, box.height() / h);
}

} // namespace tarvanel::OcrLines
