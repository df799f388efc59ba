#!/usr/bin/python3
"""Installs the package in a guest with a real kernel and real services, and walks the wizard there, with a printer that
is a USB device like any other and joins the network by a radio of its own.

usage: system_vm_test.py FOLDER PACKAGE PRINTER-EMULATOR TEXT-TABLE

FOLDER holds the image (see image/build-image.sh); pictures and logs of every story are left in FOLDER/stories.
"""

import json
import shutil
import sys
import tempfile
import time
from pathlib import Path

from guest_machine import GuestMachine

HERE = Path(__file__).resolve().parent
SYSTEM = HERE.parent / "system"
sys.path.append(str(SYSTEM))

import printer_frames as frames  # noqa: E402
import secret_search  # noqa: E402
from cases import Cases  # noqa: E402

NETWORK = "Quill House"
PASSWORD = "seven-grey-geese"
BOOT_LIMIT = 600
STORY_LIMIT = 900
USER = "alice"
OUTSIDE_HELPERS = ("wizard_window.py",)

JOINS = {"addressTime": 1000}
UNPLUGS_WHILE_JOINING = {
    "joinTime": 30000,
    "events": [{"action": "unplug", "after": {"command": "FF80", "occurrence": 1}, "delay": 2000}],
}


class Story:
    """One walk through the wizard in a guest that was restored for it."""

    def __init__(self, guest, share, results, name):
        self._guest = guest
        self._share = share
        self._name = name
        self._results = results / name
        shutil.rmtree(self._results, ignore_errors=True)
        self._results.mkdir(parents=True)

    def attach_printer(self, script, joins):
        """The printer's own files lie where only root reads them; frames hold the password."""
        (self._share / "script.json").write_text(json.dumps(script))
        radio = "--join-command /run/printer/radio" if joins else ""
        self._guest.check(
            "mkdir -m 700 /run/printer && "
            "printf '#!/bin/sh\\n/mnt/share/printer-join.sh | tee /run/address\\n' >/run/printer/radio && "
            "chmod +x /run/printer/radio && "
            "systemd-run --quiet --unit=printer --property=StandardError=file:/run/printer/errors "
            f"/mnt/share/printer-emulator --usbip {radio} --script /mnt/share/script.json "
            "--frames /run/printer/frames && "
            "until [ -c /dev/usb/lp0 ]; do systemctl is-active --quiet printer || exit 1; sleep 0.2; done; udevadm settle"
        )

    def walk(self):
        variables = (
            f"WT_REACTION_TIME=90 WT_NETWORK='{NETWORK}' WT_PASSWORD_LENGTH={len(PASSWORD)} WT_ADDRESS_FILE=/run/address"
        )
        result = self._guest.run(
            f"/mnt/share/desktop-run {USER} \"{variables} xvfb-run --auto-servernum "
            "--server-args='-screen 0 1024x768x24' dbus-run-session -- "
            f"python3 /mnt/share/walk.py {self._name} /mnt/share/wifitool.ts\"",
            STORY_LIMIT,
        )
        self.keep("walk", result.output.encode())
        self._guest.run(f"cp /home/{USER}/*.png /mnt/share/pictures/")
        for picture in (self._share / "pictures").glob("*.png"):
            shutil.move(picture, self._results / picture.name)
        assert result.status == 0, f"status {result.status}\n{result.output[-4000:]}"

    def keep(self, name, content):
        (self._results / f"{name}.log").write_bytes(content)

    def frames(self):
        return [bytes.fromhex(line) for line in self._guest.check("cat /run/printer/frames").split()]

    def check_the_secret_is_kept(self):
        """The journal holds the program's lines; neither it nor any log holds the password."""
        journal = self._guest.check("journalctl --no-pager -o cat _COMM=wifitool")
        assert "next step" in journal, f"the journal lacks the program's lines:\n{journal[-2000:]}"
        logs = self._guest.check(f"cat /home/{USER}/.local/state/Logs/wifitool/*.log")
        self.keep("journal", journal.encode())
        self.keep("wifitool", logs.encode())
        written = {
            "journal": self._guest.check("journalctl --no-pager -o cat"),
            "logs": logs,
            "printer": self._guest.check("cat /run/printer/errors"),
        }
        shown = secret_search.find(PASSWORD, {name: text.encode() for name, text in written.items()})
        assert not shown, f"the password is in {shown}"

    def check_the_kernel_has_the_printer(self):
        self._guest.check("test -c /dev/usb/lp0 && ls /sys/bus/usb/drivers/usblp/*:1.0")


