#!/usr/bin/env python3
"""Makes resources/icons/hicolor/: the program's icon, drawn for each size, and kavmap.svg for any other.

Needs Debian's python3 and rsvg-convert, from librsvg2-bin.
Source: ne50_countries_rings.json, country polygons at 1:50m from Natural Earth (public domain), exported from Debian's
r-cran-rnaturalearthdata 0.1.0-2 (CC0).
"""

import json
import math
import subprocess
from typing import NamedTuple

import shipped

CENTRE = (48, 0)
SUN = (18, -62)
REACH = math.radians(92)  # from the centre to the rim of the disc
BEAM = math.radians(58)  # bearing of the antenna

SEA, LAND, NIGHT, RIM, PLATE, AERIAL = "#2a75bb", "#86c440", "#061630", "#0b2447", "#ffffff", "#ff8c1a"


class Look(NamedTuple):
    """What one size has room for, in pixels; ticks and radials so many degrees apart, 0 for none."""

    size: int
    ring: float
    ticks: int
    radials: int
    circles: int
    beam: float
    smallest: float  # land of less width is left out, and corners closer to a line


LOOKS = [
    Look(16, 0, 0, 0, 0, 1.6, 1.0),
    Look(22, 0, 0, 0, 0, 2, 1.0),
    Look(24, 0, 0, 0, 0, 2, 1.0),
    Look(32, 2.5, 0, 90, 0, 2.2, 1.0),
    Look(48, 4, 30, 45, 0, 2.6, 0.9),
    Look(64, 5, 30, 45, 1, 3, 0.8),
    Look(128, 9, 15, 30, 2, 4, 0.7),
    Look(256, 17, 10, 30, 2, 6, 0.6),
]
SCALABLE = LOOKS[-1]._replace(smallest=1.2)


def make(sources):
    countries = json.loads((sources / "ne50_countries_rings.json").read_text(encoding="utf-8"))
    rings = [ring for country in countries["features"] for ring in country["geometry"]["coordinates"]]
    folder = "resources/icons/hicolor"
    files = {f"{folder}/{look.size}x{look.size}/kavmap.png": png(svg(look, rings)) for look in LOOKS}
    files[f"{folder}/scalable/kavmap.svg"] = svg(SCALABLE, rings)
    return files


def png(drawing):
    return subprocess.run(["rsvg-convert"], input=drawing.encode(), stdout=subprocess.PIPE, check=True).stdout


def svg(look, rings):
    middle = look.size / 2
    disc = middle - 0.5 - look.ring
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{look.size}" height="{look.size}" '
        f'viewBox="0 0 {look.size} {look.size}">',
        f'<clipPath id="disc"><circle cx="{middle}" cy="{middle}" r="{disc}"/></clipPath>',
        f'<circle cx="{middle}" cy="{middle}" r="{middle - 0.5}" fill="{PLATE if look.ring else SEA}"/>',
        f'<g clip-path="url(#disc)"><rect width="{look.size}" height="{look.size}" fill="{SEA}"/>',
        f'<path fill="{LAND}" d="{land(look, rings, disc)}"/>',
        f'<path fill="{NIGHT}" fill-opacity="0.6" fill-rule="evenodd" d="{night(look, disc)}"/></g>',
        lines(look, disc),
        beam(look, disc),
        f'<g fill="none" stroke="{RIM}"><circle cx="{middle}" cy="{middle}" r="{disc}"/>'
        f'<circle cx="{middle}" cy="{middle}" r="{middle - 0.5}"/></g>',
        "</svg>",
    ]
    return "\n".join(parts) + "\n"


def place(look, disc, latitude, longitude):
    """The pixel of a place: azimuthal equidistant around CENTRE."""
    here, there = math.radians(CENTRE[0]), math.radians(latitude)
    east = math.radians(longitude - CENTRE[1])
    x = math.cos(there) * math.sin(east)
    y = math.cos(here) * math.sin(there) - math.sin(here) * math.cos(there) * math.cos(east)
    z = math.sin(here) * math.sin(there) + math.cos(here) * math.cos(there) * math.cos(east)
    return at(look, math.atan2(x, y), math.atan2(math.hypot(x, y), z) / REACH * disc)


