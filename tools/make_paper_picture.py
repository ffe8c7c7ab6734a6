#!/usr/bin/env python3
"""Makes data/paper.png, a white sea with pale grey land to print, and data/white.png, which has no land either.

Needs Debian's python3 and python3-pil.
Source: ne50_countries_rings.json, country polygons at 1:50m from Natural Earth (public domain), exported from Debian's
r-cran-rnaturalearthdata 0.1.0-2 (CC0).
"""

import io
import json

from PIL import Image, ImageDraw

import shipped

WIDTH, HEIGHT = 4096, 2048
SEA, LAND = (0xFF, 0xFF, 0xFF), (0xDE, 0xDE, 0xDE)


def make(sources):
    return {"data/paper.png": png(land(sources)), "data/white.png": png(sheet(360, 180))}


def sheet(width, height):
    """A picture that is sea everywhere."""
    picture = Image.new("P", (width, height))
    picture.putpalette(SEA + LAND)
    return picture


def land(sources):
    countries = json.loads((sources / "ne50_countries_rings.json").read_text(encoding="utf-8"))
    picture = sheet(WIDTH, HEIGHT)
    pen = ImageDraw.Draw(picture)
    # A hole in a country is another country: there is no lake among the polygons.
    for country in countries["features"]:
        for ring in country["geometry"]["coordinates"]:
            pen.polygon([pixel(*point) for point in ring], fill=1)
    return picture


def png(picture):
    file = io.BytesIO()
    picture.save(file, "PNG", bits=1, optimize=True)
    return file.getvalue()


def pixel(longitude, latitude):
    return (longitude + 180) * WIDTH / 360, (90 - latitude) * HEIGHT / 180


if __name__ == "__main__":
    shipped.run(__doc__.splitlines()[0], make)
