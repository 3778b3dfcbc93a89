#pragma once
// A Wayland connection of the lock's own, beside whatever Qt uses: the globals a lock needs,
// the outputs as they come and go, and the seat's keyboard (through xkbcommon) and pointer.
// A protocol error ends only this connection; Qt's windows and the tray stay.
#include "platform/Platform.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <memory>

struct wl_display;
struct wl_registry;
struct wl_compositor;
struct wl_shm;
struct wl_seat;
struct wl_output;
struct wl_keyboard;
struct wl_pointer;
struct ext_session_lock_manager_v1;
struct zwlr_layer_shell_v1;
struct zwlr_input_inhibit_manager_v1;
struct zwp_keyboard_shortcuts_inhibit_manager_v1;
struct xkb_context;
struct xkb_keymap;
struct xkb_state;
class QSocketNotifier;

namespace tarvanel {

struct WaylandOutput {
    quint32 name = 0; // the registry's name for it
    wl_output* output = nullptr;
    int scale = 1;
};

class WaylandDisplay : public QObject {
    Q_OBJECT
public:
    // Null when no compositor answers at WAYLAND_DISPLAY.
    static std::unique_ptr<WaylandDisplay> open();
    ~WaylandDisplay() override;

    wl_display* display() const { return display_; }
    wl_compositor* compositor() const { return compositor_; }
    wl_shm* shm() const { return shm_; }
    wl_seat* seat() const { return seat_; }
    ext_session_lock_manager_v1* sessionLock() const { return sessionLock_; }
    zwlr_layer_shell_v1* layerShell() const { return layerShell_; }
    zwlr_input_inhibit_manager_v1* inputInhibit() const { return inputInhibit_; }
    zwp_keyboard_shortcuts_inhibit_manager_v1* shortcutsInhibit() const {
        return shortcutsInhibit_;
    }
    const QList<WaylandOutput*>& outputs() const { return outputs_; }

    // Sends what was asked; reports a broken connection through `lost`.
    void flush();
    // Waits for the compositor to answer everything sent so far.
    bool roundTrip();
    bool broken() const { return broken_; }

signals:
    void outputAdded(tarvanel::WaylandOutput* output);
    // Before the output is released.
    void outputRemoved(tarvanel::WaylandOutput* output);
    void key(tarvanel::LockKey key, const QString& text);
    // The compositor went away or ended the connection for a protocol error.
    void lost(const QString& why);

private:
    WaylandDisplay() = default;
    void readEvents();
    void checkError();
    void addGlobal(quint32 name, const char* interface, quint32 version);
    void removeGlobal(quint32 name);
    void seatCapabilities(quint32 caps);
    void keymap(int fd, quint32 size);
    void keyPressed(quint32 key);
    void modifiers(quint32 depressed, quint32 latched, quint32 locked, quint32 group);

    friend struct WaylandListeners;
    wl_display* display_ = nullptr;
    wl_registry* registry_ = nullptr;
    wl_compositor* compositor_ = nullptr;
    wl_shm* shm_ = nullptr;
    wl_seat* seat_ = nullptr;
    wl_keyboard* keyboard_ = nullptr;
    wl_pointer* pointer_ = nullptr;
    ext_session_lock_manager_v1* sessionLock_ = nullptr;
    zwlr_layer_shell_v1* layerShell_ = nullptr;
    zwlr_input_inhibit_manager_v1* inputInhibit_ = nullptr;
    zwp_keyboard_shortcuts_inhibit_manager_v1* shortcutsInhibit_ = nullptr;
    QList<WaylandOutput*> outputs_;
    xkb_context* xkb_ = nullptr;
    xkb_keymap* keymap_ = nullptr;
    xkb_state* xkbState_ = nullptr;
    QSet<quint32> heldAtEnter_;
    QSocketNotifier* notifier_ = nullptr;
    bool broken_ = false;
};

} // namespace tarvanel
