#include "records/Excused.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "base/Store.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <cmath>
#include <limits>

namespace tarvanel {
namespace {
const QString fileName = QStringLiteral("excused.json");

// Internet date-time with seconds and a zone, no fraction: what the file holds.
std::optional<QDateTime> parseInstant(const QJsonValue& value) {
    if (!value.isString()) return std::nullopt;
    static const QRegularExpression form(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d(Z|[+-]\\d\\d:\\d\\d)$"));
    const QString text = value.toString();
    if (!form.match(text).hasMatch()) return std::nullopt;
    return parseIso(text);
}

// Far enough for any real setting, near enough for QDateTime arithmetic.
constexpr double maxSpanMs = 1e16;
} // namespace

QDateTime ExcusedRange::effectiveEnd(double maxDays) const {
    if (end) return *end;
    double ms = maxDays * 86400.0 * 1000.0;
    if (std::isnan(ms)) ms = 0;
    ms = std::clamp(ms, -maxSpanMs, maxSpanMs);
    return start.addMSecs(qint64(ms));
}

namespace Excused {

namespace {
std::optional<QList<ExcusedRange>> decode(const QJsonDocument& doc) {
    if (!doc.isArray()) return std::nullopt;
    QList<ExcusedRange> ranges;
    for (const QJsonValue& element : doc.array()) {
        // Any element that does not decode spoils the list, as a strict decoder would.
        if (!element.isObject()) return std::nullopt;
        const QJsonObject object = element.toObject();
        const auto start = parseInstant(object.value(QLatin1String("start")));
        if (!start) return std::nullopt;
        ExcusedRange range{*start, std::nullopt};
        const QJsonValue end = object.value(QLatin1String("end"));
        if (!end.isUndefined() && !end.isNull()) {
            range.end = parseInstant(end);
            if (!range.end) return std::nullopt;
        }
        ranges.append(range);
    }
    return ranges;
}

QJsonDocument encode(const QList<ExcusedRange>& ranges) {
    QJsonArray array;
    for (const ExcusedRange& r : ranges) {
        QJsonObject object{{QStringLiteral("start"), isoString(r.start)}};
        if (r.end) object.insert(QStringLiteral("end"), isoString(*r.end));
        array.append(object);
    }
    return QJsonDocument(array);
}

JsonStore<QList<ExcusedRange>>& store() {
    static JsonStore<QList<ExcusedRange>> s(fileName, decode, encode);
    return s;
}
} // namespace

QList<ExcusedRange> load() {
    return store().load();
}

void save(const QList<ExcusedRange>& ranges) {
    store().save(ranges);
}

namespace {
// Index of the last open range, or -1.
qsizetype lastOpen(const QList<ExcusedRange>& ranges) {
    for (qsizetype i = ranges.size() - 1; i >= 0; --i)
        if (!ranges[i].end) return i;
    return -1;
}
} // namespace

std::optional<ExcusedRange> current(double maxDays, const QDateTime& now) {
    QList<ExcusedRange> ranges = load();
    const qsizetype i = lastOpen(ranges);
    if (i < 0) return std::nullopt;
    const QDateTime limit = ranges[i].effectiveEnd(maxDays);
    if (now >= limit) {
        ranges[i].end = limit;
        save(ranges);
        return std::nullopt;
    }
    return ranges[i];
}

void begin(const QDateTime& now) {
    QList<ExcusedRange> ranges = load();
    if (lastOpen(ranges) >= 0) return;
    ranges.append({now.toUTC(), std::nullopt});
    save(ranges);
}

void finish(const QDateTime& now) {
    QList<ExcusedRange> ranges = load();
    const qsizetype i = lastOpen(ranges);
    if (i < 0) return;
    ranges[i].end = now.toUTC();
    save(ranges);
}

bool contains(const QDateTime& date, const QList<ExcusedRange>& ranges, double maxDays) {
    for (const ExcusedRange& r : ranges)
        if (r.start <= date && date < r.effectiveEnd(maxDays)) return true;
    return false;
}

bool touchesDay(const QDateTime& dayStart, const QList<ExcusedRange>& ranges, double maxDays) {
    const QDateTime dayEnd = dayStart.addSecs(86400);
    for (const ExcusedRange& r : ranges)
        if (r.start < dayEnd && r.effectiveEnd(maxDays) > dayStart) return true;
    return false;
}

} // namespace Excused

long long excusedWholeDays(const Config& cfg) {
    const double days = cfg.excusedDays();
    // No whole-day form for these; the default reads better than a nonsense number.
    if (!std::isfinite(days) || std::fabs(days) >= 9.2e18) return 15;
    return static_cast<long long>(std::trunc(days));
}

void endExcused(const QDateTime& now) {
    Excused::finish(now);
    logLine(lcRecords, QStringLiteral("Tarvanel: no longer excused"));
}

} // namespace tarvanel
