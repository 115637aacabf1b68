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
import shutil
import subprocess
import sys
import time
from collections import Counter, deque

import monkey_desk
from monkey_game import Finding, Game
from monkey_screens import ANY_KEYS, PRINTING, SCREENS, WAY_OUT, drawn, screen_of

# Seconds: what anything may take on a busy machine, and what a storm may, which lets nobody leave.
PATIENCE, STORM = 120, 260


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
        screen, moves = screen_of(front)
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
        """By keyboard, with status 0, and at a pace: the Escape that brings up a box closes it, too."""
        for attempt in range(STORM + PATIENCE):
            front = self.front()
            if front is None:
                return
            screen = screen_of(front)[0]
            if screen == "another box":
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
            file.write("\n".join([*self.last, *map(str, self.desk.windows())]) + "\n")


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
