// The menu's commands and the view the title and menu are built from. A command that changes
// a mode asks through the platform and writes the store; one tick posted behind it brings the
// title and the locks up to date.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "engine/PrayerNames.h"
#include "integrations/FocusShortcuts.h"
#include "integrations/PrayerCalendar.h"
#include "lock/AppDelegate.h"
#include "lock/CalendarAccess.h"
#include "records/ConfigFile.h"
#include "records/Excused.h"
#include "records/History.h"
#include "records/TravelLocator.h"
#include "settings/CitySearch.h"
#include "settings/PrayerSettingsModel.h"
#include "timetable/Timetable.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QUrl>

namespace tarvanel {

void AppDelegate::refreshSoon() {
    if (refreshPosted_) return;
    refreshPosted_ = true;
    platform_.post([self = QPointer<AppDelegate>(this)] {
        if (!self) return;
        self->refreshPosted_ = false;
        self->tick();
    });
}

std::function<void()> AppDelegate::weak(void (AppDelegate::*command)()) {
    return [self = QPointer<AppDelegate>(this), command] {
        if (self) (self.data()->*command)();
    };
}

// Reads only: the schedule, the settings and the modes are as the last tick left them.
StatusView AppDelegate::statusView() const {
    const QDateTime now = currentTime();
    const bool setUp = QFile::exists(configURL());
    return StatusView{now,
                      setUp,
                      config_,
                      activeConfig(),
                      travelLocationKnown(),
                      today_.times(),
                      today_.waqt(),
                      today_.jumuah(),
                      today_.ramadan(),
                      combiningPrayers(now),
                      setUp && Excused::current(config_.excusedDays(), now).has_value(),
                      modes_.pausedUntil(now),
                      modes_.travellingUntil(now),
                      deferred_ ? std::optional(deferred_->displayName) : std::nullopt};
}

MenuModel AppDelegate::buildMenu() {
    QPointer<AppDelegate> self(this);
    StatusCommands commands;
    commands.openSettings = weak(&AppDelegate::openSettings);
    commands.previewLock = weak(&AppDelegate::previewLock);
    commands.startExcused = weak(&AppDelegate::startExcused);
    commands.endExcused = weak(&AppDelegate::endExcused);
    commands.startTravelling = weak(&AppDelegate::startTravelling);
    commands.stopTravelling = weak(&AppDelegate::stopTravelling);
    commands.resumeLocks = weak(&AppDelegate::resumeLocks);
    commands.markPrayed = [self](int tag) {
        if (self) self->markPrayed(tag);
    };
    commands.pauseLocks = [self](int days) {
        if (self) self->pauseLocks(days);
    };
    return buildStatusMenu(statusView(), commands);
}

void AppDelegate::markPrayed(int tag) {
    const int i = tag % 100;
    if (tag < 0 || i >= prayerNames().size()) return;
    const QString prayer = prayerNames()[i];
    const bool elsewhere = tag < 100;
    ledger_.markKept({prayer}, dayKey(currentTime()),
                     elsewhere ? QStringLiteral("elsewhere") : QStringLiteral("qada"));
    if (deferred_ && deferred_->prayer == prayer) setStage(LockStage::Idle);
    logLine(lcLock, QStringLiteral("Tarvanel: marked ") + prayer + QStringLiteral(" as ") +
                        (elsewhere ? QStringLiteral("prayed elsewhere") : QStringLiteral("qada")));
    refreshSoon();
}

void AppDelegate::previewLock() {
    // The controller's clock, like every other instant, so the tick that ends it agrees.
    startLock(QStringLiteral("Preview"), QStringLiteral("Preview"), currentTime().addSecs(10));
}

void AppDelegate::openSettings() {
    if (session_.isLocked() && !exitAfterTest_) return;
    SettingsServices services;
    services.clock = clock;
    services.geocoder = std::make_shared<GeonamesGeocoder>();
    services.writableCalendars = [] {
        QList<CalendarChoice> choices;
        for (const PrayerCalendar::Calendar& c : PrayerCalendar::writableCalendars())
            choices.append({c.identifier, c.title, c.sourceTitle});
        return choices;
    };
    services.calendarAuthorized = &PrayerCalendar::authorized;
    QPointer<AppDelegate> self(this);
    services.requestCalendarAccess = [self](std::function<void(bool)> done) {
        if (self) requestCalendarAccess(self->platform_, std::move(done));
    };
    services.focusInstalled = &FocusShortcuts::installed;
    services.runFocus = [self](bool on) {
        if (self) FocusShortcuts::run(on, self);
    };
    // The scripts live in a folder of their own: the form writes a pair on request, and the
    // file manager shows the folder so the user can read or change them.
    services.openShortcuts = [self] {
        QDir().mkpath(FocusShortcuts::folder());
        if (self) self->platform_.openUrl(QUrl::fromLocalFile(FocusShortcuts::folder()).toString());
    };
    services.focusFolder = FocusShortcuts::folder();
    for (const FocusShortcuts::Template& t : FocusShortcuts::templates())
        services.focusDesktops << t.desktop;
    services.focusDesktop = FocusShortcuts::currentDesktop();
    services.writeFocus = [](const QString& desktop) {
        return FocusShortcuts::createFor(desktop) == FocusShortcuts::CreateResult::written;
    };
    services.focusHandWritten = &FocusShortcuts::handWritten;
    services.confirmReplace = [self](const QString& question, const QString& info) {
        if (!self) return false;
        AlertRequest ask;
        ask.message = question;
        ask.info = info;
        ask.buttons = {tr("Replace"), tr("Cancel")};
        ask.firstIsDestructive = true;
        return self->platform_.showAlert(ask).response == 1000;
    };
    services.playSound = [self](const QString& path) {
        return self && self->platform_.playSoundFile(path);
    };

    PrayerSettingsActions actions;
    const bool firstRun = !QFile::exists(configURL());
    actions.save = [self, firstRun](const Config& cfg) {
        if (!self) return;
        self->applyConfig(cfg);
        if (firstRun) self->announceRunning();
    };
    actions.cancel = [firstRun] {
        if (firstRun)
            logLine(lcLock,
                    QStringLiteral("Tarvanel: not set up yet, so nothing locks; open Tarvanel "
                                   "from the applications menu to set it up"));
    };
    actions.previewLock = weak(&AppDelegate::previewLock);
    actions.uninstall = weak(&AppDelegate::uninstall);
    actions.exportHistory = weak(&AppDelegate::exportHistory);
    actions.importTimetable = [self] {
        if (self) self->openTimetableImport();
    };
    auto model = std::make_unique<PrayerSettingsModel>(config_, firstRun, std::move(services));
    if (!lastGoodConfig() && lastConfigError()) model->setConfigProblem(*lastConfigError());
    platform_.openSettingsWindow(std::move(model), std::move(actions));
}

void AppDelegate::openTimetableImport(const QString& file) {
    QPointer<AppDelegate> self(this);
    platform_.openTimetableImport(file, [self] {
        TimetableChangedNote::post(); // the schedule and the calendar follow the new times
        if (self) self->tick();
    });
}

void AppDelegate::exportHistory() {
    platform_.activateApp();
    const std::optional<QString> path =
        //: The file name the history export suggests; keep the .csv ending
        platform_.askSavePath(tr("Tarvanel history.csv"));
    if (!path) return;
    const QString csv = historyCSV(config_, currentTime());
    QString error;
    AlertRequest done;
    done.buttons = {tr("OK")};
    if (!writeFileAtomically(*path, csv.toUtf8(), &error)) { // the write logged it too
        //: %1 is a file
        done.message = tr("Couldn't export the history to %1").arg(*path);
        done.info = error + QStringLiteral(".");
        platform_.showAlert(done);
        return;
    }
    const qsizetype rows = csv.count(QLatin1Char('\n')) - 1; // less the header line
    //: %1 is a file; the count is of prayers written to it
    done.message = tr("Exported %Ln prayers to %1", nullptr, int(rows)).arg(*path);
    platform_.showAlert(done);
}

void AppDelegate::uninstall() {
    if (session_.isLocked()) return;
    platform_.activateApp();
    const AlertAnswer answer = platform_.showAlert(
        AlertRequest{tr("Uninstall Tarvanel?"),
                     tr("Tarvanel stops running, stops starting at login, and moves to the Trash. "
                        "Your prayer times stop locking the screen."),
                     {tr("Uninstall"), tr("Cancel")},
                     tr("Also delete my settings and history"),
                     true});
    if (answer.response != 1000) return;
    if (answer.checkBoxOn) modes_.removeAll();
    if (options_.removeProgram) options_.removeProgram(answer.checkBoxOn);
}

void AppDelegate::startExcused() {
    AlertRequest request;
    //: Asked on "I'm Excused…" in the menu: exempt from prayer for a while
    request.message = tr("Turn off reminders and locks?");
    //: %1 is the menu item that ends the excused days
    request.info = tr("They come back when you choose %1, or after %Ln days. Your streak is kept.",
                      nullptr, excusedWholeDays(config_))
                       .arg(QCoreApplication::translate("Menu", "No Longer Excused"));
    request.buttons = {tr("Turn Off"), tr("Cancel")};
    if (platform_.showAlert(request).response != 1000) return;
    Excused::begin(currentTime());
    logLine(lcLock, QStringLiteral("Tarvanel: excused"));
    if (stage_ == LockStage::WaitingForCall) setStage(LockStage::Idle);
    refreshSoon();
}

void AppDelegate::endExcused() {
    tarvanel::endExcused(currentTime());
    refreshSoon();
}

void AppDelegate::startTravelling() {
    AlertRequest request;
    //: Above a date picker: the last day of the journey
    request.message = tr("Travelling until…");
    //: %1 and %2 are combined into one lock, and so are %3 and %4 (prayer names)
    request.info =
        config_.combineOn()
            ? tr("%1 and %2 become one lock, and so do %3 and %4, through the end of "
                 "this day.")
                  .arg(prayerLabel(QStringLiteral("Dhuhr")), prayerLabel(QStringLiteral("Asr")),
                       prayerLabel(QStringLiteral("Maghrib")), prayerLabel(QStringLiteral("Isha")))
            //: The quoted text is a check box in Settings; school: of Islamic law
            : tr("Turn on “Combine prayers while travelling” in Settings if your "
                 "school permits it.");
    request.buttons = {tr("Start"), tr("Cancel")};
    platform_.activateApp();
    const QDateTime asked = currentTime();
    const std::optional<QDate> picked =
        platform_.askDate(request, localDate(asked), localDate(asked.addSecs(3 * 86400)));
    if (!picked || !picked->isValid()) return;
    // The clock moved on while the picker was open.
    const QDateTime until = travelEnd(*picked, currentTime());
    if (!until.isValid()) return;
    modes_.setTravellingUntil(until);
    logLine(lcLock, QStringLiteral("Tarvanel: travelling until ") + defaultDescription(until));
    refreshSoon();
}

void AppDelegate::stopTravelling() {
    modes_.setTravellingUntil(std::nullopt);
    refreshSoon();
}

void AppDelegate::pauseLocks(int days) {
    if (session_.isLocked()) return;
    const QDateTime until = pauseEnd(days, currentTime());
    if (!until.isValid()) return;
    AlertRequest request;
    request.message = tr("Pause Tarvanel?");
    //: Qt pattern of a weekday and a date, as in "Friday 3 October"
    const QString pattern = QCoreApplication::translate("TimeFormat", "dddd d MMMM");
    //: %1 is a weekday and a date, as in "Friday 3 October"
    request.info = tr("No reminders and no locks until %1 at midnight. You can resume any time "
                      "from the menu.")
                       .arg(formatLocal(until, pattern));
    request.buttons = {tr("Pause"), tr("Cancel")};
    if (platform_.showAlert(request).response != 1000) return;
    modes_.setPausedUntil(until);
    logLine(lcLock, QStringLiteral("Tarvanel: paused until ") + defaultDescription(until));
    refreshSoon();
}

void AppDelegate::resumeLocks() {
    if (const std::optional<QString> due = lockDueNow()) {
        AlertRequest request;
        //: %1 is a prayer name; "lock now" is a verb
        request.message = tr("%1's lock is due now: lock now?").arg(prayerLabel(*due));
        //: "Cancel" is the button of this question
        request.info = tr("Resuming now turns every screen black at once. Cancel keeps the pause.");
        //: A verb: lock the screens now
        request.buttons = {tr("Lock Now"), tr("Cancel")};
        platform_.activateApp();
        if (platform_.showAlert(request).response != 1000) return;
    }
    modes_.setPausedUntil(std::nullopt);
    logLine(lcLock, QStringLiteral("Tarvanel: resumed"));
    refreshSoon();
}

} // namespace tarvanel
