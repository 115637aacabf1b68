#!/usr/bin/python3
"""Usage: settings_portal.py NAMESPACE KEY VALUE

A desktop's settings portal on the session bus, with that setting (a number, true or false) and another. It
prints when it is ready, and when it is asked.
"""
import sys

import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib


class Portal(dbus.service.Object):
    @dbus.service.method("org.freedesktop.portal.Settings", in_signature="as", out_signature="a{sa{sv}}")
    def ReadAll(self, namespaces):
        print("asked", flush=True)
        return {name: settings[name] for name in settings if name in namespaces}


namespace, key, value = sys.argv[1:]
setting = dbus.UInt32(int(value)) if value.isdigit() else dbus.Boolean(value == "true")
settings = {"org.freedesktop.appearance": {"color-scheme": dbus.UInt32(1)}}
settings.setdefault(namespace, {})[key] = setting
bus = dbus.SessionBus(mainloop=DBusGMainLoop())
name = dbus.service.BusName("org.freedesktop.portal.Desktop", bus)
portal = Portal(bus, "/org/freedesktop/portal/desktop")
print("ready", flush=True)
GLib.MainLoop().run()
