#!/usr/bin/env python3
"""Makes the label files data/countries.dat, data/cities.dat and data/prefixes.dat.

Needs Debian's python3. Sources:
- ne50_countries_rings.json, ne50_tiny_countries.csv: countries at 1:50m with names and label ranks, from Natural Earth
  (public domain), exported from Debian's r-cran-rnaturalearthdata 0.1.0-2 (CC0);
- city-timezones-1.3.4_cityMap.json: cities, from the npm package city-timezones 1.3.4 (MIT);
- countries-list-3.4.1_countries.min.json: capitals, from the npm package countries-list 3.4.1 (MIT);
- hamradio-files_20230502_cty.dat: call-sign prefixes, from Debian's hamradio-files 20230502 (MIT).

A line has seven fields separated by ";", of which the second is the label, the fifth the latitude and the sixth the
longitude. No field is empty, because readers drop empty ones. Of two labels that collide the earlier is kept, so the
most important come first.
"""

import csv
import json
import re
import unicodedata

import shipped
from label_names import (
    CAPITAL_NAMES,
    CAPITALS_IN_CITY_TABLE,
    CITY_NAMES,
    COUNTRY_NAMES,
    DISTANT_PARTS,
    LEFT_OUT,
    POSITIONS,
)

LARGE_CITY = 1_000_000
TINY_RANK = 6  # the label rank that Natural Earth gives to most of the small countries


def make(sources):
    return {
        "data/countries.dat": label_file("countries.dat", countries(sources)),
        "data/cities.dat": label_file("cities.dat", cities(sources)),
        "data/prefixes.dat": label_file("prefixes.dat", prefixes(sources)),
    }


def label_file(name, rows):
    """One line for each (code, label, type, remark, latitude, longitude, remark)."""
    lines = []
    for code, label, kind, remark, latitude, longitude, last in rows:
        fields = [code, label, kind, remark, f"{latitude:.4f}", f"{longitude:.4f}", str(last)]
        if not all(fields) or any(";" in field for field in fields) or kind == "Country":
            raise SystemExit(f"{name}: a reader would not understand {fields}")
        lines.append(";".join(fields) + "\n")
    print(f"{name}: {len(lines)} labels")
    return "".join(lines)


def countries(sources):
    """Countries and territories by label rank, then by population."""
    found = {}
    for feature in read_json(sources, "ne50_countries_rings.json")["features"]:
        country = feature["properties"]
        rings = feature["geometry"]["coordinates"]
        largest = max(rings, key=lambda ring: abs(area(ring)))
        found[country["name"]] = (int(country["labelrank"]), country, label_position(largest))
        for name, part in distant_parts(country["name"], rings):
            found[name] = (TINY_RANK, part, label_position(part["ring"]))
    with (sources / "ne50_tiny_countries.csv").open(encoding="utf-8", newline="") as table:
        for country in csv.DictReader(table):
            position = float(country["lat"]), float(country["lon"])
            rank, country, _ = found.get(country["name"], (TINY_RANK, country, None))
            found[country["name"]] = (rank, country, position)
    ordered = sorted(found.values(), key=lambda entry: (entry[0], -int(entry[1]["pop_est"] or 0), entry[1]["name"]))
    for rank, country, position in ordered:
        name = country["name"]
        if name not in LEFT_OUT:
            kind = "State" if country["type"] in ("Sovereign country", "Country") else "Territory"
            code = country["iso_a2"] if country["iso_a2"] not in (None, "NA") or name == "Namibia" else "-"
            yield code, COUNTRY_NAMES.get(name, name), kind, f"rank {rank}", *POSITIONS.get(name, position), "-"


def distant_parts(country, rings):
    """The parts of a country that have a label of their own."""
    for name, (code, owner, latitude, longitude) in DISTANT_PARTS.items():
        if owner == country:
            ring = next(ring for ring in rings if inside((longitude, latitude), ring))
            yield name, {"name": name, "iso_a2": code, "type": "Geo unit", "pop_est": 0, "ring": ring}


