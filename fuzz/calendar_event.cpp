// Any bytes as an event file in the user's calendar: listing, clearing our events around it and
// writing the week's blocks must neither crash nor touch a file that is not ours.
#include "FuzzHome.h"
#include "integrations/PrayerCalendar.h"

#include <QDir>
#include <QTimeZone>

using namespace tarvanel;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::setUpHome();
    qputenv("XDG_DATA_HOME", (homeDir() + QStringLiteral("/.local/share")).toUtf8());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString folder = PrayerCalendar::rootPath() + QStringLiteral("/work/office");
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    const QString theirs = folder + QStringLiteral("/theirs.ics");
    QFile f(theirs);
    if (!f.open(QIODevice::WriteOnly)) return 0;
    f.write(reinterpret_cast<const char*>(data), qint64(size));
    f.close();
    const bool tagged =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size))
            .contains("Tarvanel");
    (void)PrayerCalendar::writableCalendars();
    Config cfg;
    cfg.latitude = 51.5;
    cfg.calendarSync = true;
    cfg.calendarID = QStringLiteral("work/office");
    PrayerCalendar::sync(cfg, QDateTime(QDate(2025, 11, 4), QTime(8, 0), QTimeZone::utc()));
    // A file with no mark of ours is never changed or removed.
    if (!tagged && (!QFile::exists(theirs) || QFileInfo(theirs).size() != qint64(size))) abort();
    return 0;
}
