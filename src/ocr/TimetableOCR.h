#pragma once
// Text recognition of a timetable photo, screenshot or PDF with Tesseract, and its running
// beside the event loop. Needs QtGui (QImage), so it lives apart from the GUI-free core.
#include "ocr/PageImage.h"
#include "timetable/OcrLines.h"

#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

namespace tarvanel {

class Recognizer;

namespace TimetableOCR {

using PageImage::maxPixels;
// See PageImage::load.
QImage loadImage(const QString& path);

// The sheet's text lines, top to bottom; empty when nothing was recognised or the recogniser
// failed (one log line). Loads the English model for the call and frees it afterwards.
QStringList lines(const QImage& image);
// The same with a loaded recogniser, giving also where the cells settled from their neighbours
// stand in the lines.
QStringList lines(const QImage& image, Recognizer& recognizer, QList<TextMark>& marks);

// Every page of the file (see SheetReader::read), its lines only.
QStringList readFile(const QString& path);

// Tesseract's OpenMP threads spin against each other on a small machine (ten times slower).
// The limit is read when the process starts, so a process without it starts itself again
// with OMP_THREAD_LIMIT=1. Returns only when no restart was needed or it failed.
void restartWithThreadLimit(char** argv);

} // namespace TimetableOCR

// Reads image and PDF files on the thread pool, one task per file; each result arrives through
// the event loop in the order the reads finish. Destroying the reader stops its reads.
class TimetableImageReader : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~TimetableImageReader() override;
    void read(const QString& path);
    // Every read under way stops between two words and reports nothing.
    void cancel();

signals:
    void progress(int page, int pageCount);
    void finished(const QString& fileName, const SheetReading& reading);

private:
    QList<QFutureWatcher<SheetReading>*> watchers_;
};

} // namespace tarvanel
