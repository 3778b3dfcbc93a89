#!/usr/bin/env bash
# Refreshes the catalogues in translations/ from the sources: new texts arrive unfinished, texts
# gone from the sources are dropped. The English catalogue holds only counted texts (their
# singular forms). Run after changing a user-visible text; the build compiles the catalogues.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
lupdate=/usr/lib/qt6/bin/lupdate
[ -x "$lupdate" ] || lupdate="$(command -v lupdate6 || command -v lupdate)"
cd "$here"
common=(-I src -locations none -no-obsolete -no-ui-lines -extensions cpp,h -silent)
for ts in translations/tarvanel_*.ts; do
    code="${ts#translations/tarvanel_}"; code="${code%.ts}"
    if [ "$code" = en ]; then
        "$lupdate" "${common[@]}" -pluralonly -source-language en -target-language en src -ts "$ts"
    else
        "$lupdate" "${common[@]}" -source-language en -target-language "$code" src -ts "$ts"
    fi
done
