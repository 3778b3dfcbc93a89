#!/usr/bin/python3
"""The real program in a pseudo-language, read as a screen reader reads it.

Usage: pseudo_e2e.py SOURCE_ROOT TARVANEL_BINARY, on a display and session bus with AT-SPI.
Runs the question a copy outside the login service asks, the first-run settings window (a city
found, every part scrolled to, the About box and the guardian's set-up), the tray menu in a tray
host's panel, a test lock and a test reminder, and reads every showing control's name,
description and label text. Exit status 1 with each text shown outside the pseudo-language."""
import os
import re
import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

import pseudo

root, binary = sys.argv[1], sys.argv[2]
PLACES = ["Lahore", "Pakistan", "Punjab"]
allowed = pseudo.allowed_phrases(root)
found = {}  # unmarked text → where it was seen
read_count = {}  # where → texts read there


def wait(what, find, timeout=15.0):
    end = time.time() + timeout
    while time.time() < end:
        got = find()
        if got:
            return got
        time.sleep(0.1)
    print(f"pseudo_e2e: timed out waiting for {what}", file=sys.stderr)
    sys.exit(1)


def application():
    """The running program's accessible, once it has a window."""
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        a = desktop.getChildAtIndex(i)
        if a is not None and a.get_process_id() == running.pid and a.childCount:
            return a
    return None


def find(a, text, roles=None):
    """A control named `text` in the pseudo-language, or as it is while still unmarked."""
    names = {pseudo.OPEN + text + pseudo.CLOSE, text}
    return pyatspi.findDescendant(a, lambda n: n is not None and n.name in names and (
        roles is None or n.getRole() in roles), breadth_first=True)


def press(node):
    action = node.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    for wanted in ("Press", "press", "click", "Toggle"):
        if wanted in names:
            return action.doAction(names.index(wanted))
    return action.doAction(0)


def texts(node):
    shown = [node.name or "", node.description or ""]
    if node.getRole() in (pyatspi.ROLE_LABEL, pyatspi.ROLE_STATIC):
        try:
            shown.append(node.queryText().getText(0, -1))
        except NotImplementedError:
            pass
    return shown


def read(a, where, hidden=False):
    """Records every unmarked text of the showing controls under `a` (`hidden`: of them all,
    as for a menu's closed submenus)."""
    def visit(node, depth):
        if node is None or depth > 40:
            return
        states = node.getState()
        if not (hidden or states.contains(pyatspi.STATE_VISIBLE) or
                node.getRole() == pyatspi.ROLE_FRAME):
            return
        editable = states.contains(pyatspi.STATE_EDITABLE)  # the user's own typing
        for text in ([] if editable else texts(node)):
            read_count[where] = read_count.get(where, 0) + bool(text)
            rest = pseudo.unmarked(text, allowed, PLACES)
            if rest:
                found.setdefault(text, f"{where}, {node.getRoleName()}")
        for i in range(node.childCount):
            visit(node.getChildAtIndex(i), depth + 1)
    for i in range(a.childCount):
        visit(a.getChildAtIndex(i), 0)


def scroll_through(a, where):
    bars = pyatspi.findAllDescendants(a, lambda n: n.getRole() == pyatspi.ROLE_SCROLL_BAR)
    for bar in bars:
        value = bar.queryValue()
        low, high = value.minimumValue, value.maximumValue
        for step in range(5):
            value.currentValue = low + (high - low) * step / 4
            time.sleep(0.2)
            read(a, where)


def start(*args, env=None):
    global running
    running = subprocess.Popen([binary, *args], stdout=log, stderr=subprocess.STDOUT, env=env)
    return running


def stop(app):
    app.terminate()
    try:
        app.wait(5)
    except subprocess.TimeoutExpired:
        app.kill()
        app.wait()


