#pragma once
// Calendars as vdir folders (the layout khal and vdirsyncer share): <root>/<account>/<calendar>/,
// one iCalendar file per event. libical reads and writes every event.
#include <QDateTime>
#include <QList>
#include <QString>

namespace tarvanel::vdir {

struct CalendarFolder {
    QString path;        // absolute folder path
    QString identifier;  // "<account>/<calendar>", relative to the root
    QString title;       // the folder's displayname file, else its name
    QString sourceTitle; // the account folder's name
    bool writable = false;
};

// Every calendar two levels below root, in no particular order.
QList<CalendarFolder> listCalendars(const QString& root);

// Marks of the events the application writes.
QString tagText(); // "Added by Tarvanel", in the description
QString tagUrl();  // "tarvanel://lock", the URL

struct NewEvent {
    QString title;
    QDateTime start;
    QDateTime end;
};

// Removes, from every event file in folder, the application's own events that overlap
// [from, to). With `keep`, an event equal to one of it (title, start, end, busy) stays and that
// entry leaves `keep`. A file left without events is deleted; others are rewritten. Failures are
// ignored: a file that cannot be changed keeps its events until the next sync.
void removeOwnEvents(const QString& folder, const QDateTime& from, const QDateTime& to,
                     QList<NewEvent>* keep = nullptr);

// Writes each busy event into folder as <uid>.ics, atomically, with a fresh UID. Empty when all
// were written, else the reason the first one failed.
QString writeEvents(const QString& folder, const QList<NewEvent>& events);

} // namespace tarvanel::vdir
