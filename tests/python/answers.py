#!/usr/bin/env python3
"""Answers the requests of `linewright stream` by the module for Python: answers.py MODULE-FOLDER CONFIG APP"""
import json
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, sys.argv[1])
import linewright
from linewright import Reason


def answer(request: dict) -> dict:
    data = request["data"] if "data" in request else bytes.fromhex(request["hex"])
    if request.get("utf8"):
        try:
            data = data.decode()
        except UnicodeDecodeError:
            return {}  # Python has no such text
    options = {name: request[name] for name in ("check", "ratio") if name in request}
    try:
        made = linewright.encode(request["type"], data, **options)
    except linewright.Refused as refused:
        return {"status": refused.status, "recognised": refused.reason != Reason.UNKNOWN_TYPE,
                "hint": refused.hint}
    return {"status": 0, "recognised": True, "hex": made.font_bytes.hex(), "hint": ""}


linewright.open(config_dir=sys.argv[2], app_dir=sys.argv[3])
for line in sys.stdin:
    print(json.dumps(answer(json.loads(line))))
