#pragma once
// Today's record of what has happened: the locks completed (kept across restarts in
// state.json) and the reminders and one-off banners already fired (this run only). The
// controller holds the one ledger; everyone else reads it.
#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

namespace tarvanel {

class DayLedger {
public:
    // Reads state.json.
    DayLedger();

    const QSet<QString>& completedLocks() const { return completed_; }
    const QSet<QString>& firedNudges() const { return fired_; }

    // Records `prayers` as kept on `day` (a day key): each lock key is completed and saved,
    // each prayer enters the day's history once, and a present `status` is marked.
    void markKept(const QStringList& prayers, const QString& day,
                  const std::optional<QString>& status);
    // A lock that counted as kept: `key` is "yyyy-MM-dd-Prayer"; `partner` is the combined
    // prayer. Keys that do not split into four pieces are ignored.
    void logKept(const QString& key, const std::optional<QString>& partner);
    // A lock ended with the guardian code: completed, but not kept in the history.
    void completeUnkept(const QString& key);
    // Reminder and banner keys whose moment has come, shown or not.
    void fire(const QStringList& keys);
    // A new day: only keys of `dayKey` stay, so a clock that ran a day ahead and was put back
    // does not keep that day's real locks from happening.
    void keepOnly(const QString& dayKey);

private:
    QSet<QString> completed_, fired_;
};

} // namespace tarvanel
