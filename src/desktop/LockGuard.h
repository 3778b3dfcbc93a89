#pragma once
// Holds the lock windows against the other programs of the session. Any X client may unmap,
// move, resize or lower a window, or stack its own above it, and unmapping drops the grabs.
// The guard watches every top-level window on a connection of its own and puts the lock back
// within milliseconds; `repair()` also runs every second for whatever no event announces. It
// asks the X server each time rather than trusting what Qt remembers. Without X it does nothing.
#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <functional>

class QSocketNotifier;
struct xcb_connection_t;

namespace tarvanel {

class LockWindow;

class LockGuard : public QObject {
    Q_OBJECT
public:
    // The windows that should be up, the one holding the grabs first.
    using WindowList = std::function<QList<LockWindow*>()>;

    explicit LockGuard(WindowList windows, QObject* parent = nullptr);
    ~LockGuard() override;

    // Watching starts with the first window and ends with stop().
    void stop();
    // Maps, places and raises every window as needed and asks for the grabs again; false when
    // the server does not grant them. Called every second during a lock.
    bool repair();

signals:
    // Once per lock and kind: "unmapped", "moved", "covered", "destroyed".
    void undone(const QString& what);
    // A window was destroyed by another client: only new windows can cover its screen.
    void lost();

private:
    // `raise` even when nothing seems to be above (what the stacking check cannot see).
    bool fix(bool raise);
    bool watch();
    void select(quint32 window, quint32 mask);
    void readEvents();
    void note(const QString& what);

    WindowList windows_;
    xcb_connection_t* events_ = nullptr;
    QSocketNotifier* notifier_ = nullptr;
    QSet<quint32> watched_;
    QSet<QString> reported_;
    QSet<quint32> pinned_; // windows the server keeps above ours; forgotten every second
    QTimer soon_;
    QElapsedTimer lastRepair_;
};

} // namespace tarvanel
