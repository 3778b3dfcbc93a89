#!/usr/bin/env bash
# A Debian 13 (trixie) root in which Tarvanel builds (Qt 6.8) and in which headless Wayland
# compositors with ext-session-lock-v1 (sway 1.10, labwc 0.8; Debian 12 has neither) run for tests.
#   trixie-root.sh prepare            create the root and install packages (idempotent)
#   trixie-root.sh build SOURCE_DIR   build SOURCE_DIR inside it (tests off, incremental)
#   trixie-root.sh user-run [VAR=value...] CMD...   run CMD as the test user (see user_run below)
#   trixie-root.sh setup SOURCE_DIR   install every package SOURCE_DIR's scripts/setup.sh lists
# Run as root. ROOT: $TARVANEL_TRIXIE_ROOT or /var/cache/tarvanel/trixie, outside the repository so
# that every clone on the machine shares it. Exit status 77: the mirror cannot be reached.
set -euo pipefail

root="${TARVANEL_TRIXIE_ROOT:-/var/cache/tarvanel/trixie}"
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
self="$here/tests/wayland/trixie-root.sh"
test_user=tarvanel-test
test_uid=4242

# Build only the application (tests off), plus what the Wayland lock backends will need.
build_packages=(cmake g++ make pkg-config ccache qt6-base-dev qt6-multimedia-dev qt6-svg-dev
    qt6-tools-dev qt6-l10n-tools
    libicu-dev libqrencode-dev libical-dev libxcb1-dev libtesseract-dev libleptonica-dev
    libpoppler-qt6-dev libgeonames-dev libwayland-dev wayland-protocols libxkbcommon-dev)
# What tests run: compositors with session lock, screenshots, keys, a reference locker.
run_packages=(sway labwc grim wtype wayland-utils qt6-wayland swaylock tzdata fonts-noto-core
    oathtool python3 dbus-daemon procps foot swaybg sound-theme-freedesktop)

die() { echo "trixie-root: $*" >&2; exit 1; }
[ "$(id -u)" -eq 0 ] || die "run as root (debootstrap, chroot and mounts need it)"

# The mirror apt uses on this host (deb822 .sources or one-line .list), unless given.
mirror() {
    if [ -n "${TARVANEL_TRIXIE_MIRROR:-}" ]; then echo "$TARVANEL_TRIXIE_MIRROR"; return; fi
    local m
    m="$(cat /etc/apt/sources.list /etc/apt/sources.list.d/*.sources /etc/apt/sources.list.d/*.list \
        2>/dev/null | sed -nE 's#^(URIs:[[:space:]]*|deb[[:space:]]+(\[[^]]*\][[:space:]]+)?)([a-z]+://[^[:space:]]*/debian)/?([[:space:]].*)?$#\3#p' \
        | head -n1)"
    echo "${m:-http://deb.debian.org/debian}"
}

# Runs "$self __ns ..." in private mount and pid namespaces: the mounts exist only there and vanish
# with it (even after kill -9), and processes a test leaves behind (compositors) die with it.
in_namespace() { unshare --mount --pid --fork --kill-child --propagation private -- "$self" __ns "$@"; }

