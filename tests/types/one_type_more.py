#!/usr/bin/python3
"""A type more in the table: every file that says what it does for each type must fail to compile, and
the compiler must name the type.

Usage: one_type_more.py ROOT COMPILER
"""
import subprocess
import sys
import tempfile
from pathlib import Path

# Which files have a word to say on each type.
FILES = ["meaning/TypeRules.cpp", "plugin/Encoders.cpp"]
NAME = "kTelepen"


def compile_errors(root: Path, compiler: str, includes: list[Path], file: str) -> str:
    folders = [f"-I{folder}" for folder in [*includes, root, root / "host/sdk"]]
    result = subprocess.run([compiler, "-std=c++20", "-fsyntax-only", "-Wall", "-Werror", *folders,
                             str(root / file)], capture_output=True, text=True)
    return result.stderr if result.returncode else ""


def with_another_type(root: Path, folder: Path) -> None:
    (folder / "types").mkdir()
    codes = (root / "types/TypeCode.h").read_text()
    assert "    kCodabar = 20," in codes
    (folder / "types/TypeCode.h").write_text(
        codes.replace("    kCodabar = 20,", f"    {NAME} = 19,\n    kCodabar = 20,"))
    rows = (root / "types/BarcodeTypes.h").read_text()
    end = "    // clang-format on\n};"
    assert end in rows
    (folder / "types/BarcodeTypes.h").write_text(rows.replace(
        end, f'''BarcodeType{{TypeCode::{NAME}, "_QVT_BARCODE_TELEPEN_", "telepen", "0x122100kKey",
                            {{0, 0, 0}}, Family::kCurrent, Group::kLibrary, Symbology::kText,
                            nullptr, dimensions::Text()}},\n{end}'''))


def main() -> int:
    root, compiler = Path(sys.argv[1]), sys.argv[2]
    failures = []
    with tempfile.TemporaryDirectory() as name:
        with_another_type(root, Path(name))
        for file in FILES:
            if (errors := compile_errors(root, compiler, [], file)):
                failures.append(f"{file} does not compile as it is: {errors}")
            elif NAME not in compile_errors(root, compiler, [Path(name)], file):
                failures.append(f"{file} compiles without a word on {NAME}")
    print("\n".join(failures) or f"{len(FILES)} files name {NAME}")
    return 1 if failures else 0


sys.exit(main())
