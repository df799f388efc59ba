#!/usr/bin/python3
"""Runs commands that arrive on the virtio port: one JSON line in, {"id", "command", "timeout"}; one out, {"id", "status",
"output"}. 124 is the status of a command that did not end in time."""

import json
import os
import subprocess
import time

OUTPUT_LIMIT = 200_000


def answer(request):
    with open("/run/command-output", "w+b") as output:
        try:
            status = subprocess.run(
                ["/bin/bash", "-c", request["command"]],
                stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT, timeout=request["timeout"],
            ).returncode
        except subprocess.TimeoutExpired:
            status = 124
        output.seek(0)
        text = output.read()[-OUTPUT_LIMIT:].decode("utf-8", "replace")
    return {"id": request["id"], "status": status, "output": text}


def main():
    port = os.open("/dev/virtio-ports/command", os.O_RDWR)
    unread = b""
    while True:
        piece = os.read(port, 65536)
        if not piece:
            time.sleep(0.1)  # Nobody is connected: such a port is always readable.
            continue
        *lines, unread = (unread + piece).split(b"\n")
        for line in filter(None, lines):
            text = json.dumps(answer(json.loads(line))).encode() + b"\n"
            while text:
                text = text[os.write(port, text) :]


main()
