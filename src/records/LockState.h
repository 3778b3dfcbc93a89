#pragma once
// Today's completed lock keys ("2025-03-01-Fajr"), kept across restarts in ~/.tarvanel/state.json.
#include <QSet>
#include <QString>

namespace tarvanel {

// A missing file gives the empty set; an unreadable or malformed one is moved aside first.
QSet<QString> loadCompletedLocks();
// Compact JSON array, atomic; creates supportDir. A failure is logged and keeps the old file.
void saveCompletedLocks(const QSet<QString>& completedLocks);

} // namespace tarvanel
