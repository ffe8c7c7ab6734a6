#!/usr/bin/env python3
"""Prints a Markdown table: how many lines of our readers of outside bytes were reached by the fuzz targets.

The arguments are those of "llvm-cov export", which must be LLVM's of the compiler; scripts/fuzz --coverage gives them.
"""

import os
import re
import subprocess
import sys

# The readers, and which of their functions are none: they draw, write, or only open the user's own file.
READERS = {
    "app/CommandLine.cpp": None,
    "config/Configuration.cpp": "ConfigurationC.*wxString(E|$)|ReadAllEv|WriteAll|WriteSetting|ExactText|ObstacleAt|FilesOf",
    "config/ReadSetting.h": None,
    "config/SettingsFile.cpp": None,
    "geo/Locator.cpp": None,
    "propagation/AntennaName.cpp": None,
    "propagation/AreaInput.cpp": None,
    "propagation/InputRules.cpp": None,
    "propagation/LineReader.cpp": None,
    "propagation/ResultReader.cpp": None,
    "render/BorderFile.cpp": None,
    "render/BorderLines.h": None,
    "render/PlottedSquares.cpp": "DrawPlottedSquares",
    "render/TextFile.cpp": None,
    "render/TextFile.h": None,
    "render/TextLabels.cpp": "DrawTextLabels|LabelWriter",
    "reports/BoundedFile.cpp": None,
    "reports/KeyCheck.cpp": None,
    "reports/Places.cpp": None,
    "reports/PrintBearings.cpp": None,
    "rotator/Address.cpp": None,
    "rotator/Protocol.cpp": None,
}


class Source:
    """What lcov's format says of one file: its lines with their counts, its functions with their first lines."""

    def __init__(self):
        self.counts = {}
        self.functions = {}

    def add(self, kind, values):
        if kind == "DA":
            line, count = values.split(",")[:2]
            self.counts[int(line)] = int(count)
        elif kind == "FN":
            line, name = values.split(",", 1)
            self.functions.setdefault(int(line), []).append(name)

    def counted(self, not_readers):
        """The counts of the lines that read."""
        reads = True
        for line in sorted(self.counts):
            names = self.functions.get(line)
            if names:
                reads = not (not_readers and any(re.search(not_readers, name) for name in names))
            if reads:
                yield line, self.counts[line]


def sources(arguments):
    command = ["llvm-cov-14", "export", "-format=lcov", *arguments]
    text = subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True).stdout
    root = os.getcwd() + "/"
    found = {}
    for line in text.splitlines():
        kind, _, values = line.partition(":")
        if kind == "SF":
            current = found.setdefault(values.removeprefix(root), Source())
        elif kind in ("DA", "FN"):
            current.add(kind, values)
    return found


def main():
    found = sources(sys.argv[1:])
    print("| reader | lines | reached | not reached |\n|---|---|---|---|")
    total = reached = 0
    for name, not_readers in READERS.items():
        lines = list(found[name].counted(not_readers))
        missed = [line for line, count in lines if count == 0]
        total += len(lines)
        reached += len(lines) - len(missed)
        print(f"| {name} | {len(lines)} | {len(lines) - len(missed)} | {' '.join(map(str, missed))} |")
    print(f"| **all** | **{total}** | **{reached}** ({100 * reached / total:.1f} %) | |")


main()
