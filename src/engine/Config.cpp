#include "engine/Config.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <algorithm>
#include <cmath>
#include <type_traits>
#include <variant>

namespace tarvanel {
namespace {

// What a hand-edited number may be. Most are held inside [min, max] by their readers (not
// finite reads as the default); a coordinate outside them names no place on Earth, so the file
// does not decode at all.
struct Bounds {
    double fallback, min, max;
    bool rejectsOutside = false;
    double apply(double v) const { return std::isfinite(v) ? std::clamp(v, min, max) : fallback; }
};
constexpr Bounds kLatitude{0, -90, 90, true};
constexpr Bounds kLongitude{0, -180, 180, true};
constexpr Bounds kLock{15, 1, 180};
constexpr Bounds kLead{5, 0, 120};
constexpr Bounds kJumuahLock{45, 1, 180};
constexpr Bounds kCallGrace{20, 0, 240};
constexpr Bounds kExcusedDays{15, 1, 60};
constexpr double kLongestReminder = 120;

using TextMap = QMap<QString, QString>;
using Member = std::variant<QString Config::*, double Config::*, std::optional<double> Config::*,
                            std::optional<QString> Config::*, std::optional<bool> Config::*,
                            QList<double> Config::*, std::optional<TextMap> Config::*>;

// The settings table: every key in file order with the field it fills and, for numbers, its
// bounds. Decoding, encoding and the bounded readers all go through it.
struct Field {
    const char* key;
    Member member;
    const Bounds* bounds = nullptr;
    bool whenAbsent = false; // what an absent switch reads as
};
const Field kFields[] = {
    {"locationName", &Config::locationName},
    {"latitude", &Config::latitude, &kLatitude},
    {"longitude", &Config::longitude, &kLongitude},
    {"method", &Config::method},
    {"fajrAngle", &Config::fajrAngle},
    {"ishaAngle", &Config::ishaAngle},
    {"ishaMinutes", &Config::ishaMinutes},
    {"asrFactor", &Config::asrFactor},
    {"lockMinutes", &Config::lockMinutes, &kLock},
    {"lockLeadMinutes", &Config::lockLeadMinutes, &kLead},
    {"nudgeOffsetsMinutes", &Config::nudgeOffsetsMinutes},
    {"prayerOverrides", &Config::prayerOverrides},
    {"jumuahEnabled", &Config::jumuahEnabled, nullptr, true},
    {"jumuahTime", &Config::jumuahTime},
    {"jumuahLockMinutes", &Config::jumuahLockMinutes, &kJumuahLock},
    {"ramadanMode", &Config::ramadanMode, nullptr, true},
    {"weeklyReport", &Config::weeklyReport, nullptr, true},
    {"travelMode", &Config::travelMode, nullptr, false},
    {"adhanEnabled", &Config::adhanEnabled, nullptr, true},
    {"maghribAngle", &Config::maghribAngle},
    {"callGraceMinutes", &Config::callGraceMinutes, &kCallGrace},
    {"excusedMaxDays", &Config::excusedMaxDays, &kExcusedDays},
    {"calendarSync", &Config::calendarSync, nullptr, false},
    {"calendarID", &Config::calendarID},
    {"focusShortcuts", &Config::focusShortcuts, nullptr, false},
    {"strictMode", &Config::strictMode, nullptr, false},
    {"combineWhenTravelling", &Config::combineWhenTravelling, nullptr, false},
};

template <class... F> struct Overloaded : F... { using F::operator()...; };
template <class... F> Overloaded(F...) -> Overloaded<F...>;

QString typeName(const QJsonValue& v) {
    switch (v.type()) {
    case QJsonValue::Bool:
        //: The type of a value in the settings file (config.json).
        return QCoreApplication::translate("Config", "a boolean");
    case QJsonValue::Double:
        return QCoreApplication::translate("Config", "a number");
    case QJsonValue::String:
        return QCoreApplication::translate("Config", "text");
    case QJsonValue::Array:
        return QCoreApplication::translate("Config", "an array");
    case QJsonValue::Object:
        return QCoreApplication::translate("Config", "an object");
    default:
        //: A JSON value that is null; "null" is the word written in the file.
        return QCoreApplication::translate("Config", "null");
    }
}

// What a value should have been and what it was, for the error text.
struct Mismatch {
    QString expected;
    QString found;
};
// `expected` is one of the Config texts marked below.
Mismatch mismatch(const char* expected, const QString& found) {
    return {QCoreApplication::translate("Config", expected), found};
}

template <class T> struct Plain { using type = T; };
template <class T> struct Plain<std::optional<T>> { using type = T; };

// A text, number or boolean field, plain or optional: one type check, one assignment.
template <class T> std::optional<Mismatch> decodeScalar(const QJsonValue& v, T& field) {
    using Value = typename Plain<T>::type;
    if constexpr (std::is_same_v<Value, QString>) {
        if (!v.isString()) return mismatch(QT_TRANSLATE_NOOP("Config", "text"), typeName(v));
        field = v.toString();
    } else if constexpr (std::is_same_v<Value, double>) {
        if (!v.isDouble()) return mismatch(QT_TRANSLATE_NOOP("Config", "a number"), typeName(v));
        field = v.toDouble();
    } else {
        static_assert(std::is_same_v<Value, bool>);
        if (!v.isBool()) return mismatch(QT_TRANSLATE_NOOP("Config", "a boolean"), typeName(v));
        field = v.toBool();
    }
    return std::nullopt;
}

// Fills one field from its JSON value (never absent or null here); a mismatch when the value
// has another type. An array or object names its first element of the wrong type.
std::optional<Mismatch> decodeField(const QJsonValue& v, Config& c, const Member& member) {
    using Result = std::optional<Mismatch>;
    return std::visit(
        Overloaded{
            [&]<class T>(T Config::*m) -> Result { return decodeScalar(v, c.*m); },
            [&](QList<double> Config::*m) -> Result {
                const char* expected = QT_TRANSLATE_NOOP("Config", "an array of numbers");
                if (!v.isArray()) return mismatch(expected, typeName(v));
                QList<double> list;
                const QJsonArray array = v.toArray();
                for (qsizetype i = 0; i < array.size(); ++i) {
                    if (!array[i].isDouble())
                        return mismatch(
                            expected,
                            //: %1 is a value's type ("text"), %2 its position in the list.
                            QCoreApplication::translate("Config", "an array with %1 at position %2")
                                .arg(typeName(array[i]))
                                .arg(i + 1));
                    list.append(array[i].toDouble());
                }
                c.*m = list;
                return std::nullopt;
            },
            [&](std::optional<TextMap> Config::*m) -> Result {
                const char* expected = QT_TRANSLATE_NOOP("Config", "an object of texts");
                if (!v.isObject()) return mismatch(expected, typeName(v));
                TextMap map;
                const QJsonObject o = v.toObject();
                for (auto it = o.begin(); it != o.end(); ++it) {
                    if (!it.value().isString())
                        return mismatch(
                            expected,
                            //: %1 is a value's type ("a number"), %2 the name it is stored under.
                            QCoreApplication::translate("Config", "an object with %1 at \"%2\"")
                                .arg(typeName(it.value()), it.key()));
                    map.insert(it.key(), it.value().toString());
                }
                c.*m = map;
                return std::nullopt;
            },
        },
        member);
}

// A number outside the bounds of a field that rejects such values.
std::optional<Mismatch> outOfBounds(const QJsonValue& v, const Field& f) {
    if (!f.bounds || !f.bounds->rejectsOutside) return std::nullopt;
    const double x = v.toDouble();
    if (x >= f.bounds->min && x <= f.bounds->max) return std::nullopt;
    // The bounds as JSON writes them, like the value in the file.
    //: %1 and %2 are the smallest and largest values a setting may have.
    return Mismatch{QCoreApplication::translate("Config", "a number from %1 to %2")
                        .arg(QString::number(f.bounds->min), QString::number(f.bounds->max)),
                    QString::number(x, 'g', 12)};
}

// Writes one field unless it is an absent optional; false for a number JSON cannot hold.
bool encodeField(QJsonObject& o, const Config& c, const Field& f) {
    const QLatin1String key(f.key);
    return std::visit(Overloaded{
                          [&](QString Config::*m) {
                              o.insert(key, c.*m);
                              return true;
                          },
                          [&](double Config::*m) {
                              o.insert(key, c.*m);
                              return std::isfinite(c.*m);
                          },
                          [&](QList<double> Config::*m) {
                              QJsonArray list;
                              bool finite = true;
                              for (double v : c.*m) {
                                  finite = finite && std::isfinite(v);
                                  list.append(v);
                              }
                              o.insert(key, list);
                              return finite;
                          },
                          [&](std::optional<TextMap> Config::*m) {
                              if (!(c.*m)) return true;
                              QJsonObject map;
                              for (auto it = (c.*m)->begin(); it != (c.*m)->end(); ++it)
                                  map.insert(it.key(), it.value());
                              o.insert(key, map);
                              return true;
                          },
                          [&](auto m) {
                              if (!(c.*m)) return true;
                              o.insert(key, *(c.*m));
                              if constexpr (std::is_same_v<decltype(*(c.*m)), const double&>)
                                  return std::isfinite(*(c.*m));
                              return true;
                          },
                      },
                      f.member);
}

int lineOf(const QByteArray& bytes, qsizetype offset) {
    return int(bytes.left(offset).count('\n')) + 1;
}

} // namespace

double Config::lockLength() const {
    return kLock.apply(lockMinutes);
}
double Config::leadMinutes() const {
    return kLead.apply(lockLeadMinutes.value_or(kLead.fallback));
}
double Config::jumuahLock() const {
    return kJumuahLock.apply(jumuahLockMinutes.value_or(kJumuahLock.fallback));
}
double Config::callGrace() const {
    return kCallGrace.apply(callGraceMinutes.value_or(kCallGrace.fallback));
}
double Config::excusedDays() const {
    return kExcusedDays.apply(excusedMaxDays.value_or(kExcusedDays.fallback));
}
bool Config::flag(std::optional<bool> Config::*member) const {
    for (const Field& f : kFields) {
        const auto* m = std::get_if<std::optional<bool> Config::*>(&f.member);
        if (m && *m == member) return (this->*member).value_or(f.whenAbsent);
    }
    return false;
}

QList<double> Config::nudgeOffsets() const {
    QList<double> kept;
    for (double v : nudgeOffsetsMinutes)
        if (std::isfinite(v) && v > 0 && v <= kLongestReminder) kept.append(v);
    return kept;
}

namespace {

// As decodeConfig; `badKey` names the field that did not decode.
std::optional<Config> decodeNamingKey(const QJsonObject& o, QString* error, const char** badKey) {
    Config c;
    for (const Field& f : kFields) {
        const QJsonValue v = o.value(QLatin1String(f.key));
        if (v.isUndefined() || v.isNull()) continue;
        std::optional<Mismatch> wrong = decodeField(v, c, f.member);
        if (!wrong) wrong = outOfBounds(v, f);
        if (wrong) {
            if (error)
                //: An error in the settings file: %1 is the setting's name as written in the
                //: file (keep it first if you can), %2 what it should be, %3 what it is.
                *error = QCoreApplication::translate("Config", "%1: expected %2, found %3")
                             .arg(QLatin1String(f.key), wrong->expected, wrong->found);
            if (badKey) *badKey = f.key;
            return std::nullopt;
        }
    }
    return c;
}

} // namespace

std::optional<Config> decodeConfig(const QJsonObject& o, QString* error) {
    return decodeNamingKey(o, error, nullptr);
}

std::optional<Config> decodeConfig(const QByteArray& json, QString* error) {
    QJsonParseError parse{};
    const QJsonDocument doc = QJsonDocument::fromJson(json, &parse);
    if (parse.error != QJsonParseError::NoError) {
        if (error)
            //: %1 is a line number of the settings file, %2 what is wrong there.
            *error = QCoreApplication::translate("Config", "line %1: %2")
                         .arg(lineOf(json, parse.offset))
                         .arg(parse.errorString());
        return std::nullopt;
    }
    if (!doc.isObject()) {
        if (error)
            //: The settings file holds a value that is not a JSON object ({ … }).
            *error = QCoreApplication::translate("Config", "the top level is not an object");
        return std::nullopt;
    }
    QString why;
    const char* badKey = nullptr;
    auto config = decodeNamingKey(doc.object(), &why, &badKey);
    if (!config && error) {
        // Name the line of the offending key.
        const QByteArray quoted = '"' + QByteArray(badKey) + '"';
        const qsizetype at = json.indexOf(quoted);
        *error = at < 0 ? why
                        : QCoreApplication::translate("Config", "line %1: %2")
                              .arg(lineOf(json, at))
                              .arg(why);
    }
    return config;
}

std::optional<QJsonObject> encodeConfig(const Config& c) {
    QJsonObject o;
    bool finite = true;
    for (const Field& f : kFields)
        finite = encodeField(o, c, f) && finite;
    if (!finite) return std::nullopt;
    return o;
}

} // namespace tarvanel
