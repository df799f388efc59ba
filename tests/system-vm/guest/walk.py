#!/usr/bin/python3
"""Walks the installed program in the guest as a person with assistive technology does, as the desktop's user, with a
display and a session bus. Leaves pictures of what it saw in the home folder.

usage: walk.py WALK TEXT-TABLE, with WT_NETWORK, WT_PASSWORD_LENGTH, WT_PRINTERS and WT_ADDRESS_FILE in the environment
"""

import os
import subprocess
import sys
from pathlib import Path

import pyatspi
from wizard_window import ACCESSIBLE, AccessibilityBus, WizardWindow, read_texts, wait_for

NETWORK = os.environ["WT_NETWORK"]
PASSWORD_LENGTH = int(os.environ["WT_PASSWORD_LENGTH"])
PRINTERS = int(os.environ["WT_PRINTERS"])
RUN_LIMIT = 300
LOGS = Path.home() / ".local/state/Logs/wifitool"


def log():
    return "".join(file.read_text() for file in LOGS.glob("com.*.log"))


def picture(name):
    subprocess.run(["import", "-window", "root", f"{Path.home()}/{name}.png"], check=True)


def showing(has):
    """The names of the widgets that show, of those that `has` accepts."""

    def is_it(widget):
        return has(widget.name or "") and widget.getState().contains(pyatspi.STATE_SHOWING)

    for application in pyatspi.Registry.getDesktop(0):
        found = application and pyatspi.findDescendant(application, is_it)
        if found:
            return found.name
    return None


def join_network():
    """The computer joins by itself once its user has a session, which takes a moment."""
    state = ["nmcli", "-t", "-f", "DEVICE,STATE", "device"]
    joined = "wlan1:connected\n"
    wait_for(lambda: joined in subprocess.run(state, capture_output=True, text=True, check=True).stdout, joined, RUN_LIMIT)


def start_run(window, password=None):
    """The network comes first, with its stored password filled in."""
    wait_for(lambda: f"USB Printers count:{PRINTERS}" in log(), "the printers in the list", RUN_LIMIT)
    window.press("下一步")
    window.wait_for_text("选择无线网络")
    field = window.wait_for(("text", "password text"), "网络密码")
    wait_for(lambda: field.queryText().characterCount == PASSWORD_LENGTH, "the stored password", RUN_LIMIT)
    assert showing(lambda name: name.startswith(NETWORK)), "the access point is not in the list"
    picture("list")
    if password:
        window.enter(("text", "password text"), "网络密码", password)
    window.press("下一步")


def complete(window):
    start_run(window)
    window.wait_for_text("打印机已连上无线网络", RUN_LIMIT)
    address = Path(os.environ["WT_ADDRESS_FILE"]).read_text().strip()
    assert f"ipInfo ipString :{address}" in log(), f"not the address {address} that the printer has"
    picture("complete")
    window.press("完成并退出")


def wrong_password(window):
    start_run(window, "not-the-password")
    window.wait_for_text("打印机没有接受这次配置。", RUN_LIMIT)
    picture("wrong-password")


def unplugged(window):
    """The screen must not be the one that blames the password."""
    start_run(window)
    failed, refused = window.text("打印机没有连上无线网络"), window.text("打印机没有接受这次配置。")
    seen = wait_for(lambda: showing(lambda name: name.strip() in (failed, refused)), "the end of the run", RUN_LIMIT)
    picture("unplugged")
    assert seen.strip() == failed, seen


WALKS = {"complete": complete, "wrong-password": wrong_password, "unplugged": unplugged}


def main():
    walk, table = sys.argv[1:]
    join_network()
    with AccessibilityBus():
        program = subprocess.Popen(["wifitool"], env=dict(os.environ, **ACCESSIBLE, LANGUAGE="en"))
        try:
            WALKS[walk](WizardWindow(read_texts(table)))
            if walk == "complete":
                status = program.wait(60)
                assert status == 0, f"exit status {status}"
        except BaseException:
            picture("stuck")
            print(log()[-8000:])
            raise
        finally:
            if program.poll() is None:
                program.terminate()
                program.wait()


if __name__ == "__main__":
    main()
