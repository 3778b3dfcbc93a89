#include "records/History.h"
#include "base/StateFiles.h"
#include "base/Store.h"
#include "engine/DayTimes.h"
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "timetable/Timetable.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTimeZone>
#include <algorithm>

namespace tarvanel {
namespace {
const QString historyFile = QStringLiteral("history.json");
const QString marksFile = QStringLiteral("marks.json");
constexpr int maxStreakSteps = 5000;

struct Span {
    QDateTime start, end;
};

// The union of the excused periods as sorted, disjoint spans.
QList<Span> mergedSpans(const QList<ExcusedRange>& excused, double maxDays) {
    QList<Span> spans;
    for (const ExcusedRange& r : excused) {
        const QDateTime end = r.effectiveEnd(maxDays);
        if (r.start < end) spans.append({r.start, end});
    }
    std::sort(spans.begin(), spans.end(),
              [](const Span& a, const Span& b) { return a.start < b.start; });
    QList<Span> merged;
    for (const Span& span : spans) {
        if (!merged.isEmpty() && span.start <= merged.last().end)
            merged.last().end = std::max(merged.last().end, span.end);
        else
            merged.append(span);
    }
    return merged;
}
} // namespace

namespace {
std::optional<HistoryMap> decodeHistory(const QJsonDocument& doc) {
    if (!doc.isObject()) return std::nullopt;
    HistoryMap history;
    const QJsonObject root = doc.object();
    for (auto it = root.begin(); it != root.end(); ++it) {
        // A wrong shape anywhere makes the whole file unreadable, as a strict decoder would.
        if (!it.value().isArray()) return std::nullopt;
        QStringList prayers;
        for (const QJsonValue& v : it.value().toArray()) {
            if (!v.isString()) return std::nullopt;
            prayers << v.toString();
        }
        history.insert(it.key(), prayers);
    }
    return history;
}

QJsonDocument encodeHistory(const HistoryMap& history) {
    QJsonObject root;
    for (auto it = history.begin(); it != history.end(); ++it)
        root.insert(it.key(), QJsonArray::fromStringList(it.value()));
    return QJsonDocument(root);
}

// Touches only the days that differ: a lock end changes one day of thousands.
QJsonDocument updateHistory(const HistoryMap& before, QJsonDocument doc, const HistoryMap& after) {
    QJsonObject root = doc.object();
    doc = QJsonDocument(); // root is the only owner now, so editing it copies nothing
    auto a = before.begin();
    auto b = after.begin();
    while (a != before.end() || b != after.end()) {
        if (b == after.end() || (a != before.end() && a.key() < b.key())) {
            root.remove((a++).key());
        } else if (a == before.end() || b.key() < a.key()) {
            root.insert(b.key(), QJsonArray::fromStringList(b.value()));
            ++b;
        } else {
            if (a.value() != b.value()) root.insert(b.key(), QJsonArray::fromStringList(b.value()));
            ++a;
            ++b;
        }
    }
    return QJsonDocument(root);
}

// History is compact and, unlike the other stores, does not create supportDir.
JsonStore<HistoryMap>& historyStore() {
    static JsonStore<HistoryMap> store(historyFile, decodeHistory, encodeHistory,
                                       QJsonDocument::Compact, false, updateHistory);
    return store;
}

JsonStore<Marks::Map>& marksStore() {
    static JsonStore<Marks::Map> store(marksFile, decodeNestedTextMap, encodeNestedTextMap);
    return store;
}
} // namespace

HistoryMap loadHistory() {
    return historyStore().load();
}

void saveHistory(const HistoryMap& history) {
    historyStore().save(history);
}

namespace Marks {

Map load() {
    return marksStore().load();
}

void save(const Map& marks) {
    marksStore().save(marks);
}

} // namespace Marks

void recordInHistory(const QStringList& prayers, const QString& day,
                     const std::optional<QString>& status) {
    HistoryMap history = loadHistory();
    Marks::Map marks = Marks::load();
    for (const QString& p : prayers) {
        QStringList& list = history[day];
        if (!list.contains(p)) list << p;
        if (status) marks[day][p] = *status;
    }
    saveHistory(history);
    if (status) Marks::save(marks);
}

int streakDays(const QDateTime& now, double maxDays) {
    return streakDays(now, maxDays, loadHistory(), Excused::load());
}

int streakDays(const QDateTime& now, double maxDays, const HistoryMap& history,
               const QList<ExcusedRange>& excused) {
    // Walks local calendar days, so a 23-hour day is neither skipped nor counted twice.
    QDate day = localDate(now);
    if (history.value(dayKey(day)).isEmpty()) day = day.addDays(-1);
    // The walk goes back in time, so one index moving down finds the span that may touch a day.
    const QList<Span> spans = mergedSpans(excused, maxDays);
    qsizetype span = spans.size() - 1;
    int count = 0;
    for (int step = 0; step < maxStreakSteps && day.isValid(); ++step, day = day.addDays(-1)) {
        const auto it = history.constFind(dayKey(day));
        if (it != history.constEnd() && !it->isEmpty()) {
            ++count;
            continue;
        }
        const QDateTime dayStart = startOfLocalDay(day);
        const QDateTime dayEnd = dayStart.addSecs(86400);
        while (span >= 0 && spans[span].start >= dayEnd)
            --span;
        if (span < 0 || spans[span].end <= dayStart) break;
    }
    return count;
}

namespace {
// The prayer's first letter in the week's grid, in the user's language.
struct Initial {
    const char* prayer;
    struct {
        const char* source;
        const char* comment;
    } letter;
};
constexpr Initial kInitials[] = {
    {"Fajr", QT_TRANSLATE_NOOP3("History", "F", "first letter of Fajr, in the week's grid")},
    {"Dhuhr", QT_TRANSLATE_NOOP3("History", "D", "first letter of Dhuhr, in the week's grid")},
    {"Asr", QT_TRANSLATE_NOOP3("History", "A", "first letter of Asr, in the week's grid")},
    {"Maghrib", QT_TRANSLATE_NOOP3("History", "M", "first letter of Maghrib, in the week's grid")},
    {"Isha", QT_TRANSLATE_NOOP3("History", "I", "first letter of Isha, in the week's grid")},
};

QString prayerInitial(const QString& prayer) {
    for (const Initial& i : kInitials)
        if (prayer == QLatin1String(i.prayer))
            return QCoreApplication::translate("History", i.letter.source, i.letter.comment);
    return prayer.left(1);
}
} // namespace

QString gridMark(const QString& prayer, const QString& day, const HistoryMap& history,
                 const Marks::Map& marks, bool excused) {
    QString mark;
    if (marks.value(day).value(prayer) == QLatin1String("qada"))
        //: In the week's grid: a prayer made up later (qada), one letter.
        mark = QCoreApplication::translate("History", "q");
    else if (history.value(day).contains(prayer))
        mark = QStringLiteral("\u2713");
    else if (excused)
        mark = QStringLiteral("\u2013");
    else
        mark = QStringLiteral("\u00B7");
    return prayerInitial(prayer) + mark;
}

QString historyCSV(const Config& cfg, const QDateTime& now) {
    const HistoryMap history = loadHistory();
    const Marks::Map marks = Marks::load();
    const QList<ExcusedRange> excused = Excused::load();
    const double maxDays = cfg.excusedDays();

    struct Row {
        QString day;
        int order;
        QString line;
    };
    QList<Row> rows;
    const QStringList& names = prayerNames();
    auto orderOf = [&](const QString& prayer) {
        const qsizetype i = names.indexOf(prayer);
        return i < 0 ? 9 : int(i);
    };

    for (auto it = history.begin(); it != history.end(); ++it) {
        const QMap<QString, QString> dayMarks = marks.value(it.key());
        for (const QString& prayer : it.value()) {
            const QString status = dayMarks.value(prayer, QStringLiteral("locked"));
            rows.append({it.key(), orderOf(prayer), it.key() + u',' + prayer + u',' + status});
        }
    }

    if (!excused.isEmpty()) {
        // Membership is a binary search over the spans, and the walk can jump over the long
        // stretches that no period comes near.
        const QList<Span> merged = mergedSpans(excused, maxDays);
        QDateTime earliest = excused.first().start;
        for (const ExcusedRange& r : excused)
            earliest = std::min(earliest, r.start);
        auto inside = [&](const QDateTime& t) {
            auto it =
                std::upper_bound(merged.cbegin(), merged.cend(), t,
                                 [](const QDateTime& v, const Span& s) { return v < s.start; });
            return it != merged.cbegin() && t < std::prev(it)->end;
        };

        // Nothing was recorded before 1970; a hand-edited start of year 1 must not walk
        // seven hundred thousand days.
        earliest = std::max(earliest, QDateTime::fromSecsSinceEpoch(0, QTimeZone::utc()));
        qsizetype next = 0; // first span that may still reach the day being looked at
        QDate date = localDate(earliest);
        while (date.isValid() && next < merged.size()) {
            const QDateTime dayStart = startOfLocalDay(date);
            if (!dayStart.isValid() || dayStart > now) break;
            // A day's lock times lie within a day of the day itself.
            while (next < merged.size() && merged[next].end <= dayStart.addSecs(-86400))
                ++next;
            if (next == merged.size()) break;
            if (merged[next].start >= dayStart.addSecs(2 * 86400)) {
                date = std::max(date.addDays(1), localDate(merged[next].start).addDays(-1));
                continue;
            }
            const QString key = dayKey(date);
            const QStringList kept = history.value(key);
            const DayTimes times = Timetable::scheduledTimes(dayStart, cfg).final;
            for (int i = 0; i < names.size(); ++i) {
                const auto at = times.value(names[i]);
                if (!at || *at > now || kept.contains(names[i])) continue;
                if (inside(*at))
                    rows.append({key, i, key + u',' + names[i] + QStringLiteral(",excused")});
            }
            date = date.addDays(1);
        }
    }

    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        if (a.day != b.day) return a.day < b.day;
        return a.order < b.order;
    });
    QString text = QStringLiteral("date,prayer,status\n");
    for (const Row& r : rows)
        text += r.line + u'\n';
    return text;
}

