#pragma once
// Today's completed lock keys ("2025-03-01-Fajr"), kept across restarts in ~/.tarvanel/state.json.
#include <QSet>
#include <QString>

namespace tarvanel {

// A missing, unreadable or malformed file gives the empty set.
QSet<QString> loadCompletedLocks();
// Compact JSON array, one plain write; creates supportDir. Failures are silent.
void saveCompletedLocks(const QSet<QString>& completedLocks);

} // namespace tarvanel
