"""Runs whole commands and measures the CPU time, the instructions and the memory of the process."""
import os
import random
import resource
import statistics
import subprocess
import tempfile
from collections.abc import Callable
from pathlib import Path

from instructions import of_run

REPETITIONS = 9
ROW_COUNT = 2000
EAN_13 = "590123412345"
HEADING = "| Command | CPU | rows a second | instructions | libraries | memory |"


def mixed_rows() -> str:
    """Rows of the symbologies that scanners read, the same in every run."""
    source = random.Random(1100)

    def text(length: int, alphabet: str = "0123456789") -> str:
        return "".join(source.choices(alphabet, k=length))

    makers: list[Callable[[], str]] = [
        lambda: "ean13," + text(12),
        lambda: "ean8," + text(7),
        lambda: "upca," + text(11),
        lambda: "upca," + text(16),
        lambda: "code128," + text(6, "ABCDEFGHabc-") + text(6),
        lambda: "code39," + text(8, "ABCDEFGH0123456789-"),
        lambda: "codabar," + text(10),
        lambda: "i2of5," + text(12),
    ]
    rows = [makers[row % len(makers)]() for row in range(ROW_COUNT)]
    return "\n".join(["type,data", *rows, ""])


def milliseconds(command: list[str]) -> float:
    """The CPU time of a process and its children."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return 1000 * (after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime)


def megabytes(command: list[str]) -> str:
    """The most memory that a process held; "" for less than this one's, which the system counts
    with it."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise RuntimeError(f"{' '.join(command)} ends with status {process.returncode}")
    own = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    return f"{usage.ru_maxrss / 1024:.0f} MB" if usage.ru_maxrss > own else ""


def libraries(command: list[str]) -> int:
    """How many libraries a process loads, those that it opens itself included."""
    run = subprocess.run(command, env={**os.environ, "LD_DEBUG": "files"}, check=True,
                         stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    return run.stderr.count("calling init:")


def line(name: str, command: list[str], rows: int = 0) -> str:
    cpu = statistics.median(milliseconds(command) for _ in range(REPETITIONS))
    speed = f"{1000 * rows / cpu:.0f}" if rows else ""
    counted = "" if rows else f"{of_run(command) / 1e6:.1f} million"
    return (f"| {name} | {cpu:.1f} ms | {speed} | {counted} | {libraries(command)} "
            f"| {megabytes(command)} |")


def table(linewright: str, files: list[Path]) -> list[str]:
    """`files` are the tables of rows that are converted."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        (folder / "app").mkdir()
        rows = folder / "mixed.csv"
        rows.write_text(mixed_rows(), encoding="utf-8")

        def ours(*words: str) -> list[str]:
            return [linewright, *words, "--config-dir", name, "--app-dir", str(folder / "app")]

        lines = [HEADING, "|---|---|---|---|---|---|",
                 line("`encode`, an EAN-13", ours("encode", "ean13", EAN_13)),
                 line("`draw`, an EAN-13 as SVG",
                      ours("draw", "ean13", EAN_13, "-o", str(folder / "a.svg"))),
                 line("zint, the same", ["zint", "-b", "13", "-d", EAN_13, "-o",
                                         str(folder / "zint.svg")])]
        for file in [rows, *files]:
            count = len(file.read_text(encoding="utf-8").splitlines()) - 1
            label = f"`batch`, {file.stem}, {count} rows"
            lines.append(line(label, ours("batch", str(file), "-o", str(folder / "out")), count))
        lines += [line(f"`batch --verify`, {ROW_COUNT} mixed rows",
                       ours("batch", str(rows), "-o", str(folder / "out"), "--verify"), ROW_COUNT),
                  line(f"`proof`, {ROW_COUNT} mixed rows",
                       ours("proof", str(rows), "-o", str(folder / "proof.pdf")), ROW_COUNT)]
    return lines
