#include "timetable/OcrLines.h"

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

namespace {
const QRegularExpression& colonless() {
    static const QRegularExpression re(QStringLiteral("^([01]?\\d|2[0-3])[0-5]\\d$"));
    return re;
}
// A time, or one whose colon went missing.
bool isTimeLike(const QString& word) {
    return isTime(word) || colonless().match(word).hasMatch();
}
// "5:015:42" or "5:01 5:42" as the times it is made of; empty unless it is times only.
QStringList timesRunTogether(const QString& text) {
    static const QRegularExpression next(QStringLiteral("\\s*(([01]?\\d|2[0-3])[:.][0-5]\\d)"));
    QStringList times;
    for (qsizetype at = 0; !QStringView(text).mid(at).trimmed().isEmpty();) {
        const QRegularExpressionMatch m = next.match(text, at, QRegularExpression::NormalMatch,
                                                     QRegularExpression::AnchorAtOffsetMatchOption);
        if (!m.hasMatch()) return {};
        times << m.captured(1);
        at = m.capturedEnd();
    }
    return times;
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
} // namespace

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

namespace {

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
    const QList<QList<qsizetype>> lines = lineIndices(items);
    QList<qsizetype> table; // the lines that read as rows of times
    for (qsizetype l = 0; l < lines.size(); ++l)
        if (std::count_if(lines[l].begin(), lines[l].end(),
                          [&](qsizetype i) { return isTimeLike(items[i].text); }) >= 3)
            table << l;
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
                doubts.append({i, Doubt::Time, midway(a, b)});
        }
    }

    // Day numbers down the first column: one that is no number, or breaks the count between
    // its neighbours, is read again; the count tells what it should be.
    // The first word of a row, or the second after a weekday's name.
    static const QRegularExpression name(QStringLiteral("^[A-Za-z]{2,9}\\.?$"));
    QList<qsizetype> firsts;
    for (qsizetype l : table) {
        const QList<qsizetype>& line = lines[l];
        static const QRegularExpression clock(QStringLiteral("\\d[:.]\\d"));
        const bool weekday = line.size() > 1 && name.match(items[line[0]].text).hasMatch() &&
                             !clock.match(items[line[1]].text).hasMatch();
        firsts << line[weekday ? 1 : 0];
    }
    const auto days = std::count_if(firsts.begin(), firsts.end(),
                                    [&](qsizetype i) { return isDay(items[i].text); });
    if (days * 2 < firsts.size()) return doubts;
    auto day = [&](qsizetype k) {
        return k >= 0 && k < firsts.size() && isDay(items[firsts[k]].text)
                   ? items[firsts[k]].text.toInt()
                   : -1;
    };
    for (qsizetype k = 0; k < firsts.size(); ++k) {
        const int before = day(k - 1), after = day(k + 1);
        const bool between = before > 0 && after == before + 2;
        if (day(k) > 0) {
            // A number is only overruled by two neighbours that agree; at either end of the
            // table, by the two rows next to it.
            const bool last = k + 1 == firsts.size() && before > 1 && day(k - 2) == before - 1;
            const bool first = k == 0 && after > 0 && day(k + 2) == after + 1;
            if ((between || last) && day(k) != before + 1)
                doubts.append({firsts[k], Doubt::Day, before + 1});
            else if (first && day(k) != after - 1)
                doubts.append({firsts[k], Doubt::Day, after - 1});
            continue;
        }
        // Unreadable: counted from the nearest readable day above, else below (three rows off at
        // most: unreadable days come in runs).
        auto nearest = [&](int step) {
            for (int d = 1; d <= 3; ++d)
                if (const int v = day(k + step * d); v > 0) return v - step * (d - 1);
            return -1;
        };
        const int above = nearest(-1), below = nearest(1);
        const int counted = above > 0 && (below < 0 || below == above + 2) ? above + 1
                            : above < 0 && below > 1                       ? below - 1
                                                                           : -1;
        doubts.append({firsts[k], Doubt::Day, counted});
    }
    return doubts;
}

