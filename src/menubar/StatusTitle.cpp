// The status item's title: what comes next, how soon, and in which colour.
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "lock/AppDelegate.h"

namespace tarvanel {

namespace {

// "47m", "1h 5m", "0m": whole seconds to the prayer's lock time.
QString countdownText(qint64 s) {
    if (s < 3600) return QString::number((s % 3600) / 60) + QLatin1Char('m');
    return QString::number(s / 3600) + QStringLiteral("h ") + QString::number((s % 3600) / 60) +
           QLatin1Char('m');
}

} // namespace

void AppDelegate::setStatusTitle(const QString& title, TitleColor color) {
    titleInputs_.reset();
    if (titleSet_ && title == lastTitle_ && color == lastTitleColor_) return;
    titleSet_ = true;
    lastTitle_ = title;
    lastTitleColor_ = color;
    platform_.setStatusTitle(title, color);
}

void AppDelegate::updateStatusTitle(const DayTimes& times, const QDateTime& now) {
    if (lockEnd_) {
        setStatusTitle(QStringLiteral("🕌 ") + lockPrayer_, TitleColor::Label);
        return;
    }
    const bool combining = combiningPrayers(now);
    const qint64 nowMs = now.toMSecsSinceEpoch();
    for (int i = 0; i < prayerNames().size(); ++i) {
        const QString& name = prayerNames()[i];
        if (combining && isCombinedAway(name)) continue;
        const std::optional<QDateTime> at = times.value(name);
        if (!at || !at->isValid()) continue;
        const qint64 t = at->toMSecsSinceEpoch();
        if (t <= nowMs) continue;

        const double m = double(t - nowMs - qint64(config_.leadMinutes() * 60000.0)) / 60000.0;
        const TitleColor color = m <= 5    ? TitleColor::Red
                                 : m <= 20 ? TitleColor::Orange
                                           : TitleColor::Label;
        const bool iftar = name == QLatin1String("Maghrib") && ramadanToday(now) &&
                           config_.isOn(config_.ramadanMode, true);
        const qint64 s = (t - nowMs) / 1000;
        // The text changes once a minute; most ticks only confirm it.
        const TitleInputs inputs{i, s / 60, color, combining, iftar, scheduleGeneration_};
        if (titleInputs_ && *titleInputs_ == inputs) return;
        const QString emblem = iftar ? QStringLiteral("🌙") : QStringLiteral("🕌");
        const QString label = iftar ? QStringLiteral("Iftar") : lockName(name, combining);
        setStatusTitle(
            emblem + QLatin1Char(' ') + label + QStringLiteral(" in ") + countdownText(s), color);
        titleInputs_ = inputs;
        return;
    }
    if (const std::optional<QDateTime> fajr = tomorrowsFajr(now))
        setStatusTitle(QStringLiteral("🕌 Fajr at ") +
                           formatLocal(*fajr, QStringLiteral("h:mm AP")),
                       TitleColor::Label);
}

// Tomorrow's Fajr lock time depends only on the local date of "now + 24 h" and the settings in
// force, so it is computed once per such date and schedule instead of on every tick from the
// day's last prayer to midnight.
std::optional<QDateTime> AppDelegate::tomorrowsFajr(const QDateTime& now) {
    const QDateTime ahead = now.addSecs(86400);
    if (!tomorrow_ || tomorrow_->generation != scheduleGeneration_ || ahead < tomorrow_->from ||
        ahead >= tomorrow_->until) {
        const QDate date = localDate(ahead);
        const EffectiveTimes eff = effectiveTimes(ahead, activeConfig());
        QDateTime from = startOfLocalDay(date), until = startOfLocalDay(date.addDays(1));
        if (!from.isValid() || !until.isValid()) from = until = ahead; // never reused
        tomorrow_ = TomorrowCache{from, until, scheduleGeneration_, eff.final.value(u"Fajr")};
    }
    return tomorrow_->fajr;
}

} // namespace tarvanel
