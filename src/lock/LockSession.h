#pragma once
// The running lock: its end, one window per screen, the countdown and the guardian entry.
// The controller decides when a lock starts and what its end records.
#include "engine/Config.h"
#include "lock/LockScreenState.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QPointer>
#include <QString>
#include <optional>

namespace tarvanel {

class LockSession {
public:
    LockSession(Platform& platform, QObject* owner); // owner parents the lock screen state

    LockScreenState* state() const { return state_; }
    bool isLocked() const { return end_.has_value(); }
    const std::optional<QDateTime>& end() const { return end_; }
    const QString& prayer() const { return prayer_; } // display name, "" when none

    // Shows the windows and plays the adhan (or the chime). False while a lock runs: the first
    // lock's end stands. `key` marks a prayer's lock, recorded with `partner` when it ends.
    bool start(const QString& displayName, const QDateTime& until,
               const std::optional<QString>& key, const std::optional<QString>& partner,
               const Config& cfg);
    // One second of a running lock: windows to the front and the countdown. A clock that went
    // back keeps the time that was left. True when the end has come (the caller ends it).
    bool tick(const QDateTime& now);

    struct Ended {
        QString displayName;
        std::optional<QString> key, partner;
    };
    // Closes the windows and forgets the lock.
    Ended close();
    // Screens changed: one window per screen again, the typed digits kept.
    void rebuildWindows();
    // A key typed on a lock window. True when it completed the right guardian code.
    bool keyInput(LockKey key, const QString& text, const QDateTime& now);

private:
    QString guardianLine() const;

    Platform& platform_;
    QPointer<LockScreenState> state_;
    std::optional<QDateTime> end_;
    QDateTime lastSeen_; // the previous tick's instant (clock jumps)
    QString prayer_;
    std::optional<QString> key_, partner_;
    QString guardianBuffer_, guardianMessage_;
};

} // namespace tarvanel
