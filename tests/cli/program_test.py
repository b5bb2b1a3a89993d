#!/usr/bin/env python3
"""Runs the program as people do: as a process, from where it lies.

Usage: program_test.py PROGRAM CMAKE BUILD-FOLDER
"""
import json
import os
import select
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, CMAKE, BUILD = os.path.abspath(sys.argv[1]), sys.argv[2], os.path.abspath(sys.argv[3])
REQUEST = b'{"type":"_BARCODE_CODE128B_","data":"AB"}\n'
PREFERENCES = "Corvane/Config/QVT Linewright.prf"


class ProgramTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        (self.folder / "app").mkdir()
        self.config = self.folder / "config"
        self.config.mkdir()
        self.environment = {**os.environ, "XDG_CONFIG_HOME": str(self.config),
                            "HOME": str(self.folder)}

    def arguments(self, *words, program=PROGRAM):
        return [program, *words, "--config-dir", str(self.config),
                "--app-dir", str(self.folder / "app")]

    def run_program(self, *words, program=PROGRAM, **more):
        return subprocess.run(self.arguments(*words, program=program), capture_output=True,
                              timeout=60, env=self.environment, **more)

    def test_finds_the_plug_in_from_any_folder(self):
        run = self.run_program("encode", "classic-code128b", "AB", "--hex", cwd=self.folder)
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, b"884142868a\n", b""))

    def test_finds_the_plug_in_through_a_link(self):
        link = self.folder / "lw"
        link.symlink_to(PROGRAM)
        run = self.run_program("encode", "classic-code128b", "AB", "--hex", program=str(link))
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, b"884142868a\n", b""))

    def test_raw_bytes_are_exact(self):
        run = self.run_program("encode", "classic-code128b", "AB", "--raw")
        self.assertEqual(run.stdout, bytes.fromhex("884142868a"))
        run = self.run_program("encode", "classic-code128a", "-", "--bytes", "--hex",
                               input=b"\x00\r\n\xff"[:3])
        # 64, 77 and 74 in set A: 103 + 64 + 2*77 + 3*74 = 543, 543 modulo 103 = 28, byte 60.
        self.assertEqual(run.stdout, b"87000d0a3c8a\n")

    def test_the_users_own_folder_is_the_default(self):
        run = subprocess.run([PROGRAM, "prefs"], capture_output=True, env=self.environment)
        self.assertEqual(run.returncode, 0, run.stderr)
        path = Path(run.stdout.decode().splitlines()[0])
        self.assertEqual(path, self.config / "Linewright Host" / PREFERENCES)
        self.assertEqual(path.stat().st_size, 324)

    def test_an_old_preferences_file_is_reset_with_a_warning(self):
        file = self.config / PREFERENCES
        file.parent.mkdir(parents=True)
        record = bytearray(324)
        record[0:11] = b"\x0aLinewright"
        record[32] = 4
        file.write_bytes(record)
        run = self.run_program("prefs")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(len(run.stderr.splitlines()), 1, run.stderr)
        self.assertIn(b"code39CheckMode   mod43", run.stdout)
        self.assertEqual(file.read_bytes()[32], 5)
        self.assertEqual(self.run_program("prefs").stderr, b"")

    def test_preferences_that_cannot_be_written_are_named(self):
        (self.config / "Corvane").write_text("in the way")
        run = self.run_program("prefs", "set", "codabarStart=B")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertIn(b"QVT Linewright.prf", run.stderr)

    def test_stream_answers_while_its_input_is_open(self):
        with subprocess.Popen(self.arguments("stream"), stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, env=self.environment) as process:
            for half in (REQUEST, REQUEST + REQUEST[:10], REQUEST[10:]):
                process.stdin.write(half)
                process.stdin.flush()
                readable, _, _ = select.select([process.stdout], [], [], 30)
                self.assertTrue(readable, "no answer came")
                answer = json.loads(os.read(process.stdout.fileno(), 4096))
                self.assertEqual(answer["hex"], "884142868a")
            process.stdin.close()
            self.assertEqual(process.stdout.read(), b"")
            self.assertEqual(process.wait(30), 0)

    def test_a_batch_writes_what_is_finished_before_it_waits(self):
        with subprocess.Popen(self.arguments("batch", "-"), stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, env=self.environment) as process:
            for piece, answer in (
                    (b"type,data\n", b"type,data,barcode,status,message,warning\n"),
                    (b"msi,1\nmsi,", b"msi,1,EBBBEBB,0,,\n"),
                    (b"2\r\n\"msi\",\"", b"msi,2,EBBEBBB,0,,\r\n"),
                    (b"3\"\n", b'"msi","3",EBBEEBB,0,,\n')):
                process.stdin.write(piece)
                process.stdin.flush()
                readable, _, _ = select.select([process.stdout], [], [], 30)
                self.assertTrue(readable, "no row came")
                self.assertEqual(os.read(process.stdout.fileno(), 4096), answer)
            process.stdin.close()
            self.assertEqual(process.wait(30), 0)

    def test_a_merge_needs_no_more_memory_for_more_rows(self):
        source = self.folder / "in.csv"
        peaks = []
        for rows in (20_000, 200_000):
            source.write_text("type,data\n" + "msi,1\n" * rows)
            process = subprocess.Popen(self.arguments("batch", str(source), "-o", "/dev/null"),
                                       stderr=subprocess.DEVNULL, env=self.environment)
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
            self.assertEqual(process.returncode, 0)
            peaks.append(usage.ru_maxrss)
        self.assertLess(peaks[1], peaks[0] * 1.2)

    def test_a_device_is_written_and_not_replaced(self):
        source = self.folder / "in.csv"
        source.write_text("type,data\nclassic-codabar,1\n")
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        with subprocess.Popen(["cat", str(pipe)], stdout=subprocess.PIPE) as reader:
            run = self.run_program("batch", str(source), "-o", str(pipe))
            self.assertEqual(run.returncode, 0, run.stderr)
            self.assertTrue(reader.stdout.read().endswith(b"\nclassic-codabar,1,A1D,0,,\n"))
        self.assertTrue(pipe.is_fifo())

    def test_output_that_cannot_be_written_is_told(self):
        with open("/dev/full", "wb") as full:
            run = subprocess.run(self.arguments("types"), stdout=full, stderr=subprocess.PIPE,
                                 env=self.environment)
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"standard output", run.stderr)
        source = self.folder / "in.csv"
        source.write_text("type,data\n" + "msi,1\n" * 50_000)
        for words in (("batch", str(source)), ("batch", str(source), "-o", "/dev/full")):
            with open("/dev/full", "wb") as full:
                run = subprocess.run(self.arguments(*words), stdout=full, stderr=subprocess.PIPE,
                                     env=self.environment)
            self.assertEqual(run.returncode, 2)
            self.assertRegex(run.stderr, rb"^linewright: (standard output|/dev/full:) could not "
                                         rb"be written to its end")

    def install(self):
        prefix = self.folder / "an installation"
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", str(prefix)], check=True,
                       stdout=subprocess.DEVNULL)
        return prefix

    def test_without_what_draws_it_says_so_and_writes_nothing(self):
        prefix = self.install()
        for module in prefix.rglob("Drawing.so"):
            module.unlink()
        table = self.folder / "table.csv"
        table.write_text("type,data\nean8,1234567\n")
        result = self.folder / "result"
        for words in (["draw", "ean8", "1234567", "-o", str(result), "--format", "svg"],
                      ["verify", "ean8", "1234567"],
                      ["proof", str(table), "-o", str(result)],
                      ["batch", str(table), "-o", str(result), "--verify"],
                      ["batch", str(table), "-o", "-", "--verify"]):
            run = self.run_program(*words, program=str(prefix / "bin" / "linewright"))
            self.assertEqual((run.returncode, run.stdout), (2, b""), words)
            self.assertIn(b"what draws barcodes and reads them back cannot be loaded", run.stderr)
            self.assertIn(b"Drawing.so", run.stderr)
            self.assertFalse(result.exists(), words)
        run = self.run_program("batch", str(table), "-o", str(result),
                               program=str(prefix / "bin" / "linewright"))
        self.assertEqual(run.returncode, 0, run.stderr)

    def test_what_does_not_draw_loads_nothing_for_it(self):
        self.environment["LD_DEBUG"] = "files"
        for words in (["encode", "ean8", "1234567"], ["types"], ["stream"]):
            run = self.run_program(*words, input=b"")
            self.assertEqual(run.returncode, 0, run.stderr)
            self.assertIn(b"Linewright.so", run.stderr)
            for name in (b"Drawing", b"cairo", b"freetype", b"zbar", b"ZXing", b"qpdf", b"tiff"):
                self.assertNotIn(name, run.stderr, words)

    def test_it_works_from_where_it_is_installed(self):
        prefix = self.install()
        run = self.run_program("encode", "classic-code128b", "AB", "--hex", cwd=self.folder,
                               program=str(prefix / "bin" / "linewright"))
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, b"884142868a\n", b""))
        run = self.run_program("types", "--json", program=str(prefix / "bin" / "linewright"))
        texts = {row["displayText"] for row in json.loads(run.stdout)}
        self.assertEqual(len(texts), 27)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
