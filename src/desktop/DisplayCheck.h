#pragma once
// Whether Qt will be able to open a display, decided before QApplication exists (Qt aborts
// when it cannot open one).
#include <QProcessEnvironment>
#include <QString>
#include <optional>

namespace tarvanel {

// Absent when a display can be opened; otherwise why not, for "Tarvanel: no display
// available (…)".
std::optional<QString> displayProblem(const QProcessEnvironment& env);

} // namespace tarvanel
