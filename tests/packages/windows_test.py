#!/usr/bin/env python3
"""Tries the packages for Windows under Wine, as their users do.

Usage: windows_test.py [-v] [TEST…], from anywhere, after scripts/package-windows
       LINEWRIGHT_PACKAGES=FOLDER     where the packages lie; without it, dist
       LINEWRIGHT_LINUX=PROGRAM       the command for Linux; without it, build/package/bin/linewright
"""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile
from pathlib import Path, PureWindowsPath

import pefile

ROOT = Path(__file__).resolve().parents[2]
PACKAGES = Path(os.environ.get("LINEWRIGHT_PACKAGES", ROOT / "dist")).resolve()
BUILD = ROOT / "build/windows"
[ZIP] = PACKAGES.glob("linewright-*-win64.zip")
VERSION = ZIP.name.split("-")[1]
SETUP = PACKAGES / f"linewright-{VERSION}-setup.exe"

FONTS = r"HKCU\Software\Microsoft\Windows NT\CurrentVersion\Fonts"
UNINSTALL = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Linewright"
ENVIRONMENT = r"HKCU\Environment"
EAN13 = ("ean13", "400638133393")
EAN13_TEXT = "Y(0A63IB*NNNTNL("
ROWS = "type,data\nean13,400638133393\nean8,963850741\n"

# The command as it is built for Linux, beside which drawings are compared.
LINUX = os.environ.get("LINEWRIGHT_LINUX", ROOT / "build/package/bin/linewright")
# One of each type that is drawn.
DRAWN = ("code39,LINE-42", "code128,Line 42", "codabar,1234", "i2of5,1234567890", "msi,12345", "ean13,400638133393",
         "jan13,490177801234", "ean8,9638507", "upca,03600029145", "upce,01234565", "postnet,123456789",
         "imb,01234567094987654321", "classic-postnet,12345", "classic-codabar,1234", "classic-code128a,LINE 42",
         "classic-code128b,Line 42", "classic-code128c,123456", "classic-code39,LINE-42", "classic-code39ascii,Line-42",
         "classic-ean13,400638133393", "classic-jan13,490177801234", "classic-upca,03600029145",
         "classic-upce,0123456", "classic-i2of5,1234567890", "classic-msi,12345")

