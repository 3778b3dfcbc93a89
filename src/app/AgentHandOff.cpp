// The road of a copy the user opened by hand: to the running agent, to a new agent, or first to
// ~/.local/bin.
#include "app/Agent.h"

#include "app/CommandLine.h"
#include "base/Log.h"
#include "base/StateFiles.h"
#include "platform/AgentBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace tarvanel {

namespace {

const QString name = QLatin1String(appDisplayName);

// Lives until it reports the exit status.
class HandOff : public QObject {
public:
    HandOff(Platform* platform, std::function<void(int)> finish, QString importFile)
        : platform_(platform), finish_(std::move(finish)), importFile_(std::move(importFile)) {}

    void start() {
        if (!acquireInstanceLock()) return askAgent();
        if (!importFile_.isEmpty()) {
            logLine(lcAgent, QStringLiteral("Tarvanel: no running copy to hand ") + importFile_ +
                                 QStringLiteral(" to"));
            return end(1);
        }
        releaseInstanceLock(); // this copy only tested it
        if (isInApplicationsFolder()) return installHere();
        //: %1 is the program's name, Tarvanel
        const QString info =
            QCoreApplication::translate("Agent",
                                        "%1 runs in the background and starts at login, so it has "
                                        "to be installed: copied to ~/.local/bin and added to "
                                        "your applications menu.")
                .arg(name);
        //: %1 is the program's name, Tarvanel
        if (ask({QCoreApplication::translate("Agent", "Install %1 in ~/.local/bin?").arg(name),
                 info,
                 {QCoreApplication::translate("Agent", "Install"),
                  QCoreApplication::translate("Agent", "Quit")},
                 {},
                 false}) == 1000)
            return moveToApplications();
        end(0);
    }

private:
    Platform* platform_;
    std::function<void(int)> finish_;
    QString importFile_; // handed to the running copy instead of asking for its settings

    void end(int status) {
        finish_(status);
        deleteLater();
    }

    int ask(const AlertRequest& request) {
        if (platform_) {
            platform_->activateApp();
            return platform_->showAlert(request).response;
        }
        logLine(lcAgent, QStringLiteral("Tarvanel: ") + request.message + u' ' + request.info);
        return 999 + int(request.buttons.size()); // no display: the last button
    }

    // A method of the running agent: only the owner of its name answers, and the answer says
    // that the request arrived.
    void askAgent() {
        QDBusConnection bus = QDBusConnection::sessionBus();
        if (!bus.isConnected()) {
            logLine(lcAgent,
                    QStringLiteral("Tarvanel already running; no session bus to ask it to show "
                                   "its settings"));
            return end(0);
        }
        QDBusMessage call = QDBusMessage::createMethodCall(
            agentBus::service, agentBus::path, agentBus::interface,
            importFile_.isEmpty() ? agentBus::showSettings : agentBus::importFile);
        call.setAutoStartService(false);
        if (!importFile_.isEmpty()) call << QFileInfo(importFile_).absoluteFilePath();
        auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 5000), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
            if (!watcher->isError()) return end(0);
            logLine(lcAgent, QStringLiteral("Tarvanel already running, and it did not answer: ") +
                                 watcher->error().message());
            end(1);
        });
    }

    void installHere() {
        const QString marker = showSettingsMarker();
        ensureSupportDir();
        writeFileAtomically(marker, {});
        installAgent(toolsBesideEventLoop(this), [this, marker](const InstallOutcome& out) {
            if (out.ok) return end(0);
            QFile::remove(marker);
            logLine(lcAgent,
                    QStringLiteral("Tarvanel: the login service did not start: ") + out.reason);
            const QString unit = QLatin1String(appLabel) + QStringLiteral(".service");
            //: %1 is the program's name, Tarvanel; %2 the unit's file name; %3 why it did not
            //: start. Keep the command in quotes as it is
            const QString info =
                QCoreApplication::translate(
                    "Agent", "%1 starts at login through the systemd user unit %2, and it did not "
                             "start: %3.\nSee why with “systemctl --user status %2”, then open "
                             "%1 again.")
                    .arg(name, unit, out.reason);
            //: %1 is the program's name, Tarvanel
            if (ask({QCoreApplication::translate("Agent", "%1 couldn't start in the background")
                         .arg(name),
                     info,
                     {QCoreApplication::translate("Agent", "Open Service Folder"),
                      QCoreApplication::translate("Agent", "Quit")},
                     {},
                     false}) == 1000)
                platform_->openUrl(
                    QUrl::fromLocalFile(QFileInfo(agentUnitPath()).absolutePath()).toString());
            end(1);
        });
    }

    void moveToApplications() {
        const QString exe = executablePath();
        const QString folder = homeDir() + QStringLiteral("/.local/bin");
        QDir().mkpath(folder);
        const QString destination = folder + u'/' + QFileInfo(exe).fileName();
        if (QFileInfo::exists(destination)) QFile::moveToTrash(destination);
        if (!QFile::copy(exe, destination)) {
            //: %1 is the program's name, Tarvanel; %2 a folder
            ask({QCoreApplication::translate("Agent", "Couldn't copy %1 to %2").arg(name, folder),
                 //: %1 is the program's name, Tarvanel
                 QCoreApplication::translate(
                     "Agent", "Copy %1 into ~/.local/bin yourself, then open it from there.")
                     .arg(name),
                 {QCoreApplication::translate("Agent", "OK")},
                 {},
                 false});
            return end(1);
        }
        // A menu entry and its icon, so that the copy is found like any installed program.
        QDir().mkpath(QFileInfo(menuEntryPath()).absolutePath());
        QDir().mkpath(QFileInfo(menuIconPath()).absolutePath());
        writeFileAtomically(menuEntryPath(), menuEntryText(destination, false).toUtf8());
        QFile icon(QStringLiteral(":/tarvanel/com.velmora.tarvanel.svg"));
        if (icon.open(QIODevice::ReadOnly)) writeFileAtomically(menuIconPath(), icon.readAll());
        // The copy comes back through this road and installs the agent.
        if (!QProcess::startDetached(destination, {}))
            logLine(lcAgent, QStringLiteral("Tarvanel: cannot start ") + destination);
        end(0);
    }
};

} // namespace

void handOffToAgent(Platform* platform, std::function<void(int status)> finish,
                    const QString& importFile) {
    (new HandOff(platform, std::move(finish), importFile))->start();
}

} // namespace tarvanel
