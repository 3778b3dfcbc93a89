#pragma once
// The user's settings: one record, one JSON file (~/.tarvanel/config.json).
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

    // Readers fall back to the same defaults when an optional is absent. A lead that is not a
    // usable number of minutes (hand-edited to inf or 1e300) counts as absent too.
    double leadMinutes() const {
        const double v = lockLeadMinutes.value_or(5);
        return std::isfinite(v) && std::fabs(v) <= 1e6 ? v : 5;
    }
    double jumuahLock() const { return jumuahLockMinutes.value_or(45); }
    double callGrace() const { return callGraceMinutes.value_or(20); }
    double excusedDays() const { return excusedMaxDays.value_or(15); }
    bool isOn(const std::optional<bool>& flag, bool whenAbsent) const {
        return flag.value_or(whenAbsent);
    }
};

// Decodes a JSON object field by field; a value of the wrong type fails the whole decode and
// `error` says which key and why. Missing keys and nulls keep the defaults.
std::optional<Config> decodeConfig(const QJsonObject& object, QString* error = nullptr);
// Parses bytes as one JSON object and decodes it.
std::optional<Config> decodeConfig(const QByteArray& json, QString* error = nullptr);
// Every field but the absent optionals. Absent when a number cannot be written (not finite).
std::optional<QJsonObject> encodeConfig(const Config& config);

// Reads configURL(); never fails (see the fall-back rules in Config.cpp).
Config loadConfig();
// Pretty, key-sorted, atomic; failures are swallowed.
void saveConfig(const Config& config);

// The last config that decoded in this process (absent until one did).
const std::optional<Config>& lastGoodConfig();
void resetLastGoodConfigForTesting();

} // namespace tarvanel
