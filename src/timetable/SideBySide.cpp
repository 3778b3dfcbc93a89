#include "timetable/SideBySide.h"

#include <QMap>
#include <algorithm>

namespace tarvanel::SideBySide {
namespace {

// Minutes apart on a twelve-hour dial: a sheet may print either half of the day unmarked.
int apart(const ParsedTime& a, const ParsedTime& b) {
    const int d = std::abs((a.hour % 12 - b.hour % 12) * 60 + a.minute - b.minute);
    return std::min(d, 720 - d);
}

bool halvesNear(const QList<ParsedTime>& times, qsizetype half) {
    int sum = 0, counted = 0;
    for (qsizetype k = 0; k < half; ++k) {
        const ParsedTime &a = times[k], &b = times[k + half];
        if (!a.read() || !b.read()) continue;
        if (apart(a, b) > 150) return false;
        sum += apart(a, b);
        ++counted;
    }
    return counted >= 3 && sum <= 90 * counted;
}

} // namespace

qsizetype timesPerDay(const QList<ParsedRow>& rows) {
    QMap<qsizetype, QList<const ParsedRow*>> byHalf;
    for (const ParsedRow& row : rows) {
        const qsizetype half = row.times.size() / 2;
        if (half >= 3 && row.times.size() % 2 == 0 && halvesNear(row.times, half))
            byHalf[half] << &row;
    }
    const auto most =
        std::max_element(byHalf.cbegin(), byHalf.cend(),
                         [](const auto& a, const auto& b) { return a.size() < b.size(); });
    if (most == byHalf.cend() || most->size() < 3 || 2 * most->size() < rows.size()) return 0;
    const qsizetype half = most.key();
    auto rounded = [&](qsizetype column) {
        int round = 0, read = 0;
        for (const ParsedRow* row : *most)
            if (const ParsedTime& t = row->times[column]; t.read()) {
                ++read;
                round += t.minute % 5 == 0;
            }
        return round * 10 >= read * 7;
    };
    for (qsizetype k = 0; k < half; ++k)
        if (rounded(k) != rounded(k + half)) return 0;
    return half;
}

} // namespace tarvanel::SideBySide