def area(ring):
    return sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(ring, ring[1:])) / 2


def label_position(ring):
    """A point inside the ring, far from its edge and near its middle: latitude, longitude."""
    west, east = min(x for x, _ in ring), max(x for x, _ in ring)
    south, north = min(y for _, y in ring), max(y for _, y in ring)
    middle = ((west + east) / 2, (south + north) / 2)
    sample = ring[:: max(1, len(ring) // 300)]
    steps = 24

    def quality(point):
        edge = min((point[0] - x) ** 2 + (point[1] - y) ** 2 for x, y in sample) ** 0.5
        return edge - 0.3 * ((point[0] - middle[0]) ** 2 + (point[1] - middle[1]) ** 2) ** 0.5

    grid = (
        (west + (east - west) * (column + 0.5) / steps, south + (north - south) * (row + 0.5) / steps)
        for row in range(steps)
        for column in range(steps)
    )
    longitude, latitude = max((point for point in grid if inside(point, ring)), key=quality, default=middle)
    return latitude, longitude


def inside(point, ring):
    x, y = point
    crossings = sum(
        (y1 > y) != (y2 > y) and x < x1 + (x2 - x1) * (y - y1) / (y2 - y1) for (x1, y1), (x2, y2) in zip(ring, ring[1:])
    )
    return crossings % 2 == 1


def cities(sources):
    """Capitals, then the other large cities, both by population."""
    capital_names = {
        (code, plain(CAPITALS_IN_CITY_TABLE.get(code, country["capital"]))): CAPITAL_NAMES.get(code, country["capital"])
        for code, country in read_json(sources, "countries-list-3.4.1_countries.min.json").items()
    }
    capitals, others, seen = [], [], set()
    table = read_json(sources, "city-timezones-1.3.4_cityMap.json")
    for city in sorted(table, key=lambda city: (-city["pop"], city["city"])):
        code = "XK" if city["iso3"] == "KOS" else city["iso2"]
        name = city["city"]
        key = (code, plain(name))
        rest = city["iso3"], city["lat"], city["lng"], int(city["pop"])
        if key in seen or name in LEFT_OUT:
            continue
        seen.add(key)
        if key in capital_names:
            capitals.append((code, capital_names[key], "Capital", *rest))
        elif city["pop"] >= LARGE_CITY:
            others.append((code, CITY_NAMES.get(name, name), "City", *rest))
    return capitals + others


def plain(name):
    """The letters by which the same city is recognised in both tables."""
    letters = "".join(letter for letter in unicodedata.normalize("NFKD", name) if not unicodedata.combining(letter))
    letters = re.sub(r"\bst\b\.?", "saint", letters.lower())
    return re.sub(r"[^a-z]", "", re.sub(r" city$", "", letters))


def prefixes(sources):
    """The main prefix of every entity; those that use many prefixes, mostly the large countries, come first."""
    entities = []
    for record in (sources / "hamradio-files_20230502_cty.dat").read_text(encoding="ascii").split(";"):
        if ":" in record:
            name, _, _, continent, latitude, west, _, prefix, aliases = (field.strip() for field in record.split(":"))
            if not prefix.startswith("*"):
                uses = sum(not alias.strip().startswith("=") for alias in aliases.split(","))
                entities.append((uses, prefix, continent, float(latitude), -float(west), name))
    mains = {prefix for _, prefix, *_ in entities}

    def importance(entity):
        """An island that lists all combinations of its country's prefixes with its own figure is not large."""
        uses, prefix = entity[:2]
        is_part = any(prefix[:length] in mains for length in range(1, len(prefix)))
        return (uses / 10 if is_part else uses, -len(prefix))

    for _, prefix, continent, latitude, longitude, name in sorted(entities, key=importance, reverse=True):
        yield prefix, prefix, "Prefix", continent, latitude, longitude, name


def read_json(sources, name):
    return json.loads((sources / name).read_text(encoding="utf-8"))


if __name__ == "__main__":
    shipped.run(__doc__.splitlines()[0], make)
