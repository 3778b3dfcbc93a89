#include "lock/Presence.h"

#include "base/Log.h"
#include "base/StateFiles.h"
#include "base/ToolRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace tarvanel {

namespace Presence {

Roots& roots() {
    static Roots r;
    return r;
}

namespace {

// Said once per process: the check runs every second while a lock waits.
void logSkippedOnce(bool& said, const QString& line) {
    if (said) return;
    said = true;
    logLine(lcLock, line);
}

// card*/pcm*c/sub*/status reads "state: RUNNING" while a capture substream records.
bool alsaCaptureRunning() {
    const QDir root(roots().asound);
    if (!root.exists()) {
        static bool said = false;
        logSkippedOnce(said, QStringLiteral("Tarvanel: no sound server and no ") + root.path() +
                                 QStringLiteral("; a microphone in use is not detected"));
        return false;
    }
    for (const QString& card : root.entryList({QStringLiteral("card*")}, QDir::Dirs)) {
        const QDir cardDir(root.filePath(card));
        for (const QString& pcm : cardDir.entryList({QStringLiteral("pcm*c")}, QDir::Dirs)) {
            const QDir pcmDir(cardDir.filePath(pcm));
            for (const QString& sub : pcmDir.entryList({QStringLiteral("sub*")}, QDir::Dirs)) {
                QFile status(pcmDir.filePath(sub) + QStringLiteral("/status"));
                if (!status.open(QIODevice::ReadOnly)) continue;
                if (status.readAll().contains("RUNNING")) return true;
            }
        }
    }
    return false;
}

} // namespace

bool micInUse() {
    return alsaCaptureRunning();
}

bool cameraInUse() {
    const QDir proc(roots().proc);
    if (!proc.isReadable()) {
        static bool said = false;
        logSkippedOnce(said,
                       QStringLiteral("Tarvanel: ") + proc.path() +
                           QStringLiteral(" cannot be read; a camera in use is not detected"));
        return false;
    }
    for (const QString& pid : proc.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (pid.isEmpty() || !pid.front().isDigit()) continue;
        const QDir fds(proc.filePath(pid) + QStringLiteral("/fd"));
        for (const QFileInfo& fd :
             fds.entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot)) {
            if (!fd.isSymLink()) continue;
            if (fd.symLinkTarget().startsWith(QStringLiteral("/dev/video"))) return true;
        }
    }
    return false;
}

bool inCall() {
    static auto* monitor = new PresenceMonitor; // lives as long as the process
    return monitor->inCall();
}

} // namespace Presence

bool PresenceMonitor::inCall() {
    if (!asking_ && (!answered_.isValid() || answered_.elapsed() >= 1000)) askSoundServer();
    // With a sound server running, devices stay open while idle: its own list of recording
    // streams is the reliable answer once it has given one.
    const bool mic = server_ == Server::idle        ? false
                     : server_ == Server::recording ? true
                                                    : Presence::micInUse();
    return mic || Presence::cameraInUse();
}

void PresenceMonitor::askSoundServer() {
    const QString tool = Presence::roots().soundServerTool;
    const QString program = tool.isEmpty() || QFileInfo(tool).isAbsolute()
                                ? tool
                                : QStandardPaths::findExecutable(tool);
    if (program.isEmpty()) {
        server_ = Server::absent;
        answered_.start();
        return;
    }
    asking_ = true;
    ToolRun run{program,
                {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("source-outputs")},
                Presence::roots().soundServerLimitMs,
                true};
    runToolAsync(run, this, [this](const ToolResult& r) {
        asking_ = false;
        answered_.start();
        server_ = r.status != 0                  ? Server::absent
                  : r.output.trimmed().isEmpty() ? Server::idle
                                                 : Server::recording;
    });
}

} // namespace tarvanel
