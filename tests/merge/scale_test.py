#!/usr/bin/env python3
"""Runs `batch` with several processes, in parts, and ended at any moment; and the recipes of
docs/scale.md. Each must give the bytes of one run that nobody disturbed.

Usage: scale_test.py PROGRAM short|long [TEST…]
"""
import fcntl
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from random_table import ENCODINGS, table

PROGRAM = os.path.abspath(sys.argv[1])
IS_LONG = sys.argv[2] == "long"
RECIPES = Path(__file__).resolve().parents[2] / "docs/scale.md"
MEGABYTE = 1024

# Says how much memory a program had at most, without that of the one that starts it.
MEASURE = """
import os, sys
pid = os.posix_spawn(sys.argv[1], sys.argv[1:], os.environ)
_, status, usage = os.wait4(pid, 0)
print(usage.ru_maxrss)
sys.exit(os.waitstatus_to_exitcode(status))
"""


def is_release():
    return b"__asan_init" not in Path(PROGRAM).read_bytes()


class ProgramTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)
        self.output = self.folder / "out"
        self.output.mkdir()
        (self.folder / "config").mkdir()
        self.rng = random.Random(self.id())

    def words(self, *words):
        return [PROGRAM, *map(str, words), "--config-dir", self.folder / "config", "--app-dir",
                self.folder]

    def run_program(self, *words, **more):
        more = {"stdout": subprocess.PIPE, **more}
        return subprocess.run(self.words(*words), stderr=subprocess.PIPE, timeout=600, **more)

    def write(self, content, name="in.csv"):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def left(self):
        return sorted(path.name for path in self.output.iterdir())


