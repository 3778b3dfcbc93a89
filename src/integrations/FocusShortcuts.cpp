#include "integrations/FocusShortcuts.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "base/ToolRunner.h"

#include <QDir>
#include <QFileInfo>
#include <unistd.h>

namespace tarvanel::FocusShortcuts {
namespace {

QString scriptPath(const QString& name) {
    return folder() + QLatin1Char('/') + name;
}

bool isExecutableFile(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}

// One of this user's processes: another user's session may run another daemon.
bool processRuns(const QString& name) {
    const QDir proc(QStringLiteral("/proc"));
    for (const QFileInfo& pid : proc.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (!pid.fileName().front().isDigit() || pid.ownerId() != getuid()) continue;
        const auto comm = readWholeFile(pid.filePath() + QStringLiteral("/comm"));
        if (comm && comm->trimmed() == name.toUtf8()) return true;
    }
    return false;
}

// The comment line that tells a script Tarvanel wrote from one the user wrote.
constexpr char kMarker[] = "# Made by Tarvanel for ";

QByteArray script(const Template& t, const QString& command) {
    QByteArray text = "#!/bin/sh\n" + QByteArray(kMarker) + t.desktop.toUtf8() +
                      ". Edit freely: Tarvanel runs this file when a lock ";
    text += command == t.onCommand ? "starts.\n" : "ends.\n";
    if (!t.note.isEmpty()) text += "# " + t.note.toUtf8() + "\n";
    return text + "exec " + command.toUtf8() + "\n";
}

} // namespace

QString onName() {
    return QStringLiteral("Tarvanel Focus On");
}
QString offName() {
    return QStringLiteral("Tarvanel Focus Off");
}
QString folder() {
    return supportPath(QStringLiteral("shortcuts"));
}

bool installed() {
    return isExecutableFile(scriptPath(onName())) && isExecutableFile(scriptPath(offName()));
}

QStringList handWritten() {
    QStringList names;
    for (const QString& name : {onName(), offName()}) {
        const QFileInfo info(scriptPath(name));
        if (!info.exists() && !info.isSymLink()) continue;
        const auto text = readWholeFile(info.filePath());
        const bool ours =
            text && (text->startsWith(kMarker) || text->contains(QByteArray("\n") + kMarker));
        if (!ours) names << name;
    }
    return names;
}

void run(bool on, QObject* context, int timeoutMs) {
    const QString name = on ? onName() : offName();
    ToolRun tool;
    tool.program = scriptPath(name);
    tool.timeoutMs = timeoutMs;
    runToolAsync(tool, context, [name](const ToolResult& result) {
        if (result.status == 0 && !result.timedOut) return;
        logLine(
            lcFocus,
            QStringLiteral("Tarvanel: shortcut \"%1\" failed (%2)").arg(name).arg(result.status));
    });
}

QList<Template> templates() {
    const auto gsettings = [](const QString& schemaKey, const char* on, const char* off) {
        const QString base = QStringLiteral("gsettings set ") + schemaKey + QLatin1Char(' ');
        return std::pair{base + QLatin1String(on), base + QLatin1String(off)};
    };
    const auto gnome =
        gsettings(QStringLiteral("org.gnome.desktop.notifications show-banners"), "false", "true");
    const auto cinnamon =
        gsettings(QStringLiteral("org.cinnamon.desktop.notifications display-notifications"),
                  "false", "true");
    const auto mate =
        gsettings(QStringLiteral("org.mate.NotificationDaemon do-not-disturb"), "true", "false");
    const QString xfce =
        QStringLiteral("xfconf-query -c xfce4-notifyd -p /do-not-disturb -n -t bool -s ");
    return {
        {QStringLiteral("GNOME"), gnome.first, gnome.second, {}},
        {QStringLiteral("Cinnamon"), cinnamon.first, cinnamon.second, {}},
        {QStringLiteral("MATE"), mate.first, mate.second, {}},
        {QStringLiteral("XFCE"), xfce + QStringLiteral("true"), xfce + QStringLiteral("false"), {}},
        {QStringLiteral("dunst"),
         QStringLiteral("dunstctl set-paused true"),
         QStringLiteral("dunstctl set-paused false"),
         {}},
        {QStringLiteral("mako"), QStringLiteral("makoctl mode -a do-not-disturb"),
         QStringLiteral("makoctl mode -r do-not-disturb"),
         QStringLiteral("mako hides nothing until its config has a section "
                        "[mode=do-not-disturb] with invisible=1.")},
    };
}

QString currentDesktop() {
    for (const char* daemon : {"dunst", "mako"})
        if (processRuns(QLatin1String(daemon))) return QLatin1String(daemon);
    const QStringList names = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    for (const QString& raw : names) {
        const QString name = raw.trimmed().toLower();
        if (name == QLatin1String("x-cinnamon") || name == QLatin1String("cinnamon"))
            return QStringLiteral("Cinnamon");
        if (name == QLatin1String("mate")) return QStringLiteral("MATE");
        if (name == QLatin1String("xfce")) return QStringLiteral("XFCE");
        if (name == QLatin1String("gnome")) return QStringLiteral("GNOME");
    }
    return QString();
}

CreateResult createFor(const QString& desktop) {
    if (!ensureSupportDir() || !QDir().mkpath(folder())) {
        logLine(lcFocus, QStringLiteral("Tarvanel: cannot create ") + folder());
        return CreateResult::failed;
    }
    QFile::setPermissions(folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QList<Template> all = templates();
    const auto t = std::find_if(all.begin(), all.end(),
                                [&](const Template& x) { return x.desktop == desktop; });
    if (t == all.end()) return CreateResult::unknownDesktop;
    const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    for (const auto& [name, command] :
         {std::pair{onName(), t->onCommand}, std::pair{offName(), t->offCommand}}) {
        if (!writeFileAtomically(scriptPath(name), script(*t, command), mode)) {
            logLine(lcFocus, QStringLiteral("Tarvanel: cannot write ") + scriptPath(name));
            return CreateResult::failed;
        }
    }
    return CreateResult::written;
}

} // namespace tarvanel::FocusShortcuts
