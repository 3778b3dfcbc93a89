#include "desktop/wayland/WaylandLock.h"

#include "base/Log.h"
#include "desktop/LockView.h"
#include "desktop/wayland/KdeShortcuts.h"
#include "desktop/wayland/WaylandSurface.h"
#include "lock/LockScreenState.h"

#include "desktop/wayland/Protocols.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QTimer>
#include <poll.h>
#include <wayland-client.h>

namespace tarvanel {

namespace {

// Set while this user's session is locked by us, so that a restarted copy knows a lock it
// did not take may be waiting to be released. The runtime folder ends with the session.
QString lockMarker() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtime.isEmpty() ? QString() : runtime + QStringLiteral("/tarvanel-session-lock");
}

void setMarker(bool on) {
    const QString path = lockMarker();
    if (path.isEmpty()) return;
    if (!on) {
        QFile::remove(path);
        return;
    }
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(QByteArray::number(QCoreApplication::applicationPid()));
}

} // namespace

struct LockListeners {
    static WaylandLock* self(void* data) { return static_cast<WaylandLock*>(data); }
    static void locked(void* data, ext_session_lock_v1*) { self(data)->sessionLocked(); }
    static void finished(void* data, ext_session_lock_v1*) { self(data)->sessionFinished(); }
    static constexpr ext_session_lock_v1_listener session{&locked, &finished};
};

std::unique_ptr<WaylandLock> WaylandLock::create(QObject* parent) {
    std::unique_ptr<WaylandDisplay> display = WaylandDisplay::open();
    if (!display) return nullptr;
    if (display->sessionLock())
        return std::unique_ptr<WaylandLock>(
            new WaylandLock(std::move(display), Kind::SessionLock, parent));
    if (display->layerShell())
        return std::unique_ptr<WaylandLock>(
            new WaylandLock(std::move(display), Kind::Overlay, parent));
    return nullptr;
}

WaylandLock::WaylandLock(std::unique_ptr<WaylandDisplay> display, Kind kind, QObject* parent)
    : LockBackend(parent), display_(std::move(display)), kind_(kind) {
    connect(display_.get(), &WaylandDisplay::key, this,
            [this](LockKey key, const QString& text) { forwardKey(key, text); });
    connect(display_.get(), &WaylandDisplay::lost, this, &WaylandLock::fail);
    connect(display_.get(), &WaylandDisplay::outputAdded, this, [this](WaylandOutput* output) {
        if (!up_) return;
        // The scale comes with the output's next events, before its surface is configured.
        display_->roundTrip();
        cover(output);
    });
    connect(display_.get(), &WaylandDisplay::outputRemoved, this, &WaylandLock::uncover);
}

WaylandLock::~WaylandLock() {
    close();
}

QString WaylandLock::mechanism() const {
    if (kind_ == Kind::SessionLock) return QStringLiteral("the Wayland session lock");
    QString how = QStringLiteral("a layer-shell overlay with the keyboard");
    if (display_->inputInhibit()) how += QStringLiteral(", the input inhibitor");
    if (display_->shortcutsInhibit()) how += QStringLiteral(", shortcuts inhibited");
    return how;
}

QString WaylandLock::weakness() const {
    if (kind_ == Kind::SessionLock || display_->inputInhibit() || display_->shortcutsInhibit())
        return {};
    // English in the log; the settings window shows its translation.
    //: Shown on a line of its own with its first letter made a capital and "%1." around it
    return QStringLiteral(QT_TRANSLATE_NOOP(
        "LockWeakness", "on this desktop the compositor's own shortcuts may still leave a lock"));
}

void WaylandLock::show(const QList<LockWindowContent>& perScreen, LockScreenState* state) {
    content_ = perScreen;
    if (state_ != state) {
        if (state_) state_->disconnect(this);
        state_ = state;
        if (state_) {
            connect(state_, &LockScreenState::countdownChanged, this, &WaylandLock::repaintAll);
            connect(state_, &LockScreenState::guardianChanged, this, &WaylandLock::repaintAll);
        }
    }
    if (up_) { // new content on the surfaces the compositor already shows
        for (Screen& s : screens_) {
            s.view = makeView(s.output);
            s.surface->repaint();
        }
        return;
    }
    up_ = true;
    failed_ = finished_ = locked_ = coveredReported_ = false;
    shownAt_.start();
    if (kind_ == Kind::Overlay) KdeShortcuts::block(); // KWin's corners and effects
    if (kind_ == Kind::SessionLock) {
        lock_ = ext_session_lock_manager_v1_lock(display_->sessionLock());
        ext_session_lock_v1_add_listener(lock_, &LockListeners::session, this);
    } else if (display_->inputInhibit()) {
        inhibitor_ = zwlr_input_inhibit_manager_v1_get_inhibitor(display_->inputInhibit());
    }
    for (WaylandOutput* output : display_->outputs())
        cover(output);
    display_->flush();
}

