#include "ocr/PageImage.h"

#include "ocr/PrintArea.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QRect>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <leptonica/allheaders.h>
#include <poppler-qt6.h>
#include <vector>

namespace tarvanel::PageImage {

void PixFree::operator()(Pix* pix) const {
    pixDestroy(&pix);
}

namespace {

// Print whose characters are lower than this is enlarged twice (a small screenshot); larger
// print reads worse when enlarged, the smoothing blurs its strokes.
constexpr int smallCharacterPixels = 14;

QSize boundedSize(QSize size) {
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels <= maxPixels) return size;
    const double f = std::sqrt(double(maxPixels) / double(pixels));
    return QSize(std::max(1, int(size.width() * f)), std::max(1, int(size.height() * f)));
}

QImage loadPdfPage(const QString& path) {
    const std::unique_ptr<Poppler::Document> doc = Poppler::Document::load(path);
    if (!doc || doc->isLocked() || doc->numPages() < 1) return {};
    const std::unique_ptr<Poppler::Page> page = doc->page(0);
    if (!page) return {};
    doc->setRenderHint(Poppler::Document::Antialiasing);
    doc->setRenderHint(Poppler::Document::TextAntialiasing);
    return render(*page);
}

bool isTiff(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("tif") || suffix == QLatin1String("tiff");
}

PixPtr greyPix(const QImage& image) {
    QImage grey;
    if (image.hasAlphaChannel()) {
        // Painted onto white first: a transparent screenshot would otherwise turn black.
        grey = QImage(image.size(), QImage::Format_RGB32);
        grey.fill(Qt::white);
        QPainter painter(&grey);
        painter.drawImage(0, 0, image);
    } else {
        grey = image;
    }
    grey = grey.convertToFormat(QImage::Format_Grayscale8);
    PixPtr pix(pixCreate(grey.width(), grey.height(), 8));
    l_uint32* data = pixGetData(pix.get());
    const int wpl = pixGetWpl(pix.get());
    // Row by row, then into Leptonica's byte order within its 32-bit words.
    for (int y = 0; y < grey.height(); ++y)
        std::memcpy(data + y * wpl, grey.constScanLine(y), size_t(grey.width()));
    pixEndianByteSwap(pix.get());
    return pix;
}

// Print that a blurred photo left grey made black again: the darkest part of the page, the
// cores of its strokes, is stretched down to black, the paper stays white.
void inked(Pix* page) {
    constexpr double inkShare = 0.01; // of the page's pixels, less than its print covers
    constexpr int greyPrint = 110;
    Numa* histogram = pixGetGrayHistogram(page, 2);
    if (!histogram) return;
    l_float32 total = 0;
    numaGetSum(histogram, &total);
    l_float32 seen = 0;
    int darkest = 0;
    for (; darkest < 256; ++darkest) {
        l_float32 count = 0;
        numaGetFValue(histogram, darkest, &count);
        seen += count;
        if (seen >= total * inkShare) break;
    }
    numaDestroy(&histogram);
    // Print whose darkest is already dark enough reads better as it is.
    if (darkest > greyPrint && darkest < 200) pixGammaTRC(page, page, 1.0f, darkest, 255);
}

// The paper made evenly light: a photo's shadow would pass for ink in the steps that follow.
PixPtr evenlyLit(PixPtr page, bool ink) {
    PixPtr even(pixBackgroundNorm(page.get(), nullptr, nullptr, 10, 15, 100, 40, 255, 2, 1));
    if (even && ink) inked(even.get());
    return even ? std::move(even) : std::move(page);
}

// The angle that turns the text lines of `part` of `binary` level.
bool skew(Pix* binary, QRect part, float& degrees, float& confidence) {
    Box* box = boxCreate(part.x(), part.y(), part.width(), part.height());
    const PixPtr clipped(box ? pixClipRectangle(binary, box, nullptr) : nullptr);
    boxDestroy(&box);
    return clipped && pixFindSkew(clipped.get(), &degrees, &confidence) == 0;
}

// A page photographed from below or above (a keystone) leans one way at the top and another at
// the bottom, and no one turn levels all its rows. The slant is measured in bands down the
// page; where it changes by more than a degree, steadily, the page is mapped so that the slant
// at each height is undone there. Null when the page has no such keystone.
PixPtr keystoneUndone(Pix* page, Pix* binary) {
    constexpr int bands = 4;
    constexpr float sure = 3; // pixFindSkew's confidence that a band's slant is read
    const int width = pixGetWidth(binary), height = pixGetHeight(binary);
    std::vector<std::pair<double, double>> slants; // (middle of the band, degrees)
    for (int b = 0; b < bands; ++b) {
        float degrees = 0, confidence = 0;
        const QRect band(0, b * height / bands, width, height / bands);
        if (skew(binary, band, degrees, confidence) && confidence >= sure)
            slants.emplace_back(band.center().y(), degrees);
    }
    if (slants.size() < 3) return {};
    // The slant as a straight line down the page, by least squares.
    double n = 0, sy = 0, sd = 0, syy = 0, syd = 0;
    for (const auto& [y, d] : slants) {
        n += 1, sy += y, sd += d, syy += y * y, syd += y * d;
    }
    const double perPixel = (n * syd - sy * sd) / (n * syy - sy * sy);
    const double atTop = (sd - perPixel * sy) / n;
    auto slantAt = [&](double y) { return atTop + perPixel * y; };
    for (const auto& [y, d] : slants)
        if (std::abs(slantAt(y) - d) > 0.5) return {}; // not a keystone, or a band misread
    if (std::abs(slantAt(slants.back().first) - slantAt(slants.front().first)) <= 1) return {};
    // Each corner of the level page comes from where the slant at its height takes it, turning
    // about the middle of the page.
    const double top = std::tan(slantAt(0) * M_PI / 180);
    const double bottom = std::tan(slantAt(height) * M_PI / 180);
    const double middle = width / 2.0;
    Pta* to = ptaCreate(4);
    Pta* from = ptaCreate(4);
    const double corners[4][2] = {
        {0, 0}, {double(width), 0}, {0, double(height)}, {double(width), double(height)}};
    for (const auto& [x, y] : corners) {
        ptaAddPt(to, float(x), float(y));
        ptaAddPt(from, float(x), float(y - (y > 0 ? bottom : top) * (x - middle)));
    }
    PixPtr level(pixBilinearPtaGray(page, to, from, 255));
    ptaDestroy(&to);
    ptaDestroy(&from);
    return level;
}

// Turns the page level when its text lines lean (a photo held askew); as it is once `stopped`.
PixPtr levelled(PixPtr page, const std::function<bool()>& stopped) {
    const PixPtr binary(pixThresholdToBinary(page.get(), 150));
    if (!binary) return page;
    const int width = pixGetWidth(binary.get()), height = pixGetHeight(binary.get());
    if (PixPtr level = keystoneUndone(page.get(), binary.get())) return level;
    if (stopped()) return page;
    float degrees = 0, confidence = 0;
    if (!skew(binary.get(), QRect(0, 0, width, height), degrees, confidence) || stopped())
        return page;
    // Across a wide table a row also lines up with the next one at a wrong angle, and the whole
    // page may favour that; where both halves agree on another angle, theirs holds.
    float left = 0, right = 0, leftSure = 0, rightSure = 0;
    if (skew(binary.get(), QRect(0, 0, width / 2, height), left, leftSure) &&
        skew(binary.get(), QRect(width / 2, 0, width - width / 2, height), right, rightSure) &&
        leftSure >= 3 && rightSure >= 3 && std::abs(left - right) < 0.5f &&
        std::abs((left + right) / 2 - degrees) > 0.5f) {
        degrees = (left + right) / 2;
        confidence = std::min(leftSure, rightSure);
    }
    if (confidence < 3 || std::abs(degrees) < 0.05f || stopped()) return page;
    PixPtr level(pixRotateAMGray(page.get(), degrees * float(M_PI / 180), 255));
    return level ? std::move(level) : std::move(page);
}

// Paints out dark runs longer than any word (the table's rules) in one direction: they join
// the digits of neighbouring rows and columns into one shape for the recogniser.
void withoutRules(Pix* page, int width, int height) {
    const bool horizontal = width > height;
    // Thickened across first: a rule photographed askew and levelled again runs in steps.
    const PixPtr thick(pixErodeGray(page, horizontal ? 1 : 3, horizontal ? 3 : 1));
    // Most sheets have few rules or none, and the grey work below is the slow part of the
    // preparation: a page whose dark runs are all shorter than a rule is left as it is.
    const PixPtr dark(thick ? pixThresholdToBinary(thick.get(), 225) : nullptr);
    const PixPtr runs(dark ? pixOpenBrick(nullptr, dark.get(), width, height) : nullptr);
    l_int32 none = 0;
    if (runs && pixZero(runs.get(), &none) == 0 && none) return;
    const PixPtr rules(thick ? pixCloseGray(thick.get(), width, height) : nullptr);
    if (!rules) return;
    // Everything lighter than a rule's core becomes white, so adding the inverted rules
    // lightens the rules' own pixels and nothing else.
    pixThresholdToValue(rules.get(), rules.get(), 225, 255);
    const PixPtr mask(pixThresholdToBinary(rules.get(), 225));
    pixInvert(rules.get(), rules.get());
    pixAddGray(page, page, rules.get());
    // A character the rule ran through loses the pixels it shared with the rule; a short
    // opening across the rule's line fills that gap again.
    const PixPtr mended(pixOpenGray(page, horizontal ? 1 : 7, horizontal ? 7 : 1));
    if (mask && mended) pixCombineMasked(page, mended.get(), mask.get());
}

} // namespace

