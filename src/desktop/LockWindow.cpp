#include "desktop/LockWindow.h"

#include "desktop/LockKeys.h"
#include "desktop/LockView.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace tarvanel {

bool LockWindow::debugBuild() {
#ifdef TARVANEL_LOCK_DEBUG
    return true;
#else
    return false;
#endif
}

LockWindow::LockWindow(QScreen* screen, const LockWindowContent& content, LockScreenState* state,
                       KeyHandler onKey)
    : QWidget(nullptr), screen_(screen), onKey_(std::move(onKey)) {
    Qt::WindowFlags flags = Qt::Window | Qt::WindowStaysOnTopHint;
    if (!debugBuild()) flags |= Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint;
    setWindowFlags(flags);
    setWindowTitle(QStringLiteral("Tarvanel"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    setFocusPolicy(Qt::StrongFocus);
    if (!debugBuild()) setCursor(Qt::BlankCursor);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Qt::black);
    setPalette(palette);
    setAutoFillBackground(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    view_ = new LockView(content.prayer, content.quote, state, this);
    if (!debugBuild()) view_->setCursor(Qt::BlankCursor);
    layout->addWidget(view_);
    connect(view_, &LockView::firstPaint, this, [this] {
        painted_ = true;
        emit firstPaint();
    });
}

void LockWindow::coverScreen() {
    if (!screen_) return;
    const QRect area = screen_->geometry();
    if (windowHandle()) windowHandle()->setScreen(screen_);
    setGeometry(debugBuild() ? area.adjusted(area.width() / 8, area.height() / 8, -area.width() / 8,
                                             -area.height() / 8)
                             : area);
}

void LockWindow::present() {
    create();
    coverScreen();
    show();
    raise();
    activateWindow();
    setFocus(Qt::OtherFocusReason);
}

bool LockWindow::grabInput() {
    if (debugBuild()) return true;
    QWindow* handle = windowHandle();
    if (!handle || !isVisible()) return false;
    const bool keyboard = handle->setKeyboardGrabEnabled(true);
    return handle->setMouseGrabEnabled(true) && keyboard;
}

void LockWindow::releaseInput() {
    if (debugBuild()) return;
    if (QWindow* handle = windowHandle()) {
        handle->setKeyboardGrabEnabled(false);
        handle->setMouseGrabEnabled(false);
    }
}

void LockWindow::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (const auto forwarded = translateLockKey(event->key(), event->modifiers(), event->text()))
        if (onKey_) onKey_(forwarded->key, forwarded->text);
}

void LockWindow::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
}

bool LockWindow::event(QEvent* event) {
    // Shortcuts would otherwise be offered to the application before the window sees the key.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void LockWindow::closeEvent(QCloseEvent* event) {
    if (debugBuild()) {
        event->accept();
        return;
    }
    event->ignore();
}

} // namespace tarvanel
