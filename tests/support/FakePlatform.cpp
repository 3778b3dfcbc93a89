#include "support/FakePlatform.h"

namespace tarvanel::test {

void FakePlatform::runPosted() {
    while (!posted.isEmpty()) {
        auto work = posted.takeFirst();
        work();
    }
}

void FakePlatform::showLockWindows(const QList<LockWindowContent>& perScreen, LockScreenState*) {
    lockShows << perScreen;
    lockWindowsUp = true;
}

void FakePlatform::closeLockWindows() {
    lockWindowsUp = false;
    ++closes;
}

bool FakePlatform::showBanner(const BannerContent& banner) {
    if (!hasMainScreen) return false;
    banners << banner;
    bannerUp = true;
    return true;
}

void FakePlatform::setStatusTitle(const QString& text, TitleColor color) {
    if (titles.isEmpty() || titles.last() != text) titles << text;
    title = text;
    titleColor = color;
}

bool FakePlatform::playSoundFile(const QString& path) {
    if (!soundFilesPlay) return false;
    sounds << QStringLiteral("file:") + path;
    return true;
}

AlertAnswer FakePlatform::showAlert(const AlertRequest& request) {
    alerts << request;
    if (alertAnswers.empty()) return {1001, false};
    AlertAnswer a = alertAnswers.front();
    alertAnswers.pop_front();
    return a;
}

std::optional<QDate> FakePlatform::askDate(const AlertRequest& request, const QDate&,
                                           const QDate&) {
    alerts << request;
    if (dateAnswers.empty()) return std::nullopt;
    auto a = dateAnswers.front();
    dateAnswers.pop_front();
    return a;
}

std::optional<QString> FakePlatform::askSavePath(const QString&) {
    if (savePathAnswers.empty()) return std::nullopt;
    auto a = savePathAnswers.front();
    savePathAnswers.pop_front();
    return a;
}

void FakePlatform::openSettingsWindow(bool firstRun) {
    ++settingsOpened;
    settingsFirstRun = firstRun;
    settingsOpen = true;
}

} // namespace tarvanel::test
