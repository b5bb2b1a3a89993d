#!/usr/bin/env python3
"""The icon's pictures are those that icons/make-icons makes of its drawing."""
import filecmp
import subprocess
import sys
import tempfile
from pathlib import Path

ICONS = Path(__file__).parent.parent / "icons"

with tempfile.TemporaryDirectory() as made:
    subprocess.run([ICONS / "make-icons", made], check=True)
    names = {path.name for path in Path(made).iterdir()}
    kept = {path.name for path in ICONS.iterdir() if path.suffix in (".png", ".ico")}
    same, _, _ = filecmp.cmpfiles(ICONS, made, names & kept, shallow=False)
    stale = (names | kept) - set(same)
if stale or not names:
    sys.exit(f"icons/make-icons makes something else of: {', '.join(sorted(stale)) or 'nothing'}")
print(f"{len(names)} pictures of the icon are as drawn")
