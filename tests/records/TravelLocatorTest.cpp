#include "records/TravelLocator.h"
#include "records/Log.h"
#include "support/TestEnv.h"

#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <memory>

using namespace tarvanel;

namespace {

// A one-route HTTP server on loopback: answers every request with the scripted status and body.
class TinyServer : public QObject {
public:
    int status = 200;
    QByteArray body;
    QStringList requestLines;

    TinyServer() {
        server.listen(QHostAddress::LocalHost, 0);
        connect(&server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = server.nextPendingConnection()) {
                connect(s, &QTcpSocket::readyRead, s, [this, s] {
                    buffer[s] += s->readAll();
                    if (!buffer[s].contains("\r\n\r\n")) return;
                    requestLines << QString::fromLatin1(buffer[s].left(buffer[s].indexOf("\r\n")));
                    s->write("HTTP/1.1 " + QByteArray::number(status) +
                             " X\r\nContent-Type: application/json\r\nContent-Length: " +
                             QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" +
                             body);
                    s->disconnectFromHost();
                });
                connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
            }
        });
    }
    QUrl url() const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/json/").arg(server.serverPort()));
    }

private:
    QTcpServer server;
    QHash<QTcpSocket*, QByteArray> buffer;
};

class TravelLocatorTest : public test::ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        setLogSink([this](const QString& line) { logs << line; });
        locator = std::make_unique<TravelLocator>();
        locator->setEndpoint(server.url());
        locator->onScheduleInvalidated = [this] { ++invalidations; };
        cfg.latitude = 51.5074; // London
        cfg.longitude = -0.1278;
        cfg.travelMode = true;
    }

    // Runs one check and waits for its lookup to finish; false on a time-out.
    bool checkAndWait(const QDateTime& now) {
        QEventLoop loop;
        QTimer timeout;
        timeout.setSingleShot(true);
        QObject::connect(&timeout, &QTimer::timeout, &loop, &QEventLoop::quit);
        bool finished = false;
        auto c = QObject::connect(locator.get(), &TravelLocator::lookupFinished, &loop, [&] {
            finished = true;
            loop.quit();
        });
        locator->check(cfg, now);
        timeout.start(10000);
        loop.exec();
        QObject::disconnect(c);
        return finished;
    }

    QDateTime at(int hours) const { return start.addSecs(qint64(hours) * 3600); }

    TinyServer server;
    std::unique_ptr<TravelLocator> locator;
    Config cfg;
    QStringList logs;
    int invalidations = 0;
    const QDateTime start = QDateTime(QDate(2025, 3, 1), QTime(9, 0), Qt::UTC);
};

const QByteArray paris =
    R"({"ip":"192.0.2.1","city":"Paris","latitude":48.8566,"longitude":2.3522})";
} // namespace

TEST_F(TravelLocatorTest, AFarAwayReplyBecomesTheTravelLocation) {
    server.body = paris;
    ASSERT_TRUE(checkAndWait(at(0)));
    EXPECT_EQ(server.requestLines, QStringList({"GET /json/ HTTP/1.1"}));
    ASSERT_TRUE(locator->travelCoords().has_value());
    EXPECT_EQ(*locator->travelCoords(), (TravelCoords{48.8566, 2.3522, "Paris"}));
    EXPECT_EQ(locator->lastGeoCheck(), at(0));
    EXPECT_EQ(invalidations, 1);
    EXPECT_EQ(logs, QStringList({"Tarvanel: travel mode \u2192 Paris"}));
}

TEST_F(TravelLocatorTest, AReplyWithoutACityIsNamedTravelling) {
    server.body = R"({"latitude": 40.4168, "longitude": -3.7038, "city": null})";
    ASSERT_TRUE(checkAndWait(at(0)));
    ASSERT_TRUE(locator->travelCoords().has_value());
    EXPECT_EQ(locator->travelCoords()->name, QStringLiteral("Travelling"));
    EXPECT_EQ(logs, QStringList({"Tarvanel: travel mode \u2192 Travelling"}));
}

TEST_F(TravelLocatorTest, BadRepliesChangeNothingAndWaitSixHours) {
    const QList<std::pair<int, QByteArray>> replies{
        {200, "not json"},
        {200, "[48.8, 2.3]"},
        {200, R"({"city": "Paris", "latitude": "48.8", "longitude": 2.35})"},
        {200, R"({"city": "Paris", "latitude": 48.8})"},
        {200, ""},
        {200, QByteArray(3000, '\xff')},
        {500, paris},
        {404, paris},
        {429, R"({"error": true, "reason": "RateLimited"})"},
    };
    for (const auto& [status, body] : replies) {
        SCOPED_TRACE(QStringLiteral("%1 %2")
                         .arg(status)
                         .arg(QString::fromLatin1(body.left(40)))
                         .toStdString());
        server.status = status;
        server.body = body;
        locator->clear();
        ASSERT_TRUE(checkAndWait(at(0)));
        EXPECT_FALSE(locator->travelCoords().has_value());
        EXPECT_EQ(locator->lastGeoCheck(), at(0));
    }
    EXPECT_EQ(server.requestLines.size(), replies.size());
    EXPECT_TRUE(logs.isEmpty());
    EXPECT_EQ(invalidations, 0);

    // Within six hours of the failed lookup nothing is sent.
    server.status = 200;
    server.body = paris;
    locator->check(cfg, at(5));
    EXPECT_EQ(locator->lastGeoCheck(), at(0));
    ASSERT_TRUE(checkAndWait(at(6)));
    EXPECT_EQ(server.requestLines.size(), replies.size() + 1);
    EXPECT_TRUE(locator->travelCoords().has_value());
}

