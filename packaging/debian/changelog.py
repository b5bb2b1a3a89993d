#!/usr/bin/env python3
"""Prints CHANGELOG.md as Debian writes changelogs.

Usage: changelog.py CHANGELOG.md
"""
import re
import sys
import textwrap
from datetime import date
from pathlib import Path

text = Path(sys.argv[1]).read_text(encoding="utf-8")
for version, day, changes in re.findall(r"^## (\S+) \((\S+)\)\n(.*?)(?=^## |\Z)", text, re.MULTILINE | re.DOTALL):
    print(f"linewright ({version}) unstable; urgency=medium\n")
    for change in re.findall(r"^- (.*(?:\n  .*)*)", changes, re.MULTILINE):
        print(textwrap.fill(" ".join(change.split()), 78, initial_indent="  * ", subsequent_indent="    "))
    print(f"\n -- Linewright <>  {date.fromisoformat(day):%a, %d %b %Y} 00:00:00 +0000\n")
