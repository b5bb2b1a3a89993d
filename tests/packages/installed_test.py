#!/usr/bin/env python3
"""Installs the Debian packages of a folder into a bare root, uses each of them as people do, removes
them, and looks at what is left.

Usage: installed_test.py DIST BUILD-FOLDER
  Where there can be no bare root it says why; that is a failure for root alone.
"""
import os
import re
import shutil
import subprocess
import sys
import time
import unittest
from pathlib import Path

from bare_root import BareRoot, Impossible

DIST, BUILD = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
ROOT = Path(__file__).resolve().parents[2]
NAMES = ["linewright", "fonts-linewright", "linewright-drawing", "linewright-workbench", "liblinewright0",
         "liblinewright-dev", "python3-linewright"]
VERSION = re.search(r"^## (\S+)", (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.MULTILINE)[1]
ENCODED = "Y(0A63IB*NNNTNL(\n"
bare: BareRoot


def package(name: str) -> Path:
    file, = DIST.glob(f"{name}_*.deb")
    return file


def install(*names: str, tools: tuple[str, ...] = ()) -> None:
    began = time.monotonic()
    for name in names:
        shutil.copy(package(name), bare.folder / "test")
    bare.run("apt-get", "install", "-y", "--no-install-recommends",
             *[f"./{package(name).name}" for name in names], *tools)
    print(f"installed {', '.join([*names, *tools])}: {time.monotonic() - began:.0f} s", flush=True)


def documented(language: str) -> str:
    text = (ROOT / "docs/library.md").read_text(encoding="utf-8")
    return re.search(rf"```{language}\n(.*?)```", text, re.DOTALL)[1]


class PackageTest(unittest.TestCase):
    """The tests are run by their names, each in the state that the one before it left."""

    def test_0_each_package_is_there_once(self):
        self.assertEqual(sorted(file.name.split("_")[0] for file in DIST.glob("*.deb")), sorted(NAMES))

    def test_1_lintian_finds_no_error(self):
        done = subprocess.run(["lintian", "--allow-root", "--fail-on", "error", *map(package, NAMES)],
                              capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout)

    def test_2_the_command_needs_no_drawing_libraries(self):
        depends = subprocess.run(["dpkg-deb", "-f", package("linewright"), "Depends"], check=True,
                                 capture_output=True, text=True).stdout
        self.assertEqual(set(re.findall(r"(?:^|, )([\w+-]+)", depends.strip())), {"libc6", "libgcc-s1", "libstdc++6"})

    def test_3_nothing_is_left_of_the_command(self):
        before = bare.files()
        install("linewright", "fonts-linewright", tools=("libstdc++6",))
        self.assertEqual(bare.run("linewright", "encode", "ean13", "400638133393"), ENCODED)
        lost = subprocess.run(["chroot", bare.folder, "linewright", "types"], capture_output=True, text=True)
        self.assertEqual(lost.returncode, 2)
        self.assertEqual(lost.stderr, "linewright: the system does not say where this program lies\n")
        refused = bare.attempt("linewright", "draw", "ean13", "400638133393", "-o", "pen.pdf")
        self.assertEqual(refused.returncode, 2)
        self.assertIn("Drawing.so", refused.stderr)
        self.assertIn("10 fonts in /test/home", bare.run("linewright", "fonts", "install"))
        bare.run("apt-get", "purge", "-y", "linewright", "fonts-linewright")
        self.assertEqual(before, bare.files())

    def test_4_the_sample(self):
        install("linewright", "fonts-linewright", "linewright-drawing", tools=("poppler-utils",))
        shutil.copy(ROOT / "samples/press-run.csv", bare.folder / "test")
        status = bare.attempt("linewright", "batch", "press-run.csv", "-o", "merged.csv", "--verify").returncode
        self.assertEqual(status, 3)  # the sample has rows to be refused
        ours = BUILD / "sample.csv"
        subprocess.run([BUILD / "bin/linewright", "batch", ROOT / "samples/press-run.csv", "-o", ours, "--verify",
                        "--config-dir", BUILD, "--refused-ok"], check=True, capture_output=True)
        self.assertEqual((bare.folder / "test/merged.csv").read_bytes(), ours.read_bytes())
        self.assertIn("scans", ours.read_text(encoding="utf-8"))
        self.assertIn("scans", bare.run("linewright", "draw", "ean13", "400638133393", "-o", "pen.pdf", "--verify"))
        self.assertTrue((bare.folder / "test/pen.pdf").read_bytes().startswith(b"%PDF"))
        self.assertEqual(bare.attempt("linewright", "proof", "press-run.csv", "-o", "proof.pdf").returncode, 3)
        self.assertEqual(bare.attempt("linewright", "document", "press-run.csv", "-o", "labels.pdf").returncode, 3)
        self.assertIn("EAN-13 4006381333931", bare.attempt("linewright", "check", "labels.pdf").stdout)

    def test_5_the_window(self):
        install("linewright-workbench")
        self.assertEqual(bare.run("linewright-workbench", "--version"), f"linewright-workbench {VERSION}\n")
        shown = bare.attempt("timeout", "3", "linewright-workbench")
        self.assertEqual(shown.returncode, 124, shown.stderr)  # it stayed open

    def test_6_the_library(self):
        install("liblinewright0", "liblinewright-dev", tools=("gcc", "libc6-dev", "pkg-config", "sqlite3"))
        (bare.folder / "test/pen.c").write_text("#include <linewright.h>\n#include <stdio.h>\nint main(void) {\n"
                                                + documented("c") + "}\n")
        bare.run("sh", "-c", "cc -std=c11 -Wall -Werror pen.c -o pen $(pkg-config --cflags --libs linewright)")
        self.assertEqual(bare.run("./pen"), ENCODED)
        self.assertEqual(bare.run("sqlite3", "-cmd", ".load linewright_sqlite", ":memory:", documented("sql")), ENCODED)

    def test_7_the_module_for_python(self):
        install("python3-linewright")
        self.assertEqual(bare.run("python3", "-c", documented("python")), ENCODED)

    def test_8_nothing_is_left_of_all(self):
        bare.run("apt-get", "purge", "-y", *NAMES)
        left = [name for name in bare.files() if "linewright" in name.lower()]
        self.assertEqual(left, [])


if __name__ == "__main__":
    folder = BUILD / "bare"
    try:
        began = time.monotonic()
        bare = BareRoot(folder, BUILD / "bare.tar")
        print(f"a bare root: {time.monotonic() - began:.0f} s", flush=True)
    except Impossible as reason:
        print(f"installed_test.py: the packages were not installed: {reason}", file=sys.stderr)
        sys.exit(os.geteuid() == 0)
    try:
        unittest.main(argv=[sys.argv[0]], verbosity=2, failfast=True)
    finally:
        shutil.rmtree(folder)
