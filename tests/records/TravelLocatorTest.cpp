#include "records/TravelLocator.h"
#include "base/Log.h"
#include "support/TestEnv.h"

#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimeZone>
#include <QTimer>
#include <memory>

using namespace tarvanel;

namespace {

class TravelLocatorTest : public test::ScratchTest {
protected:
    // A one-route HTTP server on loopback answers every request with `status` and `body`.
    void SetUp() override {
        ScratchTest::SetUp();
        server.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&server, &QTcpServer::newConnection, [this] {
            while (QTcpSocket* s = server.nextPendingConnection()) {
                QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] {
                    buffer[s] += s->readAll();
                    if (!buffer[s].contains("\r\n\r\n")) return;
                    requestLines << QString::fromLatin1(buffer[s].left(buffer[s].indexOf("\r\n")));
                    s->write("HTTP/1.1 " + QByteArray::number(status) +
                             " X\r\nContent-Type: application/json\r\nContent-Length: " +
                             QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" +
                             body);
                    s->disconnectFromHost();
                });
                QObject::connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
            }
        });
        locator = std::make_unique<TravelLocator>();
        locator->setEndpoint(QUrl(QString("http://127.0.0.1:%1/json/").arg(server.serverPort())));
        locator->onScheduleInvalidated = [this] { ++invalidations; };
        cfg.latitude = 51.5074; // London
        cfg.longitude = -0.1278;
        cfg.travelMode = true;
    }

    // Runs one check and waits for its lookup to finish; false on a time-out.
    bool checkAndWait(const QDateTime& now) {
        bool finished = false;
        auto c = QObject::connect(locator.get(), &TravelLocator::lookupFinished,
                                  [&] { finished = true; });
        locator->check(cfg, now);
        test::waitFor([&] { return finished; });
        QObject::disconnect(c);
        return finished;
    }

    QDateTime at(int hours) const { return start.addSecs(qint64(hours) * 3600); }

    QTcpServer server;
    QHash<QTcpSocket*, QByteArray> buffer;
    int status = 200;
    QByteArray body;
    QStringList requestLines;
    std::unique_ptr<TravelLocator> locator;
    Config cfg;
    int invalidations = 0;
    const QDateTime start = QDateTime(QDate(2025, 3, 1), QTime(9, 0), QTimeZone::utc());
};

const QByteArray paris =
    R"({"ip":"192.0.2.1","city":"Paris","latitude":48.8566,"longitude":2.3522})";
const QByteArray westminster = R"({"city":"Westminster","latitude":51.4975,"longitude":-0.1357})";
} // namespace

TEST_F(TravelLocatorTest, FarRepliesAreAnnouncedSameCityIsSilentAndHomeEndsIt) {
    // Each reply in turn, six hours apart: name shown (absent: back home), invalidations, logs.
    const struct {
        QByteArray body;
        std::optional<TravelCoords> coords;
        int invalidations;
        const char* log;
    } steps[] = {
        // clang-format off
        {paris, TravelCoords{48.8566, 2.3522, "Paris"}, 1, "Tarvanel: travel mode \u2192 Paris"},
        {R"({"city":"Paris","latitude":48.86,"longitude":2.36})", TravelCoords{48.86, 2.36, "Paris"},
         1, nullptr},
        {R"({"latitude": 40.4168, "longitude": -3.7038, "city": null})",
         TravelCoords{40.4168, -3.7038, "Travelling"}, 2, "Tarvanel: travel mode \u2192 Travelling"},
        {westminster, std::nullopt, 3, "Tarvanel: travel mode \u2192 home"},
        {westminster, std::nullopt, 3, nullptr}};
    // clang-format on
    QStringList expectedLogs;
    int hours = 0;
    for (const auto& step : steps) {
        SCOPED_TRACE(step.body.toStdString());
        body = step.body;
        ASSERT_TRUE(checkAndWait(at(hours)));
        EXPECT_EQ(locator->travelCoords(), step.coords);
        EXPECT_EQ(locator->lastGeoCheck(), at(hours));
        EXPECT_EQ(invalidations, step.invalidations);
        if (step.log) expectedLogs << QString::fromUtf8(step.log);
        EXPECT_EQ(logs, expectedLogs);
        hours += 6;
    }
    EXPECT_EQ(requestLines.size(), 5);
    EXPECT_EQ(requestLines[0], "GET /json/ HTTP/1.1");
}

