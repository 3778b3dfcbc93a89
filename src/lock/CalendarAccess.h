#pragma once
// The question before the program writes into the user's calendars.
#include <functional>

namespace tarvanel {
class Platform;

// Asks the user through an alert (after the current event) and, on consent, gives the program
// its calendar folder. `completion` runs later on the event loop with true when access is
// granted; never before this returns. Asks nothing when access was granted before.
void requestCalendarAccess(Platform& platform, std::function<void(bool granted)> completion);

} // namespace tarvanel
