#include "desktop/LockBackendChoice.h"

#include "desktop/wayland/WaylandLock.h"

namespace tarvanel {

std::unique_ptr<LockBackend> strongestLock(QObject* parent) {
    if (auto wayland = WaylandLock::create(parent)) return wayland;
    return nullptr;
}

} // namespace tarvanel
