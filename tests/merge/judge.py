#!/usr/bin/env python3
"""Merges random files and judges what comes out by Python's codecs and csv: what nobody changes is as
it was to the byte, and the results are those of `linewright stream`.

Usage: judge.py PROGRAM FILES ROWS

So many files of so many rows in all, of all encodings, delimiters, quotings and line ends. The seed
is fixed.
"""
import codecs
import csv
import io
import json
import random
import string
import subprocess
import sys
import tempfile
from pathlib import Path

PROGRAM = sys.argv[1]
MARKS = {"utf-8": codecs.BOM_UTF8, "utf-16le": codecs.BOM_UTF16_LE, "utf-16be": codecs.BOM_UTF16_BE}
CODECS = {"windows-1252": "cp1252", "mac-roman": "mac_roman"}
# Python and the system do not agree on these two.
MAC_ROMAN = "".join(set(bytes(range(128, 256)).decode("mac_roman")) - set("\u2206\uf8ff"))
WINDOWS = "".join(set(bytes(range(128, 256)).decode("cp1252", "ignore")))
ABOVE_ASCII = {"windows-1252": WINDOWS, "mac-roman": MAC_ROMAN}
UNICODE = "äöüßÉ€œ中文字日本語😀\u2028\u00ad\ufeff"
RESULTS = ["barcode", "status", "message", "warning"]


class File:
    """A random file, how it is merged, and what is wanted of it."""

    def __init__(self, rng, types, rows):
        self.encoding = rng.choice([*MARKS, *MARKS, *CODECS])
        self.codec = CODECS.get(self.encoding, self.encoding)
        self.is_marked = self.encoding in MARKS and rng.random() < 0.5
        self.to = rng.choice([None, None, None, "utf-8", "utf-16le", "utf-16be"])
        self.delimiter = rng.choice(",;\t|")
        self.ending = rng.choice(["\n", "\r\n", "\r"])
        self.quoting = rng.choice(["few", "few", "all", "some"])
        self.prefix = rng.choice(["", "", "my ", "é"]) if self.encoding != "mac-roman" else "x"
        self.rng = rng
        self.letters = string.ascii_letters + string.digits + " '.:-" + ABOVE_ASCII.get(
            self.encoding, UNICODE)
        self.names = ["type", "data", *(f"column {i}" for i in range(rng.randint(0, 4)))]
        if rng.random() < 0.3:
            self.names += ["check", "ratio"]
        if self.prefix and rng.random() < 0.5:
            self.names += ["barcode", "status"]
        rng.shuffle(self.names)
        self.rows = [self.row(types) for _ in range(rows)]

    def note(self):
        text = "".join(self.rng.choices(self.letters, k=self.rng.randint(0, 14)))
        if self.rng.random() < 0.1:
            text += self.rng.choice(['"', '""', "\n", "\r\n", "\r", self.delimiter, "a\0b"])
        return text

    def row(self, types):
        """The values of a row by their names, or None for a blank line."""
        if len(self.names) > 1 and self.rng.random() < 0.01:
            return None
        kind = self.rng.choice(types)
        alphabet = self.rng.choice([string.digits] * 5 + ["ABCxyz019 -$%+/.", self.letters])
        lengths = [12, 13, 7, 8, 11, 20, 31, self.rng.randint(0, 40)]
        data = "".join(self.rng.choices(alphabet, k=self.rng.choice(lengths)))
        known = {"type": kind, "data": data, "check": self.rng.choice(["", "0", "1"]),
                 "ratio": self.rng.choice(["", "2", "3"])}
        return {name: known.get(name, self.note()) if name in known else self.note()
                for name in self.names}

    def quoted(self, value):
        """A value as a field, sometimes as nobody needs it."""
        must = any(mark in value for mark in (self.delimiter, '"', "\r", "\n"))
        may = self.quoting == "all" or (self.quoting == "some" and self.rng.random() < 0.3)
        return '"' + value.replace('"', '""') + '"' if must or may else value

    def raw_rows(self):
        """The fields of each row as they stand in the file; a few rows are too short or too long."""
        yield [self.quoted(name) for name in self.names]
        for row in self.rows:
            if row is None:
                yield []
                continue
            fields = [self.quoted(value) for value in row.values()]
            chance = self.rng.random()
            if chance < 0.01 and len(fields) > 2:
                fields.pop()
            elif chance < 0.02:
                fields += ["surplus", self.quoted("a\nb")]
            yield fields

    def merge(self, folder):
        """Runs the program; its output as rows of fields as they stand."""
        raw = list(self.raw_rows())
        if self.rng.random() < 0.3 and raw[-1]:
            last_ending = ""
        else:
            last_ending = self.ending
        text = self.ending.join(self.delimiter.join(fields) for fields in raw) + last_ending
        mark = MARKS[self.encoding] if self.is_marked else b""
        source, target = folder / "in.csv", folder / "out.csv"
        source.write_bytes(mark + text.encode(self.codec))
        words = ["--delimiter", self.delimiter] if self.delimiter == "|" else []
        if len(self.names) > 2 and self.delimiter != "|" and self.rng.random() < 0.5:
            words = ["--delimiter", self.delimiter]
        if self.encoding in CODECS or self.is_hidden(source.read_bytes()):
            words += ["--encoding", self.encoding]
        if self.to:
            words += ["--to", self.to]
        if self.prefix:
            words += ["--prefix", self.prefix]
        if self.rng.random() < 0.3:
            output = pipe_through(words, source.read_bytes(), folder)
        else:
            run = subprocess.run([PROGRAM, "batch", source, "-o", target, *words, *places(folder)],
                                 capture_output=True, check=False)
            assert run.returncode in (0, 3), run.stderr
            output = target.read_bytes()
        self.judge(raw, last_ending, output)

    def is_hidden(self, content):
        """Whether UTF-16 without a mark has zeros at odd and at even places."""
        zeros = {place % 2 for place, byte in enumerate(content[:4096]) if byte == 0}
        return "16" in self.encoding and not self.is_marked and len(zeros) == 2

    def judge(self, raw, last_ending, output):
        to = self.to or self.encoding
        mark = MARKS[to] if (self.is_marked if to == self.encoding else "16" in to) else b""
        assert output.startswith(mark), (output[:9], mark)
        text = output[len(mark):].decode(CODECS.get(to, to))
        parsed = csv.reader(io.StringIO(text, newline=""), delimiter=self.delimiter)
        self.merged = list(parsed)
        width = len(self.names)
        wanted = []
        for fields, values in zip(raw, self.merged, strict=True):
            if not fields:
                assert not values, values
                wanted.append("")
                continue
            results = [field(value, self.delimiter) for value in values[width:width + 4]]
            filled = fields[:width] + [""] * (width - len(fields))
            wanted.append(self.delimiter.join(filled + results + fields[width:]))
        wanted_text = self.ending.join(wanted) + last_ending
        if text != wanted_text:
            place = next((i for i, (a, b) in enumerate(zip(text, wanted_text)) if a != b), "end")
            raise AssertionError(f"{vars(self)!r:.2000}\ndifferent at {place}")
        assert self.merged[0][width:] == [self.prefix + name for name in RESULTS]

    def requests(self, type_names):
        """What `stream` is asked for each whole row, and what the merge has for it."""
        width = len(self.names)
        for row, values in zip(self.rows, self.merged[1:], strict=True):
            if row is None or len(values) != width + 4:
                continue
            if values[width + 2].startswith("the row has "):
                continue
            yield {"type": type_names[row["type"]], "data": row["data"],
                   "check": int(row.get("check") or "0"),
                   "ratio": float(row.get("ratio") or "2")}, values[width:width + 4], \
                CODECS.get(self.to or self.encoding, self.to or self.encoding)


