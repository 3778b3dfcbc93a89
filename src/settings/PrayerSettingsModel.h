#pragma once
// The editable state behind the settings window: made from a Config, one observable field per
// control, checked and turned back into a Config by makeConfig(). It never writes config.json;
// the save action hands the Config to the controller.
#include "engine/Config.h"
#include "engine/Schedule.h"
#include "settings/SettingsTypes.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <optional>

namespace tarvanel {

inline bool operator==(const PrayerTimeRow& a, const PrayerTimeRow& b) {
    return a.name == b.name && a.mode == b.mode && a.minutes == b.minutes && a.time == b.time;
}

struct PreviewEntry {
    QString id;
    QString name;
    QDateTime start;
    std::optional<QDateTime> lock;
};

// Each field: a getter, a setter that notifies only on a real change, and its Field value.
#define TARVANEL_SETTINGS_FIELDS(X)                                                                \
    X(QString, query, Query)                                                                       \
    X(bool, searching, Searching)                                                                  \
    X(QString, searchMessage, SearchMessage)                                                       \
    X(QList<GeoPlace>, places, Places)                                                             \
    X(QString, locationName, LocationName)                                                         \
    X(double, latitude, Latitude)                                                                  \
    X(double, longitude, Longitude)                                                                \
    X(QString, methodID, MethodID)                                                                 \
    X(double, fajrAngle, FajrAngle)                                                                \
    X(double, ishaAngle, IshaAngle)                                                                \
    X(bool, hanafi, Hanafi)                                                                        \
    X(double, lockMinutes, LockMinutes)                                                            \
    X(double, lockLead, LockLead)                                                                  \
    X(QString, nudges, Nudges)                                                                     \
    X(QList<PrayerTimeRow>, rows, Rows)                                                            \
    X(bool, jumuahEnabled, JumuahEnabled)                                                          \
    X(QDateTime, jumuahTime, JumuahTime)                                                           \
    X(double, jumuahLock, JumuahLock)                                                              \
    X(bool, ramadan, Ramadan)                                                                      \
    X(bool, weekly, Weekly)                                                                        \
    X(bool, travel, Travel)                                                                        \
    X(bool, adhanEnabled, AdhanEnabled)                                                            \
    X(std::optional<QString>, adhanName, AdhanName)                                                \
    X(bool, playing, Playing)                                                                      \
    X(double, callGrace, CallGrace)                                                                \
    X(bool, strict, Strict)                                                                        \
    X(bool, combine, Combine)                                                                      \
    X(double, excusedDays, ExcusedDays)                                                            \
    X(bool, calendarSync, CalendarSync)                                                            \
    X(QString, calendarID, CalendarID)                                                             \
    X(QList<CalendarChoice>, calendars, Calendars)                                                 \
    X(QString, calendarMessage, CalendarMessage)                                                   \
    X(bool, focusOn, FocusOn)                                                                      \
    X(std::optional<bool>, focusInstalled, FocusInstalled)                                         \
    X(QString, focusMessage, FocusMessage)                                                         \
    X(std::optional<QString>, timetableSummary, TimetableSummary)                                  \
    X(bool, guardianSet, GuardianSet)                                                              \
    X(std::optional<QByteArray>, guardianDraft, GuardianDraft)                                     \
    X(QString, guardianCode, GuardianCode)                                                         \
    X(QString, guardianMessage, GuardianMessage)                                                   \
    X(QString, fileNotice, FileNotice)

class PrayerSettingsModel : public QObject {
    Q_OBJECT
public:
#define TARVANEL_FIELD_ENUM(Type, name, Name) name,
    enum class Field { TARVANEL_SETTINGS_FIELDS(TARVANEL_FIELD_ENUM) };
#undef TARVANEL_FIELD_ENUM

