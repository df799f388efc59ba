"""The emulated printer in the guest, at the end of one cable or another."""

import json
import shlex
import subprocess
import time
from pathlib import Path

SCRIPTED_ADDRESS = "192.168.1.77"
FOLDER = "/run/printer"


class UsbipPrinter:
    """On the guest's own virtual host controller, without a hub. With `joins` it has a radio, in place of a scripted
    answer. Its files lie where only the guest's root reads them; frames hold the password."""

    def __init__(self, guest, share, script, joins):
        self._guest = guest
        (share / "script.json").write_text(json.dumps(script))
        radio = f"--join-command {FOLDER}/radio" if joins else ""
        guest.check(
            f"mkdir -m 700 {FOLDER} && "
            f"printf '#!/bin/sh\\n/mnt/share/printer-join.sh | tee /run/address\\n' >{FOLDER}/radio && "
            f"chmod +x {FOLDER}/radio && "
            f"systemd-run --quiet --unit=printer --property=StandardError=file:{FOLDER}/errors "
            f"/mnt/share/printer-emulator --usbip {radio} --script /mnt/share/script.json --frames {FOLDER}/frames"
        )
        wait_for_driver(guest, 1)

    def frames(self):
        return read_frames(self._guest.check(f"cat {FOLDER}/frames"))

    def errors(self):
        return self._guest.check(f"cat {FOLDER}/errors")

    def stop(self):
        pass  # It ends with the guest.


class HubPrinter:
    """At a port of the hub that hangs at the guest's xHCI controller; the printer itself runs outside. `folder` holds its
    files and is nobody else's."""

    def __init__(self, guest, emulator, folder, name, port, script, options=()):
        self._frames = folder / f"{name}.frames"
        self._errors = folder / f"{name}.errors"
        self._frames.touch(mode=0o600)
        path = folder / f"{name}.json"
        path.write_text(json.dumps(script))
        socket = folder / f"{name}.socket"
        command = [emulator, "--usbredir", socket, "--script", path, "--frames", self._frames, *options]
        with self._errors.open("wb") as errors:
            self._process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stderr=errors)
        while not socket.exists():
            assert self._process.poll() is None, self.errors()
            time.sleep(0.05)
        guest.check(f"echo {shlex.quote(SCRIPTED_ADDRESS)} >/run/address")
        guest.plug(name, socket, port)

    def frames(self):
        return read_frames(self._frames.read_text())

    def errors(self):
        return self._errors.read_text()

    def stop(self):
        self._process.terminate()
        self._process.wait()


def read_frames(lines):
    return [bytes.fromhex(line) for line in lines.split()]


def wait_for_driver(guest, count):
    """Until the kernel's printer driver has so many printers, and udev has given them to the one at the seat."""
    guest.check(
        f"for i in $(seq 300); do [ $(ls /dev/usb | grep -c '^lp') = {count} ] && break; sleep 0.2; done; "
        f"[ $(ls /dev/usb | grep -c '^lp') = {count} ] || {{ dmesg | tail -20; false; }}; udevadm settle"
    )
