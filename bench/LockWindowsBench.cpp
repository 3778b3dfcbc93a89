// From a lock's start to every screen covered: building one lock window per screen and
// painting them: on the display in DISPLAY, else under the offscreen platform with two screens.
// With WAYLAND_DISPLAY naming a compositor that offers a lock, its surfaces are measured too
// (painted and handed to the compositor, on every output).
#include "desktop/DisplayCheck.h"
#include "desktop/LockWindows.h"
#include "desktop/TrayIcon.h"
#include "desktop/wayland/WaylandLock.h"
#include "lock/LockScreenState.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace tarvanel;

static void BM_ShowLockWindowsUntilPainted(benchmark::State& state) {
    LockScreenState lockState;
    lockState.setCountdown(QStringLiteral("Screen unlocks in 14:59"));
    LockWindows lock;
    const Quote quote{
        QStringLiteral("Establish prayer for My remembrance."), QStringLiteral("Qur'an 20:14"), {}};
    bool covered = false;
    QObject::connect(&lock, &LockWindows::covered, [&](qint64) { covered = true; });
    for (auto _ : state) {
        covered = false;
        lock.show({{QStringLiteral("Dhuhr"), quote, {}}, {QStringLiteral("Dhuhr"), quote, {}}},
                  &lockState);
        while (!covered)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        state.PauseTiming();
        lock.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ShowLockWindowsUntilPainted)->Unit(benchmark::kMillisecond);

static void BM_WaylandLockUntilCovered(benchmark::State& state) {
    LockScreenState lockState;
    lockState.setCountdown(QStringLiteral("Screen unlocks in 14:59"));
    const Quote quote{
        QStringLiteral("Establish prayer for My remembrance."), QStringLiteral("Qur'an 20:14"), {}};
    for (auto _ : state) {
        state.PauseTiming();
        std::unique_ptr<WaylandLock> lock = WaylandLock::create();
        if (!lock) {
            state.SkipWithError("no Wayland compositor with a lock");
            return;
        }
        bool covered = false;
        QObject::connect(lock.get(), &LockBackend::covered, [&](qint64) { covered = true; });
        state.ResumeTiming();
        lock->show({{QStringLiteral("Dhuhr"), quote, {}}}, &lockState);
        while (!covered)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        state.PauseTiming();
        lock->close();
        state.ResumeTiming();
    }
}

// One second of a lock: the countdown changes and every output is painted again.
static void BM_WaylandLockCountdownRepaint(benchmark::State& state) {
    LockScreenState lockState;
    std::unique_ptr<WaylandLock> lock = WaylandLock::create();
    if (!lock) {
        state.SkipWithError("no Wayland compositor with a lock");
        return;
    }
    lock->show({{QStringLiteral("Dhuhr"), Quote{QStringLiteral("Q"), QStringLiteral("S"), {}}, {}}},
               &lockState);
    int second = 0;
    for (auto _ : state) {
        lockState.setCountdown(QStringLiteral("Screen unlocks in %1").arg(++second));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    lock->close();
}

static void BM_TrayImage(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(
            trayImage(QStringLiteral("🕌 Dhuhr in 23m"), TitleColor::Orange, 64));
}
BENCHMARK(BM_TrayImage)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    // With a display (for example Xvfb with two monitors) the real windowing system is measured.
    QTemporaryDir dir;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        useOffscreenScreens(dir.filePath(QStringLiteral("screens.json")),
                            {QRect(0, 0, 2560, 1440), QRect(2560, 0, 1920, 1080)});
    QApplication app(argc, argv);
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        BENCHMARK(BM_WaylandLockUntilCovered)->Unit(benchmark::kMillisecond);
        BENCHMARK(BM_WaylandLockCountdownRepaint)->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
