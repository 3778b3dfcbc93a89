#pragma once
// For the Lock section of the settings, on GNOME only: whether Tarvanel's GNOME Shell extension
// is loaded, and a button "Enable the GNOME Shell extension" that enables it with
// `gnome-extensions` and says when a new login is needed to load it.
#include <QWidget>

namespace tarvanel {

// Null when the desktop is not GNOME.
QWidget* gnomeExtensionSwitch();

} // namespace tarvanel
