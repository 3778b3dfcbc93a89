// The status item's title: what comes next, how soon, and in which colour.
#include "engine/DayRules.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "menubar/StatusView.h"

namespace tarvanel {

namespace {

// "47m", "1h 5m", "0m": whole seconds to the prayer's lock time.
QString countdownText(qint64 s) {
    if (s < 3600) return QString::number((s % 3600) / 60) + QLatin1Char('m');
    return QString::number(s / 3600) + QStringLiteral("h ") + QString::number((s % 3600) / 60) +
           QLatin1Char('m');
}

} // namespace

std::optional<Title> statusTitle(const TitleView& view) {
    if (view.lockPrayer) return Title{QStringLiteral("🕌 ") + *view.lockPrayer};
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
        const QString label =
            iftar ? QStringLiteral("Iftar") : lockName(name, view.combining, view.jumuah);
        return Title{emblem + QLatin1Char(' ') + label + QStringLiteral(" in ") +
                         countdownText((t - nowMs) / 1000),
                     color};
    }
    if (const std::optional<QDateTime> fajr = view.tomorrowsFajr())
        return Title{QStringLiteral("🕌 Fajr at ") +
                     formatLocal(*fajr, QStringLiteral("h:mm AP"))};
    return std::nullopt;
}

} // namespace tarvanel
