#!/usr/bin/env python3
"""Lets each allocation but fontconfig's and each opening of a file fail, one a run, in what draws: a
run that ends with exit status 0 has written the same bytes as one in which nothing fails, any other
run the same or nothing.

Usage: failing_calls_test.py PROGRAM PRELOADED-LIBRARY [STEP [LAST]]
"""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, LIBRARY = (str(Path(name).resolve()) for name in sys.argv[1:3])
# Of the allocations every so manieth is tried, and the last so many, when the drawing is made. Files
# are few.
STEP = int(sys.argv[3]) if len(sys.argv) > 3 else 397
LAST = int(sys.argv[4]) if len(sys.argv) > 4 else 300


class FailingCallsTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        for name in ("app", "config"):
            (self.folder / name).mkdir()
        (self.folder / "in.csv").write_text("type,data\nean13,4006381333931\ncode128,Shelf 7\n")

    def run_program(self, words, call, at, counts=None):
        environment = {**os.environ, "LD_PRELOAD": LIBRARY, "FAIL_CALL": call, "FAIL_AT": str(at),
                       "SOURCE_DATE_EPOCH": "0"}
        if counts:
            environment["FAIL_COUNT_FILE"] = str(counts)
        return subprocess.run(
            [PROGRAM, *words, "--config-dir", "config", "--app-dir", "app"], capture_output=True,
            cwd=self.folder, env=environment, timeout=60).returncode

    def check(self, output, *words):
        words = (*words, "-o", output)
        target = self.folder / output
        for call, step, last in (("open", 1, 0), ("malloc", STEP, LAST)):
            counts = self.folder / "calls"
            self.assertEqual(self.run_program(words, call, 0, counts), 0)
            expected = target.read_bytes()
            total = int(counts.read_text())
            self.assertGreater(total, 5)
            failures = 0
            for at in {*range(1, total + 1, step), *range(max(1, total - last), total + 1)}:
                target.unlink(missing_ok=True)
                status = self.run_program(words, call, at)
                if status == 0:
                    self.assertEqual(target.read_bytes(), expected, f"{call} {at} of {total}")
                else:
                    failures += 1
                    # What fails behind the writing leaves the file whole.
                    if target.exists():
                        self.assertEqual(target.read_bytes(), expected, f"{call} {at} of {total}")
            self.assertGreater(failures, 0, call)

    def test_pdf(self):
        self.check("a.pdf", "draw", "code128", "Shelf 7")

    def test_reduced_pdf(self):
        self.check("a.pdf", "draw", "ean13", "4006381333931", "--bar-width-reduction", "10%",
                   "--dpi", "600", "--fit")

    def test_eps(self):
        self.check("a.eps", "draw", "code128", "Shelf 7")

    def test_png(self):
        self.check("a.png", "draw", "code128", "Shelf 7")

    def test_tiff(self):
        self.check("a.tiff", "draw", "code128", "Shelf 7")

    def test_proof(self):
        self.check("a.pdf", "proof", "in.csv")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
