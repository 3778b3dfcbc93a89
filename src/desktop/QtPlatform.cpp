#include "desktop/QtPlatform.h"

#include "desktop/Dialogs.h"
#include "desktop/TimetableImportView.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "records/StateFiles.h"
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
    connect(&lock_, &LockWindows::screensChanged, this, [this] {
        if (events_) events_->screensChanged();
    });
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::setEvents(PlatformEvents* events) {
    events_ = events;
    lock_.setKeyHandler([this](LockKey key, const QString& text) {
        if (events_) events_->lockKey(key, text);
    });
}

int QtPlatform::screenCount() const {
    return int(QGuiApplication::screens().size());
}

void QtPlatform::showLockWindows(const QList<LockWindowContent>& perScreen,
                                 LockScreenState* state) {
    lock_.show(perScreen, state);
}

void QtPlatform::raiseLockWindows(bool focusFirst) {
    lock_.raise(focusFirst);
}

void QtPlatform::closeLockWindows() {
    lock_.close();
}

void QtPlatform::activateApp() {
    if (!lock_.windows().isEmpty()) lock_.windows().first()->activateWindow();
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
    GeonamesGeocoder::warmUp(); // the city table loads while the user reads the window
    model->setSoundPlayer([this](const QString& path) { return sounds_.playFile(path); },
                          [this] { sounds_.stopFile(); });
    const QString title = model->firstRun() ? QStringLiteral("Welcome to Tarvanel")
                                            : QStringLiteral("Tarvanel Settings");
    settings_.show(title, QSize(620, 780),
                   new PrayerSettingsView(std::move(model), std::move(actions)));
}

bool QtPlatform::settingsWindowOpen() const {
    return settings_.isOpen();
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
