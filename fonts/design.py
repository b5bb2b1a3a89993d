"""A font before it is a file: glyphs of bars and text, and the bytes that they answer to.

All lengths are font units. A height is a `Level`: a part that stands still and a part that the
height axis stretches.
"""

from dataclasses import dataclass, field
from typing import NamedTuple


class Level(NamedTuple):
    fixed: int = 0
    stretch: int = 0

    @property
    def height(self):
        return self.fixed + self.stretch


class Point(NamedTuple):
    """A point of a contour, `inward` being the way a bar's edge goes when bars become narrower."""

    x: int
    y: Level
    onCurve: bool = True
    inward: int = 0


class Bar(NamedTuple):
    left: int
    right: int
    bottom: Level
    top: Level

    def contour(self):
        return [
            Point(self.left, self.bottom, inward=1),
            Point(self.left, self.top, inward=1),
            Point(self.right, self.top, inward=-1),
            Point(self.right, self.bottom, inward=-1),
        ]


@dataclass
class Glyph:
    name: str
    advance: int
    bars: list = field(default_factory=list)
    text: list = field(default_factory=list)

    def contours(self):
        return [bar.contour() for bar in self.bars] + self.text


@dataclass
class FontDesign:
    """`use` and `size` are words of the font's description; `heights` are the bar heights that have
    a name in the variable font, in per cent."""

    family: str
    use: str
    size: str
    unitsPerEm: int
    narrowBar: int
    ascent: int
    glyphs: list
    glyphOfByte: dict
    features: str = ""
    heights: dict = field(default_factory=lambda: {"Half Height": 50, "Double Height": 200})


def bars_of(widths, module, bottom, top, beginsWithBar=True, start=0):
    """Bars of alternating elements, and where the last element ends. Widths are in modules."""
    bars = []
    x = start
    isBar = beginsWithBar
    for width in widths:
        end = x + round(width * module)
        if isBar:
            bars.append(Bar(x, end, bottom, top))
        x = end
        isBar = not isBar
    return bars, x


def placed(contours, x, baseline):
    """Text contours, moved to `x` and standing on the level `baseline`."""
    return [
        [Point(x + px, Level(baseline.fixed + py, baseline.stretch), on) for px, py, on in contour]
        for contour in contours
    ]
