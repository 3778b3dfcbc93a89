#include "desktop/LockKeys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

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
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        // Qt names a non-Latin layout's digit key by its Latin digit (the "४" key of a Hindi
        // layout is Qt::Key_4): the character typed goes on, and the core decides what counts.
        const QChar typed = text.isEmpty() ? QChar() : text.at(0);
        if (typed.isPrint() && !(typed >= u'0' && typed <= u'9'))
            return ForwardedKey{LockKey::Other, text};
        return ForwardedKey{LockKey::Other, QString(QChar('0' + (key - Qt::Key_0)))};
    }
    if (modifiers & Qt::KeypadModifier) {
        if (const auto digit = keypadDigit(key)) return ForwardedKey{LockKey::Other, *digit};
    }
    // Control characters (Tab, Return, Ctrl+letter) carry nothing the entry could use.
    if (text.isEmpty() || !text.at(0).isPrint()) return std::nullopt;
    return ForwardedKey{LockKey::Other, text};
}

std::optional<ForwardedKey> translateLockKeysym(quint32 keysym, const QString& text) {
    // Keypad keys: digits with Num Lock on, navigation keys in the same places without it.
    static const quint32 keypad[][2] = {
        {XKB_KEY_KP_0, Qt::Key_0},           {XKB_KEY_KP_1, Qt::Key_1},
        {XKB_KEY_KP_2, Qt::Key_2},           {XKB_KEY_KP_3, Qt::Key_3},
        {XKB_KEY_KP_4, Qt::Key_4},           {XKB_KEY_KP_5, Qt::Key_5},
        {XKB_KEY_KP_6, Qt::Key_6},           {XKB_KEY_KP_7, Qt::Key_7},
        {XKB_KEY_KP_8, Qt::Key_8},           {XKB_KEY_KP_9, Qt::Key_9},
        {XKB_KEY_KP_Insert, Qt::Key_Insert}, {XKB_KEY_KP_End, Qt::Key_End},
        {XKB_KEY_KP_Down, Qt::Key_Down},     {XKB_KEY_KP_Page_Down, Qt::Key_PageDown},
        {XKB_KEY_KP_Left, Qt::Key_Left},     {XKB_KEY_KP_Begin, Qt::Key_Clear},
        {XKB_KEY_KP_Right, Qt::Key_Right},   {XKB_KEY_KP_Home, Qt::Key_Home},
        {XKB_KEY_KP_Up, Qt::Key_Up},         {XKB_KEY_KP_Page_Up, Qt::Key_PageUp},
    };
    for (const auto& [sym, key] : keypad)
        if (keysym == sym) return translateLockKey(int(key), Qt::KeypadModifier, text);
    if (keysym == XKB_KEY_Escape) return translateLockKey(Qt::Key_Escape, {}, text);
    if (keysym == XKB_KEY_BackSpace) return translateLockKey(Qt::Key_Backspace, {}, text);
    if (keysym >= XKB_KEY_0 && keysym <= XKB_KEY_9)
        return translateLockKey(Qt::Key_0 + int(keysym - XKB_KEY_0), {}, text);
    return translateLockKey(Qt::Key_unknown, {}, text);
}

} // namespace tarvanel
