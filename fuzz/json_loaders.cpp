// Any bytes in any of the JSON files: every loader reads them as its store would, and the
// readers built on them (streak, CSV, excused state, timetable summary) cope.
#include "FuzzHome.h"
#include "records/Excused.h"
#include "records/History.h"
#include "records/LockState.h"
#include "timetable/Timetable.h"
#include <QTimeZone>

using namespace tarvanel;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::setUpHome();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1) return 0;
    static const char* const files[] = {"history.json", "marks.json", "excused.json",
                                        "timetable.json", "state.json"};
    const QString name = QString::fromLatin1(files[data[0] % 5]);
    fuzz::writeSupportFile(name, data + 1, size - 1);

    const QDateTime now(QDate(2025, 3, 1), QTime(12, 0), QTimeZone::utc());
    Config cfg;
    cfg.latitude = 51.5;
    cfg.longitude = -0.1;
    switch (data[0] % 5) {
    case 0: {
        const HistoryMap h = loadHistory();
        (void)streakDays(now, 15);
        for (auto it = h.begin(); it != h.end(); ++it)
            for (const QString& p : it.value())
                (void)gridMark(p, it.key(), h, {}, false);
        break;
    }
    case 1:
        (void)Marks::load();
        (void)historyCSV(cfg, now);
        break;
    case 2:
        (void)Excused::touchesDay(now, Excused::load(), 15);
        (void)Excused::current(15, now); // may rewrite the file: read it again below
        (void)historyCSV(cfg, now);
        (void)streakDays(now, 15);
        break;
    case 3:
        Timetable::resetCacheForTesting();
        (void)Timetable::day(now);
        (void)Timetable::summary();
        break;
    case 4:
        (void)loadCompletedLocks();
        break;
    }
    QFile::remove(supportPath(name));
    return 0;
}
