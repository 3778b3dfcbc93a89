#pragma once
// Reminder banners: the nudge before each lock and the day's one-off banners (Fajr ending at
// sunrise, Tarawih in Ramadan, the Sunday report). Each one-off is keyed in `firedNudges`, so
// it shows at most once a day, and only on time (a late one is recorded, not shown).
#include "engine/Config.h"
#include "engine/DayTimes.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QSet>
#include <QString>

namespace tarvanel {

class Reminders {
public:
    explicit Reminders(Platform& platform) : platform_(platform) {}

    void showNudge(const QString& prayer, int minutesLeft, double offset);
    // The banner and its sound; nothing when there is no screen.
    void showBanner(const QString& message, const std::optional<Quote>& quote, BannerStyle style);

    // The one-off banners, run only while nothing locks.
    void checkDay(const Config& cfg, const QDateTime& now, const QString& dayKey,
                  const DayTimes& waqt, const DayTimes& times, bool ramadan,
                  const QSet<QString>& completedLocks, QSet<QString>& firedNudges);

private:
    void checkFajrEnd(const QDateTime& now, const QString& dayKey, const DayTimes& waqt,
                      const QSet<QString>& completedLocks, QSet<QString>& firedNudges);
    void checkTarawih(const Config& cfg, const QDateTime& now, const QString& dayKey,
                      const DayTimes& times, QSet<QString>& firedNudges);

    Platform& platform_;
};

} // namespace tarvanel
