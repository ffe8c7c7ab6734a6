#!/usr/bin/env python3
"""Writes the source pictures into a directory: world.ppm and world.png, the program's own picture of the world, and
numbered.ppm, of the same size, in which no two pixels have the same colour.

A program of its own, so that its memory is not taken for that of the processes that are measured.
"""

import re
import struct
import sys
import zlib
from pathlib import Path


def read_xpm(path):
    """Width, height and RGB bytes of an XPM picture without transparency."""
    strings = re.findall(r'"([^"]*)"', Path(path).read_text(encoding="ascii"))
    width, height, colours, letters = map(int, strings[0].split())
    palette = {entry[:letters]: bytes.fromhex(entry.partition("#")[2]) for entry in strings[1 : colours + 1]}
    rows = strings[colours + 1 : colours + 1 + height]
    return width, height, b"".join(
        palette[row[i : i + letters]] for row in rows for i in range(0, width * letters, letters))


def write_ppm(path, width, height, rgb):
    path.write_bytes(b"P6\n%d %d\n255\n" % (width, height) + rgb)


def write_png(path, width, height, rgb):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    stride = 3 * width
    unfiltered = b"".join(b"\0" + rgb[i : i + stride] for i in range(0, height * stride, stride))
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                     + chunk(b"IDAT", zlib.compress(unfiltered)) + chunk(b"IEND", b""))


def main():
    xpm, directory = sys.argv[1], Path(sys.argv[2])
    width, height, rgb = read_xpm(xpm)
    write_ppm(directory / "world.ppm", width, height, rgb)
    write_png(directory / "world.png", width, height, rgb)
    numbers = b"".join(number.to_bytes(3, "big") for number in range(width * height))
    write_ppm(directory / "numbered.ppm", width, height, numbers)


if __name__ == "__main__":
    main()
