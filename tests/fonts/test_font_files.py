"""What every font file has in common, the variable forms, and that a build repeats itself."""

import tempfile
import unittest
from pathlib import Path

from built_fonts import FAMILIES, Font, bounds, build, folder, font, path
from fontTools.ttLib import TTFont
from fontTools.varLib import instancer

SHARED_TABLES = {"head", "hhea", "maxp", "OS/2", "hmtx", "cmap", "loca", "glyf", "name", "post"}
VARIABLE_TABLES = {"fvar", "gvar", "STAT"}


class FontFileTest(unittest.TestCase):
    def test_files_are_ten_and_ten(self):
        self.assertEqual(
            {file.name for file in folder().glob("*.ttf")}, {path(f).name for f in FAMILIES}
        )
        variable = {file.name for file in (folder() / "variable").iterdir()}
        self.assertEqual(variable, {path(f, True).name for f in FAMILIES})

    def files(self):
        for family in FAMILIES:
            for variable in (False, True):
                with self.subTest(family=family, variable=variable):
                    yield family, variable, TTFont(path(family, variable))

    def test_names(self):
        for family, variable, file in self.files():
            expected = family + (" Variable" if variable else "")
            self.assertEqual(file["name"].getDebugName(1), expected)
            self.assertEqual(file["name"].getDebugName(2), "Regular")
            self.assertEqual(file["name"].getDebugName(6), expected.replace(" ", "") + "-Regular")

    def test_tables(self):
        for family, variable, file in self.files():
            tables = SHARED_TABLES | (VARIABLE_TABLES if variable else set())
            if "EAN UPC" in family:
                tables |= {"GSUB"}
            self.assertEqual(set(file.keys()) - {"GlyphOrder"}, tables)

    def test_units_and_metrics(self):
        for family, _, file in self.files():
            halves = {"byte088", "byte089"} if family == "Linewright Bars" else set()
            unitsPerEm, module = file["head"].unitsPerEm, FAMILIES[family]
            self.assertEqual(unitsPerEm & (unitsPerEm - 1), 0)
            self.assertEqual(module & (module - 1), 0)
            header, os2 = file["hhea"], file["OS/2"]
            self.assertEqual((header.ascent, header.descent, header.lineGap), (header.ascent, 0, 0))
            self.assertEqual(
                (os2.sTypoAscender, os2.sTypoDescender, os2.sTypoLineGap), (header.ascent, 0, 0)
            )
            self.assertEqual((os2.usWinAscent, os2.usWinDescent), (header.ascent, 0))
            self.assertLessEqual(header.ascent, unitsPerEm)
            self.assertEqual(os2.fsType, 0)
            for glyph in file.getGlyphOrder():
                advance, left = file["hmtx"][glyph]
                self.assertEqual(advance % (module // 2 if glyph in halves else module), 0)
                outline = file["glyf"][glyph]
                self.assertEqual(left, getattr(outline, "xMin", 0))

    def test_every_drawing_is_between_the_lines(self):
        for family in FAMILIES:
            for glyph in font(family).file.getGlyphOrder():
                contours = font(family).contours(glyph)
                if contours:
                    _, _, bottom, top = bounds(contours)
                    self.assertGreaterEqual(bottom, 0)
                    self.assertLessEqual(top, font(family).file["hhea"].ascent)

    def test_character_maps_agree(self):
        for _, _, file in self.files():
            tables = {
                (table.platformID, table.platEncID): table.cmap for table in file["cmap"].tables
            }
            self.assertEqual(set(tables), {(0, 3), (3, 1)})
            self.assertEqual(tables[(0, 3)], tables[(3, 1)])

    def test_notdef_is_a_box(self):
        for family in FAMILIES:
            subject = font(family)
            self.assertEqual(subject.file.getGlyphOrder()[0], ".notdef")
            outer, inner = subject.bars(".notdef")
            self.assertTrue(outer[0] < inner[0] and inner[1] < outer[1])
            self.assertTrue(outer[2] < inner[2] and inner[3] < outer[3])
            self.assertNotEqual(
                _turn(subject.contours(".notdef")[0]), _turn(subject.contours(".notdef")[1])
            )
            self.assertNotIn(".notdef", subject.map.values())

    def test_every_glyph_is_reached(self):
        for family in FAMILIES:
            unreached = set(font(family).file.getGlyphOrder()) - set(font(family).map.values())
            alternates = (
                {f"outer{digit}.full" for digit in range(10)} if "EAN UPC" in family else set()
            )
            self.assertEqual(unreached, {".notdef"} | alternates)


class VariableFontTest(unittest.TestCase):
    def instance(self, family, **location):
        file = TTFont(path(family, variable=True))
        return Font(instancer.instantiateVariableFont(file, location), FAMILIES[family])

    def test_axes(self):
        for family in FAMILIES:
            file = TTFont(path(family, variable=True))
            axes = [(a.axisTag, a.minValue, a.defaultValue, a.maxValue) for a in file["fvar"].axes]
            self.assertEqual(axes, [("BHGT", 25, 100, 400), ("BWRD", 0, 0, 25)])

    def test_defaults_are_the_static_font(self):
        for family in FAMILIES:
            self.assert_same(family, self.instance(family, BHGT=100, BWRD=0), lambda extent: extent)

    def test_reduction_takes_a_quarter_of_the_narrow_bar(self):
        for family, module in FAMILIES.items():
            narrow = 4 * module if "Post" in family else module
            half = narrow // 8

            def narrowed(extent):
                left, right, bottom, top = extent
                return (left + half, right - half, bottom, top)

            self.assert_same(family, self.instance(family, BHGT=100, BWRD=25), narrowed)

    def test_height_stretches_bars_from_their_feet(self):
        for family in FAMILIES:
            for percent in (25, 400):
                subject = self.instance(family, BHGT=percent, BWRD=0)
                if "EAN UPC" in family:
                    # Feet stay, and what stands on the bars' tops goes with them.
                    rise = 69 * 32 * (percent - 100) // 100
                    self.assert_same(family, subject, lambda e: (*e[:3], e[3] + rise), rise)
                else:
                    scale = percent / 100
                    self.assert_same(
                        family, subject, lambda e: (e[0], e[1], e[2] * scale, e[3] * scale)
                    )

    def test_both_ends_at_once(self):
        subject = self.instance("Linewright Bars", BHGT=400, BWRD=25)
        self.assertEqual(subject.bars(subject.map[ord("I")]), [(8, 3 * 64 - 8, 0, 4 * 2048)])

    def assert_same(self, family, subject, changed, rise=0):
        static = font(family)
        self.assertEqual(subject.map, static.map)
        self.assertEqual(subject.file.getGlyphOrder(), static.file.getGlyphOrder())
        for glyph in static.file.getGlyphOrder():
            with self.subTest(family=family, glyph=glyph):
                self.assertEqual(subject.advance(glyph), static.advance(glyph))
                if glyph == ".notdef":
                    self.assertEqual(subject.contours(glyph), static.contours(glyph))
                    continue
                self.assertEqual(subject.bars(glyph), [changed(bar) for bar in static.bars(glyph)])
                up = rise if glyph.startswith("addOn") else 0
                moved = [
                    [(x, y + up, on) for x, y, on in contour] for contour in static.text(glyph)
                ]
                self.assertEqual(subject.text(glyph), moved)


class RepeatedBuildTest(unittest.TestCase):
    def test_two_builds_are_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as one, tempfile.TemporaryDirectory() as other:
            build(one, PYTHONHASHSEED="1", SOURCE_DATE_EPOCH="1", TZ="UTC")
            build(other, PYTHONHASHSEED="2", SOURCE_DATE_EPOCH="1000000000", TZ="Asia/Tokyo")
            names = sorted(file.relative_to(one) for file in Path(one).rglob("*.ttf"))
            self.assertEqual(len(names), 20)
            for name in names:
                self.assertEqual(
                    (Path(one) / name).read_bytes(), (Path(other) / name).read_bytes(), name
                )
                self.assertEqual(
                    (Path(one) / name).read_bytes(), (folder() / name).read_bytes(), name
                )


def _turn(contour):
    """The sign of a contour's area."""
    area = sum(
        x * yy - xx * y for (x, y, _), (xx, yy, _) in zip(contour, contour[1:] + contour[:1])
    )
    return area > 0


if __name__ == "__main__":
    unittest.main()
