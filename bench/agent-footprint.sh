#!/usr/bin/env bash
# What the idle agent costs: the time from exec to its icon in a tray host, its proportional set
# size once settled, and its CPU over an idle stretch, all on an Xvfb display of its own with
# trayer as the tray host. Also counts the mapped regions of the text-recognition and city
# libraries, which the agent should not carry.
#
#   bench/agent-footprint.sh [path/to/tarvanel]      (default: build/tarvanel)
#   TARVANEL_BENCH_IDLE=120  seconds of idle CPU measured (after a 10 s settle)
#   TARVANEL_BENCH_STARTS=5  starts timed to the tray icon (the median is reported)
#
# Targets: PSS <= 26 MiB, idle CPU <= 0.03 %, exec -> tray icon <= 50 ms.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
bin="$(realpath "${1:-$here/build/tarvanel}")"
idle="${TARVANEL_BENCH_IDLE:-120}"
starts="${TARVANEL_BENCH_STARTS:-5}"
for tool in Xvfb trayer xdotool xwininfo; do
    command -v "$tool" >/dev/null || { echo "$tool missing" >&2; exit 77; }
done

tmp="$(mktemp -d)"
pids=()
cleanup() {
    for p in "${pids[@]}"; do kill "$p" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$tmp"
}
trap cleanup EXIT

Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$tmp/display" 2>/dev/null &
pids+=($!)
for _ in $(seq 400); do [ -s "$tmp/display" ] && break; sleep 0.05; done
export DISPLAY=":$(head -n 1 "$tmp/display")"
unset WAYLAND_DISPLAY QT_QPA_PLATFORM

trayer --edge top --align right --widthtype pixel --width 200 --height 32 >"$tmp/trayer.log" 2>&1 &
pids+=($!)
tray=""
for _ in $(seq 400); do
    # trayer's icons sit in its window named "panel".
    tray="$(xdotool search --class trayer 2>/dev/null | while read -r w; do
        xwininfo -id "$w" | grep -q '"panel"$' && echo "$w"; done | head -n 1 || true)"
    [ -n "$tray" ] && break
    sleep 0.05
done
[ -n "$tray" ] || { echo "trayer did not start on $DISPLAY: $(cat "$tmp/trayer.log")" >&2; exit 1; }

mkdir -p "$tmp/home/.tarvanel" "$tmp/run"
chmod 700 "$tmp/run"
# Idle means no prayer near: a place where the sun is at mid-morning now, about two hours
# after the last reminder could have been and two before the next.
longitude="$(date -u +'%H %M' | awk '{ l = (10 - ($1 + $2 / 60)) * 15
    while (l > 180) l -= 360; while (l < -180) l += 360; printf "%.4f", l }')"
printf '{"locationName": "Bench", "latitude": 21.42, "longitude": %s}\n' "$longitude" \
    >"$tmp/home/.tarvanel/config.json"
agent_env=(env HOME="$tmp/home" XDG_CONFIG_HOME="$tmp/home/.config" XDG_RUNTIME_DIR="$tmp/run"
    TARVANEL_AGENT=com.velmora.tarvanel TZ=UTC)

in_tray() { xwininfo -tree -id "$tray" 2>/dev/null | grep -q '"Tarvanel": ('; }
now_ns() { date +%s%N; }

# One start: the agent's pid on stdout once its icon is in the tray; the time in $tmp/start_ms.
start_agent() {
    local t0 pid
    t0="$(now_ns)"
    "${agent_env[@]}" "$bin" >/dev/null 2>"$tmp/agent.log" &
    pid=$!
    until in_tray; do
        kill -0 "$pid" 2>/dev/null || { echo "the agent ended: $(cat "$tmp/agent.log")" >&2; exit 1; }
        if [ $(( ($(now_ns) - t0) / 1000000 )) -gt 10000 ]; then
            echo "no tray icon after 10 s" >&2
            exit 1
        fi
    done
    echo $(( ($(now_ns) - t0) / 1000 )) >"$tmp/start_us"
    echo "$pid"
}
stop_agent() {
    kill "$1" 2>/dev/null || true
    while kill -0 "$1" 2>/dev/null; do sleep 0.05; done
    # The icon leaves the panel before the next start is timed.
    while in_tray; do sleep 0.05; done
}

times=()
for _ in $(seq "$starts"); do
    pid="$(start_agent)"
    times+=("$(cat "$tmp/start_us")")
    stop_agent "$pid"
done
median_us="$(printf '%s\n' "${times[@]}" | sort -n | sed -n "$(( (starts + 1) / 2 ))p")"

pid="$(start_agent)"
pids+=("$pid")
sleep 10
ticks() { awk '{print $14 + $15}' "/proc/$pid/stat"; }
hz="$(getconf CLK_TCK)"
t0="$(now_ns)"
c0="$(ticks)"
sleep "$idle"
c1="$(ticks)"
t1="$(now_ns)"
pss_kb="$(awk '/^Pss:/ {print $2}' "/proc/$pid/smaps_rollup")"
rss_kb="$(awk '/^Rss:/ {print $2}' "/proc/$pid/smaps_rollup")"
heavy="$(grep -Eci 'tesseract|lept|poppler|geonames' "/proc/$pid/maps" || true)"
uss_kb="$(awk '/^Private_(Clean|Dirty):/ {s += $2} END {print s}' "/proc/$pid/smaps_rollup")"
if grep -q "locked for" "$tmp/agent.log"; then echo "the agent locked while measured" >&2; exit 1; fi

awk -v us="$median_us" -v all="${times[*]}" -v pss="$pss_kb" -v rss="$rss_kb" -v uss="$uss_kb" \
    -v c="$((c1 - c0))" -v hz="$hz" -v ns="$((t1 - t0))" -v heavy="$heavy" -v bin="$bin" 'BEGIN {
    cpu = c / hz / (ns / 1e9) * 100
    printf "agent:               %s\n", bin
    printf "exec -> tray icon:   %.1f ms median (us: %s)   target <= 50 ms\n", us / 1000, all
    printf "idle PSS:            %.1f MiB (private %.1f, RSS %.1f MiB)   target <= 26 MiB\n",
        pss / 1024, uss / 1024, rss / 1024
    printf "idle CPU:            %.4f %% (%d ticks in %.0f s)   target <= 0.03 %%\n", cpu, c, ns / 1e9
    printf "OCR/city maps:       %d regions\n", heavy
}'
