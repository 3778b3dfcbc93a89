#pragma once
// A day's lock schedule: computed times (waqt), the lock times after overrides, the masjid
// timetable and Jumu'ah, and whether Dhuhr is Jumu'ah.
#include "engine/Config.h"
#include "engine/DayTimes.h"

#include <optional>

namespace tarvanel {

struct EffectiveTimes {
    DayTimes waqt;
    DayTimes final;
    bool jumuah = false;
};

// `masjidDay` is the imported timetable's entry for the date (prayer name → "HH:mm"), empty when
// none: its times replace the computed lock times, and its Jumu'ah the configured one.
EffectiveTimes effectiveTimes(const QDateTime& date, const Config& cfg,
                              const QMap<QString, QString>& masjidDay);
DayTimes applyOverrides(const DayTimes& times, const Config& cfg, const QDateTime& on);
std::optional<QDateTime> parseFixedTime(const QString& text, const QDateTime& on);
bool isFriday(const QDateTime& date);

enum class TimeMode { waqt, offset, fixed };
QString rawText(TimeMode mode);
QString label(TimeMode mode);
std::optional<TimeMode> timeModeFromRaw(const QString& raw);

// One prayer's row in the settings form.
struct PrayerTimeRow {
    QString name;
    TimeMode mode = TimeMode::waqt;
    int minutes = 0;
    QDateTime time; // only its local hour and minute count

    QString id() const { return QStringLiteral("pray-") + name; }
    // The rule written to prayerOverrides, absent when the entry is removed.
    std::optional<QString> rule() const;
};

} // namespace tarvanel
