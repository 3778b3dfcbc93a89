// From a lock's start to every screen covered: building one lock window per screen and
// painting them: on the display in DISPLAY, else under the offscreen platform with two screens.
#include "desktop/LockWindows.h"
#include "desktop/TrayIcon.h"
#include "lock/LockScreenState.h"

#include <QApplication>
#include <QFile>
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
    QTemporaryDir dir;
    const QString screens = dir.filePath(QStringLiteral("screens.json"));
    QFile file(screens);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(R"({"screens": [
            {"name": "LEFT", "x": 0, "y": 0, "width": 2560, "height": 1440,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
            {"name": "RIGHT", "x": 2560, "y": 0, "width": 1920, "height": 1080,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        file.close();
    }
    // With a display (for example Xvfb with two monitors) the real windowing system is measured.
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.toLocal8Bit());
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
