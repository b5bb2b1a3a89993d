"""The fonts of one bar height: Linewright Bars and the classic width-modulated symbologies.

Thirty-two modules make an em, and the bars are one em high: lines set solid make taller bars.
"""

from design import FontDesign, Glyph, Level, bars_of
from published_tables import (
    CODABAR_PATTERNS,
    CODE128_START,
    CODE128_STOP_WIDTHS,
    CODE128_WIDTHS,
    code39_patterns,
    msi_pattern,
)

UNITS_PER_EM = 2048
MODULE = UNITS_PER_EM // 32
BOTTOM = Level()
TOP = Level(stretch=UNITS_PER_EM)
WIDE = 3
QUIET_ZONE = 10


def designs():
    return [
        bars(),
        classic_code128(),
        classic_code39(),
        classic_codabar(),
        classic_i2of5(),
        classic_msi(),
    ]


def bars():
    """One letter is one bar and one space."""
    pairs = {
        chr(ord("A") + 4 * bar + space): (bar + 1, space + 1)
        for bar in range(4)
        for space in range(4)
    }
    pairs.update({"W": (1, 1), "X": (1, 2.5), "Y": (2.5, 1), "Z": (2.5, 2.5)})
    use = "current Code 128, Code 39, Codabar, Interleaved 2 of 5 and MSI Plessey"
    return _design("Linewright Bars", use, pairs)


def classic_code128():
    """One glyph is one symbol character; the data and check forms of a value share it."""
    glyphs = [
        _glyph(f"value{value:03}", map(int, widths)) for value, widths in enumerate(CODE128_WIDTHS)
    ]
    glyphs.append(_glyph("stop", map(int, CODE128_STOP_WIDTHS)))
    glyphs.append(Glyph("space", 11 * MODULE))
    return _font("Linewright Classic Code 128", "classic Code 128", glyphs, _code128_bytes())


def _code128_bytes():
    value = {byte: byte + 64 for byte in range(32)}
    value.update({byte: byte - 32 for byte in range(33, 135) if byte != ord("'")})
    value.update({192: 0, 193: 7, 194: 64})
    value.update({byte: byte - 100 for byte in range(195, 202)})
    # Set C's working forms, which its sum is taken over.
    value.update({139: 95, 141: 64})
    value.update({135: CODE128_START["A"], 136: CODE128_START["B"], 137: CODE128_START["C"]})
    glyphOfByte = {byte: f"value{number:03}" for byte, number in value.items()}
    glyphOfByte.update({138: "stop", ord(" "): "space"})
    return glyphOfByte


def classic_code39():
    """Nine elements and the intercharacter gap."""
    elements = {
        character: _widths(pattern + "n") for character, pattern in code39_patterns().items()
    }
    elements["!"] = elements.pop(" ")
    elements["#"] = elements["*"]
    return _design("Linewright Classic Code 39", "classic Code 39", elements, space=16)


def classic_codabar():
    """Seven elements and the intercharacter gap."""
    elements = {
        character: _widths(pattern + "n") for character, pattern in CODABAR_PATTERNS.items()
    }
    return _design("Linewright Classic Codabar", "classic Codabar", elements)


def classic_i2of5():
    """One letter is one bar and one space, as the digit pairs interleave."""
    patterns = {"A": "nn", "B": "nw", "C": "wn", "D": "ww", "<": "nnnn", ">": "wnn"}
    elements = {key: _widths(value) for key, value in patterns.items()}
    return _design("Linewright Classic I2of5", "classic Interleaved 2 of 5", elements)


def classic_msi():
    patterns = {str(digit): msi_pattern(digit) for digit in range(10)}
    patterns.update({"<": "wn", ">": "nwn"})
    elements = {key: _widths(value) for key, value in patterns.items()}
    return _design("Linewright Classic MSI", "classic MSI Plessey", elements)


def _widths(pattern):
    return [WIDE if element == "w" else 1 for element in pattern]


def _design(family, use, elements, space=QUIET_ZONE):
    glyphs = [_glyph(f"byte{ord(character):03}", widths) for character, widths in elements.items()]
    glyphs.append(Glyph("space", space * MODULE))
    glyphOfByte = {ord(character): f"byte{ord(character):03}" for character in elements}
    glyphOfByte[ord(" ")] = "space"
    return _font(family, use, glyphs, glyphOfByte)


def _font(family, use, glyphs, glyphOfByte):
    return FontDesign(
        family,
        use,
        "32 times the X-dimension",
        UNITS_PER_EM,
        narrowBar=MODULE,
        ascent=UNITS_PER_EM,
        glyphs=glyphs,
        glyphOfByte=glyphOfByte,
    )


def _glyph(name, widths):
    bars, advance = bars_of(widths, MODULE, BOTTOM, TOP)
    return Glyph(name, advance, bars)
