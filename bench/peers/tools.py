"""The same job for every tool: read the picture of the world, project it, write it uncompressed."""

import shutil
from dataclasses import dataclass
from typing import Callable

LAT, LON = 55.6875, 12.625
RADIUS = 20_000_000  # metres
SPHERE = "+R=6370997 +no_defs"

BASE = "kavmap, base map"
DEFAULT = "kavmap, whole default map"

BARE = "[Compass]\nShow=0\nFontShow=0\n[Meridians]\nShow=0\n[Radials]\nShow=0\n"
FROM_FILE = "[SourceBitmap]\nShow1=1\nFile1={}\n"


@dataclass(frozen=True)
class Tool:
    name: str
    command: Callable[[int], list]  # for a size in pixels
    package: str = ""  # where its program comes from, if it is another's


def metres_per_pixel(size):
    """The program's scale for a bare base map, which has a margin of one pixel."""
    return RADIUS // ((size - 2) // 2)


def kavmap(program, directory, name, settings, output="map.pnm"):
    """Renders with the given settings, which are written to a file named after them."""
    def command(size):
        path = directory / f"{name}{size}.ini"
        path.write_text(f"Size={size}\n{settings}", encoding="utf-8")
        return [str(program), "--settings", str(path), "--render", output]

    return command


def gdalwarp(*tolerance, source="world.tif", output="warped.tif"):
    """The program's pixel grid: a pixel's middle lies a whole number of steps from the station."""
    def command(size):
        step = metres_per_pixel(size)
        west, north = -(size // 2 + 0.5) * step, (size // 2 + 0.5) * step
        extent = [west, north - size * step, west + size * step, north]
        return ["gdalwarp", "-q", "-overwrite", "-r", "near", *tolerance,
                "-t_srs", f"+proj=aeqd +lat_0={LAT} +lon_0={LON} {SPHERE}",
                "-te", *map(str, extent), "-ts", str(size), str(size), source, output]

    return command


def grdimage(size):
    return ["gmt", "grdimage", "world.tif", "-R-180/180/-90/90", f"-JE{LON}/{LAT}/{size}p", "-E72", "-nn",
            "-Agmt.ppm=PNM"]


def xplanet(size):
    return ["xplanet", "-config", "xplanet.cfg", "-searchdir", ".", "-num_times", "1", "-starfreq", "0",
            "-projection", "azimuthal", "-latitude", str(LAT), "-longitude", str(LON), "-radius", "50",
            "-geometry", f"{size}x{size}", "-output", "xplanet.bmp"]


def all_tools(program, directory):
    world = directory / "world.png"
    return [
        Tool(BASE, kavmap(program, directory, "base", BARE)),
        Tool(f"{BASE} of a PNG file", kavmap(program, directory, "file", BARE + FROM_FILE.format(world))),
        Tool(DEFAULT, kavmap(program, directory, "default", "")),
        Tool("gdalwarp -et 0", gdalwarp("-et", "0"), "gdal-bin"),
        Tool("gdalwarp, default -et", gdalwarp(), "gdal-bin"),
        Tool("gmt grdimage -JE -nn -A", grdimage, "gmt"),
        Tool("xplanet -projection azimuthal", xplanet, "xplanet"),
    ]


def is_installed(tool):
    """Grdimage reads and writes its pictures by GDAL, and its source is made by gdal_translate."""
    needed = {"gdal-bin": ["gdalwarp"], "gmt": ["gmt", "gdal_translate"], "xplanet": ["xplanet"]}
    return all(shutil.which(program) for program in needed.get(tool.package, []))
