// The time columns of a table, learned from the rows that read cleanly: a row that read fewer
// times keeps each of its cells in the column it stands in, readable or not.
#include "timetable/OcrWords.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace tarvanel::OcrLines::words {

namespace {

qreal overlap(const QRectF& a, const QRectF& b) {
    return std::min(a.right(), b.right()) - std::max(a.left(), b.left());
}

// The words of `line` that stand in `column`: more than half of the narrower of the two
// lies across the other.
QList<qsizetype> standingIn(const QList<RecognizedItem>& items, const QList<qsizetype>& line,
                            const QRectF& column) {
    QList<qsizetype> in;
    for (qsizetype i : line)
        if (overlap(items[i].box, column) > 0.5 * std::min(items[i].box.width(), column.width()))
            in << i;
    return in;
}

// A time as one of its column: a dotted sheet is read with colons here and there.
QString withColon(QString time) {
    return time.replace(u'.', u':');
}

bool roundTime(const QString& time) {
    return time.right(2).toInt() % 5 == 0;
}

// A jamaat column keeps to round minutes (4:00, 1:15, 7:30), most of its times: one that is not
// round and becomes so with a look-alike digit of its minutes (1:38, 4:06) is that time misread,
// when the column holds it elsewhere; the one it holds most often. Empty when it is not.
QString roundAgain(const QString& time, const QStringList& column) {
    const auto rounded = std::count_if(column.begin(), column.end(), roundTime);
    if (roundTime(time) || column.size() < 5 || rounded * 2 <= column.size()) return {};
    auto count = [&](const QString& value) {
        return std::count_if(column.begin(), column.end(), [&](const QString& other) {
            return withColon(other) == withColon(value);
        });
    };
    QString best;
    for (qsizetype at = time.size() - 2; at < time.size(); ++at)
        for (QChar digit = u'0'; digit <= u'9'; digit = QChar(digit.unicode() + 1)) {
            QString candidate = time;
            candidate[at] = digit;
            if (!lookalike(time[at], digit) || !isTime(candidate) || !roundTime(candidate) ||
                count(candidate) == 0)
                continue;
            if (best.isEmpty() || count(candidate) > count(best)) best = candidate;
        }
    return best;
}

// A time with the minutes most of the column holds but an hour three or more away from theirs
// (9:15 or 4:15 where most days hold 1:15): no prayer moves that far within a sheet, so its
// hour is misread. Empty when it is not, or when as many days hold a time near it.
QString hourOfColumn(const QString& time, const QStringList& column) {
    QMap<int, int> held; // per dial minute
    for (const QString& other : column)
        ++held[dialMinutes(other)];
    const auto most = std::max_element(held.keyValueBegin(), held.keyValueEnd(),
                                       [](auto a, auto b) { return a.second < b.second; });
    if (most == held.keyValueEnd() || most->second * 2 < column.size()) return {};
    const int x = dialMinutes(time), common = most->first;
    if (x % 60 != common % 60 || dialDistance(x, common) < 180) return {};
    const auto near = std::count_if(column.begin(), column.end(), [&](const QString& other) {
        return dialDistance(dialMinutes(other), x) <= 60;
    });
    if (most->second <= near) return {};
    const QString hour = QString::number(common / 60 == 0 ? 12 : common / 60);
    return withHourNear(time, hour + QStringLiteral(":00"), common, common);
}

} // namespace

