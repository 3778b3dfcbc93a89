#pragma once
// The names shown to the user. Prayer names stay English everywhere they are stored or compared
// (history, settings keys, lock keys); only what is displayed passes through here.
#include <QString>

namespace tarvanel {

// "Fajr", "Sunrise", "Dhuhr", "Jumu'ah", "Asr", "Maghrib", "Isha", "Tarawih", "Iftar", "Suhoor",
// and the combined "Dhuhr & Asr" / "Maghrib & Isha", in the user's language. Unknown names are
// returned as they are.
QString prayerLabel(const QString& name);

} // namespace tarvanel
