#pragma once
// Events from outside the program, delivered on the event loop: termination signals, the
// system's power-off announcement and the request of another copy to show the settings.
#include <QObject>
#include <QString>

class QSocketNotifier;

namespace tarvanel {

// The session-bus signal another copy sends to ask the running one for its settings window.
inline constexpr const char* showSettingsPath = "/com/velmora/tarvanel";
inline constexpr const char* showSettingsInterface = "com.velmora.tarvanel";
inline constexpr const char* showSettingsMember = "showSettings";
// Same path and interface: another copy hands over a file to import (one string, its path).
inline constexpr const char* importFileMember = "importFile";

// Sends the import-file signal with `path` made absolute; false without a session bus.
bool sendImportFile(const QString& path);

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
    // The import-file signal becomes importFileRequested; false without a session bus.
    bool watchImportFile();

signals:
    void terminateRequested(int signalNumber);
    void poweringOff();
    void showSettingsRequested();
    void importFileRequested(const QString& path);

private slots:
    void onPrepareForShutdown(bool starting);
    void onShowSettings();
    void onImportFile(const QString& path);

private:
    void readSignal();
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace tarvanel
