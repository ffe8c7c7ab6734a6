"""Whole processes under a time limit, what they cost, and a display for those that need one."""

import contextlib
import mmap
import os
import select
import shutil
import signal
import subprocess
import sys
import tempfile
from dataclasses import dataclass

TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")


@dataclass(frozen=True)
class Cost:
    cpu: float  # seconds, user and system
    user: float  # seconds
    memory: float  # MB at the peak


def cost_of(command, directory, limit):
    """Runs a command and reports what the kernel charged to it. A failure and a time-out end the comparison."""
    with tempfile.TemporaryFile() as messages:
        process = subprocess.Popen(command, cwd=directory, stdin=subprocess.DEVNULL, stdout=messages, stderr=messages)
        handle = os.pidfd_open(process.pid)
        finished = []
        try:
            finished, _, _ = select.select([handle], [], [], limit)
        finally:
            os.close(handle)
            if not finished:
                process.kill()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            messages.seek(0)
            reason = messages.read().decode(errors="replace") if finished else f"still running after {limit:.0f} s"
            raise SystemExit(f"{' '.join(command)}: {reason}")
    return Cost(usage.ru_utime + usage.ru_stime, usage.ru_utime, usage.ru_maxrss / 1024)


def touch_memory():
    """Uses a GB of memory in a process of its own. A virtual machine's host takes idle memory back; the process that
    needs it next pays for that, by up to a second of system time, whatever tool it is."""
    subprocess.run([sys.executable, __file__], check=True, timeout=60)


def touch_gigabyte():
    size = 1 << 30
    with mmap.mmap(-1, size, mmap.MAP_PRIVATE | mmap.MAP_ANONYMOUS) as memory:
        memory.madvise(mmap.MADV_HUGEPAGE)
        for page in range(0, size, mmap.PAGESIZE):
            memory[page] = 1


def cpu_of_running(pid):
    """Processor seconds that a process has spent so far."""
    with open(f"/proc/{pid}/stat", encoding="ascii") as stat:
        fields = stat.read().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / TICKS_PER_SECOND


@contextlib.contextmanager
def virtual_display():
    """A display of our own in $DISPLAY; gives the server's process id."""
    if not shutil.which("Xvfb"):
        raise SystemExit("Xvfb is needed (Debian: xvfb)")
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24", "-noreset", "-nolisten", "tcp"],
        pass_fds=[write_end], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write_end)
    try:
        ready, _, _ = select.select([read_end], [], [], 20)
        number = os.read(read_end, 20).decode().strip() if ready else ""
        if not number:
            raise SystemExit("Xvfb does not start")
        os.environ["DISPLAY"] = ":" + number
        yield server.pid
    finally:
        os.close(read_end)
        server.terminate()
        try:
            server.wait(5)
        except subprocess.TimeoutExpired:
            server.kill()
            server.wait()


def leave_cleanly_when_ended():
    """SIGTERM takes the temporary files and the display along."""
    def end(*_):
        raise SystemExit(128 + signal.SIGTERM)

    signal.signal(signal.SIGTERM, end)


if __name__ == "__main__":
    touch_gigabyte()
