#!/usr/bin/python3
"""A mock NetworkManager on a private system bus, told what to be by its standard input.

Prints the bus address, then reads one JSON list a line, ["operation", argument, ...], and answers "ok" or what went wrong.
"""
import json
import os
import subprocess
import sys

import dbus
import dbusmock

NM = "org.freedesktop.NetworkManager"
MANAGER = "/org/freedesktop/NetworkManager"
WIRELESS = NM + ".Device.Wireless"
SECURITY = "802-11-wireless-security"


class Bus(dbusmock.DBusTestCase):
    pass


class Mock:
    """One method an operation; objects are named by the last part of their path."""

    def __init__(self):
        Bus.setUpClass()
        Bus.start_system_bus()
        self.bus = Bus.get_dbus(system_bus=True)
        self.server = None

    def object(self, path):
        return dbus.Interface(self.bus.get_object(NM, path), dbusmock.MOCK_IFACE)

    def set(self, path, interface, name, value):
        dbus.Interface(self.bus.get_object(NM, path), "org.freedesktop.DBus.Properties").Set(interface, name, value)

    def start(self, radio=True, permission="yes"):
        self.server, root = Bus.spawn_server_template(
            "networkmanager", {"NetworkingEnabled": True, "WirelessEnabled": radio, "Version": "1.42.4"},
            stdout=subprocess.DEVNULL)
        self.template = dbus.Interface(root, dbusmock.MOCK_IFACE)
        self.object(MANAGER).AddProperty(NM, "PrimaryConnection", dbus.ObjectPath("/"))
        self.permission(permission)

    def stop(self):
        if self.server:
            self.server.terminate()
            self.server.wait()
            self.server = None

    def permission(self, result):
        self.object(MANAGER).AddMethod(
            NM, "GetPermissions", "", "a{ss}",
            f"ret = dbus.Dictionary({{'{NM}.wifi.scan': '{result}'}}, signature='ss')")
        self.object(MANAGER).EmitSignal(NM, "CheckPermissions", "", [])

    def radio(self, enabled):
        self.set(MANAGER, NM, "WirelessEnabled", dbus.Boolean(enabled))

    def hardware_switch(self, enabled):
        self.set(MANAGER, NM, "WirelessHardwareEnabled", dbus.Boolean(enabled))

    def device(self, name, scan="newer", managed=True):
        path = self.template.AddWiFiDevice(name, name, 30)
        device = self.object(path)
        device.AddProperty(WIRELESS, "ActiveAccessPoint", dbus.ObjectPath("/"))
        device.AddProperty(WIRELESS, "LastScan", dbus.Int64(1000))
        self.set(path, NM + ".Device", "Managed", dbus.Boolean(managed))
        code = {
            "newer": f"self.UpdateProperties('{WIRELESS}', {{'LastScan': dbus.Int64(2000)}})",
            "refused": f"raise dbus.exceptions.DBusException('too soon', name='{NM}.Device.NotAllowed')",
            "older": f"self.UpdateProperties('{WIRELESS}', {{'LastScan': dbus.Int64(500)}})",
            "silent": "pass",
        }[scan]
        device.AddMethod(WIRELESS, "RequestScan", "a{sv}", "", code)

    def ap(self, device, name, ssid_hex, strength, frequency=2412, flags=1, wpa=0, rsn=0x100):
        path = self.template.AddAccessPoint(
            f"{MANAGER}/Devices/{device}", name, "template", "00:11:22:33:44:55", 2, frequency, 5400, strength, rsn or wpa)
        self.object(path).UpdateProperties(NM + ".AccessPoint", {
            "Ssid": dbus.ByteArray(bytes.fromhex(ssid_hex)), "Flags": dbus.UInt32(flags),
            "WpaFlags": dbus.UInt32(wpa), "RsnFlags": dbus.UInt32(rsn)})

    def profile(self, device, name, ssid, secrets=None, error=None):
        """A stored profile; `secrets` are GetSecrets' texts, `error` the D-Bus error that it raises instead."""
        ap = f"{name}_template"
        self.template.AddAccessPoint(
            f"{MANAGER}/Devices/{device}", ap, ssid, "00:11:22:33:44:66", 2, 2412, 5400, 1, 0x100)
        self.template.AddWiFiConnection(f"{MANAGER}/Devices/{device}", name, ssid, "wpa-psk")
        self.template.RemoveAccessPoint(f"{MANAGER}/Devices/{device}", f"{MANAGER}/AccessPoint/{ap}")
        if error:
            code = f"raise dbus.exceptions.DBusException('no', name={error!r})"
        else:
            texts = {key: text for key, text in (secrets or {}).items()}
            code = (f"ret = dbus.Dictionary({{'{SECURITY}': dbus.Dictionary("
                    f"{{k: dbus.String(v, variant_level=1) for k, v in {texts!r}.items()}}, signature='sv')}},"
                    " signature='sa{sv}')")
        self.object(f"{MANAGER}/Settings/{name}").AddMethod(
            NM + ".Settings.Connection", "GetSecrets", "s", "a{sa{sv}}", code)

    def join(self, device, profile, ap, primary=False):
        path = self.template.AddActiveConnection(
            [f"{MANAGER}/Devices/{device}"], f"{MANAGER}/Settings/{profile}", f"{MANAGER}/AccessPoint/{ap}",
            f"active_{device}", dbus.UInt32(2))
        self.set(f"{MANAGER}/Devices/{device}", WIRELESS, "ActiveAccessPoint",
                 dbus.ObjectPath(f"{MANAGER}/AccessPoint/{ap}"))
        if primary:
            self.set(MANAGER, NM, "PrimaryConnection", dbus.ObjectPath(path))

    def strength(self, ap, strength):
        self.set(f"{MANAGER}/AccessPoint/{ap}", NM + ".AccessPoint", "Strength", dbus.Byte(strength))


def main():
    mock = Mock()
    try:
        print(os.environ["DBUS_SYSTEM_BUS_ADDRESS"], flush=True)
        for line in sys.stdin:
            operation, *arguments = json.loads(line)
            try:
                getattr(mock, operation)(*arguments)
                print("ok", flush=True)
            except Exception as failure:  # pylint: disable=broad-except
                print(f"{operation}: {failure!r}".replace("\n", " "), flush=True)
    finally:
        mock.stop()
        Bus.tearDownClass()


if __name__ == "__main__":
    main()