namespace {
// A 6 where a time cannot hold one (12:62, 65:15) is a 0 whose gap blurred shut; empty when
// that makes no time either.
QString zeroForSix(const QString& reading) {
    static const QRegularExpression shape(QStringLiteral("^(\\d{1,2})([:.])(\\d)(\\d.*)$"));
    const QRegularExpressionMatch m = shape.match(reading);
    if (!m.hasMatch()) return {};
    QString hours = m.captured(1), tens = m.captured(3);
    if (tens == u"6") tens = QStringLiteral("0");
    if (hours.size() == 2 && hours[0] == u'6') hours[0] = u'0';
    const QString fixed = hours + m.captured(2) + tens + m.captured(4);
    return fixed != reading && isTime(fixed) ? fixed : QString();
}
// "133015441600" as 13:30, 15:44 and 16:00; empty unless it is two or more such times.
QStringList runOfFours(const QString& reading) {
    QString digits;
    for (QChar c : reading)
        if (c.isDigit())
            digits += c;
        else if (c.isLetterOrNumber())
            return {};
    if (digits.size() < 8 || digits.size() % 4 != 0) return {};
    QStringList times;
    for (qsizetype at = 0; at < digits.size(); at += 4) {
        const QString time = digits.mid(at, 2) + u':' + digits.mid(at + 2, 2);
        if (!isTime(time)) return {};
        times << time;
    }
    return times;
}

// "4:26" from "4:26.62" or "442~": a time whose cell also holds a mark after it (an Arabic
// am/pm letter, a footnote's star) read as a few more characters. Empty unless the reading
// begins with a time, its colon perhaps lost, that no digit follows; a longer tail is more
// cells run together, not a mark.
QString leadingTime(const QString& reading) {
    static const QRegularExpression re(
        QStringLiteral("^([01]?\\d|2[0-3])([:.]?)([0-5]\\d)(?!\\d).{1,3}$"));
    const QRegularExpressionMatch m = re.match(reading);
    if (!m.hasMatch()) return {};
    return m.captured(1) + (m.captured(2).isEmpty() ? QStringLiteral(":") : m.captured(2)) +
           m.captured(3);
}

// ".15" read again from "SS": the second reading kept the minutes but dropped an hour printed
// in a shape it did not allow (a serif 5 taken for an S); the first reading, its look-alike
// letters read as digits, still holds that hour before the minutes. Empty when it does not.
QString withHourOf(const QString& first, const QString& second) {
    static const QRegularExpression minutesOnly(QStringLiteral("^[:.]([0-5]\\d)$"));
    const QRegularExpressionMatch m = minutesOnly.match(second);
    if (!m.hasMatch()) return {};
    QString digits;
    for (QChar c : asDigits(first))
        if (c.isDigit()) digits += c;
    const QString hour = digits.endsWith(m.captured(1)) && digits.size() > 2
                             ? digits.left(digits.size() - 2)
                             : digits.left(1);
    const QString time = hour + second;
    return isTime(time) ? time : QString();
}
} // namespace

QString settle(const Doubt& doubt, const QString& first, const QString& second) {
    if (doubt.kind == Doubt::Day) {
        if (doubt.expected > 0 && isDay(QString::number(doubt.expected)))
            return QString::number(doubt.expected);
        return isDay(second) ? second : first;
    }
    auto withColon = [](const QString& digits) {
        return digits.left(digits.size() - 2) + u':' + digits.right(2);
    };
    // A first reading that lacks only its colon keeps its digits: a second reading held to fewer
    // characters more often changes a digit than finds a lost one.
    if (colonless().match(first).hasMatch() && withColon(first) != second &&
        withColon(first) != QString(second).replace(u'.', u':'))
        return withColon(first);
    if (!isTime(second)) {
        // Cells a rule's remains had joined.
        const QStringList parts = timesRunTogether(second);
        if (parts.size() > 1 && !isTime(first)) return parts.join(QStringLiteral("   "));
        if (isTime(first)) return first;
        // 24-hour cells run together with their colons lost: "133015441600".
        for (const QString& reading : {second, first}) {
            const QStringList fours = runOfFours(reading);
            if (!fours.isEmpty()) return fours.join(QStringLiteral("   "));
        }
        // The readings as they stand, then with letters that look like digits read as those.
        const QStringList readings{second, first, asDigits(second), asDigits(first)};
        for (const QString& reading : readings)
            if (isTime(reading)) return reading;
        if (const QString whole = withHourOf(first, second); !whole.isEmpty()) return whole;
        for (const QString& reading : readings)
            if (const QString time = leadingTime(reading); !time.isEmpty()) return time;
        for (const QString& reading : readings)
            if (const QString fixed = zeroForSix(reading); !fixed.isEmpty()) return fixed;
        // A blurred colon is the first thing a photo loses: 448 in a column of times is 4:48.
        for (const QString& reading : readings)
            if (colonless().match(reading).hasMatch())
                return reading.left(reading.size() - 2) + u':' + reading.right(2);
        // Unreadable still: the time the rows around it agree on, when the digits that end a
        // reading (one or two) end that time's minutes.
        for (const QString& reading : readings) {
            qsizetype tail = 0;
            while (tail < reading.size() && reading[reading.size() - 1 - tail].isDigit())
                ++tail;
            if (!doubt.agreed.isEmpty() && tail > 0 &&
                doubt.agreed.endsWith(reading.right(std::min<qsizetype>(tail, 2))))
                return doubt.agreed;
        }
        return first;
    }
    if (doubt.expected < 0 || !isTime(first)) return second;
    return dialDistance(dialMinutes(second), doubt.expected) <
                   dialDistance(dialMinutes(first), doubt.expected)
               ? second
               : first;
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
