#pragma once
// The platform seam on a Qt desktop: lock windows, the banner, the tray, sounds and dialogs.
#include "desktop/BannerPanel.h"
#include "desktop/LockWindows.h"
#include "desktop/Sounds.h"
#include "desktop/TrayIcon.h"
#include "desktop/settings/SettingsWindow.h"
#include "platform/Platform.h"

#include <QObject>
#include <QPointer>
#include <memory>

namespace tarvanel {

class QtPlatform : public QObject, public Platform {
    Q_OBJECT
public:
    explicit QtPlatform(QObject* parent = nullptr);
    ~QtPlatform() override;

    // Where lock keys and screen changes go (the core's event receiver).
    void setEvents(PlatformEvents* events);
    TrayIcon& tray() { return tray_; }
    // The X11 windows, also the last resort elsewhere.
    LockWindows& lockWindows() { return windows_; }
    // The backend of the lock in progress (or of the last one); null before the first.
    LockBackend* lockBackend() const { return lock_; }
    BannerPanel& banner() { return banner_; }

    int screenCount() const override;
    void showLockWindows(const QList<LockWindowContent>& perScreen,
                         LockScreenState* state) override;
    void raiseLockWindows(bool focusFirst) override;
    void closeLockWindows() override;
    void activateApp() override;
    bool showBanner(const BannerContent& banner) override;
    void closeBanner() override;
    void setStatusTitle(const QString& title, TitleColor color) override;
    bool announce(const QString& title, const QString& text) override;
    void playNamedSound(const QString& name) override;
    bool playSoundFile(const QString& path) override;
    AlertAnswer showAlert(const AlertRequest& request) override;
    std::optional<QDate> askDate(const AlertRequest& request, const QDate& minimum,
                                 const QDate& initial) override;
    std::optional<QString> askSavePath(const QString& proposedName) override;
    void openUrl(const QString& url) override;
    void openSettingsWindow(std::unique_ptr<PrayerSettingsModel> model,
                            PrayerSettingsActions actions) override;
    bool settingsWindowOpen() const override;
    void settingsFileChanged(const Config& config) override;
    void openTimetableImport(const QString& file, std::function<void()> used) override;
    void post(std::function<void()> work) override;
    void singleShot(int milliseconds, std::function<void()> work) override;
    void exitProcess(int status) override;

private:
    void adopt(LockBackend* backend);
    void fallBack(const QString& why);

    PlatformEvents* events_ = nullptr;
    LockWindows windows_;
    std::unique_ptr<LockBackend> stronger_; // a compositor's own lock, when it has one
    LockBackend* lock_ = nullptr;
    QList<LockWindowContent> shown_;
    QPointer<LockScreenState> state_;
    BannerPanel banner_;
    TrayIcon tray_;
    Sounds sounds_;
    SettingsWindow settings_;
};

} // namespace tarvanel
