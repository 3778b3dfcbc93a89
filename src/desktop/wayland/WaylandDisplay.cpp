#include "desktop/wayland/WaylandDisplay.h"

#include "desktop/LockKeys.h"

#include "desktop/wayland/Protocols.h"

#include <QSocketNotifier>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

namespace tarvanel {

// The C callbacks of libwayland, each handing over to the display it was registered with.
struct WaylandListeners {
    static WaylandDisplay* self(void* data) { return static_cast<WaylandDisplay*>(data); }

    static void global(void* data, wl_registry*, uint32_t name, const char* interface,
                       uint32_t version) {
        self(data)->addGlobal(name, interface, version);
    }
    static void globalRemove(void* data, wl_registry*, uint32_t name) {
        self(data)->removeGlobal(name);
    }
    static constexpr wl_registry_listener registry{&global, &globalRemove};

    static void capabilities(void* data, wl_seat*, uint32_t caps) {
        self(data)->seatCapabilities(caps);
    }
    static void seatName(void*, wl_seat*, const char*) {}
    static constexpr wl_seat_listener seat{&capabilities, &seatName};

    static void keymap(void* data, wl_keyboard*, uint32_t format, int32_t fd, uint32_t size) {
        if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1) self(data)->keymap(fd, size);
        close(fd);
    }
    static void enter(void* data, wl_keyboard*, uint32_t, wl_surface*, wl_array* keys) {
        const auto* held = static_cast<const uint32_t*>(keys->data);
        self(data)->heldAtEnter_ = QSet<quint32>(held, held + keys->size / sizeof(uint32_t));
    }
    static void leave(void* data, wl_keyboard*, uint32_t, wl_surface*) {
        self(data)->heldAtEnter_.clear();
    }
    static void key(void* data, wl_keyboard*, uint32_t, uint32_t, uint32_t key, uint32_t state) {
        // A key pressed just before the focus came (a keyboard that appeared with it) counts
        // when it is released.
        const bool held = self(data)->heldAtEnter_.remove(key);
        if (state == WL_KEYBOARD_KEY_STATE_PRESSED || held) self(data)->keyPressed(key);
    }
    static void modifiers(void* data, wl_keyboard*, uint32_t, uint32_t depressed, uint32_t latched,
                          uint32_t locked, uint32_t group) {
        self(data)->modifiers(depressed, latched, locked, group);
    }
    static void repeatInfo(void*, wl_keyboard*, int32_t, int32_t) {}
    static constexpr wl_keyboard_listener keyboard{&keymap, &enter,     &leave,
                                                   &key,    &modifiers, &repeatInfo};

    // No pointer over a lock: the cursor is hidden on every surface it enters.
    static void pointerEnter(void*, wl_pointer* pointer, uint32_t serial, wl_surface*, wl_fixed_t,
                             wl_fixed_t) {
        wl_pointer_set_cursor(pointer, serial, nullptr, 0, 0);
    }
    static void pointerLeave(void*, wl_pointer*, uint32_t, wl_surface*) {}
    static void motion(void*, wl_pointer*, uint32_t, wl_fixed_t, wl_fixed_t) {}
    static void button(void*, wl_pointer*, uint32_t, uint32_t, uint32_t, uint32_t) {}
    static void axis(void*, wl_pointer*, uint32_t, uint32_t, wl_fixed_t) {}
    static void frame(void*, wl_pointer*) {}
    static void axisSource(void*, wl_pointer*, uint32_t) {}
    static void axisStop(void*, wl_pointer*, uint32_t, uint32_t) {}
    static void axisSteps(void*, wl_pointer*, uint32_t, int32_t) {}
    // Named members: newer libwayland adds events at the end, which the seat version bound
    // here never sends.
    static constexpr wl_pointer_listener pointer{.enter = &pointerEnter,
                                                 .leave = &pointerLeave,
                                                 .motion = &motion,
                                                 .button = &button,
                                                 .axis = &axis,
                                                 .frame = &frame,
                                                 .axis_source = &axisSource,
                                                 .axis_stop = &axisStop,
                                                 .axis_discrete = &axisSteps,
                                                 .axis_value120 = &axisSteps};

