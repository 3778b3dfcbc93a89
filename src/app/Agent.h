#pragma once
// Running as the per-user login service: the hand-off of a copy opened by hand, single instance,
// self-restart after an update, installation of the systemd user unit, and uninstalling.
#include "app/CommandLine.h"
#include "base/InstanceLock.h"
#include "base/ToolRunner.h"
#include "lock/ControllerOptions.h"
#include "platform/Platform.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QObject;

namespace tarvanel {

// True when the environment variable TARVANEL_AGENT equals appLabel exactly.
bool launchedByAgent();

// The running executable (or the one a test named), with symbolic links resolved.
QString executablePath();
void setExecutablePathForTesting(const QString& path); // empty: the running executable
// "device:inode:mtime" of the running executable; absent when it cannot be read.
std::optional<QString> executableStamp();
// Only the agent restarts itself: true once the executable on disk differs from the one that
// was there at the first comparison.
bool appWasReplaced();

// Runs a tool with its output discarded and waits for it; its exit status, or -1 when it cannot
// start. Only for code that runs outside the event loop.
int runTool(const QString& path, const QStringList& arguments);

// Installed: the executable lives under /usr, /opt, ~/.local/bin or ~/Applications.
bool isInApplicationsFolder();
bool isInApplicationsFolder(const QString& executable);

// Where the login service and the menu entry live.
QString agentUnitPath(); // ~/.config/systemd/user/com.velmora.tarvanel.service
QString agentUnitText(const QString& executable);
QString autostartPath(); // ~/.config/autostart/com.velmora.tarvanel.desktop
QString menuEntryPath(); // ~/.local/share/applications/com.velmora.tarvanel.desktop
QString menuIconPath();  // ~/.local/share/icons/hicolor/scalable/apps/…svg
QString menuEntryText(const QString& executable, bool autostart);
// "systemctl --user" with `arguments`; tests point the program at a script.
ToolRun userServiceCommand(const QStringList& arguments);
void setSystemctlForTesting(const QString& path); // empty: "systemctl" from PATH

// How the installer runs its tools: beside the event loop inside the application, or waiting
// (each tool within its time limit) on the command line, where no event loop runs.
using ToolCall = std::function<void(const ToolRun&, std::function<void(const ToolResult&)>)>;
ToolCall toolsBesideEventLoop(QObject* context);
ToolCall toolsWaiting();
// Runs `runs` (at least one) one after another; `done` gets the last one's result.
void runInTurn(const ToolCall& tools, QList<ToolRun> runs,
               std::function<void(const ToolResult&)> done);

struct InstallOutcome {
    bool ok = false;
    bool autostart = false; // no user service manager: started through ~/.config/autostart
    QString reason;         // why it failed, or how it was started instead
};
// Writes the unit (a packaged copy uses the one its package installed), reloads the service
// manager, stops an older agent and enables and starts the new one. Without a user service
// manager: an autostart entry, and the agent started detached.
void installAgent(const ToolCall& tools, std::function<void(const InstallOutcome&)> done);
InstallOutcome installAgent(); // waits: the --install-agent command

// A copy not started by the service, before any desktop object exists: asks a running agent to
// show its settings, or installs and starts the agent, or offers to move this copy to
// ~/.local/bin. `finish` gets the exit status. Without a display `platform` is null: the
// questions are logged and answered with their last button.
// With `importFile`, a running copy is asked to open it in its import window instead.
void handOffToAgent(Platform* platform, std::function<void(int status)> finish,
                    const QString& importFile = {});

// Stops and removes the service, the menu entry and (when asked) the data, moves a copy the
// user installed to the trash, then ends the process with status 0.
void uninstallApp(Platform& platform, bool deleteData);

// The controller's options from the command line, with this process's part in the login service.
ControllerOptions controllerOptions(const CommandLine& cl, Platform& platform);

} // namespace tarvanel
