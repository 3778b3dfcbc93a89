#include "timetable/OcrLines.h"
#include "timetable/OcrWords.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
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

    // A word whose box holds a piece of a rule or a speck as well is taller than its print,
    // which stands at one end of the box; a heading is taller all through. Its middle is taken
    // at either end or at the middle, whichever is nearest to `y`.
    auto middleNear = [&](qsizetype i, qreal y) {
        const QRectF& box = items[i].box;
        qreal best = middle(i);
        if (box.height() > 1.3 * typical)
            for (const qreal end : {box.top() + typical / 2, box.bottom() - typical / 2})
                if (std::abs(end - y) < std::abs(best - y)) best = end;
        return best;
    };
    // Each word is held against the middle of the line so far: a row still a little askew
    // after levelling drifts along its length by more than the words of one place differ.
    QList<QList<qsizetype>> lines;
    qreal sum = 0;
    for (qsizetype i : order) {
        const qreal y = lines.isEmpty() ? 0 : sum / qreal(lines.last().size());
        if (!lines.isEmpty() && std::abs(middleNear(i, y) - y) < 0.6 * typical) {
            lines.last() << i;
            sum += middleNear(i, y);
        } else {
            lines.append(QList<qsizetype>{i});
            sum = middle(i);
        }
    }
    for (QList<qsizetype>& line : lines)
        std::stable_sort(line.begin(), line.end(), [&](qsizetype a, qsizetype b) {
            return items[a].box.left() < items[b].box.left();
        });
    // A row photographed askew falls across the page and may come apart into pieces side by
    // side, each level in itself: a piece that goes on where the line above it ends, at the
    // height that one reached, is the same row.
    auto goesOn = [&](const QList<qsizetype>& left, const QList<qsizetype>& right) {
        return items[left.last()].box.right() <= items[right.first()].box.left() &&
               std::abs(middleNear(left.last(), middle(right.first())) -
                        middleNear(right.first(), middle(left.last()))) < 0.6 * typical;
    };
    for (qsizetype l = 0; l + 1 < lines.size();) {
        if (goesOn(lines[l], lines[l + 1]))
            lines[l] += lines.takeAt(l + 1);
        else if (goesOn(lines[l + 1], lines[l]))
            lines[l] = lines.takeAt(l + 1) + lines[l];
        else
            ++l;
    }
    return lines;
}

// The lines that read as rows of times.
QList<qsizetype> tableLines(const QList<RecognizedItem>& items,
                            const QList<QList<qsizetype>>& lines) {
    auto times = [&](qsizetype l) { return words::timesIn(items, lines[l]); };
    QList<qsizetype> table;
    for (qsizetype l = 0; l < lines.size(); ++l)
        if (times(l) >= 3) table << l;
    if (table.isEmpty()) return table;
    // A row read so poorly that two of its times are left is one still, between the table's
    // rows or next to them; at the ends not a footer's line ("Jumu'ah 1:00 pm 1:30 pm").
    auto poor = [&](qsizetype l) {
        return times(l) == 2 && !words::wordOnly(items[lines[l][0]].text);
    };
    qsizetype top = table.first(), bottom = table.last();
    while (top > 0 && poor(top - 1))
        --top;
    while (bottom + 1 < lines.size() && poor(bottom + 1))
        ++bottom;
    QList<qsizetype> rows;
    for (qsizetype l = top; l <= bottom; ++l)
        if (table.contains(l) || times(l) == 2) rows << l;
    return rows;
}

bool isMeridiem(const QString& word) {
    static const QRegularExpression re(QStringLiteral("^[AaPp]\\.?[Mm]\\.?$"));
    return re.match(word).hasMatch();
}

} // namespace

