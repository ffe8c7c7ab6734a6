"""What the tools that make shipped files have in common: the command line, writing or checking, XPM pictures."""

import argparse
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]

# Letters and digits only: they need no escape in a C string and cannot form a trigraph.
KEY_CHARACTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"


def run(description, make, needs_sources=True):
    """Calls make(source directory), which returns {path from the root: contents}, and writes or checks the result."""
    parser = argparse.ArgumentParser(description=description)
    if needs_sources:
        parser.add_argument("sources", type=Path, help="directory that holds the source files")
    parser.add_argument("--check", action="store_true", help="compare with the committed files, write nothing")
    arguments = parser.parse_args()
    files = make(arguments.sources) if needs_sources else make()
    differing = [path for path, contents in files.items() if not put(ROOT / path, contents, arguments.check)]
    for path in differing:
        print(f"{path} is not what this tool makes", file=sys.stderr)
    sys.exit(1 if differing else 0)


def put(path, contents, check):
    """Writes contents (text or bytes), or says whether the file already holds them."""
    data = contents.encode("utf-8") if isinstance(contents, str) else contents
    if check:
        return path.exists() and path.read_bytes() == data
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)
    print(f"{path.relative_to(ROOT)}: {len(data)} bytes")
    return True


def xpm(name, rows, comment):
    """An XPM picture as the C array `name`; rows hold (red, green, blue) or None for a transparent pixel."""
    colours = sorted({pixel for row in rows for pixel in row}, key=lambda pixel: pixel or (-1, -1, -1))
    per_pixel = 1
    while len(KEY_CHARACTERS) ** per_pixel < len(colours):
        per_pixel += 1
    keys = {colour: key(number, per_pixel) for number, colour in enumerate(colours)}
    lines = [f"{len(rows[0])} {len(rows)} {len(colours)} {per_pixel}"]
    lines += [f"{keys[colour]} c {colour_name(colour)}" for colour in colours]
    lines += ["".join(keys[pixel] for pixel in row) for row in rows]
    body = ",\n".join(f'"{line}"' for line in lines)
    return f"/* XPM */\n/* {comment} */\nstatic const char* const {name}[] = {{\n{body}}};\n"


def key(number, length):
    """The number-th key of so many characters."""
    characters = ""
    for _ in range(length):
        number, digit = divmod(number, len(KEY_CHARACTERS))
        characters = KEY_CHARACTERS[digit] + characters
    return characters


def colour_name(colour):
    return "None" if colour is None else "#%02X%02X%02X" % colour