class ScaleTest(ProgramTest):
    def outcome(self, *words, **more):
        """Exit status, what was said, and all files, which are taken away."""
        run = self.run_program("batch", *words, "--rejects", self.output / "rejects", "--summary",
                               self.output / "summary", **more)
        files = {path.name: path.read_bytes() for path in self.output.iterdir()}
        for name in files:
            (self.output / name).unlink()
        return run.returncode, run.stdout, run.stderr, files

    def stated(self, encoding):
        return ["--encoding", encoding] if encoding in ("windows-1252", "mac-roman") else []

    # Processes

    def expect_same(self, source, *words):
        one = self.outcome(source, *words, "-o", self.output / "a")
        piped = self.outcome("-", *words, input=source.read_bytes())
        for jobs in (2, 3):
            # Plain comparisons: nobody reads the difference of megabytes.
            self.assertTrue(
                self.outcome(source, *words, "-o", self.output / "a", "--jobs", jobs) == one,
                (words, jobs))
            self.assertTrue(
                self.outcome("-", *words, "--jobs", jobs, input=source.read_bytes()) == piped,
                (words, jobs))
        return one

    def test_processes_give_what_one_gives(self):
        for _ in range(20 if IS_LONG else 1):
            for encoding in ENCODINGS:
                source = self.write(table(self.rng, encoding, 15000))
                words = [*self.stated(encoding),
                         *self.rng.choice([[], ["--to", "utf-16le"], ["--drop-input"],
                                           ["--add", "text,font,size"], ["--strict"]])]
                one = self.expect_same(source, *words)
                self.assertEqual(one[0], 3, (encoding, words, one[2]))

    def test_processes_end_where_one_ends(self):
        source = self.write(table(self.rng, "utf-8", 15000))
        for count in (1, 2, 200, 450):
            one = self.expect_same(source, "--stop-at", count)
            self.assertEqual(one[0], 2)
            self.assertIn(b"stopped at line", one[2])

    def test_processes_fail_where_one_fails(self):
        good = table(self.rng, "utf-8 with mark", 9000).rstrip(b"\r\n")
        ending = re.search(rb"[\r\n]+", good).group()[:2]
        more = table(self.rng, "utf-8", 3000)
        for bad, sentence in ((b"\xff,ean13,1", b"0xFF, is not UTF-8"), (b'"a,ean13,1', b"closed"),
                              (b"x" * 200_000 + b",ean13,1", b"--max-record")):
            with self.subTest(sentence):
                source = self.write(good + ending + bad + ending + more.replace(b'"', b""))
                one = self.expect_same(source, "--max-record", "150000")
                self.assertEqual(one[0], 2)
                self.assertIn(sentence, one[2])
                self.assertEqual(one[3], {})
                # The row that ends the run comes before the one that cannot be read.
                stopped = self.expect_same(source, "--max-record", "150000", "--stop-at", "3")
                self.assertIn(b"stopped at line", stopped[2])

    def test_a_row_that_the_output_cannot_hold_ends_all(self):
        rows = [f"{i},ean13,{i:012d}" for i in range(20000)]
        rows[12345] = "中,ean13,1"
        source = self.write(("note,type,data\n" + "\n".join(rows)).encode())
        one = self.expect_same(source, "--to", "windows-1252")
        self.assertIn(b"line 12347: the row has a character", one[2])

    def test_all_reasons_are_counted_alike(self):
        rows = [f"t{i % 1500},{i}" for i in range(40000)]
        self.expect_same(self.write(("type,data\n" + "\n".join(rows)).encode()))

    def test_what_is_finished_is_written_before_waiting(self):
        process = subprocess.Popen(self.words("batch", "-", "--jobs", "2"), stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        for line in (b"type,data\n", b"ean13,1\n", b"ean13,2\n"):
            process.stdin.write(line)
            process.stdin.flush()
            self.assertTrue(process.stdout.readline().startswith(line.strip()))
        process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0)

    def test_scanned_rows_are_the_same(self):
        source = self.write(table(self.rng, "utf-8", 120))
        self.expect_same(source, "--verify")

    def test_nonsense_is_refused(self):
        source = self.write(b"type,data\nean13,1\n")
        for words in (["--jobs", "0"], ["--jobs", "-1"], ["--jobs", "257"], ["--jobs", "x"],
                      ["--shard", "0/2"], ["--shard", "3/2"], ["--shard", "1"], ["--shard", "1/"],
                      ["--shard", "1/2x"], ["--shard", "1/65537"], ["--header", "all"],
                      ["--shard", "1/2", "--header", "none"], ["--resume"],
                      ["--resume", "-o", source]):
            run = self.run_program("batch", source, *words)
            self.assertEqual(run.returncode, 2, words)
            self.assertRegex(run.stderr, b"^linewright: .*--(jobs|shard|header|resume)")
            self.assertEqual(run.stdout, b"")

    # Signals and full disks

    def start(self, *words):
        process = subprocess.Popen(self.words("batch", *words), stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        while not self.left() and process.poll() is None:
            time.sleep(0.001)
        return process

    def children(self, process):
        return [int(word) for word in
                Path(f"/proc/{process.pid}/task/{process.pid}/children").read_text().split()]

    def long_source(self):
        rows = "".join(f"{i},ean13,{i:012d}\n" for i in range(300_000))
        return self.write(("note,type,data\n" + rows).encode())

    def test_signals_leave_nothing(self):
        source = self.long_source()
        for number in (signal.SIGINT, signal.SIGTERM):
            process = self.start(source, "-o", self.output / "a", "--jobs", "2")
            workers = self.children(process)
            self.assertEqual(len(workers), 2)
            process.send_signal(number)
            process.communicate(timeout=60)
            self.assertEqual((process.returncode, self.left()), (-number, []))
            for worker in workers:
                while Path(f"/proc/{worker}").exists():
                    time.sleep(0.01)

    def test_a_killed_worker_is_an_error(self):
        process = self.start(self.long_source(), "-o", self.output / "a", "--jobs", "2")
        os.kill(self.children(process)[1], signal.SIGKILL)
        error = process.communicate(timeout=60)[1]
        self.assertEqual(process.returncode, 2)
        self.assertEqual(error, b"linewright: a process of --jobs was ended by signal 9\n")
        self.assertEqual(self.left(), [])

    def test_a_reader_that_goes_ends_it(self):
        process = subprocess.Popen(self.words("batch", self.long_source(), "--jobs", "2"),
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        process.stdout.read(100)
        process.stdout.close()
        process.stderr.read()
        self.assertEqual(process.wait(timeout=60), -signal.SIGPIPE)

    def test_a_full_device_is_told(self):
        source = self.long_source()
        for jobs in (1, 2):
            with open("/dev/full", "wb") as full:
                run = self.run_program("batch", source, "--jobs", jobs, stdout=full)
            self.assertEqual(run.returncode, 2)
            self.assertIn(b"standard output could not be written to its end", run.stderr)
            run = self.run_program("batch", source, "--jobs", jobs, "-o", "/dev/full")
            self.assertEqual(run.returncode, 2)
            self.assertIn(b"/dev/full: could not be written", run.stderr)

    @unittest.skipUnless(IS_LONG and os.geteuid() == 0, "a small disk is for the long form, as root")
    def test_a_full_disk_is_told_and_resumed(self):
        source = self.long_source()
        words = ["batch", source, "-o", self.output / "a"]
        self.run_program(*words)
        whole = (self.output / "a").read_bytes()
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=8M", "tmpfs", self.output], check=True)
        self.addCleanup(subprocess.run, ["umount", self.output])
        for jobs in (1, 2):
            run = self.run_program(*words, "--jobs", jobs)
            self.assertEqual((run.returncode, self.left()), (2, []))
            self.assertIn(b"No space left on device", run.stderr)
        run = self.run_program(*words, "--resume")
        self.assertIn(b"No space left on device", run.stderr)
        self.assertEqual(self.left(), [".a.linewright-draft", ".a.linewright-journal"])
        subprocess.run(["mount", "-o", "remount,size=64M", self.output], check=True)
        self.assertEqual(self.run_program(*words, "--resume").returncode, 0)
        self.assertEqual((self.output / "a").read_bytes(), whole)
        self.assertEqual(self.left(), ["a"])

    @unittest.skipUnless(is_release(), "sanitizers have memory of their own")
    def test_memory_stays(self):
        row = b"Shelf,ean13,400638133393\n"
        rows = 10_000_000 if IS_LONG else 1_000_000
        many = self.write(b"note,type,data\n" + row * rows, "many.csv")
        longest = 20_000_000
        long = self.write(b"note,type,data\n" + row * 9 + b"x" * longest + b",ean13,1\n" + row * 9)
        for source, limit in ((many, 16 * MEGABYTE), (long, 16 * MEGABYTE + 2 * longest // 1024)):
            for jobs in (1, 2):
                run = subprocess.run(
                    [sys.executable, "-I", "-S", "-c", MEASURE,
                     *self.words("batch", source, "-o", self.output / "a", "--jobs", jobs)],
                    stdout=subprocess.PIPE, check=True)
                self.assertLess(int(run.stdout), limit, (source, jobs))

    # Parts

    def part(self, source, which, of, *words):
        outcome = self.outcome(source, *words, "--shard", f"{which}/{of}", "-o", self.output / "a")
        self.assertIn(outcome[0], (0, 3))
        return outcome[3]

    def test_parts_make_the_whole(self):
        for _ in range(20 if IS_LONG else 1):
            for encoding in ENCODINGS:
                source = self.write(table(self.rng, encoding, 300))
                words = [*self.stated(encoding), "--jobs", self.rng.choice([1, 2])]
                whole = self.outcome(source, *words, "-o", self.output / "a")[3]
                for of in (1, 2, 3, 7):
                    parts = [self.part(source, which, of, *words) for which in range(1, of + 1)]
                    for name in ("a", "rejects"):
                        self.assertEqual(b"".join(part[name] for part in parts), whole[name],
                                         (encoding, of, name))
                    rows = sum(json.loads(part["summary"])["rows"] for part in parts)
                    self.assertEqual(rows, json.loads(whole["summary"])["rows"])

    def test_a_cut_is_the_nearest_end(self):
        for encoding in ("utf-8 with mark", "utf-16be", "windows-1252"):
            codec, mark = ENCODINGS[encoding]
            lines = ["type,data"] + ["classic-codabar," + "7" * self.rng.randint(1, 60)
                                     for _ in range(40)]
            ends = [len(mark + "".join(line + "\n" for line in lines[:count]).encode(codec))
                    for count in range(1, len(lines) + 1)]
            source = self.write(mark + "".join(line + "\n" for line in lines).encode(codec))
            for of in (2, 5):
                cuts = [min(ends, key=lambda end, cut=cut: abs(end - cut))
                        for cut in (ends[-1] * which / of for which in range(1, of))]
                counts = [sum(begin < end <= last for end in ends[1:])
                          for begin, last in zip([ends[0], *cuts], [*cuts, ends[-1]])]
                found = [json.loads(self.part(source, which, of, *self.stated(encoding))["summary"])
                         ["rows"] for which in range(1, of + 1)]
                self.assertEqual(found, counts, (encoding, of))

    def test_each_part_can_have_the_header(self):
        source = self.write(table(self.rng, "utf-8 with mark", 60))
        whole = self.part(source, 1, 1)["a"]
        head = re.match(rb"[^\r\n]*(\r\n|\r|\n)", whole).group()
        parts = [self.part(source, which, 3, "--header", "all")["a"] for which in (1, 2, 3)]
        self.assertTrue(all(part.startswith(head) for part in parts))
        self.assertEqual(head + b"".join(part[len(head):] for part in parts), whole)

    def test_more_parts_than_rows_are_empty(self):
        source = self.write(b"type,data\nclassic-codabar,1\n")
        parts = [self.part(source, which, 9)["a"] for which in range(1, 10)]
        self.assertEqual(sum(map(bool, parts)), 2)
        self.assertEqual(b"".join(parts), self.part(source, 1, 1)["a"])

    def test_a_pipe_has_no_parts(self):
        run = subprocess.run(self.words("batch", "-", "--shard", "1/2"), input=b"type,data\n",
                             capture_output=True)
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"--shard needs a file", run.stderr)

    # Going on

    def resumed(self, source, *words):
        return ["batch", source, *words, "-o", self.output / "a", "--rejects",
                self.output / "rejects", "--summary", self.output / "summary", "--resume"]

    def undisturbed(self, source, *words):
        return self.outcome(source, *words, "-o", self.output / "a")

    def interrupted(self, command):
        """Begins, and is killed once the journal speaks of rows."""
        journal = self.output / ".a.linewright-journal"
        while True:
            process = subprocess.Popen(self.words(*command), stderr=subprocess.DEVNULL)
            while process.poll() is None:
                if journal.exists() and journal.read_bytes().count(b"\n") > 1:
                    break
                time.sleep(0.0005)
            process.kill()
            process.wait()
            if journal.exists() and journal.read_bytes().count(b"\n") > 1:
                return journal
            for name in self.left():
                (self.output / name).unlink()

    def expect_end(self, command, whole):
        run = self.run_program(*command)
        files = {name: (self.output / name).read_bytes() for name in self.left()}
        self.assertEqual((run.returncode, run.stdout, run.stderr), whole[:3])
        self.assertEqual([name for name in whole[3] if files.get(name) != whole[3][name]], [])
        self.assertEqual(list(files), sorted(whole[3]))
        for name in files:
            (self.output / name).unlink()

    def test_killed_at_any_moment_it_goes_on(self):
        kills = 200 if IS_LONG else 10
        sources = []
        for encoding in ("utf-8", "utf-16be"):
            source = self.write(table(self.rng, encoding, 200_000), encoding)
            start = time.monotonic()
            whole = self.undisturbed(source)
            sources.append((source, whole, time.monotonic() - start))
        while kills > 0:
            source, whole, seconds = self.rng.choice(sources)
            ended = False
            while kills > 0 and not ended:
                command = self.resumed(source, "--jobs", self.rng.choice([1, 2]))
                process = subprocess.Popen(self.words(*command), stderr=subprocess.DEVNULL)
                time.sleep(self.rng.uniform(0, 0.7 * seconds))
                ended = process.poll() is not None
                process.kill()
                process.wait()
                kills -= 1
            self.expect_end(self.resumed(source), whole)

    def test_what_the_journal_does_not_know_does_not_count(self):
        source = self.write(table(self.rng, "utf-8", 200_000))
        whole = self.undisturbed(source)
        command = self.resumed(source)
        for torn in (b"", b"0123456789abcdef {\"inp", b"\0" * 99, b"0123456789abcdef {}\n"):
            journal = self.interrupted(command)
            with open(journal, "ab") as file:
                file.write(torn)
            for name in ("a", "rejects"):
                with open(self.output / f".{name}.linewright-draft", "ab") as file:
                    file.write(b"not on the disk in time")
            self.expect_end(command, whole)

    def test_a_draft_that_is_short_is_refused(self):
        source = self.write(table(self.rng, "utf-8", 200_000))
        self.interrupted(self.resumed(source))
        draft = self.output / ".a.linewright-draft"
        os.truncate(draft, 1000)
        run = self.run_program(*self.resumed(source))
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"its draft holds less than the journal says", run.stderr)

    def test_a_run_that_was_done_but_for_the_names_is_ended(self):
        source = self.write(table(self.rng, "utf-8", 60_000))
        whole = self.undisturbed(source)
        command = self.resumed(source)
        # The summary cannot be written: the drafts have their names, the journal stays.
        (self.output / "summary").mkdir()
        self.assertEqual(self.run_program(*command).returncode, 2)
        (self.output / "summary").rmdir()
        self.assertEqual(self.left(), [".a.linewright-journal", "a", "rejects"])
        (self.output / "rejects").rename(self.output / ".rejects.linewright-draft")
        self.expect_end(command, whole)

    def test_another_input_or_other_options_are_refused(self):
        content = table(self.rng, "utf-8", 200_000)
        source = self.write(content)
        self.interrupted(self.resumed(source))
        before = {name: (self.output / name).read_bytes() for name in self.left()}
        run = self.run_program(*self.resumed(source, "--strict"))
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"journal: is of a run with other options", run.stderr)
        run = self.run_program("--locale", "deDE", *self.resumed(source))
        self.assertIn(b"journal: is of a run with other options", run.stderr)
        subprocess.run(self.words("prefs", "set", "codabarStart=B"), check=True,
                       capture_output=True)
        run = self.run_program(*self.resumed(source))
        self.assertIn(b"journal: is of a run with other options", run.stderr)
        source.write_bytes(content.replace(b"0", b"1", 1))
        run = self.run_program(*self.resumed(source))
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"an input that was changed since", run.stderr)
        self.assertEqual({name: (self.output / name).read_bytes() for name in self.left()}, before)

    def test_what_is_not_ours_is_not_taken(self):
        source = self.write(table(self.rng, "utf-8", 100))
        precious = self.write(b"mine", "precious")
        for name in (".a.linewright-draft", ".a.linewright-journal", ".rejects.linewright-draft"):
            for lay in (lambda place: place.symlink_to(precious),
                        lambda place: os.link(precious, place), os.mkfifo, Path.mkdir):
                lay(self.output / name)
                run = self.run_program(*self.resumed(source))
                self.assertEqual(run.returncode, 2, name)
                self.assertIn(b"linewright-", run.stderr)
                self.assertEqual(precious.read_bytes(), b"mine")
                self.assertFalse((self.output / "a").exists())
                shutil.rmtree(self.output)
                self.output.mkdir()

    def test_two_runs_do_not_share_a_draft(self):
        source = self.write(table(self.rng, "utf-8", 100))
        with open(self.output / ".a.linewright-journal", "wb") as journal:
            fcntl.flock(journal, fcntl.LOCK_EX)
            run = self.run_program(*self.resumed(source))
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"is being written by another process", run.stderr)

    def test_drafts_survive_signals_and_cleaning(self):
        source = self.write(table(self.rng, "utf-8", 200_000))
        whole = self.undisturbed(source)
        journal = self.output / ".a.linewright-journal"
        process = subprocess.Popen(self.words(*self.resumed(source)), stderr=subprocess.DEVNULL)
        while process.poll() is None and not journal.exists():
            time.sleep(0.0005)
        process.send_signal(signal.SIGTERM)
        process.wait()
        left = self.left()
        self.assertIn(".a.linewright-journal", left)
        for name in left:
            os.utime(self.output / name, (0, 0))
        self.run_program("batch", source, "-o", self.output / "b")
        self.assertEqual(self.left(), sorted([*left, "b"]))
        (self.output / "b").unlink()
        self.expect_end(self.resumed(source), whole)

    def test_a_run_that_stops_leaves_nothing_to_go_on_with(self):
        source = self.write(table(self.rng, "utf-8", 10_000))
        run = self.run_program(*self.resumed(source, "--stop-at", "5"))
        self.assertEqual(run.returncode, 2)
        self.assertEqual(self.left(), ["rejects", "summary"])


