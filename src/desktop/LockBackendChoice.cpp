#include "desktop/LockBackendChoice.h"

namespace tarvanel {

std::unique_ptr<LockBackend> strongestLock(QObject* parent) {
    (void)parent;
    return nullptr;
}

} // namespace tarvanel
