#pragma once
// Travel mode's location lookup: at most every six hours, an HTTPS GET of the geolocation
// service; more than 50 km from home makes the reply's place the travel location.
#include "engine/Config.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>
#include <optional>

class QNetworkAccessManager;

namespace tarvanel {

struct TravelCoords {
    double lat = 0;
    double lon = 0;
    QString name;
    bool operator==(const TravelCoords&) const = default;
};

class TravelLocator : public QObject {
    Q_OBJECT
public:
    explicit TravelLocator(QObject* parent = nullptr);
    ~TravelLocator() override;

    // Called every tick. Returns at once; a lookup completes later on this object's thread.
    void check(const Config& cfg, const QDateTime& now);
    // Saved settings: forget the location and the last lookup, so the next tick looks again.
    void clear();

    const std::optional<TravelCoords>& travelCoords() const { return coords_; }
    const std::optional<QDateTime>& lastGeoCheck() const { return lastCheck_; }

    // The build's endpoint (TARVANEL_GEO_ENDPOINT), replaceable at run time.
    static QUrl defaultEndpoint();
    void setEndpoint(const QUrl& url) { endpoint_ = url; }
    QUrl endpoint() const { return endpoint_; }

    // The reply's latitude, longitude and city ("Travelling" without one); absent when the
    // body is not a JSON object with numeric coordinates.
    static std::optional<TravelCoords> parseReply(const QByteArray& body);

    // Decides on a parsed location against the home coordinates of the last check().
    void applyLocation(const TravelCoords& found);

    // The controller clears its cached day key here.
    std::function<void()> onScheduleInvalidated;

signals:
    // A lookup finished, whatever its outcome (tests wait on it).
    void lookupFinished();

private:
    void startLookup();

    QUrl endpoint_;
    QNetworkAccessManager* network_ = nullptr;
    std::optional<TravelCoords> coords_;
    std::optional<QDateTime> lastCheck_;
    double homeLat_ = 0;
    double homeLon_ = 0;
};

} // namespace tarvanel
