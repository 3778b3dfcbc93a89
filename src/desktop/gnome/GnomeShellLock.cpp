#include "desktop/gnome/GnomeShellLock.h"

#include "base/Log.h"
#include "desktop/LockKeys.h"
#include "desktop/LockView.h"
#include "lock/LockScreenState.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QStandardPaths>
#include <cmath>

namespace tarvanel {

const QString GnomeShellLock::serviceName = QStringLiteral("com.velmora.tarvanel.Shell");
const QString GnomeShellLock::extensionUuid = QStringLiteral("lock@tarvanel.velmora.com");

namespace {

const QString objectPath = QStringLiteral("/com/velmora/tarvanel/Shell");
const QString interfaceName = QStringLiteral("com.velmora.tarvanel.ShellLock");
// Reading two full-screen pictures takes the Shell a few tens of milliseconds; a Shell that
// does not answer within this is treated as refusing.
constexpr int lockTimeoutMs = 5000;
constexpr int unlockTimeoutMs = 1000;
// zlib level 1: a 1280x800 picture is written in a few milliseconds.
constexpr int pngQuality = 85;

// Where the pictures go: a folder only this user can read, on the runtime file system.
QString pictureFolder() {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString folder = QDir(runtime.isEmpty() ? QDir::tempPath() : runtime)
                               .filePath(QStringLiteral("tarvanel-lock"));
    QDir().mkpath(folder);
    QFile::setPermissions(folder,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return folder;
}

// A key as the extension names it, in the terms translateLockKey understands.
std::optional<ForwardedKey> translateShellKey(const QString& kind, const QString& text) {
    static const QHash<QString, int> keypad{
        {QStringLiteral("KP_Insert"), Qt::Key_Insert},
        {QStringLiteral("KP_End"), Qt::Key_End},
        {QStringLiteral("KP_Down"), Qt::Key_Down},
        {QStringLiteral("KP_Page_Down"), Qt::Key_PageDown},
        {QStringLiteral("KP_Left"), Qt::Key_Left},
        {QStringLiteral("KP_Begin"), Qt::Key_Clear},
        {QStringLiteral("KP_Right"), Qt::Key_Right},
        {QStringLiteral("KP_Home"), Qt::Key_Home},
        {QStringLiteral("KP_Up"), Qt::Key_Up},
        {QStringLiteral("KP_Page_Up"), Qt::Key_PageUp},
    };
    if (kind == QLatin1String("Escape")) return translateLockKey(Qt::Key_Escape, {}, {});
    if (kind == QLatin1String("BackSpace")) return translateLockKey(Qt::Key_Backspace, {}, {});
    if (keypad.contains(kind)) return translateLockKey(keypad[kind], Qt::KeypadModifier, {});
    if (kind != QLatin1String("Text") || text.isEmpty()) return std::nullopt;
    const QChar c = text.at(0);
    const int key = text.size() == 1 && c >= u'0' && c <= u'9' ? Qt::Key_0 + (c.unicode() - u'0')
                                                               : int(Qt::Key_unknown);
    return translateLockKey(key, {}, text);
}

} // namespace

GnomeShellLock::GnomeShellLock(QObject* parent)
    : LockBackend(parent), bus_(QDBusConnection::sessionBus()),
      watcher_(serviceName, bus_, QDBusServiceWatcher::WatchForUnregistration) {
    // Keys come to this connection alone; the extension sends them to the caller of Lock.
    bus_.connect(serviceName, objectPath, interfaceName, QStringLiteral("Key"), this,
                 SLOT(onKey(QString, QString)));
    bus_.connect(serviceName, objectPath, interfaceName, QStringLiteral("MonitorsChanged"), this,
                 SLOT(onMonitorsChanged()));
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { fail(QStringLiteral("the GNOME Shell extension left the session bus")); });
    coalesce_.setSingleShot(true);
    coalesce_.setInterval(0);
    connect(&coalesce_, &QTimer::timeout, this, &GnomeShellLock::send);
}

GnomeShellLock::~GnomeShellLock() {
    close();
}

bool GnomeShellLock::available() {
    const QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    return bus && bus->isServiceRegistered(serviceName).value();
}

QString GnomeShellLock::mechanism() const {
    return QStringLiteral("the GNOME Shell extension");
}

QDBusPendingCallWatcher* GnomeShellLock::call(const QString& method, const QVariantList& args) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, method);
    message.setArguments(args);
    return new QDBusPendingCallWatcher(bus_.asyncCall(message, lockTimeoutMs), this);
}

