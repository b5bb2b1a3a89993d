#!/usr/bin/env python3
"""Installs the build and builds projects against it, as strangers do: with find_package and with
pkg-config, from a folder that was moved after the installation.

Usage: outside_test.py CMAKE BUILD-FOLDER C-COMPILER C++-COMPILER
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CMAKE, BUILD, CC, CXX = sys.argv[1], os.path.abspath(sys.argv[2]), *sys.argv[3:5]
PROJECTS = Path(__file__).parent / "outside"
ENCODED = "Y(0A63IB*NNNTNL(\n"


def run(*command, **more) -> str:
    done = subprocess.run([str(word) for word in command], capture_output=True, text=True, **more)
    assert done.returncode == 0, f"{command}\n{done.stdout}{done.stderr}"
    return done.stdout


class OutsideTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(dir=BUILD, prefix="outside-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        run(CMAKE, "--install", BUILD, "--prefix", cls.folder / "first")
        (cls.folder / "first").rename(cls.folder / "prefix")
        cls.prefix = cls.folder / "prefix"
        cls.libraries = next(cls.prefix.glob("lib*/**/liblinewright.so")).parent
        (cls.folder / "config").mkdir()
        cls.environment = {**os.environ, "XDG_CONFIG_HOME": str(cls.folder / "config"),
                           "PKG_CONFIG_PATH": str(cls.libraries / "pkgconfig")}

    def run_program(self, program, *words):
        environment = {**self.environment, "LD_LIBRARY_PATH": str(self.libraries)}
        return run(program, *words, env=environment)

    def found_by_cmake(self, name):
        build = self.folder / f"cmake-{name}"
        run(CMAKE, "-S", PROJECTS / name, "-B", build, f"-DCMAKE_PREFIX_PATH={self.prefix}",
            f"-DCMAKE_C_COMPILER={CC}", f"-DCMAKE_CXX_COMPILER={CXX}")
        run(CMAKE, "--build", build)
        return build / "outside"

    def found_by_pkg_config(self, module, compiler, source):
        flags = run("pkg-config", "--cflags", "--libs", module, env=self.environment).split()
        program = self.folder / f"pkg-config-{module}"
        run(*compiler, PROJECTS / source, "-o", program, *flags)
        return program

    def plug_in(self):
        return self.libraries / "linewright" / "Linewright.so"

    def test_c_by_cmake(self):
        self.assertEqual(self.run_program(self.found_by_cmake("c")), ENCODED)

    def test_service_by_cmake(self):
        self.assertEqual(self.run_program(self.found_by_cmake("service"), self.plug_in()), ENCODED)

    def test_c_by_pkg_config(self):
        program = self.found_by_pkg_config("linewright", [CC, "-std=c11"], "c/main.c")
        self.assertEqual(self.run_program(program), ENCODED)

    def test_service_by_pkg_config(self):
        program = self.found_by_pkg_config("linewright-service", [CXX, "-std=c++20"],
                                           "service/main.cpp")
        self.assertEqual(self.run_program(program, self.plug_in()), ENCODED)

    def documented(self, language):
        text = (Path(__file__).parents[2] / "docs/library.md").read_text(encoding="utf-8")
        block, = re.findall(rf"```{language}\n(.*?)```", text, re.DOTALL)
        self.assertEqual(block.count("\n"), 5)
        return block

    def compiled(self, language, compiler, includes):
        source = self.folder / f"documented.{language}"
        source.write_text("".join(f"#include <{name}>\n" for name in includes)
                          + "int main(void) {\n" + self.documented(language) + "}\n")
        return self.run_program(self.found_by_pkg_config("linewright", compiler, source))

    def test_the_documentations_c(self):
        self.assertEqual(self.compiled("c", [CC, "-std=c11", "-Wall", "-Wextra", "-Werror"],
                                       ["linewright.h", "stdio.h"]), ENCODED)

    def test_the_documentations_cpp(self):
        self.assertEqual(self.compiled("cpp", [CXX, "-std=c++11", "-Wall", "-Wextra", "-Werror"],
                                       ["linewright.h", "iostream", "memory", "string"]), ENCODED)

    def test_the_documentations_python(self):
        modules = next(self.libraries.glob("python*/*/linewright")).parent
        environment = {**self.environment, "PYTHONPATH": str(modules), "PYTHONDONTWRITEBYTECODE": "1"}
        self.assertEqual(run(sys.executable, "-c", self.documented("python"), env=environment,
                             cwd=self.folder), ENCODED)
        self.assertIn("<svg", (self.folder / "pen.svg").read_text(encoding="utf-8"))

    def test_the_documentations_sql(self):
        self.assertEqual(run("sqlite3", "-cmd", f".load {self.libraries / 'linewright_sqlite'}", ":memory:",
                             self.documented("sql"), env=self.environment), ENCODED)

    def test_an_unknown_component_is_missing(self):
        project = self.folder / "unknown"
        project.mkdir()
        (project / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(Outside LANGUAGES NONE)\n"
            "find_package(Linewright REQUIRED COMPONENTS nothing)\n")
        done = subprocess.run([CMAKE, "-S", project, "-B", project / "build",
                               f"-DCMAKE_PREFIX_PATH={self.prefix}"], capture_output=True, text=True)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("nothing", done.stderr)


unittest.main(argv=[sys.argv[0]], verbosity=2)
