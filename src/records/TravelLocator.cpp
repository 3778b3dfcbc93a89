#include "records/TravelLocator.h"
#include "base/Log.h"
#include "records/Modes.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QThreadPool>

namespace tarvanel {
namespace {
constexpr qint64 recheckMs = 21600LL * 1000; // six hours
constexpr double homeRadiusKm = 50;
constexpr qint64 maxReplyBytes = 1 << 20; // the real answer is well under 2 kB
constexpr int transferTimeoutMs = 30000;
} // namespace

TravelLocator::TravelLocator(QObject* parent) : QObject(parent), endpoint_(defaultEndpoint()) {}

TravelLocator::~TravelLocator() = default;

QUrl TravelLocator::defaultEndpoint() {
    return QUrl(QStringLiteral(TARVANEL_GEO_ENDPOINT));
}

void TravelLocator::check(const Config& cfg, const QDateTime& now) {
    // A reply is judged against the home of the latest tick, not the one of its request.
    homeLat_ = cfg.latitude;
    homeLon_ = cfg.longitude;
    if (!cfg.travelOn()) {
        if (coords_) {
            coords_.reset();
            if (onScheduleInvalidated) onScheduleInvalidated();
        }
        return;
    }
    if (lastCheck_ && lastCheck_->msecsTo(now) < recheckMs) return;
    // Set before the request: a failed lookup waits six hours like a good one.
    lastCheck_ = now;
    startLookup();
}

void TravelLocator::clear() {
    coords_.reset();
    lastCheck_.reset();
}

std::optional<TravelCoords> TravelLocator::parseReply(const QByteArray& body) {
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) return std::nullopt;
    const QJsonObject object = doc.object();
    const QJsonValue lat = object.value(QLatin1String("latitude"));
    const QJsonValue lon = object.value(QLatin1String("longitude"));
    if (!lat.isDouble() || !lon.isDouble()) return std::nullopt;
    const QJsonValue city = object.value(QLatin1String("city"));
    //: Stands for the place's name while travelling when the location service names no city.
    return TravelCoords{lat.toDouble(), lon.toDouble(),
                        city.isString() ? city.toString()
                                        : QCoreApplication::translate("Travel", "Travelling")};
}

void TravelLocator::applyLocation(const TravelCoords& found) {
    const double d = distanceKm(found.lat, found.lon, homeLat_, homeLon_);
    QString name;
    if (d <= homeRadiusKm) {
        if (!coords_) return;
        coords_.reset();
        name = QStringLiteral("home");
    } else {
        const bool samePlaceName = coords_ && coords_->name == found.name;
        const bool wasTravelling = coords_.has_value();
        coords_ = found;
        if (wasTravelling && samePlaceName) return; // moved within the city: no new schedule
        name = found.name;
    }
    if (onScheduleInvalidated) onScheduleInvalidated();
    logLine(lcRecords, QStringLiteral("Tarvanel: travel mode \u2192 ") + name);
}

void TravelLocator::startLookup() {
    if (!network_) network_ = new QNetworkAccessManager(this);
    QNetworkRequest request(endpoint_);
    request.setTransferTimeout(transferTimeoutMs);
    QNetworkReply* reply = network_->get(request);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > maxReplyBytes) reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        reply->deleteLater();
        const QByteArray body =
            reply->error() == QNetworkReply::NoError ? reply->readAll() : QByteArray();
        QCoreApplication* app = QCoreApplication::instance();
        if (body.isEmpty() || !app) {
            emit lookupFinished();
            return;
        }
        // Parse elsewhere; hand the result back through the event loop of the main thread,
        // where the locator lives, and only if it still exists then.
        QPointer<TravelLocator> self(this);
        QThreadPool::globalInstance()->start([self, body, app] {
            std::optional<TravelCoords> found = parseReply(body);
            QMetaObject::invokeMethod(
                app,
                [self, found] {
                    if (!self) return;
                    if (found) self->applyLocation(*found);
                    emit self->lookupFinished();
                },
                Qt::QueuedConnection);
        });
    });
}

} // namespace tarvanel
