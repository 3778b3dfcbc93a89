#pragma once
// The real program on its own Xvfb display: one 2560×800 screen split into two monitors,
// screenshots read as "locked" or not, and the program's standard error as it comes.
#include "support/TestEnv.h"

#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace tarvanel::test {

inline const QRect leftHalf(0, 0, 1280, 800);
inline const QRect rightHalf(1280, 0, 1280, 800);
inline const QByteArray secret = QByteArray::fromHex("3132333435363738393031323334353637383930");

// How a region of a screenshot looks.
// Shares of near-white pixels (text, or an uncovered root's weave) and of dark ones (the lock's
// background).
struct Coverage {
    double bright = 0, dark = 0;
    bool greenGlow = false;
};
inline Coverage coverage(const QImage& image, const QRect& region) {
    qint64 bright = 0, dark = 0, total = 0, green = 0;
    const QRect r = region.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); y += 2)
        for (int x = r.left(); x <= r.right(); x += 2) {
            const QColor px = image.pixelColor(x, y);
            ++total;
            bright += px.red() > 200 && px.green() > 200 && px.blue() > 200;
            dark += px.value() < 140;
            green += y < r.top() + r.height() / 5 && x < r.left() + r.width() / 4 &&
                     px.green() > px.red() + 30;
        }
    if (total == 0) return {};
    return {double(bright) / double(total), double(dark) / double(total), green > total / 100};
}
// A lock screen: mostly dark, with the glow and some text.
inline bool lockedLooking(const QImage& image, const QRect& region) {
    const Coverage c = coverage(image, region);
    return c.dark > 0.85 && c.bright > 0.001 && c.bright < 0.08 && c.greenGlow;
}

// The program as a child process whose standard error is collected as it comes.
struct Program {
    // `env` already holds this process's scratch HOME and TZ.
    Program(QProcessEnvironment env, const QStringList& args) {
        env.insert("XDG_RUNTIME_DIR", runtime.path());
        process.setProcessEnvironment(env);
        QObject::connect(&process, &QProcess::readyReadStandardError,
                         [this] { log += QString::fromUtf8(process.readAllStandardError()); });
        started.start();
        process.start(TARVANEL_BINARY, args);
        process.waitForStarted(5000);
    }
    ~Program() {
        process.kill();
        process.waitForFinished(3000);
    }
    bool running() const { return process.state() != QProcess::NotRunning; }
    // Waits for the end; the exit status, or -1 on a crash or timeout.
    int finish(int timeoutMs) {
        if (!waitFor([this] { return !running(); }, timeoutMs)) return -1;
        log += QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    bool waitForLog(const QString& text, int timeoutMs) {
        waitFor([&] { return log.contains(text) || !running(); }, timeoutMs);
        return log.contains(text);
    }
    std::string dump() const { return log.toStdString(); }

    QTemporaryDir runtime;
    QProcess process;
    QString log;
    QElapsedTimer started;
};

// The real program against an Xvfb display of its own: one 2560×800 screen split into two
// monitors.
class EndToEnd : public ScratchTest {
protected:
    void SetUp() override {
        ScratchTest::SetUp();
        for (const char* tool : {"Xvfb", "xrandr", "xwd", "convert", "xdotool", "xdpyinfo"})
            if (QStandardPaths::findExecutable(tool).isEmpty()) GTEST_SKIP() << tool << " missing";
        // -displayfd picks a free display number and writes it to our standard output (or
        // TARVANEL_TEST_DISPLAY names one); -noreset keeps the server up between clients.
        display = qEnvironmentVariable("TARVANEL_TEST_DISPLAY");
        const QStringList where =
            display.isEmpty() ? QStringList{"-displayfd", "1"} : QStringList{display};
        server.start("Xvfb", where + QStringList{"-screen", "0", "2560x800x24", "-noreset",
                                                 "-nolisten", "tcp"});
        QByteArray number;
        while (display.isEmpty() && !number.contains('\n') && server.waitForReadyRead(10000))
            number += server.readAllStandardOutput();
        if (display.isEmpty()) display = ":" + QString::fromLatin1(number.trimmed());
        ASSERT_TRUE(waitFor([&] { return run("xdpyinfo >/dev/null 2>&1") == 0; }, 10000));
        ASSERT_EQ(run("xrandr --setmonitor LEFT 1280/339x800/212+0+0 screen && "
                      "xrandr --setmonitor RIGHT 1280/339x800/212+1280+0 none"),
                  0);
    }
    void TearDown() override {
        server.terminate();
        server.waitForFinished(3000);
        ScratchTest::TearDown();
    }
    // For a client of this display; `agent`: the program as the login service starts it.
    QProcessEnvironment environment(bool agent = false) const {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("QT_QPA_PLATFORM");
        env.remove("WAYLAND_DISPLAY");
        env.insert("DISPLAY", display);
        if (agent) env.insert("TARVANEL_AGENT", "com.velmora.tarvanel");
        return env;
    }
    // A shell command against this display; its exit status, or -1.
    int run(const QString& command, QByteArray* out = nullptr) const {
        QProcess p;
        p.setProcessEnvironment(environment());
        p.start("sh", {"-c", command});
        if (!p.waitForFinished(15000)) return -1; // ~QProcess kills it
        if (out) *out = p.readAllStandardOutput();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }
    QImage screenshot() const {
        QByteArray ppm;
        run("xwd -root -silent | convert xwd:- ppm:-", &ppm);
        return QImage::fromData(ppm, "PPM");
    }
    // Polls screenshots until both monitors look locked; the last one is kept.
    bool bothLocked(int timeoutMs = 0) {
        const auto locked = [&] {
            shot = screenshot();
            return lockedLooking(shot, leftHalf) && lockedLooking(shot, rightHalf);
        };
        return waitFor(locked, timeoutMs);
    }
    QProcess server;
    QString display;
    QImage shot;
};

// A keyboard grab asked for by client `c`; the reply's status.
inline int grabKeyboard(xcb_connection_t* c) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    xcb_grab_keyboard_reply_t* reply = xcb_grab_keyboard_reply(
        c,
        xcb_grab_keyboard(c, 0, root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr);
    const int status = reply ? reply->status : -1;
    free(reply);
    return status;
}

} // namespace tarvanel::test
