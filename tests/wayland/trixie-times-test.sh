#!/usr/bin/env bash
# ctest Trixie.ProgramBuildsAndPrintsTimes: the program builds in the Debian 13 root (Qt 6.8) and,
# run there as the test user, prints London's times. Exit status 77 (skipped): no mirror.
set -euo pipefail
src="$(cd "${1:?usage: trixie-times-test.sh SOURCE_DIR}" && pwd)"
root_sh="$src/tests/wayland/trixie-root.sh"
"$root_sh" prepare
"$root_sh" build "$src"
# shellcheck disable=SC2016 # expanded by the shell inside the root
out="$(TARVANEL_TRIXIE_SOURCE="$src" "$root_sh" user-run TZ=Europe/London sh -c '
    mkdir -p "$HOME/.tarvanel"
    echo "{ \"locationName\": \"London\", \"latitude\": 51.5072, \"longitude\": -0.1276 }" \
        > "$HOME/.tarvanel/config.json"
    exec /build/tarvanel --times --date 2025-03-14')"
echo "$out"
grep -q '^Tarvanel — London' <<<"$out" || { echo "FAIL: no line starting 'Tarvanel — London'"; exit 1; }
grep -q 'Fajr' <<<"$out" || { echo "FAIL: no Fajr"; exit 1; }
