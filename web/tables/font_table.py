#!/usr/bin/env python3
"""Writes the outlines of the barcode fonts and of the face for text as a C++ table.

Usage: font_table.py FONT-FOLDER TEXT-FACE OUTPUT

A glyph is a row of numbers: its advance, its number of contours, and of each contour the number
of points and the points themselves as they stand in the file, x and y as differences from the
point before: x with a last bit that says whether the point is on the curve, and in fonts of
variable height, behind y, how much y grows from the usual height to twice as much.
"""

import sys
from pathlib import Path

from fontTools.ttLib import TTFont

# What text below bars can hold: Latin-1, the pictures of control characters, and what stands for
# characters that cannot be shown.
TEXT_CHARACTERS = {*range(0x20, 0x7F), *range(0xA0, 0x100), *range(0x2400, 0x2422), 0xFFFD}


def font_character(byte):
    """Where a barcode font has the glyph of a byte, as text/FontCharacters.cpp says."""
    if byte < 128:
        return 0x2400 + byte if byte < 32 else 0x2421 if byte == 127 else byte
    return ord(bytes([byte]).decode("cp1252", "ignore") or chr(0xF000 + byte))


BAR_CHARACTERS = {font_character(byte) for byte in range(256)}


def zigzag(number):
    return number * 2 if number >= 0 else -number * 2 - 1


def put(data, number):
    """A whole number, seven bits a byte, the lowest first."""
    while number > 127:
        data.append(number & 127 | 128)
        number >>= 7
    data.append(number)


def growth_of(font, name, count):
    """By how much the height axis, at its end, moves each point up; from 100 to 400 per cent."""
    for variation in font["gvar"].variations[name]:
        if variation.axes.get("BHGT", (0, 0, 0))[1] > 0:
            ends = [delta[1] if delta else 0 for delta in variation.coordinates[:count]]
            assert all(end % 3 == 0 for end in ends), name
            return [end // 3 for end in ends]
    return [0] * count


def glyph_data(font, variable, name):
    data = bytearray()
    put(data, font["hmtx"][name][0])
    coordinates, ends, flags = font["glyf"][name].getCoordinates(font["glyf"])
    growth = growth_of(variable, name, len(coordinates)) if variable else None
    put(data, len(ends))
    x = y = place = 0
    for end in ends:
        put(data, end + 1 - place)
        for place in range(place, end + 1):
            nextX, nextY = coordinates[place]
            put(data, zigzag(nextX - x) * 2 + (flags[place] & 1))
            put(data, zigzag(nextY - y))
            if growth:
                put(data, zigzag(growth[place]))
            x, y = nextX, nextY
        place = end + 1
    return data


def array(kind, name, numbers):
    return f"constexpr {kind} {name}[]{{{','.join(map(str, numbers))}}};\n"


def font_table(number, font, variable, characters):
    """A font's arrays, and its row of the table."""
    wanted = {c: name for c, name in sorted(font.getBestCmap().items()) if c in characters}
    order = font.getGlyphOrder()
    larger = {name: f"{name}.full" for name in wanted.values() if f"{name}.full" in order}
    names = [order[0], *dict.fromkeys([*wanted.values(), *larger.values()])]
    data, starts = bytearray(), []
    for name in names:
        starts.append(len(data))
        data += glyph_data(font, variable, name)
    arrays = array("std::uint8_t", f"kData{number}", data)
    arrays += array("std::uint16_t", f"kStarts{number}", starts)
    pairs = [n for c, name in wanted.items() for n in (c, names.index(name))]
    arrays += array("std::uint16_t", f"kCharacters{number}", pairs)
    pairs = [n for name, full in larger.items() for n in map(names.index, (name, full))]
    arrays += array("std::uint16_t", f"kLarger{number}", pairs or [0, 0])
    return arrays


def main():
    folder, textFace, output = map(Path, sys.argv[1:])
    stems = sorted(path.stem for path in folder.glob("*.ttf"))
    content, rows = "", ""
    for number, stem in enumerate([*stems, textFace.stem]):
        variable = folder / "variable" / f"{stem}-Variable.ttf"
        isText = number == len(stems)
        font = TTFont(textFace if isText else folder / f"{stem}.ttf")
        # Where a font prints no digits, another height stretches it as a whole.
        hasHeights = not isText and stem.endswith("EANUPC")
        characters = TEXT_CHARACTERS if isText else BAR_CHARACTERS
        content += font_table(
            number, font, TTFont(variable) if hasHeights else None, characters
        )
        rows += (
            f'    {{"{stem}", {font["head"].unitsPerEm}, {str(hasHeights).lower()}, '
            f"kData{number}, kStarts{number}, kCharacters{number}, kLarger{number}}},\n"
        )
    output.write_text(f"{content}constexpr TableFont kFonts[]{{\n{rows}}};\n", "utf-8")


main()
