// The part shared by both variants of the extension; each variant's extension.js.in binds
// Clutter, Cogl, GdkPixbuf, Gio, GLib, GObject, Meta, Shell, St and Main, then pastes this text in.
//
// Tarvanel's agent decides everything: it renders the lock view into one picture per monitor
// and calls Lock; this code only shows those pictures above everything, holds the keyboard and
// pointer, and sends the keys typed back to the agent that called Lock.

const BUS_NAME = 'com.velmora.tarvanel.Shell';
const OBJECT_PATH = '/com/velmora/tarvanel/Shell';
const INTERFACE = 'com.velmora.tarvanel.ShellLock';
const VERSION = 1;
const INTERFACE_XML = `<node><interface name="${INTERFACE}">
  <method name="Monitors"><arg type="a(iid)" name="monitors" direction="out"/></method>
  <method name="Lock">
    <arg type="as" name="pictures" direction="in"/><arg type="x" name="endsMs" direction="in"/>
  </method>
  <method name="Update"><arg type="as" name="pictures" direction="in"/></method>
  <method name="Unlock"/>
  <property name="Version" type="u" access="read"/>
  <property name="Locked" type="b" access="read"/>
  <signal name="Key"><arg type="s" name="kind"/><arg type="s" name="text"/></signal>
  <signal name="MonitorsChanged"/>
</interface></node>`;

// The colour under the pictures (the lock view's darkest tone), shown until they are loaded.
function background() {
    if (Clutter.Color) // up to GNOME 46
        return new Clutter.Color({red: 7, green: 8, blue: 12, alpha: 255});
    const [, colour] = Cogl.Color.from_string('#07080cff');
    return colour;
}

// Keypad keys without text (Num Lock off) go by name; the agent knows what they mean.
const KEYPAD_NAMES = new Map([
    [Clutter.KEY_KP_Insert, 'KP_Insert'], [Clutter.KEY_KP_End, 'KP_End'],
    [Clutter.KEY_KP_Down, 'KP_Down'], [Clutter.KEY_KP_Page_Down, 'KP_Page_Down'],
    [Clutter.KEY_KP_Left, 'KP_Left'], [Clutter.KEY_KP_Begin, 'KP_Begin'],
    [Clutter.KEY_KP_Right, 'KP_Right'], [Clutter.KEY_KP_Home, 'KP_Home'],
    [Clutter.KEY_KP_Up, 'KP_Up'], [Clutter.KEY_KP_Page_Up, 'KP_Page_Up'],
]);

function log_(text) {
    log(`Tarvanel lock: ${text}`);
}

function cursorTracker() {
    if (global.backend && global.backend.get_cursor_tracker)
        return global.backend.get_cursor_tracker();
    return Meta.CursorTracker.get_for_display(global.display);
}

// The monitors as the agent should render them: pixel width, pixel height, scale.
function monitorSizes() {
    let logical = false;
    try {
        logical = Meta.is_wayland_compositor() &&
            new Gio.Settings({schema_id: 'org.gnome.mutter'})
                .get_strv('experimental-features').includes('scale-monitor-framebuffer');
    } catch (e) {}
    return Main.layoutManager.monitors.map(m => {
        const f = logical ? m.geometry_scale : 1;
        return [Math.round(m.width * f), Math.round(m.height * f), m.geometry_scale];
    });
}

function imageContent(pixbuf) {
    const content = St.ImageContent.new_with_preferred_size(pixbuf.width, pixbuf.height);
    const format = pixbuf.has_alpha ? Cogl.PixelFormat.RGBA_8888 : Cogl.PixelFormat.RGB_888;
    const args = [pixbuf.read_pixel_bytes(), format, pixbuf.width, pixbuf.height,
        pixbuf.rowstride];
    try {
        content.set_bytes(...args);
    } catch (e) { // GNOME 46 and later want the Cogl context first
        content.set_bytes(global.stage.context.get_backend().get_cogl_context(), ...args);
    }
    return content;
}

// Reads the PNG files off the compositor's thread; resolves to one content per file.
function loadPictures(paths) {
    return Promise.all(paths.map(path => new Promise((resolve, reject) => {
        Gio.File.new_for_path(path).read_async(GLib.PRIORITY_DEFAULT, null, (file, res) => {
            try {
                const stream = file.read_finish(res);
                GdkPixbuf.Pixbuf.new_from_stream_async(stream, null, (s, r) => {
                    try {
                        resolve(imageContent(GdkPixbuf.Pixbuf.new_from_stream_finish(r)));
                    } catch (e) {
                        reject(e);
                    } finally {
                        stream.close(null);
                    }
                });
            } catch (e) {
                reject(e);
            }
        });
    })));
}

