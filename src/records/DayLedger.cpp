#include "records/DayLedger.h"

#include "records/History.h"
#include "records/LockState.h"

namespace tarvanel {

DayLedger::DayLedger() : completed_(loadCompletedLocks()) {}

void DayLedger::markKept(const QStringList& prayers, const QString& day,
                         const std::optional<QString>& status) {
    for (const QString& p : prayers)
        completed_.insert(day + u'-' + p);
    saveCompletedLocks(completed_);
    recordInHistory(prayers, day, status);
}

void DayLedger::logKept(const QString& key, const std::optional<QString>& partner) {
    const QStringList pieces = key.split(u'-', Qt::SkipEmptyParts);
    if (pieces.size() != 4) return;
    QStringList prayers{pieces[3]};
    if (partner) prayers << *partner;
    markKept(prayers, pieces.mid(0, 3).join(u'-'), std::nullopt);
}

void DayLedger::completeUnkept(const QString& key) {
    completed_.insert(key);
    saveCompletedLocks(completed_);
}

void DayLedger::fire(const QStringList& keys) {
    for (const QString& key : keys)
        fired_.insert(key);
}

void DayLedger::keepOnly(const QString& dayKey) {
    auto keep = [&dayKey](QSet<QString>& keys) {
        for (auto it = keys.begin(); it != keys.end();)
            it = it->startsWith(dayKey) ? std::next(it) : keys.erase(it);
    };
    keep(fired_);
    keep(completed_);
    saveCompletedLocks(completed_);
}

} // namespace tarvanel
