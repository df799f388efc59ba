#!/usr/bin/python3
"""Installs the package in a guest with a real kernel and real services, and walks the wizard there, with printers that
are USB devices like any other: alone with a radio of its own, or behind a hub.

usage: system_vm_test.py FOLDER PACKAGE PRINTER-EMULATOR TEXT-TABLE [STORY ...]

FOLDER holds the image (see image/build-image.sh); pictures and logs of every story are left in FOLDER/stories.
"""

import errno
import json
import re
import shutil
import signal
import sys
import tempfile
import time
from pathlib import Path

from guest_machine import GuestMachine
from printers import HubPrinter, UsbipPrinter, wait_for_driver

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
# Zero-length packets before, within and behind a reply; the last reply ends with one because it fills its packets.
EMPTY_PACKETS = {
    "faults": [
        {"command": "FF21", "slices": [0, 0, 7, 0, 9, 0]},
        {"command": "FF80", "slices": [16, 0, 0]},
        {"command": "FF0F", "slices": [0, 16, 0, 64, 0]},
    ]
}
FAR_LONGER_THAN_A_STORY = 120_000
CUT_WHILE_JOINING = {
    "joinTime": FAR_LONGER_THAN_A_STORY,
    "pulledPlug": "busErrors",
    "events": [{"action": "unplug", "after": {"command": "FF80"}, "delay": 2000}],
}
CUT_WHILE_THE_ADDRESS_IS_ASKED_FOR = {
    "faults": [{"command": "FF0F", "delay": FAR_LONGER_THAN_A_STORY}],
    "pulledPlug": "stalls",
    "events": [{"action": "unplug", "after": {"command": "FF0F"}, "delay": 1000}],
}


class Story:
    """One walk through the wizard in a guest that was restored for it."""

    def __init__(self, guest, share, folder, results, name):
        self._guest = guest
        self._share = share
        self._folder = folder
        self._results = results / name
        self._printers = []
        shutil.rmtree(self._results, ignore_errors=True)
        self._results.mkdir(parents=True)

    def attach(self):
        """A printer with a radio, without a hub."""
        self._printers = [UsbipPrinter(self._guest, self._share, JOINS, joins=True)]
        wait_for_driver(self._guest, 1)
        return self._printers[0]

    def plug(self, port, script, *options):
        """A printer whose answers are the script's, into a port of the hub."""
        name = f"printer{len(self._printers) + 1}"
        emulator = self._share / "printer-emulator"
        printer = HubPrinter(self._guest, emulator, self._folder, name, f"1.{port}", script, options)
        self._printers.append(printer)
        wait_for_driver(self._guest, len(self._printers))
        return printer

    def stop(self):
        for printer in self._printers:
            printer.stop()

    def walk(self, name):
        """Fails when the walk of this name in walk.py does."""
        variables = (
            f"WT_REACTION_TIME=90 WT_NETWORK='{NETWORK}' WT_PASSWORD_LENGTH={len(PASSWORD)} WT_ADDRESS_FILE=/run/address "
            f"WT_PRINTERS={len(self._printers)}"
        )
        result = self._guest.run(
            f"/mnt/share/desktop-run {USER} \"{variables} xvfb-run --auto-servernum "
            "--server-args='-screen 0 1024x768x24' dbus-run-session -- "
            f"python3 /mnt/share/walk.py {name} /mnt/share/wifitool.ts\"",
            STORY_LIMIT,
        )
        self.keep("walk", result.output.encode())
        self.keep("bus", self.bus().encode())
        self._guest.run(f"cp /home/{USER}/*.png /mnt/share/pictures/")
        for picture in (self._share / "pictures").glob("*.png"):
            shutil.move(picture, self._results / picture.name)
        assert result.status == 0, f"status {result.status}\n{result.output[-4000:]}"

    def run_remotely(self, arguments):
        """The command-line program, as somebody runs it who is not at the computer; its status and what it printed."""
        command = f"printf '%s\\n' '{PASSWORD}' | wifitoolctl {arguments}"
        result = self._guest.run(f"/mnt/share/remote-run {USER} \"{command}\"", STORY_LIMIT)
        with (self._results / "remote.log").open("a") as log:
            log.write(f"wifitoolctl {arguments}\n{result.output}status {result.status}\n")
        return result

    def keep(self, name, content):
        (self._results / f"{name}.log").write_bytes(content)

    def bus(self):
        """What was on the USB buses, as usbmon tells it: every transfer with its end, and no more than its first 32 bytes."""
        return self._guest.check("cat /run/bus")

    def check_the_secret_is_kept(self, program="wifitool", line="next step"):
        """The journal holds the program's lines; neither it nor any log holds the password."""
        journal = self._guest.check(f"journalctl --no-pager -o cat _COMM={program}")
        assert line in journal, f"the journal lacks the program's lines:\n{journal[-2000:]}"
        logs = self._guest.check(f"cat /home/{USER}/.local/state/Logs/{program}/*.log")
        self.keep("journal", journal.encode())
        self.keep("wifitool", logs.encode())
        written = {
            "journal": self._guest.check("journalctl --no-pager -o cat"),
            "logs": logs,
            **{f"printer {number}": printer.errors() for number, printer in enumerate(self._printers, 1)},
        }
        shown = secret_search.find(PASSWORD, {name: text.encode() for name, text in written.items()})
        assert not shown, f"the password is in {shown}"

    def check_the_kernel_has_the_printer(self):
        self._guest.check("test -c /dev/usb/lp0 && ls /sys/bus/usb/drivers/usblp/*:1.0")


