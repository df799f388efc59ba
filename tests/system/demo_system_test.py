#!/usr/bin/python3
"""Lets the demo walk every story by itself; each must end as told, on its screen, with a picture of every screen.

usage: demo_system_test.py WIFITOOL-DEMO
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

from cases import Cases

PNG_MAGIC = b"\x89PNG"
SPEED = "6"
LAST_PICTURES = {
    "success": "WTCompleteView",
    "busy": "alert",
    "not-permitted": "alert",
    "no-printer": "alert",
    "manual-entry": "WTCompleteView",
    "refused": "alert",
    "wrong-password": "WTCompleteView",
    "wifi-off": "WTFailedView",
    "unplugged": "WTFailedView",
    "no-address": "WTFailedView",
    "held": "WTFailedView",
    "not-permitted-usb": "WTFailedView",
    "asleep": "WTFailedView",
    "wps": "WTConfigStateInfoView",
    "wps-menu": "WTWpsLinkStateView",
    "wps-pin": "WTWpsLinkStateView",
}


def walk(demo, story, **session):
    with tempfile.TemporaryDirectory() as folder:
        pictures = pathlib.Path(folder, "pictures")
        environment = dict(os.environ, XDG_STATE_HOME=folder, **session)
        command = [demo, "--story", story, "--speed", SPEED, "--autopilot", pictures]
        status = subprocess.run(command, env=environment, timeout=100).returncode
        assert status == 0, "".join(log.read_text() for log in pathlib.Path(folder).rglob("*.log"))
        names = sorted(picture.name for picture in pictures.iterdir())
        assert names and names[0] == "01-WTStartView.png", names
        assert names[-1].endswith(f"-{LAST_PICTURES[story]}.png"), names
        assert all(picture.read_bytes().startswith(PNG_MAGIC) for picture in pictures.iterdir()), names


def walk_on_wayland(demo, story):
    """The compositor draws into memory; its runtime folder must be this user's alone. The toolkit's plugin leaks."""
    with tempfile.TemporaryDirectory() as folder:
        session = {"XDG_RUNTIME_DIR": folder, "WAYLAND_DISPLAY": "wayland-test", "QT_QPA_PLATFORM": "wayland",
                   "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"}
        command = ["weston", "--backend=headless-backend.so", "--use-pixman", "--socket=wayland-test", "--idle-time=0"]
        weston = subprocess.Popen(command, env=dict(os.environ, **session), stderr=subprocess.DEVNULL,
                                  stdout=subprocess.DEVNULL)
        try:
            wait_until(pathlib.Path(folder, "wayland-test").exists)
            walk(demo, story, **session)
        finally:
            weston.terminate()
            weston.wait()


def wait_until(condition):
    give_up = time.monotonic() + 20
    while not condition():
        assert time.monotonic() < give_up, "the compositor does not start"
        time.sleep(0.05)


def compare(actual, expected):
    assert actual == expected, actual


def refuse(demo, *arguments):
    status = subprocess.run([demo, *arguments], stderr=subprocess.DEVNULL, timeout=10).returncode
    assert status == 2, status


def main():
    demo = sys.argv[1]
    listed = subprocess.run([demo, "--list-stories"], capture_output=True, text=True, check=True).stdout
    cases = Cases()
    stories = [line.split()[0] for line in listed.splitlines()]
    cases.run("the list of stories", compare, sorted(stories), sorted(LAST_PICTURES))
    cases.run_together([
        ("a Wayland session", walk_on_wayland, demo, "success"),
        *((story, walk, demo, story) for story in stories),
    ])
    cases.run("an unknown story", refuse, demo, "--story", "nobody-told-it")
    cases.run("an unknown option", refuse, demo, "--fly")
    cases.run("a speed of nothing", refuse, demo, "--speed", "0")
    cases.leave()


if __name__ == "__main__":
    main()
