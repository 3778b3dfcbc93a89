#pragma once
// How another copy of the program reaches the running agent: the agent owns `service` on the
// session bus and answers the methods of `interface` at `path`. Both sides read these names
// from here, and only the owner of the name answers.
#include <QLatin1String>

namespace tarvanel::agentBus {

inline constexpr QLatin1String service("com.velmora.tarvanel");
inline constexpr QLatin1String path("/com/velmora/tarvanel");
inline constexpr QLatin1String interface("com.velmora.tarvanel.Agent");
// No arguments: brings up the settings window.
inline constexpr QLatin1String showSettings("ShowSettings");
// One string, an absolute path: opens the import window with that file.
inline constexpr QLatin1String importFile("ImportFile");

} // namespace tarvanel::agentBus
