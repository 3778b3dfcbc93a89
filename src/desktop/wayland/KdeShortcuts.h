#pragma once
// KWin's own ways past a layer-shell lock, closed for the lock's length.
//
// Measured on KWin 5.27: the keyboard-shortcuts inhibitor holds only while the lock's surface
// has the keyboard. A pointer pushed into a screen corner opens Present Windows (or Overview)
// above the lock, showing every other window; the effect then has the keyboard, so every
// global shortcut works again. Hence, during a lock on KWin: kglobalaccel's shortcuts blocked,
// and the effects that draw windows above everything (and answer corners, touchpad gestures
// and D-Bus calls) unloaded; both undone at the end. All calls are asynchronous and never
// start a service: on another desktop nothing happens. A marker in $XDG_RUNTIME_DIR lets the
// next run undo what a killed run left blocked.
#include <QObject>
#include <QStringList>

namespace tarvanel {

class KdeShortcuts : public QObject {
    Q_OBJECT
public:
    static void block();
    static void unblock();
    // Undoes what an earlier run that died during a lock left blocked; nothing while this
    // process has them blocked.
    static void restoreAbandoned();

private:
    explicit KdeShortcuts(QObject* parent);
    static KdeShortcuts& self();
    void blockNow();
    void unblockNow();
    void writeMarker() const;

    bool blocked_ = false;
    bool shortcutsBlocked_ = false;
    quint64 generation_ = 0; // a reply to an earlier block finds a later generation
    QStringList unloaded_;   // effects to load again
};

} // namespace tarvanel
