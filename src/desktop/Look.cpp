#include "desktop/Look.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QPainterPath>
#include <QRadialGradient>

namespace tarvanel::look {

QLabel* textLabel(QWidget* parent, const QFont& font, const QColor& colour, bool wordWrap,
                  Qt::Alignment alignment) {
    auto* label = new QLabel(parent);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
    label->setAlignment(alignment);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(wordWrap);
    return label;
}

QColor white(double opacity) {
    QColor c(255, 255, 255);
    c.setAlphaF(float(opacity));
    return c;
}

void paintGlow(QPainter& p, QPointF centre, double side, const QColor& colour, double opacity) {
    const double radius = side / 2;
    QRadialGradient gradient(centre, radius);
    QColor inner = colour, middle = colour, outer = colour;
    inner.setAlphaF(float(opacity));
    middle.setAlphaF(float(0.4 * opacity));
    outer.setAlphaF(0);
    gradient.setColorAt(0, inner);
    gradient.setColorAt(0.5, middle);
    gradient.setColorAt(1, outer);
    p.fillRect(QRectF(centre.x() - radius, centre.y() - radius, side, side), gradient);
}

void paintAurora(QPainter& p, const QRectF& rect, double intensity) {
    const double w = rect.width(), h = rect.height();
    const QPointF o = rect.topLeft();
    p.save();
    p.setClipRect(rect);
    p.fillRect(rect, themeBase);
    paintGlow(p, o + QPointF(0.1 * w, 0.05 * h), 1.3 * w, glowA, 0.7 * intensity);
    paintGlow(p, o + QPointF(0.95 * w, 0.3 * h), 1.1 * w, glowB, 0.4 * intensity);
    paintGlow(p, o + QPointF(0.5 * w, 1.05 * h), 1.2 * w, glowC, 0.55 * intensity);
    p.restore();
}

void paintGlassCard(QPainter& p, const QRectF& rect, double radius, double fill) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    const double r = std::min(radius, std::min(rect.width(), rect.height()) / 2);
    path.addRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), r, r);
    p.fillPath(path, white(fill));
    p.setPen(QPen(white(fill * 1.6), 1));
    p.drawPath(path);
    p.restore();
}

// Sizes are given as the design's points; at Qt's reference 96 dpi one such point is one
// logical pixel, and a higher desktop dpi scales the whole view alike.
static void setSize(QFont& font, double pixels) {
    font.setPointSizeF(pixels * 72.0 / 96.0);
}

QFont systemFont(double pixels, QFont::Weight weight) {
    // The application's font carries the language's script family.
    QFont font = QGuiApplication::font();
    setSize(font, pixels);
    font.setWeight(weight);
    return font;
}

QFont arabicFont(double pixels) {
    static const QString family = [] {
        const QStringList installed = QFontDatabase::families(QFontDatabase::Arabic);
        for (const char* wanted : {"Noto Naskh Arabic", "Noto Sans Arabic", "Noto Kufi Arabic"})
            if (installed.contains(QString::fromLatin1(wanted))) return QString::fromLatin1(wanted);
        return installed.isEmpty() ? QString() : installed.first();
    }();
    QFont font =
        family.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::GeneralFont) : QFont(family);
    setSize(font, pixels);
    return font;
}

} // namespace tarvanel::look
