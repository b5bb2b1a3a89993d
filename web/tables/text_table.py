#!/usr/bin/env python3
"""Writes the plug-in's texts that the module may show as a C++ table, a row a key.

Usage: text_table.py STRINGS-FOLDER OUTPUT
"""

import json
import re
import sys
import tomllib
from pathlib import Path

LOCALES = ["enUS", "deDE", "frFR", "jaJP"]
# The names of types, what they take, and hints. Menus, dialogs and alerts are the window's.
SHOWN = ("UtilityTypePopupItem", "BarCode")
# The parts of descriptions, and the labels before them.
DESCRIPTIONS = re.compile(r"UtilityDialog\w*(Usage|Data|DataString|Sample|Notes)(Label)?Key")


def is_shown(key):
    name = key.partition("kLWR")[2]
    return name.startswith(SHOWN) or DESCRIPTIONS.fullmatch(name) is not None


def main():
    folder, output = map(Path, sys.argv[1:])
    tables = [tomllib.loads((folder / f"{name}.toml").read_text("utf-8")) for name in LOCALES]
    rows = []
    for key in filter(is_shown, tables[0]):
        texts = ", ".join(json.dumps(table[key], ensure_ascii=False) for table in tables)
        rows.append(f"    {{{json.dumps(key)}, {{{texts}}}}},\n")
    output.write_text("".join(rows), "utf-8")


main()
