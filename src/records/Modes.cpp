#include "records/Modes.h"
#include "engine/LocalTime.h"

#include <QFile>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace tarvanel {
namespace {
constexpr qint64 daySeconds = 86400;
constexpr int maxPauseDays = 8;
constexpr int maxTravelDays = 366;

std::optional<QDateTime> within(const std::optional<QDateTime>& t, const QDateTime& now, int days) {
    if (!t || *t > now.addSecs(days * daySeconds)) return std::nullopt;
    return t;
}
} // namespace

ModeStore::ModeStore() : ModeStore(UserDefaults::defaultPath()) {}

ModeStore::ModeStore(const QString& iniPath)
    : defaults_(iniPath), path_(QFile::encodeName(iniPath)) {}

void ModeStore::refresh() {
    const FileStamp now = FileStamp::of(path_);
    if (stamp_ && *stamp_ == now) return;
    stamp_ = now;
    paused_ = defaults_.pausedUntil();
    travelling_ = defaults_.travellingUntil();
}

std::optional<QDateTime> ModeStore::pausedUntil(const QDateTime& now) const {
    return within(paused_, now, maxPauseDays);
}
std::optional<QDateTime> ModeStore::travellingUntil(const QDateTime& now) const {
    return within(travelling_, now, maxTravelDays);
}

bool ModeStore::isPaused(const QDateTime& now) const {
    const auto p = pausedUntil(now);
    return p && now < *p;
}

bool ModeStore::isTravelling(const QDateTime& now, bool hasTravelCoords) const {
    if (hasTravelCoords) return true;
    const auto t = travellingUntil(now);
    return t && now < *t;
}

void ModeStore::setPausedUntil(const std::optional<QDateTime>& until) {
    defaults_.setPausedUntil(until);
    stamp_.reset();
    refresh();
}

void ModeStore::setTravellingUntil(const std::optional<QDateTime>& until) {
    defaults_.setTravellingUntil(until);
    stamp_.reset();
    refresh();
}

void ModeStore::removeAll() {
    defaults_.removeAll();
    stamp_.reset();
    refresh();
}

QDateTime pauseEnd(int days, const QDateTime& now) {
    return startOfLocalDay(localDate(now).addDays(days));
}

QDateTime travelEnd(const QDate& picked, const QDateTime& now) {
    return startOfLocalDay(std::max(picked, localDate(now)).addDays(1));
}

QString defaultDescription(const QDateTime& instant) {
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
           QStringLiteral(" +0000");
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
