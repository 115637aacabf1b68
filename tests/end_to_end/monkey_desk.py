"""The monkey's hands and eyes: the program's windows on a display of an X server, under its window
manager or under a Wayland compositor that has that display to itself. What needs its eyes to tell
the two apart is below; the hands are xdotool's in both.
"""

import json
import os
import select
import subprocess
import time
from dataclasses import dataclass


@dataclass
class Window:
    id: int
    name: str
    active: bool
    x: int
    y: int
    width: int
    height: int


def xdotool(*arguments):
    subprocess.run(
        ["xdotool", *map(str, arguments)], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60
    )


class Hands:
    """Places are parts of the window, from 0 to 1 both ways."""

    def keys(self, keys):
        xdotool("key", "--delay", 2, *keys)

    def type(self, text):
        xdotool("type", "--delay", 2, "--", text)

    def point(self, window, place):
        x, y = window.x + int(place[0] * window.width), window.y + int(place[1] * window.height)
        xdotool("mousemove", max(x, 0), max(y, 0))  # it takes a negative one for an option

    def click(self, window, place, button, times):
        self.point(window, place)
        xdotool("click", "--repeat", times, "--delay", 20, button)

    def drag(self, window, places, button):
        self.point(window, places[0])
        xdotool("mousedown", button)
        for place in places[1:]:
            self.point(window, place)
        xdotool("mouseup", button)


class XDesk(Hands):
    def __init__(self):
        from Xlib import X, display, error
        from Xlib.protocol import event

        self.X, self.gone, self.ClientMessage = X, error.XError, event.ClientMessage
        self.display = display.Display()
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.StructureNotifyMask)
        self.asked = 0

    def atom(self, name):
        return self.display.intern_atom(name)

    def ids(self, name):
        found = self.root.get_full_property(self.atom(name), self.X.AnyPropertyType)
        return list(found.value) if found else []

    def windows(self):
        """From the lowest to the topmost, minimised ones included."""
        active = self.ids("_NET_ACTIVE_WINDOW")
        result = []
        for id in self.ids("_NET_CLIENT_LIST_STACKING"):
            window = self.display.create_resource_object("window", id)
            try:
                name = window.get_full_text_property(self.atom("_NET_WM_NAME")) or ""
                size = window.get_geometry()
                place = self.root.translate_coords(window, 0, 0)
                result.append(Window(id, name, id in active, place.x, place.y, size.width, size.height))
            except self.gone:
                pass  # meanwhile
        return result

    def activate(self, window):
        xdotool("windowactivate", window.id)

    def answers(self, window, seconds):
        """Whether the program says in that time that it serves the window's events: its answer to a ping goes
        to the root window."""
        self.asked += 1
        self.ask(window)
        deadline = time.monotonic() + seconds
        while True:
            while self.display.pending_events():
                event = self.display.next_event()
                if isinstance(event, self.ClientMessage) and list(event.data[1])[:2] == self.question(window)[:2]:
                    return True
            left = deadline - time.monotonic()
            if left <= 0:
                return False
            select.select([self.display.fileno()], [], [], left)

    def question(self, window):
        return [self.atom("_NET_WM_PING"), self.asked, window.id, 0, 0]

    def ask(self, window):
        receiver = self.display.create_resource_object("window", window.id)
        message = self.ClientMessage(
            window=receiver, client_type=self.atom("WM_PROTOCOLS"), data=(32, self.question(window))
        )
        receiver.send_event(message, onerror=lambda *_: True)
        self.display.flush()

    def change(self, window, what, numbers):
        if what == "resize":
            xdotool("windowsize", window.id, 300 + numbers[0] % 1100, 200 + numbers[1] % 700)
        elif what == "move":
            xdotool("windowmove", window.id, numbers[0] % 900 - 100, numbers[1] % 600 - 100)
        elif what == "minimise":
            xdotool("windowminimize", window.id)
        else:  # as the window manager's keys are
            self.keys([{"close": "alt+F4", "maximise": "alt+F10"}[what]])


class SwayDesk(Hands):
    """Here no program can ask another one whether it answers. What can be seen is that its main thread
    waits: LOOKS times in a row, for in flight it does now and then, too."""

    LOOKS = 5

    def __init__(self, process):
        self.process = process

    def message(self, *arguments):
        answer = subprocess.run(["swaymsg", *arguments], capture_output=True, text=True, timeout=60)
        return answer.stdout

    def windows(self):
        found = []

        def collect(node):
            if node.get("pid"):
                frame, inner = node["rect"], node["window_rect"]
                found.append(
                    Window(node["id"], node["name"] or "", node["focused"], frame["x"] + inner["x"],
                           frame["y"] + inner["y"], inner["width"], inner["height"])
                )
                if node["urgent"] or not node["visible"]:
                    self.activate(found[-1])  # a box left behind or put aside: only its user can fetch it
            for child in node["nodes"] + node["floating_nodes"]:
                collect(child)

        collect(json.loads(self.message("-t", "get_tree")))
        return found

    def activate(self, window):
        self.message(f"[con_id={window.id}] focus")

    def answers(self, _window, seconds):
        deadline, waits = time.monotonic() + seconds, 0
        while waits < self.LOOKS and time.monotonic() < deadline:
            time.sleep(0.01)
            waits = waits + 1 if self.is_waiting() else 0
        return waits == self.LOOKS

    def is_waiting(self):
        try:
            with open(f"/proc/{self.process()}/stat") as status:
                return status.read().rpartition(")")[2].split()[0] == "S"
        except OSError:
            return False  # it has ended

    def change(self, window, what, numbers):
        command = {
            "resize": f"resize set {300 + numbers[0] % 1100} {200 + numbers[1] % 700}",
            "move": f"move position {numbers[0] % 900 - 100} {numbers[1] % 600 - 100}",
            "minimise": "move scratchpad",
            "maximise": "fullscreen toggle",
            "close": "kill",
        }[what]
        self.message(f"[con_id={window.id}] {command}")


def desk(process):
    """`process()` is the program's number."""
    return SwayDesk(process) if "SWAYSOCK" in os.environ else XDesk()
