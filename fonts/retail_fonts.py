"""Linewright EAN UPC and Linewright Classic EAN UPC: digits with their text, guards and add-ons.

A hundred and twenty-eight modules make an em, high enough for all of a symbol. In modules above the
baseline, which is that of the text: guards reach down to 4, digits' bars to 9, and these are of
the height that ISO/IEC 15420 gives. Add-on bars stand on 4 with their text above them.
"""

from design import FontDesign, Glyph, Level, bars_of, placed
from published_tables import (
    ADD_ON_DELINEATOR,
    ADD_ON_GUARD,
    EAN_CENTRE,
    EAN_GUARD,
    EAN_SET_A,
    EAN_SET_B,
    EAN_SET_C,
    UPCE_RIGHT_GUARD,
)
from text_face import digit, digit_width

UNITS_PER_EM = 4096
MODULE = UNITS_PER_EM // 128
GUARD_BOTTOM = Level(fixed=4 * MODULE)
BAR_BOTTOM = Level(fixed=9 * MODULE)
# 22.85 mm, an add-on's bars 21.90 mm, EAN-8's 18.23 mm, with a module of 0.33 mm.
BAR_HEIGHT = 2216
ADD_ON_HEIGHT = 2124
EAN8_HEIGHT = 1768
BAR_TOP = Level(fixed=BAR_BOTTOM.fixed, stretch=BAR_HEIGHT)
# What the height axis adds to the bars of digits it adds to those of add-ons.
ADD_ON_TOP = Level(fixed=GUARD_BOTTOM.fixed + ADD_ON_HEIGHT - BAR_HEIGHT, stretch=BAR_HEIGHT)
TEXT_LINE = Level()
TEXT_HEIGHT = 8.25 * MODULE
TEXT_STROKE = MODULE
ADD_ON_TEXT_LINE = ADD_ON_TOP._replace(fixed=ADD_ON_TOP.fixed + MODULE // 2)
ASCENT = ADD_ON_TEXT_LINE.height + round(TEXT_HEIGHT)
DIGIT_WIDTH = 7


def designs():
    return [ean_upc(), classic_ean_upc()]


def ean_upc():
    """The add-on begins after a gap of 9 modules: the space, or a UPC symbol's last outer digit."""
    characters = {
        "(": "guard",
        "*": "centre",
        ")": "upcERight",
        "+": "addOnGuard",
        "!": "addOnDelineator",
        " ": "space",
    }
    characters.update(_run("odd", "0"))
    characters.update(_run("even", "A"))
    characters.update(_run("right", "K"))
    characters.update(_run("longLeft", "a"))
    characters.update(_run("longRight", "k"))
    characters.update(_named("outer", "UVWXYuvwxy"))
    characters.update(_named("addOnOdd", '"#$%&,./:;'))
    characters.update(_named("addOnEven", "z=?@[\\]_{}"))
    glyphs = _symbol_glyphs() + _outer_glyphs(advance=9, height=6, stroke=0.85, fullAt=0)
    glyphs += [
        _glyph("addOnGuard", ADD_ON_GUARD, GUARD_BOTTOM, ADD_ON_TOP),
        Glyph("space", 9 * MODULE),
    ]
    use = "current EAN-13, JAN-13, EAN-8, UPC-A and UPC-E"
    design = _design("Linewright EAN UPC", use, glyphs, characters)
    design.heights["EAN-8"] = 100 * EAN8_HEIGHT / BAR_HEIGHT
    return design


def classic_ean_upc():
    """The add-on follows the right guard or the last outer digit at once, so its guard has the gap.

    ISO/IEC 15420 wants 7 to 12 modules after EAN and 9 to 12 after UPC, and readers are known that
    look no further than 10. So the gap is 7, and the outer digit is as small as 3 modules allow.
    """
    characters = {
        "<": "guard",
        "=": "centre",
        ">": "upcERight",
        "+": "addOnGuard",
        "-": "addOnDelineator",
        " ": "space",
    }
    characters.update(_run("outer", "u"))
    characters.update(_run("odd", "!"))
    characters.update(_run("even", "k"))
    characters.update(_run("right", "a"))
    characters.update(_run("longLeft", "0"))
    characters.update(_run("longRight", "A"))
    characters.update(_run("addOnOdd", "U"))
    characters.update(_run("addOnEven", "\x80"))
    glyphs = _symbol_glyphs() + _outer_glyphs(advance=3, height=4, stroke=0.6, fullAt=-3)
    glyphs.append(_glyph("addOnGuard", ADD_ON_GUARD, GUARD_BOTTOM, ADD_ON_TOP, gap=7))
    glyphs.append(Glyph("space", DIGIT_WIDTH * MODULE))
    use = "classic EAN-13, JAN-13, UPC-A and UPC-E"
    return _design("Linewright Classic EAN UPC", use, glyphs, characters)


def _run(name, first):
    return _named(name, [chr(ord(first) + value) for value in range(10)])


def _named(name, characters):
    return {character: f"{name}{value}" for value, character in enumerate(characters)}


def _design(family, use, glyphs, characters):
    glyphOfByte = {ord(character): name for character, name in characters.items()}
    return FontDesign(
        family,
        use,
        "128 times the X-dimension",
        UNITS_PER_EM,
        narrowBar=MODULE,
        ascent=ASCENT,
        glyphs=glyphs,
        glyphOfByte=glyphOfByte,
        features=_FULL_SIZE_FIRST_DIGIT,
    )


# The outer digits' bytes are the same for EAN and UPC and are drawn in UPC's size. Where a text
# engine does contextual alternates, the first digit of EAN-13 (six left digits up to the centre,
# none of them long) gets the size of the others. Advances stay, so nothing depends on it.
_FULL_SIZE_FIRST_DIGIT = """
@outer = [{outer}];
@full = [{full}];
@odd = [{odd}];
@left = [{odd} {even}];
feature calt {{ sub @outer' guard @odd @left @left @left @left @left centre by @full; }} calt;
""".format(
    outer=" ".join(f"outer{value}" for value in range(10)),
    full=" ".join(f"outer{value}.full" for value in range(10)),
    odd=" ".join(f"odd{value}" for value in range(10)),
    even=" ".join(f"even{value}" for value in range(10)),
)


def _symbol_glyphs():
    glyphs = [
        _glyph("guard", EAN_GUARD, GUARD_BOTTOM, BAR_TOP),
        _glyph("centre", EAN_CENTRE, GUARD_BOTTOM, BAR_TOP),
        _glyph("upcERight", UPCE_RIGHT_GUARD, GUARD_BOTTOM, BAR_TOP),
        _glyph("addOnDelineator", ADD_ON_DELINEATOR, GUARD_BOTTOM, ADD_ON_TOP),
    ]
    for value in range(10):
        odd = (False, EAN_SET_A[value])
        even = (False, EAN_SET_B[value])
        right = (True, EAN_SET_C[value])
        below = _centred(value, TEXT_LINE)
        above = _centred(value, ADD_ON_TEXT_LINE)
        glyphs += [
            _glyph(f"odd{value}", odd, BAR_BOTTOM, BAR_TOP, text=below),
            _glyph(f"even{value}", even, BAR_BOTTOM, BAR_TOP, text=below),
            _glyph(f"right{value}", right, BAR_BOTTOM, BAR_TOP, text=below),
            _glyph(f"longLeft{value}", odd, GUARD_BOTTOM, BAR_TOP),
            _glyph(f"longRight{value}", right, GUARD_BOTTOM, BAR_TOP),
            _glyph(f"addOnOdd{value}", odd, GUARD_BOTTOM, ADD_ON_TOP, text=above),
            _glyph(f"addOnEven{value}", even, GUARD_BOTTOM, ADD_ON_TOP, text=above),
        ]
    return glyphs


def _outer_glyphs(advance, height, stroke, fullAt):
    """Outer digits, in the middle of their advance; those of full size begin at `fullAt`."""
    left = round((advance - digit_width(height)) / 2 * MODULE)
    glyphs = []
    for value in range(10):
        small = placed(digit(value, height * MODULE, stroke * MODULE), left, TEXT_LINE)
        full = placed(digit(value, TEXT_HEIGHT, TEXT_STROKE), fullAt * MODULE, TEXT_LINE)
        glyphs.append(Glyph(f"outer{value}", advance * MODULE, text=small))
        glyphs.append(Glyph(f"outer{value}.full", advance * MODULE, text=full))
    return glyphs


def _centred(value, line):
    left = round((DIGIT_WIDTH * MODULE - digit_width(TEXT_HEIGHT)) / 2)
    return placed(digit(value, TEXT_HEIGHT, TEXT_STROKE), left, line)


def _glyph(name, elements, bottom, top, gap=0, text=()):
    beginsWithBar, widths = elements
    bars, advance = bars_of(map(int, widths), MODULE, bottom, top, beginsWithBar, gap * MODULE)
    return Glyph(name, advance, bars, list(text))
