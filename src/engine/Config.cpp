#include "engine/Config.h"
#include "records/Log.h"
#include "records/StateFiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <cmath>

namespace tarvanel {
namespace {

std::optional<Config>& lastGood() {
    static std::optional<Config> value;
    return value;
}

QString typeName(const QJsonValue& v) {
    switch (v.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("text");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
    }
}

// Reads one key of the object into `out`. Missing keys and null keep `out`; a wrong type sets
// the error and returns false.
class Decoder {
public:
    explicit Decoder(const QJsonObject& o) : obj(o) {}

    bool number(const char* key, double& out) {
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!v.isDouble()) return fail(key, "a number", v);
        out = v.toDouble();
        return true;
    }
    bool number(const char* key, std::optional<double>& out) {
        double d = out.value_or(0);
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!number(key, d)) return false;
        out = d;
        return true;
    }
    bool text(const char* key, QString& out) {
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!v.isString()) return fail(key, "text", v);
        out = v.toString();
        return true;
    }
    bool text(const char* key, std::optional<QString>& out) {
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!v.isString()) return fail(key, "text", v);
        out = v.toString();
        return true;
    }
    bool flag(const char* key, std::optional<bool>& out) {
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!v.isBool()) return fail(key, "a boolean", v);
        out = v.toBool();
        return true;
    }
    bool numbers(const char* key, QList<double>& out) {
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!v.isArray()) return fail(key, "an array of numbers", v);
        QList<double> list;
        for (const QJsonValue& e : v.toArray()) {
            if (!e.isDouble()) return fail(key, "an array of numbers", e);
            list.append(e.toDouble());
        }
        out = list;
        return true;
    }
    bool textMap(const char* key, std::optional<QMap<QString, QString>>& out) {
        const QJsonValue v = obj.value(QLatin1String(key));
        if (absent(v)) return true;
        if (!v.isObject()) return fail(key, "an object of texts", v);
        QMap<QString, QString> map;
        const QJsonObject o = v.toObject();
        for (auto it = o.begin(); it != o.end(); ++it) {
            if (!it.value().isString()) return fail(key, "an object of texts", it.value());
            map.insert(it.key(), it.value().toString());
        }
        out = map;
        return true;
    }

    QString error;

private:
    static bool absent(const QJsonValue& v) { return v.isUndefined() || v.isNull(); }
    bool fail(const char* key, const char* expected, const QJsonValue& found) {
        error = QStringLiteral("%1: expected %2, found %3")
                    .arg(QLatin1String(key), QLatin1String(expected), typeName(found));
        return false;
    }
    QJsonObject obj;
};

} // namespace

std::optional<Config> decodeConfig(const QJsonObject& o, QString* error) {
    Config c;
    Decoder d(o);
    const bool ok =
        d.text("locationName", c.locationName) && d.number("latitude", c.latitude) &&
        d.number("longitude", c.longitude) && d.text("method", c.method) &&
        d.number("fajrAngle", c.fajrAngle) && d.number("ishaAngle", c.ishaAngle) &&
        d.number("ishaMinutes", c.ishaMinutes) && d.number("asrFactor", c.asrFactor) &&
        d.number("lockMinutes", c.lockMinutes) && d.number("lockLeadMinutes", c.lockLeadMinutes) &&
        d.numbers("nudgeOffsetsMinutes", c.nudgeOffsetsMinutes) &&
        d.textMap("prayerOverrides", c.prayerOverrides) &&
        d.flag("jumuahEnabled", c.jumuahEnabled) && d.text("jumuahTime", c.jumuahTime) &&
        d.number("jumuahLockMinutes", c.jumuahLockMinutes) &&
        d.flag("ramadanMode", c.ramadanMode) && d.flag("weeklyReport", c.weeklyReport) &&
        d.flag("travelMode", c.travelMode) && d.flag("adhanEnabled", c.adhanEnabled) &&
        d.number("maghribAngle", c.maghribAngle) &&
        d.number("callGraceMinutes", c.callGraceMinutes) &&
        d.number("excusedMaxDays", c.excusedMaxDays) && d.flag("calendarSync", c.calendarSync) &&
        d.text("calendarID", c.calendarID) && d.flag("focusShortcuts", c.focusShortcuts) &&
        d.flag("strictMode", c.strictMode) &&
        d.flag("combineWhenTravelling", c.combineWhenTravelling);
    if (!ok) {
        if (error) *error = d.error;
        return std::nullopt;
    }
    return c;
}

