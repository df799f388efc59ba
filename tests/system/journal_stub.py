"""A journal that keeps what it is sent, on a machine without one. Needs root, for a /run of this process's own."""

import ctypes
import os
import pathlib
import socket
import subprocess
import threading

SOCKET = pathlib.Path("/run/systemd/journal/socket")
CLONE_NEWNS = 0x00020000


class JournalStub:
    """`is_there` is false where the machine has a journal of its own, or may not get one."""

    def __init__(self):
        self._received = []
        self.is_there = not SOCKET.exists() and os.geteuid() == 0 and self._enter_private_run()
        if self.is_there:
            SOCKET.parent.mkdir(parents=True)
            self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)
            self._socket.bind(str(SOCKET))
            threading.Thread(target=self._receive, daemon=True).start()

    @staticmethod
    def _enter_private_run():
        if ctypes.CDLL(None, use_errno=True).unshare(CLONE_NEWNS) != 0:
            return False
        commands = (["mount", "--make-rprivate", "/"], ["mount", "-t", "tmpfs", "tmpfs", "/run"])
        return all(subprocess.run(command, check=False).returncode == 0 for command in commands)

    def _receive(self):
        while True:
            self._received.append(self._socket.recv(1 << 20))

    def received(self):
        return b"\n".join(self._received)
