"""Usage: accessible_tree.py PROGRAM
Prints the window of a running program that is in front as a screen reader knows it, a thing a line:
role, name, value, description, states that matter and keys.
"""

import sys

from screen_reader import Program, wait_for

STATES = "active", "modal", "focused", "checked", "selected", "pressed", "editable"


def line(thing):
    value, states = thing.value, thing.states()
    words = [thing.role, f'"{thing.name}"']
    words += [f"= {value:g}"] if value is not None else []
    words += [f"({text})" for text in [thing.description] if text]
    words += [state for state in STATES if state in states]
    words += ["disabled"] if "enabled" not in states else []
    words += [f"[{key}]" for key in thing.keys()]
    return " ".join(words)


def show(things, depth=0):
    for thing in things:
        print("  " * depth + line(thing))
        show(thing.children(), depth + 1)


program = Program(sys.argv[1])
in_front = wait_for(
    "window in front", lambda: [window for window in program.children() if "active" in window.states()]
)
show(in_front)
