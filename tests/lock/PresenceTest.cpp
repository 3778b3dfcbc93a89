// Call presence over fake /proc trees, and the adhan file's order of preference.
#include "lock/Presence.h"
#include "app/ToolRunner.h"
#include "records/StateFiles.h"
#include "support/TestEnv.h"

#include <QCoreApplication>
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
        QElapsedTimer t;
        t.start();
        while (m.askingSoundServer() && t.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
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

TEST(ToolRunnerTest, AnswersThroughTheEventLoopOnceWhateverHappens) {
    struct Case {
        QString program;
        QStringList args;
        int limitMs, status;
        bool timedOut;
        QByteArray output;
    };
    for (const Case& c : {Case{"/bin/sh", {"-c", "echo hi; exit 3"}, 5000, 3, false, "hi\n"},
                          Case{"/nonexistent/tool", {}, 5000, -1, false, ""},
                          Case{"/bin/sh", {"-c", "kill -9 $$"}, 5000, -1, false, ""},
                          Case{"/bin/sleep", {"30"}, 200, -1, true, ""}}) {
        SCOPED_TRACE(c.program.toStdString());
        QObject context;
        int answers = 0;
        ToolResult got;
        runToolAsync({c.program, c.args, c.limitMs, true}, &context, [&](const ToolResult& r) {
            ++answers;
            got = r;
        });
        EXPECT_EQ(answers, 0); // never synchronously
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < 3000 && answers == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        QThread::msleep(100); // a second answer would be queued by now
        QCoreApplication::processEvents();
        EXPECT_EQ(answers, 1);
        EXPECT_EQ(got.status, c.status);
        EXPECT_EQ(got.timedOut, c.timedOut);
        EXPECT_EQ(got.output, c.output);
    }
    // A context that goes first takes its tool along and is never called back.
    int answers = 0;
    {
        QObject context;
        runToolAsync({"/bin/sleep", {"5"}, 5000, false}, &context,
                     [&](const ToolResult&) { ++answers; });
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, 0);
}

// Each file added outranks the last; a folder is not a sound.
TEST_F(PresenceTest, AdhanFilePrefersMp3ThenM4aAiffWav) {
    EXPECT_FALSE(adhanFileURL().has_value());
    for (const QString name : {"adhan.wav", "adhan.aiff", "adhan.mp3"}) {
        writeSupportFile(name, "x");
        EXPECT_EQ(adhanFileURL(), supportPath(name));
    }
    QDir().mkpath(supportPath("adhan.m4a"));
    QFile::remove(supportPath("adhan.mp3"));
    EXPECT_EQ(adhanFileURL(), supportPath("adhan.aiff"));
}

} // namespace