std::optional<WeeklyReport> weeklyReportDue(const Config& cfg, const QDateTime& now,
                                            const QString& dayKeyText, const QSet<QString>& fired) {
    if (!cfg.weeklyReportOn()) return std::nullopt;
    if (localWeekday(now) != 1) return std::nullopt;
    const auto reportTime = parseFixedTime(QStringLiteral("21:00"), now);
    if (!reportTime) return std::nullopt;
    const QString key = dayKeyText + QStringLiteral("-weekly");
    if (now < *reportTime || fired.contains(key)) return std::nullopt;
    if (reportTime->msecsTo(now) >= 900 * 1000) return WeeklyReport{key, std::nullopt};

    const HistoryMap history = loadHistory();
    qsizetype kept = 0;
    for (int i = 0; i < 7; ++i)
        kept += history.value(dayKey(now.addSecs(-86400LL * i))).size();
    const int streak = streakDays(now, cfg.excusedDays(), history, Excused::load());
    const QLocale locale;
    //: The weekly report: %1 of 35 prayers kept at the computer; %Ln days in a row kept.
    return WeeklyReport{key, QStringLiteral("\U0001F4FF  ") +
                                 QCoreApplication::translate(
                                     "History",
                                     "This week: %1/%2 prayers at the computer • streak %Ln days",
                                     nullptr, streak)
                                     .arg(locale.toString(qlonglong(kept)), locale.toString(35))};
}

} // namespace tarvanel
