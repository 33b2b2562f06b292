#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Assistive technology, as far as it asks programs what they show. Reads one request a line and answers each with
# one line of JSON:
#
#   tree              all that the program shows: role, name, description, states and children of each object
#   do ACTION|ROLE|NAME   carries out an action of the first object of that role and name
"""A client of the accessibility bus for tst_assistivetechnology."""

import json
import sys
import time

import pyatspi

STATES = {
    pyatspi.STATE_EXPANDABLE: "expandable",
    pyatspi.STATE_EXPANDED: "expanded",
    pyatspi.STATE_COLLAPSED: "collapsed",
    pyatspi.STATE_SELECTED: "selected",
    pyatspi.STATE_FOCUSED: "focused",
    pyatspi.STATE_SHOWING: "showing",
}


def program():
    """The program, as soon as it is on the bus and has a window."""
    for _ in range(300):
        for shown in pyatspi.Registry.getDesktop(0):
            if shown is not None and shown.name == "Fishbone" and shown.childCount > 0:
                return shown
        time.sleep(0.1)
    return None


def described(accessible):
    """An object and all that is below it."""
    accessible.clear_cache()
    states = accessible.getState()
    children = [accessible.getChildAtIndex(row) for row in range(accessible.childCount)]
    return {
        "role": accessible.getRoleName(),
        "name": accessible.name,
        "description": accessible.description,
        "states": [name for state, name in STATES.items() if states.contains(state)],
        "children": [described(child) if child is not None else {"role": "nothing"} for child in children],
    }


def found(accessible, role, name):
    """The first object of that role and name, or nothing."""
    if accessible.getRoleName() == role and accessible.name == name:
        return accessible
    for row in range(accessible.childCount):
        child = accessible.getChildAtIndex(row)
        hit = found(child, role, name) if child is not None else None
        if hit is not None:
            return hit
    return None


def carry_out(shown, action, role, name):
    """Whether there is such an object with such an action."""
    accessible = found(shown, role, name)
    if accessible is None:
        return False
    actions = accessible.queryAction()
    for number in range(actions.nActions):
        if actions.getName(number) == action:
            actions.doAction(number)
            return True
    return False


def main():
    """Answers until nobody asks any more."""
    shown = program()
    for line in sys.stdin:
        request, _, rest = line.strip().partition(" ")
        if shown is None:
            answer = None
        elif request == "tree":
            answer = described(shown)
        else:
            answer = carry_out(shown, *rest.split("|"))
        print(json.dumps(answer), flush=True)


main()
