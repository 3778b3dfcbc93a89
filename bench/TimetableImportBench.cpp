// Speed of the import window's work on the main thread: every edit of the text reparses it.
#include "timetable/TimetableImportModel.h"

#include <benchmark/benchmark.h>

using namespace tarvanel;

namespace {

// A pasted month: a title, a header and 38 day lines of eleven 12-hour times.
QString fortyLines() {
    QString text = QStringLiteral("East London Mosque – March 2025\n"
                                  "Date Day Fajr Jamaat Sunrise Zuhr Jamaat Asr Jamaat Maghrib "
                                  "Jamaat Isha Jamaat\n");
    for (int d = 1; d <= 38; ++d) {
        text += QStringLiteral("%1 Sat").arg(d);
        for (int i = 0; i < 11; ++i)
            text += QString::asprintf("  %d:%02d %s", 1 + (i + d) % 12, (7 * i + d) % 60,
                                      i < 4 ? "am" : "pm");
        text += u'\n';
    }
    return text;
}

void BM_ReparseFortyLines(benchmark::State& state) {
    TimetableImportModel model;
    const QString text = fortyLines();
    for (auto _ : state) {
        model.setText(text);
        benchmark::DoNotOptimize(model.days().size());
    }
}
BENCHMARK(BM_ReparseFortyLines)->Unit(benchmark::kMicrosecond);

// What the window redraws after each edit besides the parse: the rows that won't be saved.
void BM_ProblemsFortyLines(benchmark::State& state) {
    TimetableImportModel model;
    model.setText(fortyLines());
    for (auto _ : state)
        benchmark::DoNotOptimize(model.problemSummary().size());
}
BENCHMARK(BM_ProblemsFortyLines)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
