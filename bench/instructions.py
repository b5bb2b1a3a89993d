"""Counts the instructions of one call or row, which a busy machine does not change."""
import re
import subprocess
import tempfile
from pathlib import Path

from rows import rows_of, text_of

FEW = 1024
MANY = 3072


def of_run(command: list) -> int:
    """The instructions of a process."""
    with tempfile.TemporaryDirectory() as folder:
        counting = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={Path(folder) / 'out'}",
                    *command]
        run = subprocess.run(counting, capture_output=True, text=True, check=False)
    counted = re.search(r"Collected : (\d+)", run.stderr)
    if run.returncode != 0 or counted is None:
        raise RuntimeError(f"{' '.join(map(str, counting))}\n{run.stderr}")
    return int(counted.group(1))


def per_call(program: str, case: str, level: str) -> int:
    """The instructions of one call of a case at a level, all rows taken together."""
    few, many = (of_run([program, case, level, str(calls)]) for calls in (FEW, MANY))
    return round((many - few) / (MANY - FEW))


def per_row(program: str, file: str) -> int:
    """The instructions of one row that is merged."""
    counts = []
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        for rows in (FEW, MANY):
            (folder / "in.csv").write_bytes(text_of(file, rows_of(file, rows)).encode())
            counts.append(of_run([program, "batch", folder / "in.csv", "-o", "/dev/null",
                                         "--config-dir", folder, "--app-dir", folder]))
    return round((counts[1] - counts[0]) / (MANY - FEW))
