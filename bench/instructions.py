"""Counts the instructions of one call, which a busy machine does not change."""
import re
import subprocess
import tempfile
from pathlib import Path

FEW = 1024
MANY = 3072


def _instructions(program: str, case: str, level: str, calls: int) -> int:
    """The instructions of a whole run of linewright_counted_calls."""
    with tempfile.TemporaryDirectory() as folder:
        command = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={Path(folder) / 'out'}",
                   program, case, level, str(calls)]
        run = subprocess.run(command, capture_output=True, text=True, check=False)
    counted = re.search(r"Collected : (\d+)", run.stderr)
    if run.returncode != 0 or counted is None:
        raise RuntimeError(f"{' '.join(command)}\n{run.stderr}")
    return int(counted.group(1))


def per_call(program: str, case: str, level: str) -> int:
    """The instructions of one call of a case at a level, all rows taken together."""
    few = _instructions(program, case, level, FEW)
    many = _instructions(program, case, level, MANY)
    return round((many - few) / (MANY - FEW))
