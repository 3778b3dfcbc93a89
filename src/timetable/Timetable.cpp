#include "timetable/Timetable.h"
#include "base/StateFiles.h"
#include "base/Store.h"
#include "engine/LocalTime.h"

#include <QCoreApplication>
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

JsonStore<DayTable>& store() {
    static JsonStore<DayTable> s(fileName, decodeNestedTextMap, encodeNestedTextMap);
    return s;
}

} // namespace

QString url() {
    return supportPath(fileName);
}

DayTable all() {
    return store().load();
}

QMap<QString, QString> day(const QDateTime& date) {
    return all().value(dayKey(date));
}

void merge(const DayTable& days) {
    DayTable table = all();
    for (auto it = days.begin(); it != days.end(); ++it)
        table.insert(it.key(), it.value());
    store().save(table);
}

void clear() {
    store().remove();
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
    //: The imported timetable: %Ln days from %1 to %2 ("30 days, 1 Mar 2025 – 30 Mar 2025").
    return QCoreApplication::translate("Timetable", "%Ln days, %1 – %2", nullptr, int(table.size()))
        .arg(locale.toString(*first, pattern), locale.toString(*last, pattern));
}

void resetCacheForTesting() {
    store().forget();
}

EffectiveTimes scheduledTimes(const QDateTime& date, const Config& cfg) {
    return effectiveTimes(date, cfg, day(date));
}

} // namespace Timetable

} // namespace tarvanel
