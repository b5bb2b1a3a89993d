#!/usr/bin/env python3
"""The plug-in exports exactly its entry and its two C functions.

Usage: ExportsTest.py LIBRARY NM OBJDUMP
"""
import re
import subprocess
import sys

EXPECTED = ["GetPlugIn", "strrev", "strupr"]


def output_of(*command: str) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def exported_symbols(library: str, nm: str, objdump: str) -> list[str]:
    if library.endswith(".dll"):
        table = output_of(objdump, "-p", library).split("[Ordinal/Name Pointer] Table", 1)[1]
        return re.findall(r"^\s*\[\s*\d+\]\s+(\S+)$", table, re.MULTILINE)
    return [line.split()[-1] for line in output_of(nm, "-D", "--defined-only", library).splitlines()]


found = sorted(exported_symbols(*sys.argv[1:]))
if found != EXPECTED:
    sys.exit(f"{sys.argv[1]} exports {found}, expected {EXPECTED}")
