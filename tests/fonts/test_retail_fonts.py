"""The EAN and UPC fonts: every glyph against the module rows of ISO/IEC 15420, and its text."""

import unittest

from built_fonts import bounds, expected_code_points, font, runs

# Number set A as rows of modules, 1 dark; C is its complement, B the mirror image of C.
SET_A = "0001101 0011001 0010011 0111101 0100011 0110001 0101111 0111011 0110111 0001011".split()
SET_C = ["".join("10"[int(bit)] for bit in row) for row in SET_A]
SET_B = [row[::-1] for row in SET_C]

FAMILY = {"current": "Linewright EAN UPC", "classic": "Linewright Classic EAN UPC"}
TEN = range(10)

# What each byte draws, written out from the two fonts' alphabets.
DIGITS = {
    "current": {
        "A": [48 + digit for digit in TEN],
        "B": [65 + digit for digit in TEN],
        "C": [75 + digit for digit in TEN],
        "long first": [97 + digit for digit in TEN],
        "long last": [107 + digit for digit in TEN],
        "outer": [85, 86, 87, 88, 89, 117, 118, 119, 120, 121],
        "add-on A": [34, 35, 36, 37, 38, 44, 46, 47, 58, 59],
        "add-on B": [122, 61, 63, 64, 91, 92, 93, 95, 123, 125],
    },
    "classic": {
        "A": [33 + digit for digit in TEN],
        "B": [107 + digit for digit in TEN],
        "C": [97 + digit for digit in TEN],
        "long first": [48 + digit for digit in TEN],
        "long last": [65 + digit for digit in TEN],
        "outer": [117 + digit for digit in TEN],
        "add-on A": [85 + digit for digit in TEN],
        "add-on B": [128 + digit for digit in TEN],
    },
}
SIGNS = {
    "current": {"(": "101", "*": "01010", ")": "010101", "+": "1011", "!": "01"},
    "classic": {"<": "101", "=": "01010", ">": "010101", "+": "0000000" + "1011", "-": "01"},
}
ADD_ON_SIGNS = {"current": "+!", "classic": "+-"}
SPACE = {"current": 9, "classic": 7}
OUTER_ADVANCE = {"current": 9, "classic": 3}
OUTER_HEIGHT = {"current": 6, "classic": 4}
ROWS = {"A": SET_A, "B": SET_B, "C": SET_C, "long first": SET_A, "long last": SET_C}
ROWS.update({"add-on A": SET_A, "add-on B": SET_B})

# How many closed contours a digit is drawn with: one, and one for each counter.
CONTOURS = [2, 1, 1, 1, 2, 1, 2, 1, 3, 2]

# In modules above the baseline; the last is the font's ascent.
TEXT, GUARD, BARS, ADD_ON_TOP, TOP, ADD_ON_TEXT_TOP = 0, 4, 9, 70.375, 78.25, 79.125
MODULE_IN_MILLIMETRES = 0.33


