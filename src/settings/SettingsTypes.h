#pragma once
// What the settings model needs from the rest of the program, as plain values and callbacks, so
// the model stays free of the controller, the desktop and the integrations.
#include "engine/Clock.h"
#include "engine/Config.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QTimeZone>
#include <functional>
#include <memory>

class QObject;

namespace tarvanel {

struct CalendarChoice {
    QString id;
    QString title;
    QString source; // the account the calendar belongs to
    bool operator==(const CalendarChoice&) const = default;
};

// One place a geocoder found.
struct GeoPlace {
    QString name;
    QString locality;
    QString administrativeArea;
    QString country;
    QString isoCountryCode;
    QString timeZone; // IANA identifier, empty when unknown
    double latitude = 0;
    double longitude = 0;
    qint64 population = 0;
    bool hasLocation = true;
    bool operator==(const GeoPlace&) const = default;
};

// Finds places by name. The answer always arrives later, through the event loop of the thread
// that owns `context`, and never when `context` has gone away meanwhile.
class Geocoder {
public:
    virtual ~Geocoder() = default;
    virtual void geocode(const QString& text, QObject* context,
                         std::function<void(QList<GeoPlace>)> answer) = 0;
};

// The buttons of the settings window that reach the controller.
struct PrayerSettingsActions {
    std::function<void(const Config&)> save;
    std::function<void()> cancel;
    std::function<void()> previewLock;
    std::function<void()> uninstall;
    std::function<void()> exportHistory;
    std::function<void()> importTimetable;
};

// Services of the calendar store, the Focus shortcuts and the sound player. Any may be left
// empty: the matching part of the form then does nothing.
struct SettingsServices {
    Clock clock = systemNow;
    std::function<QTimeZone()> localZone = [] { return QTimeZone::systemTimeZone(); };
    std::shared_ptr<Geocoder> geocoder;

    std::function<QList<CalendarChoice>()> writableCalendars;
    std::function<bool()> calendarAuthorized;
    // Asks for access; `done(granted)` may be called from any thread.
    std::function<void(std::function<void(bool)> done)> requestCalendarAccess;

    std::function<bool()> focusInstalled; // may block briefly: called off the main thread
    std::function<void(bool on)> runFocus;
    std::function<void()> openShortcuts;
    QString focusOnName = QStringLiteral("Tarvanel Focus On");
    QString focusOffName = QStringLiteral("Tarvanel Focus Off");
    QString focusFolder = QStringLiteral("~/.tarvanel/shortcuts");
    QStringList focusDesktops; // desktops a pair of scripts can be written for
    QString focusDesktop;      // this session's, when it is one of them
    // Writes the pair for a desktop of `focusDesktops`; false when a file could not be written.
    std::function<bool(const QString& desktop)> writeFocus;
    // The scripts of the pair that exist and were written by the user, not by Tarvanel.
    std::function<QStringList()> focusHandWritten;
    // Asks `question` with "Replace" and "Cancel", Cancel the default; true for Replace.
    std::function<bool(const QString& question, const QString& info)> confirmReplace;

    std::function<bool(const QString& path)> playSound;
    std::function<void()> stopSound;
};

} // namespace tarvanel
