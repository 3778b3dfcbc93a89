#include "app/Agent.h"

#include "app/CommandLine.h"
#include "records/Log.h"
#include "records/StateFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvanel {

namespace {

int instanceLockFD = -1;
std::optional<std::optional<QString>> launchStamp; // outer: taken yet; inner: the stamp
QString executableOverride;
QString systemctlOverride;

QString unitName() {
    return QLatin1String(appLabel) + QStringLiteral(".service");
}

QString executablePath() {
    if (!executableOverride.isEmpty()) return executableOverride;
    const QString app =
        QCoreApplication::instance() ? QCoreApplication::applicationFilePath() : QString();
    if (!app.isEmpty()) return app;
    return QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
}

QString systemctl() {
    if (!systemctlOverride.isEmpty()) return systemctlOverride;
    const QString found = QStandardPaths::findExecutable(QStringLiteral("systemctl"));
    return found.isEmpty() ? QStringLiteral("/usr/bin/systemctl") : found;
}

int systemctlUser(const QStringList& args) {
    return runTool(systemctl(), QStringList{QStringLiteral("--user")} + args);
}

} // namespace

bool launchedByAgent() {
    return qEnvironmentVariable("TARVANEL_AGENT") == QLatin1String(appLabel);
}

void handOffToAgent() {
    logLine(
        QStringLiteral("Tarvanel: not started by the login service; running in the foreground"));
}

bool acquireInstanceLock() {
    if (instanceLockFD >= 0) return true;
    ensureSupportDir();
    const QByteArray path = QFile::encodeName(supportPath(QStringLiteral(".instance.lock")));
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return true; // better to run than to refuse to start
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
        instanceLockFD = fd;
        return true;
    }
    ::close(fd);
    return false;
}

void releaseInstanceLockForTesting() {
    if (instanceLockFD < 0) return;
    ::flock(instanceLockFD, LOCK_UN);
    ::close(instanceLockFD);
    instanceLockFD = -1;
}

QString showSettingsMarker() {
    return supportPath(QStringLiteral(".show-settings"));
}

std::optional<QString> executableStamp() {
    const QString path = executablePath();
    if (path.isEmpty()) return std::nullopt;
    struct stat st {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0) return std::nullopt;
    return QStringLiteral("%1:%2:%3")
        .arg(qint32(st.st_dev))
        .arg(quint64(st.st_ino))
        .arg(qint64(st.st_mtim.tv_sec));
}

bool appWasReplaced() {
    if (!launchedByAgent()) return false;
    const std::optional<QString> now = executableStamp();
    if (!now) return false;
    if (!launchStamp) launchStamp = now;
    if (!*launchStamp) return true;
    return **launchStamp != *now;
}

void setExecutablePathForTesting(const QString& path) {
    executableOverride = path;
    launchStamp.reset();
}

int runTool(const QString& path, const QStringList& arguments) {
    QProcess p;
    p.setStandardOutputFile(QProcess::nullDevice());
    p.setStandardErrorFile(QProcess::nullDevice());
    p.start(path, arguments);
    if (!p.waitForStarted(5000)) return -1;
    p.waitForFinished(-1);
    if (p.exitStatus() != QProcess::NormalExit) return -1;
    return p.exitCode();
}

QString agentUnitPath() {
    QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (config.isEmpty()) config = homeDir() + QStringLiteral("/.config");
    return config + QStringLiteral("/systemd/user/") + unitName();
}

QString agentUnitText(const QString& executable) {
    QString exec = executable;
    if (exec.contains(QLatin1Char(' ')) || exec.contains(QLatin1Char('"'))) {
        exec.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        exec.replace(QLatin1Char('"'), QStringLiteral("\\\""));
        exec = QLatin1Char('"') + exec + QLatin1Char('"');
    }
    return QStringLiteral("[Unit]\n"
                          "Description=Tarvanel: locks the screens at prayer times\n"
                          "PartOf=graphical-session.target\n"
                          "After=graphical-session.target\n"
                          "\n"
                          "[Service]\n"
                          "ExecStart=%1\n"
                          "Environment=TARVANEL_AGENT=%2\n"
                          "Restart=on-failure\n"
                          "RestartSec=5\n"
                          "StandardError=append:%3\n"
                          "\n"
                          "[Install]\n"
                          "WantedBy=graphical-session.target\n")
        .arg(exec, QLatin1String(appLabel), supportPath(QStringLiteral("log.txt")));
}

void setSystemctlForTesting(const QString& path) {
    systemctlOverride = path;
}

bool installAgent() {
    const QString unit = agentUnitPath();
    QDir().mkpath(QFileInfo(unit).absolutePath());
    ensureSupportDir();
    if (!writeFileAtomically(unit, agentUnitText(executablePath()).toUtf8())) return false;
    systemctlUser({QStringLiteral("stop"), unitName()}); // an older copy makes way
    systemctlUser({QStringLiteral("daemon-reload")});
    for (int attempt = 0; attempt < 12; ++attempt) {
        if (systemctlUser({QStringLiteral("enable"), QStringLiteral("--now"), unitName()}) == 0)
            return true;
        QThread::msleep(500);
    }
    return false;
}

std::optional<bool> confirmUninstall(Platform& platform, const QString& extra) {
    platform.activateApp();
    const QString name = QLatin1String(appDisplayName);
    const AlertAnswer answer = platform.showAlert(AlertRequest{
        QStringLiteral("Uninstall ") + name + QLatin1Char('?'),
        name + QStringLiteral(" stops running, stops starting at login, and moves to the Trash. ") +
            extra,
        {QStringLiteral("Uninstall"), QStringLiteral("Cancel")},
        QStringLiteral("Also delete my settings and history"),
        true});
    if (answer.response != 1000) return std::nullopt;
    return answer.checkBoxOn;
}

void uninstallApp(Platform& platform, bool deleteData) {
    QFile::remove(agentUnitPath());
    if (deleteData) {
        QDir(supportDir()).removeRecursively();
        QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
        if (config.isEmpty()) config = homeDir() + QStringLiteral("/.config");
        QDir(config + QLatin1Char('/') + QLatin1String(appLabel)).removeRecursively();
    }
    // Only a copy the user installed goes to the Trash; a build tree or a package stays.
    const QString exe = executablePath();
    const QString home = homeDir();
    if (exe.startsWith(home + QStringLiteral("/.local/bin/")) ||
        exe.startsWith(home + QStringLiteral("/Applications/")))
        QFile::moveToTrash(exe);
    logLine(QLatin1String(appDisplayName) + QStringLiteral(": uninstalled"));
    systemctlUser({QStringLiteral("disable"), QStringLiteral("--now"), unitName()});
    platform.exitProcess(0);
}

} // namespace tarvanel
