"""Counts instructions, which a busy machine does not change."""
import re
import subprocess
import tempfile
from pathlib import Path

FEW = 1024
MANY = 3072


def of_run(command: list[str]) -> int:
    """The instructions of a process."""
    with tempfile.TemporaryDirectory() as folder:
        command = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={Path(folder) / 'out'}",
                   *command]
        run = subprocess.run(command, capture_output=True, text=True, check=False)
    counted = re.search(r"Collected : (\d+)", run.stderr)
    if run.returncode != 0 or counted is None:
        raise RuntimeError(f"{' '.join(command)}\n{run.stderr}")
    return int(counted.group(1))


def per_call(program: str, case: str, level: str) -> int:
    """The instructions of one call of a case at a level, all rows taken together."""
    few = of_run([program, case, level, str(FEW)])
    many = of_run([program, case, level, str(MANY)])
    return round((many - few) / (MANY - FEW))