    static void geometry(void*, wl_output*, int32_t, int32_t, int32_t, int32_t, int32_t,
                         const char*, const char*, int32_t) {}
    static void mode(void*, wl_output*, uint32_t, int32_t, int32_t, int32_t) {}
    static void done(void*, wl_output*) {}
    static void scale(void* data, wl_output*, int32_t factor) {
        static_cast<WaylandOutput*>(data)->scale = std::max(1, int(factor));
    }
    static void text(void*, wl_output*, const char*) {}
    static constexpr wl_output_listener output{&geometry, &mode, &done, &scale, &text, &text};
};

std::unique_ptr<WaylandDisplay> WaylandDisplay::open() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return nullptr;
    wl_display* display = wl_display_connect(nullptr);
    if (!display) return nullptr;
    std::unique_ptr<WaylandDisplay> self(new WaylandDisplay);
    self->display_ = display;
    self->xkb_ = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    self->registry_ = wl_display_get_registry(display);
    wl_registry_add_listener(self->registry_, &WaylandListeners::registry, self.get());
    // Globals first, then what they announce (seat capabilities, output scales).
    if (!self->roundTrip() || !self->roundTrip() || !self->compositor_ || !self->shm_)
        return nullptr;
    self->notifier_ =
        new QSocketNotifier(wl_display_get_fd(display), QSocketNotifier::Read, self.get());
    QObject::connect(self->notifier_, &QSocketNotifier::activated, self.get(),
                     &WaylandDisplay::readEvents);
    return self;
}

WaylandDisplay::~WaylandDisplay() {
    delete notifier_;
    for (WaylandOutput* o : outputs_) {
        wl_output_destroy(o->output);
        delete o;
    }
    if (keyboard_) wl_keyboard_destroy(keyboard_);
    if (pointer_) wl_pointer_destroy(pointer_);
    if (seat_) wl_seat_destroy(seat_);
    if (sessionLock_) ext_session_lock_manager_v1_destroy(sessionLock_);
    if (layerShell_) zwlr_layer_shell_v1_destroy(layerShell_);
    if (inputInhibit_) zwlr_input_inhibit_manager_v1_destroy(inputInhibit_);
    if (shortcutsInhibit_) zwp_keyboard_shortcuts_inhibit_manager_v1_destroy(shortcutsInhibit_);
    if (shm_) wl_shm_destroy(shm_);
    if (compositor_) wl_compositor_destroy(compositor_);
    if (registry_) wl_registry_destroy(registry_);
    if (xkbState_) xkb_state_unref(xkbState_);
    if (keymap_) xkb_keymap_unref(keymap_);
    if (xkb_) xkb_context_unref(xkb_);
    if (display_) {
        wl_display_flush(display_);
        wl_display_disconnect(display_);
    }
}

void WaylandDisplay::addGlobal(quint32 name, const char* interface, quint32 version) {
    auto bind = [&](const wl_interface* wanted, quint32 highest) {
        return wl_registry_bind(registry_, name, wanted, std::min(version, highest));
    };
    const auto is = [&](const wl_interface& i) { return std::strcmp(interface, i.name) == 0; };
    if (is(wl_compositor_interface)) {
        compositor_ = static_cast<wl_compositor*>(bind(&wl_compositor_interface, 4));
    } else if (is(wl_shm_interface)) {
        shm_ = static_cast<wl_shm*>(bind(&wl_shm_interface, 1));
    } else if (is(wl_seat_interface) && !seat_) {
        seat_ = static_cast<wl_seat*>(bind(&wl_seat_interface, 5));
        wl_seat_add_listener(seat_, &WaylandListeners::seat, this);
    } else if (is(wl_output_interface)) {
        auto* o = new WaylandOutput{name, nullptr, 1};
        o->output = static_cast<wl_output*>(bind(&wl_output_interface, 2));
        wl_output_add_listener(o->output, &WaylandListeners::output, o);
        outputs_ << o;
        // Its scale arrives with the next events; a lock surface is configured after it.
        emit outputAdded(o);
    } else if (is(ext_session_lock_manager_v1_interface)) {
        sessionLock_ = static_cast<ext_session_lock_manager_v1*>(
            bind(&ext_session_lock_manager_v1_interface, 1));
    } else if (is(zwlr_layer_shell_v1_interface)) {
        layerShell_ = static_cast<zwlr_layer_shell_v1*>(bind(&zwlr_layer_shell_v1_interface, 4));
    } else if (is(zwlr_input_inhibit_manager_v1_interface)) {
        inputInhibit_ = static_cast<zwlr_input_inhibit_manager_v1*>(
            bind(&zwlr_input_inhibit_manager_v1_interface, 1));
    } else if (is(zwp_keyboard_shortcuts_inhibit_manager_v1_interface)) {
        shortcutsInhibit_ = static_cast<zwp_keyboard_shortcuts_inhibit_manager_v1*>(
            bind(&zwp_keyboard_shortcuts_inhibit_manager_v1_interface, 1));
    }
}

