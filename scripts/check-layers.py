#!/usr/bin/env python3
"""Fails when an include in src/ runs against the layers.

Each folder of src/ is one library, declared in its CMakeLists.txt with
tarvanel_library(<name> USES <folders>...). A folder may include its own headers and those of
the folders it names, and it may only name folders below it in LAYERS.
Usage: check-layers.py SRC_DIR
"""
import pathlib
import re
import sys

# Lowest first. Folders on one line are side by side: neither may use the other.
LAYERS = [
    ["base"],
    ["engine"],
    ["timetable", "guardian"],
    ["records"],
    ["integrations", "settings"],
    ["platform"],
    ["menubar"],
    ["lock"],
    ["app", "ocr"],
    ["desktop"],
]
RANK = {folder: rank for rank, line in enumerate(LAYERS) for folder in line}
INCLUDE = re.compile(r'^\s*#\s*include\s+"(([a-z]+)/[^"]+)"', re.M)
LIBRARY = re.compile(r"tarvanel_library\(\s*(\w+)([^)]*)\)", re.S)
KEYWORDS = {"USES", "SOURCES", "LINKS"}


def declared_uses(cmake_text):
    """{library: [used folders]} from the tarvanel_library calls in one CMakeLists.txt."""
    found = {}
    for match in LIBRARY.finditer(re.sub(r"#[^\n]*", "", cmake_text)):
        uses, section = [], None
        for word in match.group(2).split():
            if word in KEYWORDS:
                section = word
            elif section == "USES":
                uses.append(word)
        found[match.group(1)] = uses
    return found


def problems(src):
    src = pathlib.Path(src)
    out = []
    folders = sorted(p.name for p in src.iterdir() if (p / "CMakeLists.txt").is_file())
    for folder in folders:
        if folder not in RANK:
            out.append(f"src/{folder}: a folder the layers do not place")
            continue
        uses = declared_uses((src / folder / "CMakeLists.txt").read_text()).get(folder)
        if uses is None:
            out.append(f"src/{folder}/CMakeLists.txt: no tarvanel_library({folder} …)")
            continue
        for used in uses:
            if used not in RANK:
                out.append(f"src/{folder} uses {used}, a folder the layers do not place")
            elif RANK[used] >= RANK[folder]:
                out.append(f"src/{folder} uses {used}, which is not below it")
        allowed = set(uses) | {folder}
        for path in sorted((src / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            text = path.read_text(errors="replace")
            for match in INCLUDE.finditer(text):
                header, target = match.group(1), match.group(2)
                if target in RANK and target not in allowed:
                    line = text.count("\n", 0, match.start()) + 1
                    out.append(f"{path.relative_to(src.parent)}:{line}: includes {header}, "
                               f"but {folder} does not use {target}")
    return out


if __name__ == "__main__":
    found = problems(sys.argv[1] if len(sys.argv) > 1 else "src")
    for line in found:
        print(line, file=sys.stderr)
    if found:
        print(f"{len(found)} include(s) against the layers", file=sys.stderr)
    sys.exit(1 if found else 0)
