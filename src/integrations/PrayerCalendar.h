#pragma once
// Blocks the coming locks as busy events in a calendar of the user's choice, so that
// colleagues do not book meetings over them. The calendars are vdir folders under
// $XDG_DATA_HOME/calendars (khal shows them, vdirsyncer syncs them with CalDAV servers).
//
// The controller decides when: syncIfNeeded from the tick (at most once a day) and
// syncAfterSave when the settings window saves. A dry run (--test-lock, --test-nudge) calls
// neither.
#include "engine/Config.h"
#include "integrations/Vdir.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <functional>

namespace tarvanel::PrayerCalendar {

using Calendar = vdir::CalendarFolder;

// $XDG_DATA_HOME/calendars, or ~/.local/share/calendars.
QString rootPath();

// The calendar root exists and can be written.
bool authorized();

// Empty unless authorized; otherwise every writable calendar, by account name then title
// (plain text comparisons). The settings window shows "title (sourceTitle)" and stores
// identifier as calendarID.
QList<Calendar> writableCalendars();

// Creates the root and, when there is no calendar yet, "local/prayer" titled "Prayer times".
// The user is asked first (lock/CalendarAccess.h). False when the folder cannot be made.
bool grantAccess();

// One busy event to write: "Fajr (prayer)" or "Jumu'ah (prayer)", from the lock's start.
using BusyEvent = vdir::NewEvent;

// The events of the 7 days starting on now's local day, in order, leaving out those already
// over at `now`.
QList<BusyEvent> plannedEvents(const Config& cfg, const QDateTime& now);

// Removes the application's events from today's start to 9 days on in every calendar, then,
// when calendarSync is on and calendarID names an existing calendar, writes plannedEvents
// into it. An event already there exactly as planned is kept rather than rewritten, so a
// repeated sync changes no file. A failed write logs "Tarvanel: calendar sync failed: " + the
// reason, once.
void sync(const Config& cfg, const QDateTime& now);

// The daily trigger: syncs when calendarSync is on and calendarSyncedDay differs from
// `today`, setting calendarSyncedDay first (a failed sync waits for the next day or reset).
// `cfg` carries the travel location in place of the home one when travel found one. True when
// it synced.
bool syncIfNeeded(const Config& cfg, const QDateTime& now, const QString& today,
                  QString& calendarSyncedDay);

// On save: syncs with `after` when calendarSync was on in `before` or is on in `after`, so
// turning it off empties the calendars of the application's events. True when it synced.
bool syncAfterSave(const Config& before, const Config& after, const QDateTime& now);

} // namespace tarvanel::PrayerCalendar
