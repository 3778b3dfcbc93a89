#!/usr/bin/env bash
# ctest Trixie.WaylandLockEndToEnd.*: lock_e2e.py in the Debian 13 root, against the program
# built there, on a compositor with the session lock. Exit status 77 (skipped): no mirror.
set -euo pipefail
src="$(cd "${1:?usage: trixie-lock-test.sh SOURCE_DIR sway|labwc attacks|kill}" && pwd)"
root_sh="$src/tests/wayland/trixie-root.sh"
"$root_sh" prepare
"$root_sh" build "$src"
TARVANEL_TRIXIE_SOURCE="$src" "$root_sh" user-run /usr/bin/python3 /src/tests/wayland/lock_e2e.py \
    --compositor "$2" --scenario "$3" --program /build/tarvanel
