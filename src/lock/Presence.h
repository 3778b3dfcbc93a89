#pragma once
// Whether the user is in a call: any microphone or camera in use by any process. Answered
// afresh on every call; any failure counts as "not in use".
#include <QString>
#include <optional>

namespace tarvanel {

namespace Presence {

bool inCall();
bool micInUse();
bool cameraInUse();

// Where the answers come from; tests point them at fake trees. The sound-server tool prints
// one line per recording stream ("pactl list short source-outputs"); an empty path skips it.
struct Roots {
    QString proc = QStringLiteral("/proc");
    QString asound = QStringLiteral("/proc/asound");
    QString soundServerTool = QStringLiteral("pactl");
};
Roots& roots();

} // namespace Presence

// The adhan file the user installed: ~/.tarvanel/adhan.{mp3,m4a,aiff,wav}, first that exists.
std::optional<QString> adhanFileURL();

} // namespace tarvanel
