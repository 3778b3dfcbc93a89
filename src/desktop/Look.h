#pragma once
// The program's look: palette, fonts and the painted building blocks shared by the lock view
// and the banner. Sizes are logical pixels.
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>

class QLabel;
class QWidget;

namespace tarvanel::look {

inline const QColor glowA(0x12, 0xB8, 0x86); // green
inline const QColor glowB(0x0E, 0x8F, 0x9A); // teal
inline const QColor glowC(0xF5, 0xC4, 0x51); // gold
inline const QColor themeBase(0x07, 0x08, 0x0C);
inline const QColor orange(0xFF, 0x95, 0x00);
inline const QColor red(0xFF, 0x3B, 0x30);

// White at an opacity between 0 and 1.
QColor white(double opacity);

// A radial glow: `colour` at `opacity` in the centre, 0.4 × that halfway, transparent at the
// edge of a circle of diameter `side`.
void paintGlow(QPainter& p, QPointF centre, double side, const QColor& colour, double opacity);
// The lock screen's background: the base colour under three glows, scaled to `rect`.
void paintAurora(QPainter& p, const QRectF& rect, double intensity);
// A translucent rounded card with a faint edge highlight.
void paintGlassCard(QPainter& p, const QRectF& rect, double radius, double fill);

// A plain-text label in `font` and `colour`.
QLabel* textLabel(QWidget* parent, const QFont& font, const QColor& colour, bool wordWrap = false,
                  Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter);

// The system sans-serif at a pixel size and weight.
QFont systemFont(double pixels, QFont::Weight weight);
// An installed Arabic face (Noto Naskh Arabic and its kin); the system font when none is.
QFont arabicFont(double pixels);

} // namespace tarvanel::look