std::optional<Config> decodeConfig(const QByteArray& json, QString* error) {
    QJsonParseError parse{};
    const QJsonDocument doc = QJsonDocument::fromJson(json, &parse);
    if (parse.error != QJsonParseError::NoError) {
        if (error)
            *error = QStringLiteral("%1 at offset %2").arg(parse.errorString()).arg(parse.offset);
        return std::nullopt;
    }
    if (!doc.isObject()) {
        if (error) *error = QStringLiteral("the top level is not an object");
        return std::nullopt;
    }
    return decodeConfig(doc.object(), error);
}

std::optional<QJsonObject> encodeConfig(const Config& c) {
    QJsonObject o;
    bool finite = true;
    auto num = [&](const char* key, double v) {
        finite = finite && std::isfinite(v);
        o.insert(QLatin1String(key), v);
    };
    auto optNum = [&](const char* key, const std::optional<double>& v) {
        if (v) num(key, *v);
    };
    auto optFlag = [&](const char* key, const std::optional<bool>& v) {
        if (v) o.insert(QLatin1String(key), *v);
    };
    auto optText = [&](const char* key, const std::optional<QString>& v) {
        if (v) o.insert(QLatin1String(key), *v);
    };
    o.insert(QStringLiteral("locationName"), c.locationName);
    num("latitude", c.latitude);
    num("longitude", c.longitude);
    optText("method", c.method);
    num("fajrAngle", c.fajrAngle);
    num("ishaAngle", c.ishaAngle);
    optNum("ishaMinutes", c.ishaMinutes);
    num("asrFactor", c.asrFactor);
    num("lockMinutes", c.lockMinutes);
    optNum("lockLeadMinutes", c.lockLeadMinutes);
    QJsonArray offsets;
    for (double v : c.nudgeOffsetsMinutes) {
        finite = finite && std::isfinite(v);
        offsets.append(v);
    }
    o.insert(QStringLiteral("nudgeOffsetsMinutes"), offsets);
    if (c.prayerOverrides) {
        QJsonObject m;
        for (auto it = c.prayerOverrides->begin(); it != c.prayerOverrides->end(); ++it)
            m.insert(it.key(), it.value());
        o.insert(QStringLiteral("prayerOverrides"), m);
    }
    optFlag("jumuahEnabled", c.jumuahEnabled);
    optText("jumuahTime", c.jumuahTime);
    optNum("jumuahLockMinutes", c.jumuahLockMinutes);
    optFlag("ramadanMode", c.ramadanMode);
    optFlag("weeklyReport", c.weeklyReport);
    optFlag("travelMode", c.travelMode);
    optFlag("adhanEnabled", c.adhanEnabled);
    optNum("maghribAngle", c.maghribAngle);
    optNum("callGraceMinutes", c.callGraceMinutes);
    optNum("excusedMaxDays", c.excusedMaxDays);
    optFlag("calendarSync", c.calendarSync);
    optText("calendarID", c.calendarID);
    optFlag("focusShortcuts", c.focusShortcuts);
    optFlag("strictMode", c.strictMode);
    optFlag("combineWhenTravelling", c.combineWhenTravelling);
    if (!finite) return std::nullopt;
    return o;
}

Config loadConfig() {
    const auto bytes = readWholeFile(configURL());
    if (!bytes) return Config();
    QString error;
    if (auto config = decodeConfig(*bytes, &error)) {
        lastGood() = *config;
        return *config;
    }
    logLine(QStringLiteral("Tarvanel: config.json is invalid (%1); keeping the last good settings")
                .arg(error));
    return lastGood().value_or(Config());
}

void saveConfig(const Config& config) {
    ensureSupportDir();
    const auto object = encodeConfig(config);
    if (!object) return;
    writeFileAtomically(configURL(), QJsonDocument(*object).toJson(QJsonDocument::Indented));
}

const std::optional<Config>& lastGoodConfig() {
    return lastGood();
}
void resetLastGoodConfigForTesting() {
    lastGood().reset();
}

} // namespace tarvanel
