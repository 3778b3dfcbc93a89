#pragma once
// The windows of one lock: one per screen, above everything, holding keyboard and pointer.
// Screens that come, go or change size are reported so the core can rebuild the windows.
#include "desktop/LockGuard.h"
#include "desktop/LockWindow.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace tarvanel {

class LockWindows : public QObject {
    Q_OBJECT
public:
    explicit LockWindows(QObject* parent = nullptr);
    ~LockWindows() override;

    void setKeyHandler(LockWindow::KeyHandler handler) { onKey_ = std::move(handler); }

    // Replaces the windows: entry i goes to screen i; screens beyond the list repeat its
    // entries so that no screen stays uncovered.
    void show(const QList<LockWindowContent>& perScreen, LockScreenState* state);
    void raise(bool focusFirst);
    void close();

    bool up() const { return !windows_.isEmpty(); }
    const QList<LockWindow*>& windows() const { return windows_; }

signals:
    // Screens were added, removed or resized (after a moment for a new screen to settle).
    void screensChanged();
    // Every window of the latest show has been painted; `milliseconds` since show() began.
    void covered(qint64 milliseconds);

private:
    void watchScreen(QScreen* screen);
    void guard();
    void onWindowPainted();

    LockWindow::KeyHandler onKey_;
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
