#pragma once
// A Platform that records what the core showed and answers questions from scripts. While a
// question is open, `whileModal` runs, as the desktop's nested event loop keeps ticking.
#include "platform/Platform.h"

#include <QList>
#include <QString>
#include <deque>

namespace tarvanel::test {

class FakePlatform : public Platform {
public:
    int screens = 1;
    QList<QList<LockWindowContent>> lockShows; // every showLockWindows call
    bool lockWindowsUp = false, bannerUp = false, settingsFirstRun = false, settingsOpen = false;
    bool soundFilesPlay = true;
    int raises = 0, closes = 0, activations = 0, settingsOpened = 0, settingsFileChanges = 0;
    QList<BannerContent> banners;
    QString title;
    TitleColor titleColor = TitleColor::Label;
    QStringList titles; // every distinct title in order
    bool trayHost = true;
    QStringList announcements; // "title: text"
    QStringList sounds;        // named sounds, and "file:<path>" for played files
    QList<AlertRequest> alerts;
    QStringList openedUrls;
    QStringList importsOpened;        // the file of every import window opened
    std::function<void()> importUsed; // what "Use This Timetable" of the last one runs
    std::unique_ptr<PrayerSettingsModel> settingsModel; // the model of the last window opened
    PrayerSettingsActions settingsActions;
    std::optional<int> exitStatus;
    QList<std::function<void()>> posted;
    QList<std::pair<int, std::function<void()>>> timers;
    std::function<void()> whileModal;

    // Scripted answers, consumed in order; when empty the second button (cancel) is chosen.
    std::deque<AlertAnswer> alertAnswers;
    std::deque<std::optional<QDate>> dateAnswers;
    std::deque<std::optional<QString>> savePathAnswers;

    void answerAlert(int response, bool checkBox = false) {
        alertAnswers.push_back({response, checkBox});
    }
    // Runs the work posted so far (after the current event).
    void runPosted() {
        while (!posted.isEmpty())
            posted.takeFirst()();
    }

    int screenCount() const override { return screens; }
    void showLockWindows(const QList<LockWindowContent>& perScreen, LockScreenState*) override {
        lockShows << perScreen;
        lockWindowsUp = true;
    }
    void raiseLockWindows(bool) override { ++raises; }
    void closeLockWindows() override {
        lockWindowsUp = false;
        ++closes;
    }
    void activateApp() override { ++activations; }
    bool showBanner(const BannerContent& banner) override {
        banners << banner;
        return bannerUp = true;
    }
    void closeBanner() override { bannerUp = false; }
    void setStatusTitle(const QString& text, TitleColor color) override {
        if (titles.isEmpty() || titles.last() != text) titles << text;
        title = text;
        titleColor = color;
    }
    bool announce(const QString& heading, const QString& text) override {
        announcements << heading + QStringLiteral(": ") + text;
        return trayHost;
    }
    void playNamedSound(const QString& name) override { sounds << name; }
    bool playSoundFile(const QString& path) override {
        if (soundFilesPlay) sounds << QStringLiteral("file:") + path;
        return soundFilesPlay;
    }
    AlertAnswer showAlert(const AlertRequest& request) override {
        alerts << request;
        return modal(alertAnswers, AlertAnswer{1001, false});
    }
    std::optional<QDate> askDate(const AlertRequest& request, const QDate&, const QDate&) override {
        alerts << request;
        return modal(dateAnswers, std::optional<QDate>());
    }
    std::optional<QString> askSavePath(const QString&) override {
        return modal(savePathAnswers, std::optional<QString>());
    }
    void openUrl(const QString& url) override { openedUrls << url; }
    void openSettingsWindow(std::unique_ptr<PrayerSettingsModel> model,
                            PrayerSettingsActions actions) override {
        ++settingsOpened;
        settingsFirstRun = model && model->firstRun();
        settingsOpen = true;
        settingsModel = std::move(model);
        settingsActions = std::move(actions);
    }
    void openTimetableImport(const QString& file, std::function<void()> used) override {
        importsOpened << file;
        importUsed = std::move(used);
    }
    bool settingsWindowOpen() const override { return settingsOpen; }
    void settingsFileChanged(const Config& config) override {
        ++settingsFileChanges;
        if (settingsOpen && settingsModel) settingsModel->fileChanged(config);
    }
    void post(std::function<void()> work) override { posted << std::move(work); }
    void singleShot(int ms, std::function<void()> work) override {
        timers.append({ms, std::move(work)});
    }
    void exitProcess(int status) override { exitStatus = status; }

private:
    // The next scripted answer, after the ticks of the open question (not nested).
    template <typename T> T modal(std::deque<T>& answers, T fallback) {
        if (whileModal && !inModal_) {
            inModal_ = true;
            whileModal();
            inModal_ = false;
        }
        if (answers.empty()) return fallback;
        T a = answers.front();
        answers.pop_front();
        return a;
    }
    bool inModal_ = false;
};

} // namespace tarvanel::test
