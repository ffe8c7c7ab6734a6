#!/usr/bin/env python3
"""Plants random faults in the program, one at a time, and tells which of them the tests notice.

    tools/plant_faults.py --room render --count 20 --seed 7

copies the tree, builds it, and for each fault builds and runs the tests of the room, then all the others. A fault is
"noticed" when a test fails, crashes or hangs, and does so again when it is repeated; it SURVIVED when all tests pass.
Faults that do not compile, or that leave the compiled program as it was (the name of a parameter in a declaration, say),
are drawn again. The copy is kept, so that another run starts quickly.
"""

import argparse
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROOMS = ["geo", "config", "render", "propagation", "reports", "maker", "rotator", "ui", "app"]
COPIED = [place.name for place in ROOT.iterdir() if place.name not in ("build", ".git")]

# Source text with comments and texts blanked out, so that no fault is planted in them.
HIDDEN = re.compile(r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])+'|^[ \t]*#(?:\\\n|[^\n])*|"
                    r"\bstatic_assert\([^;]*;", re.S | re.M)
TEXT = re.compile(r"(?<!include )\"((?:\\.|[^\"\\\n])*[A-Za-z0-9](?:\\.|[^\"\\\n])*)\"")
NUMBER = re.compile(r"(?<![\w.])(\d+\.?\d*)(?=[eUuLlf]?\w*\b)")
COMPARISON = re.compile(r" (<|>|<=|>=|==|!=) ")
SIGN = re.compile(r" ([-+*/]|[-+*/]=|%) |(?<=[(\[ ,{])(-)(?=[\w(])")
LOGIC = re.compile(r" (&&|\|\|) |(?<![\w])(!)(?=[\w(])")
BOOLEAN = re.compile(r"\b(true|false)\b")
CALL = re.compile(r"^[ \t]+(?!return\b|if\b|for\b|while\b|switch\b|delete\b|throw\b|case\b)"
                  r"(?:[\w:\[\]]+(?:<[\w:, ]+>)?(?:\([^()\n]*\))?(?:\.|->))*[\w:]+(\()", re.M)
ARGUMENTS = re.compile(r"(?<=[(,{])( ?)([\w.:>\[\]-]+), ([\w.:>\[\]-]+)(?=[,)}])")
NAME = re.compile(r"(?<=\.|>)(?<!\.\.\.)\b([A-Za-z_]\w*)\b|\b([a-z_]\w*)\b(?=[ ,;)\].-])")
KEYWORDS = set("""auto bool break case char class const constexpr continue default delete do double else enum explicit
    false float for friend if inline int long namespace new noexcept nullptr operator override private protected public
    return short signed sizeof static static_cast struct switch template this throw true typename union unsigned using
    virtual void while std wx size_t int64_t uint32_t uint8_t""".split())


def numbers(text, plain, rng):
    for match in NUMBER.finditer(plain):
        digits = match[1]
        if "." in digits:
            place = rng.choice([i for i, c in enumerate(digits) if c.isdigit()][:3])
            changed = digits[:place] + str((int(digits[place]) + rng.randint(1, 9)) % 10) + digits[place + 1:]
        else:
            changed = str(abs(int(digits) + rng.choice([-1, 1])))
        yield match.start(1), match.end(1), changed


def exchanges(pattern, table):
    def faults(text, plain, rng):
        for match in pattern.finditer(plain):
            group = match.lastindex
            yield match.start(group), match.end(group), rng.choice(table[match[group]])
    return faults


def calls(text, plain, rng):
    for match in CALL.finditer(plain):
        depth, at = 1, match.end()
        while depth and at < len(plain):
            depth += {"(": 1, ")": -1}.get(plain[at], 0)
            at += 1
        if plain[at:at + 1] == ";":
            start = match.start() + len(match[0]) - len(match[0].lstrip())
            yield start, at + 1, ";"


def arguments(text, plain, rng):
    for match in ARGUMENTS.finditer(plain):
        if match[2] != match[3]:
            yield match.start(2), match.end(3), f"{match[3]}, {match[2]}"


def names(text, plain, rng):
    found = [m for m in NAME.finditer(plain) if (m[1] or m[2]) not in KEYWORDS]
    members = sorted({m[1] for m in found if m[1]})
    others = sorted({m[2] for m in found if m[2]})
    for match in found:
        name, pool = (match[1], members) if match[1] else (match[2], others)
        yield match.start(), match.end(), rng.choice([n for n in pool if n != name] or [name])


