// The real program on its own Xvfb display with two monitors: test locks, the guardian code typed
// with xdotool, a monitor unplugged mid-lock, the test reminder, the tray icon, and the agent
// locking at a prayer under a sped-up fake clock.
#include "XSession.h"
#include "engine/Config.h"
#include "guardian/Guardian.h"
#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

const QRect leftHalf(0, 0, 1280, 800);
const QRect rightHalf(1280, 0, 1280, 800);

bool haveTools() {
    for (const char* tool : {"Xvfb", "xrandr", "xwd", "convert", "xdotool", "xdpyinfo"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) return false;
    return true;
}

// The program as a child process whose standard error is collected as it comes.
class Program {
public:
    Program(const XSession& x, const QStringList& args,
            const QProcessEnvironment& extra = QProcessEnvironment()) {
        QProcessEnvironment env = x.environment(QProcessEnvironment::systemEnvironment());
        env.insert(QStringLiteral("HOME"), scratchHome());
        env.insert(QStringLiteral("TZ"), QStringLiteral("Europe/London"));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime_.path());
        env.remove(QStringLiteral("TARVANEL_AGENT"));
        for (const QString& key : extra.keys())
            env.insert(key, extra.value(key));
        process_.setProcessEnvironment(env);
        QObject::connect(&process_, &QProcess::readyReadStandardError,
                         [this] { log_ += QString::fromUtf8(process_.readAllStandardError()); });
        started_.start();
        process_.start(QString::fromLocal8Bit(TARVANEL_BINARY), args);
        process_.waitForStarted(5000);
    }
    ~Program() {
        if (process_.state() != QProcess::NotRunning) {
            process_.kill();
            process_.waitForFinished(3000);
        }
    }
    bool running() const { return process_.state() != QProcess::NotRunning; }
    // Waits for the end; the exit status, or -1 on a crash or timeout.
    int finish(int timeoutMs) {
        if (!waitFor([this] { return !running(); }, timeoutMs)) return -1;
        log_ += QString::fromUtf8(process_.readAllStandardError());
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }
    bool waitForLog(const QString& text, int timeoutMs) {
        return waitFor([&] { return log_.contains(text) || !running(); }, timeoutMs) &&
               log_.contains(text);
    }
    void terminate() { process_.terminate(); }
    qint64 elapsed() const { return started_.elapsed(); }
    const QString& log() const { return log_; }

private:
    QTemporaryDir runtime_;
    QProcess process_;
    QString log_;
    QElapsedTimer started_;
};

class EndToEnd : public ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        if (!haveTools()) GTEST_SKIP() << "Xvfb and the X tools are not installed";
        ASSERT_TRUE(x.start());
        ASSERT_TRUE(x.splitIntoTwoMonitors());
    }
    // Polls screenshots until both monitors look locked; the time it took, or -1.
    qint64 waitUntilBothLocked(int timeoutMs, QImage* shot = nullptr, int* shots = nullptr) {
        QElapsedTimer t;
        t.start();
        if (shots) *shots = 0;
        while (t.elapsed() < timeoutMs) {
            const QImage image = x.screenshot();
            if (shots) ++*shots;
            if (lockedLooking(image, leftHalf) && lockedLooking(image, rightHalf)) {
                if (shot) *shot = image;
                return t.elapsed();
            }
        }
        return -1;
    }
    XSession x;
};

} // namespace

TEST_F(EndToEnd, TestLockCoversBothMonitorsAndEndsOnTime) {
    // Before: the bare root window is not mistaken for a lock.
    const QImage before = x.screenshot();
    ASSERT_FALSE(before.isNull());
    EXPECT_FALSE(lockedLooking(before, leftHalf));

    Program tarvanel(x, {QStringLiteral("--test-lock"), QStringLiteral("3")});
    ASSERT_TRUE(tarvanel.waitForLog(QStringLiteral("Tarvanel: locked for Test until"), 5000))
        << tarvanel.log().toStdString();
    const qint64 lockLogged = tarvanel.elapsed();
    QImage shot;
    int shots = 0;
    const qint64 coveredAfter = waitUntilBothLocked(2500, &shot, &shots);
    ASSERT_GE(coveredAfter, 0) << "both monitors were not covered";
    // A screenshot takes 100-200 ms here, so this bounds the time to cover from above.
    std::printf("[ measure ] lock logged %lld ms after start; both monitors covered in screenshot "
                "%d, %lld ms after the log line\n",
                static_cast<long long>(lockLogged), shots, static_cast<long long>(coveredAfter));
    // The countdown capsule sits under the Arabic line: bright text pixels in the middle band.
    for (const QRect& half : {leftHalf, rightHalf}) {
        const QRect middle(half.x() + half.width() / 3, 400, half.width() / 3, 120);
        EXPECT_GT(coverage(shot, middle).bright, 0.005);
    }

    EXPECT_EQ(tarvanel.finish(8000), 0) << tarvanel.log().toStdString();
    EXPECT_GE(tarvanel.elapsed(), 3000);
    EXPECT_LT(tarvanel.elapsed(), 6500);
    EXPECT_TRUE(tarvanel.log().contains(QStringLiteral("Tarvanel: unlocked after Test")));
    const QImage after = x.screenshot();
    EXPECT_FALSE(lockedLooking(after, leftHalf));
    EXPECT_FALSE(lockedLooking(after, rightHalf));
}

