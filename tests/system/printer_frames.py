"""The frames that a printer must receive, built from the printers' command description, not by the program's code."""

import struct

UNIVERSAL_EXIT = b"\x1b%-12345X"
ENTER_ACL = b"@PJL ENTER LANGUAGE=ACL\r\n"


def _frame(command, length, payload=b""):
    header = struct.pack(">HHH", 0x00AC, command, length) + bytes(10)
    return UNIVERSAL_EXIT + ENTER_ACL + header + payload + UNIVERSAL_EXIT


def wake_up():
    return _frame(0xFF21, 0)


def capability_query():
    return _frame(0xFF81, 0)


def address_query():
    return _frame(0xFF0F, 0)


def configuration(name, password):
    payload = name.encode().ljust(33, b"\0") + b"\x05" + password.encode().ljust(31, b"\0") + bytes(143)
    return _frame(0xFF80, 208, payload)
