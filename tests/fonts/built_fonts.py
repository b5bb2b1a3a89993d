"""Reads the built fonts back: what stands in the file, nothing of what the generator meant.

The fonts are those of the folder in the environment variable LINEWRIGHT_FONTS, else built afresh.
"""

import functools
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from fontTools.ttLib import TTFont

ROOT = Path(__file__).resolve().parents[2]
GENERATOR = ROOT / "fonts" / "build_fonts.py"
VERSION = re.search(r"project\(Linewright VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]

# Family, and the units of one module.
FAMILIES = {
    "Linewright Bars": 64,
    "Linewright EAN UPC": 32,
    "Linewright Postal": 64,
    "Linewright Classic Code 128": 64,
    "Linewright Classic Code 39": 64,
    "Linewright Classic Codabar": 64,
    "Linewright Classic EAN UPC": 32,
    "Linewright Classic I2of5": 64,
    "Linewright Classic MSI": 64,
    "Linewright Classic Postnet": 64,
}


def build(folder, **environment):
    command = [sys.executable, str(GENERATOR), "--out", str(folder), "--version", VERSION]
    subprocess.run(command, check=True, env={**os.environ, **environment})


@functools.cache
def _scratch():
    return tempfile.TemporaryDirectory(prefix="linewright-fonts-")


@functools.cache
def folder():
    given = os.environ.get("LINEWRIGHT_FONTS")
    if given:
        return Path(given)
    build(_scratch().name)
    return Path(_scratch().name)


def path(family, variable=False):
    stem = family.replace(" ", "")
    return folder() / "variable" / f"{stem}-Variable.ttf" if variable else folder() / f"{stem}.ttf"


class Font:
    """A font file; heights and places in font units."""

    def __init__(self, source, module):
        self.file = source if isinstance(source, TTFont) else TTFont(source)
        self.module = module
        self.map = self.file.getBestCmap()

    def advance(self, glyph):
        return self.file["hmtx"][glyph][0]

    def contours(self, glyph):
        outline = self.file["glyf"][glyph]
        if outline.numberOfContours < 1:
            return []
        points, ends, flags = outline.getCoordinates(self.file["glyf"])
        starts = [0] + [end + 1 for end in ends[:-1]]
        return [
            [(x, y, on & 1) for (x, y), on in zip(points[start : end + 1], flags[start : end + 1])]
            for start, end in zip(starts, ends)
        ]

    def bars(self, glyph):
        """(left, right, bottom, top) of each upright rectangle, from the left."""
        return sorted(
            _extent(contour) for contour in self.contours(glyph) if _is_rectangle(contour)
        )

    def text(self, glyph):
        return [contour for contour in self.contours(glyph) if not _is_rectangle(contour)]

    def elements(self, glyph):
        """(is bar, width in modules) from x = 0 to the advance."""
        found, x = [], 0
        for left, right, _, _ in self.bars(glyph):
            if left > x:
                found.append((False, (left - x) / self.module))
            found.append((True, (right - left) / self.module))
            x = right
        if self.advance(glyph) > x:
            found.append((False, (self.advance(glyph) - x) / self.module))
        return found


@functools.cache
def font(family):
    return Font(path(family), FAMILIES[family])


def expected_code_points(byte):
    if byte < 32:
        return {0x2400 + byte, 0xF000 + byte}
    if byte == 127:
        return {0x2421, 0xF07F}
    if byte < 127:
        # No-break space, curly quotes, non-breaking hyphen.
        typeset = {" ": "\u00a0", '"': "\u201c\u201d", "'": "\u2018\u2019", "-": "\u2011"}
        return {byte, *map(ord, typeset.get(chr(byte), ""))}
    # The upper half of Windows-1252 differs from Latin-1 in these places alone.
    row = "€ ‚ƒ„…†‡ˆ‰Š‹Œ Ž  ‘’“”•–—˜™š›œ žŸ"
    windows = row[byte - 128] if byte < 160 else chr(byte)
    return {byte, 0xF000 + byte} | ({ord(windows)} if windows != " " else set())


def runs(bits):
    """A row of modules as (is bar, width) elements: "1101" is bar 2, space 1, bar 1."""
    found = []
    for bit in bits:
        if found and found[-1][0] == (bit == "1"):
            found[-1] = (found[-1][0], found[-1][1] + 1)
        else:
            found.append((bit == "1", 1))
    return found


def alternating(widths):
    return [(place % 2 == 0, width) for place, width in enumerate(widths)]


def bounds(contours):
    """(left, right, bottom, top) of all on-curve points."""
    return _extent([point for contour in contours for point in contour if point[2]])


def _extent(contour):
    across = [x for x, _, _ in contour]
    up = [y for _, y, _ in contour]
    return (min(across), max(across), min(up), max(up))


def _is_rectangle(contour):
    left, right, bottom, top = _extent(contour)
    corners = {(left, bottom, 1), (left, top, 1), (right, top, 1), (right, bottom, 1)}
    return len(contour) == 4 and set(contour) == corners
