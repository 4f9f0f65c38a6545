#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""A screen reader's look at the panel program, over the accessibility bus. See spoken.sh."""

import sys
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

warnings.simplefilter("ignore", DeprecationWarning)
PATIENCE = 20
PRESSES = ("Press",)
WORKED = ("push button", "check box", "toggle button", "radio button", "text", "table", "list",
          "combo box", "spin button", "button")


def children(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield child


def shown(node, depth=0):
    """All below, as far as it is on the screen."""
    for child in children(node):
        try:
            states = child.get_state_set()
            if states.contains(Atspi.StateType.SHOWING) or depth == 0:
                yield child
                yield from shown(child, depth + 1)
        except gi.repository.GLib.Error:
            continue  # it went away meanwhile


def panel():
    for application in children(Atspi.get_desktop(0)):
        if "filarix-panel" in application.get_name():
            return application
    return None


def until(what, look):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(0.05)
    sys.exit("not found: " + what)


def named(name):
    def look():
        for node in shown(panel()):
            if node.get_name() == name and node.get_action_iface() is not None:
                return node
        return None
    return until(name, look)


def press(name):
    action = named(name).get_action_iface()
    names = [Atspi.Action.get_action_name(action, i) for i in range(action.get_n_actions())]
    wanted = [i for i, own in enumerate(names) if own in PRESSES]
    if not wanted:
        sys.exit("%s can do %s, and not be pressed" % (name, names))
    action.do_action(wanted[0])


def said(text):
    return any(sign.isalnum() for sign in text)


def look_over(screen):
    """Everything that can be worked has a name."""
    met = 0
    for node in shown(panel()):
        role = node.get_role_name()
        if role not in WORKED or not node.get_state_set().contains(Atspi.StateType.ENABLED):
            continue
        met += 1
        if not said(node.get_name()):
            sys.exit("on %s a %s has no name" % (screen, role))
    print("%s: %d named" % (screen, met))
    if met < 8:
        sys.exit("on %s there are only %d to be worked" % (screen, met))


until("the panel", panel)
named("Open")
look_over("Program")
for tab, sign in (("Teach", "Select"), ("Variables", "Store"), ("Connections", "Edit the addresses"),
                  ("Files", "History"), ("Preview", "Fit")):
    press(tab)
    named(sign)
    look_over(tab)
# A language is chosen, and the panel speaks it.
press("Settings")
named("Text size 150 %")
look_over("Settings")
press("Language Deutsch")
until("Programm", lambda: any(node.get_name() == "Programm" for node in shown(panel())))
