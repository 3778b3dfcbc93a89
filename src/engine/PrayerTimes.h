#pragma once
// The solar calculation: low-precision sun position, hour-angle equation, two refinement passes
// and the angle-proportional night correction.
#include "engine/Config.h"
#include "engine/DayTimes.h"

namespace tarvanel {

class PrayerTimes {
public:
    explicit PrayerTimes(const Config& cfg);

    // Fajr, Sunrise, Dhuhr, Asr, Maghrib, Isha of the local calendar day of `date`; a prayer the
    // sun never reaches that day is missing.
    DayTimes times(const QDateTime& date);

    double jDate = 0;
    double tz = 6;

private:
    struct SunPosition {
        double declination;
        double equation;
    };
    static SunPosition sunPosition(double jd);
    double sunAngleTime(double angle, double time, bool ccw) const;

    Config cfg_;
    double sinLat_ = 0, cosLat_ = 1; // of cfg_.latitude, once per day computed
};

} // namespace tarvanel
