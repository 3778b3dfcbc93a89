#include "lock/CalendarAccess.h"
#include "integrations/PrayerCalendar.h"
#include "platform/Platform.h"

namespace tarvanel {

void requestCalendarAccess(Platform& platform, std::function<void(bool)> completion) {
    platform.post([&platform, completion = std::move(completion)] {
        if (PrayerCalendar::authorized()) {
            completion(PrayerCalendar::grantAccess());
            return;
        }
        AlertRequest ask;
        ask.message = QStringLiteral("Allow Tarvanel to add busy events to your calendars?");
        ask.info = QStringLiteral(
                       "Tarvanel keeps its events in the calendar folders under %1, one file per "
                       "event. khal shows them, and vdirsyncer syncs them with your online "
                       "calendar so colleagues see you're busy.")
                       .arg(PrayerCalendar::rootPath());
        ask.buttons = {QStringLiteral("Allow"), QStringLiteral("Don't Allow")};
        const bool consent = platform.showAlert(ask).response == 1000;
        completion(consent && PrayerCalendar::grantAccess());
    });
}

} // namespace tarvanel
