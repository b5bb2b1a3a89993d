#!/usr/bin/env python3
"""Says which of the libraries of scripts/windows-libraries are in which file of a package, under which
licences, as JSON, and puts their licences beside.

Usage: list_libraries.py TREE BUILD PREFIX
  TREE gets licences/libraries.json and a folder for each library; BUILD is the build folder that the files
  come from, PREFIX what scripts/windows-libraries made.
"""
import json
import re
import shutil
import sys
from pathlib import Path

# Names of Debian's source packages, their licences, and the names that they are linked by.
LICENCES = {
    "cairo": ("LGPL-2.1 or MPL-1.1", "libcairo"),
    "freetype": ("FTL or GPL-2+", "libfreetype"),
    "libjpeg-turbo": ("IJG and BSD-3-Clause", "libjpeg"),
    "libpng1.6": ("libpng", "libpng"),
    "pixman": ("MIT", "libpixman"),
    "qpdf": ("Apache-2.0", "libqpdf"),
    "tiff": ("libtiff", "libtiff"),
    "zbar": ("LGPL-2.1+", "libzbar"),
    "zlib": ("Zlib", "libz."),
}
# What scripts/windows-libraries puts into its DLLs.
INSIDE = {
    "libcairo-2.dll": ["cairo", "pixman", "libpng1.6", "zlib"],
    "libfreetype.dll": ["freetype", "zlib"],
    "libzbar.dll": ["zbar"],
}


def linked(build: Path) -> dict[str, list[str]]:
    """The static libraries that the build's own files are linked with, by the files' names."""
    found = {}
    text = (build / "build.ninja").read_text(encoding="utf-8")
    for output, statement in re.findall(r"^build (\S+\.(?:dll|exe)).*?:(.*?)\n\n", text, re.MULTILINE | re.DOTALL):
        names = re.findall(r"/(lib[\w+.-]+?)\.a\b", statement)
        found[Path(output).name] = [source for source, (_, stem) in LICENCES.items()
                                    if any(f"{name}.".startswith(stem) and not name.endswith(".dll") for name in names)]
    return found


def main(tree: Path, build: Path, prefix: Path) -> None:
    own = linked(build)
    files = {}
    for path in sorted([*tree.rglob("*.exe"), *tree.rglob("*.dll")]):
        if path.name not in own and path.name not in INSIDE:
            sys.exit(f"list_libraries.py: nothing is known of {path}")
        files[str(path.relative_to(tree))] = own.get(path.name) or INSIDE.get(path.name, [])
    used = sorted({source for sources in files.values() for source in sources})
    folder = tree / "licences"
    folder.mkdir()
    for source in used:
        shutil.copytree(prefix / "licences" / source, folder / source)
    folder.joinpath("libraries.json").write_text(json.dumps({
        "libraries": {source: {"version": (prefix / "licences" / source / "VERSION").read_text().strip(),
                               "licence": LICENCES[source][0], "texts": f"licences/{source}"} for source in used},
        "files": {name: sources for name, sources in files.items() if sources},
    }, indent=2) + "\n", encoding="utf-8")


main(*map(Path, sys.argv[1:]))
