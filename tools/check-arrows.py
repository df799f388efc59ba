#!/usr/bin/env python3
"""Checks who includes whom in src/: the arrows of ARCHITECTURE.md, and that foreign libraries stay behind their port.

The compiler enforces the arrows already (a room's headers are on no other path); this check also sees what a compiler
cannot: a relative include that climbs out of its room, and a foreign header in the wrong place.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent / "src"
PLATFORM_ROOMS = {f"platform/{folder.name}" for folder in (ROOT / "platform").iterdir() if folder.is_dir()}
ARROWS = {
    "util": set(),
    "ports": set(),
    "log": {"util"},
    "wtcom": {"ports", "util"},
    "comm": {"wtcom", "ports", "log", "util"},
    "app": {"comm", "wtcom", "ports", "log", "util"},
    "flow": {"app", "comm", "wtcom", "ports", "log", "util"},
    "ctl": {"flow", "app", "comm", "wtcom", "ports", "log", "util"},
    "wizard": {"flow", "app", "comm", "wtcom", "ports", "log", "util"},
    **{room: {"ports", "util"} for room in PLATFORM_ROOMS},
}
FOREIGN = {
    r"libusb": ["platform/usb"],
    r"cups/": ["platform/printing"],
    r"NetworkManager\.h|nm-|glib|gio/": ["platform/network"],
    r"systemd/": ["log", "platform/desktop"],
    r"QWidget|QMainWindow|QMessageBox|QPushButton|QLineEdit|QtWidgets": ["wizard", "main"],
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def room_of(path):
    parts = path.relative_to(ROOT).parts
    return "/".join(parts[:2]) if parts[0] == "platform" else parts[0]


def main():
    sources = [path for path in sorted(ROOT.rglob("*")) if path.suffix in {".h", ".cpp"}]
    owner = {}
    faults = []
    for path in sources:
        if path.suffix == ".h" and owner.setdefault(path.name, room_of(path)) != room_of(path):
            faults.append(f"{path}: two rooms have a header of this name")
    journal_users = set()
    for path in sources:
        room = room_of(path)
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            name = match.group(2)
            place = f"{path.relative_to(ROOT.parent)}:{number}"
            if ".." in name.split("/"):
                faults.append(f"{place}: {name} climbs out of its folder")
            target = owner.get(name.split("/")[-1]) if match.group(1) == '"' else None
            if target and target != room and room != "main" and target not in ARROWS[room]:
                faults.append(f"{place}: {room} may not include {target} ({name})")
            for pattern, rooms in FOREIGN.items():
                if re.match(pattern, name) and room not in rooms:
                    faults.append(f"{place}: {name} belongs in {', '.join(rooms)} only")
            if name == "systemd/sd-journal.h":
                journal_users.add(str(path.relative_to(ROOT)))
    if len(journal_users) > 1:
        faults.append(f"the journal header is included in more than one file: {sorted(journal_users)}")
    print("\n".join(faults) if faults else f"include arrows: {len(sources)} files, all as drawn")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
