#pragma once
// The X server connection Qt uses, for the few questions Qt does not answer itself.
#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

struct xcb_connection_t;

namespace tarvanel {

// Null on any other platform (the offscreen one claims X11 without a connection).
inline xcb_connection_t* x11Connection() {
    if (!qGuiApp || QGuiApplication::platformName() != QLatin1String("xcb")) return nullptr;
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

} // namespace tarvanel
