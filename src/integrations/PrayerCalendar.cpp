#include "integrations/PrayerCalendar.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "engine/LockPeriod.h"
#include "engine/PrayerNames.h"
#include "engine/Schedule.h"
#include "timetable/Timetable.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace tarvanel::PrayerCalendar {
namespace {

constexpr qint64 kDay = 86400;

} // namespace

bool grantAccess() {
    const QString root = rootPath();
    if (!QDir().mkpath(root)) {
        logLine(lcCalendar, QStringLiteral("Tarvanel: cannot create the calendar folder ") + root);
        return false;
    }
    if (!authorized()) {
        logLine(lcCalendar, QStringLiteral("Tarvanel: cannot write the calendar folder ") + root);
        return false;
    }
    if (!vdir::listCalendars(root).isEmpty()) return true;
    // Something to choose from: a calendar of our own that vdirsyncer can pair with a server.
    const QString folder = root + QStringLiteral("/local/prayer");
    if (!QDir().mkpath(folder) ||
        //: The name of the calendar Tarvanel creates, as calendar programs show it.
        !writeFileAtomically(
            folder + QStringLiteral("/displayname"),
            QCoreApplication::translate("PrayerCalendar", "Prayer times").toUtf8()))
        logLine(lcCalendar, QStringLiteral("Tarvanel: cannot create the calendar ") + folder);
    return true;
}

QString rootPath() {
    QString data = qEnvironmentVariable("XDG_DATA_HOME");
    if (data.isEmpty() || !QDir::isAbsolutePath(data))
        data = homeDir() + QStringLiteral("/.local/share");
    return data + QStringLiteral("/calendars");
}

bool authorized() {
    const QFileInfo root(rootPath());
    return root.isDir() && root.isWritable();
}

QList<Calendar> writableCalendars() {
    if (!authorized()) return {};
    QList<Calendar> result;
    for (const Calendar& c : vdir::listCalendars(rootPath()))
        if (c.writable) result << c;
    std::sort(result.begin(), result.end(), [](const Calendar& a, const Calendar& b) {
        if (const int bySource = QString::compare(a.sourceTitle, b.sourceTitle))
            return bySource < 0;
        return QString::compare(a.title, b.title) < 0;
    });
    return result;
}

QList<BusyEvent> plannedEvents(const Config& cfg, const QDateTime& now) {
    QList<BusyEvent> events;
    const QDateTime start = startOfLocalDay(now);
    if (!start.isValid()) return events;
    for (int i = 0; i < 7; ++i) {
        // One hour into the day keeps a day that starts at 01:00 after a clock change whole.
        const EffectiveTimes day = Timetable::scheduledTimes(start.addSecs(i * kDay + 3600), cfg);
        for (const QString& name : prayerNames()) {
            const auto lockTime = day.final.value(name);
            if (!lockTime) continue;
            const bool jumuah = day.jumuah && name == QLatin1String("Dhuhr");
            // The event is the lock itself: same start, same bounded length.
            const LockPeriod window = lockPeriod(*lockTime, name, day.jumuah, cfg);
            if (!window.start.isValid()) continue;
            BusyEvent e;
            // Shown in calendars only: events are found again by their tag, not their title.
            //: A calendar event's title: %1 is a prayer's name ("Fajr (prayer)").
            e.title = QCoreApplication::translate("PrayerCalendar", "%1 (prayer)")
                          .arg(prayerLabel(jumuah ? QStringLiteral("Jumu'ah") : name));
            e.start = window.start;
            e.end = window.end;
            if (e.end <= now) continue; // nothing for locks already over
            events << e;
        }
    }
    return events;
}

void sync(const Config& cfg, const QDateTime& now) {
    if (!authorized()) return;
    const QDateTime start = startOfLocalDay(now);
    if (!start.isValid()) return;
    // Wider than the 7 days written, so events of earlier syncs that reach further go too.
    const QDateTime end = start.addSecs(9 * kDay);
    const QList<Calendar> calendars = vdir::listCalendars(rootPath());
    const bool writing = cfg.calendarSyncOn() && cfg.calendarID;
    const auto chosen = std::find_if(calendars.begin(), calendars.end(), [&](const Calendar& c) {
        return writing && c.identifier == *cfg.calendarID;
    });
    // A calendar that is gone gets nothing, and nothing is reported.
    QList<BusyEvent> missing =
        chosen == calendars.end() ? QList<BusyEvent>() : plannedEvents(cfg, now);
    for (auto c = calendars.begin(); c != calendars.end(); ++c)
        vdir::removeOwnEvents(c->path, start, end, c == chosen ? &missing : nullptr);
    if (chosen == calendars.end()) return;
    const QString failure = vdir::writeEvents(chosen->path, missing);
    if (!failure.isEmpty())
        logLine(lcCalendar, QStringLiteral("Tarvanel: calendar sync failed: ") + failure);
}

bool syncIfNeeded(const Config& cfg, const QDateTime& now, const QString& today,
                  QString& calendarSyncedDay) {
    if (!cfg.calendarSyncOn() || calendarSyncedDay == today) return false;
    calendarSyncedDay = today;
    sync(cfg, now);
    return true;
}

bool syncAfterSave(const Config& before, const Config& after, const QDateTime& now) {
    if (!before.calendarSyncOn() && !after.calendarSyncOn()) return false;
    sync(after, now);
    return true;
}

} // namespace tarvanel::PrayerCalendar
