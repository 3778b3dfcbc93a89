#!/usr/bin/python3
"""Drives the settings window as a screen reader does, over AT-SPI.

Usage: settings_e2e.py first-run HOME | guardian HOME
first-run: finds "Springfield" (a list of places to choose from), then "Lahore" (one place),
and presses "Start Tarvanel". guardian: checks the window's title, sets up the guardian code with a code from oathtool, then ends a
preview lock by typing the next code.
Exit status 0 on success; the reason on standard error otherwise.
"""
import os
import subprocess
import sys
import time

import pyatspi


def fail(why):
    print("settings_e2e: " + why, file=sys.stderr)
    sys.exit(1)


def wait(what, find, timeout=15.0):
    end = time.time() + timeout
    while time.time() < end:
        found = find()
        if found is not None:
            return found
        time.sleep(0.1)
    fail("timed out waiting for " + what)


def app():
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        a = desktop.getChildAtIndex(i)
        if a is not None and a.name and "tarvanel" in a.name.lower():
            return a
    return None


def find(root, name, roles=None):
    def match(node):
        return node is not None and node.name == name and (
            roles is None or node.getRole() in roles)
    return pyatspi.findDescendant(root, match, breadth_first=True)


def find_text(root, prefix):
    return pyatspi.findDescendant(
        root, lambda n: n is not None and (n.name or "").startswith(prefix), breadth_first=True)


def press(node):
    action = node.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    for wanted in ("Press", "press", "click", "Toggle"):
        if wanted in names:
            action.doAction(names.index(wanted))
            return
    action.doAction(0)


def set_text(node, text):
    editable = node.queryEditableText()
    editable.setTextContents(text)


PUSH = (pyatspi.ROLE_PUSH_BUTTON,)
FIELD = (pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY, pyatspi.ROLE_PASSWORD_TEXT)


def place_rows(a):
    places = find(a, "Places with this name", (pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX))
    if places is None or not places.getState().contains(pyatspi.STATE_SHOWING):
        return None
    rows = [places.getChildAtIndex(i) for i in range(places.childCount)]
    return [r.name for r in rows if r is not None and r.name] or None


def first_run():
    a = wait("the Tarvanel application on the accessibility bus", app)
    city = wait("the City field", lambda: find(a, "City", FIELD))
    # Several Springfields: a list a screen reader reads row by row.
    set_text(city, "Springfield")
    press(wait("the Find button", lambda: find(a, "Find", PUSH)))
    rows = wait("the list of Springfields", lambda: place_rows(a))
    if len(rows) < 2 or not all(r.startswith("Springfield, ") for r in rows):
        fail("unexpected places: " + repr(rows))
    wait("the first Springfield in use", lambda: find_text(a, "Found Springfield, "))
    set_text(city, "Lahore")
    press(wait("the Find button", lambda: find(a, "Find", PUSH)))
    message = wait("the found message", lambda: find_text(a, "Found Lahore"))
    if "Lahore" not in message.name or "Suggested:" not in message.name:
        fail("unexpected message: " + message.name)
    if place_rows(a) is not None:
        fail("the list of places stayed for a city with one place")
    start = wait("Start Tarvanel", lambda: find(a, "Start Tarvanel", PUSH))
    wait("Start Tarvanel enabled",
         lambda: start if start.getState().contains(pyatspi.STATE_ENABLED) else None)
    press(start)


def guardian():
    a = wait("the Tarvanel application on the accessibility bus", app)
    # The window manager's title is the window's own, with no program name appended.
    titles = wait("the settings window", lambda: subprocess.run(
        ["xdotool", "search", "--name", "Tarvanel Settings", "getwindowname", "%@"],
        capture_output=True, text=True).stdout.split("\n")[0] or None)
    if titles != "Tarvanel Settings":
        fail("window title: " + titles)
    press(wait("the set-up button", lambda: find(a, "Set Up Guardian Code…", PUSH)))
    key = wait("the key", lambda: find(a, "Key", FIELD))
    secret = wait("the key text", lambda: key.queryText().getText(0, -1) or None)
    code = subprocess.run(["oathtool", "--totp", "-b", secret.replace(" ", "")],
                          check=True, capture_output=True, text=True).stdout.strip()
    field = wait("the Code field", lambda: find(a, "Code", FIELD))
    set_text(field, code[:3] + " " + code[3:])
    press(wait("Confirm", lambda: find(a, "Confirm", PUSH)))
    wait("the guardian message", lambda: find_text(a, "Guardian code is on."))

    # A preview lock (10 seconds) ends early with the guardian's next code.
    press(wait("Preview Lock", lambda: find(a, "Preview Lock", PUSH)))
    log = os.path.join(os.environ["HOME"], "app.log")
    wait("the preview lock", lambda: "locked for Preview" in open(log).read() or None, 5)
    started = time.time()
    time.sleep(1.5)  # the lock takes the keyboard within a second
    code = subprocess.run(["oathtool", "--totp", "-b", secret.replace(" ", "")],
                          check=True, capture_output=True, text=True).stdout.strip()
    subprocess.run(["xdotool", "type", code], check=True)
    wait("the unlock", lambda: "unlocked after Preview" in open(log).read() or None, 6)
    if time.time() - started > 8:
        fail("the preview ran its full time; the code did not end it")


if __name__ == "__main__":
    {"first-run": first_run, "guardian": guardian}[sys.argv[1]]()
