"""What the commands beside kavmap share: how they take options and how they end."""

import argparse
import os
import re
import sys
import tempfile

VERSION = "3.1.9"


class Refusal(Exception):
    """What was wrong; the command ends with exit status 1 and has written nothing."""


class _Help(argparse.HelpFormatter):
    """Options as kavmap lists its own: the short name, the long one, what it takes."""

    def __init__(self, prog):
        super().__init__(prog, max_help_position=25, width=88)

    def add_usage(self, usage, actions, groups, prefix=None):
        super().add_usage(usage, actions, groups, "Usage: ")

    def start_section(self, heading):
        super().start_section(None)

    def _format_action_invocation(self, action):
        if not action.option_strings:
            return super()._format_action_invocation(action)
        names = ", ".join(action.option_strings)
        indent = "" if len(action.option_strings) > 1 else "    "
        return indent + names + (" " + action.metavar if action.nargs != 0 else "")


class Options(argparse.ArgumentParser):
    """Takes a command's options; wrong use is refused."""

    def __init__(self, name, usage, description, statuses):
        super().__init__(name, usage, add_help=False, description=description, formatter_class=_Help,
                         allow_abbrev=False, epilog=statuses)
        self.add_argument("-h", "--help", action="help", help="print these options")
        self.add_argument("--version", action="version", version=f"{name} {VERSION}", help="print the version")

    def error(self, message):
        raise Refusal(message)


def numbers(least, most):
    """Reads lists like 0-5,12."""

    def read(text):
        found = []
        for part in text.split(","):
            match = re.fullmatch(r"(\d{1,2})(?:-(\d{1,2}))?", part.strip())
            first, last = (int(match[1]), int(match[2] or match[1])) if match else (least - 1, 0)
            if not least <= first <= last <= most:
                raise Refusal(f"not numbers from {least} to {most} like {least}-{least + 2},{most}: {text}")
            found += range(first, last + 1)
        return list(dict.fromkeys(found))

    return read


def choices(known):
    """Reads lists of some of the names."""

    def read(text):
        found = [re.sub(r"\.0$", "", part.strip().lower()) for part in text.split(",")]
        if wrong := [name for name in found if name not in known]:
            raise Refusal(f"not one of {', '.join(known)}: {wrong[0]}")
        return list(dict.fromkeys(found))

    return read


def reason(error):
    """Why the system refused something, in its words."""
    return error.strerror or str(error)


def write_whole(path, text):
    """Writes a file that appears whole or not at all."""
    if os.path.exists(path) and not os.path.isfile(path):
        raise Refusal(f"can't write {path}: it is no file")
    try:
        with tempfile.NamedTemporaryFile("w", dir=os.path.dirname(path) or ".", delete=False) as file:
            file.write(text)
            os.fchmod(file.fileno(), 0o666 & ~_umask())
        os.replace(file.name, path)
    except OSError as error:
        raise Refusal(f"can't write {path}: {reason(error)}") from error


def _umask():
    mask = os.umask(0)
    os.umask(mask)
    return mask


def run(name, main):
    """Runs a command and ends with its status; what it refuses is said on standard error."""
    try:
        status = main(sys.argv[1:])
        sys.stdout.flush()
        sys.exit(status)
    except Refusal as refusal:
        print(f"{name}: {refusal}", file=sys.stderr)
    except BrokenPipeError:
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
    except OSError as error:
        print(f"{name}: {reason(error)}", file=sys.stderr)
    except KeyboardInterrupt:
        print(f"{name}: interrupted", file=sys.stderr)
    sys.exit(1)
