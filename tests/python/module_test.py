#!/usr/bin/env python3
"""The module for Python as people import it, from the build tree and from a wheel.

Usage: module_test.py MODULE-FOLDER BUILD-FOLDER
"""
import doctest
import os
import pickle
import shutil
import subprocess
import sys
import tempfile
import threading
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
HERE, BUILD = Path(__file__).resolve().parent, Path(sys.argv[2]).resolve()
SOURCES = HERE.parent.parent / "python"
CONFIG = tempfile.TemporaryDirectory()
os.environ["XDG_CONFIG_HOME"] = CONFIG.name
sys.path.insert(0, sys.argv[1])

import numpy
import pandas

import linewright
from linewright import Reason

EAN13 = "Y(0A63IB*NNNTNL("


class ModuleTest(unittest.TestCase):
    def test_examples_of_the_documentation(self):
        results = doctest.testmod(linewright)
        self.assertEqual(results.failed, 0)
        self.assertGreater(results.attempted, 14)

    def test_a_barcode_is_a_str(self):
        pen = linewright.encode("EAN-13", "400638133393")
        self.assertIsInstance(pen, str)
        self.assertEqual((pen, pen.font_bytes, pen.type), (EAN13, EAN13.encode(), "_QVT_BARCODE_EAN13_"))
        self.assertEqual(linewright.encode("classic-code128b", "AB").font_bytes,
                         bytes.fromhex("884142868a"))
        self.assertEqual(linewright.encode("classic-code128b", b"AB"), "\u02c6AB\u2020\u0160")

    def test_a_notebook_shows_it(self):
        pen = linewright.encode("code39", "A", check=True, ratio=3)
        self.assertEqual(pen._repr_svg_(), linewright.draw("code39", "A", "svg", check=True,
                                                           ratio=3).decode())
        self.assertIn("<svg", pen._repr_svg_())
        self.assertTrue(pen._repr_png_().startswith(b"\x89PNG"))
        self.assertIsNone(linewright.encode("i2of5-text", "12")._repr_svg_())

    def test_a_refusal_says_where(self):
        with self.assertRaises(linewright.Refused) as caught:
            linewright.encode("ean8", "1é€x")
        refused = pickle.loads(pickle.dumps(caught.exception))
        self.assertEqual((str(refused), refused.hint, refused.position, refused.status, refused.reason),
                         ("Only the digits 0 to 9", "Only the digits 0 to 9", 1, -6301, Reason.BAD_DATA))
        with self.assertRaises(linewright.Refused) as caught:
            linewright.encode("ean13", "4006381333937", strict=True)
        self.assertEqual(caught.exception.reason, Reason.NOT_STRICT)
        self.assertEqual(len(caught.exception.warnings), 1)
        self.assertIsNone(caught.exception.position)
        with self.assertRaisesRegex(linewright.Refused, "ean13") as caught:
            linewright.encode("ean31", "1")
        self.assertEqual(caught.exception.reason, Reason.UNKNOWN_TYPE)

    def test_mistakes_of_a_program(self):
        with self.assertRaisesRegex(ValueError, "check is not a number from 0 to 255"):
            linewright.encode("code39", "A", check=300)
        with self.assertRaisesRegex(TypeError, "there is no option 'hight'"):
            linewright.draw("code39", "A", hight="1mm")
        with self.assertRaisesRegex(ValueError, "height is no length"):
            linewright.draw("code39", "A", height="tall")
        with self.assertRaisesRegex(RuntimeError, "the bars can be"):
            linewright.draw("ean13", "1", height="1000x")
        with self.assertRaisesRegex(TypeError, "row 2 is no str"):
            linewright.encode_many("ean13", ["1", None, 2])

    def test_many_of_each_kind(self):
        data = ["400638133393", None, "x", "4006381333937"]
        texts, statuses, reasons = [EAN13, None, None, EAN13], [0, 0, -6301, 0], [0, 255, 3, 1]
        self.assertEqual(linewright.encode_many("ean13", data), (texts, statuses, reasons))
        self.assertEqual(linewright.encode_many("ean13", data, warn=False).reasons, [0, 255, 3, 0])
        strict = linewright.encode_many("ean13", data, strict=True)
        self.assertEqual((strict.texts[3], strict.reasons[3]), (None, Reason.NOT_STRICT))
        series = pandas.Series(data, index=list("abcd"), name="sku")
        made = linewright.encode_many("ean13", series)
        pandas.testing.assert_series_equal(
            made.texts, pandas.Series(texts, index=list("abcd"), name="sku", dtype=object))
        self.assertEqual(made.reasons.tolist(), reasons)
        self.assertEqual(str(made.statuses.dtype), "int32")
        for kind in ("string", object):
            again = linewright.encode_many("ean13", pandas.Series(data, dtype=kind))
            self.assertEqual(again.texts.tolist(), texts)
        array = linewright.encode_many("ean13", numpy.array(["400638133393", "x"]))
        self.assertIsInstance(array.texts, numpy.ndarray)
        self.assertEqual(array.texts.tolist(), [EAN13, None])
        self.assertEqual(linewright.encode_many("ean13", []), ([], [], []))
        self.assertEqual(linewright.encode_many("ean13", (d for d in ["400638133393"])).texts, [EAN13])

    def test_other_threads_run_while_many_are_made(self):
        ticks, running = [0], [True]

        def tick():
            while running[0]:
                ticks[0] += 1

        thread = threading.Thread(target=tick)
        thread.start()
        rows = ["400638133393"] * 400_000
        options = linewright._options(warn=True)
        before = ticks[0]
        linewright._library.encode_many("ean13", rows, options)
        running[0] = False
        thread.join()
        self.assertGreater(ticks[0] - before, 1000)

    def test_threads_take_turns(self):
        mistakes = []

        def work(number):
            for round in range(200):
                data = str(1_000_000 + 1000 * number + round)
                if not linewright.encode("ean8", data).human_readable.startswith(data):
                    mistakes.append(data)
                if linewright.encode_many("ean8", [data, "x"]).reasons != [0, 3]:
                    mistakes.append(data)

        threads = [threading.Thread(target=work, args=[number]) for number in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(mistakes, [])

    def test_types_are_stated(self):
        program = BUILD / "typed.py"
        program.write_text("import linewright\n"
                           "pen: str = linewright.encode('ean13', '1').human_readable\n"
                           "wrong: int = linewright.encode('ean13', '1').font\n")
        with tempfile.TemporaryDirectory() as cache:
            def checked(*words):
                return subprocess.run(["/usr/bin/python3", "-m", "mypy", "--cache-dir", cache, *map(str, words)],
                                      capture_output=True, text=True,
                                      env={**os.environ, "MYPYPATH": str(SOURCES)})
            own = checked("--strict", SOURCES / "linewright")
            self.assertEqual(own.returncode, 0, own.stdout + own.stderr)
            others = checked(program)
        self.assertIn("typed.py:3: error: Incompatible types", others.stdout)
        self.assertIn("Found 1 error", others.stdout)

    def test_a_wheel_holds_all_that_it_needs(self):
        with tempfile.TemporaryDirectory(dir=BUILD) as name:
            folder = Path(name)
            shutil.copytree(SOURCES, folder / "python")
            environment = {**os.environ, "LINEWRIGHT_BUILD": str(BUILD)}
            built = subprocess.run(
                ["/usr/bin/python3", "-m", "build", "--wheel", "--no-isolation", "--outdir", folder,
                 folder / "python"], capture_output=True, text=True, env=environment)
            self.assertEqual(built.returncode, 0, built.stdout + built.stderr)
            wheel = next(folder.glob("linewright-*.whl"))
            self.assertNotIn("-any.whl", wheel.name)
            shutil.unpack_archive(wheel, folder / "site", "zip")
            program = ("import linewright, os; print(linewright.__file__); "
                       "print(linewright.encode('ean13', '400638133393')); "
                       "print(linewright.draw('ean13', '1', 'svg')[:5]); "
                       "print(*{line.split()[-1] for line in open('/proc/self/maps') if 'inewright' in line})")
            ran = subprocess.run(["/usr/bin/python3", "-c", program], capture_output=True, text=True,
                                 env={**os.environ, "PYTHONPATH": str(folder / "site")}, cwd=folder)
            self.assertEqual(ran.returncode, 0, ran.stderr)
            lines = ran.stdout.splitlines()
            self.assertEqual(lines[1:3], [EAN13, "b'<svg '"])
            for file in [lines[0], *lines[3].split()]:
                self.assertTrue(file.startswith(str(folder / "site")), file)


unittest.main(argv=[sys.argv[0]], verbosity=2)