void WaylandLock::cover(WaylandOutput* output) {
    if (!up_ || display_->broken()) return;
    screens_.push_back({output, makeView(output), nullptr});
    auto surface = std::make_unique<WaylandSurface>(
        *display_, output,
        kind_ == Kind::SessionLock ? WaylandSurface::Role::SessionLock
                                   : WaylandSurface::Role::Overlay,
        [this, output](QPainter& painter, QSize size) {
            for (Screen& s : screens_)
                if (s.output == output) {
                    if (s.view->size() != size) s.view->resize(size);
                    s.view->render(&painter);
                }
        },
        lock_);
    WaylandSurface* s = surface.get();
    s->onFirstPaint = [this] { screenPainted(); };
    // A compositor may close an overlay (a reconfigured output): cover the output again.
    s->onClosed = [this, output] {
        QTimer::singleShot(0, this, [this, output] {
            if (!display_->outputs().contains(output)) return;
            uncover(output);
            cover(output);
        });
    };
    screens_.back().surface = std::move(surface);
    display_->flush();
}

std::unique_ptr<LockView> WaylandLock::makeView(WaylandOutput* output) const {
    // The same order of screens as the windows elsewhere: the compositor's order of outputs.
    const qsizetype index = std::max<qsizetype>(0, display_->outputs().indexOf(output));
    const LockWindowContent content =
        content_.isEmpty() ? LockWindowContent{} : content_.at(index % content_.size());
    return std::make_unique<LockView>(content.prayer, content.quote, state_.data());
}

void WaylandLock::uncover(WaylandOutput* output) {
    std::erase_if(screens_, [output](const Screen& s) { return s.output == output; });
}

void WaylandLock::repaintAll() {
    for (Screen& s : screens_)
        s.surface->repaint();
}

void WaylandLock::screenPainted() {
    if (coveredReported_) return;
    for (const Screen& s : screens_)
        if (!s.surface->painted()) return;
    coveredReported_ = true;
    emit covered(shownAt_.elapsed());
}

void WaylandLock::sessionLocked() {
    locked_ = true;
    setMarker(true);
}

void WaylandLock::sessionFinished() {
    finished_ = true;
    if (lock_) ext_session_lock_v1_destroy(lock_);
    lock_ = nullptr;
    if (up_)
        fail(locked_ ? QStringLiteral("the compositor ended the session lock")
                     : QStringLiteral("the compositor refused the session lock; another locker "
                                      "may hold it"));
}

bool WaylandLock::waitForSessionAnswer(int milliseconds) {
    QElapsedTimer waited;
    waited.start();
    wl_display* d = display_->display();
    while (!locked_ && !finished_ && !display_->broken() && waited.elapsed() < milliseconds) {
        display_->flush();
        pollfd fd{wl_display_get_fd(d), POLLIN, 0};
        if (wl_display_prepare_read(d) != 0) {
            wl_display_dispatch_pending(d);
            continue;
        }
        if (::poll(&fd, 1, 50) > 0)
            wl_display_read_events(d);
        else
            wl_display_cancel_read(d);
        wl_display_dispatch_pending(d);
    }
    return locked_;
}

void WaylandLock::close() {
    const bool wasUp = up_;
    up_ = false;
    if (wasUp) KdeShortcuts::unblock();
    if (lock_ && !locked_ && !finished_) {
        // Unlocking is only allowed once the compositor has confirmed the lock; leaving the
        // request pending would strand the session locked when this connection goes.
        waitForSessionAnswer(3000);
    }
    if (lock_ && locked_ && !display_->broken()) {
        ext_session_lock_v1_unlock_and_destroy(lock_);
        lock_ = nullptr;
        display_->roundTrip();
        locked_ = false;
        setMarker(false);
    }
    screens_.clear();
    // A connection that broke while the session was locked left the lock abandoned.
    if (locked_ && display_->broken()) {
        locked_ = false;
        releaseAbandoned();
    }
    if (inhibitor_) zwlr_input_inhibitor_v1_destroy(inhibitor_);
    inhibitor_ = nullptr;
    display_->flush();
    if (wasUp && state_) state_->disconnect(this);
    state_ = nullptr;
}

void WaylandLock::fail(const QString& why) {
    if (failed_ || !up_) return;
    failed_ = true;
    emit failed(why);
}

void WaylandLock::releaseAbandoned() {
    KdeShortcuts::restoreAbandoned();
    const QString marker = lockMarker();
    if (marker.isEmpty() || !QFile::exists(marker)) return;
    std::unique_ptr<WaylandLock> lock = create();
    if (!lock || lock->kind() != Kind::SessionLock) {
        setMarker(false);
        return;
    }
    lock->show({}, nullptr);
    if (lock->waitForSessionAnswer(3000))
        logLine(lcLock, QStringLiteral("Tarvanel: released a session lock left by an earlier run"));
    lock->close();
    setMarker(false);
}

} // namespace tarvanel
