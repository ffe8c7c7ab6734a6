"""Whether two programs' maps show the same pixels of the same picture."""

import math

import measure
import tools

CHECKED_RADIUS = 19_990_000  # metres; at the antipode the last bits of two programs decide


def pixels_of_ppm(path, size):
    return path.read_bytes()[-3 * size * size :]


def differing_pixels(ours, theirs, size):
    """How many pixels were compared, and how many differ. The station's own pixel is white in our map."""
    half, limit = size // 2, (CHECKED_RADIUS / tools.metres_per_pixel(size)) ** 2
    compared = differing = 0
    for row in range(size):
        above = row - half
        if above * above >= limit:
            continue
        reach = min(math.isqrt(math.ceil(limit - above * above) - 1), half - 1)
        first, last = 3 * (row * size + half - reach), 3 * (row * size + half + reach + 1)
        compared += 2 * reach + (above != 0)
        if ours[first:last] == theirs[first:last]:
            continue
        station = 3 * (half * size + half)
        differing += sum(ours[i : i + 3] != theirs[i : i + 3] for i in range(first, last, 3) if i != station)
    return compared, differing


def print_agreement(arguments, directory):
    size = arguments.check_size
    bare = tools.BARE + tools.FROM_FILE.format(directory / "numbered.ppm")
    measure.cost_of(tools.kavmap(arguments.program, directory, "numbered", bare, "ours.pnm")(size), directory,
                    arguments.limit)
    ours = pixels_of_ppm(directory / "ours.pnm", size)
    print(f"Pictures of {size} pixels within {CHECKED_RADIUS // 1000} km, from a source whose pixels all differ in "
          "colour:\n")
    for tolerance in (["-et", "0"], []):
        warp = tools.gdalwarp(*tolerance, source="numbered.tif", output="numbered_warped.tif")
        measure.cost_of(warp(size), directory, arguments.limit)
        measure.cost_of(["gdal_translate", "-q", "-of", "PNM", "numbered_warped.tif", "theirs.ppm"], directory,
                        arguments.limit)
        compared, differing = differing_pixels(ours, pixels_of_ppm(directory / "theirs.ppm", size), size)
        print(f"- `{' '.join(['gdalwarp', *tolerance])}`: {differing:,} of {compared:,} pixels differ from kavmap's")
    print()
