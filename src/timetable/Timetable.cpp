#include "timetable/Timetable.h"
#include "engine/LocalTime.h"
#include "records/StateFiles.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QLocale>
#include <QStringList>

namespace tarvanel {

TimetableChangedNote& TimetableChangedNote::instance() {
    static TimetableChangedNote note;
    return note;
}

namespace Timetable {
namespace {
const QString fileName = QStringLiteral("timetable.json");

// Modification time plus size: a rewrite within one time-stamp tick usually changes the size.
struct Stamp {
    QDateTime modified;
    qint64 size = 0;
    bool operator==(const Stamp&) const = default;
};

struct Cache {
    DayTable table;
    std::optional<Stamp> stamp;
};

Cache& cache() {
    static Cache c;
    return c;
}

std::optional<Stamp> currentStamp() {
    const QFileInfo info(url());
    if (!info.exists()) return std::nullopt;
    const QDateTime m = info.fileTime(QFileDevice::FileModificationTime);
    if (!m.isValid()) return std::nullopt;
    return Stamp{m.toUTC(), info.size()};
}

} // namespace

QString url() {
    return supportPath(fileName);
}

DayTable all() {
    Cache& c = cache();
    const std::optional<Stamp> stamp = currentStamp();
    if (stamp == c.stamp) return c.table;
    c.stamp = stamp;
    c.table.clear();
    if (!stamp) return c.table;
    if (const auto doc = jsonLoad(fileName))
        if (auto table = decodeNestedTextMap(*doc)) c.table = std::move(*table);
    return c.table;
}

QMap<QString, QString> day(const QDateTime& date) {
    return all().value(dayKey(date));
}

void merge(const DayTable& days) {
    DayTable table = all();
    for (auto it = days.begin(); it != days.end(); ++it)
        table.insert(it.key(), it.value());
    jsonSave(encodeNestedTextMap(table), fileName);
}

void clear() {
    QFile::remove(url());
}

std::optional<QString> summary() {
    const DayTable table = all();
    if (table.isEmpty()) return std::nullopt;
    // QMap keys are already in text order, which is date order for day keys.
    const auto first = parseDayKey(table.firstKey());
    const auto last = parseDayKey(table.lastKey());
    if (!first || !last) return std::nullopt;
    const QLocale locale;
    const QString pattern = QStringLiteral("d MMM yyyy");
    const qsizetype n = table.size();
    return QStringLiteral("%1 day%2, %3 \u2013 %4")
        .arg(n)
        .arg(n == 1 ? QString() : QStringLiteral("s"))
        .arg(locale.toString(*first, pattern), locale.toString(*last, pattern));
}

void resetCacheForTesting() {
    cache() = Cache{};
}

} // namespace Timetable
} // namespace tarvanel