def texts(text, plain, rng):
    for match in TEXT.finditer(text):
        if plain[match.start()] != "\0":
            continue
        place = rng.choice([i for i in range(match.start(1), match.end(1)) if text[i].isalnum()])
        yield place, place + 1, "Q" if text[place] != "Q" else "X"


KINDS = {
    "number": numbers,
    "comparison": exchanges(COMPARISON, {"<": ["<=", ">"], ">": [">=", "<"], "<=": ["<", ">="], ">=": [">", "<="],
                                         "==": ["!="], "!=": ["=="]}),
    "sign": exchanges(SIGN, {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"], "+=": ["-="], "-=": ["+="],
                             "*=": ["/="], "/=": ["*="]}),
    "logic": exchanges(LOGIC, {"&&": ["||"], "||": ["&&"], "!": [""]}),
    "boolean": exchanges(BOOLEAN, {"true": ["false"], "false": ["true"]}),
    "call dropped": calls,
    "arguments exchanged": arguments,
    "name exchanged": names,
    "text": texts,
}


def hide(text):
    return HIDDEN.sub(lambda m: re.sub(r"[^\n]", "\0" if m[0][0] == '"' else " ", m[0]), text)


class Planter:
    def __init__(self, tree, options, rng):
        self.rng = rng
        self.files = sorted(p for p in (tree / options.room).rglob("*")
                            if p.suffix in (".cpp", ".h") and re.search(options.only, p.name))

    def draw(self):
        """A kind, a file, a line and the file's text with the fault."""
        while True:
            kind = self.rng.choice(sorted(KINDS))
            candidates = []
            for file in self.files:
                text = file.read_text()
                candidates += [(file, text, *fault) for fault in KINDS[kind](text, hide(text), self.rng)]
            if not candidates:
                continue
            file, text, start, end, new = self.rng.choice(candidates)
            if text[start:end] != new:
                return kind, file, text, start, end, new


class Tree:
    """The copy with its build."""

    def __init__(self, place, room, own):
        self.place, self.room, self.own, self.build = place, room, own, place / "build"
        self.marker = place / "planted.txt"
        self.noticed_by = self.failed_once = ""
        self.patience = 300  # seconds until a program of tests counts as hanging
        for name in COPIED:
            source = ROOT / name
            if source.is_dir():
                shutil.rmtree(place / name, ignore_errors=True)
                shutil.copytree(source, place / name)
            elif source.exists():
                shutil.copy2(source, place / name)
        # The last fault of a run is still in what is compiled.
        left = pathlib.Path(self.marker.read_text()) if self.marker.exists() else self.marker
        if left.exists():
            left.touch()
        subprocess.run(["cmake", "-S", place, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=", "-DKAV_TESTS=ON",
                        "-DKAV_PRECOMPILE_ROOMS=ON", "-DCMAKE_CXX_FLAGS=-O1"], check=True, stdout=subprocess.DEVNULL)

    def compiles(self, *targets):
        options = [option for target in targets for option in ("--target", target)]
        return subprocess.run(["cmake", "--build", self.build, *options], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, timeout=1800).returncode == 0

    def targets(self):
        """What a fault must leave compiling, or it is drawn again."""
        return [f"tests_{self.room}"] if self.own else [f"tests_{self.room}", "kavmap"]

    def program(self):
        return (self.build / "bin" / f"tests_{self.room}").read_bytes()

    def run_in_one_process(self, test_filter):
        """The first test of the room that fails, crashes or hangs, if the tests run one after the other."""
        command = [self.build / "bin" / f"tests_{self.room}", f"--gtest_filter={test_filter}", "--gtest_fail_fast"]
        try:
            done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace",
                                  timeout=self.patience)
        except subprocess.TimeoutExpired as late:
            return (re.findall(r"^\[ RUN      \] (\S+)", (late.stdout or b"").decode(errors="replace"), re.M) or [""])[-1]
        if done.returncode == 0:
            return ""
        failed = re.findall(r"^\[  FAILED  \] (\w+(?:/\w+)*\.\w+(?:/\w+)*)", done.stdout, re.M)
        return (failed or re.findall(r"^\[ RUN      \] (\S+)", done.stdout, re.M)[-1:] or ["the start"])[0]

    def learn_patience(self):
        start = time.monotonic()
        self.run_in_one_process("-Screen*")
        self.patience = 20 + 5 * (time.monotonic() - start)

    def fails_quickly(self):
        failed = self.failed_once = self.run_in_one_process("-Screen*")
        if failed and self.run_in_one_process(failed):
            self.noticed_by = failed
            return True
        return False

    def ctest(self, *options):
        """The tests that fail. Where only those of a room are built, ctest finds no others."""
        place = self.build / "tests" / self.room if self.own else self.build
        done = subprocess.run(["ctest", "--test-dir", place, "-j2", "--timeout", "60", *options], stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, errors="replace")
        return re.findall(r"^\s*\d+ - (\S+) \(", done.stdout, re.M)

    def fails(self, *options):
        """Whether a test fails, and fails again when repeated."""
        failed = self.ctest("--stop-on-failure", *options)
        for test in failed:
            if self.ctest("-R", f"^{re.escape(test)}$"):
                self.noticed_by = test
                return True
        return bool(failed) and self.fails_without_stop(*options)

    def fails_without_stop(self, *options):
        failed = self.ctest("--repeat", "until-pass:2", *options)
        self.noticed_by = failed[0] if failed else ""
        return bool(failed)

    def notices(self):
        """The tests of the room first, in one process: most faults end there."""
        left = ["-R", "Screen"] if self.own and not self.failed_once else []
        if self.fails_quickly() or self.fails("-L", f"^{self.room}$", *left):
            return True
        if self.own:
            return False
        if not self.compiles("all"):
            self.noticed_by = "the compiler"
            return True
        return self.fails("-LE", f"^{self.room}$")


