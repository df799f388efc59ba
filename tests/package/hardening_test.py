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


def functions_without_landing_pad() -> int:
    """Functions that a table of addresses names (virtual functions, start-up code) but that do not begin with endbr64.

    The ELF note that says the same of the whole program cannot be there: the distribution's start-up objects lack it.
    """
    code = subprocess.run(["objdump", "--disassemble", "--section=.text", "--no-show-raw-insn", program],
                          capture_output=True, text=True, check=True).stdout
    instructions = dict(re.findall(r"^ +([0-9a-f]+):\t(\w+)", code, re.MULTILINE))
    targets = set(re.findall(r"R_X86_64_RELATIVE +([0-9a-f]+)", readelf("--relocs"))) & instructions.keys()
    assert len(targets) > 100, "the program has tables of virtual functions"
    return sum(instructions[target] != "endbr64" for target in targets)


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
    "landing pads for indirect calls": functions_without_landing_pad() == 0,
    "no library path": "RPATH" not in dynamic and "RUNPATH" not in dynamic,
    "no set-user-ID": not Path(program).stat().st_mode & (stat.S_ISUID | stat.S_ISGID),
    "listens to nobody": not symbols & {"listen", "accept", "accept4"},
}
for name, holds in checks.items():
    print(f"{'PASS  ' if holds else 'FAIL! '} : {name}")
failed = list(checks.values()).count(False)
print(f"Totals: {len(checks) - failed} passed, {failed} failed")
sys.exit(failed != 0)
