"""Usage: blind.py ROUNDS
Plays a set against the computer like somebody who sees nothing and has a screen reader: all it knows
are the names, values, descriptions and events of the running program. Tells what it hears, and fails
when it has won fewer than ROUNDS rounds.
"""

import math
import re
import sys

from screen_reader import RETURN, SPACE, Program, wait_for

SPEEDS, FLATTEST, STEEPEST = range(100, 1000), 70, 86


class Gunner:
    """Aims by what the field says of pieces, mountain and the last shell."""

    # A shell's reach goes by its speed's square. Made better by each shell that comes down.
    thrust = 0.006

    def look(self, field):
        """A new round: the angle goes over the mountain."""
        (x, height), (target, _) = [map(int, at) for at in re.findall(r"at column (\d+), height (\d+)", field)]
        peak, ridge = map(int, re.search(r"reaches (\d+) at column (\d+)", field).groups())
        self.distance = target - x
        slope = math.degrees(math.atan2(peak - height, ridge - x))
        self.set_angle(max(FLATTEST, round(slope) + 10))

    def set_angle(self, angle):
        self.angle = min(angle, STEEPEST)
        self.spread = math.sin(2 * math.radians(self.angle))
        self.too_slow, self.too_fast = SPEEDS[0] - 1, SPEEDS[-1] + 1

    def aim(self):
        """The speed for the target's distance, between those that have been too slow and too fast."""
        if self.too_fast - self.too_slow < 2:  # the mountain is in the way
            self.set_angle(self.angle + 3)
        speed = round(math.sqrt(self.distance / (self.thrust * self.spread)))
        self.speed = min(max(speed, self.too_slow + 1), self.too_fast - 1)

    def learn(self, field):
        """Where the shell came down."""
        landing = f"Your last shell with speed {self.speed} and angle {self.angle} (fell|left)(.*?)[;.]"
        how, where = re.search(landing, field).groups()
        if " short" in where or "the left" in where:
            self.too_slow = self.speed
        else:
            self.too_fast = self.speed
        if how == "fell":
            columns = int(re.search(r"\d+", where).group())
            reach = self.distance + (columns if " past" in where else -columns)
            self.thrust = max(reach, 1) / (self.speed**2 * self.spread)


game = Program("Skylob")
gunner = Gunner()


def await_thing(name):
    return wait_for(f"'{name}'", lambda: game.find(name))


def shoot():
    """Aims and shoots, and listens to what becomes of it."""
    for name, value in ("Speed", gunner.speed), ("Angle", gunner.angle):
        bar = game.find(name, "scroll bar")
        bar.set_value(value)
        assert bar.value == value, f"{name} is {bar.value} instead of {value}"
    game.heard.clear()
    game.find("Shoot").press()
    wait_for("report", lambda: any("°: " in text for text in game.heard))


def box():
    return next((window for window in game.children() if window.role == "dialog"), None)


def may_shoot():
    button = game.find("Shoot")
    return button and "enabled" in button.states() and not box()


def read_box():
    """Tells what a box says and goes on. Whether it tells of a round that we have won."""
    shown = box()
    texts = [thing.name for thing in shown.children() if thing.role == "label"]
    print(*texts, sep=" ", flush=True)
    (shown.find("Okay") or shown.find("OK")).press()
    wait_for("end of the box", lambda: shown.name == "" or not box())
    return any(text.endswith("wins this Round!") and "Computer" not in text for text in texts)


def play_set():
    won, round_begins = 0, True
    while True:
        wait_for("turn", lambda: box() or may_shoot() or game.find("Player list"))
        if box():
            won += read_box()
            round_begins = True
        elif may_shoot():
            field = game.find("Battlefield").description
            gunner.look(field) if round_begins else gunner.learn(field)
            round_begins = False
            gunner.aim()
            shoot()
        else:
            return won


await_thing("Continue").press()
await_thing("Player list").key(RETURN)
await_thing("Play the Computer!").key(SPACE)
await_thing("Poor").press()
won = play_set()
print(f"{won} rounds won")
await_thing("Quit").press()
await_thing("Yes").press()
sys.exit(won < int(sys.argv[1]))
