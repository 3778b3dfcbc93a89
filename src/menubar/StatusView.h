#pragma once
// What the status title and menu are built from: a read-only view of the controller's state,
// and the commands the menu may call. Nothing here reaches back into the controller.
#include "engine/Config.h"
#include "engine/DayTimes.h"
#include "menubar/MenuModel.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>

namespace tarvanel {

struct StatusView {
    QDateTime now;
    bool setUp = true; // the settings file exists
    Config config;     // as loaded
    Config display;    // the active settings: a detected travel location replaces home
    bool travelLocation = false;
    DayTimes times, waqt; // today's lock and computed times
    bool jumuah = false, ramadan = false, combining = false, excused = false;
    std::optional<QDateTime> pausedUntil, travellingUntil; // only while still ahead
    std::optional<QString> waitingForCall; // display name of a lock put off for a call
};

struct StatusCommands {
    std::function<void()> openSettings, previewLock, startExcused, endExcused, startTravelling,
        stopTravelling, resumeLocks;
    std::function<void(int)> markPrayed, pauseLocks; // a "Mark as Prayed" tag; days
};

// Built each time the menu opens.
MenuModel buildStatusMenu(const StatusView& view, const StatusCommands& commands);
// The disabled row under the seven-day grid that says what its marks mean.
QString gridLegend();

// The countdown title of a second in which no mode holds the title.
struct TitleView {
    const QDateTime& now;
    const DayTimes& times;
    const Config& config;              // the lock window of each prayer, for the colours
    std::optional<QString> lockPrayer; // a running lock's display name
    bool combining = false, jumuah = false;
    bool iftar = false; // Ramadan with its reminders on: Maghrib reads "Iftar"
    std::function<std::optional<QDateTime>()> tomorrowsFajr; // asked only after Isha
};
struct Title {
    QString text;
    TitleColor color = TitleColor::Label;
};
std::optional<Title> statusTitle(const TitleView& view);

} // namespace tarvanel
