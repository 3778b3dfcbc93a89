#pragma once
// The controller: owns every piece of runtime state and makes every decision of the running
// program. The desktop renders what it is handed and forwards events here.
#include "app/CommandLine.h"
#include "engine/Clock.h"
#include "engine/Config.h"
#include "lock/LockScreenState.h"
#include "menubar/MenuModel.h"
#include "platform/Platform.h"

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

namespace tarvanel {

class AppDelegate : public QObject, public PlatformEvents {
    Q_OBJECT
public:
    // Reads config.json and state.json; applies --test-lock / --test-nudge from the command line.
    AppDelegate(Platform& platform, const CommandLine& cl, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Replaceable for tests: the current instant, whether a call is running, the strict-mode
    // question (absent = dismissed).
    Clock clock;
    std::function<bool()> callCheck;
    std::function<std::optional<bool>(const QString&)> askDidPray;

    LockScreenState* lockState();
    // Built each time the status menu opens.
    MenuModel buildMenu();

    // PlatformEvents
    void launchFinished() override;
    void tick() override;
    void lockKey(LockKey key, const QString& text) override;
    void screensChanged() override;
    void showSettingsRequested() override;
    void poweringOff() override;
    void terminateRequested() override;
};

} // namespace tarvanel
