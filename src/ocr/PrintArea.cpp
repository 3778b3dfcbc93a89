#include "ocr/PrintArea.h"

#include <QRect>
#include <algorithm>
#include <leptonica/allheaders.h>
#include <vector>

namespace tarvanel::PrintArea {

using PageImage::PixPtr;

namespace {

// Where print stands along one axis, from the spans of the characters: the first to the
// last stretch of `bin` pixels that holds a tenth as many as the fullest one, and on outwards
// while the next stretch holds any (a heading wider than the table). A photo's wall and the
// paper's edge have specks, but few in any one place, and apart from the print.
std::pair<int, int> printed(const std::vector<std::pair<int, int>>& spans, int bin, int length) {
    std::vector<int> counts(size_t(length / bin + 1));
    for (const auto& [from, to] : spans)
        for (int b = from / bin; b <= to / bin; ++b)
            ++counts[size_t(b)];
    const int least = std::max(3, *std::max_element(counts.begin(), counts.end()) / 10);
    int first = 0, last = int(counts.size()) - 1;
    while (first <= last && counts[size_t(first)] < least)
        ++first;
    while (last >= first && counts[size_t(last)] < least)
        --last;
    if (first > last) return {0, length};
    while (first > 0 && counts[size_t(first - 1)] > 0)
        --first;
    while (last + 1 < int(counts.size()) && counts[size_t(last + 1)] > 0)
        ++last;
    return {first * bin, (last + 1) * bin};
}

struct Blob {
    QRect box;
    // Dots, colons and rules say nothing about the size of the print; letters that touch (a
    // word) do.
    bool mayBeCharacter(int pageWidth) const {
        return box.height() >= 6 && box.height() <= 8 * box.width() && box.width() < pageWidth / 4;
    }
};

// The blobs of `page` darker than `threshold`.
std::vector<Blob> blobs(Pix* page, int threshold) {
    const PixPtr binary(pixThresholdToBinary(page, threshold));
    Boxa* boxes = binary ? pixConnCompBB(binary.get(), 8) : nullptr;
    if (!boxes) return {};
    std::vector<Blob> found;
    found.reserve(size_t(boxaGetCount(boxes)));
    for (int i = 0; i < boxaGetCount(boxes); ++i) {
        l_int32 x, y, w, h;
        if (boxaGetBoxGeometry(boxes, i, &x, &y, &w, &h) == 0) found.push_back({QRect(x, y, w, h)});
    }
    boxaDestroy(&boxes);
    return found;
}

// The median height of the blobs that may be characters, and how many there are.
std::pair<int, size_t> characters(const std::vector<Blob>& found, int pageWidth) {
    std::vector<int> heights;
    for (const Blob& blob : found)
        if (blob.mayBeCharacter(pageWidth)) heights.push_back(blob.box.height());
    if (heights.empty()) return {0, 0};
    std::nth_element(heights.begin(), heights.begin() + heights.size() / 2, heights.end());
    return {heights[heights.size() / 2], heights.size()};
}

// Where the print of `light` stands on a page of `whole`, with a margin; `whole` when it
// fills most of the page.
QRect printArea(const std::vector<Blob>& light, int character, const QRect& whole) {
    std::vector<std::pair<int, int>> xs, ys;
    for (const Blob& blob : light) {
        const QRect& b = blob.box;
        // Specks are smaller than print, a heading's letters larger, and blurred bold print
        // runs together into words.
        if (10 * b.height() >= 7 * character && b.height() <= 4 * character &&
            b.width() <= 25 * character) {
            xs.emplace_back(b.left(), b.right());
            ys.emplace_back(b.top(), b.bottom());
        }
    }
    const auto [left, right] = printed(xs, 4 * character, whole.width());
    const auto [top, bottom] = printed(ys, 2 * character, whole.height());
    const int margin = 4 * character;
    const QRect print = QRect(QPoint(left, top), QPoint(right, bottom))
                            .adjusted(-margin, -margin, margin, margin)
                            .intersected(whole);
    if (qint64(print.width()) * print.height() * 5 > qint64(whole.width()) * whole.height() * 4)
        return whole;
    return print;
}

} // namespace

Print find(PixPtr page) {
    const int width = pixGetWidth(page.get());
    // Light grey print (a thin typeface, a photo in poor light) is all but gone at the usual
    // threshold, where only the headings and a dark header band remain. At a lighter one
    // characters only grow, their strokes thicker and their neighbours run together: when it
    // finds far more of them, and smaller, the usual threshold saw the headings alone.
    const auto [usual, usualCount] = characters(blobs(page.get(), 160), width);
    // The lighter threshold also finds where the print stands: blurred grey print falls apart
    // at the usual one.
    const std::vector<Blob> light = blobs(page.get(), 200);
    const auto [lighter, lighterCount] = characters(light, width);
    int character = usual;
    if (lighterCount >= 2 * usualCount && lighter > 0)
        character = usual > 0 ? std::min(usual, lighter) : lighter;
    if (character <= 0) return {std::move(page), 0};
    const QRect whole(0, 0, width, pixGetHeight(page.get()));
    const QRect print = printArea(light, character, whole);
    if (print == whole) return {std::move(page), character};
    Box* box = boxCreate(print.x(), print.y(), print.width(), print.height());
    PixPtr clipped(box ? pixClipRectangle(page.get(), box, nullptr) : nullptr);
    boxDestroy(&box);
    return {clipped ? std::move(clipped) : std::move(page), character};
}

} // namespace tarvanel::PrintArea
