#include "desktop/QtPlatform.h"

#include "base/Log.h"
#include "base/StateFiles.h"
#include "desktop/Dialogs.h"
#include "desktop/LockBackendChoice.h"
#include "desktop/TimetableImportView.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "desktop/wayland/WaylandLock.h"
#include "lock/LockScreenState.h"
#include "settings/CitySearch.h"

#include <QApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <cstdio>
#include <unistd.h>

namespace tarvanel {

QtPlatform::QtPlatform(QObject* parent)
    : QObject(parent), settings_([this] {
          if (events_) events_->showSettingsRequested();
      }) {
    adopt(&windows_);
    // A session lock left by a killed copy is taken over by the first lock of this one; when
    // none comes, it must not keep the screens locked.
    QTimer::singleShot(3000, this, [this] {
        if (!lock_ || !lock_->up()) WaylandLock::releaseAbandoned();
    });
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::setEvents(PlatformEvents* events) {
    events_ = events;
}

void QtPlatform::adopt(LockBackend* backend) {
    backend->setKeyHandler([this](LockKey key, const QString& text) {
        if (events_) events_->lockKey(key, text);
    });
    connect(backend, &LockBackend::screensChanged, this, [this, backend] {
        if (events_ && backend == lock_) events_->screensChanged();
    });
    connect(backend, &LockBackend::failed, this, [this, backend](const QString& why) {
        if (backend == lock_) fallBack(why);
    });
}

void QtPlatform::fallBack(const QString& why) {
    logLine(lcDesktop, QStringLiteral("Tarvanel: ") + lock_->mechanism() +
                           QStringLiteral(" failed (") + why + QStringLiteral("); locking with ") +
                           windows_.mechanism());
    if (!windows_.weakness().isEmpty())
        logLine(lcDesktop, QStringLiteral("Tarvanel: ") + windows_.weakness());
    LockBackend* failed = lock_;
    lock_ = &windows_;
    if (!shown_.isEmpty()) windows_.show(shown_, state_);
    failed->close();
}

int QtPlatform::screenCount() const {
    return int(QGuiApplication::screens().size());
}

void QtPlatform::showLockWindows(const QList<LockWindowContent>& perScreen,
                                 LockScreenState* state) {
    if (!lock_ || !lock_->up()) { // a new lock: the strongest mechanism the desktop offers now
        stronger_ = strongestLock(this);
        if (stronger_) adopt(stronger_.get());
        lock_ = stronger_ ? stronger_.get() : &windows_;
        logLine(lcDesktop, QStringLiteral("Tarvanel: locking with ") + lock_->mechanism());
        if (!lock_->weakness().isEmpty())
            logLine(lcDesktop, QStringLiteral("Tarvanel: ") + lock_->weakness());
    }
    shown_ = perScreen;
    state_ = state;
    lock_->show(perScreen, state);
}

void QtPlatform::raiseLockWindows(bool focusFirst) {
    if (lock_) lock_->raise(focusFirst);
}

void QtPlatform::closeLockWindows() {
    shown_.clear();
    if (lock_) lock_->close();
}

void QtPlatform::activateApp() {
    if (lock_ == &windows_ && !windows_.windows().isEmpty())
        windows_.windows().first()->activateWindow();
}

bool QtPlatform::showBanner(const BannerContent& banner) {
    return banner_.show(banner);
}

void QtPlatform::closeBanner() {
    banner_.close();
}

void QtPlatform::setStatusTitle(const QString& title, TitleColor color) {
    tray_.setTitle(title, color);
}

bool QtPlatform::announce(const QString& title, const QString& text) {
    return tray_.announce(title, text);
}

void QtPlatform::playNamedSound(const QString& name) {
    sounds_.playNamed(name);
}

bool QtPlatform::playSoundFile(const QString& path) {
    return sounds_.playFile(path);
}

AlertAnswer QtPlatform::showAlert(const AlertRequest& request) {
    return runAlert(request);
}

std::optional<QDate> QtPlatform::askDate(const AlertRequest& request, const QDate& minimum,
                                         const QDate& initial) {
    return runDateQuestion(request, minimum, initial);
}

std::optional<QString> QtPlatform::askSavePath(const QString& proposedName) {
    return runSavePanel(proposedName);
}

void QtPlatform::openUrl(const QString& url) {
    const QUrl target = QUrl::fromUserInput(url, QString(), QUrl::AssumeLocalFile);
    QDesktopServices::openUrl(target);
}

void QtPlatform::openSettingsWindow(std::unique_ptr<PrayerSettingsModel> model,
                                    PrayerSettingsActions actions) {
    if (settings_.isOpen()) { // keep the edits in progress
        settings_.raise();
        return;
    }
    if (!model) return;
    model->setSoundPlayer([this](const QString& path) { return sounds_.playFile(path); },
                          [this] { sounds_.stopFile(); });
    if (!tray_.ensureCreated())
        model->setHeaderNote(
            tr("There's no tray on this desktop, so Tarvanel runs without an icon: it still locks "
               "on time, and opening Tarvanel from the applications menu shows these settings."));
    //: The settings window's title on the first run
    const QString title = model->firstRun() ? tr("Welcome to Tarvanel")
                                            //: The settings window's title
                                            : tr("Tarvanel Settings");

    settings_.show(title, QSize(620, 780),
                   new PrayerSettingsView(std::move(model), std::move(actions)));
}

bool QtPlatform::settingsWindowOpen() const {
    return settings_.isOpen();
}

void QtPlatform::settingsFileChanged(const Config& config) {
    if (!settings_.isOpen()) return;
    if (auto* view = settings_.window()->findChild<PrayerSettingsView*>())
        view->model().fileChanged(config);
}

void QtPlatform::openTimetableImport(const QString& file, std::function<void()> used) {
    tarvanel::openTimetableImport(file, std::move(used));
}

void QtPlatform::post(std::function<void()> work) {
    QTimer::singleShot(0, this, std::move(work));
}

void QtPlatform::singleShot(int milliseconds, std::function<void()> work) {
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, this, std::move(work));
}

void QtPlatform::exitProcess(int status) {
    // Right away: no event loop unwinding, no destructors that could still touch the display.
    std::fflush(stdout);
    std::fflush(stderr);
    ::_exit(status);
}

} // namespace tarvanel