def field(value, delimiter):
    needs = value.startswith(" ") or value.endswith(" ") or any(
        mark in value for mark in (delimiter, '"', "\r", "\n"))
    return '"' + value.replace('"', '""') + '"' if needs else value


def can_hold(text, codec):
    try:
        text.encode(codec)
    except UnicodeEncodeError:
        return False
    return True


def places(folder):
    return ["--config-dir", folder / "config", "--app-dir", folder / "app"]


def pipe_through(words, source, folder):
    run = subprocess.run([PROGRAM, "batch", "-", *words, *places(folder)], input=source,
                         capture_output=True, check=False)
    assert run.returncode in (0, 3), run.stderr
    return run.stdout


def compare_with_stream(asked, folder):
    requests = "".join(json.dumps(request) + "\n" for request, _, _ in asked)
    run = subprocess.run([PROGRAM, "stream", *places(folder)], input=requests.encode(),
                         capture_output=True, check=True)
    made = 0
    for (request, results, codec), line in zip(asked, run.stdout.splitlines(), strict=True):
        answer = json.loads(line)
        is_made = answer["status"] == 0
        wanted = [answer["text"] if is_made else "", str(answer["status"])]
        if is_made and not can_hold(answer["text"], codec):
            wanted = ["", ""]
        assert results[:2] == wanted, (request, results, answer)
        made += is_made
    return made


def main() -> int:
    files, rows = int(sys.argv[2]), int(sys.argv[3])
    rng = random.Random(4180)
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        for part in ("config", "app"):
            (folder / part).mkdir()
        listed = subprocess.run([PROGRAM, "types", "--json", *places(folder)], capture_output=True,
                                check=True)
        type_names = {row["shortName"]: row["type"] for row in json.loads(listed.stdout)}
        judged = made = 0
        asked = []
        for number in range(files):
            chosen = rng.sample(sorted(type_names), rng.randint(1, 5))
            file = File(rng, chosen, rows * (number + 1) // files - rows * number // files)
            file.merge(folder)
            asked += file.requests(type_names)
            judged += len(file.rows)
            if len(asked) > 50_000 or number + 1 == files:
                made += compare_with_stream(asked, folder)
                asked = []
    print(f"{files} files, {judged} rows, {made} encoded: nothing to object to")
    assert made > judged // 10, "some rows are encoded"
    return 0


sys.exit(main())
