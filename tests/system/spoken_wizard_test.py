#!/usr/bin/python3
"""Walks the demo as a screen reader's user does: everything is found by role and name, done through its actions, and
heard of through events. Needs an X display and a session bus of its own.

usage: spoken_wizard_test.py WIFITOOL-DEMO TEXT-TABLE
"""

import functools
import os
import subprocess
import sys
import tempfile

import pyatspi

from cases import Cases
from wizard_window import ACCESSIBLE, AccessibilityBus, WizardWindow, read_texts, wait_for

NETWORK = "Quill House"
RUN_TIME = 60


class DemoRun:
    """One run of a story by hand."""

    def __init__(self, demo, texts, story, ends=True):
        self._ends = ends
        self._folder = tempfile.TemporaryDirectory()
        environment = dict(os.environ, **ACCESSIBLE, XDG_STATE_HOME=self._folder.name)
        self._process = subprocess.Popen([demo, "--story", story], env=environment)
        self.window = WizardWindow(texts)

    def __enter__(self):
        return self.window

    def __exit__(self, failure, *_):
        if failure or not self._ends:
            self._process.terminate()
        status = self._process.wait(10)
        self._folder.cleanup()
        assert failure or not self._ends or status == 0, f"exit status {status}"


def network_list(start):
    with start("success") as window:
        window.wait_for("panel", "让打印机连上无线网络")
        window.wait_for("label", "第%d步，共%d步：%@", 1, 4, window.text("连接"))
        assert window.wait_for("radio button", "USB数据线").getState().contains(pyatspi.STATE_CHECKED)
        assert window.wait_for("push button", "下一步").getState().contains(pyatspi.STATE_IS_DEFAULT)
        window.press("下一步")
        window.hear("notification", window.text("正在查找无线网络…"))

        networks = window.wait_for("list", "附近的无线网络")
        wait_for(lambda: networks.childCount > 3, "the networks")
        first, other = networks[0], networks[4]
        assert first.name == f"{NETWORK}, 84%, WPA2-Personal, {window.text('此电脑')}", first.name
        assert first.getState().contains(pyatspi.STATE_SELECTED)
        name = window.wait_for("text", "网络名称").queryText()
        assert name.getText(0, -1) == NETWORK
        window.do(other, "Toggle")
        wait_for(lambda: name.getText(0, -1) == "Office", "the name of the row")

        window.enter("text", "网络名称", "n" * 30 + "ää")
        window.hear("notification", window.text("名称太长：最多 32 个字节。"))
        window.wait_for("push button", "下一步", state=pyatspi.STATE_ENABLED, holds=False)
        window.enter("text", "网络名称", NETWORK)
        window.enter("password text", "网络密码", "seven grey geese")
        switch = window.wait_for("check box", "显示密码")
        window.do(switch, "Toggle")
        assert switch.getState().contains(pyatspi.STATE_CHECKED)

        window.press("下一步")
        window.hear("notification", window.text("正在发送网络名称和密码，打印机正在加入网络…"))
        window.hear_progress()
        window.hear("notification", window.text("恭喜，您完成了无线网络配置！"), RUN_TIME)
        window.wait_for("panel", "打印机已连上无线网络")
        window.press("完成并退出")


def menu_and_pin(start):
    with start("no-printer") as window:
        window.choose("WPS一键配网", "USB数据线")
        window.press("下一步")
        window.choose("打印机的菜单", "打印机的Wi-Fi按钮")
        window.press("下一步")
        window.choose("PIN码方式", "按钮方式（PBC）")
        window.press("下一步")
        window.wait_for("panel", "在打印机菜单中使用PIN码")
        for step in (1, 2, 3):
            window.wait_for("label", "第%d步", step)
        window.press("下一步")
        window.wait_for("push button", "完成并退出", state=pyatspi.STATE_ENABLED, holds=False)
        window.choose("连接失败", "连接成功")
        window.choose("连接成功", "连接失败")
        window.press("完成并退出")


def no_printer_and_back(start):
    with start("no-printer", ends=False) as window:
        window.press("下一步")
        window.hear("notification", window.text("没有找到支持无线网络的打印机。"))
        window.press("上一步")
        window.wait_for("panel", "让打印机连上无线网络")


def busy_printer(start):
    with start("busy", ends=False) as window:
        window.press("下一步")
        window.wait_for("panel", "选择无线网络")
        window.press("下一步")
        sheet = window.wait_for("alert", "温馨提示：")
        assert sheet.description == window.text("打印端口被占用，无法配置打印机"), sheet.description
        window.press("确定")
        window.wait_for("panel", "选择无线网络")


def main():
    demo, table = sys.argv[1:]
    texts = read_texts(table)
    cases = Cases()
    with AccessibilityBus():
        for case in (network_list, menu_and_pin, no_printer_and_back, busy_printer):
            cases.run(case.__name__.replace("_", " "), case, functools.partial(DemoRun, demo, texts))
    cases.leave()


if __name__ == "__main__":
    main()
