"""What every font file has in common, the variable forms, and that a build repeats itself."""

import subprocess
import tempfile
import unittest
from pathlib import Path

from built_fonts import FAMILIES, VERSION, Font, bounds, build, folder, font, path
from fontTools.ttLib import TTFont
from fontTools.varLib import instancer

SHARED_TABLES = {"head", "hhea", "maxp", "OS/2", "hmtx", "cmap", "loca", "glyf", "name", "post"}
SHARED_TABLES |= {"gasp"}
VARIABLE_TABLES = {"fvar", "gvar", "STAT"}

# Families that are longer than what Windows takes, and what it gets.
SHORT_NAMES = {
    f"Linewright Classic {name} Variable": f"Linewright Classic {name} VF"
    for name in ("Code 128", "Code 39", "Codabar", "EAN UPC", "I2of5", "Postnet")
}
USE = {
    "Linewright Bars": "current Code 128, Code 39, Codabar, Interleaved 2 of 5 and MSI Plessey",
    "Linewright EAN UPC": "current EAN-13, JAN-13, EAN-8, UPC-A and UPC-E",
    "Linewright Postal": "Intelligent Mail and current Postnet",
    "Linewright Classic Code 128": "classic Code 128",
    "Linewright Classic Code 39": "classic Code 39",
    "Linewright Classic Codabar": "classic Codabar",
    "Linewright Classic EAN UPC": "classic EAN-13, JAN-13, UPC-A and UPC-E",
    "Linewright Classic I2of5": "classic Interleaved 2 of 5",
    "Linewright Classic MSI": "classic MSI Plessey",
    "Linewright Classic Postnet": "classic Postnet",
}

# Named instances: bar height and bar width reduction.
REDUCTIONS = {f"Reduction {percent}": (100, percent) for percent in (5, 10, 15, 20, 25)}
HEIGHTS = {"Half Height": (50, 0), "Double Height": (200, 0)}


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
            name = file["name"].getDebugName
            short = SHORT_NAMES.get(expected)
            self.assertEqual(name(1), short or expected)
            self.assertLessEqual(len(name(1)), 31)
            self.assertEqual(name(2), "Regular")
            self.assertEqual(name(4), expected)
            self.assertEqual(name(6), expected.replace(" ", "") + "-Regular")
            self.assertEqual((name(16), name(17)), (expected, "Regular") if short else (None, None))
            self.assertEqual(name(25), expected.replace(" ", "") if variable else None)

    def test_version_is_the_projects(self):
        major, minor, patch = map(int, VERSION.split("."))
        revision = f"{major}.{minor:02}{patch:02}"
        for _, _, file in self.files():
            name = file["name"].getDebugName
            self.assertEqual(name(5), f"Version {revision}; Linewright {VERSION}")
            self.assertEqual(name(3), f"{VERSION};{name(6)}")
            self.assertAlmostEqual(file["head"].fontRevision, float(revision), places=4)

    def test_description_says_what_for_and_at_what_size(self):
        for family, _, file in self.files():
            em = file["head"].unitsPerEm // FAMILIES[family]
            size = "11.5 pt" if "Post" in family else f"{em} times the X-dimension"
            self.assertEqual(
                file["name"].getDebugName(10),
                f"Draws the strings that Linewright makes for {USE[family]}. Font size: {size}. "
                "Set without tracking, hyphenation and typographer's quotes.",
            )
            self.assertEqual(file["name"].getDebugName(8), "Linewright")

    def test_maker_kind_and_smoothing(self):
        for _, _, file in self.files():
            self.assertEqual(file["OS/2"].achVendID, "LWR ")
            panose = file["OS/2"].panose
            self.assertEqual((panose.bFamilyType, panose.bSerifStyle), (5, 12))
            self.assertEqual((file["gasp"].version, file["gasp"].gaspRange), (1, {0xFFFF: 0x000A}))

    def test_underline_is_clear_of_the_bars(self):
        for family, _, file in self.files():
            line = file["head"].unitsPerEm // 32
            post = file["post"]
            self.assertEqual((post.underlinePosition, post.underlineThickness), (-line, line))

    def test_sanitizer_accepts_every_file(self):
        for family, variable, _ in self.files():
            check = subprocess.run(
                ["ots-sanitize", path(family, variable)], capture_output=True, text=True
            )
            self.assertEqual((check.returncode, check.stderr), (0, ""))

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

    def test_named_instances(self):
        for family in FAMILIES:
            file = TTFont(path(family, variable=True))
            name = file["name"].getDebugName
            found = {
                name(instance.subfamilyNameID): tuple(
                    round(instance.coordinates[tag], 2) for tag in ("BHGT", "BWRD")
                )
                for instance in file["fvar"].instances
            }
            # Postal bars have no other height, and the current font alone has EAN-8.
            expected = {"Regular": (100, 0)} | REDUCTIONS | ({} if "Post" in family else HEIGHTS)
            if family == "Linewright EAN UPC":
                expected["EAN-8"] = (79.78, 0)
            self.assertEqual(found, expected)
            values = file["STAT"].table.AxisValueArray.AxisValue
            self.assertEqual({name(value.ValueNameID) for value in values}, set(expected))

    def test_ean8_is_as_high_as_its_standard_has_it(self):
        family = "Linewright EAN UPC"
        file = TTFont(path(family, variable=True))
        (place,) = [
            instance.coordinates
            for instance in file["fvar"].instances
            if file["name"].getDebugName(instance.subfamilyNameID) == "EAN-8"
        ]
        subject = self.instance(family, **place)
        _, _, bottom, top = subject.bars(subject.map[ord("0")])[0]
        self.assertAlmostEqual((top - bottom) / 32 * 0.33, 18.23, delta=0.005)

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
                    rise = 2216 * (percent - 100) // 100
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
