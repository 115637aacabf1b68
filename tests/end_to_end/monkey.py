"""Usage: monkey.py PROGRAM SEED ACTIONS|SECONDSs KEEP [OPTION]...
Plays with the running program, started with these options, like a monkey: keys, clicks, drags, wheel,
changes of the window, by way of all screens, and whenever the program has ended it starts it again.
Prints how many actions each screen has seen. With a finding it tells how it came about, keeps what
there is to see of it in the folder KEEP, and ends with status 1. monkey.sh says what it takes.

What it does with the n-th action is drawn from the seed and from n, so it is the same whenever the
same screen is in front.
"""

import math
import os
import random
import re
import shutil
import subprocess
import sys
import time
from collections import Counter, deque

import monkey_desk

PATIENCE = 120  # seconds that anything may take on a busy machine; a storm and a flight take less
DIGITS, ARROWS = "0123456789", ["Left", "Right", "Up", "Down", "Prior", "Next", "Home", "End"]
ANY_KEYS = ["Tab", "shift+Tab", "Return", "space", "Escape", "F1", "F2", "F11", "Delete", "Menu", "BackSpace", "Insert"]
ANY_KEYS += [*ARROWS, *DIGITS, "minus", "ctrl+a", "ctrl+c", "ctrl+v", "shift+F10", "alt+Left", "ctrl+End", "F10"]
ANY_KEYS += [f"alt+{letter}" for letter in "abcdefghijklmnopqrstuvwxyz"]

# What is done on the screens, besides anything at all: keys, "@" draws some, and how often. Whoever shoots
# straight up is hit, which ends the round; the second of two does not.
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
ERROR = r"Run-time error|Terminating"

# What leads out of the program, whatever is in front.
WAY_OUT = {"title": "Return", "welcome": "Return", "round's summary": "Return", "set's summary": "Return"}


class Finding(Exception):
    pass


def screen_of(window):
    if re.search(PRINTING[1], window.name):
        return PRINTING
    return next(screen for screen in SCREENS if re.search(screen[1], window.name))


def drawn(move, chance):
    """The keys of a move; a name is what is typed."""
    for key in move.split():
        yield {
            "@digit": lambda: chance.choice(DIGITS),
            "@arrow": lambda: chance.choice(ARROWS),
            "@name": lambda: "@" + chance.choice(["Computer", "Ann", "", " x ", "<b>&amp;", "A name of many letters"])
            + chance.choice(DIGITS),
        }.get(key, lambda: key)()


class Game:
    """The running program, and whether all is well with it."""

    def __init__(self, command):
        self.command = command
        work = os.environ["HOME"]
        self.stderr, self.list = f"{work}/stderr", f"{work}/data/Skylob.Data"
        self.process = None

    def number(self):
        return self.process.pid

    def start(self, starts, chance):
        fade, storms = chance.random() < 0.4, int(chance.random() < 0.2)
        lines = ["[Defaults]", "GameSpeed=99", "NumRounds=1", f"FadeStatus={fade}", f"LightningSetting={storms}"]
        lines += [f"MeteorsSetting={int(chance.random() < 0.3)}", f"ScreenSize={chance.randint(1, 3)}"]
        lines += ["NewUser=NoShow"] * (starts % 2 == 0)
        folder = os.environ["XDG_CONFIG_HOME"] + "/Skylob"
        with open(folder + "/Skylob.ini", "w") as settings:
            settings.write("\n".join(lines) + "\n")
        if chance.random() < 0.5 and os.path.exists(folder + "/Windows.ini"):
            os.remove(folder + "/Windows.ini")
        seed = ["--seed", str(chance.randrange(10**6))]
        with open(self.stderr, "w") as stderr:
            self.process = subprocess.Popen(self.command + seed, stderr=stderr)

    def is_over(self):
        return self.process.poll() is not None

    def judge(self, windows):
        for window in windows:
            if re.search(ERROR, window.name):
                raise Finding(f"a box '{window.name}', and nothing was taken from the program")
        over = self.is_over()
        with open(self.stderr, errors="replace") as said:
            if text := said.read():
                raise Finding(f"it says: {text[:2000]}")  # sanitizers do, too
        if over and self.process.returncode != 0:
            raise Finding(f"exit status {self.process.returncode}")
        self.judge_list()

    def judge_list(self):
        try:
            with open(self.list, "rb") as players:
                data = players.read()
        except OSError as error:
            raise Finding(f"no player file: {error}") from error
        names = [data[at : at + 20] for at in range(0, len(data), 29)]
        played_and_won = [data[at + 20 : at + 24] for at in range(0, len(data), 29)]
        numbers = [(n[0] + 256 * n[1], n[2] + 256 * n[3]) for n in played_and_won if len(n) == 4]
        if len(data) % 29 or len(set(names)) < len(names) or b" " * 20 in names:
            raise Finding(f"a torn player file: {data!r}")
        if any(won > played or played > 1000 for played, won in numbers):
            raise Finding(f"figures of the player file: {data!r}")