class RetailCase:
    generation = ""

    def setUp(self):
        self.font = font(FAMILY[self.generation])

    def glyph(self, kind, digit):
        byte = DIGITS[self.generation][kind][digit]
        glyphs = {self.font.map[codePoint] for codePoint in expected_code_points(byte)}
        self.assertEqual(len(glyphs), 1, f"byte {byte}")
        return glyphs.pop()

    def check_bars(self, glyph, row, bottom, top):
        self.assertEqual(self.font.elements(glyph), runs(row))
        self.assertEqual(self.font.advance(glyph), len(row) * 32)
        for bar in self.font.bars(glyph):
            self.assertEqual(bar[2:], (bottom * 32, top * 32))

    def test_digits(self):
        for kind, bottom, top in (
            ("A", BARS, TOP),
            ("B", BARS, TOP),
            ("C", BARS, TOP),
            ("long first", GUARD, TOP),
            ("long last", GUARD, TOP),
            ("add-on A", GUARD, ADD_ON_TOP),
            ("add-on B", GUARD, ADD_ON_TOP),
        ):
            for digit in TEN:
                with self.subTest(kind=kind, digit=digit):
                    self.check_bars(self.glyph(kind, digit), ROWS[kind][digit], bottom, top)

    def test_signs(self):
        for sign, row in SIGNS[self.generation].items():
            top = ADD_ON_TOP if sign in ADD_ON_SIGNS[self.generation] else TOP
            for codePoint in expected_code_points(ord(sign)):
                glyph = self.font.map[codePoint]
                self.check_bars(glyph, row, GUARD, top)
                self.assertEqual(self.font.text(glyph), [])

    def test_bars_are_as_high_as_the_standard_has_them(self):
        guard, _, _, plus, _ = (self.font.map[ord(sign)] for sign in SIGNS[self.generation])
        for glyph, height in (
            (self.glyph("A", 0), 22.85),
            (guard, 22.85 + 5 * MODULE_IN_MILLIMETRES),
            (plus, 21.90),
        ):
            _, _, bottom, top = self.font.bars(glyph)[0]
            self.assertAlmostEqual((top - bottom) / 32 * MODULE_IN_MILLIMETRES, height, delta=0.005)

    def test_outer_digits_have_no_bars(self):
        for digit in TEN:
            glyph = self.glyph("outer", digit)
            self.assertEqual(self.font.bars(glyph), [])
            self.assertEqual(self.font.advance(glyph), OUTER_ADVANCE[self.generation] * 32)

    def test_nothing_else_is_mapped(self):
        bytes_ = {32, *map(ord, SIGNS[self.generation])}
        bytes_.update(*DIGITS[self.generation].values())
        expected = set().union(*map(expected_code_points, bytes_))
        self.assertEqual(set(self.font.map), expected)
        for blank in (0x20, 0xA0):
            self.assertEqual(self.font.contours(self.font.map[blank]), [])
            self.assertEqual(self.font.advance(self.font.map[blank]), SPACE[self.generation] * 32)

    def test_add_on_stands_off_as_the_standard_asks(self):
        def gap(text):
            width = sum(self.font.advance(self.font.map[ord(character)]) for character in text)
            plus = self.font.map[ord("+")]
            return (width + self.font.bars(plus)[0][0]) / 32

        afterEan = {"current": " ", "classic": ""}[self.generation]
        self.assertTrue(7 <= gap(afterEan) <= 12)
        for digit in TEN:
            after = gap(chr(DIGITS[self.generation]["outer"][digit]))
            self.assertTrue(9 <= after <= 10)

    def test_text_is_one_drawing_for_each_digit(self):
        shapes = set()
        for digit in TEN:
            below = self.font.text(self.glyph("A", digit))
            self.assertEqual(len(below), CONTOURS[digit])
            for kind in ("B", "C"):
                self.assertEqual(self.font.text(self.glyph(kind, digit)), below)
            left, right, bottom, top = bounds(below)
            # Inside the cell of seven modules and clear of the bars by half a module at least.
            self.assertTrue(16 <= left and right <= 7 * 32 - 16 and bottom == TEXT)
            self.assertTrue(8 * 32 <= top <= (BARS - 0.5) * 32)
            above = self.font.text(self.glyph("add-on A", digit))
            self.assertEqual(self.font.text(self.glyph("add-on B", digit)), above)
            rise = ADD_ON_TOP * 32 + 16
            self.assertEqual(
                above, [[(x, y + rise, on) for x, y, on in contour] for contour in below]
            )
            self.assertEqual(bounds(above)[3], ADD_ON_TEXT_TOP * 32)
            self.assertEqual(bounds(above)[3], self.font.file["hhea"].ascent)
            for kind in ("long first", "long last"):
                self.assertEqual(self.font.text(self.glyph(kind, digit)), [])
            shapes.add(str(below))
        self.assertEqual(len(shapes), 10)

    def test_outer_digits_are_smaller_and_at_most_four_modules_wide(self):
        for digit in TEN:
            glyph = self.glyph("outer", digit)
            self.assertEqual(len(self.font.text(glyph)), CONTOURS[digit])
            left, right, bottom, top = bounds(self.font.text(glyph))
            self.assertTrue(8 <= left and right <= self.font.advance(glyph) - 8)
            self.assertLessEqual(right - left, 4 * 32)
            self.assertEqual((bottom, top), (TEXT, OUTER_HEIGHT[self.generation] * 32))

    def test_first_digit_of_ean13_is_full_size_by_a_feature_that_moves_nothing(self):
        table = self.font.file["GSUB"].table
        self.assertEqual(
            [record.FeatureTag for record in table.FeatureList.FeatureRecord], ["calt"]
        )
        for digit in TEN:
            glyph = self.glyph("outer", digit)
            full = glyph + ".full"
            self.assertEqual(self.font.advance(full), self.font.advance(glyph))
            self.assertEqual(self.font.bars(full), [])
            drawn = self.font.text(full)
            below = self.font.text(self.glyph("A", digit))
            shift = bounds(drawn)[0] - bounds(below)[0]
            self.assertEqual(
                drawn, [[(x + shift, y, on) for x, y, on in contour] for contour in below]
            )
        context = [
            lookup.SubTable[0] for lookup in table.LookupList.Lookup if lookup.LookupType == 6
        ]
        self.assertEqual(len(context), 1)
        odd = {self.glyph("A", digit) for digit in TEN}
        left = odd | {self.glyph("B", digit) for digit in TEN}
        guard, centre = (self.font.map[ord(sign)] for sign in list(SIGNS[self.generation])[:2])
        ahead = [set(coverage.glyphs) for coverage in context[0].LookAheadCoverage]
        self.assertEqual(ahead, [{guard}, odd, *[left] * 5, {centre}])
        self.assertNotIn("GPOS", self.font.file)
        self.assertNotIn("kern", self.font.file)


class CurrentTest(RetailCase, unittest.TestCase):
    generation = "current"


class ClassicTest(RetailCase, unittest.TestCase):
    generation = "classic"


if __name__ == "__main__":
    unittest.main()
