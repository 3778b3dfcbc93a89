#include "lock/Presence.h"

#include "records/Log.h"
#include "records/StateFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace tarvanel {

namespace Presence {

Roots& roots() {
    static Roots r;
    return r;
}

namespace {

// With a sound server running, devices stay open while idle; its own list of recording
// streams is the reliable answer. Absent when there is no server or no tool to ask.
std::optional<bool> soundServerRecording() {
    const QString tool = roots().soundServerTool;
    if (tool.isEmpty()) return std::nullopt;
    const QString program =
        QFileInfo(tool).isAbsolute() ? tool : QStandardPaths::findExecutable(tool);
    if (program.isEmpty()) return std::nullopt;
    QProcess p;
    p.start(program,
            {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("source-outputs")});
    if (!p.waitForFinished(1000)) {
        p.kill();
        p.waitForFinished(200);
        return std::nullopt;
    }
    if (p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) return std::nullopt;
    return !p.readAllStandardOutput().trimmed().isEmpty();
}

// Said once per process: the check runs every second while a lock waits.
void logSkippedOnce(bool& said, const QString& line) {
    if (said) return;
    said = true;
    logLine(line);
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
    if (const std::optional<bool> server = soundServerRecording()) return *server;
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
    return micInUse() || cameraInUse();
}

} // namespace Presence

std::optional<QString> adhanFileURL() {
    for (const char* ext : {"mp3", "m4a", "aiff", "wav"}) {
        const QString path = supportPath(QStringLiteral("adhan.") + QLatin1String(ext));
        if (QFileInfo(path).isFile()) return path;
    }
    return std::nullopt;
}

} // namespace tarvanel
