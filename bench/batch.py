#!/usr/bin/env python3
"""Times `linewright batch` beside `zint --batch --dump` and writes a table into docs/performance.md.

Usage: bench/batch.py LINEWRIGHT [DOCUMENT]

What counts is the processor's time; each is the least of five runs, which take turns. zint gets the
data alone, a symbology at a time. The table stands in the document between two marks.
"""
import resource
import subprocess
import sys
import tempfile
from pathlib import Path

from instructions import per_row
from rows import FILES, rows_of, text_of

BEGIN = "<!-- table: bench/batch.py -->\n"
END = "<!-- end of table -->\n"
ROUNDS = 5
# Enough that starting the program does not count.
ROWS = 1_000_000
OTHER_ROWS = 100_000


def processor_time(command: list, output: Path) -> float:
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    with output.open("wb") as file:
        subprocess.run(command, stdout=file, stderr=subprocess.DEVNULL, check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def measured(program: str, name: str, folder: Path) -> tuple[float, float]:
    """Rows per second of the processor: ours and zint's."""
    rows = rows_of(name, OTHER_ROWS)
    source = folder / "in.csv"
    header, lines = text_of(name, rows).split("\n", 1)
    source.write_bytes((header + "\n" + lines * (ROWS // OTHER_ROWS)).encode())
    by_symbology: dict[str, list[str]] = {}
    for row in rows:
        by_symbology.setdefault(row.symbology, []).append(row.other)
    for symbology, data in by_symbology.items():
        (folder / symbology).write_text("\n".join(data) + "\n", encoding="ascii")
    ours, others = [], []
    for _ in range(ROUNDS):
        ours.append(processor_time([program, "batch", source, "--config-dir", folder, "--app-dir",
                                    folder], folder / "out"))
        others.append(sum(processor_time(["zint", "-b", symbology, "--batch", "-i",
                                          folder / symbology, "--dump"], folder / "out")
                          for symbology in by_symbology))
    return ROWS / min(ours), OTHER_ROWS / min(others)


def main() -> int:
    program = sys.argv[1]
    lines = ["| Rows | `linewright batch` | `zint --batch --dump` | | instructions a row |",
             "|---|---|---|---|---|"]
    with tempfile.TemporaryDirectory() as name:
        for file in FILES:
            ours, others = measured(program, file, Path(name))
            lines.append(f"| {file} | {ours / 1e6:.2f} M/s | {others / 1e6:.2f} M/s "
                         f"| {ours / others:.1f} × | {per_row(program, file)} |")
    table = "\n".join(lines) + "\n"
    print(table)
    if len(sys.argv) > 2:
        document = Path(sys.argv[2])
        before, rest = document.read_text(encoding="utf-8").split(BEGIN)
        after = rest.split(END, 1)[1]
        document.write_text(before + BEGIN + table + END + after, encoding="utf-8")
    return 0


sys.exit(main())
