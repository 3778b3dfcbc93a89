#!/usr/bin/env python3
"""No user-visible text of the built program names a macOS facility.

Texts are UTF-16 literals (QStringLiteral) or UTF-8 ones: both kinds are read from the
executable's bytes, then searched for the words."""
import re
import sys

WORDS = ["Dock", "⌘", "Force Quit", "iPhone", "Shortcuts app", "Applications folder",
         "Login Items", "menu bar", "launchctl", "System Settings", "Privacy & Security",
         "Both shortcuts", "Shortcuts missing", "Turn on a Focus"]


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


def main(path):
    found = list(texts(open(path, "rb").read()))
    # The reading works: a sentence of the Lock section must be among the texts.
    if not any("There's no way to end it early" in t for t in found):
        print("FAIL: the Lock section's text was not found in", path)
        return 1
    failed = False
    for word in WORDS:
        # "Dock" as a word only: the debug information carries Qt's addDockWidget and the like.
        pattern = r"\bDock\b" if word == "Dock" else re.escape(word)
        for text in found:
            if re.search(pattern, text):
                print(f"FAIL: {word!r} in: {text}")
                failed = True
    if not failed:
        print(f"no macOS facility named in {len(found)} texts of {path}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