void GnomeShellLock::show(const QList<LockWindowContent>& perScreen, LockScreenState* state) {
    ++shows_;
    shownAt_.start();
    up_ = true;
    failed_ = false;
    acknowledged_ = false;
    coveredReported_ = false;
    content_ = perScreen;
    ends_ = perScreen.isEmpty() ? QDateTime() : perScreen.first().ends;
    if (state_) disconnect(state_, nullptr, this, nullptr);
    state_ = state;
    if (state) {
        connect(state, &LockScreenState::countdownChanged, this, &GnomeShellLock::scheduleSend);
        connect(state, &LockScreenState::guardianChanged, this, &GnomeShellLock::scheduleSend);
    }
    if (monitors_.isEmpty()) {
        askMonitors();
        return;
    }
    buildViews();
    send();
}

void GnomeShellLock::askMonitors() {
    auto* watcher = call(QStringLiteral("Monitors"), {});
    // A reply that a newer show() overtook still tells the monitors as they are.
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (!up_) return;
        const QDBusMessage reply = watcher->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return fail(QStringLiteral("no monitors from the GNOME Shell extension: ") +
                        reply.errorMessage());
        QList<Monitor> monitors;
        const QDBusArgument list = reply.arguments().first().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            int width = 0, height = 0;
            double scale = 1;
            list.beginStructure();
            list >> width >> height >> scale;
            list.endStructure();
            if (width > 0 && height > 0 && scale > 0) monitors << Monitor{{width, height}, scale};
        }
        list.endArray();
        if (monitors.isEmpty()) return fail(QStringLiteral("the GNOME Shell reports no monitor"));
        monitors_ = monitors;
        buildViews();
        send();
    });
}

void GnomeShellLock::buildViews() {
    views_.clear();
    for (qsizetype i = 0; i < monitors_.size(); ++i) {
        const LockWindowContent content =
            content_.isEmpty() ? LockWindowContent{} : content_.at(i % content_.size());
        auto view = std::make_unique<LockView>(content.prayer, content.quote, state_.data());
        view->setAttribute(Qt::WA_DontShowOnScreen);
        const Monitor& m = monitors_.at(i);
        view->resize(qRound(m.pixels.width() / m.scale), qRound(m.pixels.height() / m.scale));
        views_.push_back(std::move(view));
    }
}

void GnomeShellLock::scheduleSend() {
    if (up_) coalesce_.start();
}

void GnomeShellLock::send() {
    if (!up_ || failed_ || views_.empty()) return;
    if (inFlight_) { // one call at a time; the latest texts follow when it returns
        dirty_ = true;
        return;
    }
    dirty_ = false;
    const QStringList files = writePictures();
    if (files.isEmpty()) return fail(QStringLiteral("cannot write the lock pictures"));
    const bool lock = !acknowledged_;
    const qint64 ends = ends_.isValid() ? ends_.toMSecsSinceEpoch() : 0;
    auto* watcher = lock ? call(QStringLiteral("Lock"), {files, ends})
                         : call(QStringLiteral("Update"), {files});
    inFlight_ = true;
    const quint64 serial = shows_;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, files, serial] {
        watcher->deleteLater();
        inFlight_ = false;
        if (!up_) return;
        if (serial != shows_) return send(); // a newer show is waiting
        onSent(watcher, files);
    });
}

