#!/usr/bin/env python3
"""Fails where a call, or a row that is merged, takes more instructions than bench/limits.json allows.

Usage: bench/check_limits.py COUNTED_CALLS LINEWRIGHT [LIMITS]
"""
import json
import sys
from pathlib import Path

from instructions import per_call, per_row


def main() -> int:
    calls, command = sys.argv[1:3]
    limits = Path(sys.argv[3]) if len(sys.argv) > 3 else Path(__file__).with_name("limits.json")
    exceeded = 0
    for row in json.loads(limits.read_text(encoding="utf-8")):
        if row["level"] == "row":
            counted = per_row(command, row["case"])
        else:
            counted = per_call(calls, row["case"], row["level"])
        is_exceeded = counted > row["limit"]
        exceeded += is_exceeded
        print(f"{row['case']}, {row['level']}: {counted} instructions, at most {row['limit']}"
              + (": too many" if is_exceeded else ""))
    return 1 if exceeded else 0


sys.exit(main())
