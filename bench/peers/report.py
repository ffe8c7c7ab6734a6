"""What was measured, as the Markdown of docs/speed.md."""

import datetime
import math
import os
import shutil
import statistics
import subprocess

import tools
from measure import Cost


def first_line(*command):
    result = subprocess.run(command, capture_output=True, text=True, timeout=20, check=False)
    return (result.stdout + result.stderr).partition("\n")[0].strip()


def versions(program):
    yield first_line(program, "--version")
    if shutil.which("gdalwarp"):
        yield first_line("gdalwarp", "--version").partition(",")[0]
    if shutil.which("gmt"):
        yield "GMT " + first_line("gmt", "--version")
    if shutil.which("xplanet"):
        yield first_line("xplanet", "--version")


def processor():
    with open("/proc/cpuinfo", encoding="utf-8") as lines:
        return next((line.partition(":")[2].strip() for line in lines if line.startswith("model name")), "unknown")


def print_circumstances(arguments, load, server_cpu):
    """The load is that of the start, the X server's processor seconds are for each of kavmap's maps."""
    print(f"{datetime.date.today()}, {processor()}, {os.cpu_count()} cores; {', '.join(versions(arguments.program))}. "
          f"Medians of {arguments.rounds} rounds, the tools in turn; load average {load:.1f} at the start, "
          f"{os.getloadavg()[0]:.1f} at the end. The X server spent {1000 * server_cpu:.0f} ms a map of "
          "kavmap's, not counted below.\n")


def median_cost(costs):
    parts = ("cpu", "user", "memory")
    return Cost(*(statistics.median(getattr(cost, part) for cost in costs) for part in parts))


def three_digits(value):
    if value == 0:
        return "0"
    return f"{value:.{max(2 - math.floor(math.log10(abs(value))), 0)}f}"


def two_digits(value):
    return f"{value:.1f}" if value < 10 else f"{value:.0f}"


def print_table(title, sizes, rows):
    print(f"| {title} | " + " | ".join(map(str, sizes)) + " |")
    print("|---" * (len(sizes) + 1) + "|")
    for name, cells in rows:
        print(f"| {name} | " + " | ".join(cells) + " |")
    print()


def print_costs(contestants, costs):
    """Three tables of the contestants' costs, lists by size and tool: all, how they grow, how kavmap's default map
    stands to what other tools need for the base alone."""
    medians = {size: {tool.name: median_cost(rounds) for tool, rounds in row.items()} for size, row in costs.items()}
    sizes = list(costs)
    names = [tool.name for tool in contestants]
    others = [tool.name for tool in contestants if tool.package]

    def cell(size, name):
        cost, reference = medians[size][name], medians[size][tools.BASE]
        return (f"**{two_digits(cost.cpu / reference.cpu)}** · {three_digits(cost.cpu)} ({three_digits(cost.user)}) s"
                f" · {cost.memory:.0f} MB")

    def growth(size, name):
        return two_digits(medians[size][name].cpu / medians[sizes[0]][name].cpu)

    def against_default(size, name):
        return two_digits(medians[size][name].cpu / medians[size][tools.DEFAULT].cpu)

    def rows(cell_of, of):
        return [(name, [cell_of(size, name) for size in sizes]) for name in of]

    print_table("**ratio** · CPU (of it user) · peak memory", sizes, rows(cell, names))
    print(f"Growth: CPU as a multiple of that at {sizes[0]} pixels.\n")
    pixels = [two_digits((size / sizes[0]) ** 2) for size in sizes]
    print_table("", sizes, [("pixels of the picture", pixels), *rows(growth, names)])
    if others:
        print("CPU of other tools, for the base map alone, as a multiple of kavmap's for the whole default map.\n")
        print_table("", sizes, rows(against_default, others))
