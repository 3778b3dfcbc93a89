#pragma once
// The user's settings: one record and its JSON form (records/ConfigFile.h reads and writes the
// file).
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <cmath>
#include <optional>

namespace tarvanel {

struct Config {
    QString locationName;
    double latitude = 0;
    double longitude = 0;
    std::optional<QString> method;
    double fajrAngle = 18;
    double ishaAngle = 17;
    std::optional<double> ishaMinutes;
    double asrFactor = 1;
    double lockMinutes = 15;
    std::optional<double> lockLeadMinutes = 5;
    QList<double> nudgeOffsetsMinutes{20, 10, 5, 2};
    std::optional<QMap<QString, QString>> prayerOverrides = QMap<QString, QString>{};
    std::optional<bool> jumuahEnabled = true;
    std::optional<QString> jumuahTime = QStringLiteral("13:30");
    std::optional<double> jumuahLockMinutes = 45;
    std::optional<bool> ramadanMode = true;
    std::optional<bool> weeklyReport = true;
    std::optional<bool> travelMode = false;
    std::optional<bool> adhanEnabled = true;
    std::optional<double> maghribAngle;
    std::optional<double> callGraceMinutes = 20;
    std::optional<double> excusedMaxDays = 15;
    std::optional<bool> calendarSync = false;
    std::optional<QString> calendarID;
    std::optional<bool> focusShortcuts = false;
    std::optional<bool> strictMode = false;
    std::optional<bool> combineWhenTravelling = false;

    bool operator==(const Config&) const = default;

    // Readers never see a hand-edited absurdity: every number a decision uses passes through
    // the bounds of its entry in the settings table (Config.cpp). Absent optionals read as
    // their defaults.
    double lockLength() const;
    double leadMinutes() const;
    double jumuahLock() const;
    double callGrace() const;
    double excusedDays() const;
    // The reminder minutes worth keeping: finite, above 0 and at most 120, in file order.
    QList<double> nudgeOffsets() const;
    // The switches; an absent one reads as its entry in the settings table says.
    bool jumuahOn() const { return flag(&Config::jumuahEnabled); }
    bool ramadanOn() const { return flag(&Config::ramadanMode); }
    bool weeklyReportOn() const { return flag(&Config::weeklyReport); }
    bool travelOn() const { return flag(&Config::travelMode); }
    bool adhanOn() const { return flag(&Config::adhanEnabled); }
    bool calendarSyncOn() const { return flag(&Config::calendarSync); }
    bool focusOn() const { return flag(&Config::focusShortcuts); }
    bool strictOn() const { return flag(&Config::strictMode); }
    bool combineOn() const { return flag(&Config::combineWhenTravelling); }

private:
    bool flag(std::optional<bool> Config::*member) const;
};

// Decodes a JSON object field by field; a value of the wrong type fails the whole decode and
// `error` says which key and why. Missing keys and nulls keep the defaults.
std::optional<Config> decodeConfig(const QJsonObject& object, QString* error = nullptr);
// Parses bytes as one JSON object and decodes it.
std::optional<Config> decodeConfig(const QByteArray& json, QString* error = nullptr);
// Every field but the absent optionals. Absent when a number cannot be written (not finite).
std::optional<QJsonObject> encodeConfig(const Config& config);

} // namespace tarvanel
