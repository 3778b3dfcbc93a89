// Uninstalling: the service first (its file must still be there to be disabled), then the
// files, then the program itself.
#include "app/Agent.h"

#include "app/CommandLine.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "records/UserDefaults.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QObject>

namespace tarvanel {

namespace {

const QString name = QLatin1String(appDisplayName);
const QString unit = QLatin1String(appLabel) + QStringLiteral(".service");

void removeFilesAndProgram(Platform& platform, bool deleteData) {
    for (const QString& path : {agentUnitPath(), autostartPath(), menuEntryPath(), menuIconPath()})
        QFile::remove(path);
    if (deleteData) {
        QDir(supportDir()).removeRecursively();
        QDir(UserDefaults::folder()).removeRecursively();
    }
    const QString exe = executablePath();
    const QString home = homeDir();
    if (exe.startsWith(home + QStringLiteral("/.local/bin/")) ||
        exe.startsWith(home + QStringLiteral("/Applications/"))) {
        QFile::moveToTrash(exe);
    } else if (exe.startsWith(QStringLiteral("/usr/"))) {
        platform.activateApp();
        //: %1 is the program's name, Tarvanel
        platform.showAlert(
            {QCoreApplication::translate("Agent", "%1 was installed as a package").arg(name),
             //: %1 is the program's name, Tarvanel. Keep the command as it is
             QCoreApplication::translate("Agent",
                                         "%1 no longer runs or starts at login. To remove it "
                                         "from this computer too, run:\n\nsudo apt remove "
                                         "tarvanel")
                 .arg(name),
             {QCoreApplication::translate("Agent", "OK")},
             {},
             false});
    }
    logLine(lcAgent, name + QStringLiteral(": uninstalled"));
}

} // namespace

void uninstallApp(Platform& platform, bool deleteData) {
    auto* context = new QObject; // owns the running tools until the process ends
    const ToolCall tools = toolsBesideEventLoop(context);
    QList<ToolRun> service = {userServiceCommand({QStringLiteral("disable"), unit})};
    // The agent itself is not stopped: a stop would end it before the files go. Its own exit
    // with status 0 below ends the service for good (it restarts only after a failure).
    if (!launchedByAgent()) service << userServiceCommand({QStringLiteral("stop"), unit});
    runInTurn(tools, service, [=, &platform](const ToolResult&) {
        removeFilesAndProgram(platform, deleteData);
        tools(userServiceCommand({QStringLiteral("daemon-reload")}),
              [=, &platform](const ToolResult&) {
                  context->deleteLater();
                  platform.exitProcess(0);
              });
    });
}

ControllerOptions controllerOptions(const CommandLine& cl, Platform& platform) {
    ControllerOptions options;
    options.testLockSeconds = cl.testLockSeconds;
    options.testNudge = cl.testNudge;
    options.underService = launchedByAgent();
    options.programReplaced = appWasReplaced;
    options.removeProgram = [&platform](bool deleteData) { uninstallApp(platform, deleteData); };
    return options;
}

} // namespace tarvanel
