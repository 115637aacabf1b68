"""The program as a screen reader knows it: by names, values, descriptions, states and events alone."""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# How many seconds anything may take on a machine that is busy with other things. The program answers
# nobody while a shell flies.
PATIENCE = 120
KEY_PATIENCE = 10
# ... and how long screen readers wait for an answer.
USUAL_PATIENCE = 0.8
RETURN, SPACE = 0xFF0D, 0x20
Atspi.init()
Atspi.set_timeout(1000 * PATIENCE, 1000 * PATIENCE)


def wait_for(what, condition):
    """What the condition gives as soon as that is something. It is asked again after each event."""
    deadline = time.monotonic() + PATIENCE
    while not (found := condition()):
        if time.monotonic() > deadline:
            sys.exit(f"FAILED: no {what}")
        GLib.timeout_add(50, lambda: False)  # not all that changes is an event
        GLib.MainContext.default().iteration(True)
    return found


class Thing:
    """A window or a control. It may go at any time: what has gone has neither name nor children."""

    def __init__(self, accessible):
        self._it = accessible

    def _ask(self, question, otherwise):
        try:
            return question(self._it)
        except GLib.Error:
            return otherwise

    @property
    def name(self):
        return " ".join(self._ask(Atspi.Accessible.get_name, "").split())

    @property
    def description(self):
        return " ".join(self._ask(Atspi.Accessible.get_description, "").split())

    @property
    def role(self):
        return self._ask(Atspi.Accessible.get_role_name, "")

    @property
    def value(self):
        if "Value" in self._ask(Atspi.Accessible.get_interfaces, []):
            return self._ask(Atspi.Value.get_current_value, None)

    def keys(self):
        """The keys that do what it does, as far as it tells them."""
        count = self._ask(Atspi.Action.get_n_actions, 0)
        found = [self._ask(lambda it, at=at: Atspi.Action.get_key_binding(it, at), "") for at in range(count)]
        return sorted(set(found) - {""})

    def states(self):
        found = self._ask(Atspi.Accessible.get_state_set, None)
        return {state.value_nick for state in found.get_states()} if found else set()

    def children(self):
        """What is shown in it."""
        count = self._ask(Atspi.Accessible.get_child_count, 0)
        found = [self._ask(lambda it, at=at: it.get_child_at_index(at), None) for at in range(count)]
        return [child for child in map(Thing, filter(None, found)) if "showing" in child.states()]

    def find(self, name, role=None):
        """The first thing of that name in it, at any depth, or nothing."""
        for child in self.children():
            if child.name == name and role in (None, child.role):
                return child
            if found := child.find(name, role):
                return found

    def press(self):
        """Does what a click does, and does not wait for what comes of it."""
        count = self._ask(Atspi.Action.get_n_actions, 0)
        names = [Atspi.Action.get_action_name(self._it, at) for at in range(count)]
        Atspi.Action.do_action(self._it, names.index("Press"))

    def set_value(self, value):
        Atspi.Value.set_current_value(self._it, value)

    def key(self, key, done):
        """Presses a key of the X keyboard when the thing has the focus. While windows come and go a key
        can be lost: if it is not done after some seconds, again."""
        presses = [0]

        def is_done():
            if "focused" in self.states() and time.monotonic() > presses[-1] + KEY_PATIENCE:
                Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)
                presses.append(time.monotonic())
            return done()

        Atspi.Component.grab_focus(self._it)
        return wait_for(f"effect of a key on '{self.name}'", is_done)


class Program(Thing):
    """A program on the desktop. `heard` is what it has announced, and the names and descriptions that have
    changed, as they were told when the event came."""

    def __init__(self, name):
        desktop = Atspi.get_desktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        super().__init__(wait_for(name, lambda: self._on(desktop, name)))
        self.heard = []
        self._listener = Atspi.EventListener.new(self._hear)
        # Not before it is there: while it starts, the toolkit can miss that somebody wants events.
        for what in "name", "description":
            self._listener.register(f"object:property-change:accessible-{what}")
        self._listener.register("object:announcement")  # newer toolkits send the text along

    @staticmethod
    def _on(desktop, name):
        programs = [desktop.get_child_at_index(at) for at in range(desktop.get_child_count())]
        return next((it for it in programs if it and it.get_name() == name), None)

    def _hear(self, event):
        if event.type.startswith("object:announcement"):
            return self.heard.append(event.any_data)
        it, asked = Thing(event.source), time.monotonic()
        text = it.name if event.type.endswith("name") else it.description
        self.heard.append(text if time.monotonic() < asked + USUAL_PATIENCE else f"(too late) {text}")

    @staticmethod
    def hear_what_has_come():
        """What is announced behind a change waits while that is asked for."""
        while GLib.MainContext.default().iteration(False):
            pass
