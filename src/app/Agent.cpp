#include "app/Agent.h"

#include "app/CommandLine.h"
#include "base/Log.h"
#include "base/StateFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvanel {

namespace {

std::optional<std::optional<QString>> launchStamp; // outer: taken yet; inner: the stamp
QString executableOverride;
QString systemctlOverride;
constexpr int toolLimitMs = 30000;
const QString vendorUnitDir = QStringLiteral("/usr/lib/systemd/user/");

QString unitName() {
    return QLatin1String(appLabel) + QStringLiteral(".service");
}

QString configHome() {
    const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    return config.isEmpty() ? homeDir() + QStringLiteral("/.config") : config;
}

QString dataHome() {
    const QString data = qEnvironmentVariable("XDG_DATA_HOME");
    return data.isEmpty() ? homeDir() + QStringLiteral("/.local/share") : data;
}

QString systemctl() {
    if (!systemctlOverride.isEmpty()) return systemctlOverride;
    const QString found = QStandardPaths::findExecutable(QStringLiteral("systemctl"));
    return found.isEmpty() ? QStringLiteral("/usr/bin/systemctl") : found;
}

// A desktop entry's Exec argument: quoted when it holds anything but plain characters, with
// the entry format's own escaping of backslashes on top.
QString desktopExecArgument(const QString& arg) {
    static const QString reserved = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`=%");
    if (std::none_of(arg.begin(), arg.end(), [](QChar c) { return reserved.contains(c); }))
        return arg;
    QString quoted;
    for (const QChar c : arg) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\') quoted += u'\\';
        quoted += c == u'%' ? QStringLiteral("%%") : QString(c);
    }
    QString value = QStringLiteral("\"") + quoted + QStringLiteral("\"");
    return value.replace(u'\\', QStringLiteral("\\\\"));
}

// A packaged copy's unit comes with its package; the service manager then reads it from there.
bool usesVendorUnit(const QString& exe) {
    return exe.startsWith(QStringLiteral("/usr/")) && QFile::exists(vendorUnitDir + unitName());
}

bool startAgentDetached(const QString& exe) {
    QProcess agent;
    agent.setProgram(exe);
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TARVANEL_AGENT"), QLatin1String(appLabel));
    agent.setProcessEnvironment(env);
    agent.setStandardInputFile(QProcess::nullDevice());
    agent.setStandardOutputFile(QProcess::nullDevice());
    // Its lines go to ~/.tarvanel/log.txt, which the agent writes itself.
    agent.setStandardErrorFile(QProcess::nullDevice());
    // Its own session: closing the terminal that installed it must not hang it up.
    agent.setChildProcessModifier([] { ::setsid(); });
    return agent.startDetached();
}

void fallBackToAutostart(const QString& exe,
                         const std::function<void(const InstallOutcome&)>& done) {
    InstallOutcome out;
    out.autostart = true;
    QDir().mkpath(QFileInfo(autostartPath()).absolutePath());
    if (!writeFileAtomically(autostartPath(), menuEntryText(exe, true).toUtf8())) {
        //: %1 is a file
        out.reason = QCoreApplication::translate(
                         "Agent", "no systemd user service manager is running, and %1 cannot be "
                                  "written")
                         .arg(autostartPath());
    } else if (!startAgentDetached(exe)) {
        //: %1 is the program file
        out.reason = QCoreApplication::translate(
                         "Agent", "no systemd user service manager is running, and %1 cannot be "
                                  "started")
                         .arg(exe);
    } else {
        out.ok = true;
        //: %1 is the autostart file that starts the program at login
        out.reason = QCoreApplication::translate(
                         "Agent", "no systemd user service manager is running: it starts at "
                                  "login through %1")
                         .arg(autostartPath());
    }
    logLine(lcAgent, QStringLiteral("Tarvanel: ") + out.reason);
    done(out);
}

} // namespace

bool launchedByAgent() {
    return qEnvironmentVariable("TARVANEL_AGENT") == QLatin1String(appLabel);
}

QString executablePath() {
    if (!executableOverride.isEmpty()) return executableOverride;
    const QString app =
        QCoreApplication::instance() ? QCoreApplication::applicationFilePath() : QString();
    if (!app.isEmpty()) return QFileInfo(app).canonicalFilePath();
    return QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
}

void setExecutablePathForTesting(const QString& path) {
    executableOverride = path;
    launchStamp.reset();
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

bool isInApplicationsFolder(const QString& executable) {
    const QString home = homeDir();
    for (const QString& folder :
         {QStringLiteral("/usr/"), QStringLiteral("/opt/"), home + QStringLiteral("/.local/bin/"),
          home + QStringLiteral("/Applications/")})
        if (executable.startsWith(folder)) return true;
    return false;
}

bool isInApplicationsFolder() {
    return isInApplicationsFolder(executablePath());
}

QString agentUnitPath() {
    return configHome() + QStringLiteral("/systemd/user/") + unitName();
}

QString autostartPath() {
    return configHome() + QStringLiteral("/autostart/") + QLatin1String(appLabel) +
           QStringLiteral(".desktop");
}

QString menuEntryPath() {
    return dataHome() + QStringLiteral("/applications/") + QLatin1String(appLabel) +
           QStringLiteral(".desktop");
}

QString menuIconPath() {
    return dataHome() + QStringLiteral("/icons/hicolor/scalable/apps/") + QLatin1String(appLabel) +
           QStringLiteral(".svg");
}

QString agentUnitText(const QString& executable) {
    QString exec = executable;
    exec.replace(QLatin1Char('%'), QStringLiteral("%%"));
    if (exec.contains(QLatin1Char(' ')) || exec.contains(QLatin1Char('"'))) {
        exec.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        exec.replace(QLatin1Char('"'), QStringLiteral("\\\""));
        exec = QLatin1Char('"') + exec + QLatin1Char('"');
    }
    // The condition keeps a unit whose program was deleted by hand from failing every 5 s.
    return QStringLiteral("[Unit]\n"
                          "Description=Tarvanel: locks the screens at prayer times\n"
                          "PartOf=graphical-session.target\n"
                          "After=graphical-session.target\n"
                          "ConditionFileIsExecutable=%1\n"
                          "\n"
                          "[Service]\n"
                          "ExecStart=%2\n"
                          "Environment=TARVANEL_AGENT=%3\n"
                          "Restart=on-failure\n"
                          "RestartSec=5\n"
                          "\n"
                          "[Install]\n"
                          "WantedBy=graphical-session.target\n")
        .arg(QString(executable).replace(QLatin1Char('%'), QStringLiteral("%%")), exec,
             QLatin1String(appLabel));
}

QString menuEntryText(const QString& executable, bool autostart) {
    QFile file(QStringLiteral(":/tarvanel/com.velmora.tarvanel.desktop"));
    file.open(QIODevice::ReadOnly);
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (QString& line : lines) {
        if (!line.startsWith(QStringLiteral("Exec="))) continue;
        line = autostart ? QStringLiteral("Exec=env TARVANEL_AGENT=") + QLatin1String(appLabel) +
                               u' ' + desktopExecArgument(executable)
                         : QStringLiteral("Exec=") + desktopExecArgument(executable) +
                               QStringLiteral(" %f");
    }
    QString text = lines.join(u'\n');
    if (autostart) text += QStringLiteral("X-GNOME-Autostart-enabled=true\n");
    return text;
}

ToolRun userServiceCommand(const QStringList& arguments) {
    return ToolRun{systemctl(), QStringList{QStringLiteral("--user")} + arguments, toolLimitMs,
                   false};
}

void setSystemctlForTesting(const QString& path) {
    systemctlOverride = path;
}

ToolCall toolsBesideEventLoop(QObject* context) {
    return [context](const ToolRun& run, std::function<void(const ToolResult&)> done) {
        runToolAsync(run, context, std::move(done));
    };
}

ToolCall toolsWaiting() {
    return [](const ToolRun& run, const std::function<void(const ToolResult&)>& done) {
        QProcess p;
        p.setStandardOutputFile(QProcess::nullDevice());
        p.setStandardErrorFile(QProcess::nullDevice());
        p.setStandardInputFile(QProcess::nullDevice());
        p.start(run.program, run.arguments);
        ToolResult result;
        if (p.waitForStarted(run.timeoutMs) && !p.waitForFinished(run.timeoutMs)) {
            result.timedOut = true;
            p.kill();
            p.waitForFinished(1000);
        } else if (p.exitStatus() == QProcess::NormalExit && p.error() != QProcess::FailedToStart) {
            result.status = p.exitCode();
        }
        done(result);
    };
}

void runInTurn(const ToolCall& tools, QList<ToolRun> runs,
               std::function<void(const ToolResult&)> done) {
    const ToolRun first = runs.takeFirst();
    tools(first, [=](const ToolResult& result) {
        if (runs.isEmpty()) return done(result);
        runInTurn(tools, runs, done);
    });
}

void installAgent(const ToolCall& tools, std::function<void(const InstallOutcome&)> done) {
    const QString exe = executablePath();
    ensureSupportDir(); // the unit appends its standard error to a file in there
    const QString unit = agentUnitPath();
    if (usesVendorUnit(exe)) {
        QFile::remove(unit); // a copy of ours would hide the package's updates
    } else {
        QDir().mkpath(QFileInfo(unit).absolutePath());
        if (!writeFileAtomically(unit, agentUnitText(exe).toUtf8())) {
            //: %1 is a file
            done({false, false,
                  QCoreApplication::translate("Agent", "%1 cannot be written").arg(unit)});
            return;
        }
    }
    const ToolRun enable =
        userServiceCommand({QStringLiteral("enable"), QStringLiteral("--now"), unitName()});
    // A service manager started before the graphical session does not know the display.
    const ToolRun importDisplay =
        userServiceCommand({QStringLiteral("import-environment"), QStringLiteral("DISPLAY"),
                            QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("XAUTHORITY")});
    const ToolRun stopOlder = userServiceCommand({QStringLiteral("stop"), unitName()});
    tools(userServiceCommand({QStringLiteral("daemon-reload")}), [=](const ToolResult& reload) {
        if (reload.status != 0) return fallBackToAutostart(exe, done);
        QFile::remove(autostartPath()); // left by an earlier install without a service manager
        runInTurn(tools, {stopOlder, importDisplay, enable}, [=](const ToolResult& last) {
            InstallOutcome out;
            out.ok = last.status == 0;
            if (last.timedOut)
                out.reason =
                    //: %1 is a command, as in "systemctl --user enable --now …"
                    QCoreApplication::translate("Agent", "%1 gave no answer in time")
                        .arg(enable.arguments.join(u' ').prepend(QStringLiteral("systemctl ")));
            else if (!out.ok)
                out.reason =
                    //: %1 is a command, as in "systemctl --user enable --now …"; %2 its exit
                    //: status
                    QCoreApplication::translate("Agent", "%1 failed with status %2")
                        .arg(enable.arguments.join(u' ').prepend(QStringLiteral("systemctl ")),
                             QLocale().toString(last.status));
            done(out);
        });
    });
}

InstallOutcome installAgent() {
    InstallOutcome outcome;
    installAgent(toolsWaiting(), [&outcome](const InstallOutcome& o) { outcome = o; });
    return outcome;
}

} // namespace tarvanel
