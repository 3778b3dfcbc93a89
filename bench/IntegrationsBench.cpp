// Speed of a calendar sync among thousands of the user's own events.
#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "integrations/PrayerCalendar.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimeZone>
#include <benchmark/benchmark.h>

using namespace tarvanel;

namespace {

const QDateTime now(QDate(2025, 11, 4), QTime(14, 0), QTimeZone::utc());

// 5,000 events over five calendars, spread across the days a sync clears, and the chosen one.
// range(0): 2 moves every event (a saved lead that changes each time), 1 finds them all in place
// (the daily sync on an unchanged schedule), 0 only clears (calendarSync off).
void BM_SyncAmongFiveThousandEvents(benchmark::State& state) {
    QTemporaryDir home;
    qputenv("TZ", "Europe/London");
    resetLocalTimeZone();
    setHomeDirForTesting(home.path());
    qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
    const QString root = PrayerCalendar::rootPath();
    QDir().mkpath(root + "/work/office");
    for (int c = 0; c < 5; ++c) {
        const QString folder = root + QStringLiteral("/account%1/cal%1").arg(c);
        QDir().mkpath(folder);
        for (int i = 0; i < 1000; ++i) {
            const QDateTime start = now.addSecs(qint64(i % 300) * 3600 - 86400);
            const QByteArray uid = QStringLiteral("event-%1-%2").arg(c).arg(i).toUtf8();
            writeFileAtomically(
                folder + '/' + uid + ".ics",
                "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//bench//EN\r\n"
                "BEGIN:VEVENT\r\nUID:" +
                    uid +
                    "\r\nDTSTAMP:20251101T000000Z\r\n"
                    "DTSTART:" +
                    start.toString("yyyyMMddTHHmmssZ").toUtf8() +
                    "\r\nDTEND:" + start.addSecs(1800).toString("yyyyMMddTHHmmssZ").toUtf8() +
                    "\r\nSUMMARY:Meeting " + uid +
                    "\r\nDESCRIPTION:Agenda: budget\\, hiring\\, the roadmap for next "
                    "quarter and anything else that comes up\r\n"
                    " during the week.\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
        }
    }
    Config cfg;
    cfg.calendarSync = state.range(0) > 0;
    cfg.calendarID = QStringLiteral("work/office");
    for (auto _ : state) {
        if (state.range(0) == 2) cfg.lockLeadMinutes = cfg.leadMinutes() == 5 ? 6 : 5;
        PrayerCalendar::sync(cfg, now);
    }
    state.counters["events"] = double(QDir(root + "/work/office").entryList({"*.ics"}).size());
}
BENCHMARK(BM_SyncAmongFiveThousandEvents)
    ->Arg(2)
    ->Arg(1)
    ->Arg(0)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(2.0)
    ->UseRealTime();

} // namespace

BENCHMARK_MAIN();
