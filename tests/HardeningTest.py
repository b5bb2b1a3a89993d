#!/usr/bin/env python3
"""Reads from built programs and libraries what they bring against their own mistakes.

Usage: HardeningTest.py run-path FILE…    where libraries are looked for
       HardeningTest.py elf FILE…         and all that a release build for Linux has
       HardeningTest.py pe OBJDUMP FILE…  all that a release build for Windows has
"""
import re
import struct
import subprocess
import sys
from pathlib import Path


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def run_path_objections(path):
    dynamic = output_of("readelf", "--wide", "--dynamic", path)
    for name, text in re.findall(r"\((RPATH|RUNPATH)\).*\[(.*)\]", dynamic):
        for folder in text.split(":"):
            if not folder.startswith(("/", "$ORIGIN")):
                yield f"{name} has the element \"{folder}\", which depends on the current folder"


def elf_objections(path):
    yield from run_path_objections(path)
    header = output_of("readelf", "--wide", "--file-header", path)
    segments = output_of("readelf", "--wide", "--program-headers", path)
    dynamic = output_of("readelf", "--wide", "--dynamic", path)
    symbols = output_of("readelf", "--wide", "--dyn-syms", path)
    code = output_of("objdump", "--disassemble", "--no-show-raw-insn", path)
    if not re.search(r"Type:\s+DYN", header):
        yield "no position-independent program"
    if "GNU_RELRO" not in segments:
        yield "no RELRO"
    if not re.search(r"\(FLAGS_1\).*\bNOW\b", dynamic):
        yield "no BIND_NOW"
    if not re.search(r"GNU_STACK.* RW ", segments):
        yield "the stack is executable"
    if "__stack_chk_fail" not in symbols:
        yield "no stack protector"
    if not re.search(r"__(mem|str|sn?printf|vsn?printf|f?printf|fread|read|pread)\w*_chk\b", symbols):
        yield "no fortified function"
    # The C library brings a few of these into every file.
    if code.count("endbr64") < 20:
        yield "no marks for indirect branches"


def pe_objections(path, objdump):
    content = Path(path).read_bytes()
    (start,) = struct.unpack_from("<I", content, 0x3C)
    (symbols,) = struct.unpack_from("<I", content, start + 12)
    (characteristics,) = struct.unpack_from("<H", content, start + 24 + 70)
    for bit, name in ((0x20, "high-entropy addresses"), (0x40, "dynamic base"),
                      (0x100, "data execution prevention")):
        if not characteristics & bit:
            yield f"no {name}"
    if symbols != 0:
        yield "symbols are left in it"
    sections = output_of(objdump, "--section-headers", path)
    if ".reloc" not in sections:
        yield "it cannot be moved: no relocations"
    if ".debug" in sections:
        yield "debug information is left in it"


def main():
    kind, *files = sys.argv[1:]
    if kind == "pe":
        objdump, *files = files
        objections_of = lambda path: pe_objections(path, objdump)
    else:
        objections_of = {"run-path": run_path_objections, "elf": elf_objections}[kind]
    count = 0
    for path in files:
        for objection in objections_of(path):
            count += 1
            print(f"{path}: {objection}")
    print(f"{len(files)} files, {count} to object to")
    return 0 if files and count == 0 else 1


sys.exit(main())
