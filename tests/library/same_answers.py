#!/usr/bin/env python3
"""Compares the answers of a door with those of `linewright stream`: the data of all vectors, and
random rows; with 100,000 of these the data is tried as every type.

Usage: same_answers.py STREAM-PROGRAM TESTS-FOLDER ROUNDS ANSWERER…

ANSWERER reads the requests of `stream`, a line each, and writes a line for each with what it knows of
`status`, `recognised`, `hex`, `hint`; its last two arguments are the host's folders. A refused row
may leave out its bytes, or have a `message` alone.
"""
import json
import random
import subprocess
import sys
import tempfile
from pathlib import Path

STREAM, TESTS, ROUNDS, ANSWERER = sys.argv[1], Path(sys.argv[2]), int(sys.argv[3]), sys.argv[4:]

ALPHABETS = ["0123456789"] * 3 + ["0123456789-", "ABCXYZ 0189$+%/.", "(01)~m23~127", "ab é\x7f\t"]


def bytes_of(field) -> bytes:
    if isinstance(field, str):
        return field.encode("latin-1")
    return b"".join(bytes_of(part[0]) * part[1] if isinstance(part, list) else bytes_of(part)
                    for part in field)


def type_names() -> list[str]:
    listed = subprocess.run([STREAM, "types", "--json"], check=True, capture_output=True)
    return [row["type"] for row in json.loads(listed.stdout)]


def vector_requests(types: list[str], kinds: int) -> list[dict]:
    """The data of each row as its own type, with its options; and once as some of the types."""
    rng = random.Random(15417)
    requests, seen = [], set()
    for file in sorted((TESTS / "vectors").glob("*.jsonl")):
        for line in file.read_text(encoding="utf-8").splitlines():
            if not line.startswith("{"):
                continue
            row = json.loads(line)
            if "data" not in row:
                continue
            data = bytes_of(row["data"]).hex()
            options = {name: row[name] for name in ("ratio", "check", "utf8")
                       if isinstance(row.get(name), (int, float))}
            options = {name: int(value) if name == "check" else value
                       for name, value in options.items()}
            if row["call"] in types:
                requests.append({"type": row["call"], "hex": data, **options})
            if data not in seen:
                seen.add(data)
                requests += [{"type": kind, "hex": data} for kind in rng.sample(types, kinds)]
    assert len(seen) > 1000, "the vectors have been found"
    return requests


def random_requests(types: list[str], count: int) -> list[dict]:
    rng = random.Random(15420)
    requests = []
    for _ in range(count):
        length = rng.choice([*range(24), 127, 128, 250, 255, 300])
        data = "".join(rng.choices(rng.choice(ALPHABETS), k=length))
        request = {"type": rng.choice(types)}
        if rng.random() < 0.02:
            request["type"] += "more"
        if rng.random() < 0.02:
            request["type"] = "_NO_SUCH_TYPE_"
        if rng.random() < 0.2:
            request["hex"] = rng.randbytes(length).hex()
            request["utf8"] = rng.random() < 0.3
        else:
            request["data"] = data
        if rng.random() < 0.3:
            request["check"] = rng.choice([0, 1])
        if rng.random() < 0.3:
            request["ratio"] = rng.choice([2.0, 2.5, 3.0])
        requests.append(request)
    return requests


def answers(command: list[str], requests: list[dict]) -> list[dict]:
    lines = "".join(json.dumps(request) + "\n" for request in requests)
    run = subprocess.run(command, input=lines.encode(), capture_output=True)
    assert run.returncode == 0 and run.stderr == b"", (command, run.returncode, run.stderr[-5000:])
    return [json.loads(line) for line in run.stdout.splitlines()]


def differs(wanted: dict, found: dict) -> bool:
    if not wanted["recognised"]:
        return found.get("recognised", False)
    if "message" in found:
        return wanted["status"] == 0 or wanted["hint"] not in ("", found["message"])
    if wanted["status"] != 0 and found.get("hex") in ("", None):
        found = {**found, "hex": wanted["hex"]}
    return any(found.get(name, wanted[name]) != wanted[name]
               for name in ("status", "recognised", "hex", "hint"))


def main() -> int:
    types = type_names()
    assert len(types) == 27
    kinds = len(types) if ROUNDS >= 100_000 else 2
    requests = vector_requests(types, kinds) + random_requests(types, ROUNDS)
    with tempfile.TemporaryDirectory() as folder:
        folders = [f"{folder}/config", f"{folder}/app"]
        for name in folders:
            Path(name).mkdir()
        wanted = answers([STREAM, "stream", "--config-dir", folders[0], "--app-dir", folders[1]],
                         requests)
        found = answers([*ANSWERER, *folders], requests)
    assert len(wanted) == len(found) == len(requests), (len(wanted), len(found), len(requests))
    different = [row for row in zip(requests, wanted, found) if differs(row[1], row[2])]
    for row in different[:10]:
        print("request: {}\n stream: {}\n  found: {}".format(*map(json.dumps, row)))
    made = sum(answer["recognised"] and answer["status"] == 0 for answer in wanted)
    print(f"{len(requests)} requests, {made} made, {len(different)} different")
    assert made > len(requests) // 10 and made < len(requests) * 9 // 10
    return 1 if different else 0


sys.exit(main())
