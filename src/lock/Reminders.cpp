#include "lock/Reminders.h"

#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerNames.h"
#include "engine/Quotes.h"
#include "menubar/ShownTime.h"
#include "records/History.h"

#include <QCoreApplication>

namespace tarvanel {

void Reminders::showNudge(const QString& prayer, int minutesLeft, double offset) {
    const QString name = prayerLabel(prayer);
    QString text;
    if (offset >= 12)
        //: %1 is a prayer name; the screens lock when the minutes run out
        text = QCoreApplication::translate("Banner", "%1 in %Ln minutes — begin wrapping up.",
                                           nullptr, minutesLeft);
    else if (offset >= 6)
        //: %1 is a prayer name; the screens lock when the minutes run out
        text = QCoreApplication::translate("Banner", "%1 in %Ln minutes. Start finishing up.",
                                           nullptr, minutesLeft);
    else if (offset >= 3)
        //: %1 is a prayer name; the screens lock when the minutes run out
        text = QCoreApplication::translate("Banner", "%1 in %Ln minutes. Save your work now.",
                                           nullptr, minutesLeft);
    else
        //: %1 is a prayer name. Wudu: the ablution before prayer
        text = QCoreApplication::translate(
            "Banner", "%1 in %Ln min — the screen is about to lock. Go make wudu.", nullptr,
            minutesLeft);
    showBanner(QStringLiteral("🕌  ") + text.arg(name), pickQuote(prayer),
               offset <= 2 ? BannerStyle::urgent : BannerStyle::normal);
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
        //: %1 is the prayer name Fajr, %2 the time of sunrise
        const QString text = QCoreApplication::translate(
            "Banner", "%1 ends at sunrise %2 — only %Ln min left!", nullptr, int(n));
        showBanner(QStringLiteral("⚠️  ") + text.arg(prayerLabel(QStringLiteral("Fajr")),
                                                         formatLocal(*sunrise, clockPattern())),
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
        //: %1 is the Ramadan night prayer, Tarawih
        showBanner(QStringLiteral("🌙  ") +
                       QCoreApplication::translate("Banner", "%1 tonight — don't miss it.")
                           .arg(prayerLabel(QStringLiteral("Tarawih"))),
                   pickQuote(QStringLiteral("Tarawih")), BannerStyle::normal);
}

} // namespace tarvanel
