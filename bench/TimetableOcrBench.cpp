// Speed of reading a photographed 31-day sheet (off the main thread in the program).
#include "ocr/TimetableOCR.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace tarvanel;

namespace {

// A phone photo of a printed month: 31 rows of eleven times, tilted a little, JPEG.
QString photo(const QString& dir) {
    QImage image(1800, 1900, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(900, 950);
    p.rotate(0.7);
    p.translate(-900, -950);
    QFont font("DejaVu Sans");
    font.setPixelSize(26);
    p.setFont(font);
    p.drawText(60, 60, "Masjid Timetable March 2025");
    for (int d = 1; d <= 31; ++d) {
        QString line = QString::number(d);
        for (int i = 0; i < 11; ++i)
            line += QString::asprintf("    %d:%02d", 4 + i, (d * 7 + i * 11) % 60);
        p.drawText(60, 60 + d * 55, line);
    }
    p.end();
    const QString path = dir + "/photo.jpg";
    image.save(path, nullptr, 85);
    return path;
}

void BM_ReadThirtyOneDayPhoto(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = photo(dir.path());
    qsizetype lines = 0;
    for (auto _ : state)
        lines = TimetableOCR::readFile(path).size();
    state.counters["lines"] = double(lines);
}
BENCHMARK(BM_ReadThirtyOneDayPhoto)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    TimetableOCR::restartWithThreadLimit(argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