class RecipeTest(ProgramTest):
    """The code of docs/scale.md, as it stands there."""

    def setUp(self):
        super().setUp()
        programs = self.folder / "bin"
        programs.mkdir()
        (programs / "linewright").symlink_to(PROGRAM)
        self.environment = {**os.environ, "PATH": f"{programs}:{os.environ['PATH']}",
                            "XDG_CONFIG_HOME": str(self.folder / "config"),
                            "HOME": str(self.folder)}
        (self.folder / ".parallel").mkdir()
        (self.folder / ".parallel/will-cite").touch()

    def expect_recipe(self, heading, place, run, quotes=True):
        section = RECIPES.read_text().split(f"\n## {heading}\n")[1].split("\n## ")[0]
        code = re.findall(r"```\w+\n(.*?)```", section, re.DOTALL)[place]
        labels = table(self.rng, "utf-8", 2000, quotes).replace(b"\r\n", b"\n").replace(b"\r", b"\n")
        (self.output / "labels.csv").write_bytes(labels)
        subprocess.run(["linewright", "batch", "labels.csv", "-o", "whole.csv", "--refused-ok"],
                       cwd=self.output, env=self.environment, check=True, capture_output=True)
        run(code)
        self.assertEqual((self.output / "barcodes.csv").read_bytes(),
                         (self.output / "whole.csv").read_bytes())

    def call(self, *words, **more):
        subprocess.run(words, cwd=self.output, env={**self.environment, **more}, check=True,
                       capture_output=True, timeout=300)

    def test_parallel_takes_parts(self):
        self.expect_recipe("GNU parallel", 0, lambda code: self.call("sh", "-euc", code))

    def test_parallel_takes_pieces_of_a_pipe(self):
        self.expect_recipe("GNU parallel", 1, lambda code: self.call("sh", "-euc", code), False)

    def test_make(self):
        def run(code):
            (self.output / "Makefile").write_text(code)
            self.call("make", "-j", "4")

        self.expect_recipe("make", 0, run)

    def test_slurm(self):
        def run(code):
            (self.output / "array.sh").write_text(code)
            count = int(re.search("--array=1-([0-9]+)", code).group(1))
            for task in range(1, count + 1):
                self.call("sh", "array.sh", SLURM_ARRAY_TASK_ID=str(task),
                          SLURM_ARRAY_TASK_COUNT=str(count))
            parts = [(self.output / f"part-{task}.csv").read_bytes()
                     for task in range(1, count + 1)]
            (self.output / "barcodes.csv").write_bytes(b"".join(parts))

        self.expect_recipe("Slurm", 0, run)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
