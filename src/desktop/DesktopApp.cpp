#include "desktop/DesktopApp.h"

#include "app/Agent.h"
#include "desktop/DisplayCheck.h"
#include "desktop/QtPlatform.h"
#include "desktop/SystemEvents.h"
#include "desktop/UiLanguage.h"
#include "records/UserDefaults.h"

#include <QApplication>
#include <QProcessEnvironment>
#include <QTimer>
#include <cstdio>

#ifdef TARVANEL_HAVE_CONTROLLER
#include "lock/AppDelegate.h"
#endif

namespace tarvanel {

namespace {

void printLine(const QString& text) {
    const QByteArray bytes = (text + QLatin1Char('\n')).toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

int runDesktopApplication(int& argc, char** argv, const CommandLine& cl) {
    // Qt's ffmpeg media backend crashes on some machines; GStreamer plays every adhan format.
    qputenv("QT_MEDIA_BACKEND", "gstreamer");

    // A Wayland session without XWayland: Qt's own Wayland platform, when it is installed.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && qtWaylandInstalled())
        qputenv("QT_QPA_PLATFORM", "wayland");
    if (const auto problem = displayProblem(QProcessEnvironment::systemEnvironment())) {
        printLine(QStringLiteral("Tarvanel: no display available (") + *problem +
                  QStringLiteral(")"));
        return 1;
    }

#ifdef TARVANEL_HAVE_CONTROLLER
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarvanel"));
    // No display name: Qt would append " — Tarvanel" to every window title that does not end
    // with it ("Tarvanel Settings — Tarvanel").
    QApplication::setQuitOnLastWindowClosed(false);
    useLanguage(UserDefaults().language());

    QtPlatform platform;
    AppDelegate delegate(platform, controllerOptions(cl, platform));
    platform.setEvents(&delegate);
    platform.tray().setMenuProvider([&delegate] { return delegate.buildMenu(); });

    SystemEvents system;
    QObject::connect(&system, &SystemEvents::terminateRequested, &app,
                     [&delegate](int) { delegate.terminateRequested(); });
    QObject::connect(&system, &SystemEvents::poweringOff, &app,
                     [&delegate] { delegate.poweringOff(); });
    QObject::connect(&system, &SystemEvents::showSettingsRequested, &app,
                     [&delegate] { delegate.showSettingsRequested(); });
    QObject::connect(&system, &SystemEvents::importFileRequested, &app,
                     [&delegate](const QString& path) { delegate.openTimetableImport(path); });

    QTimer tick;
    tick.setInterval(1000);
    QObject::connect(&tick, &QTimer::timeout, &app, [&delegate] { delegate.tick(); });

    QTimer::singleShot(0, &app, [&] {
        // The hand-off and the single-instance lock come first: a copy that ends there has
        // shown nothing and watched nothing. The title set meanwhile waits in the tray.
        delegate.launchFinished();
        system.watchSignals();
        const bool testRun = cl.testLockSeconds.has_value() || cl.testNudge;
        if (!testRun) {
            system.watchPowerOff();
            system.answerOtherCopies();
            platform.tray().ensureCreated();
            if (cl.importFile) delegate.openTimetableImport(*cl.importFile);
        }
        tick.start();
    });
    return app.exec();
#else
    (void)argc;
    (void)argv;
    (void)cl;
    printLine(QStringLiteral("Tarvanel: this build has no lock controller; only the terminal "
                             "commands work"));
    return 1;
#endif
}

} // namespace tarvanel
