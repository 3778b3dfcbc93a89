#pragma once
// A timetable's picture made ready for recognition: decoded within a pixel budget, grey, level,
// and without the table's ruled lines.
#include <QImage>
#include <QString>
#include <functional>
#include <memory>

struct Pix;
namespace Poppler {
class Page;
}

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
// One page of a PDF drawn at 300 dpi, or less when that would pass `maxPixels`.
QImage render(const Poppler::Page& page);
// The pages of a TIFF file (a scanner's several months); 0 when it is none or does not load.
int tiffPageCount(const QString& path);
// Page `index` (from 0) of a TIFF file, grey, within `maxPixels`; null when it does not load.
QImage tiffPage(const QString& path, int index);

// Grey, opaque and evenly lit, turned level when the page is tilted, with the table's
// horizontal and vertical rules painted out, and enlarged twice when the print is small.
// The other looks are for print the recogniser reads poorly at the first: `Look::Resized` gives
// the page at another size (Tesseract reads some print far better at one size than at another
// close to it), `Look::Sharpened` with its edges steepened (a blurred photo), `Look::SharpenedNear`
// steepened harder over a shorter reach (blurred thin strokes, which the wider reach runs
// together). Null for a null image, when `stop` (asked between the steps) says so, and for
// another size of print large enough as it is.
enum class Look { Usual, Resized, Sharpened, SharpenedNear };
PixPtr prepare(const QImage& image, const std::function<bool()>& stop = {},
               Look look = Look::Usual);

} // namespace tarvanel::PageImage
