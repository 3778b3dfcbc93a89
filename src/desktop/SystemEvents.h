#pragma once
// Events from outside the program, delivered on the event loop: termination signals, the
// system's power-off announcement and the request of another copy to show the settings.
#include <QObject>

class QSocketNotifier;

namespace tarvanel {

// The session-bus signal another copy sends to ask the running one for its settings window.
inline constexpr const char* showSettingsPath = "/com/velmora/tarvanel";
inline constexpr const char* showSettingsInterface = "com.velmora.tarvanel";
inline constexpr const char* showSettingsMember = "showSettings";

class SystemEvents : public QObject {
    Q_OBJECT
public:
    explicit SystemEvents(QObject* parent = nullptr);
    ~SystemEvents() override;

    // SIGTERM, SIGINT and SIGHUP become terminateRequested. One instance per process.
    bool watchSignals();
    // logind's PrepareForShutdown(true) becomes poweringOff; false without a system bus.
    bool watchPowerOff();
    // The show-settings signal becomes showSettingsRequested; false without a session bus.
    bool watchShowSettings();

signals:
    void terminateRequested(int signalNumber);
    void poweringOff();
    void showSettingsRequested();

private slots:
    void onPrepareForShutdown(bool starting);
    void onShowSettings();

private:
    void readSignal();
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace tarvanel
