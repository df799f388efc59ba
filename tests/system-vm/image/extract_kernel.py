#!/usr/bin/python3
"""Unpacks a bzImage that is compressed with xz: emulation boots the bare kernel without the cost of unpacking it.

usage: extract_kernel.py BZIMAGE VMLINUX
Source of the layout: the kernel's Documentation/arch/x86/boot.rst (setup_sects, payload_offset, payload_length).
"""

import lzma
import struct
import sys

with open(sys.argv[1], "rb") as file:
    image = file.read()
setup_sectors = image[0x1F1] or 4
offset, length = struct.unpack_from("<II", image, 0x248)
# The payload's size stands behind the compressed stream, where a plain decompression would stumble.
kernel = lzma.LZMADecompressor().decompress(image[(setup_sectors + 1) * 512 + offset :][:length])
assert kernel.startswith(b"\x7fELF"), "no kernel in there"
with open(sys.argv[2], "wb") as file:
    file.write(kernel)
