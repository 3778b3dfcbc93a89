#pragma once
// The language of the windows: catalogues, reading direction and the script's own font.
#include <QString>

namespace tarvanel {

// Applies a language setting ("" for the system's) to every window opened from now on and to the
// menu. Returns the code applied ("en", "ar", …).
QString useLanguage(const QString& setting);

} // namespace tarvanel
