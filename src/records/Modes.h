#pragma once
// Pause and declared travel: the menu commands and the checks the tick makes.
#include "engine/Config.h"

#include <QDateTime>
#include <QString>

namespace tarvanel {

class Platform;
class UserDefaults;

// "Pause Locks" for 1, 3 or 7 days: until local midnight `days` days after today's start.
// The caller does nothing while a lock runs. True when the pause was stored (then tick).
bool askPause(Platform& platform, UserDefaults& defaults, int days, const QDateTime& now);
// "Resume Locks": removes the pause and logs (then tick).
void resume(UserDefaults& defaults);

// "I'm Travelling…": the day picker; on "Start" stores the midnight that ends the picked day.
// True when travel was stored (then tick).
bool askTravel(Platform& platform, UserDefaults& defaults, const Config& cfg, const QDateTime& now);
// "Stop Travelling": removes the declared travel; nothing is logged.
void stopTravelling(UserDefaults& defaults);

// The tick's clean-up: removes "pausedUntil" and "travellingUntil" once `now` reached them.
void dropExpiredModes(UserDefaults& defaults, const QDateTime& now);

bool isPaused(const QDateTime& date, const UserDefaults& defaults);
// Declared travel until a future instant, or a detected travel location.
bool isTravelling(const QDateTime& date, const UserDefaults& defaults, bool hasTravelCoords);

// Great-circle distance on a sphere of diameter 12 742 km.
double distanceKm(double lat1, double lon1, double lat2, double lon2);

// "2025-03-02 00:00:00 +0000": how log lines print an instant.
QString defaultDescription(const QDateTime& instant);

} // namespace tarvanel
