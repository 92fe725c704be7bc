#!/usr/bin/python3
"""Keys, clicks and pictures of a headless GNOME session, one order a line on standard input; each is answered with
"ok" or what went wrong. Orders: key COMBINATION..., type TEXT, move X Y, click [left|right|middle], double, shot FILE,
paste FILE (the clipboard's text, empty where it has none)."""

import os
import pathlib
import sys
import time

from gi.repository import Gio, GLib

REMOTE = "org.gnome.Mutter.RemoteDesktop"
SHOTS = "org.gnome.Shell.Screenshot"
BUTTONS = {"left": 0x110, "right": 0x111, "middle": 0x112}
CODES = {"esc": 1, "minus": 12, "backspace": 14, "tab": 15, "return": 28, "ctrl": 29, "shift": 42, "comma": 51, "dot": 52,
         "slash": 53, "alt": 56, "space": 57, "home": 102, "up": 103, "left": 105, "right": 106, "down": 108, "super": 125}
CODES |= {str((i + 1) % 10): 2 + i for i in range(10)}
for row, first in (("qwertyuiop", 16), ("asdfghjkl", 30), ("zxcvbnm", 44)):
    CODES |= {letter: first + i for i, letter in enumerate(row)}
SIGNS = {" ": "space", "-": "minus", ".": "dot", "/": "slash", ",": "comma"}
FAR = 10000.0  # farther than any screen is wide


class Session:
    def __init__(self):
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.bus.set_exit_on_close(True)
        # The shell takes pictures for whoever has this name.
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                  GLib.Variant("(su)", ("org.gnome.Screenshot", 4)))
        self.path = self.call(REMOTE, "/org/gnome/Mutter/RemoteDesktop", REMOTE, "CreateSession", None)[0]
        self.notify("Start", None)
        self.notify("EnableClipboard", "(a{sv})", {})

    def call(self, name, path, interface, method, arguments):
        return self.bus.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 20000, None)

    def notify(self, method, types, *values):
        arguments = GLib.Variant(types, values) if types else None
        self.call(REMOTE, self.path, REMOTE + ".Session", method, arguments)

    def key(self, combination):
        codes = [CODES[part] for part in combination.split("+")]
        for code in codes:
            self.notify("NotifyKeyboardKeycode", "(ub)", code, True)
        for code in reversed(codes):
            self.notify("NotifyKeyboardKeycode", "(ub)", code, False)

    def type(self, text):
        for letter in text:
            self.key(SIGNS.get(letter, "shift+" + letter.lower() if letter.isupper() else letter))

    def move(self, x, y):  # there is no place of its own to name but by way of the corner
        self.notify("NotifyPointerMotionRelative", "(dd)", -FAR, -FAR)
        self.notify("NotifyPointerMotionRelative", "(dd)", float(x), float(y))

    def double(self):  # without a wait in between, which on a busy machine would make two clicks of it
        for pressed in (True, False, True, False):
            arguments = GLib.Variant("(ib)", (BUTTONS["left"], pressed))
            self.bus.call(REMOTE, self.path, REMOTE + ".Session", "NotifyPointerButton", arguments, None,
                          Gio.DBusCallFlags.NONE, 20000, None, None)
        self.bus.flush_sync()

    def click(self, button="left"):
        self.notify("NotifyPointerButton", "(ib)", BUTTONS[button], True)
        time.sleep(0.03)
        self.notify("NotifyPointerButton", "(ib)", BUTTONS[button], False)

    def shot(self, file):
        self.call(SHOTS, "/org/gnome/Shell/Screenshot", SHOTS, "Screenshot", GLib.Variant("(bbs)", (False, False, file)))

    def paste(self, file):
        pathlib.Path(file).write_bytes(self.clipboard())

    def clipboard(self):
        arguments = GLib.Variant("(s)", ("text/plain;charset=utf-8",))
        try:
            answer, files = self.bus.call_with_unix_fd_list_sync(
                REMOTE, self.path, REMOTE + ".Session", "SelectionRead", arguments, None, Gio.DBusCallFlags.NONE, 20000,
                None, None)
        except GLib.Error:  # it has no such text
            return b""
        with open(files.get(answer[0]), "rb") as pipe:
            os.set_blocking(pipe.fileno(), True)
            return pipe.read()

    def obey(self, line):
        order, _, rest = line.partition(" ")
        if order == "type":
            self.type(rest)
        elif order == "key":
            for combination in rest.split():
                self.key(combination)
        else:
            getattr(self, order)(*rest.split())


session = Session()
print("ok", flush=True)
for line in sys.stdin:
    try:
        session.obey(line.rstrip("\n"))
        print("ok", flush=True)
    except Exception as error:  # the test says it
        print(f"{line.strip()}: {error}".replace("\n", " "), flush=True)
