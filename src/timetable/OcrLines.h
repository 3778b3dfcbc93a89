#pragma once
// Recognised words of an image grouped into the text lines of the sheet they came from.
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace tarvanel {

struct RecognizedItem {
    QString text;
    // Relative to the image (0..1 on both axes) with the vertical axis pointing up:
    // y is the bottom edge.
    QRectF box;
};

namespace OcrLines {

// Top to bottom; an item joins a line when its vertical middle lies within 0.6 of the typical
// (median) item height of the line's first item; a line's items are joined left to right with
// three spaces.
QStringList group(const QList<RecognizedItem>& items);

// A box in pixels (y down, as recognisers report it) made image-relative with y up.
QRectF relativeBox(int left, int top, int right, int bottom, int width, int height);

} // namespace OcrLines
} // namespace tarvanel