def first_run():
    app = start()
    a = wait("the first-run window", application)
    city = wait("the City field", lambda: find(a, "City", (pyatspi.ROLE_TEXT,)))
    read(a, "first run")
    city.queryEditableText().setTextContents("Lahore")
    press(wait("the Find button", lambda: find(a, "Find", (pyatspi.ROLE_PUSH_BUTTON,))))
    wait("Lahore found", lambda: pyatspi.findDescendant(
        a, lambda n: n is not None and "Lahore" in (n.name or "") and
        n.getRole() == pyatspi.ROLE_LABEL))
    read(a, "first run, a city found")
    scroll_through(a, "first run, scrolled")

    about = wait("the About item", lambda: find(a, "About Tarvanel", (pyatspi.ROLE_MENU_ITEM,)))
    # The box is modal: the press is answered only once it closes.
    pyatspi.setTimeout(1500, 15000)
    try:
        press(about)
    except GLib.Error:
        pass
    pyatspi.setTimeout(25000, 15000)
    box = wait("the About box", lambda: find(a, "About Tarvanel", (
        pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT, pyatspi.ROLE_FRAME, pyatspi.ROLE_WINDOW)))
    read(box, "About box")
    press(wait("the About box's button", lambda: pyatspi.findDescendant(
        box, lambda n: n is not None and n.getRole() == pyatspi.ROLE_PUSH_BUTTON)))
    time.sleep(0.3)
    press(wait("the guardian button", lambda: find(a, "Set Up Guardian Code…")))
    wait("the guardian set-up", lambda: find(a, "Key", (pyatspi.ROLE_TEXT,)))
    read(a, "guardian set-up")
    stop(app)


def hand_off():
    """The question a copy started from outside the login service asks before installing."""
    app = start(env={k: v for k, v in os.environ.items() if k != "TARVANEL_AGENT"})
    a = wait("the hand-off question", application)
    wait("its buttons", lambda: pyatspi.findDescendant(
        a, lambda n: n is not None and n.getRole() == pyatspi.ROLE_PUSH_BUTTON))
    read(a, "hand-off")
    stop(app)


def menu():
    """The tray menu, opened with a click on the icon in a tray host's panel."""
    os.makedirs(os.path.join(os.environ["HOME"], ".tarvanel"), exist_ok=True)
    with open(os.path.join(os.environ["HOME"], ".tarvanel/config.json"), "w") as f:
        f.write('{"locationName":"Lahore","latitude":31.558,"longitude":74.3507}')
    app = start()
    tray = subprocess.Popen(["trayer", "--edge", "top", "--align", "right", "--widthtype",
                             "pixel", "--width", "200", "--height", "32"])
    try:
        windows = lambda: subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True,
                                         text=True).stdout
        wait("the icon in the panel", lambda: re.search(
            r'\("panel" "trayer"\).*(\n.*){0,8}"tarvanel"', windows()))
        # A popup is no child of the application's accessible: the menu is reached through the
        # item the keyboard focuses.
        focused = []
        listener = lambda event: focused.append(event.source)
        pyatspi.Registry.registerEventListener(listener, "object:state-changed:focused")

        def menu_item():
            # A click on the icon opens the menu (a Tarvanel window 100 px square or more), and
            # a click while it is open would close it.
            if not re.search(r'"tarvanel" "Tarvanel"\)\s+\d{3,}x\d{3,}', windows()):
                subprocess.run(["xdotool", "mousemove", "1268", "16", "click", "1"])
                time.sleep(0.3)
            subprocess.run(["xdotool", "key", "Down"])
            end = time.time() + 0.5
            while time.time() < end:
                GLib.MainContext.default().iteration(False)
            return next((f for f in focused if f.getRole() == pyatspi.ROLE_MENU_ITEM), None)
        item = wait("the tray menu", menu_item, 10)
        pyatspi.Registry.deregisterEventListener(listener, "object:state-changed:focused")
        read(item.parent, "menu", hidden=True)
        subprocess.run(["xdotool", "key", "Escape"])
    finally:
        tray.terminate()
        tray.wait()
        stop(app)


def lock_and_reminder():
    for args, what, part in ((["--test-lock", "6"], "the lock", "Test"),
                             (["--test-nudge"], "the reminder", "Asr")):
        app = start(*args)
        a = wait(what, application)
        wait(f"{part} in {what}", lambda: pyatspi.findDescendant(
            a, lambda n: n is not None and part in (n.name or "")))
        time.sleep(1.2)  # a countdown that has ticked once
        read(a, what)
        stop(app)


with tempfile.TemporaryDirectory() as folder:
    print("pseudo-language:", pseudo.build(root, folder), "texts")
    os.environ["TARVANEL_TRANSLATIONS"] = folder
    os.environ["LANGUAGE"] = "eo"
    log = open(os.path.join(os.environ["HOME"], "app.log"), "w")
    hand_off()
    first_run()
    menu()
    lock_and_reminder()

for text, where in sorted(found.items(), key=lambda item: item[1]):
    print(f"unmarked ({where}): {text!r}")
# A window the reading missed would pass unseen.
empty = [w for w in ("hand-off", "first run", "About box", "guardian set-up", "menu", "the lock",
                     "the reminder") if not read_count.get(w)]
for where in empty:
    print(f"pseudo_e2e: nothing read in {where}", file=sys.stderr)
print("texts read:", read_count)
sys.exit(1 if found or empty else 0)
