#include "desktop/LockBackendChoice.h"

#include "desktop/gnome/GnomeShellLock.h"

namespace tarvanel {

std::unique_ptr<LockBackend> strongestLock(QObject* parent) {
    // GNOME: its compositor offers no lock to clients; Tarvanel's Shell extension holds it.
    if (GnomeShellLock::available()) return std::make_unique<GnomeShellLock>(parent);
    return nullptr;
}

} // namespace tarvanel
