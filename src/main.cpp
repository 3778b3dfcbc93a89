// Process entry: terminal commands run and exit; a copy the login service did not start hands
// off to it and ends; the service's copy (or a test run) starts the tray application.
#include "app/Agent.h"
#include "app/CommandLine.h"
#include "base/Language.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "desktop/DesktopApp.h"
#include "desktop/DisplayCheck.h"
#include "desktop/QtPlatform.h"
#include "desktop/UiLanguage.h"
#include "engine/Clock.h"
#include "engine/Config.h"
#include "records/UserDefaults.h"

#include <QApplication>
#include <QStringList>
#include <QTimer>
#include <cstdio>
#include <memory>

using namespace tarvanel;

static void write(const QString& text, FILE* stream) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}
static void print(const QString& text) {
    write(text, stdout);
}
static void printError(const QString& text) {
    write(text, stderr);
}

// A copy the user opened by hand hands off to the login agent and ends: only an application
// object (for its questions), no tray, watcher or window.
static int runHandOff(int& argc, char** argv, const QString& importFile) {
    const bool display = !displayProblem(QProcessEnvironment::systemEnvironment());
    std::unique_ptr<QCoreApplication> app;
    std::unique_ptr<QtPlatform> platform;
    if (display) {
        app = std::make_unique<QApplication>(argc, argv);
        QApplication::setApplicationName(QStringLiteral("Tarvanel"));
        useLanguage(UserDefaults().language());
        platform = std::make_unique<QtPlatform>();
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
        applyLanguage(UserDefaults().language());
    }
    QTimer::singleShot(0, app.get(), [&platform, &importFile] {
        handOffToAgent(
            platform.get(), [](int status) { QCoreApplication::exit(status); }, importFile);
    });
    return QCoreApplication::exec();
}

static int runTerminalCommand(const CommandLine& cl) {
    if (cl.times) {
        const TimesOutput out = timesCommand(cl, systemNow());
        if (!out.note.isEmpty()) printError(out.note);
        print(out.table);
        return 0;
    }
    if (cl.help) {
        print(usageText());
        return 0;
    }
    if (cl.version) {
        print(QStringLiteral("tarvanel " TARVANEL_VERSION "\n"));
        return 0;
    }
    if (cl.unknownOption) {
        //: %1 is what the user typed
        printError(
            QStringLiteral("tarvanel: ") +
            QCoreApplication::translate("CommandLine", "unknown option %1").arg(*cl.unknownOption) +
            QStringLiteral("\n") + usageText());
        return 2;
    }
    if (cl.installAgent) {
        const InstallOutcome out = installAgent();
        print(out.ok ? QStringLiteral("✓ ") +
                           QCoreApplication::translate(
                               "CommandLine", "Tarvanel running — look for 🕌 in the tray") +
                           u'\n'
                     : QStringLiteral("✗ ") +
                           QCoreApplication::translate("CommandLine",
                                                       "Tarvanel's login service did not start") +
                           u'\n');
        if (!out.reason.isEmpty()) print(out.reason + QLatin1Char('\n'));
        return out.ok ? 0 : 1;
    }
    return 0;
}

int main(int argc, char** argv) {
    QStringList args;
    for (int i = 0; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    const CommandLine cl = parseCommandLine(args);

    if (cl.times || cl.help || cl.version || cl.unknownOption || cl.installAgent) {
        // Terminal commands speak the user's language too; catalogues need an application.
        QCoreApplication app(argc, argv);
        applyLanguage(UserDefaults().language());
        return runTerminalCommand(cl);
    }
    const bool testRun = cl.testLockSeconds || cl.testNudge;
    if (cl.importFile && !testRun && !launchedByAgent()) {
        // A file from the file manager: the running copy opens it; with none running, this
        // copy is the program and opens it itself.
        if (!acquireInstanceLock()) return runHandOff(argc, argv, *cl.importFile);
        return runDesktopApplication(argc, argv, cl);
    }
    if (!testRun && !launchedByAgent()) return runHandOff(argc, argv, {});
    if (launchedByAgent()) {
        // The agent keeps its own log; standard error goes to the journal.
        ensureSupportDir();
        setLogFile(supportPath(QStringLiteral("log.txt")));
    }
    return runDesktopApplication(argc, argv, cl);
}