def expect_frames(printer, *expected):
    assert printer.frames() == list(expected), [frame[:60].hex() for frame in printer.frames()]


def expect_last_read_ended(story, status):
    """What the host controller itself said."""
    ends = re.findall(r" C Bi:\d+:\d+:2 (-?\d+) ", story.bus())
    assert ends and ends[-1] == str(-status), ends[-5:]


ALL_FRAMES = frames.wake_up(), frames.configuration(NETWORK, PASSWORD), frames.address_query()


def complete(guest, story):
    printer = story.attach()
    uri = "usb://Quillmark/QZ100?serial=QM0001"
    assert uri in guest.check("lpinfo -v"), "the spooler does not see the printer"
    # Only who sits at the computer gets the printer, by the package's rule, not by a group.
    guest.check(f"! id -nG {USER} | grep -Eqw 'lp|root|sudo'")
    guest.check("! runuser -u nobody -- test -w /dev/$(udevadm info --query=name /sys/class/usbmisc/lp0/device/..)")
    story.walk("complete")
    expect_frames(printer, *ALL_FRAMES)
    leases = guest.check("cat /run/access-point/leases")
    address = guest.check("cat /run/address").strip()
    assert f" {address} " in leases, f"{address} is not among the leases:\n{leases}"
    guest.check(f"ip netns exec access-point busybox ping -c 3 -w 30 {address}")
    story.check_the_kernel_has_the_printer()
    story.check_the_secret_is_kept()


def wrong_password(guest, story):
    printer = story.attach()
    story.walk("wrong-password")
    expect_frames(printer, frames.wake_up(), frames.configuration(NETWORK, "not-the-password"))
    guest.check("! ip netns exec printer ip -4 -o addr show wlan2 | grep -q inet")
    story.check_the_kernel_has_the_printer()
    story.check_the_secret_is_kept()


def empty_packets(guest, story):
    """Behind a hub, in packets of 64 bytes, with zero-length ones in every place."""
    printer = story.plug(1, EMPTY_PACKETS)
    assert guest.check("cat /sys/bus/usb/devices/*-1.1/bDeviceClass"), "not behind the hub"
    story.walk("complete")
    expect_frames(printer, *ALL_FRAMES)
    story.check_the_kernel_has_the_printer()
    story.check_the_secret_is_kept()


def two_printers(guest, story):
    """The first port's printer is configured, although the other one was there before and is of the other vendor."""
    other = story.plug(2, {})
    printer = story.plug(1, {}, "--vendor", "6A1C", "--serial", "QM0002")
    story.walk("complete")
    expect_frames(printer, *ALL_FRAMES)
    expect_frames(other)
    story.check_the_secret_is_kept()


def cut_while_joining(guest, story):
    story.plug(1, CUT_WHILE_JOINING)
    story.walk("unplugged")
    expect_last_read_ended(story, errno.EPROTO)
    guest.check("! test -e /dev/usb/lp0")
    story.check_the_secret_is_kept()


def cut_while_the_address_is_asked_for(guest, story):
    story.plug(1, CUT_WHILE_THE_ADDRESS_IS_ASKED_FOR)
    story.walk("unplugged")
    expect_last_read_ended(story, errno.EPIPE)
    guest.check("! test -e /dev/usb/lp0")
    story.check_the_secret_is_kept()


def without_a_seat(guest, story):
    """Over ssh only the group of printers may use one, and needs no display."""
    printers = [story.plug(1, {}), story.plug(2, {}, "--vendor", "6A1C", "--serial", "QM0002")]
    join = f"join --network '{NETWORK}' --password-file - --all --json"
    refused = story.run_remotely(join)
    assert refused.status == 4, refused
    assert "signed in at this computer itself" in refused.output, refused.output
    for printer in printers:
        expect_frames(printer)

    guest.check(f"usermod -aG lp {USER}")
    joined = story.run_remotely(join)
    assert joined.status == 0, joined
    *_, summary = (json.loads(line) for line in joined.output.splitlines() if line.startswith("{"))
    assert summary == {"event": "summary", "joined": 2, "failed": 0, "brokenOff": 0}, summary
    for printer in printers:
        expect_frames(printer, *ALL_FRAMES)
    assert PASSWORD not in refused.output + joined.output
    story.check_the_secret_is_kept("wifitoolctl", "wifitoolctl ends with 0")


STORIES = {
    "complete": complete,
    "wrong-password": wrong_password,
    "behind-a-hub": empty_packets,
    "two-printers": two_printers,
    "cut-while-joining": cut_while_joining,
    "cut-while-asking-for-the-address": cut_while_the_address_is_asked_for,
    "without-a-seat": without_a_seat,
}


def make_ready(guest):
    """Package installed, access point up, and the computer on its network with a password that NetworkManager keeps."""
    guest.start(BOOT_LIMIT)
    guest.check("modprobe -a vhci-hcd usblp usbmon")
    guest.check("systemd-run --quiet sh -c 'exec cat /sys/kernel/debug/usb/usbmon/0u >/run/bus'")
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
    with tempfile.TemporaryDirectory() as folder:
        story = Story(guest, share, Path(folder), results, name)
        try:
            guest.restore(state)
            STORIES[name](guest, story)
        finally:
            story.stop()
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
    folder, package, emulator, table = (Path(argument).resolve() for argument in sys.argv[1:5])
    stories = sys.argv[5:]
    # Whoever ends the test ends its machine as well.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
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
        for name in stories or STORIES:
            cases.run(name, play, guest, share, folder / "stories", state, name)
    cases.leave()


if __name__ == "__main__":
    main()
