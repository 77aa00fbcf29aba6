#!/usr/bin/env python3
# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""Runs a program on a display of its own and works it from the keyboard.

    at_a_display.py PROGRAM [ARGUMENT...] -- STEP...

A step is KEYS=NAME,NAME:TEXT (presses these X keys, with Ctrl+ ahead of what it is held for, until the window on top
holds the text in its title: a program that still starts takes none), TOP=TEXT (waits for such a window), FILE=PATH
(waits until it is there) or END (asks the program to end). Each wait gives up after half a minute. The exit status is
the program's after END; 99 tells that a step did not come about.

There is no window manager: the window on top gets the keyboard from here.
"""
import ctypes
import os
import signal
import subprocess
import sys
import time
from ctypes import POINTER, Structure, byref, c_char, c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p

PATIENCE = 30  # seconds
KEY_PRESS, KEY_RELEASE = 2, 3
CONTROL_MASK = 1 << 2
IS_VIEWABLE = 2


class KeyEvent(Structure):
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p),
                ("window", c_ulong), ("root", c_ulong), ("subwindow", c_ulong), ("time", c_ulong), ("x", c_int),
                ("y", c_int), ("x_root", c_int), ("y_root", c_int), ("state", c_uint), ("keycode", c_uint),
                ("same_screen", c_int), ("rest", c_char * 96)]


class Attributes(Structure):
    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int), ("border_width", c_int),
                ("depth", c_int), ("visual", c_void_p), ("root", c_ulong), ("window_class", c_int),
                ("bit_gravity", c_int), ("win_gravity", c_int), ("backing_store", c_int),
                ("backing_planes", c_ulong), ("backing_pixel", c_ulong), ("save_under", c_int),
                ("colormap", c_ulong), ("map_installed", c_int), ("map_state", c_int),
                ("all_event_masks", c_long), ("your_event_mask", c_long), ("do_not_propagate_mask", c_long),
                ("override_redirect", c_int), ("screen", c_void_p)]


class Display:
    """The windows and the keyboard of a display."""

    def __init__(self, name):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = c_void_p
        self.x.XDefaultRootWindow.restype = c_ulong
        self.x.XStringToKeysym.restype = c_ulong
        self.display = c_void_p(self.x.XOpenDisplay(name.encode()))
        if not self.display:
            raise RuntimeError("no display " + name)
        self.root = self.x.XDefaultRootWindow(self.display)
        ignore = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)(lambda *_: 0)  # a window may go at any moment
        self.ignore = ignore
        self.x.XSetErrorHandler(ignore)

    def top(self):
        """The window above all others that show; what has no size is no window of an operator's."""
        root, parent, children, count = c_ulong(), c_ulong(), POINTER(c_ulong)(), c_uint()
        self.x.XQueryTree(self.display, c_ulong(self.root), byref(root), byref(parent), byref(children), byref(count))
        for window in reversed(children[:count.value] if count.value else []):
            attributes = Attributes()
            known = self.x.XGetWindowAttributes(self.display, c_ulong(window), byref(attributes))
            if known and attributes.map_state == IS_VIEWABLE and attributes.width > 50:
                return window
        return 0

    def title(self):
        name = c_char_p()
        if not self.x.XFetchName(self.display, c_ulong(self.top()), byref(name)) or name.value is None:
            return ""
        return name.value.decode("latin-1")

    def press(self, name):
        held = CONTROL_MASK if name.startswith("Ctrl+") else 0
        keysym = self.x.XStringToKeysym(name.removeprefix("Ctrl+").encode())
        code = self.x.XKeysymToKeycode(self.display, c_ulong(keysym))
        window = self.top()
        self.x.XSetInputFocus(self.display, c_ulong(window), 2, c_ulong(0))
        self.x.XSync(self.display, 0)
        for kind in (KEY_PRESS, KEY_RELEASE):
            event = KeyEvent(type=kind, send_event=1, window=window, root=self.root, state=held, keycode=code,
                             same_screen=1)
            self.x.XSendEvent(self.display, c_ulong(window), 1, c_long(3), byref(event))
        self.x.XSync(self.display, 0)


    def press_until(self, names, title):
        for name in names.split(","):
            if title in self.title():
                return True
            if self.top():
                self.press(name)
        return False


def wait(what, condition):
    deadline = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > deadline:
            raise RuntimeError("never came: " + what)
        time.sleep(0.05)


def main():
    parting = sys.argv.index("--", 1)
    command, steps = sys.argv[1:parting], sys.argv[parting + 1:]
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
                              pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)
    program = None
    try:
        name = ":" + os.read(read, 16).decode().strip()
        display = Display(name)
        program = subprocess.Popen(command, env={**os.environ, "DISPLAY": name, "QT_QPA_PLATFORM": "xcb"})
        for step in steps:
            if program.poll() is not None:
                raise RuntimeError("the program has ended ahead of " + step)
            kind, _, value = step.partition("=")
            if kind == "KEYS":
                wait(step, lambda wanted=value: display.press_until(*wanted.split(":")))
            elif kind == "TOP":
                wait(step, lambda wanted=value: wanted in display.title())
            elif kind == "FILE":
                wait(step, lambda path=value: os.path.exists(path))
            elif kind == "END":
                program.send_signal(signal.SIGTERM)
                return program.wait(PATIENCE)
            else:
                raise RuntimeError("no such step: " + step)
        raise RuntimeError("no END")
    except (RuntimeError, OSError, subprocess.TimeoutExpired) as failure:
        print(failure)
        return 99
    finally:
        for process in (program, server):
            if process is not None and process.poll() is None:
                process.kill()
                process.wait()


sys.exit(main())
