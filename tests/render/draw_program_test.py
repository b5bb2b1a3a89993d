#!/usr/bin/env python3
"""Runs draw, verify, proof and fonts as people do, and reads the files back with other programs.

Usage: draw_program_test.py PROGRAM CMAKE BUILD-FOLDER
"""
import csv
import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

PROGRAM, CMAKE, BUILD = os.path.abspath(sys.argv[1]), sys.argv[2], os.path.abspath(sys.argv[3])
PEN = ("ean13", "4006381333931")


def output_of(*words):
    return subprocess.run(words, check=True, capture_output=True, timeout=60).stdout


def pdf_content(pdf):
    """The content streams of a PDF, inflated."""
    texts = []
    for stream in re.findall(rb"stream\n(.*?)\nendstream", pdf, re.S):
        try:
            text = zlib.decompress(stream)
        except zlib.error:
            continue
        if b" Tf" in text or b" cm\n" in text:
            texts.append(text)
    return b"".join(texts)


def rows_of_pgm(pgm):
    magic, width, height, most, pixels = pgm.split(maxsplit=4)
    assert (magic, most) == (b"P5", b"255")
    width = int(width)
    return [pixels[row * width:(row + 1) * width] for row in range(int(height))]


def runs(row):
    """Lengths of light and dark stretches, the light one on the left first."""
    lengths, dark, start = [], False, 0
    for x, grey in enumerate(row):
        if (grey < 128) != dark:
            lengths.append(x - start)
            dark, start = not dark, x
    return lengths + [len(row) - start]


class DrawTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        (self.folder / "app").mkdir()
        (self.folder / "config").mkdir()
        self.environment = {**os.environ, "XDG_DATA_HOME": str(self.folder / "data")}

    def run_program(self, *words, program=PROGRAM, status=0):
        run = subprocess.run(
            [program, *words, "--config-dir", str(self.folder / "config"), "--app-dir",
             str(self.folder / "app")], capture_output=True, timeout=120, text=True,
            cwd=self.folder, env=self.environment)
        self.assertEqual(run.returncode, status, run.stderr)
        return run

    def draw(self, name, *words):
        self.run_program("draw", *words, "-o", name)
        return (self.folder / name).read_bytes()

    def embedded_fonts(self, name):
        lines = output_of("pdffonts", str(self.folder / name)).decode().splitlines()[2:]
        return [(line.split()[0].split("+")[-1], line.split()[-5]) for line in lines]

    def rendered_runs(self, name, resolution, at):
        picture = output_of("pdftoppm", "-gray", "-r", str(resolution), "-singlefile",
                            str(self.folder / name))
        rows = rows_of_pgm(picture)
        return runs(rows[int(at * len(rows))])

    def test_pdf_has_the_font_live_in_pure_black(self):
        pdf = self.draw("a.pdf", *PEN)
        fonts = self.embedded_fonts("a.pdf")
        self.assertTrue(fonts)
        for font, embedded in fonts:
            self.assertEqual((font, embedded), ("LinewrightEANUPC-Regular", "yes"))
        content = pdf_content(pdf)
        self.assertIn(b"Tj", content)
        self.assertRegex(content, rb"(?m)^0 g\b")
        self.assertNotRegex(content, rb"\b(rg|RG|k|K)\b")
        self.assertNotIn(b"DeviceRGB", pdf)

    def test_pdf_bars_lie_where_they_belong(self):
        # 10 mil at 900 dpi: 9 pixels a module. Long data: nothing may drift.
        self.draw("a.pdf", "classic-code39", "A" * 60, "--no-text")
        self.draw("a.png", "classic-code39", "A" * 60, "--no-text", "--pixels-per-module", "9")
        widths = self.rendered_runs("a.pdf", 900, 0.5)
        start = [10, 1, 3, 1, 1, 3, 1, 3, 1, 1, 1, 3, 1, 1, 1, 1, 3, 1, 1]
        self.assertEqual(widths[:len(start)], [9 * modules for modules in start])
        # The program that reads it places glyphs to a quarter of a pixel.
        exact = [9 * round(width / 9) for width in widths]
        self.assertTrue(set(exact[1:-1]) == {9, 27}, widths)
        edges, edge, exact_edge = [], 0, 0
        for width, exact_width in zip(widths, exact):
            edge, exact_edge = edge + width, exact_edge + exact_width
            edges.append(abs(edge - exact_edge))
        self.assertLessEqual(max(edges), 1)
        # 63 characters of 15 modules with 62 gaps, and two quiet zones.
        self.assertEqual(sum(widths), 9 * (63 * 15 + 62 + 20))

    def test_pdf_has_paths_where_bars_are_narrower(self):
        self.draw("a.pdf", *PEN, "--bar-width-reduction", "20%")
        self.assertEqual(self.embedded_fonts("a.pdf"), [])
        self.draw("b.pdf", "code39", "A", "--bar-width-reduction", "0.0508mm", "--no-text")
        # 0.2 of 0.254 mm at 1000 dpi with 10 pixels a module: 2 pixels narrower.
        self.assertEqual(self.rendered_runs("b.pdf", 1000, 0.5)[1:5], [8, 22, 8, 12])

    def test_pdf_of_another_height_has_the_font_live(self):
        self.draw("a.pdf", "code39", "A", "--height", "20mm", "--no-text")
        self.assertEqual([embedded for _, embedded in self.embedded_fonts("a.pdf")], ["yes"])
        size = output_of("pdfinfo", str(self.folder / "a.pdf")).decode()
        height = float(re.search(r"Page size: +[\d.]+ x ([\d.]+)", size)[1])
        self.assertAlmostEqual(height, 20 * 72 / 25.4, delta=0.72)
        self.assertEqual(self.rendered_runs("a.pdf", 1000, 0.05)[1:5], [10, 20, 10, 10])

        # Where the font prints text itself, the bars alone get lower: paths.
        self.draw("b.pdf", *PEN, "--height", "10mm")
        self.assertEqual(self.embedded_fonts("b.pdf"), [])

    def test_eps_has_the_font_live_in_pure_black(self):
        eps = self.draw("a.eps", *PEN)
        self.assertTrue(eps.startswith(b"%!PS-Adobe-3.0 EPSF-3.0"))
        self.assertIn(b"/FontType 42 def", eps)
        self.assertIn(b"LinewrightEANUPC", eps)
        self.assertRegex(eps, rb"(?m)^0 g\b")
        self.assertNotRegex(eps.split(b"%%EndPageSetup")[1], rb"\b(rg|setrgbcolor|setcmykcolor)\b")
        paths = self.draw("b.eps", *PEN, "--bar-width-reduction", "10%")
        self.assertNotIn(b"/FontType", paths)

    def test_svg_has_paths_alone(self):
        svg = self.draw("a.svg", "code39", "A").decode()
        self.assertIn("<path", svg)
        for element in ("<text", "<font", "<use", "<image"):
            self.assertNotIn(element, svg)

    def test_png_has_whole_pixels_and_its_resolution(self):
        png = self.draw("a.png", "code39", "A", "--dpi", "600", "--no-text")
        width, height, depth, colour = struct.unpack(">IIBB", png[16:26])
        # 0.010 inch at 600 dpi: 6 pixels; three characters at ratio 2, two gaps, quiet zones of 10.
        self.assertEqual((width, height), (6 * (3 * 12 + 2 + 20), 6 * 32))
        self.assertEqual((depth, colour), (8, 0))
        self.assertEqual(struct.unpack(">IIB", png[41:50]), (23622, 23622, 1))
        self.assertEqual(zlib.crc32(png[37:50]), struct.unpack(">I", png[50:54])[0])
        run = self.run_program("draw", *PEN, "-o", "b.png", "--dpi", "300", status=2)
        self.assertIn("3 at 230.91 dpi, 4 at 307.88 dpi", run.stderr)
        self.assertFalse((self.folder / "b.png").exists())
        run = self.run_program("draw", "code39", "A", "--ratio", "2.5", "-o", "b.png",
                               "--pixels-per-module", "3", status=2)
        self.assertIn("even", run.stderr)

    def test_mistakes_are_told(self):
        for words, told in (
            (("-o", "a.gif"), ".pdf, .eps, .svg or .png"),
            (("-o", "a.pdf", "--x-dimension", "wide"), "--x-dimension"),
            (("-o", "a.pdf", "--x-dimension", "0mm"), "--x-dimension"),
            (("-o", "a.pdf", "--height", "1m"), "--height"),
            (("-o", "a.pdf", "--bar-width-reduction", "30%"), "25 %"),
            (("-o", "a.pdf", "--fonts", str(self.folder)), "LinewrightEANUPC.ttf"),
            (("-o", str(self.folder / "none" / "a.pdf")), "cannot be written"),
        ):
            run = self.run_program("draw", *PEN, *words, status=2)
            self.assertIn(told, run.stderr)
        run = self.run_program("draw", "ean13", "40O6", "-o", "a.pdf", status=1)
        self.assertIn("refused (status -6301)", run.stderr)
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["app", "config"])

    def test_verify_says_what_scanners_read(self):
        run = self.run_program("verify", *PEN)
        self.assertEqual(run.stdout.splitlines()[0], "scans")
        self.assertEqual(run.stdout.count("4006381333931"), 2)
        run = self.run_program("verify", "upca", "03600029145206", status=4)
        self.assertEqual(run.stdout.splitlines()[0], "scans as 036000291452 +20")
        self.assertIn("the add-on of the symbol is 20, not 06", run.stderr)
        run = self.run_program("verify", "upce", "01234567890", status=4)
        self.assertEqual(run.stdout.splitlines()[0], "does not scan")
        run = self.run_program("verify", "imb", "01234567094987654321")
        self.assertEqual(run.stdout, "no scanner for this symbology\n")
        run = self.run_program("verify", "upce", "01234567890", "--strict", status=1)
        self.assertEqual(run.stdout, "")
        run = self.run_program("draw", *PEN, "-o", "a.png", "--verify")
        self.assertEqual(run.stdout.splitlines()[0], "scans")

    def test_verify_knows_the_preferences(self):
        self.run_program("prefs", "set", "codabarStart=B", "code39CheckMode=none")
        run = self.run_program("verify", "classic-codabar", "1234")
        self.assertIn("B1234D", run.stdout)
        run = self.run_program("verify", "classic-code39ascii", "a b")
        self.assertEqual(run.stdout.splitlines()[0], "scans")
        self.assertIn("  a b\n", run.stdout)

    def test_long_type_names_are_drawn_too(self):
        run = self.run_program("verify", "_QVT_BARCODE_EAN13_and more", PEN[1])
        self.assertEqual(run.stdout.splitlines()[0], "scans")

    def test_batch_and_proof_of_a_file(self):
        (self.folder / "in.csv").write_text(
            "type,data\nean13,4006381333931\nimb,01234567094987654321\nean13,40O6\n"
            "upce,01234567890\n" + "code128,Shelf\n" * 30)
        self.run_program("batch", "in.csv", "-o", "out.csv", "--verify", status=3)
        with open(self.folder / "out.csv", newline="") as file:
            rows = list(csv.DictReader(file))
        self.assertEqual([(row["scan"], row["read"]) for row in rows[:5]], [
            ("scans", "4006381333931"), ("no scanner for this symbology", ""), ("", ""),
            ("does not scan", ""), ("scans", "Shelf")])
        run = self.run_program("proof", "in.csv", "-o", "proof.pdf", status=3)
        self.assertIn("34 rows: 33 drawn (31 scan, 1 do not, 1 have no scanner), 1 refused",
                      run.stderr)
        self.run_program("proof", "in.csv", "-o", "proof.pdf", "--verify", status=4)
        text = output_of("pdftotext", "-layout", str(self.folder / "proof.pdf"), "-").decode()
        for part in ("scans: 4006381333931", "Linewright EAN UPC, 119.74 pt", "does not scan",
                     "refused +Only the digits 0 to 9", "no scanner for this symbology"):
            self.assertRegex(text, part)
        self.assertGreater(text.count("page "), 1)
        pdf = (self.folder / "proof.pdf").read_bytes()
        self.assertNotRegex(pdf_content(pdf), rb"\b(rg|RG)\b")

    def test_fonts_are_listed_and_installed(self):
        listed = self.run_program("fonts", "list").stdout
        self.assertRegex(listed, r"Linewright Bars +23\.04 pt .*code39, code128")
        self.assertRegex(listed, r"Linewright Postal +11\.50 pt .*imb.*postnet")
        self.run_program("fonts", "install")
        folder = self.folder / "data/fonts/linewright"
        names = {path.name for path in folder.iterdir()}
        self.assertEqual(len(names), 10)
        self.assertIn("LinewrightClassicI2of5.ttf", names)
        self.run_program("fonts", "install")

    def test_an_installation_draws(self):
        prefix = self.folder / "an installation"
        output_of(CMAKE, "--install", BUILD, "--prefix", str(prefix))
        program = str(prefix / "bin" / "linewright")
        run = self.run_program("verify", *PEN, "--bar-width-reduction", "10%", program=program)
        self.assertEqual(run.stdout.splitlines()[0], "scans")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
