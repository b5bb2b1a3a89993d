#!/usr/bin/env python3
"""Has a layout program (Scribus) set the barcode fonts, as by copy and paste, and reads its PDF;
has it place drawings, and measures them.

Usage: layout_test.py BUILD-FOLDER
"""
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

BUILD = Path(sys.argv[1]).resolve()
HERE = Path(__file__).parent.resolve()

# Short name, type name, data, family, point size; bars, where no scanner knows the symbology.
SAMPLES = [
    ("code128", "_QVT_BARCODE_CODE128_", "AST-2024-00017", "Linewright Bars", 23.04, None),
    ("code39", "_QVT_BARCODE_CODE39_", "FIX-0042", "Linewright Bars", 23.04, None),
    ("i2of5", "_QVT_BARCODE_I2OF5_", "15400141", "Linewright Bars", 23.04, None),
    ("codabar", "_QVT_BARCODE_CODABAR_", "21234000", "Linewright Bars", 23.04, None),
    ("msi", "_QVT_BARCODE_MSI_", "8052731", "Linewright Bars", 23.04, 1 + 7 * 4 + 2),
    ("ean13", "_QVT_BARCODE_EAN13_", "4006381333931", "Linewright EAN UPC", 119.74, None),
    ("ean8", "_BARCODE_EAN8_", "96385074", "Linewright EAN UPC", 119.74, None),
    ("upca", "_QVT_BARCODE_UPCA_", "036000291452", "Linewright EAN UPC", 119.74, None),
    ("upce", "_QVT_BARCODE_UPCE_", "04252614", "Linewright EAN UPC", 119.74, None),
    ("imb", "_BARCODE_USPS_IM_", "01234567094987654321", "Linewright Postal", 11.5, 65),
    ("postnet", "_QVT_BARCODE_POSTNET_", "205000003", "Linewright Postal", 11.5, 47),
    ("classic-code128b", "_BARCODE_CODE128B_", "Rack #42, unit 7", "Linewright Classic Code 128",
     23.04, None),
    ("classic-code128c", "_BARCODE_CODE128C_", "003401234512345670",
     "Linewright Classic Code 128", 23.04, None),
    ("classic-code39", "_BARCODE_CODE39_", "PALLET 118", "Linewright Classic Code 39", 23.04, None),
    ("classic-codabar", "_BARCODE_CODABAR_", "31234000", "Linewright Classic Codabar", 23.04, None),
    ("classic-ean13", "_BARCODE_EAN13_", "97803064061551995", "Linewright Classic EAN UPC", 119.74,
     None),
    ("classic-upca", "_BARCODE_UPCA_", "03600029145", "Linewright Classic EAN UPC", 119.74, None),
    ("classic-i2of5", "_BARCODE_I2OF5_", "123456789", "Linewright Classic I2of5", 23.04, None),
    ("classic-msi", "_BARCODE_MSIPLESSEY_", "4471902", "Linewright Classic MSI", 23.04,
     1 + 8 * 4 + 2),
    ("classic-postnet", "_BARCODE_POSTNET_", "101180110", "Linewright Classic Postnet", 11.5, 52),
]
RESOLUTION = 600

# Short name, data, options; width and height in points with the quiet zones.
DRAWINGS = [
    # 113 modules of 0.33 mm; 22.85 mm of bars, and the digits.
    ("ean13", "4006381333931", [], 105.70, 73.20),
    # 112 modules of 0.254 mm between 79, the next whole one above 20 mm.
    ("code128", "ABC-123", ["--quiet-zone", "20mm"], 194.4, 32.4),
]
# How far a placed file may lie beside its size: pages of PDF and EPS are placed in whole points.
SLACK = {"svg": 0.05, "png": 0.05, "tif": 0.05, "pdf": 1, "eps": 1}


def run(*words, **options):
    return subprocess.run([str(word) for word in words], check=True, timeout=300, text=True,
                          stdout=subprocess.PIPE, **options).stdout


def linewright(folder, *words):
    (folder / "app").mkdir(exist_ok=True)
    return run(BUILD / "bin/linewright", *words, "--config-dir", folder / "config", "--app-dir",
               folder / "app")


def font_text(folder, short_name, data):
    """What a person copies from the terminal."""
    return linewright(folder, "encode", short_name, data).rstrip("\n")


def bars_in(picture):
    """Dark stretches of the row that has the most of them."""
    magic, width, height, most, pixels = picture.read_bytes().split(maxsplit=4)
    assert (magic, most) == (b"P5", b"255")
    width = int(width)
    rows = (pixels[row * width:(row + 1) * width] for row in range(int(height)))
    return max(sum(1 for left, right in zip(row, row[1:]) if left >= 128 > right) for row in rows)


def scribus(folder, script, *words):
    fonts = folder / "fonts.conf"
    fonts.write_text(
        '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>'
        f"<dir>{BUILD}/share/linewright/fonts</dir><dir>/usr/share/fonts</dir>"
        f"<cachedir>{folder}/cache</cachedir></fontconfig>")
    run("scribus", "-g", "-ns", "-py", HERE / script, *words, stderr=subprocess.DEVNULL,
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "FONTCONFIG_FILE": str(fonts),
             "HOME": str(folder)})


def export(folder):
    texts = [font_text(folder, short_name, data) for short_name, _, data, _, _, _ in SAMPLES]
    rows = [{"text": text, "family": family, "size": size}
            for text, (_, _, _, family, size, _) in zip(texts, SAMPLES)]
    (folder / "rows.json").write_text(json.dumps(rows))
    scribus(folder, "set_fonts.py", folder / "rows.json", folder / "out.pdf")
    run("pdftoppm", "-gray", "-r", RESOLUTION, folder / "out.pdf", folder / "page")
    return texts


def problem_with(sample, text, picture):
    short_name, type_name, data, _, _, bars = sample
    if bars is not None:
        found = bars_in(picture)
        print(f"{short_name}: {found} bars")
        return found != bars
    reader = subprocess.run([BUILD / "bin/read_picture", type_name, data, text, picture],
                            text=True, stdout=subprocess.PIPE, timeout=60)
    print(f"{short_name}: {'; '.join(reader.stdout.splitlines())}")
    return reader.returncode != 0


def wrong_places(folder):
    """The drawings that have another size in the layout program than they say."""
    files = {}
    for short_name, data, options, width, height in DRAWINGS:
        for ending in SLACK:
            file = folder / f"{short_name}.{ending}"
            linewright(folder, "draw", short_name, data, *options, "-o", file)
            files[str(file)] = (width, height)
    scribus(folder, "place_files.py", folder / "sizes.json", *files)
    sizes = json.loads((folder / "sizes.json").read_text())
    wrong = []
    for file, asked in files.items():
        name = Path(file).name
        placed = sizes[file]
        print(f"{name}: {placed[0]:.2f} x {placed[1]:.2f} points")
        if any(abs(a - b) > SLACK[name.split(".")[1]] for a, b in zip(placed, asked)):
            wrong.append(name)
    return wrong


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        texts = export(folder)
        pages = sorted(folder.glob("page-*.pgm"))
        if len(pages) != len(SAMPLES):
            sys.exit(f"layout_test: {len(pages)} pages came out, not {len(SAMPLES)}")
        wrong = [sample[0] for sample, text, page in zip(SAMPLES, texts, pages)
                 if problem_with(sample, text, page)] + wrong_places(folder)
    if wrong:
        sys.exit(f"layout_test: not as it should be: {', '.join(wrong)}")
    print(f"layout_test: {len(SAMPLES)} strings, all read; {len(DRAWINGS) * len(SLACK)} files placed")


main()
