#pragma once
// Which lock the desktop can hold best, asked at the start of each lock: a Wayland
// compositor's session lock or layer shell, the GNOME Shell extension, or nothing better than
// windows (X11, or the last resort elsewhere).
#include "desktop/LockBackend.h"

#include <memory>

namespace tarvanel {

// Null when nothing stronger than windows is on offer.
std::unique_ptr<LockBackend> strongestLock(QObject* parent);

// What a user could do to leave a lock that started now on this desktop; empty when nothing.
QString lockWeaknessHere();

} // namespace tarvanel