def with_display():
    """Runs this program again under the virtual display of the tests."""
    if "KAV_UNDER_DISPLAY" not in os.environ:
        os.environ["KAV_UNDER_DISPLAY"] = "1"
        os.execv(ROOT / "scripts" / "display", ["display", sys.executable, __file__, *sys.argv[1:]])


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--room", choices=ROOMS, required=True)
    parser.add_argument("--only", default="", metavar="REGEX", help="plant in files with such a name")
    parser.add_argument("--own", action="store_true", help="run the tests of the room alone: quicker, and a lower bound")
    parser.add_argument("--count", type=int, default=20, help="faults to plant")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=60, help="plant no more after this time")
    parser.add_argument("--copy", type=pathlib.Path, help="where the copy is kept (build/faults/ROOM)")
    parser.add_argument("--list", action="store_true", help="only show what would be planted")
    options = parser.parse_args()
    rng = random.Random(options.seed)

    if options.list:
        for kind, file, text, start, end, new in (Planter(ROOT, options, rng).draw() for _ in range(options.count)):
            print(describe(ROOT, kind, file, text, start, end, new))
        return
    with_display()
    end_time = time.monotonic() + 60 * options.minutes
    place = (options.copy or ROOT / "build" / "faults" / options.room).resolve()
    place.mkdir(parents=True, exist_ok=True)
    tree = Tree(place, options.room, options.own)
    if not tree.compiles(*(tree.targets() if options.own else ["all"])) or tree.notices():
        sys.exit(f"The tests do not pass as they are: {tree.noticed_by or 'they do not build'}")
    tree.learn_patience()
    unchanged = tree.program()
    noticed = planted = 0
    planter = Planter(place, options, rng)
    while planted < options.count and time.monotonic() < end_time:
        kind, file, text, start, end, new = planter.draw()
        try:
            tree.marker.write_text(str(file))
            file.write_text(text[:start] + new + text[end:])
            if not tree.compiles(*tree.targets()):
                continue
            if tree.program() == unchanged:
                continue
            found = tree.notices()
        finally:
            file.write_text(text)
        planted += 1
        noticed += found
        what = describe(place, kind, file, text, start, end, new)
        print(f"{'noticed ' if found else 'SURVIVED'} {what}{' by ' + tree.noticed_by if found else ''}", flush=True)
    print(f"{options.room}, seed {options.seed}: {noticed} of {planted} faults noticed")


def describe(tree, kind, file, text, start, end, new):
    line = text.count("\n", 0, start) + 1
    old = " ".join(text[start:end].split())
    return f"{file.relative_to(tree)}:{line}: {kind}: {old!r} -> {new!r}"


if __name__ == "__main__":
    main()
