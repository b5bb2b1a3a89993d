"""Element widths of the published symbologies, in each standard's own order.

The encoders have tables of their own in C++; nothing is shared between the two, so that a scanner
reading a drawn string proves both.
"""

# ISO/IEC 15417, table 1: six element widths (bar, space, bar, ...) of the symbol values 0 to 105.
CODE128_WIDTHS = """
    212222 222122 222221 121223 121322 131222 122213 122312 132212 221213
    221312 231212 112232 122132 122231 113222 123122 123221 223211 221132
    221231 213212 223112 312131 311222 321122 321221 312212 322112 322211
    212123 212321 232121 111323 131123 131321 112313 132113 132311 211313
    231113 231311 112133 112331 132131 113123 113321 133121 313121 211331
    231131 213113 213311 213131 311123 311321 331121 312113 312311 332111
    314111 221411 431111 111224 111422 121124 121421 141122 141221 112214
    112412 122114 122411 142112 142211 241211 221114 413111 241112 134111
    111242 121142 121241 114212 124112 124211 411212 421112 421211 212141
    214121 412121 111143 111341 131141 114113 114311 411113 411311 113141
    114131 311141 411131 211412 211214 211232
""".split()
CODE128_START = {"A": 103, "B": 104, "C": 105}
CODE128_STOP_WIDTHS = "2331112"

# ISO/IEC 16390, table 1: the two-of-five code of the digits 0 to 9, n narrow and w wide.
TWO_OF_FIVE = "nnwwn wnnnw nwnnw wwnnn nnwnw wnwnn nwwnn nnnww wnnwn nwnwn".split()

# ISO/IEC 16388, table 1, by its own construction: forty characters in four groups of ten, each a
# two-of-five code in the five bars and one wide space whose place names the group ...
CODE39_GROUPS = {
    "1234567890": "nwnn",
    "ABCDEFGHIJ": "nnwn",
    "KLMNOPQRST": "nnnw",
    "UVWXYZ-. *": "wnnn",
}
# ... and four characters of five narrow bars and three wide spaces.
CODE39_NARROW_BARS = {"$": "wwwn", "/": "wwnw", "+": "wnww", "%": "nwww"}


def code39_patterns():
    """Character to its nine elements as n and w."""
    patterns = {
        character: _interleave(TWO_OF_FIVE[(place + 1) % 10], spaces)
        for characters, spaces in CODE39_GROUPS.items()
        for place, character in enumerate(characters)
    }
    patterns.update(
        {
            character: _interleave("nnnnn", spaces)
            for character, spaces in CODE39_NARROW_BARS.items()
        }
    )
    return patterns


def _interleave(bars, spaces):
    return "".join(bar + space for bar, space in zip(bars, spaces)) + bars[-1]


# EN 798, table 1: seven elements of each character.
CODABAR_PATTERNS = dict(
    zip(
        "0123456789-$:/.+ABCD",
        """
        nnnnnww nnnnwwn nnnwnnw wwnnnnn nnwnnwn wnnnnwn nwnnnnw nwnnwnn nwwnnnn wnnwnnn
        nnnwwnn nnwwnnn wnnnwnw wnwnnnw wnwnwnn nnwnwnw nnwwnwn nwnwnnw nnnwnww nnnwwwn
        """.split(),
    )
)

# ISO/IEC 15420, table 1: number set A of the digits 0 to 9 as space, bar, space, bar. Set B is the
# same four widths in reverse; set C has the widths of set A and begins with a bar.
EAN_SET_A = "3211 2221 2122 1411 1132 1231 1114 1312 1213 3112".split()
EAN_SET_B = [widths[::-1] for widths in EAN_SET_A]
EAN_SET_C = EAN_SET_A

# ISO/IEC 15420, auxiliary patterns: whether the first element is a bar, and the widths.
EAN_GUARD = (True, "111")
EAN_CENTRE = (False, "11111")
UPCE_RIGHT_GUARD = (False, "111111")
ADD_ON_GUARD = (True, "112")
ADD_ON_DELINEATOR = (False, "11")

# Postnet, Domestic Mail Manual 708.4: two tall bars of five, by the weights 7 4 2 1 0; the digit 0
# is written as eleven.
POSTNET_WEIGHTS = (7, 4, 2, 1, 0)


def postnet_bars():
    """The five bars of the digits 0 to 9, "1" tall and "0" short."""
    bars = [""] * 10
    for first in range(5):
        for second in range(first + 1, 5):
            digit = (POSTNET_WEIGHTS[first] + POSTNET_WEIGHTS[second]) % 11
            bars[digit] = "".join("1" if bar in (first, second) else "0" for bar in range(5))
    return bars


def msi_pattern(digit):
    """Four bits, most significant first: 0 is narrow bar and wide space, 1 the reverse."""
    return "".join("wn" if digit >> bit & 1 else "nw" for bit in (3, 2, 1, 0))
