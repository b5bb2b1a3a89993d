"""Linewright Bars and the classic fonts of one bar height: every glyph against its widths."""

import csv
import unittest
from pathlib import Path

from built_fonts import alternating, expected_code_points, font

DATA = Path(__file__).parent / "data"


def rows(name, key, value):
    with open(DATA / name, newline="", encoding="ascii") as file:
        return {row[key]: row[value] for row in csv.DictReader(file)}


def ratio3(pattern):
    return [{"n": 1, "w": 3}[element] for element in pattern]


class WidthFontCase(unittest.TestCase):
    def check(self, family, widthsOfByte, blanks):
        """Exactly these bytes draw, each these elements from x = 0, all bars one em high."""
        subject = font(family)
        mapped = {}
        for byte, widths in widthsOfByte.items():
            for codePoint in expected_code_points(byte):
                mapped[codePoint] = byte
                glyph = subject.map.get(codePoint)
                self.assertIsNotNone(glyph, f"byte {byte} at U+{codePoint:04X}")
                self.assertEqual(subject.elements(glyph), alternating(widths), f"byte {byte}")
                self.assertEqual(subject.advance(glyph), sum(widths) * subject.module)
                for _, _, bottom, top in subject.bars(glyph):
                    self.assertEqual((bottom, top), (0, 2048))
                self.assertEqual(subject.text(glyph), [])
        for byte, width in blanks.items():
            for codePoint in expected_code_points(byte):
                mapped[codePoint] = byte
                self.assertEqual(subject.contours(subject.map[codePoint]), [])
                self.assertEqual(subject.advance(subject.map[codePoint]), width * subject.module)
        self.assertEqual(set(subject.map), set(mapped))


class BarsTest(WidthFontCase):
    def test_letters_are_pairs(self):
        widths = {}
        for bar in (1, 2, 3, 4):
            for space in (1, 2, 3, 4):
                widths[ord("A") + 4 * (bar - 1) + (space - 1)] = [bar, space]
        widths.update(
            {ord("W"): [1, 1], ord("X"): [1, 2.5], ord("Y"): [2.5, 1], ord("Z"): [2.5, 2.5]}
        )
        self.check("Linewright Bars", widths, {32: 10})

    def test_code128_stop_ends_in_white(self):
        subject = font("Linewright Bars")
        elements = [
            width for letter in "GIAH" for _, width in subject.elements(subject.map[ord(letter)])
        ]
        stop = [int(width) for width in rows("code128-widths.csv", "value", "widths")["stop"]]
        self.assertEqual(elements[:7], stop)


class Code128Test(WidthFontCase):
    def setUp(self):
        self.widths = rows("code128-widths.csv", "value", "widths")

    def test_every_byte(self):
        valueOfByte = {}
        # Set A data: controls and 33 to 95; set B data: 33 to 134; "'" has a byte of its own.
        valueOfByte.update({byte: str(byte + 64) for byte in range(0, 32)})
        valueOfByte.update({byte: str(byte - 32) for byte in range(33, 135) if byte != 39})
        # The forms of 95 and 64 that set C takes its sum over.
        valueOfByte.update({139: "95", 141: "64"})
        # Check characters, and the data 0, 7, 95, 96, 97 that share their form.
        valueOfByte.update({192: "0", 193: "7", 194: "64", 195: "95", 196: "96", 197: "97"})
        valueOfByte.update({198: "98", 199: "99", 200: "100", 201: "101"})
        valueOfByte.update({135: "103", 136: "104", 137: "105", 138: "stop"})
        widths = {byte: list(map(int, self.widths[value])) for byte, value in valueOfByte.items()}
        self.check("Linewright Classic Code 128", widths, {32: 11})

    def test_data_and_check_forms_of_a_value_are_one_drawing(self):
        subject = font("Linewright Classic Code 128")
        private = {
            byte: subject.map.get(0xF000 + byte, subject.map.get(byte)) for byte in range(256)
        }
        for data, check in (
            (96, 194),
            (127, 195),
            (128, 196),
            (129, 197),
            (130, 198),
            (131, 199),
            (0, 194),
        ):
            self.assertEqual(subject.contours(private[data]), subject.contours(private[check]))


class Code39Test(WidthFontCase):
    def test_every_byte(self):
        patterns = rows("code39-patterns.csv", "character", "pattern")
        startStop, space = patterns.pop("start/stop"), patterns.pop("space")
        patterns.update({"*": startStop, "#": startStop, "!": space})
        self.assertEqual(len(patterns), 45)
        widths = {ord(character): ratio3(pattern) + [1] for character, pattern in patterns.items()}
        self.check("Linewright Classic Code 39", widths, {32: 16})


class CodabarTest(WidthFontCase):
    def test_every_byte(self):
        patterns = rows("codabar-patterns.csv", "character", "pattern")
        self.assertEqual(len(patterns), 20)
        widths = {ord(character): ratio3(pattern) + [1] for character, pattern in patterns.items()}
        self.check("Linewright Classic Codabar", widths, {32: 10})


class Interleaved2of5Test(WidthFontCase):
    def test_every_byte(self):
        widths = {ord("A"): [1, 1], ord("B"): [1, 3], ord("C"): [3, 1], ord("D"): [3, 3]}
        widths.update({ord("<"): [1, 1, 1, 1], ord(">"): [3, 1, 1]})
        self.check("Linewright Classic I2of5", widths, {32: 10})


class MsiTest(WidthFontCase):
    def test_every_byte(self):
        zero, one = [1, 3], [3, 1]
        bits = "0000 0001 0010 0011 0100 0101 0110 0111 1000 1001".split()
        widths = {
            ord(str(digit)): [width for bit in row for width in (one if bit == "1" else zero)]
            for digit, row in enumerate(bits)
        }
        widths.update({ord("<"): one, ord(">"): zero + [1]})
        self.check("Linewright Classic MSI", widths, {32: 10})


if __name__ == "__main__":
    unittest.main()
