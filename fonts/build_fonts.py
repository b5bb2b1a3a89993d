"""Writes the ten Linewright fonts to a folder, their variable forms to its folder `variable`."""

import argparse
import sys
from pathlib import Path

# Nothing but the fonts is written, above all not into the source tree.
sys.dont_write_bytecode = True

import postal_fonts  # noqa: E402
import retail_fonts  # noqa: E402
import width_fonts  # noqa: E402
from assemble import assemble, file_stem  # noqa: E402


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--out", type=Path, required=True, help="the folder that gets the fonts")
    parser.add_argument("--version", required=True, help="major.minor.patch")
    arguments = parser.parse_args()
    folder, version = arguments.out, arguments.version
    (folder / "variable").mkdir(parents=True, exist_ok=True)
    for group in (width_fonts, retail_fonts, postal_fonts):
        for design in group.designs():
            stem = file_stem(design.family)
            assemble(design, version, folder / f"{stem}.ttf")
            assemble(design, version, folder / "variable" / f"{stem}-Variable.ttf", variable=True)


if __name__ == "__main__":
    main()