TEST_F(TravelLocatorTest, NoServerIsJustAFailedLookup) {
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost, 0));
    const quint16 port = closed.serverPort();
    closed.close();
    locator->setEndpoint(QUrl(QStringLiteral("http://127.0.0.1:%1/json/").arg(port)));
    ASSERT_TRUE(checkAndWait(at(0)));
    EXPECT_FALSE(locator->travelCoords().has_value());
    EXPECT_EQ(locator->lastGeoCheck(), at(0));
    EXPECT_TRUE(logs.isEmpty());
}

TEST_F(TravelLocatorTest, SameCityUpdatesSilentlyAnotherCityAndHomeAreAnnounced) {
    server.body = paris;
    ASSERT_TRUE(checkAndWait(at(0)));
    server.body = R"({"city":"Paris","latitude":48.86,"longitude":2.36})";
    ASSERT_TRUE(checkAndWait(at(6)));
    EXPECT_EQ(*locator->travelCoords(), (TravelCoords{48.86, 2.36, "Paris"}));
    EXPECT_EQ(invalidations, 1);
    EXPECT_EQ(logs.size(), 1);

    server.body = R"({"city":"Lyon","latitude":45.764,"longitude":4.8357})";
    ASSERT_TRUE(checkAndWait(at(12)));
    EXPECT_EQ(locator->travelCoords()->name, QStringLiteral("Lyon"));
    EXPECT_EQ(invalidations, 2);

    server.body = R"({"city":"Westminster","latitude":51.4975,"longitude":-0.1357})";
    ASSERT_TRUE(checkAndWait(at(18)));
    EXPECT_FALSE(locator->travelCoords().has_value());
    EXPECT_EQ(invalidations, 3);
    EXPECT_EQ(logs, QStringList({"Tarvanel: travel mode \u2192 Paris",
                                 "Tarvanel: travel mode \u2192 Lyon",
                                 "Tarvanel: travel mode \u2192 home"}));

    // At home again, a home reply changes nothing.
    ASSERT_TRUE(checkAndWait(at(24)));
    EXPECT_EQ(invalidations, 3);
    EXPECT_EQ(logs.size(), 3);
}

TEST_F(TravelLocatorTest, FiftyKilometresIsStillHome) {
    const double kmPerDegree = 12742 * M_PI / 360;
    locator->check(Config{}, at(0)); // travel mode off: only takes the home coordinates
    locator->applyLocation({49.9 / kmPerDegree, 0, "Near"});
    EXPECT_FALSE(locator->travelCoords().has_value());
    locator->applyLocation({50.1 / kmPerDegree, 0, "Far"});
    EXPECT_TRUE(locator->travelCoords().has_value());
    locator->applyLocation({49.9 / kmPerDegree, 0, "Near"});
    EXPECT_FALSE(locator->travelCoords().has_value());
}

TEST_F(TravelLocatorTest, TravelModeOffNeverAsksAndDropsALocation) {
    server.body = paris;
    ASSERT_TRUE(checkAndWait(at(0)));
    ASSERT_TRUE(locator->travelCoords().has_value());
    cfg.travelMode = false;
    locator->check(cfg, at(7));
    EXPECT_FALSE(locator->travelCoords().has_value());
    EXPECT_EQ(invalidations, 2);
    locator->check(cfg, at(14));
    cfg.travelMode = std::nullopt; // absent counts as off
    locator->check(cfg, at(21));
    QEventLoop().processEvents();
    EXPECT_EQ(server.requestLines.size(), 1);
    EXPECT_EQ(invalidations, 2);
    EXPECT_EQ(logs.size(), 1); // turning it off logs nothing
}

TEST_F(TravelLocatorTest, ClearForgetsTheLocationAndTheLastLookup) {
    server.body = paris;
    ASSERT_TRUE(checkAndWait(at(0)));
    locator->clear();
    EXPECT_FALSE(locator->travelCoords().has_value());
    EXPECT_FALSE(locator->lastGeoCheck().has_value());
    ASSERT_TRUE(checkAndWait(at(1))); // asks again at once
    EXPECT_EQ(server.requestLines.size(), 2);
}

TEST_F(TravelLocatorTest, AReplyAfterTheLocatorIsGoneDoesNothing) {
    server.body = paris;
    locator->check(cfg, at(0));
    locator.reset();
    // Let the request and any hand-back run; nothing may touch the destroyed locator.
    QEventLoop loop;
    QTimer::singleShot(500, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_TRUE(logs.isEmpty());
    EXPECT_EQ(invalidations, 0);
}

TEST_F(TravelLocatorTest, TheBuildsEndpointAsksForJson) {
    EXPECT_TRUE(TravelLocator::defaultEndpoint().path().endsWith(QStringLiteral("/json/")));
    EXPECT_EQ(TravelLocator::defaultEndpoint().scheme(), QStringLiteral("https"));
}
