// Call presence over fake /proc trees, and the adhan file's order of preference.
#include "lock/Presence.h"
#include "base/ToolRunner.h"
#include "base/StateFiles.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

using namespace tarvanel;
using namespace tarvanel::test;

namespace {

class PresenceTest : public ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        root = scratchHome() + "/fake";
        saved = Presence::roots();
        Presence::roots() = {root + "/proc", root + "/asound", {}};
        QDir().mkpath(root + "/proc");
        QDir().mkpath(root + "/asound");
    }
    void TearDown() override {
        Presence::roots() = saved;
        ScratchTest::TearDown();
    }
    void file(const QString& path, const QByteArray& bytes) { writeFile(root + path, bytes, true); }
    void link(const QString& path, const QString& target) {
        QDir().mkpath(QFileInfo(root + path).absolutePath());
        ASSERT_TRUE(QFile::link(target, root + path));
    }
    QString root;
    Presence::Roots saved;
};

// Without a sound server the devices decide: a running capture substream or a video device.
TEST_F(PresenceTest, DevicesInUseMeanACall) {
    file("/asound/card0/pcm0c/sub0/status", "closed\n");
    file("/asound/card0/pcm0p/sub0/status", "state: RUNNING\n"); // playback does not count
    link("/proc/100/fd/1", "/dev/snd/pcmC0D0c");
    link("/proc/self/fd/3", "/dev/video0"); // not a pid: skipped
    EXPECT_FALSE(Presence::micInUse() || Presence::cameraInUse() || Presence::inCall());

    link("/proc/2001/fd/7", "/dev/video2");
    EXPECT_TRUE(Presence::cameraInUse());
    EXPECT_TRUE(Presence::inCall());
    QFile::remove(root + "/proc/2001/fd/7");
    file("/asound/card1/pcm0c/sub1/status", "state: RUNNING\nowner_pid   : 4242\n");
    EXPECT_TRUE(Presence::micInUse());
    EXPECT_TRUE(Presence::inCall());
}

// The sound server is asked beside the event loop: the devices answer until it has, a slow
// server never holds the tick, and a hung one is killed at the limit.
TEST_F(PresenceTest, SoundServerAnswersLaterAndWinsOverDevices) {
    const auto settle = [](PresenceMonitor& m) {
        test::waitFor([&] { return !m.askingSoundServer(); });
    };
    file("/asound/card0/pcm0c/sub0/status", "state: RUNNING\n");
    file("/pactl", "#!/bin/sh\nsleep 0.3\nexit 0\n"); // running, nobody records
    Presence::roots().soundServerTool = root + "/pactl";
    PresenceMonitor m;
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(m.inCall()); // the devices, until the server has answered
    EXPECT_LT(clock.elapsed(), 200);
    settle(m);
    EXPECT_FALSE(m.inCall());

    file("/pactl", "#!/bin/sh\necho '7\t1\t12\tprotocol-native.c\ts16le 1ch 48000Hz'\n");
    QThread::msleep(1000);
    m.inCall(); // a second-old answer: ask again
    settle(m);
    EXPECT_TRUE(m.inCall());

    // A hung server is killed at the limit and the devices answer again.
    file("/pactl", "#!/bin/sh\nexec sleep 30\n");
    Presence::roots().soundServerLimitMs = 300;
    QThread::msleep(1000);
    clock.restart();
    m.inCall();
    EXPECT_LT(clock.elapsed(), 200);
    settle(m);
    EXPECT_LT(clock.elapsed(), 3000);
    QFile::remove(root + "/asound/card0/pcm0c/sub0/status");
    EXPECT_FALSE(m.inCall());
}

} // namespace
