// The status menu, built afresh each time it opens from the view the controller hands over.
#include "base/StateFiles.h"
#include "engine/CalcMethods.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "menubar/StatusView.h"
#include "records/Excused.h"
#include "records/History.h"
#include "timetable/Timetable.h"

#include <cmath>

namespace tarvanel {

namespace {

const QString timePattern = QStringLiteral("h:mm AP");

QString timeText(const QDateTime& instant) {
    return formatLocal(instant, timePattern);
}

// Which start-of-time ends a prayer's window; Isha has none.
std::optional<QString> windowEnd(const QString& prayer) {
    if (prayer == QLatin1String("Fajr")) return QStringLiteral("Sunrise");
    if (prayer == QLatin1String("Dhuhr")) return QStringLiteral("Asr");
    if (prayer == QLatin1String("Asr")) return QStringLiteral("Maghrib");
    if (prayer == QLatin1String("Maghrib")) return QStringLiteral("Isha");
    return std::nullopt;
}

MenuItem gridRow(const QString& text) {
    MenuItem item = MenuItem::info(text);
    item.monospaced = true;
    return item;
}

} // namespace

QString gridLegend() {
    return QStringLiteral("✓ prayed   q qada   – excused   · not kept");
}

MenuModel buildStatusMenu(const StatusView& view, const StatusCommands& commands) {
    MenuModel menu;
    if (!view.setUp) {
        menu << MenuItem::info(QStringLiteral("Tarvanel isn't set up yet"))
             << MenuItem::command(QStringLiteral("Set Up Tarvanel…"), commands.openSettings);
        return menu;
    }

    const QDateTime& now = view.now;
    const Config& config = view.config;
    const Config& display = view.display;
    const DayTimes& times = view.times;
    const DayTimes& waqt = view.waqt;
    const double maxDays = config.excusedDays();
    const QList<ExcusedRange> excusedRanges = Excused::load();
    const bool excused = view.excused;
    const bool combining = view.combining;
    const bool ramadan = view.ramadan;
    const bool jumuah = view.jumuah;
    const std::optional<QDateTime>& paused = view.pausedUntil;
    const std::optional<QDateTime>& travelling = view.travellingUntil;
    const bool pausedNow = paused && *paused > now;
    const bool travellingNow = travelling && *travelling > now;

    // Header lines.
    menu << MenuItem::info((view.travelLocation ? QStringLiteral("✈️ ") : QString()) +
                           display.locationName + QStringLiteral(" — ") + methodSummary(display));
    menu << MenuItem::info(hijriString(now) +
                           (ramadan ? QStringLiteral("  •  🌙 Ramadan") : QString()));
    if (pausedNow)
        menu << MenuItem::info(QStringLiteral("⏸ Locks paused until ") +
                               formatLocal(*paused, QStringLiteral("dddd h:mm AP")));
    if (excused) menu << MenuItem::info(QStringLiteral("Excused · reminders and locks are off"));
    if (travellingNow)
        menu << MenuItem::info(QStringLiteral("✈️ Travelling until ") +
                               formatLocal(travelling->addSecs(-1), QStringLiteral("dddd d MMM")) +
                               (combining ? QStringLiteral(" · combining prayers") : QString()));
    if (view.waitingForCall)
        menu << MenuItem::info(QStringLiteral("📞 ") + *view.waitingForCall +
                               QStringLiteral(" locks when your call ends"));
    menu << MenuItem::separator();

    // Today's rows.
    QString next;
    for (const QString& name : prayerNames()) {
        const auto t = times.value(name);
        if (t && t->isValid() && *t > now) {
            next = name;
            break;
        }
    }
    for (const QString& name : dayRowNames()) {
        const auto t = times.value(name);
        if (!t) continue;
        QString text = name == QLatin1String("Dhuhr") && jumuah ? QStringLiteral("Jumu'ah") : name;
        if (combining && name == QLatin1String("Asr") && !jumuah)
            text += QStringLiteral(" (with Dhuhr)");
        if (combining && name == QLatin1String("Isha")) text += QStringLiteral(" (with Maghrib)");
        text += QLatin1Char('\t') + timeText(*t);
        if (const auto w = waqt.value(name); w && std::llabs(w->msecsTo(*t)) > 30000)
            text += QStringLiteral("  (waqt ") + timeText(*w) + QLatin1Char(')');
        if (name == next) text += QStringLiteral("  ◀ next");
        menu << MenuItem::info(text);
    }

    // Ramadan times.
    const auto fajrWaqt = waqt.value(u"Fajr");
    const auto maghribWaqt = waqt.value(u"Maghrib");
    if (ramadan && config.ramadanOn() && fajrWaqt && maghribWaqt) {
        menu << MenuItem::separator();
        menu << MenuItem::info(QStringLiteral("🌙 Suhoor ends ") + timeText(*fajrWaqt) +
                               QStringLiteral("  •  Iftar ") + timeText(*maghribWaqt));
    }
    menu << MenuItem::separator();

    // Streak and the seven-day grid.
    const HistoryMap history = loadHistory();
    const Marks::Map marks = Marks::load();
    const int streak = streakDays(now, maxDays, history, excusedRanges);
    menu << MenuItem::info(QStringLiteral("🔥 Streak: ") + QString::number(streak) +
                           QStringLiteral(" day") +
                           (streak == 1 ? QString() : QStringLiteral("s")));
    for (int k = 6; k >= 0; --k) {
        const QDateTime day = now.addSecs(-qint64(k) * 86400);
        const QString key = dayKey(day);
        const DayTimes dayTimes = k == 0 ? times : Timetable::scheduledTimes(day, display).final;
        QStringList cells;
        for (const QString& prayer : prayerNames()) {
            const auto t = dayTimes.value(prayer);
            const bool cellExcused = t && Excused::contains(*t, excusedRanges, maxDays);
            cells << gridMark(prayer, key, history, marks, cellExcused);
        }
        const QString label =
            formatLocal(day, QStringLiteral("ddd d")).leftJustified(7, u' ', true);
        menu << gridRow(label + QLatin1Char(' ') + cells.join(QLatin1Char(' ')));
    }
    menu << MenuItem::info(gridLegend());
    menu << MenuItem::separator();

    // "Mark as Prayed".
    MenuItem mark = MenuItem::info(QStringLiteral("Mark as Prayed"));
    mark.enabled = true;
    const QStringList kept = history.value(dayKey(now));
    for (int i = 0; i < prayerNames().size(); ++i) {
        const QString& prayer = prayerNames()[i];
        const auto begun = waqt.value(prayer);
        if (!begun || now < *begun) continue;
        const QString label =
            prayer == QLatin1String("Dhuhr") && jumuah ? QStringLiteral("Jumu'ah") : prayer;
        if (kept.contains(prayer)) {
            mark.submenu << MenuItem::info(QStringLiteral("✓ ") + label);
            continue;
        }
        const std::optional<QString> endName = windowEnd(prayer);
        const auto end = endName ? waqt.value(*endName) : std::nullopt;
        const bool late = end && now >= *end;
        const int tag = late ? i + 100 : i;
        mark.submenu << MenuItem::command(
            label + (late ? QStringLiteral(": Prayed Late (Qada)")
                          : QStringLiteral(": Prayed Elsewhere")),
            [markPrayed = commands.markPrayed, tag] { markPrayed(tag); }, tag);
    }
    if (mark.submenu.isEmpty())
        mark.submenu << MenuItem::info(QStringLiteral("Nothing to mark yet"));
    menu << mark;

    menu << (excused ? MenuItem::command(QStringLiteral("No Longer Excused"), commands.endExcused)
                     : MenuItem::command(QStringLiteral("I'm Excused…"), commands.startExcused));
    menu << (travellingNow
                 ? MenuItem::command(QStringLiteral("Stop Travelling"), commands.stopTravelling)
                 : MenuItem::command(QStringLiteral("I'm Travelling…"), commands.startTravelling));
    if (pausedNow) {
        menu << MenuItem::command(QStringLiteral("Resume Locks"), commands.resumeLocks);
    } else {
        MenuItem pause = MenuItem::info(QStringLiteral("Pause Locks"));
        pause.enabled = true;
        for (const auto& [text, days] : {std::pair{"For the Rest of Today", 1},
                                         std::pair{"For 3 Days", 3}, std::pair{"For a Week", 7}})
            pause.submenu << MenuItem::command(
                QString::fromUtf8(text),
                [pauseLocks = commands.pauseLocks, d = days] { pauseLocks(d); }, days);
        menu << pause;
    }
    menu << MenuItem::command(QStringLiteral("Preview Lock (10 s)"), commands.previewLock);
    MenuItem settings = MenuItem::command(QStringLiteral("Settings…"), commands.openSettings);
    // Written out in full: a tray menu shows a bare "," as a lone comma.
    settings.shortcut = QStringLiteral("Ctrl+,");
    menu << settings;
    return menu;
}

} // namespace tarvanel