QImage render(const Poppler::Page& page) {
    const QSizeF points = page.pageSizeF(); // 1/72 inch
    double dpi = 300;
    const double pixels = points.width() * points.height() * (dpi / 72) * (dpi / 72);
    if (pixels > double(maxPixels)) dpi *= std::sqrt(double(maxPixels) / pixels);
    return page.renderToImage(dpi, dpi);
}

int tiffPageCount(const QString& path) {
    FILE* file = std::fopen(QFile::encodeName(path).constData(), "rb");
    if (!file) return 0;
    l_int32 count = 0;
    if (tiffGetCount(file, &count) != 0) count = 0;
    std::fclose(file);
    return count;
}

QImage tiffPage(const QString& path, int index) {
    PixPtr page(pixReadTiff(QFile::encodeName(path).constData(), index));
    if (!page) return {};
    const qint64 pixels = qint64(pixGetWidth(page.get())) * pixGetHeight(page.get());
    if (pixels > maxPixels) {
        const float f = float(std::sqrt(double(maxPixels) / double(pixels)));
        page.reset(pixScale(page.get(), f, f));
    }
    const PixPtr grey(page ? pixConvertTo8(page.get(), 0) : nullptr);
    if (!grey) return {};
    QImage image(pixGetWidth(grey.get()), pixGetHeight(grey.get()), QImage::Format_Grayscale8);
    const l_uint32* data = pixGetData(grey.get());
    const int wpl = pixGetWpl(grey.get());
    for (int y = 0; y < image.height(); ++y) {
        uchar* to = image.scanLine(y);
        const l_uint32* line = data + y * wpl;
        for (int x = 0; x < image.width(); ++x)
            to[x] = uchar(GET_DATA_BYTE(line, x));
    }
    return image;
}

