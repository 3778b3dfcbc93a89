#pragma once
// What the sheet reader process says on its standard output, one JSON object a line: its
// progress before each page, then what it read. Written by the reader, read by the import
// window, defined here once.
#include "timetable/OcrLines.h"

#include <QByteArray>
#include <QByteArrayView>

namespace tarvanel::ReaderMessages {

// {"page":3,"pages":12}
QByteArray progress(int page, int pageCount);
// {"lines":[…],"doubtful":[[line,start,length],…],"pagesRead":2,"pageCount":2}
QByteArray reading(const SheetReading& reading);

struct Message {
    enum Kind { Unknown, Progress, Reading };
    Kind kind = Unknown;
    int page = 0;
    int pageCount = 0;
    SheetReading reading;
};
// One line as written above (its newline optional); Unknown for anything else.
Message parse(QByteArrayView line);

} // namespace tarvanel::ReaderMessages
