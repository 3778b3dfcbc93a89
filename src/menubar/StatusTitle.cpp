// The status item's title: what comes next, how soon, and in which colour.
#include "engine/DayRules.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerNames.h"
#include "menubar/ShownTime.h"
#include "menubar/StatusView.h"

#include <QCoreApplication>
#include <QLocale>

namespace tarvanel {

namespace {

// "47m", "1h 5m", "0m": whole seconds to the prayer's lock time.
QString countdownText(qint64 s) {
    const QLocale locale;
    const QString minutes = locale.toString((s % 3600) / 60);
    //: Short countdown in the tray title: %1 minutes, as in "47m"
    if (s < 3600) return QCoreApplication::translate("Title", "%1m").arg(minutes);
    //: Short countdown in the tray title: %1 hours and %2 minutes, as in "1h 5m"
    return QCoreApplication::translate("Title", "%1h %2m").arg(locale.toString(s / 3600), minutes);
}

// A running lock's name: a prayer's, or one of the two that lock for a look only.
QString shownLockName(const QString& name) {
    //: Tray title while the lock started by "Preview Lock" in the menu shows
    if (name == QLatin1String("Preview")) return QCoreApplication::translate("Title", "Preview");
    //: Tray title while the lock started by the command line's --test-lock shows
    if (name == QLatin1String("Test")) return QCoreApplication::translate("Title", "Test");
    return prayerLabel(name);
}

} // namespace

std::optional<Title> statusTitle(const TitleView& view) {
    if (view.lockPrayer) return Title{QStringLiteral("🕌 ") + shownLockName(*view.lockPrayer)};
    const qint64 nowMs = view.now.toMSecsSinceEpoch();
    for (const QString& name : prayerNames()) {
        if (view.combining && isCombinedAway(name, view.jumuah)) continue;
        const std::optional<QDateTime> at = view.times.value(name);
        if (!at || !at->isValid()) continue;
        const qint64 t = at->toMSecsSinceEpoch();
        if (t <= nowMs) continue;

        // Orange, then red, as the screens going dark comes near: minutes to the lock's start.
        const qint64 start = lockPeriodMs(t, name, view.jumuah, view.config).start;
        const double m = double(start - nowMs) / 60000.0;
        const TitleColor color = m <= 5    ? TitleColor::Red
                                 : m <= 20 ? TitleColor::Orange
                                           : TitleColor::Label;
        const bool iftar = view.iftar && name == QLatin1String("Maghrib");
        const QString emblem = iftar ? QStringLiteral("🌙") : QStringLiteral("🕌");
        const QString label = prayerLabel(iftar ? QStringLiteral("Iftar")
                                                : lockName(name, view.combining, view.jumuah));
        //: Tray title: %1 is a prayer name, %2 a short countdown such as "47m" or "1h 5m"
        const QString soon = QCoreApplication::translate("Title", "%1 in %2");
        return Title{emblem + QLatin1Char(' ') + soon.arg(label, countdownText((t - nowMs) / 1000)),
                     color};
    }
    if (const std::optional<QDateTime> fajr = view.tomorrowsFajr())
        //: Tray title: %1 is the prayer name Fajr, %2 its time tomorrow
        return Title{QStringLiteral("🕌 ") + QCoreApplication::translate("Title", "%1 at %2")
                                                   .arg(prayerLabel(QStringLiteral("Fajr")),
                                                        formatLocal(*fajr, clockPattern()))};
    return std::nullopt;
}

} // namespace tarvanel
