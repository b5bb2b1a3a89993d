#!/usr/bin/env python3
"""Answers the requests of `linewright stream` by the extension for SQLite, as far as SQL can ask them:
answers.py EXTENSION CONFIG APP. Data that holds a NUL goes as a blob, and what SQL cannot ask gets no answer."""
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

EXTENSION, CONFIG = Path(sys.argv[1]).resolve(), sys.argv[2]


def literal(request: dict) -> str:
    if "hex" in request and not request.get("utf8"):
        return f"x'{request['hex']}'"
    if "hex" in request:
        return f"CAST(x'{request['hex']}' AS TEXT)"
    return f"CAST(x'{request['data'].encode().hex()}' AS TEXT)"


def bytes_of(text: str) -> str:
    """The hexadecimal digits of font text."""
    def byte(character: str) -> int:
        code = ord(character)
        if 0x2400 <= code < 0x2420:
            return code - 0x2400
        if code == 0x2421:
            return 127
        if 0xF000 <= code < 0xF100:
            return code - 0xF000
        return character.encode("cp1252")[0]
    return bytes(map(byte, text)).hex()


def main() -> None:
    requests = [json.loads(line) for line in sys.stdin]
    asked = [row for row, request in enumerate(requests)
             if not request.get("check") and request.get("ratio", 2.0) == 2.0]
    script = "".join(
        f"SELECT hex(barcode('{requests[row]['type']}', {literal(requests[row])})), "
        f"barcode_error('{requests[row]['type']}', {literal(requests[row])});\n" for row in asked)
    with tempfile.NamedTemporaryFile("w", suffix=".sql") as file:
        file.write(script)
        file.flush()
        # The host's folders are the user's.
        run = subprocess.run(["sqlite3", "-batch", "-bail", "-nullvalue", "NULL", "-separator", "\t",
                              "-cmd", f".load {EXTENSION.with_suffix('')}", ":memory:", f".read {file.name}"],
                             capture_output=True, text=True, env={**os.environ, "XDG_CONFIG_HOME": CONFIG})
    assert run.returncode == 0 and run.stderr == "", run.stderr[-2000:]
    answers = run.stdout.splitlines()
    assert len(answers) == len(asked), (len(answers), len(asked))
    found: list[dict] = [{} for _ in requests]
    for row, line in zip(asked, answers):
        code, error = line.split("\t")
        if error == "NULL":
            found[row] = {"status": 0, "recognised": True, "hint": "",
                          "hex": bytes_of(bytes.fromhex(code).decode())}
        else:
            found[row] = {"message": error, "recognised": not error.startswith("there is no type")}
    print("\n".join(map(json.dumps, found)))


main()
