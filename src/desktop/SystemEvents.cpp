#include "desktop/SystemEvents.h"

#include "base/Log.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tarvanel {

namespace {

int signalPipe[2] = {-1, -1};

// Only async-signal-safe work here: the number goes through the pipe to the event loop.
void onSignal(int number) {
    const unsigned char byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[0], &byte, 1);
}

} // namespace

SystemEvents::SystemEvents(QObject* parent) : QObject(parent) {}

SystemEvents::~SystemEvents() {
    if (notifier_) {
        for (int number : {SIGTERM, SIGINT, SIGHUP})
            std::signal(number, SIG_DFL);
    }
}

bool SystemEvents::watchSignals() {
    if (notifier_) return true;
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0) {
        logLine(lcDesktop, QStringLiteral("Tarvanel: cannot watch termination signals"));
        return false;
    }
    for (int fd : signalPipe)
        ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK);
    notifier_ = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &SystemEvents::readSignal);
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int number : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(number, &action, nullptr);
    return true;
}

void SystemEvents::readSignal() {
    unsigned char byte = 0;
    while (::read(signalPipe[1], &byte, 1) == 1)
        emit terminateRequested(byte);
}

bool SystemEvents::watchPowerOff() {
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected() || !bus.connect(QStringLiteral("org.freedesktop.login1"),
                                           QStringLiteral("/org/freedesktop/login1"),
                                           QStringLiteral("org.freedesktop.login1.Manager"),
                                           QStringLiteral("PrepareForShutdown"), this,
                                           SLOT(onPrepareForShutdown(bool)))) {
        logLine(lcDesktop, QStringLiteral("Tarvanel: no system bus; power-off is not watched"));
        return false;
    }
    return true;
}

bool SystemEvents::watchShowSettings() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() ||
        !bus.connect(QString(), QString::fromLatin1(showSettingsPath),
                     QString::fromLatin1(showSettingsInterface),
                     QString::fromLatin1(showSettingsMember), this, SLOT(onShowSettings()))) {
        logLine(lcDesktop,
                QStringLiteral("Tarvanel: no session bus; requests to show the settings are not "
                               "received"));
        return false;
    }
    return true;
}

bool SystemEvents::watchImportFile() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() ||
        !bus.connect(QString(), QString::fromLatin1(showSettingsPath),
                     QString::fromLatin1(showSettingsInterface),
                     QString::fromLatin1(importFileMember), this, SLOT(onImportFile(QString)))) {
        logLine(lcDesktop,
                QStringLiteral("Tarvanel: no session bus; files from other copies are not "
                               "received"));
        return false;
    }
    return true;
}

bool sendImportFile(const QString& path) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return false;
    QDBusMessage signal = QDBusMessage::createSignal(QString::fromLatin1(showSettingsPath),
                                                     QString::fromLatin1(showSettingsInterface),
                                                     QString::fromLatin1(importFileMember));
    signal << QFileInfo(path).absoluteFilePath();
    return bus.send(signal);
}

void SystemEvents::onImportFile(const QString& path) {
    emit importFileRequested(path);
}

void SystemEvents::onPrepareForShutdown(bool starting) {
    if (starting) emit poweringOff();
}

void SystemEvents::onShowSettings() {
    emit showSettingsRequested();
}

} // namespace tarvanel
