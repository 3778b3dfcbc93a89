#pragma once
// The seam between the GUI-free core and the desktop. The core decides; an implementation of
// Platform renders and asks the user. The desktop layer (Qt Widgets) implements it for real;
// tests use a fake that records calls and answers questions as scripted.
#include "engine/Quotes.h"
#include "settings/PrayerSettingsModel.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

namespace tarvanel {

class LockScreenState;

enum class TitleColor { Label, Orange, Red, Secondary };
enum class BannerStyle { normal, urgent, critical };

struct BannerContent {
    QString message;
    std::optional<Quote> quote;
    BannerStyle style = BannerStyle::normal;
    int seconds = 16; // how long the banner stays before the desktop closes it
};

// What one lock window shows besides the live texts of LockScreenState.
struct LockWindowContent {
    QString prayer; // display name: "Dhuhr", "Jumu'ah", "Maghrib & Isha", "Preview", "Test"
    Quote quote;
    QDateTime ends; // when the lock ends, for a mechanism that outlives the agent (invalid: none)
};

// A modal question. Buttons in order; the answer is 1000 for the first, 1001 for the second.
struct AlertRequest {
    QString message;
    QString info;
    QStringList buttons;
    QString checkBox; // non-empty: a check box, initially off
    bool firstIsDestructive = false;
};
struct AlertAnswer {
    int response = 1001;
    bool checkBoxOn = false;
};

// Keys that reach the lock windows.
enum class LockKey { Escape, Backspace, Other };

class Platform {
public:
    virtual ~Platform() = default;

    // Lock session. showLockWindows replaces any windows it had: one per entry, one entry per
    // screen, kiosk on (keyboard and pointer grabbed, pointer hidden). closeLockWindows undoes
    // all of it.
    virtual int screenCount() const = 0;
    virtual void showLockWindows(const QList<LockWindowContent>& perScreen,
                                 LockScreenState* state) = 0;
    virtual void raiseLockWindows(bool focusFirst) = 0;
    virtual void closeLockWindows() = 0;
    virtual void activateApp() = 0;

    // Banner panel near the top of the main screen; false when there is no screen.
    virtual bool showBanner(const BannerContent& banner) = 0;
    virtual void closeBanner() = 0;

    // Status item. Dropped silently when there is no tray.
    virtual void setStatusTitle(const QString& title, TitleColor color) = 0;
    // One notification from the status item, shown now or as soon as a tray host appears (a
    // later one replaces one still waiting); false when there is no tray host now.
    virtual bool announce(const QString& title, const QString& text) = 0;

    // Sounds: "Blow", "Glass", "Sosumi"; a file is false when it cannot be opened as a sound.
    virtual void playNamedSound(const QString& name) = 0;
    virtual bool playSoundFile(const QString& path) = 0;

    // Modal questions.
    virtual AlertAnswer showAlert(const AlertRequest& request) = 0;
    // The travel date picker: an alert with a day picker, earliest `minimum`, starting at
    // `initial`. Absent unless the first button was chosen.
    virtual std::optional<QDate> askDate(const AlertRequest& request, const QDate& minimum,
                                         const QDate& initial) = 0;
    // Save panel for a CSV file; absent when cancelled.
    virtual std::optional<QString> askSavePath(const QString& proposedName) = 0;
    virtual void openUrl(const QString& url) = 0;

    // Settings window showing `model` (its firstRun() decides the greeting); the buttons call
    // `actions`. A window already open is raised instead and the new model dropped.
    virtual void openSettingsWindow(std::unique_ptr<PrayerSettingsModel> model,
                                    PrayerSettingsActions actions) = 0;
    virtual bool settingsWindowOpen() const = 0;
    // config.json changed on disk and decoded to `config`: an open settings window shows it,
    // or says the file changed when the user has edits of their own there.
    virtual void settingsFileChanged(const Config& config) = 0;
    // The timetable import window (a fresh one; an open one closes first), with `file` read
    // at once when it is not empty. `used` runs after the chosen days were merged into
    // timetable.json, before the window closes.
    virtual void openTimetableImport(const QString& file, std::function<void()> used) = 0;

    // Event loop services: run after the current event, run once after a delay, end the
    // process.
    virtual void post(std::function<void()> work) = 0;
    virtual void singleShot(int milliseconds, std::function<void()> work) = 0;
    virtual void exitProcess(int status) = 0;
};

// What the desktop forwards to the core.
class PlatformEvents {
public:
    virtual ~PlatformEvents() = default;
    virtual void launchFinished() = 0; // the event loop runs
    virtual void tick() = 0;           // once a second
    virtual void lockKey(LockKey key, const QString& text) = 0;
    virtual void screensChanged() = 0;        // added, removed or resized screens
    virtual void showSettingsRequested() = 0; // another copy asked over D-Bus
    virtual void poweringOff() = 0;           // logind PrepareForShutdown
    virtual void terminateRequested() = 0;    // SIGTERM/SIGINT/SIGHUP
};

} // namespace tarvanel
