#!/usr/bin/python3
# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""Meets a program as a screen reader does: over the accessibility bus, on a display of its own.

    dbus-run-session -- screen_reader.py PROGRAM [ARGUMENT...] -- STEP...

A step is one of these; what is pressed is pressed by its name, through the bus:

    TAB=TABLE[:BUTTON,...]  presses the tab of the program's window, waits until the table of that name shows, and walks
                            the window; then presses each of the buttons, walks the window that comes, and leaves it by
                            its button "Cancelar" or "Cerrar"
    PRESS:NAME,...          presses what has these names in the program's window, or in its menus, one after the other,
                            and walks the window behind each that shows something in it
    WINDOW:TITLE:NAME,...   waits for a window whose title begins so, walks it, and presses what has these names in it; walks it
                            again ahead of each further one
    END                     behind the others: waits for the end of the program, which is asked to end otherwise

Prints each control without a name, or that the keyboard does not reach, and fails when there is one; fails as well
when something does not come, or the walk through the tabs met fewer kinds of controls than a window of this program
has. It runs on the system's own Python, which has the bus.
"""
import os
import re
import signal
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version comes first)

PATIENCE = 30  # seconds
QUICKLY = 300  # milliseconds
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
ROLE = Atspi.Role
NAMED = {ROLE.PUSH_BUTTON, ROLE.TOGGLE_BUTTON, ROLE.CHECK_BOX, ROLE.RADIO_BUTTON, ROLE.TEXT, ROLE.ENTRY,
         ROLE.PASSWORD_TEXT, ROLE.COMBO_BOX, ROLE.LIST, ROLE.TABLE, ROLE.TREE_TABLE, ROLE.PAGE_TAB, ROLE.SPIN_BUTTON,
         ROLE.PROGRESS_BAR, ROLE.MENU_ITEM, ROLE.FRAME, ROLE.DIALOG}
NO_FOCUS = {ROLE.PROGRESS_BAR, ROLE.MENU_ITEM, ROLE.FRAME, ROLE.DIALOG}
MOUSE_ONLY = {"Borrar lo escrito"}  # what the keys of the line beside it do as well
PRESSED = {ROLE.PUSH_BUTTON, ROLE.TOGGLE_BUTTON, ROLE.PAGE_TAB, ROLE.CHECK_BOX, ROLE.RADIO_BUTTON, ROLE.MENU_ITEM}
PROGRAMMERS = re.compile(r"(cb|chk|cmd|lbl|lvw|pic|txt)[A-Z]?\w*")  # names that say nothing to an operator
EXPECTED = {ROLE.PUSH_BUTTON, ROLE.TEXT, ROLE.COMBO_BOX, ROLE.TABLE, ROLE.FRAME, ROLE.MENU_ITEM}


def wait(what, condition):
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            result = condition()
        except GLib.Error:  # what was looked at has gone meanwhile
            result = None
        if result:
            return result
        if time.monotonic() > deadline:
            raise RuntimeError("never came: " + what)
        time.sleep(0.05)


def children(node):
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count())) if child]


def shows(node):
    states = node.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) or node.get_role() in (ROLE.FRAME, ROLE.MENU_ITEM)


def walk(node, inside=()):
    """Each node that shows, with those around it; the cells of a table are data, the parts of a field its own."""
    yield node, inside
    if node.get_role() in (ROLE.TABLE, ROLE.TREE_TABLE, ROLE.TREE, ROLE.LIST, ROLE.COMBO_BOX, ROLE.SPIN_BUTTON):
        return
    for child in children(node):
        if shows(child):
            yield from walk(child, inside + (node,))


def windows_of(pid):
    for application in children(Atspi.get_desktop(0)):
        if application.get_process_id() == pid:
            return [one for one in children(application) if one.get_state_set().contains(Atspi.StateType.SHOWING)]
    return []


def window_of(pid):
    return next((one for one in windows_of(pid) if one.get_role() == ROLE.FRAME), None)


def titled(pid, title):
    """A window whose title begins so; a box rather than the program's window, which may begin alike."""
    found = [one for one in windows_of(pid) if one.get_name().startswith(title)]
    return next((one for one in found if one.get_role() != ROLE.FRAME), found[0] if found else None)


def dialog_of(pid):
    return next((one for one in windows_of(pid) if one.get_role() in (ROLE.DIALOG, ROLE.ALERT)), None)


