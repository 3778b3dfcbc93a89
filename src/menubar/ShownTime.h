#pragma once
// The clock time as the user reads it in the title, the menu, the banners and the terminal.
// The pattern is a text a translator adapts (a 24-hour clock where that is usual), so every
// shown time uses the same one.
#include <QCoreApplication>
#include <QString>

namespace tarvanel {

inline QString clockPattern() {
    //: Qt time pattern of a clock time: h hour, mm minutes, AP AM or PM. Write HH:mm where a
    //: 24-hour clock is usual.
    return QCoreApplication::translate("TimeFormat", "h:mm AP");
}

} // namespace tarvanel
