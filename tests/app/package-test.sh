#!/usr/bin/env bash
# The Debian package: builds it with ./package (which fails on lint errors), then checks its file
# list and dependencies and runs the unpacked program. ./package compiles through ccache with the
# test build's flags, so after a build it mostly links. TARVANEL_PACKAGE_TEST=0 skips it.
set -euo pipefail
[ "${TARVANEL_PACKAGE_TEST:-1}" != 0 ] || { echo "skipped: TARVANEL_PACKAGE_TEST=0"; exit 77; }
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
mkdir -p "$here/build-package"
# TARVANEL_PACKAGE_DEB checks a package built before instead of building one.
deb="${TARVANEL_PACKAGE_DEB:-$(TARVANEL_PACKAGE_DIR="$here/build-package" "$here/package" | tail -n 1)}"
fail() { echo "FAIL: $*"; exit 1; }

files="$(dpkg-deb -c "$deb" | awk '{print $6}' | sed 's|^\./|/|')"
for f in /usr/bin/tarvanel /usr/libexec/tarvanel/tarvanel-sheet-reader \
    /usr/share/applications/com.velmora.tarvanel.desktop \
    /usr/share/icons/hicolor/scalable/apps/com.velmora.tarvanel.svg \
    /usr/share/icons/hicolor/16x16/apps/com.velmora.tarvanel.png \
    /usr/share/icons/hicolor/256x256/apps/com.velmora.tarvanel.png \
    /usr/lib/systemd/user/com.velmora.tarvanel.service \
    /usr/share/metainfo/com.velmora.tarvanel.metainfo.xml /usr/share/man/man1/tarvanel.1.gz \
    /usr/share/doc/tarvanel/copyright; do
    grep -qx "$f" <<<"$files" || fail "$f is not in the package"
done
depends="$(dpkg-deb -f "$deb" Depends)"
for d in 'libqt6core6(t64)?' 'libicu[0-9]+' tesseract-ocr-eng sound-theme-freedesktop fonts-noto-core; do
    grep -Eq "(^|[ ,])$d( |,|$)" <<<"$depends" || fail "Depends lacks $d: $depends"
done
errors="$(lintian "$deb" | grep -c '^E:' || true)"
[ "$errors" = 0 ] || fail "lintian reports $errors errors"

tree="$(mktemp -d)"
trap 'rm -rf "$tree"' EXIT
dpkg-deb -x "$deb" "$tree/root"
mkdir "$tree/home"
grep -qx "License: GPL-3+" "$tree/root/usr/share/doc/tarvanel/copyright" ||
    fail "the copyright file does not name GPL-3+"
grep -q "<project_license>GPL-3.0-or-later</project_license>" \
    "$tree/root/usr/share/metainfo/com.velmora.tarvanel.metainfo.xml" ||
    fail "the AppStream file does not name GPL-3.0-or-later"
# The About text is a UTF-16 literal in the program.
grep -q "GPL-3.0-or-later" <<<"$(strings -el "$tree/root/usr/bin/tarvanel")" ||
    fail "the About text names no licence"
icon="$tree/root/usr/share/icons/hicolor/48x48/apps/com.velmora.tarvanel.png"
[ "$(identify -format '%m %wx%h' "$icon")" = "PNG 48x48" ] || fail "the 48x48 icon is not a 48x48 PNG"
out="$(HOME="$tree/home" XDG_CONFIG_HOME="$tree/home/.config" TZ=Europe/London \
    "$tree/root/usr/bin/tarvanel" --times --date 2025-03-14)"
grep -q "^Tarvanel — .*(Friday 14 March 2025 • 14 Ramadan 1446 AH • Ramadan 🌙)" <<<"$out" ||
    fail "--times printed: $out"
grep -q "^  Maghrib " <<<"$out" || fail "--times has no Maghrib row: $out"
echo "package test passed: $deb ($(stat -c %s "$deb") bytes)"
