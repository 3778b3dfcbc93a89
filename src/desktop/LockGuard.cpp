#include "desktop/LockGuard.h"

#include "desktop/LockWindow.h"
#include "desktop/X11.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSocketNotifier>
#include <QtGui/qguiapplication_platform.h>
#include <memory>
#include <xcb/xcb.h>

namespace tarvanel {

namespace {

// A burst of events is answered at most this often, so a program that fights back cannot
// keep the event loop busy.
constexpr int minGapMs = 15;

template <typename T> using Reply = std::unique_ptr<T, decltype(&free)>;
template <typename T> Reply<T> own(T* reply) {
    return Reply<T>(reply, &free);
}

// Where the window belongs, in the server's pixels (Qt keeps a screen's corner and scales
// its size).
QRect nativeArea(const LockWindow* w) {
    const QScreen* screen = w->lockedScreen();
    const QRect area = screen->geometry();
    return {area.topLeft(), area.size() * screen->devicePixelRatio()};
}

// The children of `root` stacked above the lowest of `ours` that show something.
QList<xcb_window_t> above(xcb_connection_t* c, xcb_window_t root, const QSet<quint32>& ours,
                          const QSet<quint32>& ignored) {
    const auto tree = own(xcb_query_tree_reply(c, xcb_query_tree(c, root), nullptr));
    if (!tree) return {};
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    const int count = xcb_query_tree_children_length(tree.get());
    int lowest = 0;
    while (lowest < count && !ours.contains(children[lowest]))
        ++lowest;
    QList<xcb_window_t> others;
    QList<xcb_get_window_attributes_cookie_t> asked;
    for (int i = lowest + 1; i < count; ++i)
        if (!ours.contains(children[i]) && !ignored.contains(children[i])) {
            others << children[i];
            asked << xcb_get_window_attributes(c, children[i]);
        }
    QList<xcb_window_t> shown;
    for (int i = 0; i < others.size(); ++i) {
        const auto a = own(xcb_get_window_attributes_reply(c, asked[i], nullptr));
        if (a && a->map_state == XCB_MAP_STATE_VIEWABLE &&
            a->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT)
            shown << others[i];
    }
    return shown;
}

} // namespace

LockGuard::LockGuard(WindowList windows, QObject* parent)
    : QObject(parent), windows_(std::move(windows)) {
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, [this] { fix(false); });
}

LockGuard::~LockGuard() {
    stop();
}

void LockGuard::stop() {
    soon_.stop();
    delete notifier_;
    notifier_ = nullptr;
    if (events_) xcb_disconnect(events_);
    events_ = nullptr;
    watched_.clear();
    reported_.clear();
    pinned_.clear();
}

bool LockGuard::watch() {
    if (!events_) {
        events_ = xcb_connect(nullptr, nullptr);
        if (xcb_connection_has_error(events_)) {
            xcb_disconnect(events_);
            events_ = nullptr;
            return false;
        }
        notifier_ = new QSocketNotifier(xcb_get_file_descriptor(events_), QSocketNotifier::Read);
        connect(notifier_, &QSocketNotifier::activated, this, &LockGuard::readEvents);
    }
    return true;
}

void LockGuard::select(quint32 window, quint32 mask) {
    if (!events_ || watched_.contains(window)) return;
    watched_.insert(window);
    xcb_change_window_attributes(events_, window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(events_);
}

void LockGuard::readEvents() {
    bool relevant = false;
    while (xcb_generic_event_t* event = xcb_poll_for_event(events_)) {
        switch (event->response_type & 0x7f) {
        case XCB_MAP_NOTIFY:
        case XCB_UNMAP_NOTIFY:
        case XCB_CONFIGURE_NOTIFY:
        case XCB_CIRCULATE_NOTIFY:
        case XCB_REPARENT_NOTIFY:
        case XCB_DESTROY_NOTIFY:
            relevant = true;
            break;
        case XCB_VISIBILITY_NOTIFY:
            relevant |= reinterpret_cast<xcb_visibility_notify_event_t*>(event)->state !=
                        XCB_VISIBILITY_UNOBSCURED;
            break;
        default:
            break;
        }
        free(event);
    }
    if (xcb_connection_has_error(events_)) {
        stop(); // the server went away; the one-second repair still runs
        return;
    }
    if (relevant && !soon_.isActive()) {
        const qint64 since = lastRepair_.isValid() ? lastRepair_.elapsed() : minGapMs;
        soon_.start(int(std::max<qint64>(0, minGapMs - since)));
    }
}

void LockGuard::note(const QString& what) {
    if (reported_.contains(what)) return;
    reported_.insert(what);
    emit undone(what);
}

bool LockGuard::repair() {
    pinned_.clear();
    return fix(true);
}

bool LockGuard::fix(bool raise) {
    lastRepair_.start();
    const QList<LockWindow*> windows = windows_();
    if (windows.isEmpty()) return true;
    xcb_connection_t* c = x11Connection();
    if (!c) {
        for (LockWindow* w : windows) {
            w->coverScreen();
            w->raise();
        }
        return windows.first()->grabInput();
    }
    watch();

    // Every question first, then the answers: one round trip for all windows.
    QList<xcb_get_window_attributes_cookie_t> attributes;
    QList<xcb_get_geometry_cookie_t> geometries;
    QSet<quint32> ours;
    for (LockWindow* w : windows) {
        const auto id = xcb_window_t(w->winId());
        ours.insert(id);
        attributes << xcb_get_window_attributes(c, id);
        geometries << xcb_get_geometry(c, id);
    }
    xcb_window_t root = XCB_NONE;
    bool lostOne = false;
    for (int i = 0; i < windows.size(); ++i) {
        const auto id = xcb_window_t(windows[i]->winId());
        const auto a = own(xcb_get_window_attributes_reply(c, attributes[i], nullptr));
        const auto g = own(xcb_get_geometry_reply(c, geometries[i], nullptr));
        if (!a || !g) {
            lostOne = true;
            continue;
        }
        root = g->root;
        select(root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
        select(id, XCB_EVENT_MASK_VISIBILITY_CHANGE);
        if (a->map_state != XCB_MAP_STATE_VIEWABLE) {
            xcb_map_window(c, id);
            note(QStringLiteral("unmapped"));
            raise = true;
        }
        const QRect want = nativeArea(windows[i]);
        if (QRect(g->x, g->y, g->width, g->height) != want) {
            const uint32_t values[] = {uint32_t(want.x()), uint32_t(want.y()),
                                       uint32_t(want.width()), uint32_t(want.height())};
            xcb_configure_window(c, id,
                                 XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y |
                                     XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                                 values);
            note(QStringLiteral("moved"));
        }
    }
    if (root != XCB_NONE && !above(c, root, ours, pinned_).isEmpty()) {
        note(QStringLiteral("covered"));
        raise = true;
    }
    if (raise) {
        const uint32_t top = XCB_STACK_MODE_ABOVE;
        for (LockWindow* w : windows)
            xcb_configure_window(c, xcb_window_t(w->winId()), XCB_CONFIG_WINDOW_STACK_MODE, &top);
        // A window still above right after the raise is one the server keeps there (a
        // compositor's overlay): fighting it would never end.
        if (root != XCB_NONE)
            for (xcb_window_t w : above(c, root, ours, pinned_))
                pinned_.insert(w);
    }
    xcb_flush(c);
    if (lostOne) {
        note(QStringLiteral("destroyed"));
        emit lost(); // the windows are rebuilt before this returns
        return windows_() != windows && fix(true);
    }
    // The grabs go to the first window; re-asking is how the server says who holds them.
    return windows.first()->grabInput();
}

} // namespace tarvanel
