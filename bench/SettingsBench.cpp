// The settings window from "open" to its first paint, and a city search from the request to the
// answer arriving through the event loop.
#include "desktop/DisplayCheck.h"
#include "desktop/settings/PrayerSettingsView.h"
#include "desktop/settings/SettingsWindow.h"
#include "settings/CitySearch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>

using namespace tarvanel;

namespace {

// Notes the first paint of any widget of the watched window.
struct PaintWatch : QObject {
    bool painted = false;
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::Paint && o->isWidgetType()) painted = true;
        return false;
    }
};

} // namespace

static void BM_SettingsWindowFirstPaint(benchmark::State& state) {
    SettingsWindow host(nullptr);
    PaintWatch watch;
    qApp->installEventFilter(&watch);
    for (auto _ : state) {
        watch.painted = false;
        auto model = std::make_unique<PrayerSettingsModel>(Config(), true);
        host.show(QStringLiteral("Welcome to Tarvanel"), QSize(620, 780),
                  new PrayerSettingsView(std::move(model), {}));
        while (!watch.painted)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        state.PauseTiming();
        host.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    qApp->removeEventFilter(&watch);
}
BENCHMARK(BM_SettingsWindowFirstPaint)->Unit(benchmark::kMillisecond);

static void BM_PreviewAfterAnEdit(benchmark::State& state) {
    // One edit with the window open: the model notifies, the Today table and the header are
    // rebuilt from a fresh preview (all of it synchronous, before the next frame).
    Config cfg;
    cfg.latitude = 51.5074;
    cfg.longitude = -0.1278;
    SettingsWindow host(nullptr);
    auto* view = new PrayerSettingsView(std::make_unique<PrayerSettingsModel>(cfg, false), {});
    PrayerSettingsModel& model = view->model();
    host.show(QStringLiteral("Tarvanel Settings"), QSize(620, 780), view);
    QCoreApplication::processEvents();
    for (auto _ : state)
        model.setHanafi(!model.hanafi());
    host.close();
}
BENCHMARK(BM_PreviewAfterAnEdit)->Unit(benchmark::kMillisecond);

static void BM_CitySearchAnswered(benchmark::State& state) {
    GeonamesGeocoder geocoder;
    QObject context;
    const QStringList queries{QStringLiteral("Mecca"), QStringLiteral("Koln"),
                              QStringLiteral("London, Canada"), QStringLiteral("Springfield")};
    int i = 0;
    for (auto _ : state) {
        bool answered = false;
        geocoder.geocode(queries[i++ % queries.size()], &context,
                         [&](const QList<GeoPlace>& places) {
                             answered = true;
                             benchmark::DoNotOptimize(places.size());
                         });
        while (!answered)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}
BENCHMARK(BM_CitySearchAnswered)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    QTemporaryDir dir;
    qputenv("HOME", dir.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        useOffscreenScreens(dir.filePath(QStringLiteral("screens.json")),
                            {QRect(0, 0, 1920, 1080)});
    QApplication app(argc, argv);
    QElapsedTimer cold;
    cold.start();
    const std::shared_ptr<const CityTable> cities = CityTable::shared();
    std::printf("City table read (in the background when the window opens): %lld ms\n",
                static_cast<long long>(cold.elapsed()));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
