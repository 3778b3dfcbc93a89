#pragma once
// Kept prayers per day (history.json), the manual marks (marks.json), the streak, the menu's
// grid cells, the CSV export and the Sunday-evening report.
#include "engine/Config.h"
#include "records/Excused.h"

#include <QDateTime>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

namespace tarvanel {

// Day key → prayer names kept that day, in the order they were recorded.
using HistoryMap = QMap<QString, QStringList>;

// Missing: empty. Unreadable or of the wrong shape anywhere: moved aside, then empty.
// Read again only when the file changed.
HistoryMap loadHistory();
// Compact, atomic; does not create supportDir; a failure is logged and keeps the old file.
void saveHistory(const HistoryMap& history);

namespace Marks {
// Day key → prayer → "elsewhere" or "qada".
using Map = QMap<QString, QMap<QString, QString>>;
Map load();
void save(const Map& marks);
} // namespace Marks

// Adds each of `prayers` to `day`'s list once (a day key) and, with a `status`, marks them.
// The day ledger calls it after completing their locks.
void recordInHistory(const QStringList& prayers, const QString& day,
                     const std::optional<QString>& status);

// Consecutive days with a kept prayer up to today (or yesterday while today has none yet);
// days touched by an excused period neither count nor break the run.
int streakDays(const QDateTime& now, double maxDays);
// Same walk over data already in memory.
int streakDays(const QDateTime& now, double maxDays, const HistoryMap& history,
               const QList<ExcusedRange>& excused);

// One cell of the seven-day grid: the prayer's initial and "q", "✓", "–" or "·".
QString gridMark(const QString& prayer, const QString& day, const HistoryMap& history,
                 const Marks::Map& marks, bool excused);

// "date,prayer,status" rows of every kept prayer and every excused prayer up to `now`.
QString historyCSV(const Config& cfg, const QDateTime& now);

// The weekly report at 21:00 on Sunday, once 21:00 has passed and until `fired` holds its
// key: the day's "-weekly" key to record and, within 15 minutes of 21:00, the banner text.
struct WeeklyReport {
    QString key;
    std::optional<QString> text; // absent: too late to show
};
std::optional<WeeklyReport> weeklyReportDue(const Config& cfg, const QDateTime& now,
                                            const QString& dayKey, const QSet<QString>& fired);

} // namespace tarvanel
