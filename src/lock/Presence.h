#pragma once
// Whether the user is in a call: any microphone or camera in use by any process. Any failure
// counts as "not in use". The sound server is asked in the background, so the tick never
// waits for it: it reads the last answer.
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <optional>

namespace tarvanel {

namespace Presence {

// The process-wide monitor's answer.
bool inCall();
// A capture substream records (the answer when no sound server runs).
bool micInUse();
bool cameraInUse();

// Where the answers come from; tests point them at fake trees. The sound-server tool prints
// one line per recording stream ("pactl list short source-outputs"); an empty path skips it.
struct Roots {
    QString proc = QStringLiteral("/proc");
    QString asound = QStringLiteral("/proc/asound");
    QString soundServerTool = QStringLiteral("pactl");
    int soundServerLimitMs = 2000;
};
Roots& roots();

} // namespace Presence

class PresenceMonitor : public QObject {
public:
    using QObject::QObject;
    // The camera now, and the microphone as the sound server last said (the devices until it
    // has answered, or when none runs). Asks the server again when its answer is a second old.
    bool inCall();
    bool askingSoundServer() const { return asking_; }

private:
    void askSoundServer();
    enum class Server { unknown, absent, idle, recording };
    Server server_ = Server::unknown;
    bool asking_ = false;
    QElapsedTimer answered_;
};

} // namespace tarvanel
