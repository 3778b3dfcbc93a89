#pragma once
// What the five prayers ask for at one second: the reminders due now and at most one lock.
// Decides only; the controller shows, starts or puts off what it is handed.
#include "engine/Config.h"
#include "lock/TodaySchedule.h"

#include <QDateTime>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

namespace tarvanel {

struct Nudge {
    QString prayer;      // display name
    int minutesLeft = 0; // to the lock's start
    double offset = 0;
};

// A lock whose window is open now, for the first prayer (in order) that has one.
struct DueLock {
    QString key;
    QString prayer;
    QString displayName;
    std::optional<QString> partner; // the prayer combined into it
    QDateTime windowEnd;
};

struct PrayerDecision {
    QStringList fired; // reminder keys whose moment has come, shown or not
    QList<Nudge> nudges;
    std::optional<DueLock> lock;
};

// Walks the prayers of `today` in order, skipping those in `completedLocks` and, while
// `combining`, the ones prayed with a partner. A reminder is due its offset before the lock
// window opens; once its moment has come its key is handed back to be recorded (unless
// `firedNudges` holds it already), and it is shown only when less than 90 s late and the
// window has not opened yet.
PrayerDecision decidePrayers(const TodaySchedule& today, const Config& cfg, const QDateTime& now,
                             bool combining, const QSet<QString>& completedLocks,
                             const QSet<QString>& firedNudges);

} // namespace tarvanel
