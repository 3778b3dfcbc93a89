#pragma once
// Starts the tray application: QApplication, the Qt platform, the controller, the event loop.
#include "app/CommandLine.h"

namespace tarvanel {

int runDesktopApplication(int& argc, char** argv, const CommandLine& cl);

} // namespace tarvanel
