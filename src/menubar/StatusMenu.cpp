// The status menu, built afresh each time it opens from the view the controller hands over.
#include "base/StateFiles.h"
#include "engine/CalcMethods.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/PrayerNames.h"
#include "engine/Schedule.h"
#include "menubar/ShownTime.h"
#include "menubar/StatusView.h"
#include "records/Excused.h"
#include "records/History.h"
#include "timetable/Timetable.h"

#include <QCoreApplication>
#include <cmath>

namespace tarvanel {

namespace {

QString timeText(const QDateTime& instant) {
    return formatLocal(instant, clockPattern());
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
    //: Legend of the seven-day grid. Keep the marks ✓ q – · as they are: the grid shows them
    return QCoreApplication::translate("Menu", "✓ prayed   q qada   – excused   · not kept");
}

MenuModel buildStatusMenu(const StatusView& view, const StatusCommands& commands) {
    MenuModel menu;
    if (!view.setUp) {
        menu << MenuItem::info(QCoreApplication::translate("Menu", "Tarvanel isn't set up yet"))
             << MenuItem::command(QCoreApplication::translate("Menu", "Set Up Tarvanel…"),
                                  commands.openSettings);
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
    menu << MenuItem::info(
        hijriString(now) +
        (ramadan ? QStringLiteral("  •  🌙 ") + QCoreApplication::translate("Menu", "Ramadan")
                 : QString()));
    if (pausedNow) {
        //: Qt pattern of a weekday and a clock time, as in "Friday 3:15 PM"
        const QString pattern = QCoreApplication::translate("TimeFormat", "dddd h:mm AP");
        //: %1 is a weekday and a time, as in "Friday 3:15 PM"
        menu << MenuItem::info(QStringLiteral("⏸ ") +
                               QCoreApplication::translate("Menu", "Locks paused until %1")
                                   .arg(formatLocal(*paused, pattern)));
    }
    if (excused)
        menu << MenuItem::info(
            QCoreApplication::translate("Menu", "Excused · reminders and locks are off"));
    if (travellingNow) {
        //: Qt pattern of a weekday and a date, as in "Friday 3 Oct"
        const QString pattern = QCoreApplication::translate("TimeFormat", "dddd d MMM");
        const QString until = formatLocal(travelling->addSecs(-1), pattern);
        //: %1 is the last day of the journey, as in "Friday 3 Oct"
        const QString alone = QCoreApplication::translate("Menu", "Travelling until %1");
        //: %1 is the last day of the journey, as in "Friday 3 Oct"
        const QString text =
            combining
                ? QCoreApplication::translate("Menu", "Travelling until %1 · combining prayers")
                : alone;
        menu << MenuItem::info(QStringLiteral("✈️ ") + text.arg(until));
    }
    if (view.waitingForCall)
        //: %1 is a prayer name: its lock waits for the end of a call
        menu << MenuItem::info(QStringLiteral("📞 ") +
                               QCoreApplication::translate("Menu", "%1 locks when your call ends")
                                   .arg(prayerLabel(*view.waitingForCall)));
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
        QString text = prayerLabel(
            name == QLatin1String("Dhuhr") && jumuah ? QStringLiteral("Jumu'ah") : name);
        //: A prayer combined with an earlier one while travelling: "Asr (with Dhuhr)"
        const QString with = QCoreApplication::translate("Menu", "%1 (with %2)");
        if (combining && name == QLatin1String("Asr") && !jumuah)
            text = with.arg(text, prayerLabel(QStringLiteral("Dhuhr")));
        if (combining && name == QLatin1String("Isha"))
            text = with.arg(text, prayerLabel(QStringLiteral("Maghrib")));
        text += QLatin1Char('\t') + timeText(*t);
        if (const auto w = waqt.value(name); w && std::llabs(w->msecsTo(*t)) > 30000)
            text += QStringLiteral("  ") +
                    //: After a lock time that differs from the computed time: %1 is the
                    //: computed (waqt) time
                    QCoreApplication::translate("Menu", "(waqt %1)").arg(timeText(*w));
        //: Marks the row of the next prayer; the arrow points back at its time
        if (name == next)
            text += QStringLiteral("  ") + QCoreApplication::translate("Menu", "◀ next");
        menu << MenuItem::info(text);
    }

    // Ramadan times.
    const auto fajrWaqt = waqt.value(u"Fajr");
    const auto maghribWaqt = waqt.value(u"Maghrib");
    if (ramadan && config.ramadanOn() && fajrWaqt && maghribWaqt) {
        menu << MenuItem::separator();
        //: %1 is Suhoor, the meal before the fast; %2 the time it ends
        const QString suhoor = QCoreApplication::translate("Menu", "%1 ends %2")
                                   .arg(prayerLabel(QStringLiteral("Suhoor")), timeText(*fajrWaqt));
        //: %1 is Iftar, the meal that breaks the fast; %2 its time
        const QString iftar =
            QCoreApplication::translate("Menu", "%1 %2", "Iftar and its time")
                .arg(prayerLabel(QStringLiteral("Iftar")), timeText(*maghribWaqt));
        menu << MenuItem::info(QStringLiteral("🌙 ") + suhoor + QStringLiteral("  •  ") + iftar);
    }
    menu << MenuItem::separator();

    // Streak and the seven-day grid.
    const HistoryMap history = loadHistory();
    const Marks::Map marks = Marks::load();
    const int streak = streakDays(now, maxDays, history, excusedRanges);
    //: Days in a row with every prayer kept
    menu << MenuItem::info(QStringLiteral("🔥 ") + QCoreApplication::translate(
                                                      "Menu", "Streak: %Ln days", nullptr, streak));
    //: Qt pattern of a short weekday and the day of the month in the seven-day grid, as
    //: in "Fri 3"
    const QString pattern = QCoreApplication::translate("TimeFormat", "ddd d");
    QList<std::pair<QString, QString>> rows; // the day's label, its marks
    qsizetype labelWidth = 7;
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
        rows.append({formatLocal(day, pattern), cells.join(QLatin1Char(' '))});
        labelWidth = std::max(labelWidth, rows.last().first.size());
    }
    // Labels are padded to the longest, never cut: a long weekday keeps its day number.
    for (const auto& [label, marks] : rows)
        menu << gridRow(label.leftJustified(labelWidth, u' ') + QLatin1Char(' ') + marks);
    menu << MenuItem::info(gridLegend());
    menu << MenuItem::separator();

