#pragma once
// Events from outside the program, delivered on the event loop: termination signals, the
// system's power-off announcement and the requests of other copies of the program.
#include <QDBusConnection>
#include <QObject>
#include <QString>

class QSocketNotifier;

namespace tarvanel {

class SystemEvents : public QObject {
    Q_OBJECT
public:
    explicit SystemEvents(QObject* parent = nullptr);
    ~SystemEvents() override;

    // SIGTERM, SIGINT and SIGHUP become terminateRequested. One instance per process.
    bool watchSignals();
    // logind's PrepareForShutdown(true) becomes poweringOff; false without a system bus.
    bool watchPowerOff();
    // Takes the agent's name on `bus` and answers its methods: the request to show the settings
    // becomes showSettingsRequested, a file to import importFileRequested. False without the
    // bus or while another process holds the name.
    bool answerOtherCopies(QDBusConnection bus = QDBusConnection::sessionBus());

signals:
    void terminateRequested(int signalNumber);
    void poweringOff();
    void showSettingsRequested();
    void importFileRequested(const QString& path);

private slots:
    void onPrepareForShutdown(bool starting);

private:
    void readSignal();
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace tarvanel
