#include "lock/CalendarAccess.h"
#include "integrations/PrayerCalendar.h"
#include "platform/Platform.h"

#include <QCoreApplication>

namespace tarvanel {

void requestCalendarAccess(Platform& platform, std::function<void(bool)> completion) {
    platform.post([&platform, completion = std::move(completion)] {
        if (PrayerCalendar::authorized()) {
            completion(PrayerCalendar::grantAccess());
            return;
        }
        AlertRequest ask;
        ask.message = QCoreApplication::translate(
            "Calendar", "Allow Tarvanel to add busy events to your calendars?");
        //: %1 is a folder. khal and vdirsyncer are the names of two programs
        ask.info = QCoreApplication::translate(
                       "Calendar",
                       "Tarvanel keeps its events in the calendar folders under %1, one file per "
                       "event. khal shows them, and vdirsyncer syncs them with your online "
                       "calendar so colleagues see you're busy.")
                       .arg(PrayerCalendar::rootPath());
        ask.buttons = {QCoreApplication::translate("Calendar", "Allow"),
                       QCoreApplication::translate("Calendar", "Don't Allow")};
        const bool consent = platform.showAlert(ask).response == 1000;
        completion(consent && PrayerCalendar::grantAccess());
    });
}

} // namespace tarvanel
