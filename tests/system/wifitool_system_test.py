#!/usr/bin/python3
"""Drives the real program, in its real window, with an emulated printer on its USB bus, and compares every frame that
the printer received. Needs an X display and a session bus of its own.

usage: wifitool_system_test.py PRINTER-EMULATOR WIFITOOL TEXT-TABLE
"""

import base64
import os
import pathlib
import subprocess
import sys
import tempfile

import printer_frames as frames
import secret_search
from cases import Cases
from journal_stub import JournalStub
from wizard_window import ACCESSIBLE, AccessibilityBus, WizardWindow, read_texts, wait_for

NETWORK = "Quill House 2.4"
PASSWORD = "seven-grey-geese"
RUN_TIME = 60


class ProgramRun:
    """One run of the program, with a home and a printer of its own."""

    def __init__(self, emulator, program, texts, model, journal, system_bus="unix:path=/nowhere"):
        self._folder = tempfile.TemporaryDirectory()
        self._frames = pathlib.Path(self._folder.name, "frames")
        environment = dict(
            os.environ,
            **ACCESSIBLE,
            HOME=self._folder.name,
            XDG_STATE_HOME=self._folder.name,
            CUPS_SERVER=f"{self._folder.name}/no-spooler",
            DBUS_SYSTEM_BUS_ADDRESS=system_bus,
        )
        command = [emulator, "--usbfs", "--model", model, "--frames", self._frames, "--", program]
        self._journal = journal
        self._errors = pathlib.Path(self._folder.name, "stderr")
        with self._errors.open("wb") as errors:
            self._process = subprocess.Popen(command, env=environment, stderr=errors)
        self.window = WizardWindow(texts)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self._process.poll() is None:
            self._process.terminate()
            self._process.wait()
        self._folder.cleanup()

    def log(self):
        files = pathlib.Path(self._folder.name, "Logs", "wifitool").glob("com.*.log")
        return "".join(file.read_text() for file in files)

    def written(self):
        """All bytes that the program has written anywhere, but for the frames that the printer got."""
        files = [file for file in pathlib.Path(self._folder.name).rglob("*") if file.is_file() and file != self._frames]
        return {**{file.name: file.read_bytes() for file in files}, "journal": self._journal.received()}

    def frames(self):
        return [bytes.fromhex(line) for line in self._frames.read_text().split()] if self._frames.exists() else []

    def enter_network(self):
        wait_for(lambda: "USB Printers count:1" in self.log(), "the printer in the list")
        self.window.press("下一步")
        self.window.type("网络名称", NETWORK)
        self.window.type("网络密码", PASSWORD)

    def finish(self):
        self.window.press("下一步")
        self.window.wait_for_text("打印机已连上无线网络", RUN_TIME)
        self.window.press("完成并退出")
        status = self._process.wait(10)
        assert status == 0, f"exit status {status}"
        written = self.written()
        assert b"next step" in written["journal"] or not self._journal.is_there, "the journal got nothing"
        assert any(name.startswith("com.") for name in written) and "WTCore-WiFiTool.log" in written, sorted(written)
        assert b"main() thread" not in written["stderr"], "the toolkit took another thread for the main one"
        shown = secret_search.find(PASSWORD, written)
        assert not shown, f"the password is in {shown}"


def expect(received, *expected):
    assert received == list(expected), "\n".join(
        ["received:"] + [frame.hex() for frame in received] + ["expected:"] + [frame.hex() for frame in expected]
    )


def run_with_unknown_support(start):
    with start("QZ200") as run:
        run.enter_network()
        run.finish()
        expect(
            run.frames(),
            frames.wake_up(),
            frames.capability_query(),
            frames.configuration(NETWORK, PASSWORD),
            frames.address_query(),
        )


def password_search_finds():
    for shown in (PASSWORD.encode(), PASSWORD.encode().hex().encode(), base64.b64encode(b"x" + PASSWORD.encode() + b"y")):
        assert secret_search.find(PASSWORD, {"log": b"before " + shown + b" after", "other": b""}) == ["log"], shown


def main():
    emulator, program, table = sys.argv[1:]
    texts = read_texts(table)
    cases = Cases()
    journal = JournalStub()

    def start(model):
        return ProgramRun(emulator, program, texts, model, journal)

    with AccessibilityBus():
        cases.run("the search for the password finds it", password_search_finds)
        cases.run("run: Wi-Fi support unknown", run_with_unknown_support, start)
    cases.leave()


if __name__ == "__main__":
    main()
