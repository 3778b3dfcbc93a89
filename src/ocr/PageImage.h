#pragma once
// A timetable's picture made ready for recognition: decoded within a pixel budget, grey, level,
// and without the table's ruled lines.
#include <QImage>
#include <QString>
#include <memory>

struct Pix;

namespace tarvanel::PageImage {

struct PixFree {
    void operator()(Pix* pix) const;
};
using PixPtr = std::unique_ptr<Pix, PixFree>;

// An image file, or the first page of a PDF drawn at 300 dpi; at most `maxPixels` pixels
// (larger ones are scaled down while they are decoded). Null when the file does not load:
// not an image, no pages, a password.
inline constexpr qint64 maxPixels = 12'000'000;
QImage load(const QString& path);

// Grey, opaque and evenly lit, turned level when the page is tilted, with the table's
// horizontal and vertical rules painted out, and enlarged twice when the print is small.
// Null for a null image.
PixPtr prepare(const QImage& image);

} // namespace tarvanel::PageImage
