// Settling a doubtful cell from its two readings and what the rows around it say.
#include "timetable/OcrLines.h"
#include "timetable/OcrWords.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace tarvanel::OcrLines {

using namespace words;

namespace {

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

// A 6 where a time cannot hold one (12:62, 65:15, 26:12) is a 0 whose gap blurred shut; empty
// when that makes no time either.
QString zeroForSix(const QString& reading) {
    static const QRegularExpression shape(QStringLiteral("^(\\d{1,2})([:.])(\\d)(\\d.*)$"));
    const QRegularExpressionMatch m = shape.match(reading);
    if (!m.hasMatch()) return {};
    QString hours = m.captured(1), tens = m.captured(3);
    if (tens == u"6") tens = QStringLiteral("0");
    if (hours.size() == 2 && hours[0] == u'6') hours[0] = u'0';
    if (hours.size() == 2 && hours[1] == u'6' && hours.toInt() > 23) hours[1] = u'0';
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
// cells run together, not a mark. The one digit that may follow is an "a" glued to the minutes
// and read as the 0 or 8 it looks like ("5.150" for 5.15a), after a time that kept its colon.
QString leadingTime(const QString& reading) {
    static const QRegularExpression re(QStringLiteral(
        "^([01]?\\d|2[0-3])(?:([:.]?)([0-5]\\d)(?!\\d).{1,3}|([:.])([0-5]\\d)[08])$"));
    const QRegularExpressionMatch m = re.match(reading);
    if (!m.hasMatch()) return {};
    if (m.hasCaptured(5)) return m.captured(1) + m.captured(4) + m.captured(5);
    return m.captured(1) + (m.captured(2).isEmpty() ? QStringLiteral(":") : m.captured(2)) +
           m.captured(3);
}

// ".15" read again from "SS": the second reading kept the minutes but dropped an hour printed
// in a shape it did not allow (a serif 5 taken for an S); the first reading, its look-alike
// letters read as digits, still holds that hour before the minutes. Empty when it does not.
QString withHourOf(const QString& first, const QString& second) {
    static const QRegularExpression minutesOnly(
        QStringLiteral("^[:.]([0-5]\\d)(\\s*[AaPp]\\.?[Mm]\\.?|[AaPp]\\.?)?$"));
    const QRegularExpressionMatch m = minutesOnly.match(second);
    if (!m.hasMatch()) return {};
    QString digits;
    for (QChar c : asDigits(first))
        if (c.isDigit()) digits += c;
    // The digits before the minutes, or the first alone when the separator was read as one
    // ("S$33pm", its $ the colon).
    for (const QString& hour :
         {digits.endsWith(m.captured(1)) && digits.size() > 2 ? digits.left(digits.size() - 2)
                                                              : QString(),
          digits.left(1)})
        if (!hour.isEmpty() && isTime(hour + second)) return hour + second;
    return {};
}
// The parts of a clean time: hour, separator, minutes and what follows them ("pm").
struct Clock {
    int hour = -1, minute = 0;
    QString separator, after;
    QString text(int h, int m) const {
        return QString::number(h) + separator + QString::asprintf("%02d", m) + after;
    }
};
Clock clockOf(const QString& time) {
    static const QRegularExpression re(QStringLiteral("^(\\d{1,2})([:.])(\\d\\d)(.*)$"));
    const QRegularExpressionMatch m = re.match(time);
    if (!isTime(time) || !m.hasMatch()) return {};
    return {m.captured(1).toInt(), m.captured(3).toInt(), m.captured(2), m.captured(4)};
}

// An unreadable cell of a time column, from the clean times nearest above and below it there:
// minutes still read ("#15") under the hour of the nearest, as long as that keeps it within
// half an hour of it; else the time both agree on, or the one between two a few minutes apart
// (a begins time moves a minute a day). Empty when they say nothing.
QString fromColumn(const Doubt& doubt, const QStringList& readings) {
    const Clock near = clockOf(doubt.above.isEmpty() ? doubt.below : doubt.above);
    if (near.hour < 0) return {};
    static const QRegularExpression minutes(QStringLiteral("^\\D{0,2}([0-5]\\d)$"));
    for (const QString& reading : readings) {
        const QRegularExpressionMatch m = minutes.match(reading);
        if (!m.hasMatch()) continue;
        const int minute = m.captured(1).toInt();
        QString best;
        int bestDistance = 31;
        for (int hour : {near.hour, near.hour - 1, near.hour + 1}) {
            const QString time = near.text(hour, minute);
            const int distance = dialDistance(dialMinutes(time), near.hour * 60 + near.minute);
            if (hour >= 1 && isTime(time) && distance < bestDistance) {
                best = time;
                bestDistance = distance;
            }
        }
        if (!best.isEmpty()) return best;
    }
    // The colon read as another character ("7230", "4z43"), when that gives a time near it.
    static const QRegularExpression colonAsCharacter(
        QStringLiteral("^([01]?\\d|2[0-3])[^\\s:.]([0-5]\\d)$"));
    for (const QString& reading : readings) {
        const QRegularExpressionMatch m = colonAsCharacter.match(reading);
        if (!m.hasMatch()) continue;
        const QString time = near.text(m.captured(1).toInt(), m.captured(2).toInt());
        if (dialDistance(dialMinutes(time), near.hour * 60 + near.minute) <= 30) return time;
    }
    // One digit left: the nearest time, if it ends in it ("a0" under 9:30).
    static const QRegularExpression digit(QStringLiteral("^\\D{0,2}(\\d)$"));
    const QString nearest = doubt.above.isEmpty() ? doubt.below : doubt.above;
    for (const QString& reading : readings)
        if (const auto m = digit.match(reading); m.hasMatch() && nearest.endsWith(m.captured(1)))
            return nearest;
    // Between the times above and below it, as far from each as it stands in rows, when the
    // column moves no more than two minutes a day between them.
    const Clock above = clockOf(doubt.above), below = clockOf(doubt.below);
    if (above.hour < 0 || below.hour < 0) return {};
    const int a = above.hour * 60 + above.minute, b = below.hour * 60 + below.minute;
    const int rows = doubt.aboveRows + doubt.belowRows;
    if (std::abs(a - b) > 2 * rows) return {};
    const int at = (a * doubt.belowRows + b * doubt.aboveRows) / rows;
    return above.text(at / 60, at % 60);
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
        if (const QString time = fromColumn(doubt, readings); !time.isEmpty()) return time;
        return first;
    }
    if (doubt.expected < 0 || !isTime(first)) return second;
    const QString kept = dialDistance(dialMinutes(second), doubt.expected) <
                                 dialDistance(dialMinutes(first), doubt.expected)
                             ? second
                             : first;
    return misread(kept, doubt.agreed) ? doubt.agreed : kept;
}

namespace words {

// A change of clock moves the rows after it too, and a jamaat time changes for days on end,
// not for one: one day apart from the rows around it by its hour alone, by one digit's
// look-alike, or by one more digit after its own (a dot or a mark beside it, 13:00 for 1.30),
// is a misreading.
bool lookalike(QChar a, QChar b) {
    static const QList<QSet<QChar>> pairs{{u'0', u'6'}, {u'0', u'8'}, {u'3', u'8'}, {u'5', u'6'},
                                          {u'6', u'8'}, {u'1', u'7'}, {u'3', u'5'}, {u'8', u'9'},
                                          {u'0', u'9'}, {u'5', u'8'}, {u'1', u'4'}};
    return pairs.contains(QSet<QChar>{a, b});
}

bool misread(QString time, QString agreed) {
    const Clock read = clockOf(time), around = clockOf(agreed);
    if (read.hour < 0 || around.hour < 0) return false;
    static const QRegularExpression notDigit(QStringLiteral("\\D"));
    const QString digits = QString(time).remove(notDigit);
    const QString agreedDigits = QString(agreed).remove(notDigit);
    if (digits.size() == agreedDigits.size() + 1 && digits.startsWith(agreedDigits)) return true;
    if (read.minute == around.minute)
        return dialDistance(dialMinutes(time), dialMinutes(agreed)) >= 60;
    if (read.hour != around.hour || time.size() != agreed.size()) return false;
    // A dotted sheet is read with colons here and there.
    time.replace(u'.', u':');
    agreed.replace(u'.', u':');
    qsizetype differ = -1;
    for (qsizetype c = 0; c < time.size(); ++c)
        if (time[c] != agreed[c]) {
            if (differ >= 0) return false;
            differ = c;
        }
    return differ >= 0 && lookalike(time[differ], agreed[differ]);
}

QString withHourNear(const QString& time, const QString& near, int low, int high) {
    static const QRegularExpression separator(QStringLiteral("[:.]"));
    const qsizetype colon = time.indexOf(separator);
    const int hour = near.left(near.indexOf(separator)).toInt();
    for (int h : {hour, hour + 1, hour - 1}) {
        const QString candidate = QString::number(h) + time.mid(colon);
        const int c = dialMinutes(candidate);
        if (h >= 0 && isTime(candidate) && candidate != time &&
            dialDistance(low, c) + dialDistance(c, high) == dialDistance(low, high))
            return candidate;
    }
    return {};
}

} // namespace words

} // namespace tarvanel::OcrLines
