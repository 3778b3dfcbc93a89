// Speed of reading a photographed 31-day sheet, photos of the varied sheets, a text PDF and
// twelve scanned pages (off the main thread in the program), and how soon a read stops when asked.
#include "ocr/SheetReader.h"
#include "ocr/TimetableOCR.h"
#include "sheets/TimetableSheets.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QThread>
#include <atomic>
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <thread>

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

// Each photo of the varied set, read once: the time per sheet (its mean) and the slowest.
void BM_ReadVariedPhotos(benchmark::State& state) {
    QTemporaryDir dir;
    QStringList paths;
    for (int i = 0; i < int(std::size(sheets::layouts)); ++i) {
        const sheets::Sheet sheet = sheets::drawSheet(sheets::layouts[i], sheets::photos[i], 7 + i);
        paths << sheets::saveSheet(sheet, sheets::photos[i], dir.path(), QString::number(i));
    }
    double slowest = 0;
    for (auto _ : state) {
        for (const QString& path : paths) {
            QElapsedTimer timer;
            timer.start();
            benchmark::DoNotOptimize(TimetableOCR::readFile(path));
            slowest = std::max(slowest, timer.nsecsElapsed() / 1e6);
        }
    }
    state.counters["sheets"] = double(paths.size());
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(BM_ReadVariedPhotos)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

// A month as a printed page: title, heading, 31 rows of a day and eleven times.
void paintMonth(QPainter& p, int month) {
    QFont font("DejaVu Sans");
    font.setPixelSize(26);
    p.setFont(font);
    p.fillRect(QRect(0, 0, 1650, 2340), Qt::white);
    p.drawText(80, 100, QString("Masjid Timetable, month %1 of 2026").arg(month));
    for (int d = 1; d <= 31; ++d)
        for (int c = 0; c < 12; ++c)
            p.drawText(QRect(80 + c * 124, 120 + d * 58, 124, 58), Qt::AlignCenter,
                       c == 0 ? QString::number(d)
                              : QString::asprintf("%d:%02d", 4 + c % 8, (d * 7 + c * 11) % 60));
}

// `pages` months, drawn as text or as page pictures (a scan).
QString monthsPdf(const QString& path, int pages, bool scanned) {
    QPdfWriter writer(path);
    writer.setResolution(200);
    writer.setPageSize(QPageSize(QSizeF(1650, 2340) / 200, QPageSize::Inch));
    writer.setPageMargins({});
    QPainter p(&writer);
    for (int i = 0; i < pages; ++i) {
        if (i > 0) writer.newPage();
        if (!scanned) {
            paintMonth(p, i + 1);
            continue;
        }
        QImage image(1650, 2340, QImage::Format_Grayscale8);
        QPainter onImage(&image);
        paintMonth(onImage, i + 1);
        onImage.end();
        p.drawImage(0, 0, image);
    }
    return path;
}

// Processor time of the whole process (every thread), in milliseconds.
double cpuMs() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    auto ms = [](timeval t) { return double(t.tv_sec) * 1e3 + double(t.tv_usec) / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

void BM_ReadTextPdfMonth(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = monthsPdf(dir.filePath("month.pdf"), 1, false);
    qsizetype lines = 0;
    for (auto _ : state)
        lines = SheetReader::read(path).lines.size();
    state.counters["lines"] = double(lines);
}
BENCHMARK(BM_ReadTextPdfMonth)->Unit(benchmark::kMillisecond)->Iterations(10)->UseRealTime();

void BM_ReadTwelveScannedPages(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = monthsPdf(dir.filePath("year.pdf"), 12, true);
    qsizetype lines = 0;
    const double cpuBefore = cpuMs();
    for (auto _ : state)
        lines = SheetReader::read(path).lines.size();
    state.counters["lines"] = double(lines);
    // What the pages cost the processors, whatever else the machine is doing.
    state.counters["cpu_ms"] = (cpuMs() - cpuBefore) / double(state.iterations());
}
BENCHMARK(BM_ReadTwelveScannedPages)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

// From the stop request, made at a varying point of a scanned page, to the read's return.
void BM_StopTwelveScannedPages(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = monthsPdf(dir.filePath("year.pdf"), 12, true);
    double worst = 0, worstCpu = 0;
    int round = 0;
    for (auto _ : state) {
        std::atomic_bool stop = false;
        QElapsedTimer sinceStop;
        std::thread reader([&] {
            SheetReader::Hooks hooks;
            hooks.stop = [&] { return stop.load(); };
            SheetReader::read(path, hooks);
        });
        QThread::msleep(700 + 450 * round++);
        const double cpuBefore = cpuMs();
        sinceStop.start();
        stop = true;
        reader.join();
        const double ms = double(sinceStop.nsecsElapsed()) / 1e6;
        worst = std::max(worst, ms);
        // On a busy machine the wall time stretches; the work done after the stop does not.
        worstCpu = std::max(worstCpu, cpuMs() - cpuBefore);
        state.SetIterationTime(ms / 1000);
    }
    state.counters["worst_ms"] = worst;
    state.counters["worst_cpu_ms"] = worstCpu;
}
BENCHMARK(BM_StopTwelveScannedPages)->Unit(benchmark::kMillisecond)->Iterations(5)->UseManualTime();

} // namespace

int main(int argc, char** argv) {
    TimetableOCR::restartWithThreadLimit(argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