    // "Mark as Prayed".
    MenuItem mark = MenuItem::info(QCoreApplication::translate("Menu", "Mark as Prayed"));
    mark.enabled = true;
    const QStringList kept = history.value(dayKey(now));
    for (int i = 0; i < prayerNames().size(); ++i) {
        const QString& prayer = prayerNames()[i];
        const auto begun = waqt.value(prayer);
        if (!begun || now < *begun) continue;
        const QString label = prayerLabel(
            prayer == QLatin1String("Dhuhr") && jumuah ? QStringLiteral("Jumu'ah") : prayer);
        if (kept.contains(prayer)) {
            mark.submenu << MenuItem::info(QStringLiteral("✓ ") + label);
            continue;
        }
        const std::optional<QString> endName = windowEnd(prayer);
        const auto end = endName ? waqt.value(*endName) : std::nullopt;
        const bool late = end && now >= *end;
        const int tag = late ? i + 100 : i;
        //: %1 is a prayer name; qada: a prayer made up after its time
        const QString qada = QCoreApplication::translate("Menu", "%1: Prayed Late (Qada)");
        //: %1 is a prayer name, prayed at the mosque or anywhere away from the screen
        const QString elsewhere = QCoreApplication::translate("Menu", "%1: Prayed Elsewhere");
        mark.submenu << MenuItem::command(
            (late ? qada : elsewhere).arg(label),
            [markPrayed = commands.markPrayed, tag] { markPrayed(tag); }, tag);
    }
    if (mark.submenu.isEmpty())
        mark.submenu << MenuItem::info(QCoreApplication::translate("Menu", "Nothing to mark yet"));
    menu << mark;

    //: Excused: exempt from prayer for a while (menstruation, illness)
    menu << (excused
                 ? MenuItem::command(QCoreApplication::translate("Menu", "No Longer Excused"),
                                     commands.endExcused)
                 : MenuItem::command(
                       //: Excused: exempt from prayer for a while (menstruation, illness)
                       QCoreApplication::translate("Menu", "I'm Excused…"), commands.startExcused));
    menu << (travellingNow
                 ? MenuItem::command(QCoreApplication::translate("Menu", "Stop Travelling"),
                                     commands.stopTravelling)
                 : MenuItem::command(QCoreApplication::translate("Menu", "I'm Travelling…"),
                                     commands.startTravelling));
    if (pausedNow) {
        menu << MenuItem::command(QCoreApplication::translate("Menu", "Resume Locks"),
                                  commands.resumeLocks);
    } else {
        //: "Locks" is a noun: the screen locks at prayer times
        MenuItem pause = MenuItem::info(QCoreApplication::translate("Menu", "Pause Locks"));
        pause.enabled = true;
        for (const auto& [text, days] :
             {std::pair{QT_TRANSLATE_NOOP("Menu", "For the Rest of Today"), 1},
              std::pair{QT_TRANSLATE_NOOP("Menu", "For 3 Days"), 3},
              std::pair{QT_TRANSLATE_NOOP("Menu", "For a Week"), 7}})
            pause.submenu << MenuItem::command(
                QCoreApplication::translate("Menu", text),
                [pauseLocks = commands.pauseLocks, d = days] { pauseLocks(d); }, days);
        menu << pause;
    }
    //: Shows the lock screen for ten seconds; "Lock" is a noun
    menu << MenuItem::command(QCoreApplication::translate("Menu", "Preview Lock (10 s)"),
                              commands.previewLock);
    MenuItem settings =
        MenuItem::command(QCoreApplication::translate("Menu", "Settings…"), commands.openSettings);
    // Written out in full: a tray menu shows a bare "," as a lone comma.
    settings.shortcut = QStringLiteral("Ctrl+,");
    menu << settings;
    return menu;
}

} // namespace tarvanel
