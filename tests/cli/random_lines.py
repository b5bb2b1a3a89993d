#!/usr/bin/env python3
"""Sends random lines through `linewright stream`: one answer a line, whatever the line.

Usage: random_lines.py PROGRAM COUNT

The lines are requests with random members, requests that were damaged, and plain rubbish. The seed
is fixed. In a build with sanitizers any finding ends the program and so fails this test.
"""
import json
import random
import subprocess
import sys
import tempfile
from pathlib import Path

TYPES = """
    _BARCODE_POSTNET_ _BARCODE_USPS_IM_ _BARCODE_CODABAR_ _BARCODE_CODE128A_ _BARCODE_CODE128B_
    _BARCODE_CODE128C_ _BARCODE_CODE39_ _BARCODE_CODE39ASCII_ _BARCODE_EAN13_ _BARCODE_I2OF5_
    _BARCODE_I2OF5TEXT_ _BARCODE_JAN13_ _BARCODE_MSIPLESSEY_ _BARCODE_UPCA_ _BARCODE_UPCE_
    _QVT_BARCODE_CODABAR_ _QVT_BARCODE_CODE39_ _QVT_BARCODE_CODE128_ _BARCODE_EAN8_
    _QVT_BARCODE_EAN13_ _QVT_BARCODE_I2OF5_TEXT_ _QVT_BARCODE_I2OF5_ _QVT_BARCODE_JAN13_
    _QVT_BARCODE_MSI_ _QVT_BARCODE_UPCA_ _QVT_BARCODE_UPCE_ _QVT_BARCODE_POSTNET_ ean13
""".split() + ["", "x" * 255, "x" * 256]
ALPHABETS = ["0123456789", "0123456789-", "ABCxyz 0189$+%/.", "(01)~m23~127", "aé€😀\x00\x7f \t"]
OPTIONAL = {
    "check": [0, 1, 255, 256, -1, True, False, None, 0.5, "1"],
    "ratio": [2, 2.0, 2.5, 3, 3.0, 0, -1, 1e308, 2.75, None, "2"],
    "utf8": [True, False, 1],
    "extra": [1],
}


def data(rng: random.Random) -> str:
    length = rng.choice([*range(32), 127, 128, 250, 251, 255, 256, 300, 70000])
    if length > 1000 and rng.random() < 0.9:
        length = 12
    return "".join(rng.choices(rng.choice(ALPHABETS), k=length))


def request(rng: random.Random) -> dict:
    members = {}
    kind = rng.choice(TYPES)
    if rng.random() < 0.1:
        members["typeHex"] = kind.encode().hex()
    if "typeHex" not in members or rng.random() < 0.02:
        members["type"] = kind
    if rng.random() < 0.3:
        members["hex"] = rng.randbytes(rng.choice([0, 1, 7, 12, 13, 20, 255, 256])).hex()
        if rng.random() < 0.3:
            members["utf8"] = rng.choice(OPTIONAL["utf8"])
    if "hex" not in members or rng.random() < 0.02:
        members["data"] = data(rng)
    for name in ("check", "ratio"):
        if rng.random() < 0.4:
            members[name] = rng.choice(OPTIONAL[name])
    if rng.random() < 0.01:
        members["extra"] = 1
    return members


def damaged(rng: random.Random, line: bytes) -> bytes:
    changed = bytearray(line)
    for _ in range(rng.randint(1, 4)):
        place = rng.randrange(len(changed) + 1)
        match rng.randrange(3):
            case 0:
                changed[place:place] = rng.randbytes(rng.randint(1, 3))
            case 1:
                del changed[place:place + rng.randint(1, 9)]
            case 2:
                changed[place:place + 1] = rng.randbytes(1)
    return bytes(changed)


def rubbish(rng: random.Random) -> bytes:
    match rng.randrange(5):
        case 0:
            return rng.randbytes(rng.randint(0, 300))
        case 1:
            return rng.choice([b"[", b"{", b'{"data":', b'"', b"\\", b"\x00"]) * rng.randint(1, 2000)
        case 2:
            return b""
        case 3:
            return str(rng.uniform(-1e9, 1e9)).encode()
        case _:
            return rng.choice([b"null", b"[]", b"{}", b'""', b"true", b"\xef\xbb\xbf{}"])


def line(rng: random.Random) -> bytes:
    kind = rng.random()
    if kind > 0.9:
        made = rubbish(rng)
    else:
        made = json.dumps(request(rng), ensure_ascii=rng.random() < 0.5).encode()
        if kind > 0.75:
            made = damaged(rng, made)
    return made.replace(b"\n", b" ")


def check(number: int, answer: bytes) -> str:
    """What kind of answer this is; an assertion fails for one that is none."""
    members = json.loads(answer)
    if "error" in members:
        assert list(members) == ["error"], answer
        assert members["error"].startswith(f"line {number}: "), answer
        return "refused lines"
    assert list(members) == ["status", "recognised", "hex", "text", "hint"], answer
    size = len(bytes.fromhex(members["hex"]))
    assert size == len(members["text"]), answer
    if not members["recognised"]:
        assert members["status"] == 0 and members["hint"] == "", answer
        return "unknown types"
    return "font strings" if members["status"] == 0 else "refused data"


def main() -> int:
    program, count = sys.argv[1], int(sys.argv[2])
    rng = random.Random(15417)
    lines = [line(rng) for _ in range(count)]
    lines[count // 2] = b"[" * 100_000
    lines[count // 2 + 1] = b'{"data":' * 100_000
    with tempfile.TemporaryDirectory() as folder:
        for name in ("config", "app"):
            (Path(folder) / name).mkdir()
        run = subprocess.run(
            [program, "stream", "--config-dir", f"{folder}/config", "--app-dir", f"{folder}/app"],
            input=b"\n".join(lines) + b"\n", capture_output=True)
    sys.stderr.buffer.write(run.stderr[-10_000:])
    assert run.stderr == b"", "nothing is said on standard error"
    assert run.returncode == 2, f"exit status {run.returncode}"
    answers = run.stdout.split(b"\n")
    assert answers.pop() == b"", "the last answer ends its line"
    assert len(answers) == count, f"{len(answers)} answers to {count} lines"
    kinds: dict[str, int] = {}
    for number, answer in enumerate(answers, 1):
        kind = check(number, answer)
        kinds[kind] = kinds.get(kind, 0) + 1
    print(kinds)
    assert len(kinds) == 4 and min(kinds.values()) > count // 100, "every kind of answer occurs"
    return 0


sys.exit(main())
