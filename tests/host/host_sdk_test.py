#!/usr/bin/env python3
"""Builds the plug-in alone against headers that are given, as somebody does who has a host's.

Usage: host_sdk_test.py CMAKE GENERATOR COMPILER OBJDUMP HEADERS
"""
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CMAKE, GENERATOR, COMPILER, OBJDUMP, HEADERS = sys.argv[1:]
ROOT = Path(__file__).resolve().parent.parent.parent
ROOMS = {"types", "text", "core", "retail", "classic", "current", "imb", "plugin"}


class HostSDKTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(temporary.cleanup)
        cls.build = Path(temporary.name)

    def configure(self, headers):
        return subprocess.run(
            [CMAKE, "-S", str(ROOT), "-B", str(self.build), "-G", GENERATOR,
             f"-DCMAKE_CXX_COMPILER={COMPILER}", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
             "-DCMAKE_BUILD_TYPE=Debug", "-DLINEWRIGHT_WARNINGS_AS_ERRORS=ON",
             "-DCMAKE_INSTALL_LIBDIR=lib", f"-DLINEWRIGHT_HOST_SDK={headers}"],
            capture_output=True, text=True)

    def test_the_plug_in_alone_is_built_against_the_headers(self):
        configured = self.configure(HEADERS)
        self.assertEqual(0, configured.returncode, configured.stderr)
        built = subprocess.run([CMAKE, "--build", str(self.build)], capture_output=True, text=True)
        self.assertEqual(0, built.returncode, built.stdout + built.stderr)

        compiled = json.loads((self.build / "compile_commands.json").read_text())
        rooms = {Path(each["file"]).relative_to(ROOT).parts[0] for each in compiled}
        self.assertEqual(ROOMS, rooms)
        for each in compiled:
            with self.subTest(file=each["file"]):
                self.assertNotIn(str(ROOT / "host"), each["command"])
                # What is plain text sees no host.
                if not each["file"].startswith((str(ROOT / "types"), str(ROOT / "text"))):
                    self.assertIn(HEADERS, each["command"])

        libraries = [path.name for path in (self.build / "lib").rglob("*") if path.is_file()]
        self.assertEqual(["Linewright.so"], libraries)
        table = subprocess.run([OBJDUMP, "-p", str(self.build / "lib/linewright/Linewright.so")],
                               check=True, capture_output=True, text=True).stdout
        self.assertIn("libstdc++", table)
        self.assertNotIn("linewright-host", table)

    def test_a_folder_that_is_not_there_is_named(self):
        configured = self.configure(f"{HEADERS};no/headers/here")
        self.assertNotEqual(0, configured.returncode)
        self.assertIn(f"no folder {ROOT}/no/headers/here", " ".join(configured.stderr.split()))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
