#pragma once
// Running as the per-user login service: single instance, self-restart after an update,
// installation of the systemd user unit, and uninstalling.
#include "platform/Platform.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace tarvanel {

// True when the environment variable TARVANEL_AGENT equals appLabel exactly.
bool launchedByAgent();

// A copy not started by the service. For now it says so in one line and keeps running in the
// foreground; installing the service from here comes with the installer work.
void handOffToAgent();

// True when this process now holds ~/.tarvanel/.instance.lock (or the file cannot be opened at
// all); false when another process holds it.
bool acquireInstanceLock();
void releaseInstanceLockForTesting();

// ~/.tarvanel/.show-settings
QString showSettingsMarker();

// "device:inode:mtime" of the running executable; absent when it cannot be read.
std::optional<QString> executableStamp();
// Only the agent restarts itself: true once the executable on disk differs from the one that
// was there at the first comparison.
bool appWasReplaced();
void setExecutablePathForTesting(const QString& path); // empty: the running executable

// Runs a tool with its output discarded; its exit status, or -1 when it cannot start.
int runTool(const QString& path, const QStringList& arguments);

// ~/.config/systemd/user/com.velmora.tarvanel.service
QString agentUnitPath();
QString agentUnitText(const QString& executable);
// The systemctl used to drive the unit; tests point it at a script.
void setSystemctlForTesting(const QString& path); // empty: "systemctl" from PATH
// Writes the unit and (re)starts it: true when the service manager accepted it.
bool installAgent();

// Absent when cancelled; otherwise whether to delete the user's data too.
std::optional<bool> confirmUninstall(Platform& platform, const QString& extra);
// Removes the unit (and the data when asked), stops the service, then ends the process.
void uninstallApp(Platform& platform, bool deleteData);

} // namespace tarvanel
