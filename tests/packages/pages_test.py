#!/usr/bin/env python3
"""Compares a program's manual page and completions with what its --help says.

Usage: pages_test.py PAGES-FOLDER PROGRAM…
  The shells are asked as a person asks them, by the key Tab; zsh looks at its file alone.
"""
import gzip
import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

PAGES, PROGRAMS = Path(sys.argv[1]), sys.argv[2:]
os.environ["QT_QPA_PLATFORM"] = "offscreen"
# The shells start anew, with nobody's settings.
os.environ["HOME"] = os.environ["XDG_CONFIG_HOME"] = os.environ["XDG_DATA_HOME"] = str(PAGES / "home")


def output_of(*words, **more) -> str:
    return subprocess.run(words, check=True, capture_output=True, encoding="utf-8", **more).stdout


def options_of(text: str) -> set[str]:
    """All options of a --help: what stands in front of the explanations."""
    starts = re.findall(r"^  (-.*?)(?:  .*)?$", text, re.MULTILINE)
    return {name for start in starts for name in re.findall(r"(?:^|[ ,])(--?[A-Za-z][-\w]*)", start)}


def commands_of(text: str) -> list[str]:
    part = re.search(r"^Subcommands:\n((?:  .*\n?)+)", text, re.MULTILINE)
    return re.findall(r"^  (\S+)", part[1], re.MULTILINE) if part else []


def everything(program: str, words: tuple[str, ...] = ()):
    """Each command of a program with the options and commands that its --help shows."""
    text = output_of(program, *words, "--help")
    commands = commands_of(text)
    yield words, options_of(text), commands
    for command in commands:
        yield from everything(program, (*words, command))


def bash(name: str, words: tuple[str, ...], begun: str) -> set[str]:
    line = [name, *words, begun]
    quoted = " ".join(f"'{word}'" for word in line)
    script = (f"source {PAGES / name}.bash; COMP_WORDS=({quoted}); COMP_CWORD={len(line) - 1}\n"
              f"_{name.replace('-', '_')}; printf '%s\\n' \"${{COMPREPLY[@]}}\"")
    return set(output_of("bash", "--norc", "-c", script).split())


def fish(name: str, words: tuple[str, ...], begun: str) -> set[str]:
    line = " ".join([name, *words, begun])
    listed = output_of("fish", "--no-config", "-c", f"source {PAGES / name}.fish; complete -C '{line}'")
    return {row.split("\t")[0] for row in listed.splitlines()}


class PagesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        """Rows of program, command, its options, those that may stand behind any command, its commands."""
        cls.rows = []
        for program in PROGRAMS:
            found = list(everything(program))
            always = found[0][1] - {"-h", "--help", "--version"}
            cls.rows += [(Path(program).name, words, options, always, commands)
                         for words, options, commands in found]

    def test_help_is_understood(self):
        words = {words for _, words, *_ in self.rows}
        self.assertIn(("prefs", "set"), words)
        self.assertGreater(len(words), 12)
        for name, at, options, *_ in self.rows:
            self.assertIn("--help", options)
            if at == ("batch",):
                self.assertLessEqual({"-o", "--output", "--no-header", "--jobs"}, options)

    def test_manual(self):
        for name, words, options, _, commands in self.rows:
            page = gzip.decompress((PAGES / f"{name}.1.gz").read_bytes()).decode()
            text = re.sub(r"\\f.|\\&", "", page).replace("\\-", "-")
            if words:
                part, = re.findall(rf"^\.SS {' '.join((name, *words))}\n(.*?)(?=^\.S|\Z)", text,
                                   re.MULTILINE | re.DOTALL)
            else:
                part = re.search(r"^\.SH OPTIONS\n(.*?)(?=^\.SH|\Z)", text, re.MULTILINE | re.DOTALL)[1]
            written = {option for row in re.findall(r"^\.TP\n(-.*)", part, re.MULTILINE)
                       for option in re.findall(r"(?:^|, )(--?[A-Za-z][-\w]*)", row)}
            self.assertEqual(written, options - ({"-h", "--help"} if words else set()), (name, words))
            for command in commands:
                self.assertIn(f".SS {' '.join((name, *words, command))}\n", text)

    def test_bash(self):
        for name, words, options, always, commands in self.rows:
            self.assertEqual(bash(name, words, "-"), options | always, (name, words))
            if commands:
                self.assertEqual(bash(name, words, ""), set(commands))

    def test_fish(self):
        for name, words, options, always, commands in self.rows:
            long = {option for option in options | always if option.startswith("--")}
            offered = fish(name, words, "--")
            self.assertEqual(offered | {"--version"}, long | {"--version"}, (name, words))
            if commands:
                self.assertEqual(fish(name, words, ""), set(commands))

    def test_zsh(self):
        for name, words, options, always, commands in self.rows:
            output_of("zsh", "-n", PAGES / f"_{name}")
            text = (PAGES / f"_{name}").read_text(encoding="utf-8")
            function = re.search(rf"^_{'_'.join((name, *words))}\(\) {{\n(.*?)^}}", text, re.MULTILINE | re.DOTALL)[1]
            self.assertEqual(set(re.findall(r"'\*(--?[-\w]+)\[", function)), options | always, (name, words))
            for command in commands:
                self.assertIn(f"{command}:", function)

    def test_types_are_offered(self):
        types = set(re.findall(r"^ +\d+ +(\S+)", output_of(PROGRAMS[0], "types"), re.MULTILINE))
        self.assertEqual(len(types), 27)
        self.assertEqual(bash("linewright", ("encode",), ""), types)
        self.assertEqual(bash("linewright", ("batch", "--type"), ""), types)
        self.assertLessEqual(types, fish("linewright", ("encode",), ""))


unittest.main(argv=[sys.argv[0]], verbosity=2)