    PrayerSettingsModel(const Config& config, bool firstRun, SettingsServices services = {},
                        QObject* parent = nullptr);
    ~PrayerSettingsModel() override;

#define TARVANEL_FIELD_ACCESS(Type, name, Name)                                                    \
    const Type& name() const {                                                                     \
        return name##_;                                                                            \
    }                                                                                              \
    void set##Name(const Type& value) {                                                            \
        if (name##_ == value) return;                                                              \
        name##_ = value;                                                                           \
        emit changed(Field::name);                                                                 \
    }
    TARVANEL_SETTINGS_FIELDS(TARVANEL_FIELD_ACCESS)
#undef TARVANEL_FIELD_ACCESS

    bool firstRun() const {
        return firstRun_;
    }
    // Why config.json could not be used (its line and reason), shown above the form; empty when
    // the settings came from the file or its absence.
    const QString& configProblem() const {
        return configProblem_;
    }
    void setConfigProblem(const QString& problem) {
        configProblem_ = problem;
    }
    // A line for the header about how the program runs on this desktop (no tray icon); empty
    // when there is nothing to say.
    const QString& headerNote() const {
        return headerNote_;
    }
    void setHeaderNote(const QString& note) {
        headerNote_ = note;
    }
    const Config& base() const {
        return base_;
    }
    const SettingsServices& services() const {
        return services_;
    }
    void setRow(int index, const PrayerTimeRow& row);
    // The desktop's sound player for trying the adhan.
    void setSoundPlayer(std::function<bool(const QString&)> play, std::function<void()> stop) {
        services_.playSound = std::move(play);
        services_.stopSound = std::move(stop);
    }

    // The form differs from the settings it was made from.
    bool hasUnsavedEdits() const;
    // config.json changed on disk and decoded to `config`. A form without the user's edits
    // shows it (true); one with edits keeps them and sets fileNotice (false).
    bool fileChanged(const Config& config);

    bool hasLocation() const {
        return latitude_ != 0 || longitude_ != 0;
    }
    QList<double> parsedNudges() const;
    Config makeConfig() const;
    QList<PreviewEntry> preview() const;

    void search();
    // Uses one of `places` (several places of the searched name), as the search used the first.
    void choosePlace(int index);

    // The desktop shows the open panel and hands the chosen file here.
    void useAdhanFile(const QString& path);
    void togglePlay();
    void stopAdhan();
    void removeAdhan();

    void calendarToggled(bool on);
    void loadCalendars();

    void checkFocus();
    void testFocus();
    void openShortcuts();
    // Writes the pair of Focus scripts for `desktop`, says so in focusMessage and checks again.
    void writeFocusScripts(const QString& desktop);

    void startGuardian();
    void cancelGuardian();
    void confirmGuardian();
    void removeGuardian();
    QString guardianSecretText() const;

    void clearTimetable();

    static QStringList adhanExtensions();

signals:
    void changed(tarvanel::PrayerSettingsModel::Field field);

private:
    void answerSearch(const QString& query, const QList<GeoPlace>& places);
    void usePlace(const GeoPlace& place);
    // On a first run: the country's method and Asr school, and the sentence that says so.
    QString suggestMethod(const QString& countryCode);
    void refreshTimetable();
    void load(const Config& config);
    QDateTime now() const {
        return services_.clock();
    }

#define TARVANEL_FIELD_MEMBER(Type, name, Name) Type name##_{};
    TARVANEL_SETTINGS_FIELDS(TARVANEL_FIELD_MEMBER)
#undef TARVANEL_FIELD_MEMBER

    QString configProblem_;
    // The method and school last suggested, and the ones that stood before it.
    std::optional<std::pair<QString, bool>> suggested_;
    std::pair<QString, bool> ownMethod_;
    QString headerNote_;
    bool firstRun_ = false;
    Config base_;
    Config loaded_; // makeConfig() right after the last load
    SettingsServices services_;
    QMetaObject::Connection timetableObserver_;
};

// Locality (or name), area and country without repeats, joined with ", ".
QString placeLine(const GeoPlace& place);
// "Found <place>." in the user's language.
QString foundMessage(const GeoPlace& place);
// The places of `places` (best first) that share the first one's name, one per line of
// placeLine; empty unless there are at least two.
QList<GeoPlace> sameNamePlaces(const QList<GeoPlace>& places);

} // namespace tarvanel
