#!/usr/bin/python3
"""Usage: settings_portal.py NAMESPACE KEY VALUE

A desktop's settings portal on the session bus, which has that setting (a number, or true or false) and
some others. Says "ready" when it can be asked.
"""
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

DBusGMainLoop(set_as_default=True)
words = {"true": dbus.Boolean(True), "false": dbus.Boolean(False)}
settings = {
    "org.freedesktop.appearance": {"color-scheme": dbus.UInt32(1)},
    "org.gnome.desktop.interface": {"font-name": "Sans 11", "text-scaling-factor": 1.0},
}


class Portal(dbus.service.Object):
    @dbus.service.method("org.freedesktop.portal.Settings", in_signature="as", out_signature="a{sa{sv}}")
    def ReadAll(self, namespaces):
        return {name: settings[name] for name in settings if name in namespaces}


namespace, key, value = sys.argv[1:]
settings[namespace][key] = words[value] if value in words else dbus.UInt32(int(value))
bus = dbus.SessionBus()
name = dbus.service.BusName("org.freedesktop.portal.Desktop", bus)
portal = Portal(bus, "/org/freedesktop/portal/desktop")
print("ready", flush=True)
GLib.MainLoop().run()
