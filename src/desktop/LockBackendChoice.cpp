#include "desktop/LockBackendChoice.h"

#include "desktop/LockWindows.h"
#include "desktop/gnome/GnomeShellLock.h"
#include "desktop/wayland/WaylandLock.h"

namespace tarvanel {

std::unique_ptr<LockBackend> strongestLock(QObject* parent) {
    if (auto wayland = WaylandLock::create(parent)) return wayland;
    // GNOME: its compositor offers no lock to clients; Tarvanel's Shell extension holds it.
    if (GnomeShellLock::available()) return std::make_unique<GnomeShellLock>(parent);
    return nullptr;
}

QString lockWeaknessHere() {
    if (const auto stronger = strongestLock(nullptr)) return stronger->weakness();
    return LockWindows::weaknessHere();
}

} // namespace tarvanel
