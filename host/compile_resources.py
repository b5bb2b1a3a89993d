#!/usr/bin/env python3
"""Compiles TOML into what the host reads without parsing TOML: host/runtime/CompiledResource.h has
its form.

Usage: compile_resources.py SOURCE TARGET

For each file NAME.toml in the folder SOURCE, and in those in it, there is NAME.resource in TARGET
afterwards, and nothing else.
"""
import shutil
import sys
import tomllib
from pathlib import Path


def text(value: str) -> bytes:
    content = value.encode("utf-8")
    return b"%d:%s" % (len(content), content)


def compiled(value) -> bytes:
    if isinstance(value, dict):
        return b"{" + b"".join(text(name) + compiled(value[name]) for name in value) + b"}"
    if isinstance(value, list):
        return b"[" + b"".join(map(compiled, value)) + b"]"
    if isinstance(value, bool):
        return b"t" if value else b"f"
    if isinstance(value, int):
        return b"i%d;" % value
    if isinstance(value, str):
        return text(value)
    raise TypeError(f"a resource holds no {type(value).__name__}")


def main() -> None:
    source, target = map(Path, sys.argv[1:])
    shutil.rmtree(target, ignore_errors=True)
    for path in sorted(source.rglob("*.toml")):
        try:
            content = compiled(tomllib.loads(path.read_text("utf-8")))
        except (tomllib.TOMLDecodeError, UnicodeDecodeError, TypeError) as error:
            sys.exit(f"{path}: {error}")
        result = (target / path.relative_to(source)).with_suffix(".resource")
        result.parent.mkdir(parents=True, exist_ok=True)
        result.write_bytes(content)


main()