# Inside the namespace: mount what programs in the root need, for this one command only.
mounted=()
unmount_all() {
    local i
    for ((i = ${#mounted[@]} - 1; i >= 0; i--)); do umount -l "${mounted[i]}" 2>/dev/null || true; done
}
bind() { # bind [ro] HOSTPATH ROOTPATH
    local ro=""; if [ "$1" = ro ]; then ro=1; shift; fi
    mkdir -p "$root$2"
    mount --bind "$1" "$root$2"; mounted+=("$root$2")
    [ -z "$ro" ] || mount -o remount,bind,ro "$root$2"
}
mount_system() {
    trap unmount_all EXIT
    mount -t proc proc "$root/proc"; mounted+=("$root/proc")  # this pid namespace's own /proc
    bind /sys /sys; bind /dev /dev; bind /dev/pts /dev/pts
    bind /dev/shm /dev/shm  # without it Wayland clients fail: "Failed to allocate buffer"
}

# One build tree per source folder, so worktrees building at once do not share one.
build_dir() { echo "$root/var/lib/tarvanel/build-$(printf %s "$1" | sha1sum | cut -c1-12)"; }

prepare() {
    local marker="$root/var/lib/tarvanel/packages" want
    want="$(printf '%s\n' "${build_packages[@]}" "${run_packages[@]}" | sort)"
    if [ -f "$marker" ] && [ "$(cat "$marker")" = "$want" ]; then return 0; fi
    # One preparation at a time (two clones' first test runs may start together).
    mkdir -p "$(dirname "$root")"; exec 9>"$root.lock"; flock 9
    if [ -f "$marker" ] && [ "$(cat "$marker")" = "$want" ]; then return 0; fi
    command -v debootstrap >/dev/null || {
        DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends debootstrap >&2 ||
            { apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
                --no-install-recommends debootstrap; } >&2
    }
    local m; m="$(mirror)"
    if ! { curl -fsS -m 30 -o /dev/null "$m/dists/trixie/Release" ||
        wget -q -T 30 -O /dev/null "$m/dists/trixie/Release"; } 2>/dev/null; then
        echo "SKIP: the Debian mirror $m cannot be reached (no trixie root)"; exit 77
    fi
    if [ ! -x "$root/usr/bin/apt-get" ] || [ ! -f "$root/var/lib/tarvanel/debootstrapped" ]; then
        # Into a side folder, renamed when complete: a broken run never looks like a root.
        rm -rf "$root.partial"
        echo "trixie-root: debootstrap trixie from $m" >&2
        unshare --mount --propagation private -- \
            debootstrap --variant=minbase trixie "$root.partial" "$m" >&2 ||
            die "debootstrap failed (log: $root.partial/debootstrap/debootstrap.log)"
        mkdir -p "$root.partial/var/lib/tarvanel"; touch "$root.partial/var/lib/tarvanel/debootstrapped"
        rm -rf "$root"; mv "$root.partial" "$root"
        echo "trixie-root: debootstrap took ${SECONDS}s" >&2
    fi
    local t0=$SECONDS
    # No services start inside the root (dbus's postinst would try).
    printf '#!/bin/sh\nexit 101\n' > "$root/usr/sbin/policy-rc.d"; chmod 755 "$root/usr/sbin/policy-rc.d"
    echo "trixie-root: installing packages in $root" >&2
    in_namespace system env DEBIAN_FRONTEND=noninteractive sh -c '
        apt-get update -qq && apt-get install -y -qq --no-install-recommends "$@" >/dev/null &&
        apt-get clean' sh "${build_packages[@]}" "${run_packages[@]}" >&2
    chroot "$root" sh -c "id -u $test_user >/dev/null 2>&1 ||
        useradd -m -u $test_uid -s /bin/bash $test_user"
    printf '%s\n' "$want" > "$marker"
    echo "trixie-root: packages took $((SECONDS - t0))s; $(du -sh --one-file-system "$root" | cut -f1) in $root" >&2
}

ready() { [ -f "$root/var/lib/tarvanel/packages" ] || die "no root at $root: run '$0 prepare'"; }

build() {
    local src="${1:?build SOURCE_DIR}"; src="$(cd "$src" && pwd)"; ready
    local dir; dir="$(build_dir "$src")"; mkdir -p "$dir"
    # One build at a time per tree; nice: the machine is shared with other engineers' builds.
    flock "$dir.lock" "$self" __ns_build "$src" "$dir"
}

# user_run [VAR=value...] CMD...: CMD as $test_user in the root, inside dbus-run-session, with
# HOME and XDG_RUNTIME_DIR fresh empty 0700 folders it owns (tmpfs, gone afterwards), the
# repository read-only at /src ($TARVANEL_TRIXIE_SOURCE or this script's), its build at /build,
# and a host folder $TARVANEL_TRIXIE_OUT, if set, writable at /out. The environment is empty but
# for TARVANEL_* and the VAR=value given; stdin, stdout, stderr and the exit status pass through.
user_run() {
    [ $# -gt 0 ] || die "user-run needs a command"
    ready
    local src="${TARVANEL_TRIXIE_SOURCE:-$here}"; src="$(cd "$src" && pwd)"
    local out="${TARVANEL_TRIXIE_OUT:-}"
    if [ -n "$out" ]; then mkdir -p "$out"; chown "$test_uid:$test_uid" "$out"; out="$(cd "$out" && pwd)"; fi
    in_namespace user "$src" "$(build_dir "$src")" "$out" "$@"
}

ns_main() { # runs inside the namespaces
    local kind="$1"; shift
    mount_system
    case "$kind" in
        system) chroot "$root" "$@" ;;
        setup)
            bind ro "$1" /src
            chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
                TARVANEL_SETUP_NO_BUILD=1 /src/scripts/setup.sh
            ;;
        build)
            local src="$1" dir="$2"
            bind ro "$src" /src; bind "$dir" /build; mkdir -p "$root/var/cache/ccache"
            # shellcheck disable=SC2016 # expanded by the shell inside the root
            chroot "$root" env -i PATH=/usr/bin:/bin LANG=C.UTF-8 CCACHE_DIR=/var/cache/ccache \
                nice -n 10 sh -c '
                [ -f /build/CMakeCache.txt ] || cmake -S /src -B /build -DCMAKE_BUILD_TYPE=RelWithDebInfo \
                    -DTARVANEL_BUILD_TESTS=OFF -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >/build/configure.log 2>&1 ||
                    { cat /build/configure.log; exit 1; }
                cmake --build /build -j"$(nproc)" >/build/build.log 2>&1 || { tail -n 80 /build/build.log; exit 1; }' >&2 ||
                die "build of $src failed (log: $dir/build.log)"
            ;;
        user)
            local src="$1" dir="$2" out="$3"; shift 3
            bind ro "$src" /src
            if [ -d "$dir" ]; then bind ro "$dir" /build; fi
            if [ -n "$out" ]; then bind "$out" /out; fi
            # Fresh and empty for each run, gone afterwards: HOME, XDG_RUNTIME_DIR and /tmp (the
            # session bus's socket, stray X sockets).
            local h="/home/$test_user" x="/run/user/$test_uid" p
            mount -t tmpfs -o mode=1777,size=1g tmpfs "$root/tmp"; mounted+=("$root/tmp")
            for p in "$h" "$x"; do
                mkdir -p "$root$p"
                mount -t tmpfs -o "mode=0700,uid=$test_uid,gid=$test_uid,size=1g" tmpfs "$root$p"
                mounted+=("$root$p")
            done
            local envs=(PATH=/usr/local/bin:/usr/bin:/bin LANG=C.UTF-8 HOME="$h" USER="$test_user"
                LOGNAME="$test_user" SHELL=/bin/bash XDG_RUNTIME_DIR="$x")
            local v
            # TARVANEL_TRIXIE_* are this script's own settings, host paths: not passed on.
            while IFS= read -r v; do envs+=("$v=${!v}"); done < <(compgen -e |
                grep '^TARVANEL_' | grep -v '^TARVANEL_TRIXIE_' || true)
            while [ $# -gt 0 ] && [[ "$1" =~ ^[A-Za-z_][A-Za-z0-9_]*= ]]; do envs+=("$1"); shift; done
            [ $# -gt 0 ] || die "user-run needs a command after the variables"
            # shellcheck disable=SC2016 # expanded by the shell inside the root
            chroot "$root" setpriv --reuid="$test_uid" --regid="$test_uid" --init-groups \
                env -i "${envs[@]}" sh -c 'cd "$HOME" && exec dbus-run-session -- "$@"' sh "$@"
            ;;
    esac
}

case "${1:-}" in
    prepare) prepare ;;
    build) shift; build "$@" ;;
    user-run) shift; user_run "$@" ;;
    setup) shift; ready; in_namespace setup "$(cd "${1:?setup SOURCE_DIR}" && pwd)" ;;
    __ns) shift; ns_main "$@" ;;
    __ns_build) shift; in_namespace build "$@" ;;
    *) sed -n '2,8s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