void WaylandDisplay::removeGlobal(quint32 name) {
    for (WaylandOutput* o : outputs_)
        if (o->name == name) {
            outputs_.removeOne(o);
            emit outputRemoved(o);
            wl_output_destroy(o->output);
            delete o;
            return;
        }
}

void WaylandDisplay::seatCapabilities(quint32 caps) {
    // A keyboard unplugged takes the capability with it; the next one brings a new object.
    const bool keyboard = caps & WL_SEAT_CAPABILITY_KEYBOARD;
    if (keyboard && !keyboard_) {
        keyboard_ = wl_seat_get_keyboard(seat_);
        wl_keyboard_add_listener(keyboard_, &WaylandListeners::keyboard, this);
    } else if (!keyboard && keyboard_) {
        wl_keyboard_get_version(keyboard_) >= 3 ? wl_keyboard_release(keyboard_)
                                                : wl_keyboard_destroy(keyboard_);
        keyboard_ = nullptr;
    }
    const bool pointer = caps & WL_SEAT_CAPABILITY_POINTER;
    if (pointer && !pointer_) {
        pointer_ = wl_seat_get_pointer(seat_);
        wl_pointer_add_listener(pointer_, &WaylandListeners::pointer, this);
    } else if (!pointer && pointer_) {
        wl_pointer_get_version(pointer_) >= 3 ? wl_pointer_release(pointer_)
                                              : wl_pointer_destroy(pointer_);
        pointer_ = nullptr;
    }
}

void WaylandDisplay::keymap(int fd, quint32 size) {
    void* text = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    if (text == MAP_FAILED) return;
    xkb_keymap* keymap =
        xkb_keymap_new_from_string(xkb_, static_cast<const char*>(text), XKB_KEYMAP_FORMAT_TEXT_V1,
                                   XKB_KEYMAP_COMPILE_NO_FLAGS);
    munmap(text, size);
    if (!keymap) return;
    if (xkbState_) xkb_state_unref(xkbState_);
    if (keymap_) xkb_keymap_unref(keymap_);
    keymap_ = keymap;
    xkbState_ = xkb_state_new(keymap_);
}

void WaylandDisplay::keyPressed(quint32 key) {
    if (!xkbState_) return;
    const xkb_keycode_t code = key + 8; // evdev to XKB
    const xkb_keysym_t sym = xkb_state_key_get_one_sym(xkbState_, code);
    char utf8[64] = {};
    xkb_state_key_get_utf8(xkbState_, code, utf8, sizeof utf8);
    if (const auto forwarded = translateLockKeysym(sym, QString::fromUtf8(utf8)))
        emit this->key(forwarded->key, forwarded->text);
}

void WaylandDisplay::modifiers(quint32 depressed, quint32 latched, quint32 locked, quint32 group) {
    if (xkbState_) xkb_state_update_mask(xkbState_, depressed, latched, locked, 0, 0, group);
}

void WaylandDisplay::readEvents() {
    if (broken_) return;
    if (wl_display_prepare_read(display_) == 0) {
        if (wl_display_read_events(display_) < 0) return checkError();
    }
    wl_display_dispatch_pending(display_);
    flush();
}

void WaylandDisplay::flush() {
    if (broken_) return;
    wl_display_flush(display_);
    checkError();
}

bool WaylandDisplay::roundTrip() {
    if (broken_) return false;
    const bool ok = wl_display_roundtrip(display_) >= 0;
    checkError();
    return ok && !broken_;
}

void WaylandDisplay::checkError() {
    const int error = wl_display_get_error(display_);
    if (error == 0 || broken_) return;
    broken_ = true;
    if (notifier_) notifier_->setEnabled(false);
    const wl_interface* interface = nullptr;
    quint32 id = 0;
    const quint32 code = wl_display_get_protocol_error(display_, &interface, &id);
    emit lost(error == EPROTO && interface ? QStringLiteral("protocol error %1 on %2")
                                                 .arg(code)
                                                 .arg(interface->name)
                                           : QStringLiteral("connection to the compositor lost"));
}

} // namespace tarvanel
