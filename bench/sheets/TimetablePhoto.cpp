#include "sheets/TimetableSheets.h"

#include <QLinearGradient>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace tarvanel::sheets {

namespace {

// A Gaussian blur, row by row and then column by column.
QImage blurred(const QImage& source, double sigma) {
    const int radius = int(std::ceil(sigma * 3));
    QList<double> kernel;
    for (int i = -radius; i <= radius; ++i)
        kernel << std::exp(-i * i / (2 * sigma * sigma));
    const double sum = std::accumulate(kernel.begin(), kernel.end(), 0.0);
    QImage image = source.convertToFormat(QImage::Format_RGB32);
    const int w = image.width(), h = image.height();
    for (int pass = 0; pass < 2; ++pass) {
        QImage out(image.size(), QImage::Format_RGB32);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                double rgb[3] = {};
                for (int i = -radius; i <= radius; ++i) {
                    const QRgb c = pass ? image.pixel(x, std::clamp(y + i, 0, h - 1))
                                        : image.pixel(std::clamp(x + i, 0, w - 1), y);
                    const double k = kernel[i + radius] / sum;
                    rgb[0] += qRed(c) * k, rgb[1] += qGreen(c) * k, rgb[2] += qBlue(c) * k;
                }
                out.setPixel(x, y, qRgb(int(rgb[0] + 0.5), int(rgb[1] + 0.5), int(rgb[2] + 0.5)));
            }
        image = out;
    }
    return image;
}

} // namespace

QImage photographed(const QImage& page, const Photo& photo, std::mt19937& random) {
    const int pad = page.width() / 25;
    QImage shot(page.width() + 2 * pad, page.height() + 2 * pad, QImage::Format_RGB32);
    shot.fill(QColor(150, 145, 135)); // the table the sheet lies on
    {
        QPainter p(&shot);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.setRenderHint(QPainter::Antialiasing);
        const double w = page.width(), h = page.height(), in = photo.perspective * w / 2;
        QTransform keystone;
        QTransform::quadToQuad(QPolygonF({{0, 0}, {w, 0}, {w, h}, {0, h}}),
                               QPolygonF({{in, 0}, {w - in, 0}, {w, h}, {0, h}}), keystone);
        QTransform turn;
        turn.translate(shot.width() / 2.0, shot.height() / 2.0);
        turn.rotate(photo.tilt);
        turn.translate(-w / 2, -h / 2);
        p.setTransform(keystone * turn);
        p.drawImage(0, 0, page);
        p.resetTransform();
        if (photo.shade) {
            QLinearGradient light(0, 0, shot.width(), shot.height() * 0.6);
            light.setColorAt(0, QColor(255, 255, 250));
            light.setColorAt(1, QColor(150, 140, 120));
            p.setCompositionMode(QPainter::CompositionMode_Multiply);
            p.fillRect(shot.rect(), light);
        }
    }
    if (photo.blur > 0) shot = blurred(shot, photo.blur);
    std::normal_distribution<double> grain(0, 4);
    for (int y = 0; y < shot.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(shot.scanLine(y));
        for (int x = 0; x < shot.width(); ++x) {
            const int n = int(grain(random));
            line[x] =
                qRgb(std::clamp(qRed(line[x]) + n, 0, 255), std::clamp(qGreen(line[x]) + n, 0, 255),
                     std::clamp(qBlue(line[x]) + n, 0, 255));
        }
    }
    return shot;
}

} // namespace tarvanel::sheets
