"""A computer whose NetworkManager is joined to one network and keeps its password, on a private system bus."""

import json
import pathlib
import subprocess
import sys

MOCK = pathlib.Path(__file__).parents[1] / "platform/network/mock_networkmanager.py"


class MockNetworkManager:
    def __init__(self, network, password):
        self._process = subprocess.Popen([sys.executable, MOCK], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.bus = self._process.stdout.readline().strip()
        self._tell("start")
        self._tell("device", "wlan0")
        self._tell("ap", "wlan0", "house", network.encode().hex(), 70)
        self._tell("profile", "wlan0", "stored", network, {"psk": password})
        self._tell("join", "wlan0", "stored", "house", True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.stdin.close()
        self._process.wait(10)

    def _tell(self, *operation):
        self._process.stdin.write(json.dumps(operation) + "\n")
        self._process.stdin.flush()
        answer = self._process.stdout.readline().strip()
        assert answer == "ok", answer