TEST_F(EndToEnd, GuardianCodeTypedOnTheLockScreenEndsItEarly) {
    const QByteArray secret = QByteArray::fromHex("3132333435363738393031323334353637383930");
    Guardian::save(secret);
    ASSERT_TRUE(Guardian::isSet());
    Program tarvanel(x, {QStringLiteral("--test-lock"), QStringLiteral("60")});
    ASSERT_GE(waitUntilBothLocked(6000), 0) << tarvanel.log().toStdString();

    // Keys that would reach the desktop or another program are swallowed.
    x.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("alt+F4")});
    x.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("ctrl+q")});
    x.run(QStringLiteral("xdotool"), {QStringLiteral("type"), QStringLiteral("000000")});
    QThread::msleep(300);
    EXPECT_TRUE(tarvanel.running());

    const QString code = Guardian::code(secret, QDateTime::currentDateTimeUtc());
    ASSERT_EQ(x.run(QStringLiteral("xdotool"), {QStringLiteral("type"), code}), 0);
    const int status = tarvanel.finish(5000);
    EXPECT_EQ(status, 0) << tarvanel.log().toStdString();
    EXPECT_LT(tarvanel.elapsed(), 20000);
    EXPECT_TRUE(tarvanel.log().contains(QStringLiteral("Tarvanel: unlocked after Test")));
}

TEST_F(EndToEnd, UnpluggingAMonitorMidLockKeepsTheOtherLocked) {
    Program tarvanel(x, {QStringLiteral("--test-lock"), QStringLiteral("5")});
    ASSERT_GE(waitUntilBothLocked(5000), 0) << tarvanel.log().toStdString();
    ASSERT_TRUE(x.removeMonitor(QStringLiteral("RIGHT")));
    QThread::msleep(1200);
    ASSERT_TRUE(tarvanel.running()) << tarvanel.log().toStdString();
    // One monitor now spans the whole screen: the rebuilt window covers all of it.
    const QImage shot = x.screenshot();
    EXPECT_TRUE(lockedLooking(shot, leftHalf));
    EXPECT_GT(coverage(shot, QRect(0, 0, 2560, 800)).dark, 0.85);
    EXPECT_EQ(tarvanel.finish(8000), 0) << tarvanel.log().toStdString();
    EXPECT_GE(tarvanel.elapsed(), 5000);
    EXPECT_EQ(tarvanel.log().count(QStringLiteral("Tarvanel: locked for Test")), 1);
}

TEST_F(EndToEnd, TestReminderShowsABannerAndExitsSeventeenSecondsLater) {
    Program tarvanel(x, {QStringLiteral("--test-nudge")});
    QImage shot;
    const bool shown = waitFor(
        [&] {
            shot = x.screenshot();
            // The message's white text inside the card.
            return coverage(shot, QRect(330, 20, 620, 80)).bright > 0.005;
        },
        6000);
    ASSERT_TRUE(shown) << tarvanel.log().toStdString();
    // The card: 640 px wide, centred on the left (main) monitor, 16 px below its top; the
    // card's faint edge differs from the black root just outside it.
    const auto edgeAt = [&](int x, int y) { return shot.pixelColor(x, y).value() > 12; };
    EXPECT_TRUE(edgeAt(320, 90) || edgeAt(321, 90));
    EXPECT_FALSE(edgeAt(318, 90));
    EXPECT_TRUE(edgeAt(959, 90) || edgeAt(958, 90));
    EXPECT_FALSE(edgeAt(961, 90));
    EXPECT_FALSE(edgeAt(640, 14));
    EXPECT_TRUE(edgeAt(640, 16) || edgeAt(640, 17));
    EXPECT_FALSE(coverage(shot, rightHalf).bright > 0); // nothing on the other monitor
    EXPECT_EQ(tarvanel.finish(25000), 0) << tarvanel.log().toStdString();
    EXPECT_GE(tarvanel.elapsed(), 17000);
    EXPECT_LT(tarvanel.elapsed(), 21000);
}

