#!/bin/sh
# The settings window of the real program on its own Xvfb display, driven over AT-SPI.
# Usage: settings_e2e.sh TARVANEL_BINARY first-run|guardian
# first-run: find a city and start; guardian: set up the code, then end a preview lock with it.
set -u
binary="$1"
scenario="$2"
here="$(cd "$(dirname "$0")" && pwd)"
for tool in Xvfb dbus-run-session /usr/libexec/at-spi-bus-launcher /usr/bin/python3 oathtool xdotool; do
    command -v "$tool" >/dev/null 2>&1 || { echo "skipped: $tool missing"; exit 77; }
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo "skipped: python3-pyatspi missing"; exit 77; }

app=""
scratch="$(mktemp -d)"
trap 'kill $app $server 2>/dev/null; rm -rf "$scratch"' EXIT
. "$here/../support/scratch-display.sh"
scratch_home Europe/London
if [ "$scenario" = guardian ]; then
    # Set up already, so the window opens on request rather than for a first run.
    mkdir -p "$HOME/.tarvanel"
    printf '{"locationName":"London","latitude":51.5074,"longitude":-0.1278}' \
        > "$HOME/.tarvanel/config.json"
    touch "$HOME/.tarvanel/.show-settings"
    # Paused, so that a prayer's lock due while the test runs does not cover the window.
    mkdir -p "$XDG_CONFIG_HOME/com.velmora.tarvanel"
    printf '[General]\npausedUntil=%s\n' "$(date -u -d '+2 days' +%Y-%m-%dT00:00:00.000Z)" \
        > "$XDG_CONFIG_HOME/com.velmora.tarvanel/settings.ini"
fi

start_display

dbus-run-session -- sh -c '
    /usr/libexec/at-spi-bus-launcher --launch-immediately &
    sleep 0.5
    QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 TARVANEL_AGENT=com.velmora.tarvanel \
        "$0" > "$HOME/app.log" 2>&1 &
    app=$!
    /usr/bin/python3 "$1" "$2"
    status=$?
    sleep 1
    kill $app 2>/dev/null
    kill %1 2>/dev/null
    exit $status
' "$binary" "$here/settings_e2e.py" "$scenario"
status=$?
[ $status -eq 0 ] || { cat "$HOME/app.log"; exit $status; }

config="$HOME/.tarvanel/config.json"
case "$scenario" in
first-run)
    /usr/bin/python3 - "$config" <<'PY' || { cat "$HOME/app.log"; exit 1; }
import json, sys
c = json.load(open(sys.argv[1]))
assert c["locationName"] == "Lahore", c
assert abs(c["latitude"] - 31.558) < 0.001 and abs(c["longitude"] - 74.3507) < 0.001, c
assert c["method"] == "Karachi" and c["asrFactor"] == 2, c
PY
    # No tray host on a bare Xvfb: the start is said in the log instead.
    grep -q "running in the background with no tray icon .*Next lock: " "$HOME/app.log" ||
        { cat "$HOME/app.log"; exit 1; }
    ;;
guardian)
    [ -s "$HOME/.tarvanel/.guardian" ] || { echo "no guardian secret saved"; exit 1; }
    grep -q "unlocked after Preview" "$HOME/app.log" || { cat "$HOME/app.log"; exit 1; }
    ;;
esac
echo ok
