#include "desktop/LockKeys.h"

namespace tarvanel {

namespace {

// With Num Lock off the keypad sends navigation keys; their printed digit is what was meant.
std::optional<QChar> keypadDigit(int key) {
    switch (key) {
    case Qt::Key_Insert:
        return QChar('0');
    case Qt::Key_End:
        return QChar('1');
    case Qt::Key_Down:
        return QChar('2');
    case Qt::Key_PageDown:
        return QChar('3');
    case Qt::Key_Left:
        return QChar('4');
    case Qt::Key_Clear:
        return QChar('5');
    case Qt::Key_Right:
        return QChar('6');
    case Qt::Key_Home:
        return QChar('7');
    case Qt::Key_Up:
        return QChar('8');
    case Qt::Key_PageUp:
        return QChar('9');
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<ForwardedKey> translateLockKey(int key, Qt::KeyboardModifiers modifiers,
                                             const QString& text) {
    if (key == Qt::Key_Escape) return ForwardedKey{LockKey::Escape, {}};
    if (key == Qt::Key_Backspace) return ForwardedKey{LockKey::Backspace, {}};
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return ForwardedKey{LockKey::Other, QString(QChar('0' + (key - Qt::Key_0)))};
    if (modifiers & Qt::KeypadModifier) {
        if (const auto digit = keypadDigit(key)) return ForwardedKey{LockKey::Other, *digit};
    }
    // Control characters (Tab, Return, Ctrl+letter) carry nothing the entry could use.
    if (text.isEmpty() || !text.at(0).isPrint()) return std::nullopt;
    return ForwardedKey{LockKey::Other, text};
}

} // namespace tarvanel
