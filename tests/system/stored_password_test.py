#!/usr/bin/python3
"""Follows a password from NetworkManager's store through the real program to the printer's frame, byte by byte, and
looks for it in everything that the program has written. Needs an X display and a session bus of its own.

usage: stored_password_test.py PRINTER-EMULATOR WIFITOOL TEXT-TABLE
"""

import sys

import printer_frames as frames
import secret_search
from cases import Cases
from journal_stub import JournalStub
from mock_network_manager import MockNetworkManager
from wifitool_system_test import NETWORK, ProgramRun, expect
from wizard_window import AccessibilityBus, read_texts, wait_for

# As long as a printer takes, with what a text, a format or a shell might change.
PASSWORD = "  ¥€£•\"'`\\n%s%@\\ 567890  "


def reach_the_list(run):
    wait_for(lambda: "USB Printers count:1" in run.log(), "the printer in the list")
    run.window.press("下一步")
    run.window.wait_for_text("选择无线网络")
    field = run.window.wait_for(("text", "password text"), "网络密码")
    wait_for(lambda: field.queryText().characterCount == len(PASSWORD), "the stored password")


def stored_password(start):
    with MockNetworkManager(NETWORK, PASSWORD) as network_manager, start(network_manager.bus) as run:
        reach_the_list(run)
        run.finish()
        expect(run.frames(), frames.wake_up(), frames.configuration(NETWORK, PASSWORD), frames.address_query())
        shown = secret_search.find(PASSWORD, run.written())
        assert not shown, f"the password is in {shown}"


def main():
    emulator, program, table = sys.argv[1:]
    texts = read_texts(table)
    cases = Cases()
    journal = JournalStub()

    def start(bus):
        return ProgramRun(emulator, program, texts, "QZ100", journal, bus)

    with AccessibilityBus():
        cases.run("a stored password", stored_password, start)
    cases.leave()


if __name__ == "__main__":
    main()
