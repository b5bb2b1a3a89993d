#!/usr/bin/env python3
"""Runs the benchmarks and writes their table into docs/performance.md.

Usage: bench/table.py BENCHMARKS COUNTED_CALLS DOCUMENT

Each time is the median of nine runs, all of them in turns. The table stands in the document between
two marks; what is around it stays.
"""
import datetime
import json
import re
import subprocess
import sys
from pathlib import Path

from instructions import per_call

BEGIN = "<!-- table: bench/table.py -->\n"
END = "<!-- end of table -->\n"
# A level of bench/Benchmarks.cpp, and its heading.
LEVELS = {
    "builder": "builder",
    "encode": "`EncodeBarcodeData`",
    "request": "request 1100",
    "request UTF-8": "request 1100, UTF-8",
}


def medians(benchmarks: str) -> dict[str, dict[str, float]]:
    """Nanoseconds by case and level; libzint is a level too."""
    run = subprocess.run(
        [benchmarks, "--benchmark_repetitions=9", "--benchmark_min_time=0.05",
         "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true",
         "--benchmark_format=json"], stdout=subprocess.PIPE, text=True, check=True)
    times: dict[str, dict[str, float]] = {}
    for row in json.loads(run.stdout)["benchmarks"]:
        if row["aggregate_name"] != "median":
            continue
        level, case = row["run_name"].split("/", 1)
        times.setdefault(case, {})[level] = row["cpu_time"]
    return times


def processor() -> str:
    names = re.findall(r"^model name\s*: (.*)$", Path("/proc/cpuinfo").read_text("utf-8"), re.M)
    return names[0] if names else "unknown processor"


def cell(times: dict[str, float], level: str, program: str, case: str) -> str:
    if level not in times:
        return "|"
    ratio = times["libzint"] / times[level]
    return f"{times[level]:.0f} ns, {ratio:.1f} ×, {per_call(program, case, level)} |"


def main() -> int:
    benchmarks, program, document = sys.argv[1], sys.argv[2], Path(sys.argv[3])
    text = document.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END, 1)[1]

    lines = [f"{datetime.date.today():%-d %B %Y}, {processor()}.", "",
             "| Symbology | libzint | " + " | ".join(LEVELS.values()) + " |",
             "|---|---|" + "---|" * len(LEVELS)]
    for case, times in sorted(medians(benchmarks).items()):
        cells = " ".join(cell(times, level, program, case) for level in LEVELS)
        lines.append(f"| {case} | {times['libzint']:.0f} ns | {cells}")
    table = "\n".join(lines) + "\n"
    print(table)
    document.write_text(before + BEGIN + table + END + after, encoding="utf-8")
    return 0


sys.exit(main())