// One opaque actor per monitor above everything, with the modal grab.
class Cover {
    constructor(onKey) {
        this._onKey = onKey;
        this._contents = [];
        this._group = new St.Widget({name: 'tarvanelLock', reactive: true, can_focus: true});
        this._group.add_constraint(new Clutter.BindConstraint({
            source: global.stage, coordinate: Clutter.BindCoordinate.ALL,
        }));
        const ui = Main.layoutManager.uiGroup;
        ui.add_child(this._group);
        const raise = () => ui.set_child_above_sibling(this._group, null);
        // 'actor-added' up to GNOME 45, 'child-added' from GNOME 46 on
        this._raiseId = GObject.signal_lookup('child-added', ui.constructor.$gtype)
            ? ui.connect('child-added', raise) : ui.connect('actor-added', raise);
        this._monitorsId = Main.layoutManager.connect('monitors-changed', () => this._build());
        this._group.connect('key-press-event', (actor, event) => this._key(event));
        this._build();
        this._grab = null;
        this._hold();
        // Another client's grab can keep ours from taking the keyboard: ask again each second,
        // and at once when something else takes the key focus (a dialog, the overview).
        this._holdId = GLib.timeout_add_seconds(GLib.PRIORITY_DEFAULT, 1, () => {
            this._hold();
            return GLib.SOURCE_CONTINUE;
        });
        this._soonId = 0;
        this._focusId = global.stage.connect('notify::key-focus', () => {
            if (this._soonId || global.stage.get_key_focus() === this._group) return;
            this._soonId = GLib.idle_add(GLib.PRIORITY_HIGH, () => {
                this._soonId = 0;
                this._hold();
                return GLib.SOURCE_REMOVE;
            });
        });
        this._cursor = cursorTracker();
        this._cursor.set_pointer_visible(false);
    }

    // Ours must be the topmost grab: a dialog or the overview that grabs after us is put
    // under it again (it stays under the cover too), so keys keep coming here.
    _hold() {
        const top = global.stage.get_grab_actor ? global.stage.get_grab_actor() : this._group;
        if (this._grab && this._grab.get_seat_state() === Clutter.GrabState.ALL &&
            top === this._group) {
            if (global.stage.get_key_focus() !== this._group) global.stage.set_key_focus(this._group);
            return;
        }
        if (this._grab) Main.popModal(this._grab);
        this._grab = Main.pushModal(this._group, {actionMode: Shell.ActionMode.NONE});
        const state = this._grab.get_seat_state();
        if (state !== Clutter.GrabState.ALL) log_(`grab holds only ${state}; retrying`);
    }

    _build() {
        this._group.destroy_all_children();
        this._monitors = Main.layoutManager.monitors.map(m => {
            const actor = new Clutter.Actor({
                x: m.x, y: m.y, width: m.width, height: m.height,
                background_color: background(), content_gravity: Clutter.ContentGravity.RESIZE_ASPECT,
            });
            this._group.add_child(actor);
            return actor;
        });
        this._paint();
        Main.layoutManager.uiGroup.set_child_above_sibling(this._group, null);
    }

    _paint() {
        if (this._contents.length === 0) return;
        this._monitors.forEach((actor, i) => actor.set_content(
            this._contents[i % this._contents.length]));
    }

    setContents(contents) {
        this._contents = contents;
        this._paint();
    }

    _key(event) {
        const symbol = event.get_key_symbol();
        let kind = null;
        let text = '';
        if (symbol === Clutter.KEY_Escape) {
            kind = 'Escape';
        } else if (symbol === Clutter.KEY_BackSpace) {
            kind = 'BackSpace';
        } else if (KEYPAD_NAMES.has(symbol)) {
            kind = KEYPAD_NAMES.get(symbol);
        } else {
            const unicode = event.get_key_unicode();
            if (unicode && unicode !== '\0') {
                kind = 'Text';
                text = unicode;
            }
        }
        if (kind) this._onKey(kind, text);
        return Clutter.EVENT_STOP;
    }

    destroy() {
        GLib.source_remove(this._holdId);
        if (this._soonId) GLib.source_remove(this._soonId);
        global.stage.disconnect(this._focusId);
        Main.layoutManager.uiGroup.disconnect(this._raiseId);
        Main.layoutManager.disconnect(this._monitorsId);
        if (this._grab) Main.popModal(this._grab);
        this._cursor.set_pointer_visible(true);
        this._group.destroy();
    }
}