void GnomeShellLock::onSent(QDBusPendingCallWatcher* watcher, const QStringList& files) {
    if (watcher->isError())
        return fail(QStringLiteral("the GNOME Shell extension refused: ") +
                    watcher->error().message());
    acknowledged_ = true;
    removePictures(files); // the Shell has read them; older ones are no longer needed
    if (!coveredReported_) {
        coveredReported_ = true;
        const qint64 ms = shownAt_.elapsed();
        logLine(lcLock,
                QStringLiteral("Tarvanel: the GNOME Shell extension covered every monitor in %1 ms")
                    .arg(ms));
        emit covered(ms);
    }
    if (monitorsChangedAt_.isValid()) {
        logLine(lcLock,
                QStringLiteral("Tarvanel: the lock view is on %1 monitors %2 ms after they changed")
                    .arg(monitors_.size())
                    .arg(monitorsChangedAt_.elapsed()));
        monitorsChangedAt_.invalidate();
    }
    if (dirty_) send();
}

QStringList GnomeShellLock::writePictures() {
    ++generation_;
    const QDir folder(pictureFolder());
    QStringList files;
    for (size_t i = 0; i < views_.size(); ++i) {
        const Monitor& m = monitors_.at(qsizetype(i));
        QImage picture(m.pixels, QImage::Format_RGB32);
        picture.setDevicePixelRatio(m.scale);
        picture.fill(Qt::black);
        views_[i]->render(&picture);
        // A new name for every picture: nothing the Shell caches by name is ever shown again.
        const QString file = folder.filePath(QStringLiteral("lock-%1-%2-%3.png")
                                                 .arg(QCoreApplication::applicationPid())
                                                 .arg(generation_)
                                                 .arg(i));
        if (!picture.save(file, "PNG", pngQuality)) return {};
        files << file;
    }
    return files;
}

void GnomeShellLock::removePictures(const QStringList& keep) const {
    // Ours, and those a killed agent left; not those another running copy is handing over.
    const QDir folder(pictureFolder());
    const QString own = QStringLiteral("lock-%1-").arg(QCoreApplication::applicationPid());
    const QDateTime stale = QDateTime::currentDateTimeUtc().addSecs(-60);
    const auto pictures = folder.entryInfoList({QStringLiteral("lock-*.png")}, QDir::Files);
    for (const QFileInfo& picture : pictures) {
        const QString file = picture.absoluteFilePath();
        if (keep.contains(file)) continue;
        if (picture.fileName().startsWith(own) || picture.lastModified().toUTC() < stale)
            QFile::remove(file);
    }
}

void GnomeShellLock::fail(const QString& why) {
    if (!up_ || failed_) return;
    failed_ = true;
    emit failed(why);
}

void GnomeShellLock::onKey(const QString& kind, const QString& text) {
    if (!up_) return;
    if (const auto key = translateShellKey(kind, text)) forwardKey(key->key, key->text);
}

void GnomeShellLock::onMonitorsChanged() {
    // The extension covers a new monitor at once with a picture it has; the right size follows.
    if (!up_) return;
    monitorsChangedAt_.start();
    askMonitors();
}

void GnomeShellLock::close() {
    ++shows_;
    coalesce_.stop();
    if (state_) disconnect(state_, nullptr, this, nullptr);
    state_.clear();
    if (up_) {
        // Blocking but short: the Shell answers at once, and a lock must not outlive its end.
        QDBusMessage message = QDBusMessage::createMethodCall(
            serviceName, objectPath, interfaceName, QStringLiteral("Unlock"));
        bus_.call(message, QDBus::Block, unlockTimeoutMs);
    }
    up_ = false;
    acknowledged_ = false;
    dirty_ = false;
    views_.clear();
    monitors_.clear();
    removePictures({});
}

} // namespace tarvanel
