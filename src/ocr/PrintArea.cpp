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

// The heights of the blobs of `page` darker than `threshold` that may be characters.
std::vector<int> characterHeights(Pix* page, int threshold) {
    const PixPtr binary(pixThresholdToBinary(page, threshold));
    Boxa* boxes = binary ? pixConnCompBB(binary.get(), 8) : nullptr;
    if (!boxes) return {};
    std::vector<int> heights;
    for (int i = 0; i < boxaGetCount(boxes); ++i) {
        l_int32 x, y, w, h;
        // Dots, colons and rules say nothing about the size of the print; letters that touch
        // (a word) do.
        if (boxaGetBoxGeometry(boxes, i, &x, &y, &w, &h) == 0 && h >= 6 && h <= 8 * w &&
            w < pixGetWidth(page) / 4)
            heights.push_back(h);
    }
    boxaDestroy(&boxes);
    return heights;
}

} // namespace

int characterHeight(Pix* page) {
    auto median = [](std::vector<int> heights) {
        if (heights.empty()) return 0;
        std::nth_element(heights.begin(), heights.begin() + heights.size() / 2, heights.end());
        return heights[heights.size() / 2];
    };
    // Light grey print (a thin typeface, a photo in poor light) is all but gone at the usual
    // threshold, where only the headings and a dark header band remain. At a lighter one
    // characters only grow, their strokes thicker and their neighbours run together: when it
    // finds far more of them, and smaller, the usual threshold saw the headings alone.
    const std::vector<int> usual = characterHeights(page, 160);
    const std::vector<int> light = characterHeights(page, 200);
    const int height = median(usual);
    if (light.size() < 2 * usual.size()) return height;
    return height > 0 ? std::min(height, median(light)) : median(light);
}

PixPtr printOnly(PixPtr page, int character) {
    if (character <= 0) return page;
    // Lighter than the usual threshold: blurred grey print falls apart there.
    const PixPtr binary(pixThresholdToBinary(page.get(), 200));
    Boxa* boxes = binary ? pixConnCompBB(binary.get(), 8) : nullptr;
    if (!boxes) return page;
    std::vector<std::pair<int, int>> xs, ys;
    for (int i = 0; i < boxaGetCount(boxes); ++i) {
        l_int32 x, y, w, h;
        // Specks are smaller than print, a heading's letters larger, and blurred bold print
        // runs together into words.
        if (boxaGetBoxGeometry(boxes, i, &x, &y, &w, &h) == 0 && 10 * h >= 7 * character &&
            h <= 4 * character && w <= 25 * character) {
            xs.emplace_back(x, x + w - 1);
            ys.emplace_back(y, y + h - 1);
        }
    }
    boxaDestroy(&boxes);
    const QRect whole(0, 0, pixGetWidth(page.get()), pixGetHeight(page.get()));
    const auto [left, right] = printed(xs, 4 * character, whole.width());
    const auto [top, bottom] = printed(ys, 2 * character, whole.height());
    const int margin = 4 * character;
    const QRect print = QRect(QPoint(left, top), QPoint(right, bottom))
                            .adjusted(-margin, -margin, margin, margin)
                            .intersected(whole);
    if (qint64(print.width()) * print.height() * 5 > qint64(whole.width()) * whole.height() * 4)
        return page;
    Box* box = boxCreate(print.x(), print.y(), print.width(), print.height());
    PixPtr clipped(box ? pixClipRectangle(page.get(), box, nullptr) : nullptr);
    boxDestroy(&box);
    return clipped ? std::move(clipped) : std::move(page);
}

} // namespace tarvanel::PrintArea
