"""The fonts of several bar heights: Linewright Postal and Linewright Classic Postnet.

At 11.5 point: bars 0.020 in wide and 22.3 to the inch; Intelligent Mail (USPS-B-3200) full bars
0.145 in and trackers 0.048 in high; Postnet (Domestic Mail Manual 708.4) tall bars 0.125 in and
short bars 0.050 in high. A full bar stands on the baseline, the tracker in its middle.
"""

from design import Bar, FontDesign, Glyph, Level
from published_tables import postnet_bars

UNITS_PER_EM = 2048
MODULE = UNITS_PER_EM // 32
BAR = 4 * MODULE
PITCH = 9 * MODULE

FULL = Level(stretch=1856)
TRACKER_BOTTOM = Level(stretch=620)
TRACKER_TOP = Level(stretch=1236)
TALL = Level(stretch=1600)
SHORT = Level(stretch=640)
BASE = Level()

FOUR_STATES = {
    "A": (TRACKER_BOTTOM, FULL),
    "D": (BASE, TRACKER_TOP),
    "F": (BASE, FULL),
    "T": (TRACKER_BOTTOM, TRACKER_TOP),
}
BAR_PAIRS = {"j": "00", "k": "01", "l": "10", "m": "11", "n": "1", "o": "0"}


def designs():
    return [postal(), classic_postnet()]


def postal():
    extents = {letter: [extent] for letter, extent in FOUR_STATES.items()}
    extents.update({letter: _postnet(bars) for letter, bars in BAR_PAIRS.items()})
    return _design("Linewright Postal", "Intelligent Mail and current Postnet", extents)


def classic_postnet():
    extents = {str(digit): _postnet(bars) for digit, bars in enumerate(postnet_bars())}
    extents["/"] = _postnet("1")
    return _design("Linewright Classic Postnet", "classic Postnet", extents)


def _postnet(bars):
    return [(BASE, TALL if bar == "1" else SHORT) for bar in bars]


def _design(family, use, extents):
    """No height but the post's own has a name."""
    glyphs = [_glyph(f"byte{ord(character):03}", extent) for character, extent in extents.items()]
    glyphs.append(Glyph("space", PITCH))
    glyphOfByte = {ord(character): f"byte{ord(character):03}" for character in extents}
    glyphOfByte[ord(" ")] = "space"
    return FontDesign(
        family,
        use,
        "11.5 pt",
        UNITS_PER_EM,
        narrowBar=BAR,
        ascent=UNITS_PER_EM,
        glyphs=glyphs,
        glyphOfByte=glyphOfByte,
        heights={},
    )


def _glyph(name, extents):
    bars = [
        Bar(place * PITCH, place * PITCH + BAR, bottom, top)
        for place, (bottom, top) in enumerate(extents)
    ]
    return Glyph(name, len(extents) * PITCH, bars)
