// Display check, termination signals, sounds and the platform's event-loop services.
#include "desktop/Dialogs.h"
#include "desktop/DisplayCheck.h"
#include "desktop/QtPlatform.h"
#include "desktop/Sounds.h"
#include "desktop/SystemEvents.h"
#include "lock/LockScreenState.h"
#include "records/Log.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>

using namespace tarvanel;

namespace {
void pumpUntil(const std::function<bool()>& done, int ms = 2000) {
    QElapsedTimer t;
    t.start();
    while (!done() && t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}
QProcessEnvironment env(std::initializer_list<std::pair<const char*, const char*>> vars) {
    QProcessEnvironment e;
    for (const auto& [k, v] : vars)
        e.insert(QString::fromLatin1(k), QString::fromLatin1(v));
    return e;
}
} // namespace

TEST(DisplayCheck, HeadlessPlatformsNeedNoServerAndMissingServersAreNamed) {
    EXPECT_FALSE(displayProblem(env({{"QT_QPA_PLATFORM", "offscreen"}})));
    EXPECT_FALSE(displayProblem(env({{"QT_QPA_PLATFORM", "offscreen:configfile=/x.json"}})));
    EXPECT_EQ(displayProblem(env({})), QStringLiteral("DISPLAY is not set"));
    EXPECT_EQ(displayProblem(env({{"QT_QPA_PLATFORM", "xcb"}, {"DISPLAY", ""}})),
              QStringLiteral("DISPLAY is not set"));
    const auto unreachable = displayProblem(env({{"DISPLAY", ":987"}}));
    ASSERT_TRUE(unreachable);
    EXPECT_TRUE(unreachable->contains(QStringLiteral(":987")));
    QTemporaryDir runtime;
    const auto noWayland =
        displayProblem(env({{"QT_QPA_PLATFORM", "wayland"},
                            {"WAYLAND_DISPLAY", "wayland-9"},
                            {"XDG_RUNTIME_DIR", runtime.path().toLocal8Bit().constData()}}));
    ASSERT_TRUE(noWayland);
    EXPECT_TRUE(noWayland->contains(QStringLiteral("wayland-9")));
}

TEST(SystemEvents, TerminationSignalsArriveOnTheEventLoop) {
    SystemEvents events;
    ASSERT_TRUE(events.watchSignals());
    QList<int> received;
    QObject::connect(&events, &SystemEvents::terminateRequested,
                     [&](int number) { received << number; });
    ::raise(SIGHUP);
    EXPECT_TRUE(received.isEmpty()); // not inside the handler
    pumpUntil([&] { return !received.isEmpty(); });
    ::raise(SIGTERM);
    ::raise(SIGINT);
    pumpUntil([&] { return received.size() == 3; });
    EXPECT_EQ(received, (QList<int>{SIGHUP, SIGTERM, SIGINT}));
}

TEST(Sounds, NamedSoundsComeFromTheFreedesktopTheme) {
    EXPECT_EQ(soundThemeEvent(QStringLiteral("Blow")), QStringLiteral("alarm-clock-elapsed"));
    EXPECT_EQ(soundThemeEvent(QStringLiteral("Glass")), QStringLiteral("complete"));
    EXPECT_EQ(soundThemeEvent(QStringLiteral("Sosumi")), QStringLiteral("dialog-warning"));
    EXPECT_FALSE(soundThemeEvent(QStringLiteral("Ping")));

    QTemporaryDir first, second;
    QDir().mkpath(second.path() + QStringLiteral("/sounds/freedesktop/stereo"));
    QFile f(second.path() + QStringLiteral("/sounds/freedesktop/stereo/complete.oga"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_EQ(soundThemeFile(QStringLiteral("complete"), {first.path(), second.path()}),
              f.fileName());
    EXPECT_FALSE(soundThemeFile(QStringLiteral("dialog-warning"), {first.path(), second.path()}));
}

TEST(Sounds, OnlyAudioFilesAreAcceptedAndNothingHangsWithoutADevice) {
    QTemporaryDir dir;
    const QString fake = dir.filePath(QStringLiteral("adhan.mp3"));
    QFile f(fake);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("this is not a sound at all, just words\n");
    f.close();
    EXPECT_FALSE(looksLikeAudio(fake));
    EXPECT_FALSE(looksLikeAudio(dir.filePath(QStringLiteral("missing.wav"))));
    const QString real = QStringLiteral("/usr/share/sounds/freedesktop/stereo/complete.oga");
    if (QFile::exists(real)) {
        EXPECT_TRUE(looksLikeAudio(real));
    }

    QStringList lines;
    setLogSink([&](const QString& line) { lines << line; });
    Sounds sounds;
    EXPECT_FALSE(sounds.playFile(fake));
    QElapsedTimer t;
    t.start();
    sounds.playNamed(QStringLiteral("Glass"));
    sounds.playNamed(QStringLiteral("Blow"));
    sounds.playNamed(QStringLiteral("Unknown"));
    if (QFile::exists(real)) {
        EXPECT_TRUE(sounds.playFile(real));
    }
    pumpUntil([] { return false; }, 200);
    EXPECT_LT(t.elapsed(), 2000);
    // Whatever the machine has, at most one line about a missing device.
    EXPECT_LE(lines.filter(QStringLiteral("no sound device")).size(), 1);
    setLogSink(nullptr);
}

TEST(QtPlatform, EventLoopServicesAndTheSettingsNote) {
    QtPlatform platform;
    QStringList order;
    platform.post([&] { order << QStringLiteral("posted"); });
    platform.singleShot(50, [&] { order << QStringLiteral("later"); });
    order << QStringLiteral("now");
    pumpUntil([&] { return order.size() == 3; });
    EXPECT_EQ(order, (QStringList{"now", "posted", "later"}));

    EXPECT_EQ(platform.screenCount(), 2);
    EXPECT_FALSE(platform.settingsWindowOpen());
    platform.openSettingsWindow(false);
    EXPECT_TRUE(platform.settingsWindowOpen());
    platform.openSettingsWindow(true); // replaces, never stacks
    pumpUntil([] { return false; }, 20);
    int notes = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        notes += qobject_cast<SettingsNote*>(w) && w->isVisible();
    EXPECT_EQ(notes, 1);
}

TEST(QtPlatform, LockKeysAndScreenChangesReachTheCore) {
    struct Events : PlatformEvents {
        QList<std::pair<LockKey, QString>> keys;
        void launchFinished() override {}
        void tick() override {}
        void lockKey(LockKey key, const QString& text) override { keys.append({key, text}); }
        void screensChanged() override {}
        void showSettingsRequested() override {}
        void poweringOff() override {}
        void terminateRequested() override {}
    } events;
    QtPlatform platform;
    platform.setEvents(&events);
    LockScreenState state;
    platform.showLockWindows({{QStringLiteral("Test"), Quote{}}}, &state);
    ASSERT_EQ(platform.lockWindows().windows().size(), 2);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_3, Qt::KeypadModifier, QStringLiteral("3"));
    QCoreApplication::sendEvent(platform.lockWindows().windows().last(), &key);
    ASSERT_EQ(events.keys.size(), 1);
    EXPECT_EQ(events.keys.first().second, QStringLiteral("3"));
    platform.closeLockWindows();
    EXPECT_FALSE(platform.lockWindows().up());
}
