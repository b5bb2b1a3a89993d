#!/usr/bin/env python3
"""Runs the program with a memory that ends sooner and later: it says so, and leaves nothing half
written.

Usage: memory_test.py PROGRAM-WITH-ENDING-MEMORY
"""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = os.path.abspath(sys.argv[1])
SENTENCE = b"linewright: there is not enough memory\n"
STEPS = 20


class MemoryTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        self.output = self.folder / "out"
        for name in ("out", "config"):
            (self.folder / name).mkdir()
        self.source = self.folder / "in.csv"
        self.source.write_text("type,data\n" + "classic-codabar,1\n" * 20)

    def run_program(self, *words, allocations=None):
        environment = dict(os.environ)
        if allocations is not None:
            environment["LINEWRIGHT_MEMORY"] = str(allocations)
        return subprocess.run(
            [PROGRAM, *words, "--config-dir", self.folder / "config", "--app-dir", self.folder],
            capture_output=True, timeout=60, env=environment)

    def count_allocations(self, *words):
        """The fewest with which a command works."""
        fails, works = 0, 1
        while self.run_program(*words, allocations=works).returncode != 0:
            fails, works = works, works * 2
        while works - fails > 1:
            middle = (fails + works) // 2
            if self.run_program(*words, allocations=middle).returncode == 0:
                works = middle
            else:
                fails = middle
        return works

    def expect_sentence_or_result(self, file, *words):
        target = self.output / file
        self.assertEqual(self.run_program(*words, "-o", target).returncode, 0)
        result = target.read_bytes()
        enough = self.count_allocations(*words, "-o", target)
        for step in range(STEPS):
            target.write_text("old")
            run = self.run_program(*words, "-o", target,
                                   allocations=enough * step // STEPS)
            self.assertEqual((run.returncode, run.stderr), (2, SENTENCE), step)
            self.assertEqual(target.read_text(), "old", step)
            self.assertEqual(list(self.output.iterdir()), [target], step)
        target.write_text("old")
        self.assertEqual(self.run_program(*words, "-o", target, allocations=enough).returncode, 0)
        self.assertEqual(target.read_bytes(), result)

    def test_a_batch_is_whole_or_was_not(self):
        self.expect_sentence_or_result("a.csv", "batch", self.source)

    def test_a_drawing_is_whole_or_was_not(self):
        self.expect_sentence_or_result("a.svg", "draw", "code39", "A")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
