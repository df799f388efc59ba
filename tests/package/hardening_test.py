#!/usr/bin/env python3
"""Checks what protects the shipped program: hardening_test.py PROGRAM"""

import re
import stat
import subprocess
import sys
from pathlib import Path


def readelf(*options: str) -> str:
    return subprocess.run(["readelf", "--wide", *options, program], capture_output=True, text=True, check=True).stdout


def imported() -> set[str]:
    return set(re.findall(r"UND (\w+)(?:@|$)", readelf("--dyn-syms"), re.MULTILINE))


def starts_with_landing_pads() -> bool:
    """Every place that an indirect call may reach begins with endbr64: the entry point and the exported functions."""
    code = subprocess.run(["objdump", "--disassemble", "--no-show-raw-insn", program], capture_output=True, text=True, check=True)
    entry = re.search(r"Entry point address: +0x([0-9a-f]+)", readelf("--file-header")).group(1)
    return code.stdout.count("endbr64") > 1000 and re.search(rf"^ +{entry}:\s+endbr64", code.stdout, re.MULTILINE) is not None


program = sys.argv[1]
symbols = imported()
segments = readelf("--segments")
dynamic = readelf("--dynamic")
checks = {
    "position independent": "DYN (Position-Independent Executable" in readelf("--file-header"),
    "relocations read-only": "GNU_RELRO" in segments and re.search(r"FLAGS.*\bNOW\b", dynamic) is not None,
    "stack not executable": re.search(r"GNU_STACK.* RW ", segments) is not None,
    "no segment writable and executable": re.search(r"LOAD.* RWE ", segments) is None,
    "stack protector": "__stack_chk_fail" in symbols,
    "fortified functions": any(name.endswith("_chk") and name != "__stack_chk_fail" for name in symbols),
    "landing pads for indirect calls": starts_with_landing_pads(),
    "no library path": "RPATH" not in dynamic and "RUNPATH" not in dynamic,
    "no set-user-ID": not Path(program).stat().st_mode & (stat.S_ISUID | stat.S_ISGID),
    "listens to nobody": not symbols & {"listen", "accept", "accept4"},
}
for name, holds in checks.items():
    print(f"{'PASS  ' if holds else 'FAIL! '} : {name}")
failed = list(checks.values()).count(False)
print(f"Totals: {len(checks) - failed} passed, {failed} failed")
sys.exit(failed != 0)
