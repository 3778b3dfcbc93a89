#pragma once
// One full-screen lock window on one screen. It takes every key press and forwards only what
// the guardian entry uses; nothing else reaches the desktop while it holds the grabs.
#include "platform/Platform.h"

#include <QWidget>
#include <functional>

class QScreen;

namespace tarvanel {

class LockScreenState;
class LockView;

class LockWindow : public QWidget {
    Q_OBJECT
public:
    using KeyHandler = std::function<void(LockKey, const QString&)>;

    LockWindow(QScreen* screen, const LockWindowContent& content, LockScreenState* state,
               KeyHandler onKey);

    // A development build (TARVANEL_LOCK_DEBUG): framed, closable windows that grab nothing.
    static bool debugBuild();

    // Covers the screen and, unless built for development, takes keyboard and pointer.
    void present();
    // Asks the server for the keyboard and pointer grabs again (holding them already is no
    // proof that the server still grants them); false while it refuses either.
    bool grabInput();
    void releaseInput();
    void coverScreen();

    QScreen* lockedScreen() const { return screen_; }
    LockView* view() const { return view_; }
    // Set once the window has been painted on its screen.
    bool painted() const { return painted_; }

signals:
    void firstPaint();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QScreen* screen_;
    LockView* view_;
    KeyHandler onKey_;
    bool painted_ = false;
};

} // namespace tarvanel
