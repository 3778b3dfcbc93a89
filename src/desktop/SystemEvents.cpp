#include "desktop/SystemEvents.h"

#include "base/Log.h"
#include "platform/AgentBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tarvanel {

namespace {

int signalPipe[2] = {-1, -1};

// The agent's object on the bus. Its methods are matched by the names of agentBus, so the
// protocol is written in one place; other calls get the usual errors of the bus.
class AgentObject : public QDBusVirtualObject {
public:
    explicit AgentObject(SystemEvents* events) : QDBusVirtualObject(events), events_(events) {}

    QString introspect(const QString&) const override {
        return QStringLiteral("<interface name=\"%1\"><method name=\"%2\"/><method name=\"%3\">"
                              "<arg name=\"path\" type=\"s\" direction=\"in\"/></method>"
                              "</interface>")
            .arg(agentBus::interface, agentBus::showSettings, agentBus::importFile);
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.type() != QDBusMessage::MethodCallMessage) return false;
        if (!message.interface().isEmpty() && message.interface() != agentBus::interface)
            return false;
        const QList<QVariant> args = message.arguments();
        const QString member = message.member();
        if (member == agentBus::showSettings && args.isEmpty()) {
            emit events_->showSettingsRequested();
        } else if (member == agentBus::importFile && args.size() == 1 &&
                   args[0].metaType() == QMetaType::fromType<QString>()) {
            emit events_->importFileRequested(args[0].toString());
        } else if (member == agentBus::showSettings || member == agentBus::importFile) {
            connection.send(message.createErrorReply(QDBusError::InvalidArgs, member));
            return true;
        } else {
            connection.send(message.createErrorReply(QDBusError::UnknownMethod, member));
            return true;
        }
        connection.send(message.createReply());
        return true;
    }

private:
    SystemEvents* events_;
};

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

bool SystemEvents::answerOtherCopies(QDBusConnection bus) {
    if (!bus.isConnected()) {
        logLine(lcDesktop, QStringLiteral("Tarvanel: no session bus; other copies cannot reach "
                                          "this one"));
        return false;
    }
    // The object first: whoever sees the name can call it at once.
    if (!bus.registerVirtualObject(agentBus::path, new AgentObject(this))) {
        logLine(lcDesktop, QStringLiteral("Tarvanel: ") + agentBus::path +
                               QStringLiteral(" is taken on the session bus"));
        return false;
    }
    if (!bus.registerService(agentBus::service)) {
        bus.unregisterObject(agentBus::path);
        logLine(lcDesktop, QStringLiteral("Tarvanel: another process owns ") + agentBus::service +
                               QStringLiteral(" on the session bus"));
        return false;
    }
    return true;
}

void SystemEvents::onPrepareForShutdown(bool starting) {
    if (starting) emit poweringOff();
}

} // namespace tarvanel
