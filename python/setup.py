"""Builds the libraries for the package with CMake: those of the folder in LINEWRIGHT_BUILD, or anew."""
import os
import subprocess
from pathlib import Path

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py

ROOT = Path(__file__).resolve().parent.parent


def run(*words: object) -> None:
    subprocess.run([str(word) for word in words], check=True)


def built(folder: Path) -> Path:
    """A build folder that holds all that the package needs."""
    if "LINEWRIGHT_BUILD" in os.environ:
        return Path(os.environ["LINEWRIGHT_BUILD"])
    run("cmake", "-S", ROOT, "-B", folder, "-DCMAKE_BUILD_TYPE=Release", "-DLINEWRIGHT_TESTS=OFF",
        "-DLINEWRIGHT_WORKBENCH=OFF", "-DLINEWRIGHT_PYTHON_MODULE=ON")
    run("cmake", "--build", folder, "--parallel", "--target", "linewright_python")
    return folder


class BuildWithLibraries(build_py):
    def run(self) -> None:
        super().run()
        package = Path(self.build_lib).resolve() / "linewright"
        run("cmake", "--install", built(Path("build/cmake").resolve()), "--component", "wheel",
            "--prefix", package)


class PlatformDistribution(Distribution):
    def has_ext_modules(self) -> bool:
        return True


setup(cmdclass={"build_py": BuildWithLibraries}, distclass=PlatformDistribution)