TEST_F(TravelLocatorTest, BadRepliesAndNoServerChangeNothingAndWaitSixHours) {
    // Not JSON, the wrong shape, a wrong type, a missing field, an error status.
    const QList<std::pair<int, QByteArray>> replies = {
        {200, "not json"},
        {200, "[48.8, 2.3]"},
        {200, R"({"latitude": "48.8", "longitude": 2.35})"},
        {200, R"({"city": "Paris", "latitude": 48.8})"},
        {500, paris},
        {429, R"({"error": true})"}};
    for (const auto& [code, reply] : replies) {
        SCOPED_TRACE(code);
        status = code;
        body = reply;
        locator->clear();
        ASSERT_TRUE(checkAndWait(at(0)));
        EXPECT_FALSE(locator->travelCoords().has_value());
        EXPECT_EQ(locator->lastGeoCheck(), at(0));
    }
    EXPECT_EQ(requestLines.size(), replies.size());
    EXPECT_TRUE(logs.isEmpty());
    EXPECT_EQ(invalidations, 0);

    // Within six hours of the failed lookup nothing is sent.
    status = 200;
    body = paris;
    locator->check(cfg, at(5));
    EXPECT_EQ(locator->lastGeoCheck(), at(0));
    ASSERT_TRUE(checkAndWait(at(6)));
    EXPECT_EQ(requestLines.size(), replies.size() + 1);
    EXPECT_TRUE(locator->travelCoords().has_value());
    logs.clear();

    // No server listening (port 1 on loopback refuses) is just another failed lookup.
    locator->clear(); // forgets the location and the last lookup
    EXPECT_FALSE(locator->travelCoords().has_value() || locator->lastGeoCheck().has_value());
    locator->setEndpoint(QUrl("http://127.0.0.1:1/json/"));
    ASSERT_TRUE(checkAndWait(at(7)));
    EXPECT_FALSE(locator->travelCoords().has_value());
    EXPECT_EQ(locator->lastGeoCheck(), at(7));
    EXPECT_TRUE(logs.isEmpty());
}

TEST_F(TravelLocatorTest, TravelModeOffNeverAsksAndFiftyKilometresIsHome) {
    body = paris;
    ASSERT_TRUE(checkAndWait(at(0)));
    cfg.travelMode = false; // drops the location without a log line
    locator->check(cfg, at(8));
    EXPECT_FALSE(locator->travelCoords().has_value());
    EXPECT_EQ(invalidations, 2);
    cfg.travelMode = std::nullopt; // absent counts as off
    locator->check(cfg, at(16));
    QEventLoop().processEvents();
    EXPECT_EQ(requestLines.size(), 1);
    EXPECT_EQ(logs.size(), 1);

    // Fifty kilometres from home (here 0° N 0° E) is still home.
    locator->check(Config{}, at(24));
    const double kmPerDegree = 12742 * M_PI / 360;
    for (double km : {49.9, 50.1, 49.9}) {
        locator->applyLocation({km / kmPerDegree, 0, "Near"});
        EXPECT_EQ(locator->travelCoords().has_value(), km > 50) << km;
    }
}

TEST_F(TravelLocatorTest, AReplyAfterTheLocatorIsGoneDoesNothing) {
    body = paris;
    locator->check(cfg, at(0));
    locator.reset();
    // Let the request and any hand-back run; nothing may touch the destroyed locator.
    QEventLoop loop;
    QTimer::singleShot(500, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_TRUE(logs.isEmpty());
    EXPECT_EQ(invalidations, 0);
}