def complete(guest, story):
    story.attach_printer(JOINS, joins=True)
    uri = "usb://Quillmark/QZ100?serial=QM0001"
    assert uri in guest.check("lpinfo -v"), "the spooler does not see the printer"
    # Only who sits at the computer gets the printer, by the package's rule, not by a group.
    guest.check(f"! id -nG {USER} | grep -Eqw 'lp|root|sudo'")
    guest.check("! runuser -u nobody -- test -w /dev/$(udevadm info --query=name /sys/class/usbmisc/lp0/device/..)")
    story.walk()
    assert story.frames() == [frames.wake_up(), frames.configuration(NETWORK, PASSWORD), frames.address_query()], [
        frame[:60].hex() for frame in story.frames()
    ]
    leases = guest.check("cat /run/access-point/leases")
    address = guest.check("cat /run/address").strip()
    assert f" {address} " in leases, f"{address} is not among the leases:\n{leases}"
    guest.check(f"ip netns exec access-point busybox ping -c 3 -w 30 {address}")
    story.check_the_kernel_has_the_printer()
    story.check_the_secret_is_kept()


def wrong_password(guest, story):
    story.attach_printer(JOINS, joins=True)
    story.walk()
    configuration = frames.configuration(NETWORK, "not-the-password")
    assert story.frames() == [frames.wake_up(), configuration], [frame[:60].hex() for frame in story.frames()]
    guest.check("! ip netns exec printer ip -4 -o addr show wlan2 | grep -q inet")
    story.check_the_kernel_has_the_printer()
    story.check_the_secret_is_kept()


def unplugged(guest, story):
    story.attach_printer(UNPLUGS_WHILE_JOINING, joins=False)
    story.walk()
    guest.check("! test -e /dev/usb/lp0")
    story.check_the_secret_is_kept()


STORIES = {"complete": complete, "wrong-password": wrong_password, "unplugged": unplugged}


def make_ready(guest):
    """Package installed, access point up, and the computer on its network with a password that NetworkManager keeps."""
    guest.start(BOOT_LIMIT)
    guest.check("modprobe vhci-hcd && modprobe usblp")
    guest.check("dpkg -i /mnt/share/wifitool.deb", 300)
    guest.check(f"printf '%s\\n' '{PASSWORD}' | /mnt/share/networks-up.sh '{NETWORK}'", 300)
    guest.check(
        f"/mnt/share/desktop-run {USER} \"nmcli --wait 120 device wifi connect '{NETWORK}' password '{PASSWORD}' private yes\"",
        300,
    )
    # What the desktop writes here about nmcli's own command line is not the program's doing.
    guest.check("journalctl --rotate --vacuum-time=1s -q; echo 3 >/proc/sys/vm/drop_caches")


def play(guest, share, results, state, name):
    print(f"         {name} ...", flush=True)
    start = time.monotonic()
    guest.restore(state)
    try:
        STORIES[name](guest, Story(guest, share, results, name))
    finally:
        guest.stop()
        print(f"         {name}: {time.monotonic() - start:.0f} s", flush=True)


def fill(share, package, emulator, table):
    (share / "pictures").mkdir()
    shutil.copy(package, share / "wifitool.deb")
    shutil.copy(emulator, share / "printer-emulator")
    shutil.copy(table, share / "wifitool.ts")
    for file in [*(HERE / "guest").iterdir(), *(SYSTEM / name for name in OUTSIDE_HELPERS)]:
        if file.is_file():
            shutil.copy(file, share)


def main():
    folder, package, emulator, table = (Path(argument).resolve() for argument in sys.argv[1:])
    cases = Cases()
    with tempfile.TemporaryDirectory() as temporary:
        share = Path(temporary, "share")
        share.mkdir()
        fill(share, package, emulator, table)
        state = Path(temporary, "ready.state")
        guest = GuestMachine(folder, folder / "machine", share)
        try:
            start = time.monotonic()
            make_ready(guest)
            guest.save(state)
        finally:
            guest.stop()
        print(f"         ready after {time.monotonic() - start:.0f} s", flush=True)
        for name in STORIES:
            cases.run(name, play, guest, share, folder / "stories", state, name)
    cases.leave()


if __name__ == "__main__":
    main()