bool isTime(const QString& word) {
    static const QRegularExpression re(
        QStringLiteral("^([01]?\\d|2[0-3])[:.][0-5]\\d( ?[AaPp]\\.?[Mm]\\.?|[AaPp]\\.?)?$"));
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
qsizetype timesIn(const QList<RecognizedItem>& items, const QList<qsizetype>& line) {
    return std::count_if(line.begin(), line.end(),
                         [&](qsizetype i) { return isTimeLike(items[i].text); });
}
bool wordOnly(const QString& text) {
    static const QRegularExpression word(QStringLiteral("^\\D{4,}$"));
    return word.match(text).hasMatch();
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
    static const QRegularExpression re(QStringLiteral("^(0?[1-9]|[12]\\d|3[01])$"));
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

    // A day number in a column of day numbers is no time: a second table's day, or the Hijri
    // day, right of the first table's times. Small print loses many of them; those it reads
    // differ row to row, where a time column whose hours went unread repeats its minutes.
    auto inDayColumn = [&](qsizetype l, qsizetype i) {
        if (!isDay(items[i].text)) return false;
        const qreal x = items[i].box.center().x();
        QSet<QString> days;
        qsizetype rows = 0;
        for (qsizetype t : table)
            for (qsizetype j : lines[t]) {
                const QRectF other = items[j].box;
                if (t != l && isDay(items[j].text) && other.left() <= x && x <= other.right()) {
                    days.insert(items[j].text);
                    ++rows;
                    break;
                }
            }
        return rows * 3 >= table.size() && days.size() * 5 >= rows * 4;
    };

    QList<Doubt> doubts;
    // A word stands in a column of times when times of several other rows stand above or
    // below it. Only lines between the table's first and last row count: the heading above
    // the time columns is no time.
    // A word with digits right of a row's first time is taken for a time too: a column the
    // print made hard to read may hold no clean time in any row. Letters that look like
    // digits count as digits there ("SS" for a blurred 5.15).
    // Rows read too poorly to count as evidence themselves do not raise the bar.
    const auto whole = std::count_if(table.begin(), table.end(),
                                     [&](qsizetype l) { return timesIn(items, lines[l]) >= 3; });
    const int evidence = std::max<int>(2, int(whole / 3));
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
        // A whole date is no time run together with another, though its day may pass for an
        // hour: a right-to-left table prints it right of the times.
        static const QRegularExpression date(QStringLiteral(
            "^(\\d{1,2}[/.-]\\d{1,2}[/.-](19|20)\\d\\d|(19|20)\\d\\d[/.-]\\d{1,2}[/.-]\\d{1,2})$"));
        for (qsizetype i : lines[l]) {
            if (isTime(items[i].text) || isMeridiem(items[i].text) ||
                date.match(items[i].text).hasMatch() || inDayColumn(l, i))
                continue;
            // Its am/pm marker aside: "iSpm" is a blurred 1:15pm.
            static const QRegularExpression marker(QStringLiteral("\\s*[AaPp]\\.?[Mm]\\.?$"));
            const QString digits = asDigits(QString(items[i].text).remove(marker));
            // A word with a digit and the marker is a time wherever it stands: the row's first
            // time may be the one misread ("4tlam").
            const bool marked = marker.match(items[i].text).hasMatch() && digits.contains(digit);
            const bool amongTimes =
                table.contains(l) && (items[i].box.left() >= firstTime || marked) &&
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

    doubts << dayDoubts(items, lines, table);
    return doubts;
}

QList<Doubt> dayDoubts(const QList<RecognizedItem>& items) {
    const QList<QList<qsizetype>> lines = lineIndices(items);
    const QList<qsizetype> table = tableLines(items, lines);
    if (table.size() < 2) return {};
    QList<Doubt> doubts = words::dayDoubts(items, lines, table);
    doubts.removeIf([](const Doubt& doubt) { return doubt.expected <= 0; });
    return doubts;
}

QList<Doubt> columnDoubts(const QList<RecognizedItem>& items) {
    const QList<QList<qsizetype>> lines = lineIndices(items);
    QList<Doubt> doubts;
    for (const words::Slot& slot : words::emptySlots(items, lines, tableLines(items, lines))) {
        if (slot.item >= 0 && isTime(items[slot.item].text)) // misread: what the rows agree on
            doubts.append({slot.item, Doubt::Time, words::dialMinutes(slot.above), slot.above});
        else {
            Doubt unread{slot.item, Doubt::Time, -1, {}, slot.above, slot.below, slot.box};
            unread.aboveRows = slot.aboveRows;
            unread.belowRows = slot.belowRows;
            doubts << unread;
        }
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
