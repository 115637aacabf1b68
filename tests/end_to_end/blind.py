"""Usage: blind.py ROUNDS
Plays a set against the computer like somebody who sees nothing and has a screen reader: all it knows
are the names, values, descriptions and events of the running program. Tells what it hears, and fails
when it has won fewer than ROUNDS rounds.
"""

import math
import re
import sys

from screen_reader import RETURN, SPACE, Program, wait_for

FLATTEST, STEEPEST, CLEARANCE, NEAR = 60, 86, 80, 150


class Gunner:
    """Aims by what the field says of pieces, mountain and the last shell. Heights and distances are
    counted from our piece."""

    pull = 40  # how strongly a shell is pulled down: corrected by each that has come down

    def look(self, field):
        """A new round: the angle that brings a shell over the mountain and down on the target."""
        (x, y), (target, height) = [map(int, at) for at in re.findall(r"at column (\d+), height (\d+)", field)]
        peak, ridge = map(int, re.search(r"reaches (\d+) at column (\d+)", field).groups())
        self.distance, self.rise = target - x, height - y
        part = (ridge - x) / self.distance
        self.set_angle(math.atan2(peak + CLEARANCE - y - part**2 * self.rise, (ridge - x) * (1 - part)))

    def set_angle(self, radians):
        self.angle = min(max(round(math.degrees(radians)), FLATTEST), STEEPEST)
        self.too_slow, self.too_fast = 99, 1000

    def fall(self, distance):
        """What a shell has fallen behind a straight line by that distance, for a pull and a speed of 1."""
        return (distance / math.cos(math.radians(self.angle))) ** 2

    def drop(self, distance):
        """... and what it is to have fallen behind to come down there."""
        return max(distance * math.tan(math.radians(self.angle)) - self.rise, 1)

    def aim(self):
        if self.too_fast - self.too_slow < 2:
            self.set_angle(math.radians(self.angle + 3))
        self.speed = round(math.sqrt(self.pull * self.fall(self.distance) / self.drop(self.distance)))
        if not self.too_slow < self.speed < self.too_fast:
            self.speed = (self.too_slow + self.too_fast) // 2

    def learn(self, field):
        """Where the shell came down."""
        landing = f"Your last shell with speed {self.speed} and angle {self.angle} (fell|left)(.*?)[;.]"
        how, where = re.search(landing, field).groups()
        is_short = " short" in where or "the left" in where
        if is_short:
            self.too_slow = self.speed
        else:
            self.too_fast = self.speed
        if how == "left":
            return
        columns = int(re.search(r"\d+", where).group())
        if columns < NEAR:
            reach = self.distance + (-columns if is_short else columns)
            self.pull = self.speed**2 * self.drop(reach) / self.fall(reach)
        elif is_short:
            self.set_angle(math.radians(self.angle + 3))  # the mountain was in the way


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
    print(wait_for("report", lambda: [text for text in game.heard if "°: " in text]), flush=True)


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
