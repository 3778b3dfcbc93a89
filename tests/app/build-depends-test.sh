#!/usr/bin/env bash
# Every build dependency in debian/control is installed by scripts/setup.sh, so that ./package
# works on a machine that ./test has set up. Versions, architecture and profile qualifiers are
# dropped; of alternatives ("a | b") one must be in the set-up; debhelper-compat is debhelper's
# own and is left out.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
control="${1:-$here/debian/control}"
setup="${2:-$here/scripts/setup.sh}"

# The Build-Depends field with its continuation lines, one dependency a line.
depends="$(awk '/^Build-Depends:/ { on = 1; sub(/^Build-Depends:/, ""); print; next }
                on && /^[ \t]/ { print; next } { on = 0 }' "$control" |
    tr '\n' ' ' | tr ',' '\n' |
    sed -e 's/([^)]*)//g' -e 's/\[[^]]*\]//g' -e 's/<[^>]*>//g' -e 's/:[a-z]*//g' \
        -e 's/[[:space:]]\+/ /g' -e 's/^ //' -e 's/ $//' | grep -v '^$' || true)"
[ -n "$depends" ] || { echo "FAIL: no Build-Depends in $control"; exit 1; }

# The names in setup.sh's packages=( ... ) list (and any packages+=( ... )), comments dropped.
installed=" $(awk '/^[ \t]*packages\+?=\(/ { on = 1; sub(/.*\(/, "") }
                   on { line = $0; sub(/#.*/, "", line); if (sub(/\).*/, "", line)) on = 0;
                        print line }' "$setup" | tr -s ' \t\n' ' ') "
[ "$installed" != "  " ] || { echo "FAIL: no packages list in $setup"; exit 1; }

missing=()
while IFS= read -r dependency; do
    found=0
    for name in ${dependency//|/ }; do
        [ "$name" = debhelper-compat ] && found=1
        [[ "$installed" == *" $name "* ]] && found=1
    done
    [ "$found" = 1 ] || missing+=("$dependency")
done <<<"$depends"
if [ ${#missing[@]} -gt 0 ]; then
    echo "FAIL: build dependencies scripts/setup.sh does not install: ${missing[*]}"
    exit 1
fi
echo "all $(wc -l <<<"$depends") build dependencies are in scripts/setup.sh"
