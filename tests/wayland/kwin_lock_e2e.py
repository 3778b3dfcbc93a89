#!/usr/bin/python3
"""The lock under a headless KWin: what a user's keys and D-Bus calls can do to leave it.

Usage: kwin_lock_e2e.py --program TARVANEL --keys KWIN_KEYS [--seconds N] [--report]

Starts a copy of kwin_wayland --virtual with two outputs, a bright window of another program
that notes the keys it gets (key_witness.py), then the program with --test-lock. Once it logs
"Tarvanel: locking with", tries KWin's shortcuts through its fake-input protocol (kwin_keys)
and its D-Bus methods; after each, a screenshot must show the lock on every output and the
other window must have got no key. Then types the guardian's code and expects the program to
end with status 0. --report tries every attempt even after a failure and prints a table.
Run as root, it makes the user tarvanel-test and runs as that user (KWin refuses some things
to root); it always runs in a session bus of its own. Exit 77 when something it needs is
missing, 1 with the reasons on failure.
"""
import argparse
import os
import shutil
import subprocess
import sys
import tempfile
import time

from kwin_session import KWin, locked_looking, need, skip  # noqa: E402 (beside this file)

USER = "tarvanel-test"
SECRET = b"12345678901234567890"

# (what a user does, how): keys for kwin_keys, or a D-Bus call as qdbus arguments.
ATTEMPTS = [
    ("Meta alone", ["super"]),
    ("Alt+Tab", ["alt+tab"]),
    ("Alt+Shift+Tab", ["alt+shift+tab"]),
    ("Alt+F4", ["alt+f4"]),
    ("Ctrl+F2 (desktop 2)", ["ctrl+f2"]),
    ("Ctrl+F1 (desktop 1)", ["ctrl+f1"]),
    ("Ctrl+F3", ["ctrl+f3"]),
    ("Ctrl+F4", ["ctrl+f4"]),
    ("Ctrl+Alt+Right", ["ctrl+alt+right"]),
    ("Ctrl+Alt+Left", ["ctrl+alt+left"]),
    ("Meta+W (overview)", ["super+w"]),
    ("Ctrl+F8 (desktop grid)", ["ctrl+f8"]),
    ("Ctrl+F9 (present windows)", ["ctrl+f9"]),
    ("Ctrl+F10 (present all)", ["ctrl+f10"]),
    ("Meta+D (show desktop)", ["super+d"]),
    ("Alt+F3 (window menu)", ["alt+f3"]),
    ("Alt+Space (KRunner)", ["alt+space"]),
    ("Meta+L (KWin's lock)", ["super+l"]),
    ("D-Bus setCurrentDesktop 2", ["dbus", "/KWin", "org.kde.KWin.setCurrentDesktop", "2"]),
    ("D-Bus nextDesktop", ["dbus", "/KWin", "org.kde.KWin.nextDesktop"]),
    ("D-Bus showDesktop", ["dbus", "/KWin", "org.kde.KWin.showDesktop", "true"]),
]


def as_test_user(args):
    """Root: runs this script again as USER, with copies every user can read."""
    if subprocess.run(["id", USER], capture_output=True).returncode != 0:
        subprocess.run(["useradd", "-m", USER], check=True)
    work = tempfile.mkdtemp(prefix="kwin-e2e-")
    os.chmod(work, 0o755)
    here = os.path.dirname(os.path.abspath(__file__))
    for name in ("kwin_lock_e2e.py", "kwin_session.py", "key_witness.py"):
        shutil.copy(os.path.join(here, name), work)
    shutil.copy(args.program, os.path.join(work, "tarvanel"))
    shutil.copy(args.keys, os.path.join(work, "kwin_keys"))
    for name in os.listdir(work):
        os.chmod(os.path.join(work, name), 0o755)
    command = ["runuser", "-u", USER, "--", "/usr/bin/python3",
               os.path.join(work, "kwin_lock_e2e.py"),
               "--program", os.path.join(work, "tarvanel"),
               "--keys", os.path.join(work, "kwin_keys"), "--seconds", str(args.seconds)]
    if args.report:
        command.append("--report")
    try:
        return subprocess.run(command, cwd="/").returncode
    finally:
        shutil.rmtree(work, ignore_errors=True)


def totp():
    return subprocess.run(["oathtool", "--totp", SECRET.hex()], capture_output=True, text=True,
                          check=True).stdout.strip()


