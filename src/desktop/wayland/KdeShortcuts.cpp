#include "desktop/wayland/KdeShortcuts.h"

#include "base/Log.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFile>
#include <functional>

namespace tarvanel {

namespace {

const QString kGlobalAccel = QStringLiteral("org.kde.kglobalaccel");
const QString kKWin = QStringLiteral("org.kde.KWin");
const QString kShortcutsLine = QStringLiteral("shortcuts");

// KWin's built-in effects that draw every window above all layers, the lock's included, and
// open from a screen corner, a touchpad gesture or D-Bus (Plasma 5.27 and 6 names).
const QStringList kWindowEffects{QStringLiteral("overview"), QStringLiteral("windowview"),
                                 QStringLiteral("desktopgrid"), QStringLiteral("cube")};

QString markerPath() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtime.isEmpty() ? QString() : runtime + QStringLiteral("/tarvanel-kde-shortcuts");
}

QStringList readMarker() {
    QFile file(markerPath());
    if (markerPath().isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// Never starts a service: kglobalaccel's D-Bus activation file would start one on any
// desktop.
QDBusMessage methodCall(const QString& service, const QString& path, const QString& interface,
                        const QString& method, const QVariantList& args = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(args);
    message.setAutoStartService(false);
    return message;
}

QDBusMessage setShortcutsBlocked(bool blocked) {
    return methodCall(kGlobalAccel, QStringLiteral("/kglobalaccel"),
                      QStringLiteral("org.kde.KGlobalAccel"),
                      QStringLiteral("blockGlobalShortcuts"), {blocked});
}

QDBusMessage effectCall(const QString& method, const QString& effect) {
    return methodCall(kKWin, QStringLiteral("/Effects"), QStringLiteral("org.kde.kwin.Effects"),
                      method, {effect});
}

// Messages on one connection reach KWin in the order sent, so an unblock sent after a block
// always wins.
void send(const QDBusMessage& message) {
    QDBusConnection::sessionBus().send(message);
}

// QtDBus writes queued messages from its own thread: a program that quits right after a lock
// lost the unblock in one run of two. The bus answers a ping only after reading what came
// before it on this connection.
void flush() {
    QDBusConnection::sessionBus().call(
        methodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                   QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping")),
        QDBus::Block, 1000);
}

void whenAnswered(const QDBusMessage& message, QObject* context,
                  std::function<void(const QDBusMessage&)> done) {
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, done = std::move(done)] {
                         watcher->deleteLater();
                         if (!watcher->isError()) done(watcher->reply());
                     });
}

} // namespace

KdeShortcuts::KdeShortcuts(QObject* parent) : QObject(parent) {}

KdeShortcuts& KdeShortcuts::self() {
    static KdeShortcuts* instance = new KdeShortcuts(QCoreApplication::instance());
    return *instance;
}

void KdeShortcuts::block() {
    self().blockNow();
}

void KdeShortcuts::unblock() {
    self().unblockNow();
}

void KdeShortcuts::blockNow() {
    if (blocked_) return;
    blocked_ = true;
    const quint64 generation = ++generation_;
    // What a killed run left blocked is undone with this lock's own.
    unloaded_ = readMarker();
    shortcutsBlocked_ = unloaded_.removeAll(kShortcutsLine) > 0;
    auto current = [this, generation] { return blocked_ && generation == generation_; };

    // On Wayland kglobalaccel runs inside KWin: its name has an owner only there.
    const QDBusMessage owned = methodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"), {kGlobalAccel});
    whenAnswered(owned, this, [this, current](const QDBusMessage& reply) {
        if (!current() || !reply.arguments().value(0).toBool()) return;
        shortcutsBlocked_ = true;
        writeMarker(); // before the block: a crash right after must be undone
        send(setShortcutsBlocked(true));
        logLine(lcLock, QStringLiteral("Tarvanel: KWin's global shortcuts blocked"));
    });

    const QDBusMessage effects =
        methodCall(kKWin, QStringLiteral("/Effects"),
                   QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                   {QStringLiteral("org.kde.kwin.Effects"), QStringLiteral("loadedEffects")});
    whenAnswered(effects, this, [this, current](const QDBusMessage& reply) {
        if (!current()) return;
        const QStringList loaded =
            reply.arguments().value(0).value<QDBusVariant>().variant().toStringList();
        QStringList now;
        for (const QString& effect : kWindowEffects)
            if (loaded.contains(effect) && !unloaded_.contains(effect)) now << effect;
        if (now.isEmpty()) return;
        unloaded_ << now;
        writeMarker();
        for (const QString& effect : now)
            send(effectCall(QStringLiteral("unloadEffect"), effect));
        logLine(lcLock, QStringLiteral("Tarvanel: KWin effects unloaded: ") +
                            now.join(QStringLiteral(", ")));
    });
}

void KdeShortcuts::unblockNow() {
    if (!blocked_) return;
    blocked_ = false;
    ++generation_; // answers still on their way change nothing now
    if (shortcutsBlocked_) send(setShortcutsBlocked(false));
    for (const QString& effect : std::as_const(unloaded_))
        send(effectCall(QStringLiteral("loadEffect"), effect));
    flush();
    shortcutsBlocked_ = false;
    unloaded_.clear();
    if (!markerPath().isEmpty()) QFile::remove(markerPath());
}

void KdeShortcuts::writeMarker() const {
    if (markerPath().isEmpty()) return;
    QStringList lines = unloaded_;
    if (shortcutsBlocked_) lines.prepend(kShortcutsLine);
    QFile file(markerPath());
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(lines.join(QLatin1Char('\n')).toUtf8() + '\n');
}

void KdeShortcuts::restoreAbandoned() {
    if (self().blocked_) return;
    QStringList left = readMarker();
    if (left.isEmpty()) return;
    if (left.removeAll(kShortcutsLine) > 0) send(setShortcutsBlocked(false));
    for (const QString& effect : std::as_const(left))
        send(effectCall(QStringLiteral("loadEffect"), effect));
    flush();
    QFile::remove(markerPath());
    logLine(lcLock,
            QStringLiteral("Tarvanel: KWin's shortcuts and effects that an earlier run left "
                           "blocked are back"));
}

} // namespace tarvanel