# What every Windows has.
SYSTEM_LIBRARIES = {"advapi32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "shell32.dll", "user32.dll"}


class Wine:
    """A Windows of its own, with one server that stays up."""

    def __init__(self, folder: Path):
        home = folder / "home"
        home.mkdir()
        self.prefix = folder / "wine"
        self.environment = {**os.environ, "WINEPREFIX": str(self.prefix), "HOME": str(home)}
        self.prefix.mkdir()
        self.quietly("wineserver", "-p")
        self.quietly(ROOT / "scripts/wine-run", "wineboot")
        [self.user] = [each for each in (self.prefix / "drive_c/users").iterdir() if each.name != "Public"]
        # Every Windows has these.
        (self.user / "AppData/Local/Programs").mkdir(exist_ok=True)
        for key in (FONTS, str(PureWindowsPath(UNINSTALL).parent)):
            self.run("reg", "add", key, "/f")

    def quietly(self, *command):
        subprocess.run(command, env=self.environment, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)

    def end(self):
        self.quietly("wineserver", "-k")

    def run(self, *command, **more) -> subprocess.CompletedProcess:
        return subprocess.run([ROOT / "scripts/wine-run", *command], env=self.environment, timeout=600,
                              **{"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE,
                                 "encoding": "utf-8"} | more)

    def values(self, key: str) -> dict[str, tuple[str, str]]:
        """Names of a registry key with their types and texts; empty where there is no such key."""
        told = self.run("reg", "query", key, encoding="cp437").stdout.splitlines()
        rows = (re.match(r"    (.+?)    (REG_\w+)    ?(.*)", line) for line in told)
        return {row[1]: (row[2], row[3]) for row in rows if row}

    def set_path(self, text: str | None, kind: str = "REG_EXPAND_SZ"):
        self.run("reg", "delete", ENVIRONMENT, "/v", "Path", "/f")
        if text is not None:
            self.run("reg", "add", ENVIRONMENT, "/v", "Path", "/t", kind, "/d", text, "/f")

    def path(self) -> tuple[str, str] | None:
        return {name.lower(): value for name, value in self.values(ENVIRONMENT).items()}.get("path")

    def place(self, windows: str) -> Path:
        """A file of drive C by its name in Windows."""
        return self.prefix / "drive_c" / Path(*PureWindowsPath(windows).parts[1:])

    def files(self) -> set[str]:
        """All that a user sees, but what Wine itself writes."""
        return {str(path) for path in (self.prefix / "drive_c").rglob("*")
                if "Temp" not in path.parts and "windows" not in path.parts}

    def registry(self) -> set[str]:
        """Every line of the user's part under its key, but what Wine itself writes."""
        file = self.prefix / "drive_c/exported.reg"
        self.run("reg", "export", "HKCU", r"C:\exported.reg", "/y")
        lines, key = set(), ""
        for line in file.read_text(encoding="utf-16").splitlines():
            key = line if line.startswith("[") else key
            if not key.startswith(r"[HKEY_CURRENT_USER\Software\Wine"):
                lines.add(f"{key}{line}")
        file.unlink()
        return lines


def setUpModule():
    global wine, scratch
    scratch = tempfile.TemporaryDirectory()
    wine = Wine(Path(scratch.name))


def tearDownModule():
    wine.end()
    scratch.cleanup()


def unpack(folder: str) -> Path:
    """The ZIP file unpacked on drive C; gives the folder that it holds."""
    place = wine.place(folder)
    shutil.rmtree(place, ignore_errors=True)
    with zipfile.ZipFile(ZIP) as archive:
        archive.extractall(place)
    return place / f"linewright-{VERSION}"


def start(program: Path, *options: str) -> int:
    """Runs an installer or uninstaller, which want folders without quotes: word by word. What shows windows leaves
    a process behind for a while, which must hold none of our pipes."""
    words = [word for option in options for word in option.split(" ")]
    return wine.run(program, "/S", *words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode


def uninstall(folder: Path, left: frozenset[Path] = frozenset()) -> None:
    """Starts what the system starts, which goes on in a copy of itself until only what is `left` lies there."""
    start(folder / "uninstall.exe")
    end = time.monotonic() + 300
    while (folder.exists() and set(folder.rglob("*")) != left) and time.monotonic() < end:
        time.sleep(0.1)


def is_preference(path: str) -> bool:
    return "Linewright Host" in path


def older_setup(folder: Path) -> Path:
    """An installer of version 0.9.0, which had a file more."""
    tree = folder / "linewright-0.9.0"
    with zipfile.ZipFile(ZIP) as archive:
        archive.extractall(folder)
    (folder / f"linewright-{VERSION}").rename(tree)
    (tree / "bin/forgotten.dll").write_bytes(b"old")
    lists, output = folder / "files.nsh", folder / "older.exe"
    windows = ROOT / "packaging/windows"
    subprocess.run([sys.executable, windows / "list_files.py", tree, lists], check=True)
    subprocess.run(["makensis", "-V1", "-DVERSION=0.9.0", f"-DLISTS={lists}", f"-DOUTPUT={output}",
                    f"-DICON={ROOT / 'icons/linewright.ico'}",
                    f"-DUSER_PATH={BUILD / 'bin/linewright-user-path.exe'}", windows / "installer.nsi"], check=True)
    return output


class Zip(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = unpack(r"C:\Größe 日本 zip")

    def linewright(self, *words, **more):
        return wine.run(self.folder / "bin/linewright.exe", *words, **more)

    def test_lies_in_one_folder_and_holds_what_it_should(self):
        with zipfile.ZipFile(ZIP) as archive:
            names = set(archive.namelist())
        self.assertEqual({name.split("/")[0] for name in names}, {f"linewright-{VERSION}"})
        for name in ("bin/linewright.exe", "bin/linewright-host.dll", "bin/liblinewright.dll",
                     "lib/linewright/Linewright.dll", "lib/linewright/resources/strings/jaJP.resource",
                     "share/linewright/fonts/LinewrightBars.ttf", "doc/README.md", "doc/docs/cli.md"):
            self.assertIn(f"linewright-{VERSION}/{name}", names)
        self.assertEqual([name for name in names if name.endswith((".a", ".cmake", ".pc"))], [])

    def test_needs_nothing_that_windows_lacks(self):
        images = [path for path in self.folder.rglob("*") if path.suffix in (".exe", ".dll")]
        present = {path.name.lower() for path in images} | SYSTEM_LIBRARIES
        for path in images:
            wanted = {entry.dll.decode().lower() for entry in pefile.PE(path).DIRECTORY_ENTRY_IMPORT}
            self.assertEqual(wanted - present, set(), path)

    def test_encodes_from_a_folder_of_any_name(self):
        run = self.linewright("encode", *EAN13)
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, EAN13_TEXT + "\n", ""))

    def test_converts_files_of_any_name(self):
        (self.folder / "Größe 日本.csv").write_text(ROWS)
        run = self.linewright("batch", "Größe 日本.csv", "-o", "fertig 日本.csv", cwd=self.folder)
        self.assertEqual((run.returncode, run.stderr), (3, "2 rows: 1 encoded (0 with warnings), 1 refused\n"))
        self.assertIn(EAN13_TEXT, (self.folder / "fertig 日本.csv").read_text())

    def test_lists_its_fonts(self):
        run = self.linewright("fonts", "list")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn("Linewright EAN UPC", run.stdout)

    def test_says_its_version(self):
        self.assertEqual(self.linewright("--version").stdout, f"linewright {VERSION}\n")

    def test_says_that_the_host_is_missing(self):
        folder = unpack(r"C:\no host")
        (folder / "bin/linewright-host.dll").unlink()
        for words in (("encode", *EAN13), ("--version",)):
            run = wine.run(folder / "bin/linewright.exe", *words)
            self.assertEqual((run.returncode, run.stdout), (2, ""))
            self.assertRegex(run.stderr, r"^linewright: the host cannot be loaded: "
                                         r"C:\\no host\\.*\\linewright-host.dll: Windows error 126\n$")

    def test_writes_nothing_where_it_cannot_draw(self):
        folder = unpack(r"C:\no drawing")
        for module in folder.glob("lib/linewright/*.dll"):
            if module.name != "Linewright.dll":
                module.unlink()
        (folder / "rows.csv").write_text(ROWS)
        (folder / "kept.csv").write_text("kept")
        before = {path: path.stat().st_mtime_ns for path in folder.rglob("*")}
        for words in (("draw", *EAN13, "-o", "new.pdf"), ("draw", "rows.csv", "-o", "{line}.png"),
                      ("verify", *EAN13), ("proof", "rows.csv", "-o", "new.pdf"),
                      ("batch", "rows.csv", "-o", "new.csv", "--verify"),
                      ("batch", "rows.csv", "-o", "kept.csv", "--verify", "--rejects", "rejects.csv"),
                      ("batch", "rows.csv", "-o", "-", "--verify"),
                      ("document", "rows.csv", "-o", "new.idml"), ("check", "kept.csv")):
            run = wine.run(folder / "bin/linewright.exe", *words, cwd=folder)
            self.assertEqual((run.returncode, run.stdout), (2, ""), words)
            self.assertRegex(run.stderr, r"^linewright: what .* cannot be loaded: C:.*\.dll: the file is missing\n$")
            self.assertEqual({path: path.stat().st_mtime_ns for path in folder.rglob("*")}, before, words)


def has_drawing() -> bool:
    with zipfile.ZipFile(ZIP) as archive:
        return any(name.endswith("/Drawing.dll") for name in archive.namelist())


@unittest.skipUnless(has_drawing(), "the packages are made without what draws")
class Drawing(unittest.TestCase):
    """What is drawn beside what the command of Linux draws."""

    @classmethod
    def setUpClass(cls):
        cls.folder = unpack(r"C:\Größe 日本 draw")
        (cls.folder / "rows.csv").write_text("type,data\n" + "".join(f"{row}\n" for row in DRAWN))
        cls.linux = Path(scratch.name) / "linux"
        cls.linux.mkdir()
        shutil.copy(cls.folder / "rows.csv", cls.linux)

    def on_both(self, *words) -> tuple[subprocess.CompletedProcess, subprocess.CompletedProcess]:
        environment = {**wine.environment, "XDG_CONFIG_HOME": str(self.linux / "config"), "SOURCE_DATE_EPOCH": "0"}
        here = subprocess.run([LINUX, *words], cwd=self.linux, env=environment, capture_output=True, encoding="utf-8")
        there = wine.run(self.folder / "bin/linewright.exe", *words, cwd=self.folder)
        return here, there

    def test_draws_the_same_bytes(self):
        for ending in ("png", "svg", "eps", "tiff"):
            with self.subTest(ending):
                here, there = self.on_both("draw", "rows.csv", "-o", f"{{line}}.{ending}", "--dpi", "600", "--fit")
                self.assertEqual((there.returncode, there.stderr), (0, f"{len(DRAWN)} rows: {len(DRAWN)} drawn, 0 refused\n"))
                self.assertEqual((here.returncode, here.stderr), (0, there.stderr))
                names = [f"{line}.{ending}" for line in range(2, len(DRAWN) + 2)]
                different = [DRAWN[index] for index, name in enumerate(names)
                             if (self.linux / name).read_bytes() != (self.folder / name).read_bytes()]
                self.assertEqual(different, [])

    def test_draws_the_same_pages(self):
        self.on_both("draw", "rows.csv", "-o", "{line}.pdf")
        for line in range(2, len(DRAWN) + 2):
            first, second = (subprocess.run(["pdftoppm", "-r", "300", "-gray", folder / f"{line}.pdf"],
                                            capture_output=True, check=True).stdout for folder in (self.linux, self.folder))
            self.assertTrue(first)
            self.assertEqual(first, second, DRAWN[line - 2])

    def test_says_that_one_scanner_looked(self):
        run = wine.run(self.folder / "bin/linewright.exe", "verify", *EAN13)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertEqual(run.stdout, "scans\n  ZBar       EAN-13     4006381333931\n  one scanner looked\n")

    def test_reads_back_as_linux_does(self):
        here, there = self.on_both("batch", "rows.csv", "-o", "read.csv", "--verify")
        self.assertEqual((there.returncode, there.stderr), (here.returncode, here.stderr))
        self.assertEqual((self.folder / "read.csv").read_text(), (self.linux / "read.csv").read_text())

    def test_makes_the_same_proof(self):
        here, there = self.on_both("proof", "rows.csv", "-o", "proof.pdf")
        self.assertEqual((there.returncode, there.stderr), (here.returncode, here.stderr))
        first, second = (subprocess.run(["pdftotext", "-layout", folder / "proof.pdf", "-"], capture_output=True, check=True,
                                        text=True).stdout for folder in (self.linux, self.folder))
        # The day of a proof: Wine hands on no variables of ours that it does not know.
        self.assertIn("4006381333931", second)
        self.assertEqual(second, first)

    def test_says_which_libraries_are_in_which_file(self):
        told = json.loads((self.folder / "licences/libraries.json").read_text())
        foreign = {path.name for path in self.folder.glob("bin/lib*.dll")} - {"liblinewright.dll"}
        self.assertEqual(foreign, {"libcairo-2.dll", "libfreetype.dll", "libzbar.dll"})
        for name in foreign:
            self.assertTrue(told["files"][f"bin/{name}"])
        for library in told["libraries"].values():
            self.assertTrue([text for text in (self.folder / library["texts"]).iterdir() if text.name != "VERSION"])
            self.assertRegex(library["version"], r"^\d+\.\d+")


class Installer(unittest.TestCase):
    def setUp(self):
        wine.set_path(None)
        self.files, self.registry = wine.files(), wine.registry()
        self.folder = wine.user / "AppData/Local/Programs/Linewright"

    def installed_bin(self, folder: Path | None = None) -> str:
        return "C:\\" + str(PureWindowsPath((folder or self.folder).relative_to(wine.prefix / "drive_c") / "bin"))

    def assert_nothing_is_left(self):
        left = wine.files() - self.files
        self.assertEqual({path for path in left if not is_preference(path)}, set())
        self.assertEqual(self.files - wine.files(), set())
        self.assertEqual(wine.registry() ^ self.registry, set())

    def test_installs_works_and_leaves_preferences_only(self):
        self.assertEqual(start(SETUP), 0)
        program = self.folder / "bin/linewright.exe"
        run = wine.run(program, "encode", *EAN13)
        self.assertEqual((run.returncode, run.stdout), (0, EAN13_TEXT + "\n"), run.stderr)
        (wine.user / "rows.csv").write_text(ROWS)
        run = wine.run(program, "batch", "rows.csv", "-o", "out.csv", cwd=wine.user)
        self.assertEqual(run.returncode, 3, run.stderr)
        self.assertIn(EAN13_TEXT, (wine.user / "out.csv").read_text())
        self.assertEqual(wine.path(), ("REG_EXPAND_SZ", self.installed_bin()))
        # By its name, as a new command line finds it.
        run = wine.run("cmd", "/c", "linewright encode ean13 400638133393")
        self.assertEqual(run.stdout.strip(), EAN13_TEXT, run.stderr)
        self.assertTrue((wine.user / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Linewright.lnk").is_file())
        self.assertEqual(wine.values(UNINSTALL)["DisplayVersion"], ("REG_SZ", VERSION))
        wine.run(program, "prefs", "set", "ratio=3")

        for name in ("rows.csv", "out.csv"):
            (wine.user / name).unlink()
        uninstall(self.folder)
        self.assertTrue([path for path in wine.files() if is_preference(path)])
        self.assert_nothing_is_left()

    def test_fonts_are_those_that_the_command_installs(self):
        start(SETUP)
        fonts = wine.user / "AppData/Local/Microsoft/Windows/Fonts"
        entries, files = wine.values(FONTS), {path.name: path.read_bytes() for path in fonts.iterdir()}
        self.assertEqual(len(files), 10)
        self.assertEqual(len([name for name in entries if name.startswith("Linewright")]), 10)
        run = wine.run(self.folder / "bin/linewright.exe", "fonts", "install")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(wine.values(FONTS), entries)
        self.assertEqual({path.name: path.read_bytes() for path in fonts.iterdir()}, files)
        uninstall(self.folder)
        self.assert_nothing_is_left()

    def test_gives_the_path_back_with_what_others_did_to_it(self):
        long = ";".join(rf"C:\tools {number}\bin" for number in range(200))
        for before, kind in ((r"%HOME%\a;;", "REG_EXPAND_SZ"), (long, "REG_SZ")):
            with self.subTest(before):
                wine.set_path(before, kind)
                start(SETUP)
                self.assertEqual(wine.path(), (kind, f"{before};{self.installed_bin()}"))
                wine.set_path(rf"C:\first;{before};{self.installed_bin()};C:\last", kind)
                uninstall(self.folder)
                self.assertEqual(wine.path(), (kind, rf"C:\first;{before};C:\last"))

    def test_goes_into_folders_of_any_name_and_leaves_what_others_put_there(self):
        folder = wine.place(r"C:\Größe 日本 x\Line wright")
        folder.mkdir(parents=True)
        (folder / "bin").mkdir()
        (folder / "bin/mine.txt").write_text("mine")
        self.files = wine.files()
        self.assertEqual(start(SETUP, r"/D=C:\Größe 日本 x\Line wright"), 0)
        run = wine.run(folder / "bin/linewright.exe", "encode", *EAN13)
        self.assertEqual(run.stdout, EAN13_TEXT + "\n", run.stderr)
        run = wine.run("cmd", "/c", "linewright encode ean13 400638133393")
        self.assertEqual(run.stdout.strip(), EAN13_TEXT, run.stderr)
        uninstall(folder, frozenset({folder / "bin", folder / "bin/mine.txt"}))
        self.assertEqual((folder / "bin/mine.txt").read_text(), "mine")
        self.assert_nothing_is_left()

    def test_takes_an_older_one_away_first(self):
        with tempfile.TemporaryDirectory() as temporary:
            older = older_setup(Path(temporary))
            for place in (None, r"C:\another place"):
                with self.subTest(place):
                    self.assertEqual(start(older, *([f"/D={place}"] if place else [])), 0)
                    old = wine.place(place) if place else self.folder
                    self.assertTrue((old / "bin/forgotten.dll").is_file())
                    wine.run(old / "bin/linewright.exe", "prefs", "set", "ratio=3")
                    preferences = wine.run(old / "bin/linewright.exe", "prefs").stdout
                    self.assertEqual(wine.values(UNINSTALL)["DisplayVersion"][1], "0.9.0")

                    self.assertEqual(start(SETUP, f"/D=C:\\{self.folder.relative_to(wine.prefix / 'drive_c')}"
                                           .replace("/", "\\").replace("\\D=", "/D=", 1)), 0)
                    self.assertFalse((old / "bin/forgotten.dll").exists())
                    self.assertEqual(old.exists(), place is None)
                    self.assertEqual(wine.values(UNINSTALL)["DisplayVersion"][1], VERSION)
                    self.assertEqual(wine.path(), ("REG_EXPAND_SZ", self.installed_bin()))
                    self.assertEqual(wine.run(self.folder / "bin/linewright.exe", "prefs").stdout, preferences)
                    uninstall(self.folder)
                    self.assert_nothing_is_left()

    def test_says_that_it_is_in_use(self):
        start(SETUP)
        program = self.folder / "bin/linewright.exe"
        with subprocess.Popen([ROOT / "scripts/wine-run", program, "stream"], env=wine.environment,
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE) as running:
            running.stdin.write(json.dumps({"type": "ean13", "data": "400638133393"}).encode() + b"\n")
            running.stdin.flush()
            running.stdout.readline()
            status = start(self.folder / "uninstall.exe", f"_?=C:\\{PureWindowsPath(self.folder.relative_to(wine.prefix / 'drive_c'))}")
            self.assertEqual(status, 2)
            self.assertIn("UninstallString", wine.values(UNINSTALL))
            running.stdin.close()
        uninstall(self.folder)
        self.assert_nothing_is_left()

    def test_says_what_it_is(self):
        image = pefile.PE(SETUP)
        texts = {name.decode(): text.decode() for information in image.FileInfo[0]
                 if information.Key == b"StringFileInfo"
                 for table in information.StringTable for name, text in table.entries.items()}
        self.assertEqual((texts["ProductName"], texts["ProductVersion"], texts["FileDescription"]),
                         ("Linewright", VERSION, "Linewright setup"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
