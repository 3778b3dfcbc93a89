#!/usr/bin/env python3
"""No user-visible text names a macOS facility: neither the built program's nor the files
installed beside it (the unit, the menu entry, the manual page, the AppStream data).

Texts are UTF-16 literals (QStringLiteral) or UTF-8 ones: both kinds are read from the
executable's bytes, then searched for the words."""
import os
import re
import sys

WORDS = ["Dock", "⌘", "Force Quit", "iPhone", "Shortcuts app", "Applications folder",
         "Login Items", "menu bar", "launchctl", "System Settings", "Privacy & Security",
         "Both shortcuts", "Shortcuts missing", "Turn on a Focus", "launchd", "LaunchAgents",
         "plist", "Move to Applications", "to Applications?", "x-apple", "ditto",
         "System Preferences", "Allow in the Background", "Finder", "Gatekeeper", "quarantine"]

DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data")
INSTALLED = ["com.velmora.tarvanel.service", "com.velmora.tarvanel.desktop",
             "com.velmora.tarvanel.metainfo.xml", "tarvanel.1"]


# A UTF-16 text is a run of code units that are printable ASCII, Latin to Cyrillic letters, or
# punctuation, arrows and symbols (U+2000-U+27FF, where ⌘ and the curly quotes are); a UTF-8
# text is a run of printable ASCII and multi-byte characters.
UTF16 = re.compile(rb"(?:[\x20-\x7e]\x00|[\x80-\xff][\x00-\x05]|[\x00-\xff][\x20-\x27]){6,}")
UTF8 = re.compile(rb"(?:[\x20-\x7e]|[\xc2-\xf4][\x80-\xbf]{1,3}){6,}")


def texts(data):
    for encoding, run in (("utf-16-le", UTF16), ("utf-8", UTF8)):
        for hit in run.finditer(data):
            text = hit.group().decode(encoding, "ignore")
            if len(re.findall("[A-Za-z]", text)) >= 3:  # words, not stray bytes
                yield text


def named(found, where):
    failed = False
    for word in WORDS:
        # Whole words only: the debug information carries Qt's addDockWidget and the like.
        pattern = ((r"\b" if word[0].isalnum() else "") + re.escape(word) +
                   (r"\b" if word[-1].isalnum() else ""))
        for text in found:
            if re.search(pattern, text):
                print(f"FAIL: {word!r} in {where}: {text}")
                failed = True
    return failed


def main(path):
    found = list(texts(open(path, "rb").read()))
    # The reading works: a sentence of the Lock section must be among the texts.
    if not any("There's no way to end it early" in t for t in found):
        print("FAIL: the Lock section's text was not found in", path)
        return 1
    failed = named(found, path)
    for name in INSTALLED:
        with open(os.path.join(DATA, name), encoding="utf-8") as f:
            failed = named(f.read().splitlines(), name) or failed
    if not failed:
        print(f"no macOS facility named in {len(found)} texts of {path} nor in {len(INSTALLED)} "
              "installed files")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
