// What comes next, for the user who has just set the program up or asks to resume locks: the
// next lock's name and time, and whether a prayer's lock window is open right now.
#include "base/Language.h"
#include "base/Log.h"
#include "engine/DayRules.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerNames.h"
#include "lock/AppDelegate.h"
#include "lock/Scheduler.h"
#include "menubar/ShownTime.h"
#include "records/Excused.h"

#include <QTimeZone>

namespace tarvanel {

QString AppDelegate::nextLockText() {
    const QDateTime now = currentTime();
    scheduleFor(now);
    const bool combining = combiningPrayers(now);
    const bool jumuah = today_.jumuah();
    const QString pattern = clockPattern();
    for (const PrayerSlot& slot : today_.prayerSlots()) {
        if (!slot.valid || ledger_.completedLocks().contains(slot.lockKey)) continue;
        if (combining && isCombinedAway(slot.name, jumuah)) continue;
        // The screens go dark at the window's start, the lead before the lock time.
        const QDateTime start =
            lockPeriod(QDateTime::fromMSecsSinceEpoch(slot.at, QTimeZone::utc()), slot.name, jumuah,
                       config_)
                .start;
        if (start <= now) continue;
        //: %1 is a prayer name, %2 the time the screens lock
        return tr("Next lock: %1 at %2")
            .arg(prayerLabel(lockName(slot.name, combining, jumuah)), formatLocal(start, pattern));
    }
    if (const auto fajr = today_.tomorrowsFajr(now, activeConfig()))
        //: %1 is the prayer name Fajr, %2 the time the screens lock tomorrow
        return tr("Next lock: %1 tomorrow at %2")
            .arg(prayerLabel(QStringLiteral("Fajr")),
                 formatLocal(lockPeriod(*fajr, QStringLiteral("Fajr"), false, config_).start,
                             pattern));
    return QString();
}

void AppDelegate::announceRunning() {
    const QString next = nextLockText();
    const QString text = tr("Tarvanel lives in the tray: its menu has today's times and "
                            "Settings.") +
                         (next.isEmpty() ? QString() : QStringLiteral("\n") + next);
    if (platform_.announce(tr("Tarvanel is running"), text)) return;
    logLine(lcLock,
            QStringLiteral("Tarvanel: running in the background with no tray icon (no tray "
                           "host); open Tarvanel from the applications menu for its settings") +
                (next.isEmpty() ? QString() : QStringLiteral(". ") + inEnglish([this] {
                                                  return nextLockText();
                                              })));
}

std::optional<QString> AppDelegate::lockDueNow() {
    const QDateTime now = currentTime();
    if (Excused::current(config_.excusedDays(), now)) return std::nullopt;
    scheduleFor(now);
    const PrayerDecision decision = decidePrayers(today_, config_, now, combiningPrayers(now),
                                                  ledger_.completedLocks(), ledger_.firedNudges());
    if (!decision.lock) return std::nullopt;
    return decision.lock->displayName;
}

} // namespace tarvanel