def run(args):
    failures = []
    rows = []
    with KWin(outputs=2) as kwin:
        kwin.write_guardian(SECRET)
        kwin.qdbus("/VirtualDesktopManager",
                   "org.kde.KWin.VirtualDesktopManager.createDesktop", "1", "Two")
        witness = kwin.start_witness(os.path.join(os.path.dirname(os.path.abspath(__file__)),
                                                  "key_witness.py"))
        def witness_hears():  # keyboard focus comes a moment after the window maps
            kwin.keys(args.keys, "a")
            return kwin.wait(lambda: "a" in witness.keys(), 0.5)
        if not kwin.wait(witness_hears, 10):
            return ["the witness window got no key before the lock: the test cannot see keys"]
        shot = kwin.screenshot()
        if locked_looking(shot, kwin.output_rect(shot, 0)):
            return ["the screen looked locked before the lock: the test cannot tell"]
        outputs = kwin.output_count(shot)
        print("outputs: %d (%dx%d screenshot)" % (outputs, shot.width, shot.height))

        program = kwin.start_program(args.program, ["--test-lock", str(args.seconds)])
        if not program.wait_log("Tarvanel: locking with", 20):
            return ["no \"locking with\" line: " + program.log()]
        logged = time.monotonic()
        line = [x for x in program.log().splitlines() if "locking with" in x][0]
        print(line)

        def uncovered():
            s = kwin.screenshot()
            return not locked_looking(s, kwin.output_rect(s, 0))

        def all_locked():
            s = kwin.screenshot()
            return all(locked_looking(s, kwin.output_rect(s, i)) for i in range(outputs))
        if not kwin.wait(all_locked, 15, step=0):
            return ["the outputs never all looked locked"]
        print("every output looked locked %.1f s after the \"locking with\" line (screenshots "
              "lag about %.1f s)" % (time.monotonic() - logged, kwin.shot_seconds))

        for name, how in ATTEMPTS:
            before = len(witness.keys())
            desktop = kwin.qdbus("/KWin", "org.kde.KWin.currentDesktop")
            if how[0] == "dbus":
                kwin.qdbus(*how[1:])
            else:
                kwin.keys(args.keys, *how)
            time.sleep(0.8)  # effects animate in; a switch slides
            s = kwin.screenshot()
            covered = [locked_looking(s, kwin.output_rect(s, i)) for i in range(outputs)]
            got = witness.keys()[before:]
            now = kwin.qdbus("/KWin", "org.kde.KWin.currentDesktop")
            effect = []
            if not all(covered):
                effect.append("output %s uncovered" % ",".join(
                    str(i) for i, c in enumerate(covered) if not c))
                s.save(os.path.join(kwin.dir, "uncovered-%d.ppm" % len(rows)))
            if got:
                effect.append("other window got " + "+".join(got))
            if now != desktop:
                effect.append("desktop %s -> %s" % (desktop, now))
            if not program.running():
                effect.append("program ended: " + program.log()[-300:])
            rows.append((name, "; ".join(effect) or "nothing"))
            print("%s: %s" % rows[-1], flush=True)
            # A desktop change alone is harmless while every output stays covered.
            if not all(covered) or got or not program.running():
                failures.append("%s: %s" % (name, rows[-1][1]))
                if not args.report:
                    break
            kwin.keys(args.keys, "escape")  # closes an effect or menu a failure left open

        if args.report or not failures:
            if not program.running():
                failures.append("the program was not running when the code was to be typed")
            else:
                # A code typed across the end of its 30 s step would be refused.
                while time.time() % 30 > 26:
                    time.sleep(0.5)
                kwin.keys(args.keys, "-d", "40", *list(totp()))
                status = program.finish(15)
                rows.append(("guardian's code", "program exited %s" % status))
                if status != 0:
                    failures.append("the guardian's code did not end the lock (status %s): %s"
                                    % (status, program.log()[-500:]))
                elif kwin.wait(uncovered, 10, step=0):
                    rows.append(("after the code", "the other window shows again"))
                else:
                    failures.append("the outputs still looked locked after the program ended")
    if args.report:
        width = max(len(r[0]) for r in rows)
        for name, effect in rows:
            print("%-*s  %s" % (width, name, effect))
    return failures


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--keys", required=True)
    parser.add_argument("--seconds", type=int, default=120)
    parser.add_argument("--report", action="store_true")
    parser.add_argument("--inner", action="store_true", help=argparse.SUPPRESS)
    args = parser.parse_args()
    sys.stdout.reconfigure(line_buffering=True)
    for tool in ("kwin_wayland", "spectacle"):
        need(tool, tool)
    need("dbus-run-session", "dbus-run-session")
    need("convert", "convert (imagemagick)")
    need("oathtool", "oathtool")
    need("qdbus", "qdbus (qdbus-qt5)")
    if subprocess.run(["/usr/bin/python3", "-c", "import gi; gi.require_version('Gtk', '3.0')"],
                      capture_output=True).returncode != 0:
        skip("python3-gi with GTK 3 is not installed (the witness window needs it)")
    for path in (args.program, args.keys):
        if not os.access(path, os.X_OK):
            skip(path + " is not built")
    if os.geteuid() == 0:
        if shutil.which("runuser") is None:
            skip("runuser is not installed")
        sys.exit(as_test_user(args))
    if not args.inner:
        command = ["dbus-run-session", "--", "/usr/bin/python3", os.path.abspath(__file__),
                   "--inner"] + sys.argv[1:]
        sys.exit(subprocess.run(command).returncode)
    failures = run(args)
    for f in failures:
        print("kwin_lock_e2e: " + f, file=sys.stderr)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
