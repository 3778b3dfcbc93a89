#include "desktop/DesktopApp.h"

#include <cstdio>

namespace tarvanel {

int runDesktopApplication(int&, char**, const CommandLine&) {
    std::fputs("Tarvanel: the tray application is not available in this build\n", stderr);
    return 1;
}

} // namespace tarvanel
