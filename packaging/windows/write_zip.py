#!/usr/bin/env python3
"""Writes a folder as a ZIP file: the same bytes for the same files, with the time of SOURCE_DATE_EPOCH.

Usage: write_zip.py FOLDER FILE
"""
import os
import sys
import time
import zipfile
from pathlib import Path


def main(folder: Path, output: Path) -> None:
    date = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    with zipfile.ZipFile(output, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for path in sorted(folder.rglob("*")):
            if path.is_file():
                entry = zipfile.ZipInfo(str(path.relative_to(folder.parent)), date)
                entry.compress_type = zipfile.ZIP_DEFLATED
                entry.external_attr = 0o644 << 16
                archive.writestr(entry, path.read_bytes())


main(*map(Path, sys.argv[1:]))
