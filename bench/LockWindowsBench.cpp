// From a lock's start to every screen covered: building one lock window per screen and
// painting them: on the display in DISPLAY, else under the offscreen platform with two screens.
#include "desktop/DisplayCheck.h"
#include "desktop/LockWindows.h"
#include "desktop/TrayIcon.h"
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
        lock.show({{QStringLiteral("Dhuhr"), quote}, {QStringLiteral("Dhuhr"), quote}}, &lockState);
        while (!covered)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        state.PauseTiming();
        lock.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ShowLockWindowsUntilPainted)->Unit(benchmark::kMillisecond);

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
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