TEST(EndToEndNoDisplay, OneLineAndStatusOne) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    env.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4242"));
    p.setProcessEnvironment(env);
    p.start(QString::fromLocal8Bit(TARVANEL_BINARY),
            {QStringLiteral("--test-lock"), QStringLiteral("2")});
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 1);
    const QString err = QString::fromUtf8(p.readAllStandardError()).trimmed();
    EXPECT_TRUE(err.startsWith(QStringLiteral("Tarvanel: no display available (")))
        << err.toStdString();
    EXPECT_FALSE(err.contains(QLatin1Char('\n'))) << err.toStdString();
}

namespace {

Config londonConfig() {
    Config cfg;
    cfg.locationName = QStringLiteral("London");
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    cfg.method = QStringLiteral("MWL");
    return cfg;
}

QProcessEnvironment agentEnvironment() {
    QProcessEnvironment env;
    env.insert(QStringLiteral("TARVANEL_AGENT"), QStringLiteral("com.velmora.tarvanel"));
    return env;
}

// True when the window tree shows a Tarvanel window inside trayer's panel.
bool trayHoldsTarvanel(const QByteArray& tree) {
    const QList<QByteArray> lines = tree.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines[i].contains("(\"panel\" \"trayer\")")) continue;
        const qsizetype indent = lines[i].size() - lines[i].trimmed().size();
        for (int j = i + 1; j < lines.size(); ++j) {
            const QByteArray& line = lines[j];
            if (line.trimmed().isEmpty()) continue;
            if (line.size() - line.trimmed().size() <= indent) break;
            if (line.contains("(\"tarvanel\" \"Tarvanel\")")) return true;
        }
    }
    return false;
}

} // namespace

TEST_F(EndToEnd, TrayIconAppearsOnceATrayHostStartsAndOpensTheMenu) {
    if (QStandardPaths::findExecutable(QStringLiteral("trayer")).isEmpty() ||
        QStandardPaths::findExecutable(QStringLiteral("xwininfo")).isEmpty())
        GTEST_SKIP() << "trayer or xwininfo is not installed";
    saveConfig(londonConfig());
    Program tarvanel(x, {}, agentEnvironment());
    QThread::msleep(1500); // up and running with no tray host yet
    ASSERT_TRUE(tarvanel.running()) << tarvanel.log().toStdString();

    QProcess trayer;
    trayer.setProcessEnvironment(x.environment(QProcessEnvironment::systemEnvironment()));
    trayer.start(QStringLiteral("trayer"),
                 {QStringLiteral("--edge"), QStringLiteral("top"), QStringLiteral("--align"),
                  QStringLiteral("right"), QStringLiteral("--widthtype"), QStringLiteral("pixel"),
                  QStringLiteral("--width"), QStringLiteral("200"), QStringLiteral("--height"),
                  QStringLiteral("32")});
    ASSERT_TRUE(trayer.waitForStarted(5000));
    QByteArray tree;
    const bool embedded = waitFor(
        [&] {
            x.run(QStringLiteral("xwininfo"), {QStringLiteral("-root"), QStringLiteral("-tree")},
                  &tree);
            return trayHoldsTarvanel(tree);
        },
        8000);
    EXPECT_TRUE(embedded) << tree.toStdString();

    // A click on the icon (the panel's right end) opens the menu built by the core.
    if (embedded) {
        x.run(QStringLiteral("xdotool"),
              {QStringLiteral("mousemove"), QStringLiteral("1268"), QStringLiteral("16"),
               QStringLiteral("click"), QStringLiteral("1")});
        const bool menuOpen = waitFor(
            [&] {
                x.run(QStringLiteral("xwininfo"),
                      {QStringLiteral("-root"), QStringLiteral("-tree")}, &tree);
                static const QRegularExpression popup(
                    QStringLiteral("\\(\"tarvanel\" \"Tarvanel\"\\)\\s+(\\d+)x(\\d+)"));
                for (auto it = popup.globalMatch(QString::fromUtf8(tree)); it.hasNext();) {
                    const auto m = it.next();
                    if (m.captured(1).toInt() > 150 && m.captured(2).toInt() > 150) return true;
                }
                return false;
            },
            5000);
        EXPECT_TRUE(menuOpen) << tree.toStdString();
    }
    trayer.kill();
    trayer.waitForFinished(2000);
}

