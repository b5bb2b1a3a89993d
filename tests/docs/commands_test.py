#!/usr/bin/env python3
"""Runs what the documents say: in their blocks the lines behind "$ ", which must print the lines below
them. "…" stands for any text, on a line of its own for any lines. A file that the document shows by cat is
made of what it shows. Each document has a folder of its own, with the samples.

Usage: commands_test.py BIN-FOLDER            all blocks but those below <!-- installs -->
       commands_test.py BIN-FOLDER install    those, which install or build, in a copy of the sources
Blocks below <!-- tested by NAME --> are left to that test.
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BIN, INSTALLS = Path(sys.argv[1]).resolve(), sys.argv[2:] == ["install"]
ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = [*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md")]
BLOCK = re.compile(r"^(?:<!-- (installs|tested by \w+) -->\n)?```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
PROGRAM = str(BIN / "linewright")


def blocks(document: Path):
    """The mark, the language and the lines of each block."""
    for match in BLOCK.finditer(document.read_text(encoding="utf-8")):
        yield match[1] or "", match[2], match[3]


def commands(block: str):
    """Each command of a block, and what is said to be printed."""
    for part in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
        command, _, printed = part.partition("\n")
        yield command, printed


def pattern(printed: str) -> str:
    lines = [r"(?:.*\n)*" if line == "…" else re.escape(line).replace("…", ".*") + r"\n"
             for line in printed.splitlines()]
    return "".join(lines) + r"\Z"


def run(command: str, folder: Path) -> str:
    environment = {**os.environ, "PATH": f"{BIN}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}
    if not INSTALLS:
        environment |= {name: str(folder / "home") for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME")}
    return subprocess.run(["sh", "-c", command], cwd=folder, env=environment, timeout=1200, encoding="utf-8",
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout


class DocumentsTest(unittest.TestCase):
    def follow(self, document: Path, folder: Path) -> int:
        done = 0
        for mark, _, block in blocks(document):
            if mark != ("installs" if INSTALLS else ""):
                continue
            for command, printed in commands(block):
                shown = re.fullmatch(r"cat (\S+)", command)
                if shown and not (folder / shown[1]).exists():
                    (folder / shown[1]).write_text(printed, encoding="utf-8")
                with self.subTest(document=document.name, command=command):
                    self.assertRegex(run(command, folder), re.compile(r"\A" + pattern(printed)))
                done += 1
        return done

    def test_sessions(self):
        done = 0
        for document in DOCUMENTS:
            with tempfile.TemporaryDirectory() as name:
                folder = Path(name)
                if INSTALLS:
                    folder = ROOT / "build/packages-again"  # the sources, unpacked
                else:
                    (folder / "samples").symlink_to(ROOT / "samples")
                    (folder / "home").mkdir()
                done += self.follow(document, folder)
        self.assertGreater(done, 3 if INSTALLS else 20)

    @unittest.skipIf(INSTALLS, "needs nothing built")
    def test_no_command_stands_outside(self):
        """A block without "$ " may name our scripts, with words that they know; else it has no commands."""
        usages = {name: (ROOT / name).read_text(encoding="utf-8") for name in ("run", "test", "package")}
        for document in DOCUMENTS:
            for mark, language, block in blocks(document):
                if mark.startswith("tested by "):
                    with self.subTest(document=document.name, test=mark):
                        self.assertTrue(any(f"NAME {mark.split()[-1]}\n" in file.read_text(encoding="utf-8")
                                            for file in (ROOT / "tests").rglob("CMakeLists.txt")))
                if "$ " in block or language or mark:
                    continue
                for script, word in re.findall(r"^\./(\w+) *([-\w]*)", block, re.MULTILINE):
                    with self.subTest(document=document.name, command=f"./{script} {word}"):
                        self.assertIn(f"./{script} {word}".strip(), usages[script])
                for line in re.findall(r"^(?:sudo|apt|cmake|scripts/|build/).*", block, re.MULTILINE):
                    self.fail(f"{document.name}: {line} is run by nothing")

    @unittest.skipIf(INSTALLS, "needs nothing built")
    def test_links_lead_somewhere(self):
        for document in DOCUMENTS:
            text = BLOCK.sub("", document.read_text(encoding="utf-8"))
            for target, anchor in re.findall(r"\]\(([^)#:]*)(?:#([^)]*))?\)", text):
                with self.subTest(document=document.name, link=f"{target}#{anchor}"):
                    file = document.parent / target if target else document
                    self.assertTrue(file.exists())
                    if anchor:
                        titles = re.findall(r"^#+ (.*)$", file.read_text(encoding="utf-8"), re.MULTILINE)
                        anchors = {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-") for title in titles}
                        self.assertIn(anchor, anchors)

    @unittest.skipIf(INSTALLS, "needs nothing built")
    def test_types_of_the_readme(self):
        def answer(*words):
            return json.loads(subprocess.run([PROGRAM, *words, "--json"], check=True, capture_output=True).stdout)

        sizes = {row["type"]: f"{row['size']:.2f} pt" for row in answer("fonts", "list")}
        expected = {(row["shortName"], row["type"], row["font"] or "any text font", sizes.get(row["shortName"], "–"))
                    for row in answer("types")}
        text = (ROOT / "README.md").read_text(encoding="utf-8")
        rows = re.findall(r"^\| [^|]+ \| `([^`|]+)` \| `([^`|]+)` \| ([^|]+) \| ([^|]+) \|$", text, re.MULTILINE)
        self.assertEqual(len(rows), len(expected))
        self.assertEqual(set(rows), expected)


unittest.main(argv=[sys.argv[0]], verbosity=2)
