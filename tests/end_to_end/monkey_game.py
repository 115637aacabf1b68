"""The program that the monkey plays with, and whether all is well with it."""

import os
import re
import subprocess

ERROR = r"Run-time error|Terminating"


class Finding(Exception):
    """What a run fails with."""


class Game:
    def __init__(self, command):
        self.command = command
        work = os.environ["HOME"]
        self.stderr, self.list = f"{work}/stderr", f"{work}/data/Skylob.Data"
        self.process = None

    def number(self):
        return self.process.pid

    def start(self, starts, chance):
        fade, storms = chance.random() < 0.4, int(chance.random() < 0.1)
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
