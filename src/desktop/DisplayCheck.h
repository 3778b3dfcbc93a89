#pragma once
// Whether Qt will be able to open a display, decided before QApplication exists (Qt aborts
// when it cannot open one).
#include <QList>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>
#include <optional>

namespace tarvanel {

// Absent when a display can be opened; otherwise why not, for "Tarvanel: no display
// available (…)".
std::optional<QString> displayProblem(const QProcessEnvironment& env);

// Whether Qt's Wayland platform plugin is there to load.
bool qtWaylandInstalled();

// Selects Qt's offscreen platform with these screens (96 dpi), described in a file written to
// `configPath`: several screens without a display, for tests and benchmarks. Call it before
// QApplication exists.
void useOffscreenScreens(const QString& configPath, const QList<QRect>& screens);

} // namespace tarvanel
