#pragma once
// Reminder banners: the nudge before each lock and the day's one-off banners (Fajr ending at
// sunrise, Tarawih in Ramadan, the Sunday report). Each one-off is keyed in `firedNudges`, so
// it shows at most once a day, and only on time (a late one is recorded, not shown). Reminders
// only read the ledger: they hand back the keys for the controller to record.
#include "engine/Config.h"
#include "engine/DayTimes.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

namespace tarvanel {

class Reminders {
public:
    explicit Reminders(Platform& platform) : platform_(platform) {}

    void showNudge(const QString& prayer, int minutesLeft, double offset);
    // The banner and its sound; nothing when there is no screen.
    void showBanner(const QString& message, const std::optional<Quote>& quote, BannerStyle style);

    // The one-off banners, run only while nothing locks. Returns the keys whose moment has
    // come (shown or too late to show), none of them in `fired`.
    QStringList checkDay(const Config& cfg, const QDateTime& now, const QString& dayKey,
                         const DayTimes& waqt, const DayTimes& times, bool ramadan,
                         const QSet<QString>& completedLocks, const QSet<QString>& fired);

private:
    void checkFajrEnd(const QDateTime& now, const QString& dayKey, const DayTimes& waqt,
                      const QSet<QString>& completedLocks, const QSet<QString>& fired,
                      QStringList& due);
    void checkTarawih(const Config& cfg, const QDateTime& now, const QString& dayKey,
                      const DayTimes& times, const QSet<QString>& fired, QStringList& due);

    Platform& platform_;
};

} // namespace tarvanel
