// Speed of the records, guardian and timetable paths that run on the main thread.
#include "base/StateFiles.h"
#include "engine/Config.h"
#include "engine/LocalTime.h"
#include "guardian/Guardian.h"
#include "records/DayLedger.h"
#include "records/Excused.h"
#include "records/History.h"
#include "timetable/TimetableParser.h"

#include <QTemporaryDir>
#include <QTimeZone>
#include <benchmark/benchmark.h>

using namespace tarvanel;

namespace {

// Every benchmark works in its own throw-away home in London time.
struct ScratchHome {
    QTemporaryDir dir;
    ScratchHome() {
        qputenv("TZ", "Europe/London");
        resetLocalTimeZone();
        setHomeDirForTesting(dir.path());
        ensureSupportDir();
    }
};

const QDateTime now = QDateTime(QDate(2025, 3, 1), QTime(12, 0), QTimeZone::utc());

// Five years of history with all five prayers every day, and an excused week each month.
void writeFiveYears(bool excused) {
    HistoryMap history;
    QList<ExcusedRange> ranges;
    const QDate last = localDate(now);
    for (QDate d = last.addYears(-5); d <= last; d = d.addDays(1)) {
        if (d.day() < 8 && excused) continue; // the excused days keep nothing
        history[dayKey(d)] = {"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha"};
        if (d.day() == 28 && excused)
            ranges.append({startOfLocalDay(d.addDays(4)), startOfLocalDay(d.addDays(11))});
    }
    saveHistory(history);
    Excused::save(ranges);
}

QStringList fortyLineSheet() {
    QStringList lines{"March 2025 — Masjid timetable",
                      "Date Day Fajr Begins Jamaat Sunrise Zuhr Jamaat Asr Jamaat Maghrib "
                      "Isha Jamaat"};
    for (int d = 1; d <= 31; ++d)
        lines << QStringLiteral("%1 Sat 5:%2 5:45 6:%3 12:15 1:15 3:%2 4:30 6:%3 7:%2 8:00")
                     .arg(d)
                     .arg(10 + d % 40, 2, 10, QLatin1Char('0'))
                     .arg(20 + d % 30, 2, 10, QLatin1Char('0'));
    while (lines.size() < 40)
        lines << QStringLiteral("Jumu'ah 1:30 — all welcome");
    return lines;
}

void BM_ParseFortyLineSheet(benchmark::State& state) {
    const QStringList lines = fortyLineSheet();
    TimetableParser::parse(lines); // compile the patterns outside the timing
    for (auto _ : state)
        benchmark::DoNotOptimize(TimetableParser::parse(lines));
}
BENCHMARK(BM_ParseFortyLineSheet)->Unit(benchmark::kMicrosecond);

void BM_GuardianVerify(benchmark::State& state) {
    ScratchHome home;
    const QByteArray secret = Guardian::newSecret();
    Guardian::save(secret);
    const QString input = Guardian::code(secret, now);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Guardian::verify(input, now));
    }
}
BENCHMARK(BM_GuardianVerify)->Unit(benchmark::kMicrosecond);

// Twenty years of every prayer kept, a qada mark every tenth day and an excused week each
// month: the size a long-time user's files reach.
void writeTwentyYears() {
    HistoryMap history;
    Marks::Map marks;
    QList<ExcusedRange> ranges;
    const QDate last = localDate(now);
    for (QDate d = last.addYears(-20); d <= last; d = d.addDays(1)) {
        if (d.day() < 8) continue; // the excused days keep nothing
        history[dayKey(d)] = {"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha"};
        if (d.day() % 10 == 0) marks[dayKey(d)] = {{"Fajr", "qada"}};
        if (d.day() == 28) { // so the streak runs unbroken to the walk's limit
            const QDate first = d.addMonths(1).addDays(1 - d.day());
            ranges.append({startOfLocalDay(first), startOfLocalDay(first.addDays(7))});
        }
    }
    saveHistory(history);
    Marks::save(marks);
    Excused::save(ranges);
}

// What the menu reads each time it opens: the stores, the streak and the seven-day grid.
void BM_MenuReadsTwentyYears(benchmark::State& state) {
    ScratchHome home;
    writeTwentyYears();
    int streak = 0;
    for (auto _ : state) {
        const QList<ExcusedRange> excused = Excused::load();
        benchmark::DoNotOptimize(Excused::current(15, now));
        const HistoryMap history = loadHistory();
        const Marks::Map marks = Marks::load();
        streak = streakDays(now, 15, history, excused);
        for (int k = 0; k < 7; ++k)
            for (const char* prayer : {"Fajr", "Dhuhr", "Asr", "Maghrib", "Isha"})
                benchmark::DoNotOptimize(gridMark(QString::fromLatin1(prayer),
                                                  dayKey(now.addDays(-k)), history, marks,
                                                  Excused::contains(now, excused, 15)));
    }
    state.counters["streak"] = streak;
}
BENCHMARK(BM_MenuReadsTwentyYears)->Unit(benchmark::kMillisecond);

// The write at the end of a lock, each on a new day after the twenty years.
void BM_LogKeptTwentyYears(benchmark::State& state) {
    ScratchHome home;
    writeTwentyYears();
    QDate day = localDate(now);
    for (auto _ : state) {
        day = day.addDays(1);
        DayLedger ledger; // a new day's: state.json holds one key at most
        ledger.logKept(dayKey(day) + QStringLiteral("-Fajr"), std::nullopt);
    }
    state.counters["days"] = double(loadHistory().size());
}
BENCHMARK(BM_LogKeptTwentyYears)->Unit(benchmark::kMillisecond);

void BM_StreakDaysFiveYears(benchmark::State& state) {
    ScratchHome home;
    writeFiveYears(false);
    int streak = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(streak = streakDays(now, 15));
    state.counters["streak"] = streak;
}
BENCHMARK(BM_StreakDaysFiveYears)->Unit(benchmark::kMillisecond);

void BM_HistoryCsvFiveYearsWithExcusedPeriods(benchmark::State& state) {
    ScratchHome home;
    writeFiveYears(true);
    Config cfg;
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    qsizetype size = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(size = historyCSV(cfg, now).size());
    state.counters["chars"] = double(size);
}
BENCHMARK(BM_HistoryCsvFiveYearsWithExcusedPeriods)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