QList<Slot> emptySlots(const QList<RecognizedItem>& items, const QList<QList<qsizetype>>& lines,
                       const QList<qsizetype>& table) {
    // A cell of a time column, read or not: a time, or one with its digits read as letters
    // ("O5:37", "OS.37", "O55"). A column of small print may read so on most days, and it is a
    // column all the same.
    auto cellLike = [&](qsizetype i) {
        return isTimeLike(items[i].text) || isTimeLike(asDigits(items[i].text));
    };
    QMap<qsizetype, QList<qsizetype>> times; // per table line, left to right
    QMap<qsizetype, int> rowsWith;           // rows per count of times
    for (qsizetype l : table) {
        for (qsizetype i : lines[l])
            if (cellLike(i)) times[l] << i;
        ++rowsWith[times[l].size()];
    }
    // The most times that a tenth of the rows read: a misreading loses times far more often
    // than it adds them, and on a poor photo most rows may have lost one or two.
    const int share = std::max<int>(2, int(table.size() / 10));
    qsizetype columns = 0;
    for (auto it = rowsWith.begin(); it != rowsWith.end(); ++it)
        if (it.value() >= share) columns = it.key();
    QList<qsizetype> clean;
    for (qsizetype l : table)
        if (times[l].size() == columns) clean << l;
    if (columns < 3 || clean.size() < 2) return {};

    // The nearest clean row tells where the columns stand: a tilted photo moves them a little
    // from row to row.
    auto nearestClean = [&](qsizetype l) {
        return *std::min_element(clean.begin(), clean.end(),
                                 [&](auto a, auto b) { return std::abs(a - l) < std::abs(b - l); });
    };
    // A row read too poorly to count among the table's (a photo's edge blurs its last row): a
    // line in or next to the table, with a time, and a word with digits in every column.
    static const QRegularExpression digit(QStringLiteral("\\d"));
    auto poorRow = [&](qsizetype l) {
        if (l < 0 || l >= lines.size() || table.contains(l)) return false;
        for (qsizetype i : lines[l])
            if (cellLike(i)) times[l] << i;
        const qsizetype model = nearestClean(l);
        for (qsizetype k = 0; k < columns; ++k) {
            const QList<qsizetype> in = standingIn(items, lines[l], items[times[model][k]].box);
            if (std::none_of(in.begin(), in.end(),
                             [&](qsizetype i) { return asDigits(items[i].text).contains(digit); }))
                return false;
        }
        return !times[l].isEmpty();
    };
    QList<qsizetype> rows;
    for (qsizetype l = table.first() - 1; l <= table.last() + 1; ++l)
        if (table.contains(l) || poorRow(l)) rows << l;

    // The clean time in `column` of line t, if it has one.
    auto cleanTime = [&](qsizetype t, const QRectF& column) {
        for (qsizetype i : standingIn(items, times[t], column))
            if (isTime(items[i].text)) return items[i].text;
        return QString();
    };
    // The clean times of `column` within `reach` rows above and below row `at`, nearest first,
    // with how many rows away each stands.
    struct Near {
        QString time;
        int rows;
    };
    auto cleanAround = [&](qsizetype at, const QRectF& column, int reach) {
        std::pair<QList<Near>, QList<Near>> near;
        for (int t = 1; t <= reach; ++t) {
            if (at - t >= 0)
                if (const QString time = cleanTime(rows[at - t], column); !time.isEmpty())
                    near.first.append({time, t});
            if (at + t < rows.size())
                if (const QString time = cleanTime(rows[at + t], column); !time.isEmpty())
                    near.second.append({time, t});
        }
        return near;
    };
    QList<Slot> found;
    for (qsizetype l : rows) {
        if (timesIn(items, lines[l]) >= columns || times[l].isEmpty()) continue;
        const qsizetype model = nearestClean(l);
        for (qsizetype k = 0; k < columns; ++k) {
            const QRectF column = items[times[model][k]].box;
            const QList<qsizetype> in = standingIn(items, lines[l], column);
            if (std::any_of(in.begin(), in.end(),
                            [&](qsizetype i) { return isTimeLike(items[i].text); }))
                continue;
            Slot slot;
            // A word reaching into the next column is cells run together, a case of its own.
            auto alsoIn = [&](qsizetype i, qsizetype c) {
                return c >= 0 && c < columns &&
                       overlap(items[i].box, items[times[model][c]].box) > 0;
            };
            // A cell read as two words stands for itself in the widest of them.
            if (!in.isEmpty() && std::none_of(in.begin(), in.end(), [&](qsizetype i) {
                    return alsoIn(i, k - 1) || alsoIn(i, k + 1);
                })) {
                slot.item = *std::max_element(in.begin(), in.end(), [&](auto a, auto b) {
                    return items[a].box.width() < items[b].box.width();
                });
            } else if (std::none_of(lines[l].begin(), lines[l].end(), [&](qsizetype i) {
                           return overlap(items[i].box, column) > 0;
                       })) {
                // Nothing read there: the cell stands at the height of the row's nearest time.
                const qsizetype beside =
                    *std::min_element(times[l].begin(), times[l].end(), [&](auto a, auto b) {
                        return std::abs(items[a].box.center().x() - column.center().x()) <
                               std::abs(items[b].box.center().x() - column.center().x());
                    });
                const QRectF row = items[beside].box;
                slot.box = QRectF(column.left(), row.top(), column.width(), row.height());
            } else {
                continue;
            }
            const auto [above, below] = cleanAround(rows.indexOf(l), column, 3);
            if (!above.isEmpty()) {
                slot.above = above.first().time;
                slot.aboveRows = above.first().rows;
            }
            if (!below.isEmpty()) {
                slot.below = below.first().time;
                slot.belowRows = below.first().rows;
            }
            found << slot;
        }
    }
    // A clean time that the column's times around it say was misread: a time read both above
    // and below it within a few rows, more often than it is, that it differs from as a misreading
    // does. A jamaat time holds for days, so a run of misread cells still has it on both sides.
    constexpr int reach = 4;
    auto same = [](const QString& a, const QString& b) { return withColon(a) == withColon(b); };
    // A day whose other times move half an hour or more from the day next to it, in two columns
    // or more, is a change of timetable (the clocks going back at the month's end), not a
    // misread hour.
    auto timetableChanges = [&](qsizetype at, qsizetype next, const QRectF& column) {
        const QList<qsizetype>& model = times[nearestClean(rows[at])];
        return 2 <= std::count_if(model.begin(), model.end(), [&](qsizetype i) {
                   const QRectF other = items[i].box;
                   const QString here = cleanTime(rows[at], other),
                                 there = cleanTime(rows[next], other);
                   return overlap(other, column) <= 0 && !here.isEmpty() && !there.isEmpty() &&
                          dialDistance(dialMinutes(here), dialMinutes(there)) >= 30;
               });
    };
    // At a run's edge (a table's or a month's first or last rows) the two days beyond a cell
    // tell its hour, "6:25" above 5:27 and 5:29 being 5:25; not when a day next to it agrees
    // with it: a change of clock moves every day after it.
    auto hourFromBeyond = [&](qsizetype at, const QRectF& column, const QString& time) {
        const int x = dialMinutes(time);
        for (qsizetype t : {at - 1, at + 1})
            if (t >= 0 && t < rows.size())
                if (const QString next = cleanTime(rows[t], column);
                    !next.isEmpty() && dialDistance(dialMinutes(next), x) <= 4)
                    return QString();
        for (int step : {1, -1}) {
            const qsizetype b = at + 2 * step;
            if (b < 0 || b >= rows.size()) continue;
            const QString near = cleanTime(rows[at + step], column);
            const QString far = cleanTime(rows[b], column);
            if (near.isEmpty() || far.isEmpty() || timetableChanges(at, at + step, column))
                continue;
            const int n = dialMinutes(near), f = dialMinutes(far);
            const int daily = (n - f + 1080) % 720 - 360; // towards this cell
            const int expected = (n + daily + 720) % 720;
            if (std::abs(daily) > 4 || std::abs(dialDistance(x, expected) - 60) > 3) continue;
            const QString fixed =
                withHourNear(time, near, (expected + 717) % 720, (expected + 3) % 720);
            if (!fixed.isEmpty()) return fixed;
        }
        return QString();
    };
    // In a column that moves a minute or two a day (Maghrib at sunset), a time far from where
    // the clean times around it put it, with minutes that fit there ("5:34pm" between 8:33pm
    // and 8:35pm), has its hour misread: a day never moves half an hour while those around it
    // keep pace. The nearest two within three rows either side that keep pace say where it
    // stands; a misread time beside it does not.
    auto hourBetween = [&](qsizetype at, const QRectF& column, const QString& time) {
        const auto [above, below] = cleanAround(at, column, 3);
        // A day near it is a column that holds it: the columns misplaced in rows that lean.
        const int x = dialMinutes(time);
        for (const Near& other : above + below)
            if (dialDistance(dialMinutes(other.time), x) < 30) return QString();
        for (qsizetype apart = 2; apart <= 6; ++apart)
            for (const auto& [near, aboveRows] : above)
                for (const auto& [far, belowRows] : below) {
                    const int a = dialMinutes(near), b = dialMinutes(far);
                    if (aboveRows + belowRows != apart || dialDistance(a, b) > 2 * apart) continue;
                    const int towardsBelow = (b - a + 1080) % 720 - 360;
                    const int expected = (a + int(towardsBelow * aboveRows / apart) + 720) % 720;
                    if (dialDistance(x, expected) < 30) return QString();
                    return withHourNear(time, near, (expected + 717) % 720, (expected + 3) % 720);
                }
        return QString();
    };
    // Each column's clean times, top to bottom.
    QList<QStringList> columnTimes(columns);
    for (qsizetype at = 0; at < rows.size(); ++at)
        for (qsizetype k = 0; k < columns; ++k)
            if (const QString time =
                    cleanTime(rows[at], items[times[nearestClean(rows[at])][k]].box);
                !time.isEmpty())
                columnTimes[k] << time;
    for (qsizetype at = 0; at < rows.size(); ++at) {
        const qsizetype model = nearestClean(rows[at]);
        for (qsizetype k = 0; k < columns; ++k) {
            const QRectF column = items[times[model][k]].box;
            const QString time = cleanTime(rows[at], column);
            if (time.isEmpty()) continue;
            QStringList above, below;
            const auto [nearAbove, nearBelow] = cleanAround(at, column, reach);
            for (const Near& other : nearAbove) // top to bottom
                above.prepend(other.time);
            for (const Near& other : nearBelow)
                below << other.time;
            auto count = [&](const QString& value) {
                return std::count_if(above.begin(), above.end(),
                                     [&](auto& o) { return same(o, value); }) +
                       std::count_if(below.begin(), below.end(),
                                     [&](auto& o) { return same(o, value); });
            };
            QString agreed;
            for (const QString& candidate : above)
                if (!same(candidate, time) &&
                    std::any_of(below.begin(), below.end(),
                                [&](auto& o) { return same(o, candidate); }) &&
                    (agreed.isEmpty() || count(candidate) > count(agreed)))
                    agreed = candidate;
            if (agreed.isEmpty() || count(agreed) <= count(time) + 1 || !misread(time, agreed))
                agreed = hourFromBeyond(at, column, time);
            if (agreed.isEmpty()) agreed = hourBetween(at, column, time);
            // Only where the column holds its times for days: a column that moves a minute a
            // day (Maghrib at sunset) may be round at times and hold the look-alike too.
            QSet<QString> around{withColon(time)};
            for (const QString& other : above + below)
                around << withColon(other);
            if (agreed.isEmpty() && around.size() <= 3) agreed = roundAgain(time, columnTimes[k]);
            if (agreed.isEmpty()) agreed = hourOfColumn(time, columnTimes[k]);
            if (agreed.isEmpty()) continue;
            for (qsizetype i : standingIn(items, times[rows[at]], column))
                if (items[i].text == time) found.append({i, {}, agreed, agreed});
        }
    }
    return found;
}

} // namespace tarvanel::OcrLines::words
