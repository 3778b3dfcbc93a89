#include "engine/PrayerTimes.h"
#include "engine/LocalTime.h"
#include <QTimeZone>

#include <cmath>

namespace tarvanel {
namespace {
constexpr double kDeg = M_PI / 180.0;

// x modulo m in [0, m). Same value as fmod plus m for negatives, without glibc's slow fmod.
double fixMod(double x, double m) {
    if (x >= 0 && x < m) return x;
    double r = x - m * std::floor(x / m);
    if (r >= m) r -= m;
    if (r < 0) r += m;
    return r;
}
double fix360(double x) {
    return fixMod(x, 360.0);
}
double fix24(double x) {
    return fixMod(x, 24.0);
}
double dsin(double d) {
    return std::sin(d * kDeg);
}
double dcos(double d) {
    return std::cos(d * kDeg);
}
double dtan(double d) {
    return std::tan(d * kDeg);
}
} // namespace

PrayerTimes::PrayerTimes(const Config& cfg) : cfg_(cfg) {}

PrayerTimes::SunPosition PrayerTimes::sunPosition(double jd) {
    const double d = jd - 2451545.0;
    const double g = fix360(357.529 + 0.98560028 * d);
    const double q = fix360(280.459 + 0.98564736 * d);
    const double l = fix360(q + 1.915 * dsin(g) + 0.020 * dsin(2 * g));
    const double e = 23.439 - 0.00000036 * d;
    const double ra = fix24(std::atan2(dcos(e) * dsin(l), dcos(l)) / kDeg / 15.0);
    const double declination = std::asin(dsin(e) * dsin(l)) / kDeg;
    const double equation = fix24(q / 15.0 - ra + 12.0) - 12.0;
    return {declination, equation};
}

double PrayerTimes::sunAngleTime(double angle, double time, bool ccw) const {
    const SunPosition sun = sunPosition(jDate + time);
    const double lat = cfg_.latitude;
    const double x =
        (-dsin(angle) - dsin(sun.declination) * dsin(lat)) / (dcos(sun.declination) * dcos(lat));
    if (!(std::fabs(x) <= 1.0)) return NAN; // also NaN inputs
    const double noon = fix24(12.0 - sun.equation);
    const double t = std::acos(x) / kDeg / 15.0;
    return ccw ? noon - t : noon + t;
}

DayTimes PrayerTimes::times(const QDateTime& date) {
    const LocalFields local = localFields(date);
    // The offset in force when the day begins, the instant the times below count from: a
    // day's table must not change when it is asked after that day's clock change.
    const QDateTime dayStart = startOfLocalDay(date);
    if (!dayStart.isValid()) return {};
    tz = localFields(dayStart).utcOffsetSeconds / 3600.0;

    int y = local.year, m = local.month;
    if (m < 3) {
        y -= 1;
        m += 12;
    }
    const double a = std::floor(y / 100.0);
    const double b = 2 - a + std::floor(a * 0.25);
    const double jd =
        std::floor((y + 4716) * 365.25) + std::floor((m + 1) * 30.6001) + local.day + b - 1524.5;
    jDate = jd - cfg_.longitude / 360.0;
    sinLat_ = dsin(cfg_.latitude);
    cosLat_ = dcos(cfg_.latitude);

    double fajr = 5.0 / 24, sunrise = 6.0 / 24, dhuhr = 0.5, asr = 13.0 / 24, sunset = 0.75,
           maghrib = 0.75, isha = 0.75;
    const double lat = cfg_.latitude;
    for (int pass = 0; pass < 2; ++pass) {
        fajr = sunAngleTime(cfg_.fajrAngle, fajr, true);
        sunrise = sunAngleTime(0.833, sunrise, true);
        dhuhr = fix24(12.0 - sunPosition(jDate + dhuhr).equation);
        const double dec = sunPosition(jDate + asr).declination;
        const double asrAngle =
            -(std::atan2(1.0, cfg_.asrFactor + dtan(std::fabs(lat - dec))) / kDeg);
        asr = sunAngleTime(asrAngle, asr, false);
        sunset = sunAngleTime(0.833, sunset, false);
        isha = sunAngleTime(cfg_.ishaAngle, isha, false);
        if (cfg_.maghribAngle) maghrib = sunAngleTime(*cfg_.maghribAngle, maghrib, false);
        fajr /= 24;
        sunrise /= 24;
        dhuhr /= 24;
        asr /= 24;
        sunset /= 24;
        isha /= 24;
        if (cfg_.maghribAngle) maghrib /= 24;
    }
    fajr *= 24;
    sunrise *= 24;
    dhuhr *= 24;
    asr *= 24;
    sunset *= 24;
    isha *= 24;
    if (cfg_.maghribAngle)
        maghrib *= 24;
    else
        maghrib = sunset + 1.0 / 30;
    if (cfg_.ishaMinutes) isha = sunset + *cfg_.ishaMinutes / 60.0;

    if (std::isfinite(sunrise) && std::isfinite(sunset)) {
        const double night = sunrise - sunset + 24;
        const double fajrPortion = (cfg_.fajrAngle / 60.0) * night;
        if (!std::isfinite(fajr) || sunrise - fajr > fajrPortion) fajr = sunrise - fajrPortion;
        if (!cfg_.ishaMinutes) {
            const double portion = (cfg_.ishaAngle / 60.0) * night;
            if (!std::isfinite(isha) || isha - sunset > portion) isha = sunset + portion;
        }
        if (cfg_.maghribAngle) {
            const double portion = (*cfg_.maghribAngle / 60.0) * night;
            if (!std::isfinite(maghrib) || maghrib - sunset > portion) maghrib = sunset + portion;
        }
    }
    dhuhr += 1.0 / 30;

    DayTimes result;
    const double adjust = tz - cfg_.longitude / 15.0;
    const double values[DayTimes::Count] = {fajr, sunrise, dhuhr, asr, maghrib, isha};
    bool anyFinite = false;
    for (double v : values)
        anyFinite = anyFinite || std::isfinite(v);
    if (!anyFinite) return result;
    const qint64 startMs = dayStart.toMSecsSinceEpoch();
    for (int i = 0; i < DayTimes::Count; ++i) {
        const double v = values[i];
        if (!std::isfinite(v)) continue;
        const double hours = fix24(adjust + v);
        if (!std::isfinite(hours)) continue;
        const qint64 ms = startMs + qint64(std::llround(hours * 3600.0 * 1000.0));
        result.insert(dayRowNames()[i], QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc()));
    }
    return result;
}

} // namespace tarvanel
