// Engine speed: one day's solar times, a day's schedule, a whole year for one city, and the
// --times command as a process.
#include "base/StateFiles.h"
#include "engine/LocalTime.h"
#include "engine/PrayerTimes.h"
#include "engine/Schedule.h"
#include "records/ConfigFile.h"
#include "timetable/Timetable.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimeZone>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

using namespace tarvanel;

namespace {

Config london() {
    Config c;
    c.locationName = "London";
    c.latitude = 51.5072;
    c.longitude = -0.1276;
    c.prayerOverrides = QMap<QString, QString>{{"Dhuhr", "+10"}, {"Isha", "20:30"}};
    return c;
}

struct Env {
    QTemporaryDir home;
    Env() {
        setenv("TZ", "Europe/London", 1);
        resetLocalTimeZone();
        setHomeDirForTesting(home.path());
    }
};
Env& env() {
    static Env e;
    return e;
}

const QDateTime kDay = QDateTime(QDate(2025, 3, 14), QTime(11, 0), QTimeZone::utc());

} // namespace

static void BM_PrayerTimesOneDay(benchmark::State& state) {
    env();
    PrayerTimes pt(london());
    for (auto _ : state)
        benchmark::DoNotOptimize(pt.times(kDay));
}
BENCHMARK(BM_PrayerTimesOneDay);

static void BM_EffectiveTimes(benchmark::State& state) {
    env();
    const Config cfg = london();
    for (auto _ : state)
        benchmark::DoNotOptimize(Timetable::scheduledTimes(kDay, cfg));
}
BENCHMARK(BM_EffectiveTimes);

static void BM_WholeYearOneCity(benchmark::State& state) {
    env();
    const Config cfg = london();
    const QDateTime start = startOfLocalDay(QDate(2025, 1, 1));
    for (auto _ : state) {
        for (int d = 0; d < 365; ++d)
            benchmark::DoNotOptimize(
                Timetable::scheduledTimes(start.addSecs(qint64(d) * 86400 + 43200), cfg));
    }
}
BENCHMARK(BM_WholeYearOneCity)->Unit(benchmark::kMillisecond);

// The whole process, as a user runs it: exec, load the config, compute, print.
static void BM_TimesCommandProcess(benchmark::State& state) {
    env();
    const char* binary = std::getenv("TARVANEL_BINARY");
    const std::string path = binary ? binary : TARVANEL_BINARY_DEFAULT;
    QDir().mkpath(env().home.path() + "/.tarvanel");
    saveConfig(london());
    setenv("HOME", env().home.path().toUtf8().constData(), 1);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    char* argv[] = {const_cast<char*>(path.c_str()), const_cast<char*>("--times"), nullptr};
    for (auto _ : state) {
        pid_t pid = 0;
        if (posix_spawn(&pid, path.c_str(), &actions, nullptr, argv, environ) != 0) {
            state.SkipWithError("cannot start tarvanel");
            break;
        }
        int status = 0;
        waitpid(pid, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            state.SkipWithError("tarvanel --times failed");
            break;
        }
    }
    posix_spawn_file_actions_destroy(&actions);
}
BENCHMARK(BM_TimesCommandProcess)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_MAIN();
