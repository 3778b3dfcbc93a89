#include "records/Modes.h"
#include "engine/LocalTime.h"
#include "platform/Platform.h"
#include "records/Log.h"
#include "records/UserDefaults.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace tarvanel {
namespace {
constexpr qint64 daySeconds = 86400;
} // namespace

QString defaultDescription(const QDateTime& instant) {
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
           QStringLiteral(" +0000");
}

bool askPause(Platform& platform, UserDefaults& defaults, int days, const QDateTime& now) {
    // Local midnight `days` days on; counted in calendar days so that a week across a clock
    // change still ends at midnight rather than at 23:00 or 01:00.
    const QDateTime until = startOfLocalDay(localDate(now).addDays(days));
    if (!until.isValid()) return false;
    AlertRequest request;
    request.message = QStringLiteral("Pause Tarvanel?");
    request.info = QStringLiteral("No reminders and no locks until ") +
                   formatLocal(until, QStringLiteral("dddd d MMMM")) +
                   QStringLiteral(" at midnight. You can resume any time from the menu.");
    request.buttons = {QStringLiteral("Pause"), QStringLiteral("Cancel")};
    if (platform.showAlert(request).response != 1000) return false;
    defaults.setPausedUntil(until);
    logLine(QStringLiteral("Tarvanel: paused until ") + defaultDescription(until));
    return true;
}

void resume(UserDefaults& defaults) {
    defaults.setPausedUntil(std::nullopt);
    logLine(QStringLiteral("Tarvanel: resumed"));
}

bool askTravel(Platform& platform, UserDefaults& defaults, const Config& cfg,
               const QDateTime& now) {
    AlertRequest request;
    request.message = QStringLiteral("Travelling until\u2026");
    request.info =
        cfg.isOn(cfg.combineWhenTravelling, false)
            ? QStringLiteral("Dhuhr and Asr become one lock, and so do Maghrib and Isha, through "
                             "the end of this day.")
            : QStringLiteral("Turn on \u201CCombine prayers while travelling\u201D in Settings if "
                             "your school permits it.");
    request.buttons = {QStringLiteral("Start"), QStringLiteral("Cancel")};
    platform.activateApp();
    const std::optional<QDate> picked =
        platform.askDate(request, localDate(now), localDate(now.addSecs(3 * daySeconds)));
    if (!picked || !picked->isValid()) return false;
    // The midnight that ends the picked day; the picker cannot go before today.
    const QDate day = std::max(*picked, localDate(now));
    const QDateTime until = startOfLocalDay(day.addDays(1));
    if (!until.isValid()) return false;
    defaults.setTravellingUntil(until);
    logLine(QStringLiteral("Tarvanel: travelling until ") + defaultDescription(until));
    return true;
}

void stopTravelling(UserDefaults& defaults) {
    defaults.setTravellingUntil(std::nullopt);
}

void dropExpiredModes(UserDefaults& defaults, const QDateTime& now) {
    if (const auto p = defaults.pausedUntil(); p && now >= *p) defaults.setPausedUntil({});
    if (const auto t = defaults.travellingUntil(); t && now >= *t) defaults.setTravellingUntil({});
}

bool isPaused(const QDateTime& date, const UserDefaults& defaults) {
    const auto p = defaults.pausedUntil();
    return p && date < *p;
}

bool isTravelling(const QDateTime& date, const UserDefaults& defaults, bool hasTravelCoords) {
    if (hasTravelCoords) return true;
    const auto t = defaults.travellingUntil();
    return t && date < *t;
}

double distanceKm(double lat1, double lon1, double lat2, double lon2) {
    const double r = M_PI / 180;
    const double dLat = (lat2 - lat1) * r;
    const double dLon = (lon2 - lon1) * r;
    const double s1 = std::sin(dLat / 2);
    const double s2 = std::sin(dLon / 2);
    double a = s1 * s1 + std::cos(lat1 * r) * std::cos(lat2 * r) * s2 * s2;
    // Rounding (or absurd input) can push a just outside [0, 1], where asin has no value.
    a = std::clamp(a, 0.0, 1.0);
    return 12742 * std::asin(std::sqrt(a));
}

} // namespace tarvanel
