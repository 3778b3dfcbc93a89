// Reminders before each lock, the day's one-off banners and the "Did you pray?" question.
#include "engine/LocalTime.h"
#include "engine/Quotes.h"
#include "lock/AppDelegate.h"

namespace tarvanel {

void AppDelegate::showNudge(const QString& prayer, int minutesLeft, double offset) {
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

void AppDelegate::showBanner(const QString& message, const std::optional<Quote>& quote,
                             BannerStyle style) {
    const bool normal = style == BannerStyle::normal;
    // The desktop replaces an open banner and closes this one after `seconds`.
    if (!platform_.showBanner(BannerContent{message, quote, style, normal ? 16 : 25})) return;
    platform_.playNamedSound(normal ? QStringLiteral("Glass") : QStringLiteral("Sosumi"));
}

void AppDelegate::checkFajrEndWarning(const QDateTime& now, const QString& dayKey) {
    const std::optional<QDateTime> sunrise = cachedWaqt_.value(u"Sunrise");
    const std::optional<QDateTime> fajr = cachedWaqt_.value(u"Fajr");
    if (!sunrise || !fajr || !sunrise->isValid() || !fajr->isValid()) return;
    if (now < *fajr || now >= *sunrise) return;
    if (completedLocks_.contains(dayKey + QStringLiteral("-Fajr"))) return;
    for (int m : {30, 15, 7}) {
        const QDateTime at = sunrise->addSecs(-60 * m);
        if (now < at) continue;
        const QString key = dayKey + QStringLiteral("-FajrEnd-") + QString::number(m);
        if (firedNudges_.contains(key)) continue;
        firedNudges_.insert(key);
        if (at.msecsTo(now) >= 90000) continue;
        const qint64 n = now.msecsTo(*sunrise) / 60000 + 1;
        showBanner(QStringLiteral("⚠️  Fajr ends at sunrise ") +
                       formatLocal(*sunrise, QStringLiteral("h:mm AP")) +
                       QStringLiteral(" — only ") + QString::number(n) +
                       QStringLiteral(" min left!"),
                   pickQuote(QStringLiteral("Fajr")), BannerStyle::critical);
    }
}

void AppDelegate::checkTarawihNudge(const QDateTime& now, const QString& dayKey,
                                    const DayTimes& times) {
    if (!config_.isOn(config_.ramadanMode, true) || !ramadanToday(now)) return;
    const std::optional<QDateTime> isha = times.value(u"Isha");
    if (!isha || !isha->isValid()) return;
    const QDateTime at =
        isha->addMSecs(qint64((-config_.leadMinutes() + config_.lockMinutes) * 60000.0) + 120000);
    if (now < at) return;
    const QString key = dayKey + QStringLiteral("-Tarawih");
    if (firedNudges_.contains(key)) return;
    firedNudges_.insert(key);
    if (at.msecsTo(now) < 90000)
        showBanner(QStringLiteral("🌙  Tarawih tonight — don't miss it."),
                   pickQuote(QStringLiteral("Tarawih")), BannerStyle::normal);
}

void AppDelegate::askStrict() {
    if (!strict_) return;
    const StrictPending pending = *strict_;
    std::optional<bool> yes;
    if (askDidPray) yes = askDidPray(pending.displayName);
    if (!yes) {
        const AlertAnswer answer = platform_.showAlert(AlertRequest{
            QStringLiteral("Did you pray ") + pending.displayName + QStringLiteral("?"),
            QStringLiteral("“Not yet” locks the screen again for 5 minutes."),
            {QStringLiteral("Yes, I Prayed"), QStringLiteral("Not Yet")},
            {},
            false});
        yes = answer.response == 1000;
    }
    strict_.reset();
    if (*yes) {
        recordKept(pending.key, pending.partner);
        return;
    }
    completedLocksKeyPending_ = pending.key;
    combinedPending_ = pending.partner;
    const QString prayer = pending.key.mid(pending.key.lastIndexOf(QLatin1Char('-')) + 1);
    startLock(prayer, pending.displayName, currentTime().addSecs(300));
}

} // namespace tarvanel