class Monkey:
    def __init__(self, seed, until, game):
        self.seed, self.game = seed, game
        seconds = until.endswith("s")
        self.actions = math.inf if seconds else int(until)
        self.end = time.monotonic() + int(until[:-1]) if seconds else math.inf
        self.desk = monkey_desk.desk(game.number)
        self.compositor = None
        self.number = self.starts = 0
        self.seen, self.last = Counter(), deque(maxlen=30)

    def play(self):
        self.start()
        while time.monotonic() < self.end and self.number < self.actions:
            self.number += 1
            chance = random.Random(f"{self.seed}/{self.number}")
            front = self.front()
            if front is None:
                self.start()
            else:
                self.act(front, chance)
        self.leave()
        if self.number >= 100 and not all(self.seen[screen] for screen in ("title", "player list", "battle")):
            raise Finding("the main screens were not reached")

    def start(self):
        self.starts += 1
        self.game.start(self.starts, random.Random(f"{self.seed} start {self.starts}"))

    def front(self):
        """The window that takes the keys, as soon as there is one that answers; None when the program has ended."""
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            over = self.game.is_over()
            windows = [] if over else self.desk.windows()
            self.game.judge(windows)
            if over:
                return None
            front = next((window for window in windows if window.active), None)
            if front and self.desk.answers(front, 1):
                return front
            if windows and not front:
                self.desk.activate(windows[-1])
            time.sleep(0.01)
        raise Finding(f"the program hangs: nothing answers for {PATIENCE} seconds, of {[w.name for w in windows]}")

    def act(self, front, chance):
        screen, _, moves = screen_of(front)
        self.seen[screen] += 1
        kinds = {self.own: 60, self.any_keys: 12, self.click: 12, self.drag: 5, self.wheel: 4, self.change: 4}
        kinds[self.composite] = 3 if os.environ.get("MONKEY_COMPOSITING") else 0
        kind = chance.choices(list(kinds), list(kinds.values()))[0] if screen != PRINTING[0] else self.own
        kind(front, moves, chance)

    def note(self, front, what, *details):
        self.last.append(f"{self.number}: {what} {' '.join(map(str, details))} in '{front.name}'")

    def own(self, front, moves, chance):
        self.keys(front, list(drawn(chance.choices(list(moves), list(moves.values()))[0], chance)))

    def keys(self, front, keys):
        self.note(front, "keys", *keys)
        for key in keys:
            self.desk.type(key[1:]) if key.startswith("@") else self.desk.keys([key])

    def any_keys(self, front, _, chance):
        self.keys(front, chance.choices(ANY_KEYS, k=chance.choice([1, 1, 1, 2, 5])))

    def click(self, front, _, chance):
        details = (chance.random(), chance.random()), chance.choice([1, 1, 1, 2, 3]), chance.choice([1, 1, 2, 3])
        self.note(front, "click", *details)
        self.desk.click(front, *details)

    def drag(self, front, _, chance):
        places = [(chance.random(), chance.random()) for _ in range(chance.randint(2, 5))]
        self.note(front, "drag", places)
        self.desk.drag(front, places, chance.choice([1, 1, 1, 3]))

    def wheel(self, front, _, chance):
        details = (chance.random(), chance.random()), chance.choice([4, 5, 6, 7]), chance.randint(1, 9)
        self.note(front, "wheel", *details)
        self.desk.click(front, *details)

    def change(self, front, _, chance):
        what = chance.choice(["resize", "resize", "move", "maximise", "maximise", "minimise", "close"])
        self.note(front, what)
        self.desk.change(front, what, [chance.randrange(10**6), chance.randrange(10**6)])

    def composite(self, front, *_):
        self.note(front, "compositing", "off" if self.compositor else "on")
        self.compositor = self.switch_off() if self.compositor else subprocess.Popen(["xcompmgr"], stderr=subprocess.DEVNULL)

    def switch_off(self):
        self.compositor.terminate()
        self.compositor.wait()

    def leave(self):
        """By keyboard, with status 0. Where boxes have come and gone faster than the window manager follows, the
        toolkit at times takes no window for active until one gets the keys anew: it is minimised now and then."""
        for attempt in range(PATIENCE):
            front = self.front()
            if front is None:
                return
            screen = screen_of(front)[0]
            if attempt % 10 == 9:
                self.desk.change(front, "minimise", [0, 0])
            elif screen == "another box":
                self.desk.keys([["alt+y", "Return"][attempt % 2]])
            else:
                self.desk.keys([WAY_OUT.get(screen, "Escape")])
            self.await_change(front)
        raise Finding(f"the program cannot be left by keyboard, with '{front.name}' in front")

    def await_change(self, front):
        deadline = time.monotonic() + 1
        while time.monotonic() < deadline and not self.game.is_over():
            if not any(window.active and window.id == front.id for window in self.desk.windows()):
                return
            time.sleep(0.02)

    def keep(self, folder):
        os.makedirs(folder, exist_ok=True)
        subprocess.run(["import", "-window", "root", f"{folder}/screen.png"], timeout=60, check=False)
        for file in filter(os.path.exists, [self.game.stderr, self.game.list]):
            shutil.copy(file, folder)
        with open(f"{folder}/actions", "w") as file:
            file.write("\n".join(self.last) + "\n")


def main(program, seed, until, folder, *options):
    game = Game([program, "--data-dir", os.environ["HOME"] + "/data", *options])
    monkey = Monkey(seed, until, game)
    status = 0
    try:
        monkey.play()
    except Finding as finding:
        status = 1
        print(f"FOUND with seed {seed} at action {monkey.number}: {finding}", "after the actions", *monkey.last,
              f"What was seen is in {folder}", sep="\n", file=sys.stderr)
        monkey.keep(folder)
    finally:
        if not game.is_over():
            game.process.kill()
        if monkey.compositor:
            monkey.switch_off()
    for screen, *_ in [*SCREENS, PRINTING]:
        print(f"{monkey.seen[screen]:6} {screen}")
    print(f"{monkey.starts:6} starts")
    return status


sys.exit(main(*sys.argv[1:]))