TEST_F(EndToEnd, AgentLocksEveryMonitorAtThePrayerAndRecordsIt) {
    // The library itself rather than the faketime wrapper, so signals reach the program.
    const QString libfaketime =
        QStringLiteral("/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1");
    if (!QFile::exists(libfaketime)) GTEST_SKIP() << "libfaketime is not installed";
    // Tuesday 3 March 2026 in London (GMT): Dhuhr fixed at 13:00, locked from 13:00 for one
    // minute, no reminders or other banners.
    Config cfg = londonConfig();
    cfg.lockMinutes = 1;
    cfg.lockLeadMinutes = 0;
    cfg.nudgeOffsetsMinutes = {};
    cfg.prayerOverrides =
        QMap<QString, QString>{{QStringLiteral("Dhuhr"), QStringLiteral("13:00")}};
    cfg.jumuahEnabled = false;
    cfg.adhanEnabled = false;
    cfg.weeklyReport = false;
    cfg.ramadanMode = false;
    saveConfig(cfg);

    // Twenty fake seconds before the lock, the clock running ten times as fast.
    QProcessEnvironment env = agentEnvironment();
    env.insert(QStringLiteral("LD_PRELOAD"), libfaketime);
    env.insert(QStringLiteral("FAKETIME"), QStringLiteral("@2026-03-03 12:59:40 x10"));
    env.insert(QStringLiteral("FAKETIME_NO_CACHE"), QStringLiteral("1"));
    Program tarvanel(x, {}, env);
    ASSERT_TRUE(tarvanel.waitForLog(QStringLiteral("Tarvanel: locked for Dhuhr until"), 15000))
        << tarvanel.log().toStdString();
    EXPECT_GE(waitUntilBothLocked(4000), 0) << "the lock did not cover both monitors";
    ASSERT_TRUE(tarvanel.waitForLog(QStringLiteral("Tarvanel: unlocked after Dhuhr"), 15000))
        << tarvanel.log().toStdString();
    QThread::msleep(500);
    const QImage after = x.screenshot();
    EXPECT_FALSE(lockedLooking(after, leftHalf));
    EXPECT_FALSE(lockedLooking(after, rightHalf));

    const auto history = jsonLoad(QStringLiteral("history.json"));
    ASSERT_TRUE(history.has_value());
    EXPECT_TRUE(history->object()
                    .value(QStringLiteral("2026-03-03"))
                    .toArray()
                    .contains(QStringLiteral("Dhuhr")))
        << history->toJson().toStdString();
    const auto state = readWholeFile(supportPath(QStringLiteral("state.json")));
    ASSERT_TRUE(state.has_value());
    EXPECT_TRUE(
        QJsonDocument::fromJson(*state).array().contains(QStringLiteral("2026-03-03-Dhuhr")))
        << state->toStdString();
    EXPECT_EQ(tarvanel.log().count(QStringLiteral("Tarvanel: locked for")), 1)
        << tarvanel.log().toStdString();

    // As the agent, a termination request ends it with status 1 so the service restarts it.
    tarvanel.terminate();
    EXPECT_EQ(tarvanel.finish(5000), 1) << tarvanel.log().toStdString();
}

TEST_F(EndToEnd, AGrabHeldElsewhereIsRetriedUntilTheLockHasTheKeyboard) {
    // Another client holds the keyboard when the lock starts.
    int screenNumber = 0;
    xcb_connection_t* other = xcb_connect(x.display().toLocal8Bit().constData(), &screenNumber);
    ASSERT_EQ(xcb_connection_has_error(other), 0);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(other)).data;
    xcb_grab_keyboard_reply_t* grab =
        xcb_grab_keyboard_reply(other,
                                xcb_grab_keyboard(other, 0, screen->root, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr);
    ASSERT_NE(grab, nullptr);
    EXPECT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    free(grab);

    const QByteArray secret = QByteArray::fromHex("3132333435363738393031323334353637383930");
    Guardian::save(secret);
    Program tarvanel(x, {QStringLiteral("--test-lock"), QStringLiteral("60")});
    EXPECT_TRUE(tarvanel.waitForLog(QStringLiteral("grab refused"), 5000))
        << tarvanel.log().toStdString();
    ASSERT_GE(waitUntilBothLocked(5000), 0);

    // Released: within the next second the lock takes the keyboard and the code gets through.
    xcb_ungrab_keyboard(other, XCB_CURRENT_TIME);
    xcb_flush(other);
    xcb_disconnect(other);
    QThread::msleep(1500);
    ASSERT_TRUE(tarvanel.running());
    xcb_connection_t* probe = xcb_connect(x.display().toLocal8Bit().constData(), &screenNumber);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(probe)).data->root;
    xcb_grab_keyboard_reply_t* again =
        xcb_grab_keyboard_reply(probe,
                                xcb_grab_keyboard(probe, 0, root, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->status, XCB_GRAB_STATUS_ALREADY_GRABBED); // the lock holds it now
    free(again);
    xcb_disconnect(probe);
    const QString code = Guardian::code(secret, QDateTime::currentDateTimeUtc());
    ASSERT_EQ(x.run(QStringLiteral("xdotool"), {QStringLiteral("type"), code}), 0);
    EXPECT_EQ(tarvanel.finish(5000), 0) << tarvanel.log().toStdString();
    EXPECT_LT(tarvanel.elapsed(), 20000);
}
