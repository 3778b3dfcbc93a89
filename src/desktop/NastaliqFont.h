#pragma once
// Urdu's Nastaliq face, made drawable by Qt. Qt hands HarfBuzz the outline points that a
// cursive anchor may name; Noto Nastaliq Urdu's point numbers are stale (they land far from
// their anchors), so Qt draws its joins and dots out of place where HarfBuzz alone, which uses
// the anchors' x/y, draws them right. A copy in memory with plain x/y anchors draws right in Qt.
#include <QByteArray>
#include <QString>

namespace tarvanel {

// The font file's bytes with every cursive anchor that names a contour point turned into a
// plain x/y anchor; empty when the file cannot be read.
QByteArray nastaliqWithPlainAnchors(const QString& fontFile);

// Registers the fixed copy of the Regular face (once) under a family name of its own; returns
// the family for Urdu text, or an empty string when the font is not installed.
QString nastaliqFamily();

} // namespace tarvanel
