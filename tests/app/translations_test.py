#!/usr/bin/python3
"""Compares the texts that the sources look up with the tables of every language.

usage: translations_test.py SOURCES RESOURCES
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

sys.path.append(str(pathlib.Path(__file__).parents[1] / "system"))
from cases import Cases  # noqa: E402

CHINESE = re.compile(r"[\u4e00-\u9fff]")
COMMENT = re.compile(r"//[^\n]*")
PIECE = re.compile(r'u"((?:[^"\\]|\\.)*)"')
LITERAL = re.compile(r'(localized\(\s*)?((?:u"(?:[^"\\\n]|\\.)*"\s*)+)_s')
# Rooms whose texts are shown, though they pass no `localized` where they stand.
SHOWING = {"wizard", "flow", "ctl"}
# Keys in Chinese that name another system's menus.
FOREIGN = "请打开定位服务，步骤：系统设置->隐私与安全性->隐私->定位服务。"
PLACEHOLDER = re.compile(r"%(?:Text%|[0-9]*(?:l{0,2}[diuxX]|hu|@))")


def read_table(path):
    messages = xml.etree.ElementTree.parse(path).iter("message")
    return {message.findtext("source"): message.findtext("translation") or "" for message in messages}


def keys_in(sources):
    """Every key that the sources look up, with the file it stands in: whatever stands in `localized`, and every text in
    Chinese of a room that shows texts, since keys come out of tables as well. Controls only show what they are given."""
    keys = {}
    for path in [*sources.rglob("*.cpp"), *sources.rglob("*.h")]:
        folders = path.relative_to(sources).parts
        is_shown = folders[0] in SHOWING and "controls" not in folders
        for localized, literals in LITERAL.findall(COMMENT.sub("", path.read_text())):
            key = "".join(PIECE.findall(literals)).replace(r"\n", "\n").replace(r"\"", '"')
            if localized or (is_shown and CHINESE.search(key)):
                keys[key] = path.name
    return keys


def has_every_key(keys, language, table):
    def speaks_for_itself(key):
        return language == "zh-Hans" and CHINESE.search(key) and key != FOREIGN

    missing = [f"{file}: {key}" for key, file in keys.items() if not table.get(key) and not speaks_for_itself(key)]
    unused = [f"unused: {key}" for key in table if key not in keys and CHINESE.search(key)]
    assert not missing and not unused, "\n".join(missing + unused)


def placeholders(text):
    return [found.replace("%Text%", "%@") for found in PLACEHOLDER.findall(text)]


def keeps_placeholders(table):
    broken = [f"{key} -> {text}" for key, text in table.items() if placeholders(key) != placeholders(text)]
    assert not broken, "\n".join(broken)


def main():
    sources, resources = map(pathlib.Path, sys.argv[1:])
    keys = keys_in(sources)
    assert "是否退出Wi-Fi配置工具?" in keys, "the sources are read"
    cases = Cases()
    for folder in sorted(resources.glob("*.lproj")):
        table = read_table(folder / "wifitool.ts")
        cases.run(f"{folder.stem} has every key and no other", has_every_key, keys, folder.stem, table)
        cases.run(f"{folder.stem} keeps placeholders", keeps_placeholders, table)
    cases.leave()


if __name__ == "__main__":
    main()
