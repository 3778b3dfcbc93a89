#!/bin/sh
# The real program in a pseudo-language on its own Xvfb display, read over AT-SPI: a text
# shown outside the pseudo-language was never marked for translation.
# Usage: pseudo_e2e.sh SOURCE_ROOT TARVANEL_BINARY
set -u
root="$1"
binary="$2"
here="$(cd "$(dirname "$0")" && pwd)"
for tool in Xvfb dbus-run-session /usr/libexec/at-spi-bus-launcher /usr/bin/python3 \
    /usr/lib/qt6/bin/lupdate /usr/lib/qt6/bin/lrelease trayer xdotool xwininfo; do
    command -v "$tool" >/dev/null 2>&1 || { echo "skipped: $tool missing"; exit 77; }
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo "skipped: python3-pyatspi missing"; exit 77; }

scratch="$(mktemp -d)"
trap 'kill $server 2>/dev/null; rm -rf "$scratch"' EXIT
. "$here/../support/scratch-display.sh"
scratch_home Asia/Karachi
unset LC_ALL LC_MESSAGES LANG

start_display

QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 TARVANEL_AGENT=com.velmora.tarvanel \
    dbus-run-session -- sh -c '
    /usr/libexec/at-spi-bus-launcher --launch-immediately &
    sleep 0.5
    /usr/bin/python3 "$0" "$1" "$2"
    status=$?
    kill %1 2>/dev/null
    exit $status
' "$here/pseudo_e2e.py" "$root" "$binary"
status=$?
[ $status -eq 0 ] || { tail -20 "$HOME/app.log"; exit $status; }
echo ok
