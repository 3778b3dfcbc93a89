# shellcheck shell=bash
# Headless Wayland compositors for tests, to source in bash inside the Debian 13 root as the test
# user (tests/wayland/trixie-root.sh user-run bash -c '. /src/tests/wayland/headless.sh; ...').
#   start_sway [CONFIG_LINE...]  sway 1.10: sets WAYLAND_DISPLAY, SWAYSOCK, COMPOSITOR_PID
#   start_labwc                  labwc 0.8: sets WAYLAND_DISPLAY, COMPOSITOR_PID
#   stop_compositor              ends the one started last
# Both use wlroots' headless backend with the pixman renderer (no GPU, no input devices) and start
# with one output, HEADLESS-1. The socket name is read from what the compositor created in
# XDG_RUNTIME_DIR, never assumed (sway 1.10 makes wayland-1). Logs: $XDG_RUNTIME_DIR/<name>.log.

_headless_env=(WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 WLR_HEADLESS_OUTPUTS=1)

# _wait_new_socket PID BEFORE: the wayland-* socket that appeared since BEFORE (10 s at most).
_wait_new_socket() {
    local pid="$1" before="$2" s i
    for ((i = 0; i < 100; i++)); do
        for s in "$XDG_RUNTIME_DIR"/wayland-*; do
            [ -S "$s" ] || continue
            case " $before " in *" ${s##*/} "*) continue ;; esac
            echo "${s##*/}"; return 0
        done
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.1
    done
    return 1
}

_sockets() { local s; for s in "$XDG_RUNTIME_DIR"/wayland-*; do [ -S "$s" ] && printf '%s ' "${s##*/}"; done; true; }

start_sway() {
    local conf="$XDG_RUNTIME_DIR/sway.conf" before line
    # XWayland off: the root has no Xwayland, and the host's X socket is visible through the
    # shared network namespace (abstract sockets), which would confuse it.
    { echo "xwayland disable"; for line in "$@"; do echo "$line"; done; } > "$conf"
    before="$(_sockets)"
    env "${_headless_env[@]}" sway -c "$conf" > "$XDG_RUNTIME_DIR/sway.log" 2>&1 &
    COMPOSITOR_PID=$!
    WAYLAND_DISPLAY="$(_wait_new_socket "$COMPOSITOR_PID" "$before")" ||
        { cat "$XDG_RUNTIME_DIR/sway.log" >&2; echo "sway did not start" >&2; return 1; }
    # sway names its IPC socket after its uid and pid.
    SWAYSOCK="$XDG_RUNTIME_DIR/sway-ipc.$(id -u).$COMPOSITOR_PID.sock"
    local i; for ((i = 0; i < 50; i++)); do [ -S "$SWAYSOCK" ] && break; sleep 0.1; done
    export WAYLAND_DISPLAY SWAYSOCK COMPOSITOR_PID
}

start_labwc() {
    local dir="$XDG_RUNTIME_DIR/labwc" before
    mkdir -p "$dir"   # an empty config folder: labwc's defaults, no autostart
    before="$(_sockets)"
    env "${_headless_env[@]}" labwc -C "$dir" > "$XDG_RUNTIME_DIR/labwc.log" 2>&1 &
    COMPOSITOR_PID=$!
    WAYLAND_DISPLAY="$(_wait_new_socket "$COMPOSITOR_PID" "$before")" ||
        { cat "$XDG_RUNTIME_DIR/labwc.log" >&2; echo "labwc did not start" >&2; return 1; }
    export WAYLAND_DISPLAY COMPOSITOR_PID
}

stop_compositor() {
    [ -n "${COMPOSITOR_PID:-}" ] || return 0
    kill "$COMPOSITOR_PID" 2>/dev/null || true
    wait "$COMPOSITOR_PID" 2>/dev/null || true
    unset COMPOSITOR_PID WAYLAND_DISPLAY SWAYSOCK
}
