#pragma once
// The X11 lock: one window per screen, above everything, holding keyboard and pointer. Screens
// that come, go or change size are reported so the core can rebuild the windows. Also the last
// resort on Wayland desktops that offer nothing better (through XWayland or Qt's own windows).
#include "desktop/LockBackend.h"
#include "desktop/LockGuard.h"
#include "desktop/LockWindow.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace tarvanel {

class LockWindows : public LockBackend {
    Q_OBJECT
public:
    explicit LockWindows(QObject* parent = nullptr);
    ~LockWindows() override;

    QString mechanism() const override;
    QString weakness() const override { return weaknessHere(); }
    static QString weaknessHere();
    // Replaces the windows (screensChanged comes a moment after a new screen settles).
    void show(const QList<LockWindowContent>& perScreen, LockScreenState* state) override;
    void raise(bool focusFirst) override;
    void close() override;
    bool up() const override { return !windows_.isEmpty(); }

    const QList<LockWindow*>& windows() const { return windows_; }

private:
    void watchScreen(QScreen* screen);
    void guard();
    void onWindowPainted();

    QList<LockWindow*> windows_;
    LockGuard guard_;
    QTimer guardTick_;
    bool refusalLogged_ = false;
    QTimer settle_;
    QElapsedTimer shownAt_;
    bool cursorHidden_ = false;
    bool coveredReported_ = false;
};

} // namespace tarvanel
