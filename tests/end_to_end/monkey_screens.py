"""The program's screens, as the monkey knows them, and what it does on each."""

import re

DIGITS, ARROWS = "0123456789", ["Left", "Right", "Up", "Down", "Prior", "Next", "Home", "End"]
NAMES = ["Computer", "Ann", "", " x ", "<b>&amp;", "A name of many letters"]
ANY_KEYS = ["Tab", "shift+Tab", "Return", "space", "Escape", "F1", "F2", "F11", "Delete", "Menu", "BackSpace", "Insert"]
ANY_KEYS += [*ARROWS, *DIGITS, "minus", "ctrl+a", "ctrl+c", "ctrl+v", "shift+F10", "alt+Left", "ctrl+End", "F10"]
ANY_KEYS += [f"alt+{letter}" for letter in "abcdefghijklmnopqrstuvwxyz"]

# What is done on the screens, besides anything at all: keys, "@" draws some, and how often. Whoever shoots
# straight up is hit, which ends the round.
SUMMARY = {"Return": 3, "space": 2, "alt+o": 1, "Escape": 1}
BOX = {"Return": 2, "space": 1, "Escape": 2, "alt+y": 3, "alt+n": 1, "Tab space": 1}
NAME = {"@name Return": 6, "Escape": 1, "@name": 1, "ctrl+a BackSpace Return": 1}
SCREENS = [
    ("title", r"^\s*$", {"alt+c": 3, "Return": 2, "space": 2, "alt+s @arrow Return": 1, "alt+F4": 0.3}),
    ("welcome", "New User Overview", {"alt+d Return": 2, "space": 2, "alt+c": 1}),
    ("player list", "Player List$", {
        "Home Return Down Return": 3, "Home Return alt+c": 5, "alt+a": 2, "F2": 2, "Delete": 1, "alt+r": 1, "F1": 2,
        "@arrow Return @arrow Return": 3, "Tab @arrow": 1, "alt+e": 1, "Escape": 2}),
    ("name of a player", "Add a New Player|Change the Highlighted", NAME),
    ("skill level", "Skill Level", {"alt+g": 2, "alt+f": 1, "alt+p": 2, "Escape": 1}),
    ("battle", "Battlefield", {
        "alt+s": 3, "alt+a @digit @digit alt+p @digit @digit @digit alt+s": 4, "alt+a @arrow alt+p @arrow": 2,
        "alt+a End alt+p Home alt+s": 10, "alt+s alt+s alt+s": 1, "F11": 1, "F1": 1.5, "alt+g @arrow": 1, "alt+w": 1,
        "alt+t": 1, "alt+v @arrow": 1, "Escape": 0.4}),
    ("manual", "Help Window", {
        "F1 o": 1, "F1 p": 1, "F1 r": 1, "F1 s": 1, "@arrow": 2, "Tab @arrow": 1, "alt+p": 1, "Escape": 4}),
    ("round's summary", "Round Summary", SUMMARY),
    ("set's summary", "Set Summary", SUMMARY),
    ("another box", "", BOX),
]
# Anything at all would go round the disk there.
PRINTING = ("printing", "Print to a File", {"Return": 1, "Escape": 2})

# What leads out of the program, whatever is in front.
WAY_OUT = {"title": "Return", "welcome": "Return", "round's summary": "Return", "set's summary": "Return"}


def screen_of(window):
    """Its name, and its moves with how often they come."""
    return next((name, moves) for name, title, moves in [PRINTING, *SCREENS] if re.search(title, window.name))


def drawn(move, chance):
    """The keys of a move; what begins with "@" is to be typed."""
    for key in move.split():
        if key == "@digit":
            yield chance.choice(DIGITS)
        elif key == "@arrow":
            yield chance.choice(ARROWS)
        elif key == "@name":
            yield "@" + chance.choice(NAMES) + chance.choice(DIGITS)
        else:
            yield key
