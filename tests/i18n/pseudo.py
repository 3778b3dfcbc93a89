#!/usr/bin/python3
"""A pseudo-language built from the sources, and the check that a shown text is in it.

Every marked text translates to "⟦" + text + "⟧", so a text shown without the brackets was never
marked for translation. Usage as a program: pseudo.py SOURCE_ROOT FOLDER writes
FOLDER/tarvanel_eo.qm."""
import re
import subprocess
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

QT_BIN = Path("/usr/lib/qt6/bin")
OPEN, CLOSE = "⟦", "⟧"


def build(root, folder):
    """lupdate on src/ into an Esperanto catalogue, every form wrapped, then lrelease."""
    folder = Path(folder)
    ts = folder / "tarvanel_eo.ts"
    subprocess.run([QT_BIN / "lupdate", "-locations", "none", "-no-ui-lines", "-extensions",
                    "cpp,h", "-silent", "-source-language", "en", "-target-language", "eo",
                    Path(root) / "src", "-ts", ts], check=True)
    tree = ET.parse(ts)
    count = 0
    for m in tree.getroot().iter("message"):
        source = m.findtext("source") or ""
        t = m.find("translation")
        t.attrib.pop("type", None)
        forms = list(t.iter("numerusform"))
        for f in forms or [t]:
            f.text = OPEN + source + CLOSE
        count += 1
    tree.write(ts, encoding="utf-8", xml_declaration=True)
    subprocess.run([QT_BIN / "lrelease", "-silent", ts, "-qm", folder / "tarvanel_eo.qm"],
                   check=True)
    return count


def literals(path):
    """The string literals of a C++ file, adjacent ones joined, escapes for quotes undone."""
    text = Path(path).read_text(encoding="utf-8")
    joined = re.sub(r'"\s*\n\s*"', "", text)
    found = re.findall(r'"((?:[^"\\\n]|\\.)*)"', joined)
    return [re.sub(r"\\u([0-9a-fA-F]{4})", lambda m: chr(int(m[1], 16)), s).replace('\\"', '"')
            for s in found]


def allowed_phrases(root):
    """What may show outside the brackets: quotes and their sources, the methods' names,
    the program's and the languages' names."""
    src = Path(root) / "src"
    phrases = [s for s in literals(src / "engine/Quotes.cpp") if " " in s]
    methods = re.findall(r'\{"\w+", "([^"]+)", [\d.]+', (src / "engine/CalcMethods.cpp").read_text())
    names = re.findall(r'\{"\w\w", "([^"]+)"\}', (src / "base/Language.cpp").read_text())
    # The desktops and notification daemons the focus scripts are written for.
    extra = ["English", "Tarvanel", "GNOME", "Cinnamon", "MATE", "XFCE", "dunst", "mako"]
    return sorted(set(phrases + methods + names + extra), key=len, reverse=True)


def strip_brackets(text):
    """The text with every bracketed run (brackets may nest, through arguments) taken out."""
    out, depth = [], 0
    for ch in text:
        if ch == OPEN:
            depth += 1
        elif ch == CLOSE and depth:
            depth -= 1
        elif depth == 0:
            out.append(ch)
    return "".join(out)


# Times, numbers with their units, coordinates and paths are the locale's or the user's.
NOT_WORDS = re.compile(r"\d{1,2}:\d\d(\s?[AP]M)?|\S*\d\S*|[~/]\S*/\S*|\b[NSEW]\b")
LATIN_WORD = re.compile(r"[A-Za-z\u00c0-\u024f']{2,}")


def unmarked(text, allowed, places=()):
    """The part of a shown text that was never translated; empty when none is."""
    rest = strip_brackets(text)
    for phrase in list(allowed) + list(places):
        rest = re.sub(r"(?<!\w)" + re.escape(phrase) + r"(?!\w)", " ", rest)
    rest = NOT_WORDS.sub(" ", rest)
    return rest.strip() if LATIN_WORD.search(rest) else ""


if __name__ == "__main__":
    print(build(sys.argv[1], sys.argv[2]), "texts")
