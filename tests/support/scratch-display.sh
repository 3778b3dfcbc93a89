# Sourced by the end-to-end scripts: a scratch home and an Xvfb display of their own, under
# the directory in $scratch.

# scratch_home TZ: HOME and the XDG folders inside $scratch, and the time zone.
scratch_home() {
    export HOME="$scratch/home" XDG_CONFIG_HOME="$scratch/home/.config" \
        XDG_DATA_HOME="$scratch/home/.local/share" XDG_RUNTIME_DIR="$scratch/run" TZ="$1"
    mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
}

# start_display: Xvfb on a free display, its pid in $server and DISPLAY set; Qt goes to X11.
start_display() {
    exec 3>"$scratch/displayfd"
    Xvfb -displayfd 3 -screen 0 1280x1000x24 -noreset -nolisten tcp 2>/dev/null &
    server=$!
    for _ in $(seq 100); do [ -s "$scratch/displayfd" ] && break; sleep 0.1; done
    export DISPLAY=":$(cat "$scratch/displayfd")"
    unset QT_QPA_PLATFORM WAYLAND_DISPLAY
}