// The bus object: owns the name, keeps at most one cover, watches the agent that holds it.
class LockService {
    constructor() {
        this._cover = null;
        this._owner = null;
        this._watchId = 0;
        this._endTimer = 0;
        this._endsMs = 0;
        this._serial = 0;
        this._dbus = Gio.DBusExportedObject.wrapJSObject(INTERFACE_XML, this);
        this._dbus.export(Gio.DBus.session, OBJECT_PATH);
        this._nameId = Gio.bus_own_name_on_connection(Gio.DBus.session, BUS_NAME,
            Gio.BusNameOwnerFlags.NONE, null, () => log_(`could not own ${BUS_NAME}`));
        this._monitorsId = Main.layoutManager.connect('monitors-changed', () =>
            this._dbus.emit_signal('MonitorsChanged', null));
    }

    get Version() {
        return VERSION;
    }

    get Locked() {
        return this._cover !== null;
    }

    Monitors() {
        return monitorSizes();
    }

    // A second Lock, from the same agent or a restarted one, takes the cover over unbroken.
    // While the agent is on the bus nobody else may take the lock over (and then Unlock).
    LockAsync([pictures, endsMs], invocation) {
        const sender = invocation.get_sender();
        if (this._cover && this._owner && sender !== this._owner) {
            invocation.return_dbus_error(`${INTERFACE}.NotOwner`, 'locked by another caller');
            return;
        }
        const serial = ++this._serial;
        this._setOwner(sender);
        this._endsMs = endsMs;
        if (!this._cover) {
            try {
                this._cover = new Cover((kind, text) => this._forward(kind, text));
            } catch (e) {
                logError(e, 'Tarvanel lock');
                this._release();
                invocation.return_dbus_error(`${INTERFACE}.Failed`, `${e.message}`);
                return;
            }
            this._dbus.emit_property_changed('Locked', new GLib.Variant('b', true));
        }
        this._show(pictures, invocation, serial);
    }

    UpdateAsync([pictures], invocation) {
        if (!this._cover || invocation.get_sender() !== this._owner) {
            invocation.return_dbus_error(`${INTERFACE}.NotLocked`, 'no lock of this caller');
            return;
        }
        this._show(pictures, invocation, ++this._serial);
    }

    // Only the agent that locked may let go; a stranger on the bus is refused.
    UnlockAsync(params, invocation) {
        if (this._cover && invocation.get_sender() !== this._owner) {
            invocation.return_dbus_error(`${INTERFACE}.NotOwner`, 'locked by another caller');
            return;
        }
        this._release();
        invocation.return_value(null);
    }

    _show(pictures, invocation, serial) {
        loadPictures(pictures).then(contents => {
            // A later Lock or Update may have overtaken this one while the files were read.
            if (this._cover && serial === this._serial) this._cover.setContents(contents);
            invocation.return_value(null);
        }).catch(e => {
            invocation.return_dbus_error(`${INTERFACE}.BadPicture`, `${e.message}`);
        });
    }

    _forward(kind, text) {
        if (!this._owner) return;
        // To the agent alone: nobody else on the bus sees what is typed.
        Gio.DBus.session.emit_signal(this._owner, OBJECT_PATH, INTERFACE, 'Key',
            new GLib.Variant('(ss)', [kind, text]));
    }

    _setOwner(owner) {
        this._stopWatching();
        this._owner = owner;
        this._watchId = Gio.bus_watch_name_on_connection(Gio.DBus.session, owner,
            Gio.BusNameWatcherFlags.NONE, null, () => this._ownerGone());
    }

    // The agent is restarted within seconds and locks again; until its end the cover stays.
    _ownerGone() {
        this._stopWatching();
        this._owner = null;
        const left = this._endsMs - Date.now();
        log_(`the agent left the bus; ${left > 0 ? `holding ${Math.ceil(left / 1000)} s more` : 'letting go'}`);
        if (left <= 0) {
            this._release();
            return;
        }
        this._endTimer = GLib.timeout_add(GLib.PRIORITY_DEFAULT, left, () => {
            this._endTimer = 0;
            if (!this._owner) this._release();
            return GLib.SOURCE_REMOVE;
        });
    }

    _stopWatching() {
        if (this._watchId) Gio.bus_unwatch_name(this._watchId);
        this._watchId = 0;
        if (this._endTimer) GLib.source_remove(this._endTimer);
        this._endTimer = 0;
    }

    _release() {
        this._stopWatching();
        this._owner = null;
        this._serial++;
        if (!this._cover) return;
        this._cover.destroy();
        this._cover = null;
        this._dbus.emit_property_changed('Locked', new GLib.Variant('b', false));
    }

    destroy() {
        this._release();
        Main.layoutManager.disconnect(this._monitorsId);
        Gio.bus_unown_name(this._nameId);
        this._dbus.unexport();
    }
}
