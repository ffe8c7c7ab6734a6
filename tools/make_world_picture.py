#!/usr/bin/env python3
"""Makes resources/world.xpm, the built-in world picture, and resources/preview_map.xpm, a piece of it.

Needs Debian's python3 and python3-pil.
Source: world_ne2_2048x1024.png, the Natural Earth II raster (public domain), equirectangular, longitude -180 at the
left and latitude 90 at the top; assembled from the tiles in Source/Assets/Textures/NaturalEarthII/2/ of the npm package
@cesium/engine 26.3.0 (Apache-2.0).
"""

from collections import Counter
from itertools import product

from PIL import Image

import shipped

WIDTH, HEIGHT, COLOURS = 720, 360, 44551
PREVIEW_SIZE, PREVIEW_LEFT, PREVIEW_TOP, PREVIEW_COLOURS = 64, 340, 48, 256
CREDIT = "Natural Earth II, public domain"


def make(sources):
    with Image.open(sources / "world_ne2_2048x1024.png") as picture:
        world = averaged(picture.convert("RGB"))
    reduced = reduce_colours(world)
    report(world, reduced)
    return {
        "resources/world.xpm": shipped.xpm("world_xpm", reduced, f"The world, half a degree a pixel. {CREDIT}"),
        "resources/preview_map.xpm": shipped.xpm("preview_map_xpm", preview(reduced), f"Western Europe. {CREDIT}"),
    }


def averaged(picture):
    """The picture at WIDTH x HEIGHT; each pixel is the exact mean of the area it covers, rounded half up."""
    columns = shares(picture.width, WIDTH)
    lines = shares(picture.height, HEIGHT)
    total = sum(share for _, share in columns[0]) * sum(share for _, share in lines[0])
    pixels = picture.load()
    narrow = [
        [[sum(pixels[x, y][channel] * share for x, share in column) for channel in range(3)] for column in columns]
        for y in range(picture.height)
    ]
    return [
        [
            tuple(
                (2 * sum(narrow[y][x][channel] * share for y, share in line) + total) // (2 * total)
                for channel in range(3)
            )
            for x in range(WIDTH)
        ]
        for line in lines
    ]


def shares(source, target):
    """For each target pixel, the source pixels it covers with their share, in units of 1/target of a source pixel."""
    covered = []
    for index in range(target):
        begin, end = index * source, (index + 1) * source
        cells = range(begin // target, (end - 1) // target + 1)
        covered.append([(cell, min(end, (cell + 1) * target) - max(begin, cell * target)) for cell in cells])
    return covered


def reduce_colours(rows):
    """Merges the least used colours into a neighbour until COLOURS remain. No channel changes by more than 1."""
    uses = Counter(pixel for row in rows for pixel in row)
    merged, takers = {}, set()
    for colour in sorted(uses, key=lambda colour: (uses[colour], colour)):
        if len(uses) - len(merged) == COLOURS:
            break
        if colour in takers:  # merging it again would move what it took by 2
            continue
        taker = best_neighbour(colour, uses, merged)
        if taker:
            merged[colour] = taker
            takers.add(taker)
    return [[merged.get(pixel, pixel) for pixel in row] for row in rows]


def best_neighbour(colour, uses, merged):
    """The nearest colour at most 1 away in each channel that is still in use, the most used of equals; or None."""
    candidates = []
    for step in product((-1, 0, 1), repeat=3):
        neighbour = tuple(value + change for value, change in zip(colour, step))
        if any(step) and neighbour in uses and neighbour not in merged:
            candidates.append((sum(map(abs, step)), -uses[neighbour], neighbour))
    return min(candidates)[2] if candidates else None


def preview(rows):
    """The piece for the options dialog, with a palette of its own."""
    piece = Image.new("RGB", (PREVIEW_SIZE, PREVIEW_SIZE))
    cut = [row[PREVIEW_LEFT : PREVIEW_LEFT + PREVIEW_SIZE] for row in rows[PREVIEW_TOP : PREVIEW_TOP + PREVIEW_SIZE]]
    piece.putdata([pixel for row in cut for pixel in row])
    pixels = piece.quantize(PREVIEW_COLOURS, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).convert("RGB")
    return [[pixels.getpixel((x, y)) for x in range(PREVIEW_SIZE)] for y in range(PREVIEW_SIZE)]


def report(before, after):
    """Says what the reduction did; a picture with another number of colours or a larger change is an error."""
    counts = [len({pixel for row in rows for pixel in row}) for rows in (before, after)]
    largest = max(
        abs(old - new)
        for old_row, new_row in zip(before, after)
        for old_pixel, new_pixel in zip(old_row, new_row)
        for old, new in zip(old_pixel, new_pixel)
    )
    print(f"{WIDTH} x {HEIGHT}: {counts[0]} colours reduced to {counts[1]}, largest change of a channel {largest}")
    if counts[1] != COLOURS or largest > 1:
        raise SystemExit("the colours could not be reduced as required")


if __name__ == "__main__":
    shipped.run(__doc__.splitlines()[0], make)
