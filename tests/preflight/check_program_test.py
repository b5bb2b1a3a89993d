#!/usr/bin/env python3
"""Runs `linewright check` on documents that are whole and on such as are not.

Usage: check_program_test.py LINEWRIGHT
"""
import json
import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

LINEWRIGHT = sys.argv.pop(1)


def chunk(name, content):
    return (struct.pack(">I", len(content)) + name + content +
            struct.pack(">I", zlib.crc32(name + content)))


def png(width, height, rows=b""):
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 1, 0, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


class Check(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = Path(self.folder.name)

    def run_it(self, *words, **more):
        return subprocess.run([LINEWRIGHT, *map(str, words)], capture_output=True, text=True,
                              cwd=self.path, timeout=120, **more)

    def draw(self, name, *words):
        done = self.run_it("draw", *words, "-o", name)
        self.assertEqual(done.returncode, 0, done.stderr)
        return self.path / name

    def sheet(self, rows, name="sheet.pdf"):
        (self.path / "rows.csv").write_text("type,data\n" + "".join(f"{a},{b}\n" for a, b in rows))
        done = self.run_it("proof", "rows.csv", "-o", name)
        self.assertEqual(done.returncode, 0, done.stderr)

    def refused(self, sentence, *words, **more):
        done = self.run_it("check", *words, **more)
        self.assertEqual((done.returncode, done.stdout), (2, ""), done.stderr)
        self.assertEqual(done.stderr, f"linewright: {sentence}\n")

    def test_symbols_of_a_pdf_a_png_and_a_tiff(self):
        for ending in ("pdf", "png", "tiff"):
            name = self.draw(f"pen.{ending}", "ean13", "4006381333931")
            done = self.run_it("check", name, "--json")
            report = json.loads(done.stdout)
            self.assertEqual(done.returncode, 0, done.stdout)
            (symbol,) = report["symbols"]
            self.assertEqual((symbol["symbology"], symbol["data"]), ("EAN-13", "4006381333931"))
            self.assertAlmostEqual(symbol["xDimension"], 0.33, delta=0.01)
            self.assertGreaterEqual(symbol["quietZones"]["left"], 10.9)

    def test_data_that_agrees_and_data_that_does_not(self):
        self.sheet([("code128", "A-1"), ("ean8", "96385074")])
        self.assertEqual(self.run_it("check", "sheet.pdf", "--data", "rows.csv").returncode, 0)
        (self.path / "other.csv").write_text("type,data,page\ncode128,A-2,\nean8,96385074,7\n"
                                             "code39,ABC,\nean13,12x,\n")
        done = self.run_it("check", "sheet.pdf", "--data", "other.csv")
        self.assertEqual(done.returncode, 4)
        for sentence in ("line 2 of the data (code128) encodes to A-2",
                         "line 3 of the data wants it on page 7",
                         "line 4 of the data is missing: code39 ABC",
                         "line 5 of the data is refused: Only the digits 0 to 9"):
            self.assertIn("✗ " + sentence + "\n", done.stdout)
        self.assertEqual(done.stderr,
                         "2 pages: 2 symbols, 2 with faults; 2 rows of the data not there\n")

    def test_a_symbol_once_too_often(self):
        self.sheet([("code128", "A-1"), ("code128", "A-1")])
        (self.path / "once.csv").write_text("type,data\ncode128,A-1\n")
        done = self.run_it("check", "sheet.pdf", "--data", "once.csv", "--json")
        kinds = [fault["kind"] for symbol in json.loads(done.stdout)["symbols"]
                 for fault in symbol["faults"]]
        self.assertEqual((done.returncode, kinds), (4, ["twice"]))

    def test_a_report_is_written(self):
        self.sheet([("code128", "A-1")])
        done = self.run_it("check", "sheet.pdf", "-o", "report.pdf")
        self.assertEqual(done.returncode, 0, done.stderr)
        info = subprocess.run(["pdfinfo", self.path / "report.pdf"], capture_output=True, text=True)
        self.assertIn("Pages:           3\n", info.stdout)

    def test_one_page(self):
        self.sheet([("code128", "A-1")])
        report = json.loads(self.run_it("check", "sheet.pdf", "--page", "2", "--json").stdout)
        self.assertEqual([page["page"] for page in report["pages"]], [2])
        self.assertEqual(len(report["symbols"]), 1)
        self.refused("sheet.pdf: has 2 pages; there is no page 3", "sheet.pdf", "--page", 3)

    def test_what_is_no_document(self):
        self.refused("none.pdf: there is no such file", "none.pdf")
        self.refused(".: is no file that can be read", ".")
        (self.path / "empty.pdf").touch()
        self.refused("empty.pdf: is empty", "empty.pdf")
        (self.path / "text.pdf").write_text("no such thing")
        self.refused("text.pdf: is neither PDF nor PNG nor TIFF", "text.pdf")
        os.mkfifo(self.path / "pipe.pdf")
        self.refused("pipe.pdf: is no file that can be read", "pipe.pdf")
        (self.path / "broken.png").write_bytes(png(100, 100)[:40])
        done = self.run_it("check", "broken.png", "--dpi", 300)
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertTrue(done.stderr.startswith("linewright: broken.png: is no PNG file"))
        (self.path / "broken.tif").write_bytes(b"II*\0\xff\xff\xff\xff")
        self.refused("broken.tif: is no TIFF file that can be read", "broken.tif")

    def test_pdf_files_that_are_not_whole(self):
        whole = self.draw("pen.pdf", "ean13", "4006381333931").read_bytes()
        (self.path / "cut.pdf").write_bytes(whole[:200])
        done = self.run_it("check", "cut.pdf")
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertTrue(done.stderr.startswith(
            "linewright: cut.pdf: is no PDF file that poppler can read: "), done.stderr)
        subprocess.run(["qpdf", "--encrypt", "user", "owner", "256", "--", self.path / "pen.pdf",
                        self.path / "locked.pdf"], check=True)
        self.refused("locked.pdf: is encrypted, and opens with a password only", "locked.pdf")

    def test_pictures_that_cannot_be_measured(self):
        (self.path / "plain.png").write_bytes(png(8, 8, b"\0\xff" * 8))
        self.refused("plain.png: the picture does not say its resolution; --dpi says it",
                     "plain.png")
        self.assertEqual(self.run_it("check", "plain.png", "--dpi", 300).returncode, 0)
        (self.path / "huge.png").write_bytes(png(100000, 100000))
        self.refused("huge.png: the picture has 100000 x 100000 pixels, more than can be looked at",
                     "huge.png", "--dpi", 300)

    def test_without_poppler(self):
        self.draw("pen.pdf", "ean13", "4006381333931")
        (self.path / "bin").mkdir()
        self.refused("there is no program pdfinfo, which reads PDF files; it is one of poppler's",
                     "pen.pdf", env={**os.environ, "PATH": str(self.path / "bin")})

    def test_a_program_that_fails_midway(self):
        """pdftoppm prints rubbish: no page is taken for one without symbols."""
        self.draw("pen.pdf", "ean13", "4006381333931")
        (self.path / "bin").mkdir()
        fake = self.path / "bin" / "pdftoppm"
        fake.write_text("#!/bin/sh\necho P6\n")
        fake.chmod(0o755)
        self.refused("pen.pdf: pdftoppm gives no picture of page 1", "pen.pdf",
                     env={**os.environ, "PATH": f"{self.path / 'bin'}:{os.environ['PATH']}"})

    def test_names_that_look_like_options(self):
        self.draw("pen.pdf", "ean13", "4006381333931").rename(self.path / "-x.pdf")
        self.assertEqual(self.run_it("check", "--", "-x.pdf").returncode, 0)

    def test_a_page_without_symbols(self):
        blank = self.path / "blank.pdf"
        blank.write_bytes(b"%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                          b"2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                          b"3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 300 300]>>endobj\n"
                          b"trailer<</Root 1 0 R>>\n")
        done = self.run_it("check", "blank.pdf")
        self.assertEqual((done.returncode, done.stderr), (0, "1 page: 0 symbols, 0 with faults\n"))
        blank.write_bytes(blank.read_bytes().replace(b"[0 0 300 300]", b"[0 0 99999 99999]"))
        self.refused("blank.pdf: page 1 is 35277 mm by 35277 mm, too large to be looked at",
                     "blank.pdf")


if __name__ == "__main__":
    unittest.main(verbosity=2)
