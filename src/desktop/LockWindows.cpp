#include "desktop/LockWindows.h"

#include "base/Log.h"

#include <QGuiApplication>
#include <QScreen>

namespace tarvanel {

namespace {
// A new output reports its final geometry shortly after it appears.
constexpr int settleMs = 500;
} // namespace

LockWindows::LockWindows(QObject* parent)
    : LockBackend(parent), guard_(
                               [this] {
                                   QList<LockWindow*> shown = windows_;
                                   shown.removeIf([](LockWindow* w) { return !w->isVisible(); });
                                   return shown;
                               },
                               this) {
    guardTick_.setInterval(1000);
    connect(&guardTick_, &QTimer::timeout, this, &LockWindows::guard);
    connect(&guard_, &LockGuard::lost, this, &LockWindows::screensChanged);
    connect(&guard_, &LockGuard::undone, this, [](const QString& what) {
        logLine(lcLock, QStringLiteral("Tarvanel: another program ") + what +
                            QStringLiteral(" a lock window; put back"));
    });
    settle_.setSingleShot(true);
    settle_.setInterval(settleMs);
    connect(&settle_, &QTimer::timeout, this, &LockWindows::screensChanged);

    auto* app = qGuiApp;
    for (QScreen* screen : QGuiApplication::screens())
        watchScreen(screen);
    connect(app, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        watchScreen(screen);
        settle_.start();
    });
    connect(app, &QGuiApplication::screenRemoved, this, [this](QScreen* screen) {
        // Drop windows on the screen that is going away before Qt moves them elsewhere.
        for (LockWindow* w : windows_)
            if (w->lockedScreen() == screen) w->hide();
        settle_.stop();
        emit screensChanged();
    });
}

LockWindows::~LockWindows() {
    close();
}

QString LockWindows::mechanism() const {
    return QGuiApplication::platformName() == QLatin1String("xcb")
               ? QStringLiteral("X11 windows with keyboard and pointer grabs")
               : QStringLiteral("ordinary windows (") + QGuiApplication::platformName() +
                     QStringLiteral(")");
}

QString LockWindows::weaknessHere() {
    // Under XWayland or Qt's Wayland windows the compositor keeps its own shortcuts.
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return {};
    // English in the log; the settings window shows its translation.
    //: Shown on a line of its own with its first letter made a capital and "%1." around it
    return QStringLiteral(QT_TRANSLATE_NOOP(
        "LockWeakness", "on this desktop a lock can be left by switching windows"));
}

void LockWindows::watchScreen(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, [this] { settle_.start(); });
}

void LockWindows::show(const QList<LockWindowContent>& perScreen, LockScreenState* state) {
    shownAt_.start();
    coveredReported_ = false;
    const QList<LockWindow*> old = windows_;
    windows_.clear();
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (int i = 0; i < screens.size(); ++i) {
        const LockWindowContent content =
            perScreen.isEmpty() ? LockWindowContent{} : perScreen.at(i % perScreen.size());
        auto* window =
            new LockWindow(screens.at(i), content, state,
                           [this](LockKey key, const QString& text) { forwardKey(key, text); });
        connect(window, &LockWindow::firstPaint, this, &LockWindows::onWindowPainted);
        window->present();
        windows_ << window;
    }
    // The new windows are up before the old ones go, so nothing shows through in between.
    for (LockWindow* w : old) {
        w->releaseInput();
        w->hide();
        w->deleteLater();
    }
    if (!LockWindow::debugBuild() && !cursorHidden_) {
        QGuiApplication::setOverrideCursor(Qt::BlankCursor);
        cursorHidden_ = true;
    }
    guardTick_.start();
    guard();
}

void LockWindows::raise(bool focusFirst) {
    if (focusFirst && !windows_.isEmpty()) {
        windows_.first()->activateWindow();
        windows_.first()->setFocus(Qt::OtherFocusReason);
    }
    guard();
}

void LockWindows::guard() {
    if (windows_.isEmpty() || LockWindow::debugBuild()) return;
    // One window holds both grabs; keys and clicks on the other screens come to it too.
    const bool granted = guard_.repair();
    if (!granted && !refusalLogged_)
        logLine(lcLock, QStringLiteral(
                            "Tarvanel: keyboard or pointer grab refused; retrying every second"));
    refusalLogged_ = !granted;
}

void LockWindows::onWindowPainted() {
    if (coveredReported_) return;
    for (LockWindow* w : windows_)
        if (!w->painted()) return;
    coveredReported_ = true;
    emit covered(shownAt_.elapsed());
}

void LockWindows::close() {
    guardTick_.stop();
    guard_.stop();
    refusalLogged_ = false;
    settle_.stop();
    for (LockWindow* w : windows_) {
        w->releaseInput();
        w->hide();
        w->deleteLater();
    }
    windows_.clear();
    if (cursorHidden_) {
        QGuiApplication::restoreOverrideCursor();
        cursorHidden_ = false;
    }
}

} // namespace tarvanel
