#!/usr/bin/env python3
"""The version is stated once, by CMake's project(); what must have a number of its own has the same.

Usage: version_test.py VERSION PROGRAM
"""
import json
import subprocess
import sys
import unittest
from pathlib import Path

VERSION, PROGRAM = sys.argv[1:]
ROOT = Path(__file__).resolve().parents[2]


class VersionTest(unittest.TestCase):
    def test_command(self):
        said = subprocess.run([PROGRAM, "--version"], check=True, capture_output=True, text=True).stdout
        self.assertEqual(said, f"linewright {VERSION}\n")

    def test_module_for_javascript(self):
        module = json.loads((ROOT / "web/module/package.json").read_text(encoding="utf-8"))
        self.assertEqual(module["version"], VERSION)

    def test_changes(self):
        changes = (ROOT / "CHANGELOG.md").read_text(encoding="utf-8")
        self.assertIn(f"\n## {VERSION} (", changes)


unittest.main(argv=[sys.argv[0]], verbosity=2)
