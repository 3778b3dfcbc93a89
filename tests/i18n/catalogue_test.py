#!/usr/bin/env python3
"""The catalogues are complete and safe to load.

Each language's catalogue holds every text the sources mark (lupdate on a copy changes nothing),
has no unfinished entry, and keeps each translation's placeholders (%1…%9, %n) those of its
source; a counted text has the number of forms its language needs. Faults are named with their
context and source text."""
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
from pathlib import Path

root = Path(sys.argv[1])
lupdate = sys.argv[2] if len(sys.argv) > 2 else "/usr/lib/qt6/bin/lupdate"
placeholder = re.compile(r"%L?(?:n|[1-9])")


def messages(path):
    for context in ET.parse(path).getroot().iter("context"):
        name = context.findtext("name")
        for m in context.iter("message"):
            yield name, m


def key(name, m):
    return (name, m.findtext("source"), m.findtext("comment") or "")


def check_catalogue(path):
    faults = []
    for name, m in messages(path):
        src = m.findtext("source") or ""
        where = f"{path.name}: {name}: {src!r}"
        t = m.find("translation")
        if t.get("type") in ("unfinished", "vanished", "obsolete"):
            faults.append(f"{where}: {t.get('type') or 'unfinished'}")
            continue
        forms = [f.text or "" for f in t.iter("numerusform")] or [t.text or ""]
        if m.get("numerus") == "yes" and not forms:
            faults.append(f"{where}: no plural forms")
        want = sorted(set(placeholder.findall(src)))
        for form in forms:
            if not form.strip():
                faults.append(f"{where}: empty translation")
            got = sorted(set(placeholder.findall(form)))
            # A language with one form for one may write "one" instead of %n in that form.
            counted = {"%n", "%Ln"}
            if got != want and not (m.get("numerus") == "yes" and set(got) == set(want) - counted):
                faults.append(f"{where}: placeholders {got} in {form!r}, source has {want}")
    return faults


def check_current(ts_files):
    """lupdate on a copy of each catalogue adds and drops nothing."""
    faults = []
    with tempfile.TemporaryDirectory() as tmp:
        for ts in ts_files:
            copy = Path(tmp) / ts.name
            shutil.copy(ts, copy)
            code = ET.parse(ts).getroot().get("language")
            args = [lupdate, "-I", str(root / "src"), "-locations", "none", "-no-obsolete", "-no-ui-lines", "-extensions",
                    "cpp,h", "-silent", "-source-language", "en", "-target-language", code]
            if code == "en":
                args.append("-pluralonly")
            subprocess.run(args + [str(root / "src"), "-ts", str(copy)], check=True)
            before = {key(n, m) for n, m in messages(ts)}
            after = {key(n, m) for n, m in messages(copy)}
            for k in sorted(after - before):
                faults.append(f"{ts.name}: not in the catalogue: {k[0]}: {k[1]!r}")
            for k in sorted(before - after):
                faults.append(f"{ts.name}: no longer in the sources: {k[0]}: {k[1]!r}")
    return faults


def check_the_check():
    """The checks find the faults they are for."""
    bad = """<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS><TS version="2.1" language="fr">
<context><name>Menu</name>
<message><source>Next lock: %1 at %2</source><translation>Prochain : %1</translation></message>
<message><source>Pause</source><translation type="unfinished"></translation></message>
<message numerus="yes"><source>in %n minutes</source><translation>
<numerusform>dans %n minute</numerusform><numerusform>dans %1 minutes</numerusform>
</translation></message>
<message><source>Open</source><translation>Ouvrir</translation></message>
</context></TS>"""
    with tempfile.TemporaryDirectory() as tmp:
        path = Path(tmp) / "tarvanel_fr.ts"
        path.write_text(bad, encoding="utf-8")
        faults = check_catalogue(path)
    expected = ["'Next lock: %1 at %2': placeholders", "'Pause': unfinished",
                "'in %n minutes': placeholders ['%1']"]
    missed = [e for e in expected if not any(e in f for f in faults)]
    return [f"the check misses {e}" for e in missed] + (
        [f"the check finds too much: {faults}"] if len(faults) != len(expected) else [])


def main():
    ts_files = sorted((root / "translations").glob("tarvanel_*.ts"))
    if len(ts_files) < 7:
        print(f"FAIL: expected English and six languages, found {[t.name for t in ts_files]}")
        return 1
    faults = check_the_check() + check_current(ts_files)
    for ts in ts_files:
        faults += check_catalogue(ts)
    for f in faults:
        print("FAIL:", f)
    total = sum(1 for _ in messages(ts_files[0]))
    print(f"{len(ts_files)} catalogues, {total} texts each, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
