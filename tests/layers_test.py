#!/usr/bin/env python3
"""The layer check passes on the tree and catches each way an include can run against the layers."""
import pathlib
import shutil
import subprocess
import sys
import tempfile

root = pathlib.Path(sys.argv[1])
check = root / "scripts" / "check-layers.py"
failures = []


def run(src):
    r = subprocess.run([sys.executable, str(check), str(src)], capture_output=True, text=True)
    return r.returncode, r.stderr


def expect(name, cond, detail=""):
    if not cond:
        failures.append(f"{name}: {detail}")


code, err = run(root / "src")
expect("the tree follows the layers", code == 0, err)

with tempfile.TemporaryDirectory() as tmp:
    src = pathlib.Path(tmp) / "src"
    shutil.copytree(root / "src", src)
    schedule = src / "engine" / "Schedule.h"
    lines = schedule.read_text().count("\n")
    with schedule.open("a") as f:
        f.write('#include "lock/AppDelegate.h"\n')
    cmake = src / "integrations" / "CMakeLists.txt"
    cmake.write_text(cmake.read_text().replace("USES base engine", "USES base engine lock", 1))
    guardian = src / "guardian" / "CMakeLists.txt"
    guardian.write_text(guardian.read_text().replace("USES base engine", "USES base engine timetable", 1))
    # A folder's own headers and those of folders it uses stay allowed.
    (src / "lock" / "Extra.cpp").write_text('#include "lock/Presence.h"\n#include "engine/Config.h"\n')
    (src / "widgets").mkdir()
    (src / "widgets" / "CMakeLists.txt").write_text("tarvanel_library(widgets SOURCES A.cpp)\n")

    code, err = run(src)
    expect("a wrong include fails the check", code == 1, err)
    expect("the upward include is named with its line",
           f"engine/Schedule.h:{lines + 1}: includes lock/AppDelegate.h, but engine does not use lock" in err, err)
    expect("a folder that uses one above it is named", "src/integrations uses lock, which is not below it" in err, err)
    expect("folders side by side may not use each other",
           "src/guardian uses timetable, which is not below it" in err, err)
    expect("a folder the layers do not place is named", "src/widgets: a folder the layers do not place" in err, err)
    expect("allowed includes are not reported", "Extra.cpp" not in err, err)
    expect("exactly the four faults", err.strip().endswith("4 include(s) against the layers"), err)

for f in failures:
    print("FAIL", f)
print("layers: all checks passed" if not failures else f"layers: {len(failures)} failed")
sys.exit(1 if failures else 0)
