#!/usr/bin/env python3
"""Lists the files of a folder and its fonts for installer.nsi.

Usage: list_files.py FOLDER LIST
"""
import sys
from pathlib import Path, PureWindowsPath

from fontTools.ttLib import TTFont

FAMILY = 1  # of a font's name table


def macro(name: str, lines: list[str], parameters: str = "") -> list[str]:
    return [f"!macro {name}{parameters}", *lines, "!macroend"]


def main(folder: Path, output: Path) -> None:
    files = sorted(path for path in folder.rglob("*") if path.is_file())
    folders = sorted({path.parent for path in files} | {parent for path in files for parent in path.parents
                                                        if parent.is_relative_to(folder)})
    fonts = sorted((folder / "share/linewright/fonts").glob("*.ttf"))
    if not fonts:
        sys.exit(f"{folder} has no fonts")

    def installed(path: Path) -> str:
        return str(PureWindowsPath("$INSTDIR") / path.relative_to(folder))

    install = []
    for each in folders:
        install.append(f'SetOutPath "{installed(each)}"')
        install += [f'File "{path}"' for path in files if path.parent == each]
    lines = [
        f"!define KILOBYTES {sum(path.stat().st_size for path in files) // 1024}",
        *macro("InstallFiles", install),
        *macro("RemoveFiles", [f'Delete "{installed(path)}"' for path in files]),
        *macro("RemoveFolders", [f'RMDir "{installed(each)}"' for each in reversed(folders)]),
        *macro("EachFont", [f'!insertmacro ${{DO}} "{font.name}" "{TTFont(font)["name"].getDebugName(FAMILY)}"'
                            for font in fonts], " DO"),
    ]
    output.write_text("\n".join(lines) + "\n", encoding="utf-8")


main(*(Path(argument).resolve() for argument in sys.argv[1:]))
