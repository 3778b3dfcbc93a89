#!/usr/bin/env bash
# Shared by ./run and ./test: install missing Debian packages, configure once, build incrementally.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${TARVANEL_BUILD_DIR:-$here/build}"

packages=(
    cmake g++ make pkg-config ccache git build-essential
    qt6-base-dev qt6-multimedia-dev libicu-dev libqrencode-dev libical-dev khal
    gstreamer1.0-plugins-good sound-theme-freedesktop fonts-noto-core fonts-noto-color-emoji tzdata
    fonts-dejavu-core fonts-dejavu-extra fonts-urw-base35
    libxcb1-dev libwayland-dev wayland-protocols libxkbcommon-dev
    libtesseract-dev libleptonica-dev tesseract-ocr-eng libpoppler-qt6-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    libgeonames-dev
    qt6-svg-dev qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
    python3 python3-pyatspi at-spi2-core dbus-daemon
    xvfb x11-xserver-utils x11-apps x11-utils xdotool trayer openbox faketime oathtool zbar-tools imagemagick
    sway grim wtype wayland-utils qt6-wayland swaylock foot
    kwin-wayland kde-spectacle qtwayland5 qdbus-qt5 libkf5globalaccel-bin plasma-wayland-protocols
    plasma-framework milou qml-module-org-kde-kirigami2 qml-module-qtgraphicaleffects
    qml-module-org-kde-kquickcontrolsaddons python3-gi gir1.2-gtk-3.0
    clang libclang-rt-dev
    dbus-daemon desktop-file-utils systemd
    debhelper dpkg-dev fakeroot lintian appstream librsvg2-bin
    gnome-shell gnome-screenshot xwayland qt6-wayland tesseract-ocr
    pipewire wireplumber gstreamer1.0-pipewire gstreamer1.0-tools
)

# One query for the whole list; "ii" (or "hi", held) is installed.
declare -A installed=()
while read -r status name; do
    [[ "$status" == ?i ]] && installed[$name]=1
done < <(dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for p in "${packages[@]}"; do
    [ -n "${installed[$p]:-}" ] || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}" >&2
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get update -qq >&2
    $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
fi

# ./package needs the packages only; it builds in a tree of its own.
[ "${TARVANEL_SETUP_NO_BUILD:-0}" = 1 ] && exit 0

if [ ! -f "$build/CMakeCache.txt" ]; then
    # The Debian package's compiler flags, through ccache: the program tested is the program
    # packaged, and ./package reuses these objects instead of compiling everything again.
    options="$(TARVANEL_CCACHE=1 make -s -f "$here/debian/rules" \
        --eval 'tarvanel-maint-options: ; @echo $(DEB_BUILD_MAINT_OPTIONS)' tarvanel-maint-options)"
    flags() { DEB_BUILD_MAINT_OPTIONS="$options" dpkg-buildflags --get "$1"; }
    CFLAGS="$(flags CFLAGS) $(flags CPPFLAGS)" CXXFLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS)" \
        LDFLAGS="$(flags LDFLAGS)" cmake -S "$here" -B "$build" -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_C_COMPILER_LAUNCHER="$here/scripts/ccache-launcher" \
        -DCMAKE_CXX_COMPILER_LAUNCHER="$here/scripts/ccache-launcher" >&2
fi
# Quiet when it works; the whole log when it does not.
# TARVANEL_SETUP_TARGET builds one target only (./run: the program).
if ! cmake --build "$build" -j"$(nproc)" ${TARVANEL_SETUP_TARGET:+--target "$TARVANEL_SETUP_TARGET"} \
    > "$build/build.log" 2>&1; then
    cat "$build/build.log" >&2
    echo "Build failed (log: $build/build.log)" >&2
    exit 1
fi