def at(look, bearing, distance):
    return look.size / 2 + distance * math.sin(bearing), look.size / 2 - distance * math.cos(bearing)


def path(points):
    return "M" + " ".join(f"{x:.1f},{y:.1f}" for x, y in points) + "z"


def land(look, rings, disc):
    shapes = []
    for ring in rings:
        points = simplified([place(look, disc, lat, lon) for lon, lat in ring], look.smallest / 2)
        widths = [max(axis) - min(axis) for axis in zip(*points)]
        near = any(math.dist(point, (look.size / 2, look.size / 2)) < disc for point in points)
        if near and max(widths) >= look.smallest and len(points) > 2:
            shapes.append(path(points))
    return "".join(shapes)


def simplified(points, tolerance):
    """The points that a line needs to stay within the tolerance of all (Douglas and Peucker)."""
    if len(points) < 3:
        return points
    begin, end = points[0], points[-1]
    off = [away(point, begin, end) for point in points[1:-1]]
    farthest = max(range(len(off)), key=off.__getitem__)
    if off[farthest] <= tolerance:
        return [begin, end]
    return simplified(points[: farthest + 2], tolerance)[:-1] + simplified(points[farthest + 1 :], tolerance)


def away(point, begin, end):
    length = math.dist(begin, end)
    if length == 0:
        return math.dist(point, begin)
    across = (end[0] - begin[0]) * (point[1] - begin[1]) - (end[1] - begin[1]) * (point[0] - begin[0])
    return abs(across) / length


def night(look, disc):
    """All but the day, whose edge lies 90 degrees from the sun; the centre has day."""
    latitude = math.radians(SUN[0])
    edge = []
    for bearing in range(0, 360, 6):
        angle = math.radians(bearing)
        there = math.degrees(math.asin(math.cos(latitude) * math.cos(angle)))
        east = math.degrees(math.atan2(math.sin(angle), -math.sin(latitude) * math.cos(angle)))
        edge.append(place(look, disc, there, SUN[1] + east))
    everything = [(-look.size, -look.size), (2 * look.size, -look.size), (2 * look.size, 2 * look.size)]
    return path(everything + [(-look.size, 2 * look.size)]) + path(edge)


def lines(look, disc):
    middle = look.size / 2
    thin = f'<g fill="none" stroke="#ffffff" stroke-opacity="0.55" stroke-width="{max(1, look.size / 128)}">'
    parts = [segment(look, degrees, 0, disc) for degrees in every(look.radials)]
    for circle in range(1, look.circles + 1):
        parts.append(f'<circle cx="{middle}" cy="{middle}" r="{disc * circle / (look.circles + 1):.1f}"/>')
    ticks = [segment(look, degrees, disc, disc + look.ring * 0.6) for degrees in every(look.ticks)]
    dark = f'<g stroke="{RIM}" stroke-width="{max(1, look.size / 128)}">'
    return thin + "".join(parts) + "</g>" + dark + "".join(ticks) + "</g>"


def every(degrees):
    return range(0, 360, degrees) if degrees else []


def segment(look, degrees, begin, end):
    (x1, y1), (x2, y2) = (at(look, math.radians(degrees), distance) for distance in (begin, end))
    return f'<path d="M{x1:.1f},{y1:.1f} {x2:.1f},{y2:.1f}"/>'


def beam(look, disc):
    middle = look.size / 2
    x, y = at(look, BEAM, disc * 0.92)
    return (
        f'<g stroke="{AERIAL}" stroke-width="{look.beam}" stroke-linecap="round"><path d="M{middle},{middle} '
        f'{x:.1f},{y:.1f}"/></g><circle cx="{middle}" cy="{middle}" r="{look.beam}" fill="{AERIAL}"/>'
    )


if __name__ == "__main__":
    shipped.run(__doc__.splitlines()[0], make)
