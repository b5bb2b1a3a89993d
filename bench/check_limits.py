#!/usr/bin/env python3
"""Fails where a call takes more instructions than bench/limits.json allows.

Usage: bench/check_limits.py COUNTED_CALLS [LIMITS]
"""
import json
import sys
from pathlib import Path

from instructions import per_call


def main() -> int:
    program = sys.argv[1]
    limits = Path(sys.argv[2]) if len(sys.argv) > 2 else Path(__file__).with_name("limits.json")
    exceeded = 0
    for row in json.loads(limits.read_text(encoding="utf-8")):
        counted = per_call(program, row["case"], row["level"])
        is_exceeded = counted > row["limit"]
        exceeded += is_exceeded
        print(f"{row['case']}, {row['level']}: {counted} instructions, at most {row['limit']}"
              + (": too many" if is_exceeded else ""))
    return 1 if exceeded else 0


sys.exit(main())
