#!/usr/bin/python3
"""A bright ordinary window of another program that notes every key it receives.

Usage: key_witness.py FILE. Fills the screen it opens on with white and appends the name of
each key pressed while it has the keyboard to FILE, one a line. Writes "ready" to standard
output once it is mapped. Needs GTK 3 through python3-gi, on GDK's Wayland backend.
"""
import sys

import gi

gi.require_version("Gtk", "3.0")
gi.require_version("Gdk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402


def main():
    out = open(sys.argv[1], "a", buffering=1)
    window = Gtk.Window(title="key witness")
    css = Gtk.CssProvider()
    css.load_from_data(b"window { background-color: #ffffff; }")
    Gtk.StyleContext.add_provider_for_screen(
        Gdk.Screen.get_default(), css, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
    window.set_default_size(1200, 760)

    def pressed(_widget, event):
        out.write((Gdk.keyval_name(event.keyval) or str(event.hardware_keycode)) + "\n")
        return True

    def mapped(*_args):
        print("ready", flush=True)
        return False

    window.connect("key-press-event", pressed)
    window.connect("map-event", mapped)
    window.connect("destroy", Gtk.main_quit)
    window.show_all()
    window.maximize()
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, 15, Gtk.main_quit)
    Gtk.main()


if __name__ == "__main__":
    main()
