#!/usr/bin/env python3
"""Makes resources/icons/fq_*.xpm: a coloured plate with the frequency for each frequency tool.

Needs Debian's python3. The colours run from red for the lowest frequency to violet for the highest.
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


def make():
    return {
        f"resources/icons/{name}.xpm": shipped.xpm(f"icon_{name}", plate(text, colour), f"Frequency: {text}")
        for name, text, colour in ICONS
    }


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
