#!/usr/bin/env python3
"""Runs the program where others are at work beside it, and where the machine does not obey.

Usage: robustness_test.py PROGRAM [TEST…]
"""
import os
import signal
import stat
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM = os.path.abspath(sys.argv[1])
PREFERENCES = Path("Corvane/Config/QVT Linewright.prf")
DATABASE = "Application Database"
FONTS = Path(PROGRAM).parent.parent / "share/linewright/fonts"
NOBODY = 65534


def rows(data, count):
    return "type,data\n" + f"classic-codabar,{data}\n" * count


class RobustnessTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        self.config = self.folder / "config"
        self.config.mkdir()
        self.output = self.folder / "out"
        self.output.mkdir()

    def arguments(self, *words):
        return [PROGRAM, *words, "--config-dir", self.config, "--app-dir", self.folder]

    def start(self, *words, **more):
        more = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **more}
        return subprocess.Popen(self.arguments(*words), **more)

    def run_program(self, *words, **more):
        if "stdout" not in more:
            more["stdout"] = subprocess.PIPE
        return subprocess.run(self.arguments(*words), stderr=subprocess.PIPE, timeout=60, **more)

    def check(self, *words, **more):
        run = self.run_program(*words, **more)
        self.assertEqual(run.returncode, 0, run.stderr)
        return run

    def write(self, name, text):
        path = self.folder / name
        path.write_text(text)
        return path

    def left(self):
        return sorted(path.name for path in self.output.iterdir())

    def start_writing(self, source):
        """A batch that has begun to write."""
        process = self.start("batch", source, "-o", self.output / "a.csv")
        while not self.left():
            self.assertIsNone(process.poll())
            time.sleep(0.002)
        return process

    def source(self):
        return self.write("in.csv", rows("1", 1))

    def preference(self, name):
        for line in self.check("prefs").stdout.decode().splitlines():
            if line.split()[:1] == [name]:
                return line.split()[1]
        self.fail(name)

    # Outputs

    def test_two_batches_into_one_name_are_each_whole(self):
        target = self.output / "result.csv"
        sources = [self.write(f"{data}.csv", rows(data, 3000)) for data in (1, 22)]
        whole = []
        for source in sources:
            self.check("batch", source, "-o", target)
            whole.append(target.read_bytes())
        for _ in range(3):
            running = [self.start("batch", source, "-o", target) for source in sources]
            for process in running:
                error = process.communicate(timeout=60)[1]
                self.assertEqual(process.returncode, 0, error)
            self.assertIn(target.read_bytes(), whole)
            self.assertEqual(self.left(), ["result.csv"])

    def test_eight_drawings_into_one_name_all_work(self):
        target = self.output / "a.svg"
        running = [self.start("draw", "code39", "A", "-o", target) for _ in range(8)]
        for process in running:
            error = process.communicate(timeout=60)[1]
            self.assertEqual(process.returncode, 0, error)
        self.assertEqual(self.left(), ["a.svg"])

    def test_a_link_laid_as_a_draft_is_not_followed(self):
        precious = self.write("precious", "mine")
        (self.output / "a.csv.part").symlink_to(precious)
        self.check("batch", self.source(), "-o", self.output / "a.csv")
        self.assertEqual(precious.read_text(), "mine")
        self.assertEqual(self.left(), ["a.csv", "a.csv.part"])

    def test_the_mode_of_a_file_stays_and_a_read_only_one_is_refused(self):
        target = self.output / "a.csv"
        target.write_text("old")
        target.chmod(0o600)
        self.check("batch", self.source(), "-o", target)
        self.assertEqual(stat.S_IMODE(target.stat().st_mode), 0o600)
        target.write_text("old")
        target.chmod(0o444)
        run = self.run_program("batch", self.source(), "-o", target)
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"a.csv: is read-only\n", run.stderr)
        self.assertEqual(target.read_text(), "old")

    def test_the_longest_name_works(self):
        for length in (252, 255):
            self.check("batch", self.source(), "-o", self.output / ("n" * length))
        self.assertEqual(self.left(), ["n" * 252, "n" * 255])

    def test_the_missing_target_of_a_link_is_made_where_it_points(self):
        (self.output / "link").symlink_to("made.csv")
        self.check("batch", self.source(), "-o", self.output / "link")
        self.assertTrue((self.output / "link").is_symlink())
        self.assertEqual(self.left(), ["link", "made.csv"])

    def test_a_name_of_nothing_is_a_mistake(self):
        for words in (("batch", self.source()), ("proof", self.source()), ("draw", "code39", "A")):
            run = self.run_program(*words, "-o", "")
            self.assertEqual(run.returncode, 2)
            self.assertIn(b"--output: names no file", run.stderr)

    def test_a_signal_leaves_neither_draft_nor_output(self):
        source = self.write("long.csv", rows("1", 100_000))
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            process = self.start_writing(source)
            process.send_signal(number)
            process.communicate(timeout=60)
            self.assertEqual(process.returncode, -number)
            self.assertEqual(self.left(), [])

    def test_a_draft_of_a_killed_process_goes_after_an_hour(self):
        source = self.write("long.csv", rows("1", 100_000))
        process = self.start_writing(source)
        process.kill()
        process.communicate(timeout=60)
        self.check("batch", self.source(), "-o", self.output / "b.csv")
        (draft,) = (name for name in self.left() if name != "b.csv")
        os.utime(self.output / draft, (0, 0))
        self.check("batch", self.source(), "-o", self.output / "b.csv")
        self.assertEqual(self.left(), ["b.csv"])

    def test_help_that_cannot_be_written_is_told(self):
        for words in (("--help",), ("--version",), ("batch", "--help")):
            with open("/dev/full", "wb") as full:
                run = self.run_program(*words, stdout=full)
            self.assertEqual(run.returncode, 2, words)
            self.assertIn(b"standard output", run.stderr)

    def test_a_header_has_at_most_16384_columns(self):
        for extra, status in ((16382, 0), (16383, 2)):
            source = self.write("wide.csv", "type,data" + ",x" * extra + "\nclassic-codabar,1\n")
            run = self.run_program("batch", source, "-o", self.output / "a.csv")
            self.assertEqual(run.returncode, 3 if status == 0 else 2, run.stderr)
        self.assertIn(b"wide.csv: the header has 16385 columns; at most 16384 can be", run.stderr)

    def test_texts_of_errors_are_bounded(self):
        source = self.write("in.csv", "type,data,check\ncode39,A," + "é" * 1_000_000 + "\n")
        run = self.run_program("batch", source, "-o", self.output / "a.csv")
        self.assertEqual(run.returncode, 3)
        message = (self.output / "a.csv").read_text().splitlines()[1].split(",", 5)[5]
        self.assertTrue(message.startswith('"the check ""éé'), message[:40])
        self.assertTrue(message.endswith('éé"" is not yes, no or a whole number from 0 to 255",'))
        self.assertLess(len(message), 2100)

    # Fonts

    def test_fonts_are_installed_again_and_again_from_a_read_only_tree(self):
        fonts = self.folder / "fonts"
        fonts.mkdir()
        for font in FONTS.glob("*.ttf"):
            (fonts / font.name).write_bytes(font.read_bytes())
            (fonts / font.name).chmod(0o444)
        environment = {**os.environ, "XDG_DATA_HOME": str(self.folder / "data")}
        installed = self.folder / "data/fonts/linewright"
        previous = os.umask(0o022)
        self.addCleanup(os.umask, previous)
        self.check("fonts", "install", "--fonts", fonts, env=environment)
        precious = self.write("precious", "mine")
        one = next(installed.iterdir())
        one.unlink()
        one.symlink_to(precious)
        self.check("fonts", "install", "--fonts", fonts, env=environment)
        self.assertEqual(precious.read_text(), "mine")
        for font in fonts.iterdir():
            copy = installed / font.name
            self.assertFalse(copy.is_symlink())
            self.assertEqual(copy.read_bytes(), font.read_bytes())
            self.assertEqual(stat.S_IMODE(copy.stat().st_mode), 0o644)

    # Settings

    def test_a_pipe_in_place_of_settings_is_told_and_not_waited_for(self):
        for name in (PREFERENCES, DATABASE):
            pipe = self.config / name
            pipe.parent.mkdir(parents=True, exist_ok=True)
            os.mkfifo(pipe)
            run = self.check("encode", "code39", "A")
            self.assertEqual(run.stderr.count(b"cannot be read"), 1, run.stderr)
            self.assertIn(bytes(pipe) + b" cannot be read: it is no file", run.stderr)
            self.assertTrue(pipe.is_fifo())
            if name == PREFERENCES:
                run = self.run_program("prefs", "set", "codabarStart=B")
                self.assertEqual(run.returncode, 2)
                self.assertTrue(pipe.is_fifo())
            pipe.unlink()

    def test_a_folder_without_permission_gives_the_defaults(self):
        self.check("prefs", "set", "codabarStart=B")
        anybody = {"user": NOBODY} if os.geteuid() == 0 else {}
        if anybody:
            os.chmod(self.folder, 0o755)
            os.chown(self.folder, NOBODY, NOBODY)
        self.config.chmod(0)
        run = self.check("encode", "code39", "A", cwd="/", **anybody)
        self.assertEqual(run.stderr.splitlines(), [
            b"linewright-host: %s cannot be read: Permission denied; it is left as it is"
            % bytes(self.config)])
        run = self.run_program("prefs", "set", "codabarStart=C", cwd="/", **anybody)
        self.assertEqual(run.returncode, 2)
        self.config.chmod(0o755)
        self.assertEqual(self.preference("codabarStart"), "B")

    def test_a_file_without_permission_is_left_as_it_is(self):
        self.check("prefs", "set", "codabarStart=B")
        anybody = {"user": NOBODY} if os.geteuid() == 0 else {}
        if anybody:
            for place in (self.folder, *self.config.rglob("*"), self.config):
                os.chown(place, NOBODY, NOBODY)
        file = self.config / PREFERENCES
        before = file.read_bytes()
        file.chmod(0)
        run = self.check("encode", "code39", "A", cwd="/", **anybody)
        self.assertEqual(run.stderr.count(b"cannot be read: Permission denied"), 1, run.stderr)
        file.chmod(0o600)
        self.assertEqual(file.read_bytes(), before)

    def test_a_start_leaves_preferences_alone_that_stay_the_same(self):
        self.check("prefs")
        file = self.config / PREFERENCES
        os.utime(file, (1, 1))
        before = file.stat()
        self.check("encode", "code39", "A")
        after = file.stat()
        self.assertEqual((before.st_ino, before.st_mtime), (after.st_ino, after.st_mtime))

    def test_the_missing_target_of_linked_preferences_is_made(self):
        (self.config / PREFERENCES.parent).mkdir(parents=True)
        (self.config / PREFERENCES).symlink_to(self.folder / "elsewhere.prf")
        self.check("prefs", "set", "codabarStart=B")
        self.assertEqual((self.folder / "elsewhere.prf").stat().st_size, 324)
        self.assertEqual(self.preference("codabarStart"), "B")

    def test_a_folder_whose_name_is_not_utf8_works(self):
        self.config = Path(os.fsdecode(bytes(self.folder) + b"/caf\xe9"))
        self.check("prefs", "set", "codabarStart=B")
        self.assertEqual((self.config / PREFERENCES).stat().st_size, 324)
        self.assertEqual(self.preference("codabarStart"), "B")

    def test_what_is_set_is_not_undone_by_commands_beside_it(self):
        for turn in range(60):
            start = "ABCD"[turn % 4]
            beside = [self.start("encode", "code39", "A") for _ in range(2)]
            self.check("prefs", "set", f"codabarStart={start}")
            for process in beside:
                process.communicate(timeout=60)
                self.assertEqual(process.returncode, 0)
            record = (self.config / PREFERENCES).read_bytes()
            self.assertEqual(record[318:319].decode(), start, f"turn {turn}")

    def test_two_that_set_something_else_both_count(self):
        for turn in range(10):
            start, stop = "ABCD"[turn % 4], "DCBA"[turn % 4]
            setting = [self.start("prefs", "set", f"codabarStart={start}"),
                       self.start("prefs", "set", f"codabarStop={stop}")]
            for process in setting:
                process.communicate(timeout=60)
                self.assertEqual(process.returncode, 0)
            record = (self.config / PREFERENCES).read_bytes()
            self.assertEqual((record[318:319] + record[320:321]).decode(), start + stop)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
