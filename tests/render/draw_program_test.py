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


def inflated(pdf):
    """All of a PDF, its streams inflated."""
    with tempfile.NamedTemporaryFile(suffix=".pdf") as file:
        file.write(pdf)
        file.flush()
        return output_of("qpdf", "--qdf", "--object-streams=disable", file.name, "-")


def pdf_content(pdf):
    """The content streams of a PDF."""
    streams = re.findall(rb"stream\n(.*?)\nendstream", inflated(pdf), re.S)
    return b"\n".join(stream for stream in streams if b" Tf\n" in stream or b" BDC\n" in stream)


def bits_of_png(png):
    """The middle row of a picture of 1 bit a pixel, as bytes of grey."""
    width, height, depth, colour = struct.unpack(">IIBB", png[16:26])
    assert (depth, colour) == (1, 0)
    data, place = b"", 8
    while place < len(png):
        length, = struct.unpack(">I", png[place:place + 4])
        if png[place + 4:place + 8] == b"IDAT":
            data += png[place + 8:place + 8 + length]
        place += length + 12
    stride = (width + 7) // 8 + 1
    row = zlib.decompress(data)[height // 2 * stride:][:stride]
    assert row[0] == 0
    return bytes(255 * (row[1 + x // 8] >> (7 - x % 8) & 1) for x in range(width))


def rows_of_pgm(pgm):
    magic, width, height, most, pixels = re.sub(rb"\n#[^\n]*", b"", pgm[:200]).split(maxsplit=4)
    pixels += pgm[200:]
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
        pdf = self.draw("a.pdf", "code39", "A", "--bar-width-reduction", "0.0508mm", "--dpi", "1000",
                        "--no-text")
        self.assertIn(b"3 Tr", inflated(pdf))
        # 0.2 of 0.254 mm at 1000 dpi with 10 pixels a module: 2 pixels narrower.
        self.assertEqual(self.rendered_runs("a.pdf", 1000, 0.5)[1:5], [8, 22, 8, 12])

    def test_pdf_of_another_height_has_the_font_live(self):
        self.draw("a.pdf", "code39", "A", "--height", "20mm", "--no-text")
        self.assertEqual([embedded for _, embedded in self.embedded_fonts("a.pdf")], ["yes"])
        size = output_of("pdfinfo", str(self.folder / "a.pdf")).decode()
        height = float(re.search(r"Page size: +[\d.]+ x ([\d.]+)", size)[1])
        self.assertAlmostEqual(height, 20 * 72 / 25.4, delta=0.72)
        self.assertEqual(self.rendered_runs("a.pdf", 1000, 0.05)[1:5], [10, 20, 10, 10])

        # Where the font prints text itself, the bars alone get lower: paths.
        self.assertIn(b"3 Tr", inflated(self.draw("b.pdf", *PEN, "--height", "10mm")))
        self.assertNotIn(b"3 Tr", inflated(self.draw("b.pdf", *PEN)))

    def test_pdf_copies_as_what_the_bars_carry(self):
        for words, text in (
            (PEN, "4006381333931"),
            ((*PEN, "--bar-width-reduction", "10%"), "4006381333931"),
            (("i2of5", "1234", "--check"), "012348"),
            (("code128", "(01)0950110153000~m13(21)4711(17)251231"),
             "(01)09501101530003(21)4711(17)251231"),
            (("code128", "10€"), "10"),
            (("code39", "A", "--check"), "AA"),
            (("imb", "0123456709498765432101234567891", "--text"),
             "01 234 567094 987654321 01234567891"),
        ):
            self.draw("a.pdf", *words)
            said = output_of("pdftotext", str(self.folder / "a.pdf"), "-").decode().split("\n")[0]
            self.assertEqual(said, text)
        output_of("qpdf", "--check", str(self.folder / "a.pdf"))
        boxes = output_of("pdfinfo", "-box", str(self.folder / "a.pdf")).decode()
        self.assertRegex(boxes, r"Title: +imb 01 234")
        media, trim = (re.search(rf"{name}Box: +(.*)", boxes)[1] for name in ("Media", "Trim"))
        self.assertEqual(media, trim)

    def test_ink_is_its_own_separation(self):
        self.draw("a.pdf", *PEN, "--ink", "PANTONE 300 C", "--bar-width-reduction", "10%")
        self.draw("a.eps", *PEN, "--ink", "PANTONE 300 C")
        for name in ("a.pdf", "a.eps"):
            subprocess.run(["gs", "-q", "-dNOPAUSE", "-dBATCH", "-dEPSCrop", "-sDEVICE=tiffsep",
                            "-r72", "-sOutputFile=sep.tif", name], check=True, cwd=self.folder)
            self.assertTrue((self.folder / "sep(PANTONE 300 C).tif").exists(), name)
            (self.folder / "sep(PANTONE 300 C).tif").unlink()
        self.draw("b.pdf", *PEN, "--ink", "cmyk:0,0,0,100")
        content = inflated((self.folder / "b.pdf").read_bytes())
        self.assertIn(b"0 0 0 1 k", content)
        self.assertIn(b"/OPM 1", content)

    def test_every_reduction_measures_within_half_a_dot(self):
        modules = [10, 1, 2, 1, 1, 2, 1, 2, 1, 1, 1, 2, 1, 1, 1, 1, 2, 1, 1, 2, 1, 1, 2, 1, 1, 2, 1,
                   2, 1, 1, 10]
        for dpi in (300, 600, 1200, 2400):
            for percent in (0, 5, 10, 12.5, 20, 25):
                dots = dpi // 100
                words = ("code39", "A", "--no-text", "--dpi", str(dpi), "--bar-width-reduction",
                         f"{percent}%")
                for name in ("a.pdf", "a.eps", "a.png"):
                    self.draw(name, *words)
                for name, row in (("a.pdf", self.ghostscript_row("a.pdf", dpi)),
                                  ("a.eps", self.ghostscript_row("a.eps", dpi)),
                                  ("a.pdf", self.poppler_row("a.pdf", dpi)),
                                  ("a.png", bits_of_png((self.folder / "a.png").read_bytes()))):
                    widths = runs(row)
                    self.assertEqual(len(widths), len(modules), (name, dpi, percent))
                    less = dots * percent / 100
                    for place in range(1, len(modules) - 1):
                        bar = 1 if place % 2 else -1
                        self.assertLessEqual(
                            abs(widths[place] - (modules[place] * dots - bar * less)), 0.5,
                            (name, dpi, percent, widths))

    def ghostscript_row(self, name, dpi):
        rows = rows_of_pgm(output_of(
            "gs", "-q", "-dNOPAUSE", "-dBATCH", "-dEPSCrop", "-sDEVICE=pgmraw", f"-r{dpi}",
            "-sOutputFile=-", str(self.folder / name)))
        return rows[len(rows) // 2]

    def poppler_row(self, name, dpi):
        rows = rows_of_pgm(output_of("pdftoppm", "-gray", "-r", str(dpi), "-singlefile",
                                     str(self.folder / name)))
        return rows[len(rows) // 2]

    def test_eps_has_paths_in_pure_black_on_its_whole_page(self):
        eps = self.draw("a.eps", "code128", "A", "--quiet-zone", "20mm", "--no-text")
        self.assertTrue(eps.startswith(b"%!PS-Adobe-3.0 EPSF-3.0"))
        self.assertNotIn(b"/FontType", eps)
        self.assertIn(b"\n0 setgray\n", eps)
        self.assertNotRegex(eps, rb"\b(setrgbcolor|setcmykcolor)\b")
        row = self.ghostscript_row("a.eps", 300)
        # 46 modules of 3 dots, and 236.2 dots of white on either side.
        self.assertEqual(len(row), 3 * (46 + 2 * 79))
        self.assertEqual((runs(row)[0], runs(row)[-1]), (3 * 79, 3 * 79))

    def test_svg_has_paths_alone(self):
        svg = self.draw("a.svg", "code39", "A").decode()
        self.assertIn("<path", svg)
        for element in ("<text", "<font", "<use", "<image"):
            self.assertNotIn(element, svg)
        self.assertLessEqual(len(self.draw("b.svg", *PEN)), 5 * 1024)
        output_of("xmllint", "--noout", str(self.folder / "b.svg"))

    def test_tiff_has_one_bit_a_pixel(self):
        self.draw("a.tiff", "code39", "A", "--dpi", "600", "--no-text")
        said = output_of("tiffinfo", str(self.folder / "a.tiff")).decode()
        for part in ("Image Width: 348 Image Length: 192", "Resolution: 600, 600 pixels/inch",
                     "Bits/Sample: 1", "CCITT Group 4", "min-is-white"):
            self.assertIn(part, said)
        self.draw("b.tiff", "code39", "A", "--grey")
        self.assertIn("Bits/Sample: 8",
                      output_of("tiffinfo", str(self.folder / "b.tiff")).decode())

    def test_standard_output_and_capitals(self):
        run = subprocess.run([PROGRAM, "draw", *PEN, "-o", "-", "--format", "svg", "--config-dir",
                              "config", "--app-dir", "app"], capture_output=True, cwd=self.folder,
                             check=True, timeout=60)
        self.assertEqual(run.stdout, self.draw("A.SVG", *PEN))

    def test_rows_become_files(self):
        (self.folder / "in.csv").write_text(
            "type,data\nean13,4006381333931\ncode128,A/B\nean13,40O6\n")
        run = self.run_program("draw", "in.csv", "-o", "{line}-{type}-{data}.svg", status=3)
        self.assertIn("line 4: refused: Only the digits 0 to 9", run.stderr)
        self.assertIn("3 rows: 2 drawn, 1 refused", run.stderr)
        self.assertEqual(sorted(path.name for path in self.folder.glob("*.svg")),
                         ["2-ean13-4006381333931.svg", "3-code128-A_B.svg"])
        self.assertEqual((self.folder / "2-ean13-4006381333931.svg").read_bytes(),
                         self.draw("b.svg", *PEN))
        run = self.run_program("draw", "in.csv", "-o", "{type}.pdf", status=3)
        self.assertIn("{line}", self.run_program("draw", "in.csv", "-o", "a.pdf", status=2).stderr)

    def test_a_bad_resolution_offers_a_good_one(self):
        run = self.run_program("draw", *PEN, "-o", "a.pdf", "--dpi", "300", status=2)
        self.assertIn("0.3387 mm, 102.6 %, 4 dots: --x-dimension 0.3387mm", run.stderr)
        self.run_program("draw", *PEN, "-o", "a.pdf", "--dpi", "300", "--x-dimension", "0.3387mm")
        self.run_program("draw", *PEN, "-o", "a.pdf", "--dpi", "300", "--fit")
        run = self.run_program("draw", *PEN, "-o", "a.pdf", "--bar-width-reduction", "10%")
        self.assertIn("at 600 dpi this reduction is lost; give --dpi", run.stderr)
        for dpi in ("300", "600", "1200"):
            self.run_program("draw", "imb", "01234567094987654321", "--strict", "-o", "a.pdf",
                             "--dpi", dpi)

    def test_png_has_whole_pixels_and_its_resolution(self):
        png = self.draw("a.png", "code39", "A", "--dpi", "600", "--no-text")
        width, height, depth, colour = struct.unpack(">IIBB", png[16:26])
        # 0.010 inch at 600 dpi: 6 pixels; three characters at ratio 2, two gaps, quiet zones of 10.
        self.assertEqual((width, height), (6 * (3 * 12 + 2 + 20), 6 * 32))
        self.assertEqual((depth, colour), (1, 0))
        self.assertEqual(struct.unpack(">IIB", png[41:50]), (23622, 23622, 1))
        self.assertEqual(zlib.crc32(png[37:50]), struct.unpack(">I", png[50:54])[0])
        run = self.run_program("draw", "code39", "A", "--ratio", "2.5", "-o", "b.png",
                               "--pixels-per-module", "3", status=2)
        self.assertIn("even", run.stderr)

    def test_mistakes_are_told(self):
        for words, told in (
            (("-o", "a.gif"), ".pdf, .eps, .svg, .png or .tiff"),
            (("-o", "a.pdf", "--x-dimension", "wide"), "--x-dimension"),
            (("-o", "a.pdf", "--x-dimension", "0mm"), "--x-dimension"),
            (("-o", "a.pdf", "--height", "1m"), "--height"),
            (("-o", "a.pdf", "--bar-width-reduction", "30%"), "25 %"),
            (("-o", "a.pdf", "--bar-width-reduction=-5%"), '"-5%"'),
            (("-o", "a.pdf", "--x-dimension", "1000mm"), "0.05 mm to 10 mm"),
            (("-o", "a.pdf", "--x-dimension", "0.00001mm"), "0.05 mm to 10 mm"),
            (("-o", "a.pdf", "--quiet-zone", "3000mm"), "5080 mm"),
            (("-o", "a.pdf", "--ink", "cmyk:1,2"), "--ink"),
            (("-o", "a.png", "--ink", "Gold"), "black alone"),
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
        first = text.split("\f")[0]
        for part in (r"\d{4}-\d\d-\d\d", "34 rows: 33 drawn", "line 4 +ean13 +40O6",
                     "refused +Only the digits 0 to 9"):
            self.assertRegex(first, part)
        for part in ("scans: 4006381333931", "Linewright EAN UPC, 119.74 pt", "does not scan",
                     "X 0.330 mm, 100.0 %; bars 22.85 mm high", "no scanner for this symbology"):
            self.assertRegex(text, part)
        fonts = [name for name, _ in self.embedded_fonts("proof.pdf")]
        self.assertEqual(fonts.count("LinewrightBars-Regular"), 1)
        self.run_program("proof", "in.csv", "-o", "letter.pdf", "--letter", "--title", "data",
                         status=3)
        size = output_of("pdfinfo", str(self.folder / "letter.pdf")).decode()
        self.assertIn("612 x 792 pts (letter)", size)
        text = output_of("pdftotext", "-layout", str(self.folder / "letter.pdf"), "-").decode()
        self.assertRegex(text, r"Shelf +\(code128, line 6\)")
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
