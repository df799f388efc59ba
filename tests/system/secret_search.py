"""Looks for a password in whatever a program has written: in clear, in hexadecimal, in base64 at any alignment."""

import base64


def forms(password):
    clear = password.encode()
    yield clear
    yield clear.hex().encode()
    yield clear.hex().upper().encode()
    yield clear.hex(" ").encode()
    for lead in range(3):
        # The digits that depend on the neighbours are left out at both ends.
        digits = base64.b64encode(b"\0" * lead + clear)
        yield digits[(lead * 8 + 5) // 6 : (lead + len(clear)) * 8 // 6]


def find(password, written):
    """The names of the sources, of a dictionary of name to bytes, that show the password."""
    return sorted(name for name, content in written.items() if any(form in content for form in forms(password)))
