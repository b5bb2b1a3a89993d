#!/usr/bin/env python3
"""Says what third-party code is in which built file under which licence, as read from the build: the
headers that each object was compiled from, and the shared libraries that each file asks for. Names and
licences are those of the Debian packages that these come from.

Usage: third_party.py BUILD-FOLDER THIRD-PARTY.md COPYRIGHT [TREE]
  writes tables, and the copyright file of the packages, with the notices of what is compiled in. TREE is
  what a package for Windows holds; packaging/windows/list_libraries.py has put its libraries.json there.
"""
import json
import re
import subprocess
import sys
from collections import defaultdict
from functools import cache
from pathlib import Path

# Where a copyright file is written for people: its licence, and words of the file that say so.
WRITTEN = {
    "cairo": ("LGPL-2.1 or MPL-1.1", "either the GNU Lesser General Public|MPL"),
    "fontconfig": ("MIT style", "Permission to use, copy, modify, distribute"),
    "gcc-12": ("GPL-3+ with the GCC Runtime Library Exception", "GCC Runtime Library Exception"),
    "glibc": ("LGPL-2.1+", "GNU Lesser General Public"),
    "libzip": ("BSD-3-clause", "Redistribution and use in source and binary forms"),
    "qpdf": ("Apache-2.0", "Apache License, Version 2.0"),
    "zbar": ("LGPL-2.1+", "GNU Lesser General Public"),
    "tiff": ("libtiff", "Permission to use, copy, modify, distribute"),
    "gcc-mingw-w64": ("GPL-3+ with the GCC Runtime Library Exception", "GCC Runtime Library Exception"),
    "python3.11": ("PSF-2", "PYTHON SOFTWARE FOUNDATION LICENSE VERSION 2"),
}
# Of these a file for Linux holds what their licences let every program hold: the compiler's own run-time.
RUN_TIME = {"gcc-12", "glibc", "linux"}

SOURCES = "${binary:Package} ${source:Package} ${source:Version}\n"

OWN = """Linewright

Licence not yet granted.

"""


def run(*words: object) -> str:
    return subprocess.run([str(word) for word in words], check=True, capture_output=True, text=True).stdout


class Build:
    def __init__(self, folder: Path):
        self.folder = folder
        cache = (folder / "CMakeCache.txt").read_text(encoding="utf-8")
        self.root = Path(re.search(r"^CMAKE_HOME_DIRECTORY:INTERNAL=(.*)$", cache, re.MULTILINE)[1]).resolve()
        text = (folder / "build.ninja").read_text(encoding="utf-8").replace("$\n", "")
        self.inputs: dict[str, list[str]] = {}
        self.archives = set()
        for outputs, rule, inputs in re.findall(r"^build ([^:\n]+): (\S+)(.*)$", text, re.MULTILINE):
            for output in outputs.replace("| ", "").split():
                self.inputs[output] = inputs.split(" || ")[0].replace("| ", "").split()
                if "STATIC_LIBRARY" in rule:  # and no import library
                    self.archives.add(output)
        self.headers: dict[str, set[Path]] = {}
        for block in run("ninja", "-C", folder, "-t", "deps").split("\n\n"):
            lines = block.splitlines()
            if lines and ": #deps" in lines[0]:
                self.headers[lines[0].split(":")[0]] = {
                    path for path in map(self.real, lines[1:]) if not path.is_relative_to(self.root)}

    @cache
    def real(self, name: str) -> Path:
        return (self.folder / name.strip()).resolve()

    def objects(self, file: str) -> set[str]:
        """The objects of a file, those of its static libraries too."""
        if file in self.headers:
            return {file}
        return {each for name in self.inputs[file] if name in self.headers or name in self.archives
                for each in self.objects(name)}

    def compiled_from(self, file: str) -> set[Path]:
        """The headers from outside the project that a file's objects were compiled from."""
        return {header for each in self.objects(file) for header in self.headers[each]}


class Packages:
    """Which of Debian's source packages the files of this machine come from."""

    def __init__(self, files: set[Path]):
        # The system's folders may be links: /lib is /usr/lib, and packages know one of both names.
        names = sorted({name for file in map(str, files) for name in (file, file.removeprefix("/usr"))})
        found = subprocess.run(["dpkg", "-S", *names], capture_output=True, text=True).stdout
        self.package = {}
        for line in found.splitlines():
            package, name = line.rsplit(": ", 1)
            self.package[name] = package.split(",")[0]
        self.source = {}
        for line in run("dpkg-query", "-W", "-f", SOURCES).splitlines():
            binary, source, _ = line.split()
            self.source[binary] = self.source[binary.split(":")[0]] = source

    def source_of(self, file: Path) -> str:
        package = self.package.get(str(file)) or self.package.get(str(file).removeprefix("/usr"))
        if package is None:
            raise SystemExit(f"third_party.py: no package holds {file}")
        return self.source[package]


