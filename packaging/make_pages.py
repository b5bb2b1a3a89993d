#!/usr/bin/env python3
"""Makes a program's manual page and its completions for bash, zsh and fish out of what it says of itself.

Usage: make_pages.py PROGRAM FOLDER DATE {--describe | --help}
  writes NAME.1.gz, NAME.bash, _NAME and NAME.fish into FOLDER; the last word says how the program is asked
"""
import gzip
import sys
from pathlib import Path

from completions import bash, fish, zsh
from describe import described, from_help
from manual import manual


def main() -> None:
    asked, folder, date, how = sys.argv[1], Path(sys.argv[2]), sys.argv[3], sys.argv[4]
    program = {"--describe": described, "--help": from_help}[how](asked)
    name = program.command.name
    folder.mkdir(parents=True, exist_ok=True)
    page = gzip.compress(manual(program, date).encode(), compresslevel=9, mtime=0)
    (folder / f"{name}.1.gz").write_bytes(page)
    for file, text in [(f"{name}.bash", bash(program)), (f"_{name}", zsh(program)),
                       (f"{name}.fish", fish(program))]:
        (folder / file).write_text(text, encoding="utf-8")


main()
