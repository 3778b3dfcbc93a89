#include "engine/PrayerNames.h"

#include <QCoreApplication>

namespace tarvanel {
namespace {

struct Names {
    const char* english;
    const char* comment;
};

// The disambiguation tells a translator what each name is; the English text is the key.
constexpr Names kNames[] = {
    QT_TRANSLATE_NOOP3("Prayer", "Fajr", "the dawn prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Sunrise", "the time of sunrise"),
    QT_TRANSLATE_NOOP3("Prayer", "Dhuhr", "the noon prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Jumu'ah", "the Friday congregational prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Asr", "the afternoon prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Maghrib", "the sunset prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Isha", "the night prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Tarawih", "the Ramadan night prayer"),
    QT_TRANSLATE_NOOP3("Prayer", "Iftar", "the meal that breaks the Ramadan fast"),
    QT_TRANSLATE_NOOP3("Prayer", "Suhoor", "the meal before the Ramadan fast"),
};

QString single(const QString& name) {
    for (const Names& n : kNames) {
        if (name == QLatin1String(n.english))
            return QCoreApplication::translate("Prayer", n.english, n.comment);
    }
    return name;
}

} // namespace

QString prayerLabel(const QString& name) {
    const int amp = name.indexOf(QLatin1String(" & "));
    if (amp < 0) return single(name);
    //: Two prayers prayed together while travelling, e.g. "Dhuhr & Asr"
    return QCoreApplication::translate("Prayer", "%1 & %2")
        .arg(single(name.left(amp)), single(name.mid(amp + 3)));
}

} // namespace tarvanel
