#pragma once
// A timetable file read page after page into one text: a PDF's pages from their text layer
// where they have one, scanned pages, TIFF pages and photos through the recogniser.
#include "timetable/OcrLines.h"

#include <QString>
#include <QStringList>
#include <functional>

namespace Poppler {
class Page;
}

namespace tarvanel::SheetReader {

// A timetable runs to a year at most; a longer document is some other book.
inline constexpr int maxPages = 12;

struct Hooks {
    // Before each page: its number from 1, and how many pages will be read.
    std::function<void(int page, int pageCount)> progress;
    // Asked between pages and between recognised words; true abandons the file.
    std::function<bool()> stop;
};

// Up to `maxPages` pages, in order. Empty lines when nothing was read or the read was stopped.
SheetReading read(const QString& path, const Hooks& hooks = {});

// The words of a PDF page's text layer grouped into lines as recognised words are; empty when
// the page has no text (a scan).
QStringList textLines(const Poppler::Page& page);

} // namespace tarvanel::SheetReader
