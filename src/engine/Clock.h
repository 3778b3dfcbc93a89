#pragma once
// Every decision reads "now" through a Clock, so tests can run whole days in a moment.
#include <QDateTime>
#include <functional>

namespace tarvanel {

using Clock = std::function<QDateTime()>;

// The system clock as a UTC instant with millisecond precision.
QDateTime systemNow();

} // namespace tarvanel
