#!/usr/bin/env python3
"""`tarvanel --times` in the user's language, from the locale alone: Arabic (with Arabic-Indic
digits), Indonesian (24-hour times with a dot), and C, which must stay exactly the English table.
The tables were checked by hand against the English one: same instants, same Hijri day."""
import os
import subprocess
import sys
import tempfile

binary = sys.argv[1]

ENGLISH = """Tarvanel — London  (Friday 14 March 2025 • 14 Ramadan 1446 AH • Ramadan 🌙)
  Prayer   Waqt      Lock at
  Fajr     4:24 AM   4:19 AM
  Sunrise  6:16 AM   —
  Jumu'ah  12:11 PM  1:25 PM
  Asr      3:19 PM   3:14 PM
  Maghrib  6:05 PM   6:00 PM
  Isha     7:49 PM   7:44 PM
"""

ARABIC = """Tarvanel — London  (\u200fالجمعة، ١٤ مارس ٢٠٢٥ • \u200f١٤ رمضان ١٤٤٦ هـ • رمضان 🌙)
  الصلاة   الوقت     القفل
  الفجر    ٤:٢٤ ص    ٤:١٩ ص
  الشروق   ٦:١٦ ص    —
  الجمعة   ١٢:١١ م   ١:٢٥ م
  العصر    ٣:١٩ م    ٣:١٤ م
  المغرب   ٦:٠٥ م    ٦:٠٠ م
  العشاء   ٧:٤٩ م    ٧:٤٤ م
"""

INDONESIAN = """Tarvanel — London  (Jumat, 14 Maret 2025 • 14 Ramadan 1446 H • Ramadan 🌙)
  Salat    Waktu     Dikunci
  Subuh    04.24     04.19
  Terbit   06.16     —
  Jumat    12.11     13.25
  Asar     15.19     15.14
  Magrib   18.05     18.00
  Isya     19.49     19.44
"""


def times(home, lang):
    env = {k: v for k, v in os.environ.items() if k not in ("LANGUAGE", "LC_ALL", "LC_MESSAGES")}
    env.update(HOME=home, XDG_CONFIG_HOME=home + "/.config", TZ="Europe/London", LANG=lang)
    out = subprocess.run([binary, "--times", "--date", "2025-03-14"], env=env, capture_output=True,
                         text=True, timeout=60)
    return out.stdout


def main():
    faults = []
    with tempfile.TemporaryDirectory() as home:
        os.makedirs(home + "/.tarvanel")
        with open(home + "/.tarvanel/config.json", "w") as f:
            f.write('{"locationName":"London","latitude":51.5074,"longitude":-0.1278}')
        for lang, want in (("C", ENGLISH), ("en_GB.UTF-8", ENGLISH), ("ar_SA.UTF-8", ARABIC),
                           ("id_ID.UTF-8", INDONESIAN)):
            got = times(home, lang)
            if got != want:
                faults.append(f"LANG={lang}:\n--- expected\n{want}--- got\n{got}")
        # The Language choice in Settings wins over the locale.
        os.makedirs(home + "/.config/com.velmora.tarvanel")
        with open(home + "/.config/com.velmora.tarvanel/settings.ini", "w") as f:
            f.write("[General]\nlanguage=id\n")
        if "Subuh" not in times(home, "C"):
            faults.append("language=id in settings.ini did not reach --times under LANG=C")
    for f in faults:
        print("FAIL:", f)
    print(f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
