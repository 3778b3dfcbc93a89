#include "timetable/Timetable.h"

namespace tarvanel::Timetable {

// The store itself lands with the timetable work; until then no day is covered.
QMap<QString, QString> day(const QDateTime&) {
    return {};
}

} // namespace tarvanel::Timetable
