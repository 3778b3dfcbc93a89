#include "lock/Reminders.h"

#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/Quotes.h"
#include "records/History.h"

namespace tarvanel {

void Reminders::showNudge(const QString& prayer, int minutesLeft, double offset) {
    QString tail;
    if (offset >= 12)
        tail = QStringLiteral(" minutes — begin wrapping up.");
    else if (offset >= 6)
        tail = QStringLiteral(" minutes. Start finishing up.");
    else if (offset >= 3)
        tail = QStringLiteral(" minutes. Save your work now.");
    else
        tail = QStringLiteral(" min — the screen is about to lock. Go make wudu.");
    const QString message = QStringLiteral("🕌  ") + prayer + QStringLiteral(" in ") +
                            QString::number(minutesLeft) + tail;
    showBanner(message, pickQuote(prayer), offset <= 2 ? BannerStyle::urgent : BannerStyle::normal);
}

void Reminders::showBanner(const QString& message, const std::optional<Quote>& quote,
                           BannerStyle style) {
    const bool normal = style == BannerStyle::normal;
    // The desktop replaces an open banner and closes this one after `seconds`.
    if (!platform_.showBanner(BannerContent{message, quote, style, normal ? 16 : 25})) return;
    platform_.playNamedSound(normal ? QStringLiteral("Glass") : QStringLiteral("Sosumi"));
}

QStringList Reminders::checkDay(const Config& cfg, const QDateTime& now, const QString& dayKey,
                                const DayTimes& waqt, const DayTimes& times, bool ramadan,
                                const QSet<QString>& completedLocks, const QSet<QString>& fired) {
    QStringList due;
    checkFajrEnd(now, dayKey, waqt, completedLocks, fired, due);
    if (ramadan) checkTarawih(cfg, now, dayKey, times, fired, due);
    if (const std::optional<WeeklyReport> report = weeklyReportDue(cfg, now, dayKey, fired)) {
        due << report->key;
        if (report->text) showBanner(*report->text, std::nullopt, BannerStyle::normal);
    }
    return due;
}

void Reminders::checkFajrEnd(const QDateTime& now, const QString& dayKey, const DayTimes& waqt,
                             const QSet<QString>& completedLocks, const QSet<QString>& fired,
                             QStringList& due) {
    const std::optional<QDateTime> sunrise = waqt.value(u"Sunrise");
    const std::optional<QDateTime> fajr = waqt.value(u"Fajr");
    if (!sunrise || !fajr || !sunrise->isValid() || !fajr->isValid()) return;
    if (now < *fajr || now >= *sunrise) return;
    if (completedLocks.contains(dayKey + QStringLiteral("-Fajr"))) return;
    for (int m : {30, 15, 7}) {
        const QDateTime at = sunrise->addSecs(-60 * m);
        if (now < at) continue;
        const QString key = dayKey + QStringLiteral("-FajrEnd-") + QString::number(m);
        if (fired.contains(key)) continue;
        due << key;
        if (at.msecsTo(now) >= 90000) continue;
        const qint64 n = now.msecsTo(*sunrise) / 60000 + 1;
        showBanner(QStringLiteral("⚠️  Fajr ends at sunrise ") +
                       formatLocal(*sunrise, QStringLiteral("h:mm AP")) +
                       QStringLiteral(" — only ") + QString::number(n) +
                       QStringLiteral(" min left!"),
                   pickQuote(QStringLiteral("Fajr")), BannerStyle::critical);
    }
}

void Reminders::checkTarawih(const Config& cfg, const QDateTime& now, const QString& dayKey,
                             const DayTimes& times, const QSet<QString>& fired, QStringList& due) {
    if (!cfg.ramadanOn()) return;
    const std::optional<QDateTime> isha = times.value(u"Isha");
    if (!isha || !isha->isValid()) return;
    // Two minutes after Isha's lock window closes.
    const QDateTime at = lockPeriod(*isha, QStringLiteral("Isha"), false, cfg).end.addSecs(120);
    if (now < at) return;
    const QString key = dayKey + QStringLiteral("-Tarawih");
    if (fired.contains(key)) return;
    due << key;
    if (at.msecsTo(now) < 90000)
        showBanner(QStringLiteral("🌙  Tarawih tonight — don't miss it."),
                   pickQuote(QStringLiteral("Tarawih")), BannerStyle::normal);
}

} // namespace tarvanel
