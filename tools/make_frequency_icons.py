#!/usr/bin/env python3
"""Makes resources/icons/fq_*.xpm and fq_*.svg: a coloured plate with the frequency for each frequency tool.

The .svg is the same picture for screens of more pixels. Needs Debian's python3. The colours run from red for the lowest frequency to violet for the highest.
"""

import shipped

WIDTH, HEIGHT, TOP = 16, 15, 3
WHITE = (255, 255, 255)

ICONS = [
    ("fq_3_5", "3.5", (0x9C, 0x1C, 0x1C)),
    ("fq_7_0", "7", (0xC4, 0x4A, 0x00)),
    ("fq_10_1", "10", (0x8A, 0x6A, 0x00)),
    ("fq_14_0", "14", (0x3F, 0x7D, 0x12)),
    ("fq_18_1", "18", (0x00, 0x7A, 0x5E)),
    ("fq_21_0", "21", (0x00, 0x72, 0xA6)),
    ("fq_24_9", "24", (0x1F, 0x4F, 0xC8)),
    ("fq_28_0", "28", (0x6A, 0x2F, 0xB8)),
    ("fq_user", "U", (0x55, 0x5B, 0x63)),
]

GLYPHS = {
    "0": " #### |##  ##|##  ##|##  ##|##  ##|##  ##|##  ##|##  ##| #### ",
    "1": "  ##  | ###  |####  |  ##  |  ##  |  ##  |  ##  |  ##  |######",
    "2": " #### |##  ##|    ##|    ##|   ## |  ##  | ##   |##    |######",
    "3": " ### |## ##|   ##|   ##| ### |   ##|   ##|## ##| ### ",
    "4": "   ###|  ####| ## ##|##  ##|##  ##|######|    ##|    ##|    ##",
    "5": "#####|##   |##   |#### |## ##|   ##|   ##|## ##| ### ",
    "7": "######|    ##|    ##|   ## |   ## |  ##  |  ##  | ##   | ##   ",
    "8": " #### |##  ##|##  ##|##  ##| #### |##  ##|##  ##|##  ##| #### ",
    "U": "##  ##|##  ##|##  ##|##  ##|##  ##|##  ##|##  ##|##  ##| #### ",
    ".": "  |  |  |  |  |  |  |##|##",
}

# The same as strokes of a pen STROKE wide, in the same cells: GLYPHS tells how wide each is.
STROKE = 1.7
STROKES = {
    "0": "M3,.8C4.6,.8 5.2,2.4 5.2,4.5S4.6,8.2 3,8.2S.8,6.6 .8,4.5S1.4,.8 3,.8z",
    "1": "M.9,2.6 3,.9V8.2M.7,8.2H5.3",
    "2": "M.9,2.7C.9,1.5 1.7,.8 3,.8C4.3,.8 5.1,1.6 5.1,2.8C5.1,4.8 1.2,6 .9,8.2H5.3",
    "3": "M.8,1.9C1.1,1.2 1.7,.8 2.4,.8C3.5,.8 4.1,1.5 4.1,2.5C4.1,3.6 3.4,4.3 2,4.3"
    "C3.6,4.3 4.3,5.1 4.3,6.3C4.3,7.5 3.5,8.2 2.4,8.2C1.6,8.2 .9,7.8 .7,7",
    "4": "M4.2,8.6V.9L.8,5.2V5.8H5.6",
    "5": "M4.3,.8H1.1V4H2.3C3.6,4 4.2,4.8 4.2,6C4.2,7.4 3.5,8.2 2.3,8.2C1.6,8.2 1,7.9 .7,7.2",
    "7": "M.7,.8H5.2C3.4,3.2 2.8,5.5 2.6,8.5",
    "8": "M3,.8A1.8,1.75 0 1 0 3,4.3A1.8,1.75 0 1 0 3,.8zM3,4.3A2.1,1.95 0 1 0 3,8.2A2.1,1.95 0 1 0 3,4.3z",
    "U": "M.9,.4V5.8C.9,7.4 1.7,8.2 3,8.2S5.1,7.4 5.1,5.8V.4",
    ".": "M.9,8.1h.2",
}


def make():
    files = {}
    for name, text, colour in ICONS:
        comment = f"Frequency: {text}"
        files[f"resources/icons/{name}.xpm"] = shipped.xpm(f"icon_{name}", plate(text, colour), comment)
        files[f"resources/icons/{name}.svg"] = drawing(text, colour)
    return files


def drawing(text, colour):
    """The plate as an SVG drawing."""
    widths = [len(GLYPHS[character].split("|")[0]) for character in text]
    left = (WIDTH - sum(widths) - len(widths) + 1) // 2
    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}">',
        f'<rect width="{WIDTH}" height="{HEIGHT}" rx="1.2" fill="{shipped.colour_name(colour)}"/>',
        f'<g fill="none" stroke="#FFFFFF" stroke-width="{STROKE}" stroke-linecap="round" stroke-linejoin="round">',
    ]
    for character, width in zip(text, widths):
        lines.append(f'<path transform="translate({left},{TOP})" d="{STROKES[character]}"/>')
        left += width + 1
    return "\n".join(lines + ["</g>", "</svg>"]) + "\n"


def plate(text, colour):
    """The pixels of one icon: a plate with rounded corners, the text in its middle."""
    rows = [[colour] * WIDTH for _ in range(HEIGHT)]
    for row in (0, HEIGHT - 1):
        rows[row][0] = rows[row][WIDTH - 1] = None
    lines = [" ".join(line) for line in zip(*(GLYPHS[character].split("|") for character in text))]
    left = (WIDTH - len(lines[0])) // 2
    for row, line in enumerate(lines, TOP):
        for column, ink in enumerate(line, left):
            if ink != " ":
                rows[row][column] = WHITE
    return rows


if __name__ == "__main__":
    shipped.run(__doc__.splitlines()[0], make, needs_sources=False)
