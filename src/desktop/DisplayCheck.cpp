#include "desktop/DisplayCheck.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QLocalSocket>
#include <xcb/xcb.h>

namespace tarvanel {

namespace {

std::optional<QString> x11Problem(const QString& display) {
    if (display.isEmpty()) return QStringLiteral("DISPLAY is not set");
    int screen = 0;
    xcb_connection_t* connection = xcb_connect(display.toLocal8Bit().constData(), &screen);
    const int error = xcb_connection_has_error(connection);
    xcb_disconnect(connection);
    if (error != 0) return QStringLiteral("cannot connect to X display ") + display;
    return std::nullopt;
}

std::optional<QString> waylandProblem(const QProcessEnvironment& env) {
    QString name = env.value(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0"));
    if (!QDir::isAbsolutePath(name)) {
        const QString runtime = env.value(QStringLiteral("XDG_RUNTIME_DIR"));
        if (runtime.isEmpty()) return QStringLiteral("XDG_RUNTIME_DIR is not set");
        name = runtime + QLatin1Char('/') + name;
    }
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(1000))
        return QStringLiteral("cannot connect to Wayland display ") + name;
    socket.abort();
    return std::nullopt;
}

} // namespace

std::optional<QString> displayProblem(const QProcessEnvironment& env) {
    const QString requested = env.value(QStringLiteral("QT_QPA_PLATFORM"));
    const QString platform =
        requested.section(QLatin1Char(':'), 0, 0).section(QLatin1Char(';'), 0, 0);
    // Platforms that draw without a display server.
    for (const char* headless : {"offscreen", "minimal", "vnc", "linuxfb", "eglfs", "vkkhrdisplay"})
        if (platform == QLatin1String(headless)) return std::nullopt;
    if (platform.startsWith(QLatin1String("wayland"))) return waylandProblem(env);
    return x11Problem(env.value(QStringLiteral("DISPLAY")));
}

bool qtWaylandInstalled() {
    return QFile::exists(QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                         QStringLiteral("/platforms/libqwayland-generic.so"));
}

void useOffscreenScreens(const QString& configPath, const QList<QRect>& screens) {
    QJsonArray list;
    for (const QRect& r : screens)
        list.append(
            QJsonObject{{QStringLiteral("name"), QStringLiteral("SCREEN%1").arg(list.size() + 1)},
                        {QStringLiteral("x"), r.x()},
                        {QStringLiteral("y"), r.y()},
                        {QStringLiteral("width"), r.width()},
                        {QStringLiteral("height"), r.height()},
                        {QStringLiteral("logicalDpi"), 96},
                        {QStringLiteral("logicalBaseDpi"), 96},
                        {QStringLiteral("dpr"), 1}});
    QFile file(configPath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), list}}).toJson());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + configPath.toLocal8Bit());
}

} // namespace tarvanel
