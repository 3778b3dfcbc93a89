#include "timetable/OcrLines.h"

#include <algorithm>
#include <cmath>

namespace tarvanel::OcrLines {

QStringList group(const QList<RecognizedItem>& items) {
    if (items.isEmpty()) return {};
    QList<qreal> heights;
    for (const RecognizedItem& item : items)
        heights << item.box.height();
    std::sort(heights.begin(), heights.end());
    const qreal typical = heights[heights.size() / 2];

    QList<RecognizedItem> sorted = items;
    auto middle = [](const RecognizedItem& item) { return item.box.center().y(); };
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const auto& a, const auto& b) { return middle(a) > middle(b); });

    QList<QList<RecognizedItem>> lines;
    for (const RecognizedItem& item : sorted) {
        if (!lines.isEmpty() &&
            std::abs(middle(item) - middle(lines.last().first())) < 0.6 * typical)
            lines.last() << item;
        else
            lines.append({item});
    }

    QStringList out;
    for (QList<RecognizedItem>& line : lines) {
        std::stable_sort(line.begin(), line.end(),
                         [](const auto& a, const auto& b) { return a.box.left() < b.box.left(); });
        QStringList texts;
        for (const RecognizedItem& item : line)
            texts << item.text;
        out << texts.join(QStringLiteral("   "));
    }
    return out;
}

QRectF relativeBox(int left, int top, int right, int bottom, int width, int height) {
    if (width <= 0 || height <= 0) return {};
    const qreal w = width;
    const qreal h = height;
    return QRectF(left / w, (h - bottom) / h, (right - left) / w, (bottom - top) / h);
}

} // namespace tarvanel::OcrLines
