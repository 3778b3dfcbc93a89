#pragma once
// Pause and declared travel: the store of their two instants and the rules that make them.
#include "base/FileStamp.h"
#include "records/UserDefaults.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <optional>

namespace tarvanel {

// The user-defaults instants as the program sees them. The file is read again only when its
// stamp changed (one stat per refresh), so a hand edit shows at the next tick and our own
// writes take the same road: each setter writes and then refreshes.
class ModeStore {
public:
    ModeStore();                                // the per-user file
    explicit ModeStore(const QString& iniPath); // any file (tests)

    // The single invalidation point of the two values below.
    void refresh();

    // Absent, or so far ahead that no menu command could have set it (a pause lasts at most
    // a week, a declared trip at most a year): a hand-set 9999-12-31 must not stop every lock.
    std::optional<QDateTime> pausedUntil(const QDateTime& now) const;
    std::optional<QDateTime> travellingUntil(const QDateTime& now) const;
    bool isPaused(const QDateTime& now) const;
    // Declared travel until a later instant, or a detected travel location.
    bool isTravelling(const QDateTime& now, bool hasTravelCoords) const;

    // Absent removes the key.
    void setPausedUntil(const std::optional<QDateTime>& until);
    void setTravellingUntil(const std::optional<QDateTime>& until);
    // Uninstall with "delete data".
    void removeAll();

private:
    UserDefaults defaults_;
    QByteArray path_;
    std::optional<FileStamp> stamp_; // absent: never read, or our own write just happened
    std::optional<QDateTime> paused_, travelling_;
};

// "Pause Locks" for `days` days: local midnight `days` calendar days after today's start, so a
// week across a clock change still ends at midnight. Invalid when the zone has no such instant.
QDateTime pauseEnd(int days, const QDateTime& now);
// "I'm Travelling…": the midnight that ends the picked day (never before today).
QDateTime travelEnd(const QDate& picked, const QDateTime& now);

// Great-circle distance on a sphere of diameter 12 742 km.
double distanceKm(double lat1, double lon1, double lat2, double lon2);

// "2025-03-02 00:00:00 +0000": how log lines print an instant.
QString defaultDescription(const QDateTime& instant);

} // namespace tarvanel
