"""A Debian guest under qemu's software emulation, and how to talk to it."""

import json
import os
import signal
import socket
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

# Checks and delays are switched off that cost much under emulation and matter to nobody here.
KERNEL_OPTIONS = (
    "console=ttyS0 quiet loglevel=4 mitigations=off cryptomgr.notests tsc=reliable no_timer_check audit=0 apparmor=0 "
    "selinux=0 nokaslr nowatchdog net.ifnames=0 random.trust_cpu=on rcupdate.rcu_expedited=1 panic=-1 "
    "systemd.show_status=0 systemd.log_level=notice raid=noautodetect"
)
DEVICE = "pci-non-transitional"


@dataclass
class Result:
    status: int
    output: str


class GuestMachine:
    """Its root file system is read-only below an overlay in memory, so that every start is clean. The folder `share` is
    mounted at /mnt/share while it runs."""

    def __init__(self, image: Path, folder: Path, share: Path):
        self._image = image
        self._folder = folder
        self._share = share
        self._process = None

    def start(self, limit: float) -> None:
        """Boots; returns when all services are up."""
        self._launch([])
        self.check("systemctl is-system-running --wait || { systemctl --failed; false; }", limit)
        self._mount_share()

    def restore(self, state: Path) -> None:
        """Goes on where `state` was saved."""
        self._launch(["-incoming", f"exec:cat {state}"])
        while self._monitor("query-status")["status"] == "inmigrate":
            time.sleep(0.05)
        self._monitor("cont")
        self.check(f"date -s @{int(time.time())}")
        self._mount_share()

    def save(self, state: Path) -> None:
        """Leaves the machine halted."""
        # A state with a mounted share cannot be saved.
        self.check("umount /mnt/share")
        self._monitor("stop")
        self._monitor("migrate-set-parameters", {"max-bandwidth": 1 << 40})
        self._monitor("migrate", {"uri": f"exec:cat > {state}"})
        while (status := self._monitor("query-migrate").get("status")) != "completed":
            if status == "failed":
                raise RuntimeError("the guest's state cannot be saved")
            time.sleep(0.05)

    def stop(self) -> None:
        if self._process:
            self._process.send_signal(signal.SIGTERM)
            self._process.wait()
            self._process = None

    def plug(self, name: str, path: Path, port: str) -> None:
        """Plugs the device that waits at the socket `path` into a port of the USB controller: "1.2" is a port of the hub."""
        address = {"type": "unix", "data": {"path": os.fspath(path)}}
        line = {"type": "socket", "data": {"addr": address, "server": False}}
        self._monitor("chardev-add", {"id": f"{name}-line", "backend": line})
        self._monitor(
            "device_add", {"driver": "usb-redir", "id": name, "chardev": f"{name}-line", "bus": "usb.0", "port": port}
        )

    def run(self, command: str, limit: float = 180) -> Result:
        """Runs a shell command as root."""
        with self._connected("commands") as line:
            line.settimeout(limit + 30)
            identity = time.monotonic_ns()
            line.sendall(json.dumps({"id": identity, "command": command, "timeout": limit}).encode() + b"\n")
            for answer in line.makefile():
                said = json.loads(answer)
                if said["id"] == identity:
                    return Result(said["status"], said["output"])
        raise ConnectionError("the guest hung up")

    def check(self, command: str, limit: float = 180) -> str:
        """Runs a shell command that has to succeed; its output."""
        result = self.run(command, limit)
        assert result.status == 0, f"{command}\nstatus {result.status}\n{result.output}"
        return result.output

    def _launch(self, more: list[str]) -> None:
        self._folder.mkdir(parents=True, exist_ok=True)
        for name in ("monitor", "commands"):
            (self._folder / name).unlink(missing_ok=True)
        command = [
            *("qemu-system-x86_64", "-nodefaults", "-no-user-config", "-no-reboot", "-display", "none"),
            *("-machine", "q35", "-accel", "tcg,thread=multi,tb-size=256", "-cpu", "max", "-smp", "2", "-m", "1280"),
            *("-kernel", self._image / "vmlinux", "-initrd", self._image / "initrd", "-append", KERNEL_OPTIONS),
            *("-drive", f"if=none,id=root,format=raw,readonly=on,file={self._image / 'root.ext4'}"),
            *("-device", f"virtio-blk-{DEVICE},drive=root", "-device", f"virtio-rng-{DEVICE}"),
            *("-device", f"virtio-serial-{DEVICE}"),
            *("-chardev", f"socket,id=commands,server=on,wait=off,path={self._folder / 'commands'}"),
            *("-device", "virtserialport,chardev=commands,name=command"),
            *("-fsdev", f"local,id=share,path={self._share},security_model=none"),
            *("-device", f"virtio-9p-{DEVICE},fsdev=share,mount_tag=share"),
            *("-device", "qemu-xhci,id=usb", "-device", "usb-hub,bus=usb.0,port=1"),
            *("-serial", f"file:{self._folder / 'console.log'}"),
            *("-qmp", f"unix:{self._folder / 'monitor'},server=on,wait=off"),
            *more,
        ]
        with (self._folder / "qemu.log").open("wb") as log:
            self._process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log)

    def _mount_share(self) -> None:
        self.check("mount -t 9p -o trans=virtio,version=9p2000.L share /mnt/share")

    def _connected(self, name: str) -> socket.socket:
        while True:
            line = socket.socket(socket.AF_UNIX)
            try:
                line.connect(os.fspath(self._folder / name))
                return line
            except OSError:
                line.close()
                if self._process.poll() is not None:
                    raise RuntimeError((self._folder / "qemu.log").read_text()) from None
                time.sleep(0.05)

    def _monitor(self, command: str, arguments: dict | None = None) -> dict:
        with self._connected("monitor") as line, line.makefile("rw") as stream:
            stream.readline()
            for step, options in (("qmp_capabilities", {}), (command, arguments or {})):
                stream.write(json.dumps({"execute": step, "arguments": options}) + "\n")
                stream.flush()
                while "return" not in (answer := json.loads(stream.readline())):
                    if "error" in answer:
                        raise RuntimeError(f"{command}: {answer['error']}")
            return answer["return"]
