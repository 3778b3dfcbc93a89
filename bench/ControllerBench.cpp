// The controller's per-second cost: an idle tick, the evening title, the menu, a whole day.
#include "base/Log.h"
#include "base/StateFiles.h"
#include "engine/Config.h"
#include "engine/Hijri.h"
#include "engine/LocalTime.h"
#include "engine/Schedule.h"
#include "lock/AppDelegate.h"
#include "records/ConfigFile.h"
#include "timetable/Timetable.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace tarvanel;

namespace {

// Renders nothing; posted work runs after the tick like the event loop would.
class NullPlatform : public Platform {
public:
    QList<std::function<void()>> posted;
    int screenCount() const override { return 1; }
    void showLockWindows(const QList<LockWindowContent>&, LockScreenState*) override {}
    void raiseLockWindows(bool) override {}
    void closeLockWindows() override {}
    void activateApp() override {}
    bool showBanner(const BannerContent&) override { return true; }
    void closeBanner() override {}
    void setStatusTitle(const QString&, TitleColor) override {}
    bool announce(const QString&, const QString&) override { return false; }
    void playNamedSound(const QString&) override {}
    bool playSoundFile(const QString&) override { return false; }
    AlertAnswer showAlert(const AlertRequest&) override { return {}; }
    std::optional<QDate> askDate(const AlertRequest&, const QDate&, const QDate&) override {
        return std::nullopt;
    }
    std::optional<QString> askSavePath(const QString&) override { return std::nullopt; }
    void openUrl(const QString&) override {}
    void openSettingsWindow(std::unique_ptr<PrayerSettingsModel>, PrayerSettingsActions) override {}
    bool settingsWindowOpen() const override { return false; }
    void settingsFileChanged(const Config&) override {}
    void openTimetableImport(const QString&, std::function<void()>) override {}
    void post(std::function<void()> work) override { posted << std::move(work); }
    void singleShot(int, std::function<void()>) override {}
    void exitProcess(int) override {}
    void runPosted() {
        while (!posted.isEmpty())
            posted.takeFirst()();
    }
};

QTemporaryDir& home() {
    static QTemporaryDir dir;
    return dir;
}

Config benchConfig() {
    Config cfg;
    cfg.locationName = QStringLiteral("London");
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    cfg.method = QStringLiteral("MWL");
    return cfg;
}

QDateTime localTime(int h, int m) {
    return startOfLocalDay(QDate(2026, 1, 14)).addSecs(h * 3600 + m * 60);
}

struct Fixture {
    NullPlatform platform;
    std::unique_ptr<AppDelegate> app;
    QDateTime now;
    explicit Fixture(const QDateTime& start) : now(start) {
        QDir(supportDir()).removeRecursively();
        saveConfig(benchConfig());
        app = std::make_unique<AppDelegate>(platform, ControllerOptions{});
        app->clock = [this] { return now; };
        app->callCheck = [] { return false; };
        app->askDidPray = [](const QString&) { return std::optional<bool>(true); };
        app->tick();
    }
};

void BM_IdleTick(benchmark::State& state) {
    Fixture f(localTime(10, 0));
    const QDateTime base = f.now;
    qint64 i = 0;
    for (auto _ : state) {
        f.now = base.addSecs(++i % 1800); // 10:00 to 10:30, nothing due
        f.app->tick();
    }
}
BENCHMARK(BM_IdleTick);

void BM_EveningTick(benchmark::State& state) {
    Fixture f(localTime(21, 0));
    const QDateTime base = f.now;
    qint64 i = 0;
    for (auto _ : state) {
        f.now = base.addSecs(++i % 3600);
        f.app->tick();
    }
}
BENCHMARK(BM_EveningTick);

// What the evening title would cost if tomorrow were computed on every tick.
void BM_TomorrowScheduleUncached(benchmark::State& state) {
    const Config cfg = benchConfig();
    const QDateTime now = localTime(21, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(Timetable::scheduledTimes(now.addSecs(86400), cfg));
}
BENCHMARK(BM_TomorrowScheduleUncached);

// The per-day answers the controller keeps (lock/TodaySchedule.h), had they been made every
// tick: with the schedule itself (BM_TomorrowScheduleUncached) they would not fit in 20 µs.
void BM_DayAnswersUncached(benchmark::State& state) {
    const QDateTime now = localTime(21, 0);
    for (auto _ : state) {
        const QDate date = localDate(now);
        benchmark::DoNotOptimize(dayKey(date));
        benchmark::DoNotOptimize(startOfLocalDay(date.addDays(1)));
        benchmark::DoNotOptimize(isRamadan(now));
    }
}
BENCHMARK(BM_DayAnswersUncached);

void BM_BuildMenu(benchmark::State& state) {
    Fixture f(localTime(12, 0));
    for (auto _ : state)
        benchmark::DoNotOptimize(f.app->buildMenu());
}
BENCHMARK(BM_BuildMenu)->Unit(benchmark::kMicrosecond);

void BM_SimulatedDay(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Fixture f(localTime(0, 0));
        state.ResumeTiming();
        for (int s = 0; s < 86400; ++s) {
            f.now = f.now.addSecs(1);
            f.app->tick();
            f.platform.runPosted();
        }
    }
}
BENCHMARK(BM_SimulatedDay)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    qputenv("TZ", "Europe/London");
    resetLocalTimeZone();
    qputenv("HOME", home().path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home().path() + QStringLiteral("/.config")).toUtf8());
    setHomeDirForTesting(home().path());
    setLogSink([](const QString&) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
