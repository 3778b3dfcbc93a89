// Call presence over fake /proc trees, and the adhan file's order of preference.
#include "lock/Presence.h"
#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>

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
    EXPECT_FALSE(Presence::micInUse());
    EXPECT_FALSE(Presence::cameraInUse());
    EXPECT_FALSE(Presence::inCall());

    link("/proc/2001/fd/7", "/dev/video2");
    EXPECT_TRUE(Presence::cameraInUse());
    EXPECT_TRUE(Presence::inCall());
    QFile::remove(root + "/proc/2001/fd/7");
    file("/asound/card1/pcm0c/sub1/status", "state: RUNNING\nowner_pid   : 4242\n");
    EXPECT_TRUE(Presence::micInUse());
    EXPECT_TRUE(Presence::inCall());
}

TEST_F(PresenceTest, SoundServerAnswerWinsOverDevices) {
    file("/pactl", "#!/bin/sh\necho '7\t1\t12\tprotocol-native.c\ts16le 1ch 48000Hz'\n");
    Presence::roots().soundServerTool = root + "/pactl";
    EXPECT_TRUE(Presence::micInUse());

    file("/pactl", "#!/bin/sh\nexit 0\n");
    file("/asound/card0/pcm0c/sub0/status", "state: RUNNING\n");
    EXPECT_FALSE(Presence::micInUse());

    // A failing tool (no server) falls back to the devices.
    file("/pactl", "#!/bin/sh\nexit 1\n");
    EXPECT_TRUE(Presence::micInUse());
    Presence::roots().soundServerTool = root + "/missing-tool";
    EXPECT_TRUE(Presence::micInUse());
}

TEST_F(PresenceTest, AdhanFilePrefersMp3ThenM4aAiffWav) {
    EXPECT_FALSE(adhanFileURL().has_value());
    writeSupportFile("adhan.wav", "x");
    EXPECT_EQ(adhanFileURL(), supportPath("adhan.wav"));
    writeSupportFile("adhan.aiff", "x");
    EXPECT_EQ(adhanFileURL(), supportPath("adhan.aiff"));
    writeSupportFile("adhan.mp3", "x");
    EXPECT_EQ(adhanFileURL(), supportPath("adhan.mp3"));
    QDir().mkpath(supportPath("adhan.m4a")); // a folder is not a sound
    QFile::remove(supportPath("adhan.mp3"));
    EXPECT_EQ(adhanFileURL(), supportPath("adhan.aiff"));
}

} // namespace