QImage load(const QString& path) {
    if (QFileInfo(path).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0)
        return loadPdfPage(path);
    if (isTiff(path)) return tiffPage(path, 0);
    QImageReader reader(path);
    reader.setAutoTransform(true); // a phone photo's orientation tag
    const QSize size = reader.size();
    if (size.isValid()) reader.setScaledSize(boundedSize(size));
    QImage image = reader.read();
    if (image.isNull()) return {};
    if (qint64(image.width()) * image.height() > maxPixels)
        image =
            image.scaled(boundedSize(image.size()), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

PixPtr prepare(const QImage& image, const std::function<bool()>& stop, Look look) {
    if (image.isNull()) return {};
    const std::function<bool()> stopped = [&] { return stop && stop(); };
    // Print blurred past a stroke's width runs into its neighbours once made black; the
    // sharpened look steepens its edges from the grey instead.
    const bool sharpened = look == Look::Sharpened || look == Look::SharpenedNear;
    PixPtr page = evenlyLit(greyPix(image), !sharpened);
    if (stopped()) return {};
    page = levelled(std::move(page), stopped);
    if (stopped()) return {};
    PrintArea::Print print = PrintArea::find(std::move(page));
    page = std::move(print.page);
    int character = print.character;
    if (stopped()) return {};
    // Small print is enlarged twice, or as much as the pixel budget allows: a large page of small
    // print reads far better a little larger than as it is. Another size enlarges small print
    // 1.5 times, or leaves it as it is when the budget held the first back, and print up to
    // twice that size 1.5 times; larger print has no other size, nor has print the budget keeps
    // at one size.
    const float room = float(std::sqrt(
        double(maxPixels) / (double(pixGetWidth(page.get())) * pixGetHeight(page.get()))));
    const bool small = character > 0 && character < smallCharacterPixels;
    const float first = small ? std::min(2.0f, room) : 1;
    float enlarge = first;
    if (look == Look::Resized) {
        if (small)
            enlarge = room >= 2 ? 1.5f : 1;
        else if (character > 0 && character < 2 * smallCharacterPixels)
            enlarge = std::min(1.5f, room);
        else
            return {};
        if (std::abs(enlarge - first) < 0.1f) return {};
    }
    if (enlarge >= 1.1f) {
        PixPtr larger(pixScaleGrayLI(page.get(), enlarge, enlarge));
        if (larger) {
            page = std::move(larger);
            character = int(character * enlarge);
        }
    }
    // Edges steepened again: a shaking hand or a lens too close blurs print past reading.
    if (sharpened) {
        const bool near = look == Look::SharpenedNear;
        PixPtr sharp(pixUnsharpMaskingGray(page.get(), near ? 3 : 4, near ? 2.5f : 1.5f));
        if (sharp) page = std::move(sharp);
    }
    // Longer than a word's strokes; short enough that a rule photographed askew and levelled
    // again, which runs in steps, still counts. Small print is enlarged first: its rules are
    // told from its strokes better then.
    const int rule = std::max(51, 3 * character) | 1;
    withoutRules(page.get(), rule, 1);
    if (stopped()) return {};
    withoutRules(page.get(), 1, rule);
    if (stopped()) return {};
    return page;
}

} // namespace tarvanel::PageImage