def needed(file: Path) -> list[str]:
    return re.findall(r"NEEDED\s+(\S+)", run("objdump", "-p", file))


@cache
def library(name: str) -> Path | None:
    found = re.search(rf"^\s*{re.escape(name)} \(.*x86-64.*\) => (\S+)$", run("ldconfig", "-p"), re.MULTILINE)
    return Path(found[1]).resolve() if found else None


@cache
def copyright_of(source: str) -> str:
    """The copyright file of any installed package that was made of the source."""
    for line in run("dpkg-query", "-W", "-f", "${source:Package} ${binary:Package}\n").splitlines():
        made, package = line.split()
        file = Path("/usr/share/doc", package.split(":")[0], "copyright")
        if made == source and file.is_file():
            return file.read_text(encoding="utf-8")
    raise SystemExit(f"third_party.py: no copyright file of {source}")


def licence(source: str) -> str:
    text = copyright_of(source)
    if source in WRITTEN:
        name, words = WRITTEN[source]
        if not re.search(re.sub(" ", r"\\s+", words), text):
            raise SystemExit(f"third_party.py: the copyright file of {source} does not say {words}")
        return name
    stated = re.search(r"^Files:\s+\*\s*\n(?:.+\n)*?License:\s+(.+)$", text, re.MULTILINE)
    if not stated:
        raise SystemExit(f"third_party.py: the licence of {source} is not known")
    return stated[1].strip()


def version(source: str) -> str:
    listed = run("dpkg-query", "-W", "-f", "${source:Package} ${source:Version}\n").splitlines()
    return next(line.split()[1] for line in listed if line.split()[0] == source)


def table_of(title: str, rows: dict[str, set[str]]) -> str:
    lines = ""
    for source, files in sorted(rows.items()):
        names = ", ".join(f"`{name}`" for name in sorted(files))
        lines += f"| {source} {version(source)} | {licence(source)} | {names} |\n"
    return f"| {title} | Licence | Files |\n|---|---|---|\n{lines}"


def libraries_of(report: Path) -> str:
    """The table of what was built for Windows."""
    told = json.loads(report.read_text(encoding="utf-8"))
    rows = "".join(
        f"| {name} {library['version']} | {library['licence']} | "
        f"{', '.join(f'`{file}`' for file, names in told['files'].items() if name in names)} |\n"
        for name, library in told["libraries"].items())
    return f"\n| Library, built from Debian's sources | Licence | Files |\n|---|---|---|\n{rows}" if rows else ""


def main() -> None:
    folder, table, notices, *trees = Path(sys.argv[1]).resolve(), *map(Path, sys.argv[2:])
    build = Build(folder)
    isWindows = bool(trees)
    listed = [*(folder / "bin").iterdir(), *(folder / "lib").rglob("*.so*")]
    if isWindows:
        packed = {file.relative_to(trees[0]) for file in trees[0].rglob("*")}
        listed = [folder / name for name in packed if name.suffix in (".exe", ".dll") and str(name) in build.inputs]
    files = [file for file in sorted(listed) if file.is_file() and not file.is_symlink()]
    headers = {file: build.compiled_from(str(file.relative_to(folder))) for file in files}
    libraries = {file: set() if isWindows else {library(name) for name in needed(file)} - {None}
                 for file in files}  # our own libraries have no place
    packages = Packages({path for paths in [*headers.values(), *libraries.values()] for path in paths})
    inside: dict[str, set[str]] = defaultdict(set)
    beside: dict[str, set[str]] = defaultdict(set)
    for file in files:
        shared = {packages.source_of(path) for path in libraries[file]}
        for source in shared:
            beside[source].add(file.name)
        for source in {packages.source_of(path) for path in headers[file]} - shared - RUN_TIME:
            inside[source].add(file.name)
    compiled = "Compiled into files for " + ("Windows" if isWindows else "Linux")
    text = table_of(compiled, inside)
    if isWindows:
        text += libraries_of(trees[0] / "licences/libraries.json")
    if beside:
        text += "\n" + table_of("Shared libraries that come from Debian", beside)
    table.write_text(text, encoding="utf-8")
    notices.parent.mkdir(parents=True, exist_ok=True)
    notices.write_text(OWN + "".join(
        f"{'=' * 100}\n{', '.join(sorted(names))} hold code of {source}:\n\n{copyright_of(source)}\n"
        for source, names in sorted(inside.items())), encoding="utf-8")


main()
