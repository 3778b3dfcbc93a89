#!/usr/bin/env bash
# Checks that the headless compositors of the Debian 13 root do what the lock tests rely on:
# session lock offered, outputs added and removed, screenshots, and a killed locker leaving the
# outputs locked. Runs inside the root as the test user:
#   tests/wayland/trixie-root.sh user-run /src/tests/wayland/trixie-compositors-check.sh
# Screenshots go to /out when the caller gave TARVANEL_TRIXIE_OUT, else they are discarded.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=headless.sh
. "$(dirname "${BASH_SOURCE[0]}")/headless.sh"
shots="$XDG_RUNTIME_DIR"; [ -w /out ] && shots=/out
trap stop_compositor EXIT

fail() { echo "FAIL: $*" >&2; exit 1; }
ok() { echo "ok: $*"; }

# colour OUTPUT: the centre pixel of OUTPUT as "r g b".
colour() {
    grim -t ppm -o "$1" - | python3 -c '
import re, sys
d = sys.stdin.buffer.read()
m = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", d)
w, h = int(m[1]), int(m[2])
i = m.end() + 3 * ((h // 2) * w + w // 2)
print(*d[i:i + 3])'
}
# wait_colour OUTPUT "r g b": true once OUTPUT's centre has that colour (5 s at most).
wait_colour() {
    local i c
    for ((i = 0; i < 50; i++)); do
        c="$(colour "$1")"; [ "$c" = "$2" ] && return 0; sleep 0.1
    done
    echo "centre of $1 is $c, not $2" >&2; return 1
}
# Whole output first: grep -q closing the pipe early would fail wayland-info under pipefail.
has_global() { [[ "$(wayland-info)" == *"'$1'"* ]] || fail "$2 does not offer $1"; }

# A killed locker must leave the outputs locked; a new locker takes the lock over.
check_lock() { # NAME OUTPUT "r g b" expected once the locker is killed
    local desktop; desktop="$(colour "$2")"
    swaylock -c 0000ff & local locker=$!
    wait_colour "$2" "0 0 255" || fail "$1: swaylock did not lock"
    ok "$1: swaylock locked (its blue on $2)"
    kill -9 "$locker"; wait "$locker" 2>/dev/null || true
    wait_colour "$2" "$3" || fail "$1: a killed locker did not leave $2 locked ($3)"
    [ "$3" != "$desktop" ] || fail "$1: the desktop has the colour of the lock ($3)"
    ok "$1: kill -9 of the locker left $2 locked ($3; the desktop was $desktop)"
    grim "$shots/$1-locker-killed.png"
    swaylock -c 00ff00 & locker=$!
    wait_colour "$2" "0 255 0" || fail "$1: a second locker could not take the lock over"
    ok "$1: a second locker took the lock over"
    kill -9 "$locker"; wait "$locker" 2>/dev/null || true
}

start_sway "output HEADLESS-1 resolution 1280x800 background #404040 solid_color"
ok "sway $(sway --version | awk '{print $3}') on $WAYLAND_DISPLAY"
has_global ext_session_lock_manager_v1 sway
ok "sway offers $(wayland-info | grep -o "'ext_session_lock_manager_v1'.*")"
swaymsg -q create_output
[[ "$(swaymsg -t get_outputs -r)" == *'"HEADLESS-2"'* ]] || fail "create_output made no HEADLESS-2"
ok "swaymsg create_output added HEADLESS-2"
swaymsg -q output HEADLESS-2 unplug
sleep 0.3
[[ "$(swaymsg -t get_outputs -r)" == *'"HEADLESS-2"'* ]] && fail "HEADLESS-2 still there after unplug"
ok "swaymsg output HEADLESS-2 unplug removed it"
grim "$shots/sway-desktop.png"; [ -s "$shots/sway-desktop.png" ] || fail "grim wrote nothing"
ok "grim screenshot of sway"
check_lock sway HEADLESS-1 "255 0 0"   # sway paints a lock without its client red
stop_compositor

start_labwc
swaybg -c '#404040' >"$XDG_RUNTIME_DIR/swaybg.log" 2>&1 & # labwc's desktop is black, as is its lock without a locker
ok "labwc $(labwc --version | awk '{print $2}') on $WAYLAND_DISPLAY"
has_global ext_session_lock_manager_v1 labwc
ok "labwc offers $(wayland-info | grep -o "'ext_session_lock_manager_v1'.*")"
output="$(wayland-info | awk '/^[[:space:]]*name: HEADLESS/ && !n++ {print $2}')"
[ -n "$output" ] || fail "labwc: no HEADLESS output in wayland-info"
grim "$shots/labwc-desktop.png"; [ -s "$shots/labwc-desktop.png" ] || fail "grim wrote nothing"
ok "grim screenshot of labwc ($output)"
check_lock labwc "$output" "0 0 0"   # labwc paints a lock without its client black
echo "all compositor checks passed"
