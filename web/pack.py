#!/usr/bin/env python3
"""Puts the module's folder together, and the page with everything inside.

Usage: pack.py WASM FONT-FOLDER OUTPUT-FOLDER [SCANNER-FOLDER]

OUTPUT-FOLDER gets `module`, a folder as `npm pack` takes it, and `linewright.html`. With
SCANNER-FOLDER, that of the package zxing-wasm, there is also `linewright-reads.html`, a page that
reads its drawings back.
"""

import base64
import gzip
import json
import shutil
import sys
from pathlib import Path

WEB = Path(__file__).resolve().parent


def write_module(wasm, folder):
    folder.mkdir(parents=True, exist_ok=True)
    core = (WEB / "module/core.js").read_text("utf-8")
    (folder / "linewright.mjs").write_text(f"{core}\nexport {{ Linewright }};\n", "utf-8")
    (folder / "linewright.js").write_text(script(core), "utf-8")
    shutil.copyfile(wasm, folder / "linewright.wasm")
    for name in ("linewright.d.ts", "package.json", "README.md"):
        shutil.copyfile(WEB / "module" / name, folder / name)


def script(core):
    """The same lines as a classic script that defines nothing but Linewright."""
    return f'"use strict";\nvar Linewright = (() => {{\n{core}\nreturn Linewright;\n}})();\n'


def packed(path):
    return base64.b64encode(gzip.compress(path.read_bytes(), mtime=0)).decode()


def write_page(wasm, fonts, scanner, path):
    data = {
        "wasm": packed(wasm),
        "fonts": {font.name: packed(font) for font in sorted(fonts.glob("*.ttf"))},
    }
    parts = {
        "style": (WEB / "page/page.css").read_text("utf-8"),
        "data": f"const DATA = {json.dumps(data)};",
        "module": script((WEB / "module/core.js").read_text("utf-8")),
        "png": (WEB / "page/png.js").read_text("utf-8"),
        "words": (WEB / "page/words.js").read_text("utf-8"),
        "page": (WEB / "page/page.js").read_text("utf-8"),
        "scanner": scanner_script(scanner) if scanner else "",
    }
    page = (WEB / "page/page.html").read_text("utf-8")
    for name, part in parts.items():
        page = page.replace(f"/*{name}*/", part.replace("</script", "<\\/script"))
    path.write_text(page, "utf-8")


def scanner_script(folder):
    code = (folder / "dist/iife/reader/index.js").read_text("utf-8")
    scanner = packed(folder / "dist/reader/zxing_reader.wasm")
    return f'{code}\nDATA.scanner = "{scanner}";'


def main():
    wasm, fonts, output = map(Path, sys.argv[1:4])
    scanner = Path(sys.argv[4]) if len(sys.argv) > 4 else None
    output.mkdir(parents=True, exist_ok=True)
    write_module(wasm, output / "module")
    page = output / "linewright.html"
    write_page(wasm, fonts, None, page)

    def size(path):
        return f"{len(gzip.compress(path.read_bytes())) / 1000:.0f} KB compressed"

    print(f"The module: {output / 'module'} (linewright.wasm {size(wasm)})")
    print(f"The page:   {page} ({size(page)})")
    if scanner:
        reading = output / "linewright-reads.html"
        write_page(wasm, fonts, scanner, reading)
        print(f"The page that reads its drawings back: {reading} ({size(reading)})")


main()
