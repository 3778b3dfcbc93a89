#pragma once
// Which key presses the lock screen forwards, and as what.
#include "platform/Platform.h"

#include <QString>
#include <Qt>
#include <optional>

namespace tarvanel {

struct ForwardedKey {
    LockKey key;
    QString text;
};

// Escape and Backspace are forwarded as themselves; digits from the main row and from the
// keypad (with Num Lock on or off) as their digit; any other key with text as that text, which
// the core ignores. Keys without text (arrows, modifiers, function keys) are not forwarded.
std::optional<ForwardedKey> translateLockKey(int key, Qt::KeyboardModifiers modifiers,
                                             const QString& text);

// The same for an XKB keysym and the text it types (Wayland keyboards).
std::optional<ForwardedKey> translateLockKeysym(quint32 keysym, const QString& text);

} // namespace tarvanel
