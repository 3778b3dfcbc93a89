// tarvanel-sheet-reader FILE: reads one timetable image or PDF and prints, one JSON line each,
// its progress before every page and then what it read. A process of its own, so that the
// recogniser's libraries and memory stay out of the long-running agent, a crash on a user's
// file ends only this process, and a kill stops the reading at once.
#include "ocr/SheetReader.h"
#include "ocr/TimetableOCR.h"
#include "timetable/ReaderMessages.h"

#include <QCoreApplication>
#include <cstdio>

using namespace tarvanel;

static void put(const QByteArray& line) {
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fflush(stdout);
}

int main(int argc, char** argv) {
    TimetableOCR::restartWithThreadLimit(argv);
    QCoreApplication app(argc, argv); // image format plugins are found through it
    if (argc != 2) {
        std::fputs("usage: tarvanel-sheet-reader FILE\n", stderr);
        return 2;
    }
    SheetReader::Hooks hooks;
    hooks.progress = [](int page, int pageCount) {
        put(ReaderMessages::progress(page, pageCount));
    };
    put(ReaderMessages::reading(SheetReader::read(QString::fromLocal8Bit(argv[1]), hooks)));
    return 0;
}
