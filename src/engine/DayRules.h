#pragma once
// How a prayer is named on a given day: Jumu'ah stands for Dhuhr on a Jumu'ah day, and while
// travelling Dhuhr takes Asr and Maghrib takes Isha (never on Jumu'ah).
#include "engine/Config.h"

#include <QString>
#include <optional>

namespace tarvanel {

inline std::optional<QString> combinedPartner(const QString& name, bool jumuah) {
    if (name == QLatin1String("Dhuhr") && !jumuah) return QStringLiteral("Asr");
    if (name == QLatin1String("Maghrib")) return QStringLiteral("Isha");
    return std::nullopt;
}

inline bool isCombinedAway(const QString& name, bool jumuah) {
    return (name == QLatin1String("Asr") && !jumuah) || name == QLatin1String("Isha");
}

inline QString lockName(const QString& name, bool combining, bool jumuah) {
    const bool dhuhr = name == QLatin1String("Dhuhr");
    if (dhuhr && jumuah) return QStringLiteral("Jumu'ah");
    if (combining && dhuhr) return name + QStringLiteral(" & Asr");
    if (combining && name == QLatin1String("Maghrib")) return name + QStringLiteral(" & Isha");
    return name;
}

} // namespace tarvanel
