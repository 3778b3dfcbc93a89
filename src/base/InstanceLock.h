#pragma once
// One agent per user: an exclusive lock on ~/.tarvanel/.instance.lock, which the kernel drops
// when the process ends, however it ends.

namespace tarvanel {

// True when this process now holds ~/.tarvanel/.instance.lock (or the file cannot be opened at
// all); false when another process holds it.
bool acquireInstanceLock();
void releaseInstanceLock();
inline void releaseInstanceLockForTesting() {
    releaseInstanceLock();
}

} // namespace tarvanel