def examine(window, place, met):
    faults = []
    for node, inside in walk(window):
        role = node.get_role()
        if role not in NAMED or (role == ROLE.FRAME and inside):  # panels are frames too
            continue
        met.add(role)
        told = f"{place}: {node.get_role_name()} in {' / '.join(one.get_name() or one.get_role_name() for one in inside)}"
        if not node.get_name().strip() or PROGRAMMERS.fullmatch(node.get_name()):
            faults.append(f"no name: {told}")
        elif not (role in NO_FOCUS or node.get_name() in MOUSE_ONLY or
                  node.get_state_set().contains(Atspi.StateType.FOCUSABLE)):
            faults.append(f"not reached by the keyboard: {told}: {node.get_name()}")
    return faults


def find(window, names, roles):
    return next((node for node, _ in walk(window) if node.get_name() in names and node.get_role() in roles), None)


def press(window, *names):
    """Presses whichever of the buttons there is. The press itself comes a moment later."""
    found = wait(" or ".join(names), lambda: find(window, names, PRESSED))
    if found.get_role() == ROLE.MENU_ITEM:
        press_in_menu(found)
    elif not found.do_action(0):
        raise RuntimeError("cannot be pressed: " + found.get_name())


def press_in_menu(entry):
    """An entry that opens a window answers when that has gone: what comes of it is waited for, not the answer."""
    Atspi.set_timeout(QUICKLY, QUICKLY)
    try:
        entry.do_action(0)
    except GLib.Error:
        pass
    Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)


def visit(program, step, met):
    """Opens a tab, then each of the windows that its buttons open. Gives what is wrong in them."""
    tab, _, rest = step.partition("=")
    table, _, buttons = rest.partition(":")
    window = wait("the window", lambda: window_of(program.pid))
    press(window, tab)
    wait(f"the table {table} of {tab}", lambda: find(window, [table], (ROLE.TABLE, ROLE.TREE_TABLE)))
    faults = examine(window, tab, met)
    for button in buttons.split(",") if buttons else []:
        press(window, button)
        dialog = wait(f"the window of {button} of {tab}", lambda: dialog_of(program.pid))
        faults += examine(dialog, f"{tab}, {button}", met)
        press(dialog, "Cancelar", "Cerrar")
        wait(f"the end of the window of {button}", lambda: not dialog_of(program.pid))
    return faults


def work(program, names, met):
    """Presses one after the other in the program's window, whatever each of them shows there."""
    window = wait("the window", lambda: window_of(program.pid))
    faults = []
    for name in names:
        press(window, name)
        faults += examine(window, name, met)
    return faults


def answer(program, title, names, met):
    """Walks the window of a title, before each press in it. Gives what is wrong."""
    faults = []
    for name in names:
        window = wait("the window " + title, lambda: titled(program.pid, title))
        faults += examine(window, title, met)
        press(window, name)
    return faults


def follow(program, step, met):
    kind, _, rest = step.partition(":")
    if kind == "PRESS":
        return work(program, rest.split(","), met)
    if kind == "WINDOW":
        title, _, names = rest.partition(":")
        return answer(program, title, names.split(","), met)
    return visit(program, step, met)


def end(process):
    """Ends it with what it started in its own session: the launcher leaves its bus behind."""
    if process.poll() is not None:
        return
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:  # it has no group of its own
        process.kill()
    process.wait()


def main():
    parting = sys.argv.index("--", 1)
    command, steps = sys.argv[1:parting], sys.argv[parting + 1:]
    read, write = os.pipe()
    started = [subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x800x24", "-nolisten", "tcp",
                                 "-noreset"],
                                pass_fds=[write], stderr=subprocess.DEVNULL)]
    os.close(write)
    try:
        os.environ["DISPLAY"] = ":" + os.read(read, 16).decode().strip()
        started.append(subprocess.Popen([LAUNCHER, "--launch-immediately"], stderr=subprocess.DEVNULL,
                                        start_new_session=True))
        program = subprocess.Popen(command, env={**os.environ, "QT_QPA_PLATFORM": "xcb",
                                                 "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        started.append(program)
        faults, met = [], set()
        ends = steps[-1] == "END"
        for step in steps[:-1] if ends else steps:
            faults += follow(program, step, met)
        missing = EXPECTED - met if any("=" in step for step in steps) else set()
        if missing:
            faults.append("never met: " + ", ".join(role.value_nick for role in missing))
        print("\n".join(faults))
        if not ends:
            program.terminate()
        return 1 if faults else program.wait(PATIENCE)
    except (RuntimeError, OSError, subprocess.TimeoutExpired) as failure:
        print(failure)
        return 99
    finally:
        for process in reversed(started):
            end(process)


sys.exit(main())
