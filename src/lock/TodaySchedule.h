#pragma once
// Today's lock schedule and what changes only with the local day. Computing a day costs tens
// of microseconds (bench/ControllerBench.cpp), too much for every tick, so it is kept until
// the day ends or one of its inputs changes.
#include "base/FileStamp.h"
#include "engine/Config.h"
#include "engine/DayTimes.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

namespace tarvanel {

// One prayer of the schedule with the keys the tick looks up, made once per schedule.
struct PrayerSlot {
    QString name;
    QString lockKey;
    QStringList nudgeKeys; // one per configured offset, in order
    qint64 at = 0;         // lock time, ms since the epoch
    bool valid = false;
};

class TodaySchedule {
public:
    // Brings the schedule to the local day of `now` under `cfg` (the active settings) and the
    // imported timetable as the file is now. True when it was computed afresh. This is the one
    // place a schedule is dropped, tomorrow's Fajr included: a new day, other settings (saved,
    // edited by hand, a travel location found or lost) or another timetable.json (imported,
    // cleared, edited by hand) all show here. One stat per call.
    bool update(const QDateTime& now, const Config& cfg);

    const QString& dayKey() const { return key_; }
    const DayTimes& times() const { return times_; } // lock times
    const DayTimes& waqt() const { return waqt_; }   // computed times
    bool jumuah() const { return jumuah_; }
    bool ramadan() const { return ramadan_; } // the Hijri month never changes within a day
    const std::array<PrayerSlot, 5>& prayerSlots() const { return slots_; }

    // Fajr of the local day that `now + 24 h` falls in: the evening title asks every second.
    std::optional<QDateTime> tomorrowsFajr(const QDateTime& now, const Config& cfg);

private:
    QString key_; // empty: nothing computed yet
    Config cfg_;
    FileStamp timetable_;
    QByteArray timetablePath_;
    QDateTime from_, until_;
    DayTimes times_, waqt_;
    bool jumuah_ = false, ramadan_ = false;
    std::array<PrayerSlot, 5> slots_;
    struct Tomorrow {
        QDateTime from, until;
        std::optional<QDateTime> fajr;
    };
    std::optional<Tomorrow> tomorrow_;
};

} // namespace tarvanel
