#pragma once
#include "engine/Config.h"

#include <QList>
#include <QMap>
#include <optional>
#include <utility>

namespace tarvanel {

struct CalcMethod {
    QString id;
    QString name; // shown to the user, in the current language
    double fajr = 0;
    double isha = 0;
    std::optional<double> ishaMinutes;
    std::optional<double> maghribAngle;
};

// Built on each call, so the names follow a change of language.
QList<CalcMethod> calcMethods();
std::optional<CalcMethod> methodFor(const Config& cfg);
QString methodSummary(const Config& cfg);

struct MethodSuggestion {
    QString methodId;
    bool hanafi = false;
};
// ISO 3166 two-letter country code → suggested method and Asr school.
const QMap<QString, MethodSuggestion>& suggestedMethods();

} // namespace tarvanel
