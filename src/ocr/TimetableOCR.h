#pragma once
// Text recognition of a timetable photo, screenshot or PDF with Tesseract. Needs QtGui (QImage),
// so it lives apart from the GUI-free core; the agent runs it in the sheet reader process.
#include "ocr/PageImage.h"
#include "timetable/OcrLines.h"

#include <QImage>
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

} // namespace tarvanel
