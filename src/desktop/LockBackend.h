#pragma once
// One way of holding every screen during a lock. Each display system has its own: X11 windows
// with grabs, a Wayland session lock, a layer-shell overlay, the GNOME Shell extension. They
// render the same lock view and forward the same keys; the core never knows which one runs.
#include "platform/Platform.h"

#include <QObject>
#include <functional>

namespace tarvanel {

class LockScreenState;

class LockBackend : public QObject {
    Q_OBJECT
public:
    using KeyHandler = std::function<void(LockKey, const QString&)>;
    using QObject::QObject;

    // For the log, once per lock: which mechanism holds the screens.
    virtual QString mechanism() const = 0;
    // What a user can still do to leave a lock held this way; empty when nothing.
    virtual QString weakness() const { return {}; }

    void setKeyHandler(KeyHandler handler) { onKey_ = std::move(handler); }

    // Covers every screen: entry i goes to screen i, repeated when there are more screens. A
    // call while up replaces the content and keeps the screens covered throughout.
    virtual void show(const QList<LockWindowContent>& perScreen, LockScreenState* state) = 0;
    virtual void raise(bool focusFirst) = 0;
    virtual void close() = 0;
    virtual bool up() const = 0;

signals:
    // Screens were added, removed or resized and the backend cannot follow by itself.
    void screensChanged();
    // Every screen of the latest show has been painted; `milliseconds` since show() began.
    void covered(qint64 milliseconds);
    // The display system refused the lock or ended it on its own; another backend must take
    // over. Emitted at most once per show.
    void failed(const QString& why);

protected:
    void forwardKey(LockKey key, const QString& text) const {
        if (onKey_) onKey_(key, text);
    }

private:
    KeyHandler onKey_;
};

} // namespace tarvanel
