"""The postal fonts: every glyph, and its inches at 11.5 point against the postal dimensions."""

import unittest

from built_fonts import font

POSTAL, POSTNET = "Linewright Postal", "Linewright Classic Postnet"
POINT_SIZE = 11.5
# Domestic Mail Manual 708.4: 1 a tall bar, 0 a short one.
DIGITS = "11000 00011 00101 00110 01001 01010 01100 10001 10010 10100".split()


def inches(units):
    return units / 2048 * POINT_SIZE / 72


class PostalFontTest(unittest.TestCase):
    def check_row(self, family, character, heights):
        """Bars of 4 modules every 9, from x = 0, and their bottoms and tops."""
        subject = font(family)
        glyph = subject.map[ord(character)]
        self.assertEqual(subject.advance(glyph), len(heights) * 9 * 64)
        expected = [
            (place * 9 * 64, (place * 9 + 4) * 64, *extent) for place, extent in enumerate(heights)
        ]
        self.assertEqual(subject.bars(glyph), expected)
        self.assertEqual(subject.text(glyph), [])

    def test_four_states(self):
        full, trackerBottom, trackerTop = 1856, 620, 1236
        for letter, extent in {
            "A": (trackerBottom, full),
            "D": (0, trackerTop),
            "F": (0, full),
            "T": (trackerBottom, trackerTop),
        }.items():
            self.check_row(POSTAL, letter, [extent])

    def test_postnet(self):
        height = {"0": (0, 640), "1": (0, 1600)}
        for letter, bars in {
            "j": "00",
            "k": "01",
            "l": "10",
            "m": "11",
            "n": "1",
            "o": "0",
        }.items():
            self.check_row(POSTAL, letter, [height[bar] for bar in bars])
        for digit, bars in enumerate(DIGITS):
            self.check_row(POSTNET, str(digit), [height[bar] for bar in bars])
        self.check_row(POSTNET, "/", [height["1"]])

    def test_nothing_else_is_mapped(self):
        self.assertEqual(set(font(POSTAL).map), set(map(ord, "\u00a0 ADFTjklmno")))
        self.assertEqual(set(font(POSTNET).map), set(map(ord, "\u00a0 /0123456789")))
        for family in (POSTAL, POSTNET):
            for blank in (0x20, 0xA0):
                self.assertEqual(font(family).contours(font(family).map[blank]), [])
                self.assertEqual(font(family).advance(font(family).map[blank]), 9 * 64)

    def test_inches(self):
        def extent(letter):
            return font(POSTAL).bars(font(POSTAL).map[ord(letter)])[0]

        left, right, _, _ = extent("F")
        self.assertAlmostEqual(inches(right - left), 0.020, delta=0.0005)
        perInch = 1 / inches(font(POSTAL).advance(font(POSTAL).map[ord("F")]))
        self.assertTrue(20 <= perInch <= 24)
        self.assertAlmostEqual(perInch, 22, delta=0.5)
        space = 1 / perInch - inches(right - left)
        self.assertTrue(0.012 <= space <= 0.040)
        for letter, height in {"F": 0.145, "T": 0.048, "n": 0.125, "o": 0.050}.items():
            _, _, bottom, top = extent(letter)
            self.assertAlmostEqual(inches(top - bottom), height, delta=0.0005)
        # The tracker is in the middle, and ascender and descender mirror each other about it.
        self.assertEqual(extent("T")[2] + extent("T")[3], extent("F")[3])
        self.assertEqual(extent("A")[2], extent("F")[3] - extent("D")[3])


if __name__ == "__main__":
    unittest.main()
