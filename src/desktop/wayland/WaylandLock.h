#pragma once
// The lock on a Wayland compositor, on a connection of its own. Where the compositor offers
// ext-session-lock-v1 it locks the session: the compositor itself keeps every output locked,
// even if this process dies, until a client unlocks it. Elsewhere it covers each output with a
// layer-shell overlay that takes the keyboard, with the wlr input inhibitor where there is one
// (older wlroots) and the keyboard-shortcuts inhibitor where there is one (KWin, wlroots).
#include "desktop/LockBackend.h"
#include "desktop/wayland/WaylandDisplay.h"

#include <QElapsedTimer>
#include <QPointer>
#include <memory>
#include <vector>

struct ext_session_lock_v1;
struct zwlr_input_inhibitor_v1;

namespace tarvanel {

class LockView;
class WaylandSurface;

class WaylandLock : public LockBackend {
    Q_OBJECT
public:
    enum class Kind { SessionLock, Overlay };

    // The strongest lock the compositor at WAYLAND_DISPLAY offers; null when it offers neither
    // (GNOME) or there is no Wayland compositor.
    static std::unique_ptr<WaylandLock> create(QObject* parent = nullptr);
    ~WaylandLock() override;

    Kind kind() const { return kind_; }
    QString mechanism() const override;
    QString weakness() const override;
    void show(const QList<LockWindowContent>& perScreen, LockScreenState* state) override;
    void raise(bool) override {} // the compositor keeps a lock above everything
    void close() override;
    bool up() const override { return up_; }

    // A session lock that a killed copy of this program left behind keeps the screens locked
    // until some client unlocks it. Unlocks it unless a lock of this process holds it now.
    static void releaseAbandoned();

private:
    struct Screen {
        WaylandOutput* output;
        std::unique_ptr<LockView> view;
        std::unique_ptr<WaylandSurface> surface;
    };
    WaylandLock(std::unique_ptr<WaylandDisplay> display, Kind kind, QObject* parent);
    void cover(WaylandOutput* output);
    void uncover(WaylandOutput* output);
    std::unique_ptr<LockView> makeView(WaylandOutput* output) const;
    void repaintAll();
    void screenPainted();
    void sessionLocked();
    void sessionFinished();
    bool waitForSessionAnswer(int milliseconds);
    void fail(const QString& why);

    friend struct LockListeners;
    std::unique_ptr<WaylandDisplay> display_;
    Kind kind_;
    ext_session_lock_v1* lock_ = nullptr;
    zwlr_input_inhibitor_v1* inhibitor_ = nullptr;
    std::vector<Screen> screens_;
    QList<LockWindowContent> content_;
    QPointer<LockScreenState> state_;
    QElapsedTimer shownAt_;
    bool up_ = false;
    bool locked_ = false;   // the compositor confirmed the session lock
    bool finished_ = false; // the compositor refused or ended it
    bool coveredReported_ = false;
    bool failed_ = false;
};

} // namespace tarvanel
