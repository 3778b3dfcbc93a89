#include "desktop/LockBackendChoice.h"

#include "desktop/LockWindows.h"
#include "desktop/wayland/WaylandLock.h"

namespace tarvanel {

std::unique_ptr<LockBackend> strongestLock(QObject* parent) {
    if (auto wayland = WaylandLock::create(parent)) return wayland;
    return nullptr;
}

QString lockWeaknessHere() {
    if (const auto stronger = strongestLock(nullptr)) return stronger->weakness();
    return LockWindows::weaknessHere();
}

} // namespace tarvanel
