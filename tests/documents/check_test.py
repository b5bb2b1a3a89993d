#!/usr/bin/python3
"""Has `linewright check` read documents: sound ones, ones spoilt on purpose, scans, and pages
without barcodes.

Usage: check_test.py LINEWRIGHT [TENTH]     the second word makes a tenth of the documents
"""
import collections
import json
import random
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import cairo
import numpy
from PIL import Image, ImageFilter

import pages
from pages import MM, Placed

LINEWRIGHT = Path(sys.argv[1]).resolve()
IS_TENTH = len(sys.argv) > 2
problems = []


def say(problem):
    problems.append(problem)
    print("  " + problem)


def check(document, *options):
    done = subprocess.run([LINEWRIGHT, "check", document, "--json", *options], timeout=600,
                          capture_output=True, text=True)
    if done.returncode not in (0, 4):
        raise AssertionError(f"{document}: status {done.returncode}: {done.stderr}")
    report = json.loads(done.stdout)
    if (done.returncode == 4) != report["hasFaults"]:
        say(f"{document}: status {done.returncode}")
    return report


def digits(chance, count):
    return "".join(chance.choice("0123456789") for _ in range(count))


def with_check_digit(number):
    total = sum(int(digit) * (3 if place % 2 == 0 else 1)
                for place, digit in enumerate(reversed(number)))
    return number + str(-total % 10)


def label_row(chance, kind):
    """Type, data, symbology, and what a reader says."""
    if kind == "ean13":
        number = with_check_digit("4" + digits(chance, 11))
        return kind, number, "EAN-13", number
    if kind == "upca":
        number = with_check_digit(digits(chance, 11))
        return kind, number, "UPC-A", number
    if kind == "ean8":
        number = with_check_digit(digits(chance, 7))
        return kind, number, "EAN-8", number
    if kind == "code128":
        text = "AST-" + digits(chance, 4) + "-" + chance.choice("ABC") + digits(chance, 3)
        return kind, text, "Code 128", text
    if kind == "code39":
        text = "FIX-" + digits(chance, 4)
        return kind, text, "Code 39", text
    if kind == "codabar":
        text = digits(chance, 10)
        return kind, text, "Codabar", None
    if kind == "msi":
        return kind, digits(chance, 8), "MSI", None
    if kind == "i2of5":
        text = digits(chance, 14)
        return kind, text, "Interleaved 2 of 5", text
    if kind == "postnet":
        text = digits(chance, 9)
        return kind, text, "Postnet", text
    text = "0" + str(chance.randrange(5)) + digits(chance, 18) + digits(chance, 11)
    return "imb", text, "Intelligent Mail", text


KINDS = ["ean13", "upca", "ean8", "code128", "code39", "codabar", "msi", "i2of5", "postnet", "imb"]
# Those whose bars a cover or a rule must be told of, whatever else stands on the page.
LINEAR = KINDS[:8]


def others():
    """Symbols by two other makers."""
    return [
        pages.of_zint(20, "Zint 42 abc", "Code 128", "Zint 42 abc"),
        pages.of_zint(13, "501234567890", "EAN-13", "5012345678900"),
        pages.of_zint(34, "01234567890", "UPC-A", "012345678905"),
        pages.of_zint(8, "ZINT-39", "Code 39", "ZINT-39"),
        pages.of_zint(3, "12345678", "Interleaved 2 of 5", "12345678"),
        pages.of_zint(18, "A12345B", "Codabar", "A12345B"),
        pages.of_zint(40, "12345678", "Postnet", "123456784", 0.5),
        pages.of_gnu_barcode("ean", "123456789012", "EAN-13", "1234567890128"),
        pages.of_gnu_barcode("code128", "GNU-77", "Code 128", "GNU-77"),
        pages.of_gnu_barcode("code39", "GNU39", "Code 39", "GNU39"),
        pages.of_gnu_barcode("i25", "987654", "Interleaved 2 of 5", "987654"),
    ]


def fill(path, symbols, chance):
    """Puts symbols on pages in all directions, with other things between them; returns the data of
    each page."""
    surface, context = pages.new_page(path)
    expected = []
    x = y = 20
    row = 0
    for place, symbol in enumerate(symbols):
        turn = 90 * (place % 4)
        width, height = ((symbol.width, symbol.height) if turn % 180 == 0 else
                         (symbol.height, symbol.width))
        if x + width > 190:
            context.set_line_width(0.2)
            context.move_to(15, y + row + 8)
            context.line_to(195, y + row + 8)
            context.stroke()
            x, y, row = 20, y + row + 22, 0
        if y + height > 285:
            context.show_page()
            x = y = 20
            row = 0
        pages.draw(context, Placed(symbol, x, y, turn))
        pages.write(context, f"{symbol.name} {symbol.data}"[:22], x, y - 6, 2)
        row = max(row, height)
        expected.append((symbol.name, symbol.data))
        x += width + 14
        if place % 7 == 3 and x + 20 < 190:
            pages.noise(context, chance, x, y, 15, 15)
            x += 26
    surface.finish()
    return expected


def difference(expected, report):
    found = collections.Counter(
        (symbol["symbology"], symbol["shown"]) for symbol in report["symbols"])
    wanted = collections.Counter(expected)
    return wanted - found, found - wanted


def find_everything(folder):
    """Symbols of three makers in four directions, and twelve equal ones."""
    count = 2 if IS_TENTH else 12
    total = 0
    for number in range(count):
        chance = random.Random(number)
        own = pages.ours(LINEWRIGHT, folder,
                         [label_row(chance, kind) for kind in chance.sample(KINDS, 10)])
        for symbol in own:
            if symbol.data is None:
                symbol.data = said(symbol, folder)
        symbols = own + others()
        if number % 3 == 0:
            symbols += [own[0]] * 12
        chance.shuffle(symbols)
        document = folder / f"found{number}.pdf"
        expected = fill(document, symbols, chance)
        report = check(document)
        missing, surplus = difference(expected, report)
        total += len(expected)
        for what in missing.elements():
            say(f"{document.name}: not found: {what}")
        for what in surplus.elements():
            say(f"{document.name}: found, and not there: {what}")
        for symbol in report["symbols"]:
            for fault in symbol["faults"]:
                say(f"{document.name}: page {symbol['page']}, {symbol['left']:.0f}, "
                    f"{symbol['top']:.0f}: {symbol['symbology']} {symbol['shown']}: "
                    f"{fault['message']}")
    print(f"{total} symbols of three makers on {count} documents")


def said(symbol, folder):
    """What the bars of a type say that may have characters of its own in front and behind."""
    row = (folder / "rows.csv").read_text().splitlines()[symbol.line - 1]
    data = row.split(",")[1].strip('"')
    return f"A{data}B" if symbol.type == "codabar" else data


def find_nothing(folder):
    count = 3 if IS_TENTH else 30
    for number in range(count):
        document = folder / f"none{number}.pdf"
        pages.page_without(document, number)
        for symbol in check(document)["symbols"]:
            say(f"{document.name}: found {symbol['symbology']} {symbol['shown']!r}: "
                f"{symbol['faults']} at {symbol['left']}, {symbol['top']}")
    print(f"{count} pages without barcodes")


def cells(count):
    """Places of labels: two columns with white around."""
    return [(25 + 90 * (place % 2), 25 + 48 * (place // 2)) for place in range(count)]


def label_sheet(path, placed, extra=()):
    surface, context = pages.new_page(path)
    for label in placed:
        pages.draw(context, label)
        pages.write(context, label.symbol.type, label.left,
                    label.top + label.symbol.height + 6, 2.5)
    for mark in extra:
        mark(context)
    surface.finish()


def spoil(kind, placed, chance, folder):
    """Spoils one label; returns what is to be said, and the label's line."""
    victims = [label for label in placed if label.symbol.type in LINEAR]
    label = chance.choice(victims)
    symbol = label.symbol
    left, top, width, height = label.left, label.top, symbol.width, symbol.height
    if kind == "digit":
        other = list(label_row(chance, symbol.type))
        changed = pages.ours(LINEWRIGHT, pages.work_folder(folder, "changed"), [other])[0]
        label.symbol = pages.Symbol(symbol.name, symbol.data, changed.bars, changed.unit,
                                    symbol.type, symbol.line)
        return "otherData|unexpected", symbol.line
    if kind == "missing":
        placed.remove(label)
        return "missing", symbol.line
    if kind == "twice":
        placed.append(Placed(symbol, *cells(10)[9]))
        return "twice", symbol.line
    if kind == "rule":
        side = chance.choice([-1, 1])
        x = left - 3 * symbol.unit if side < 0 else left + width + 3 * symbol.unit

        def rule(context):
            context.set_source_rgb(0, 0, 0)
            context.set_line_width(0.3)
            context.move_to(x, top - 3)
            context.line_to(x, top + height + 3)
            context.stroke()
        label.marks.append(rule)
        return "quietZoneLeft" if side < 0 else "quietZoneRight", symbol.line
    if kind == "edge":
        label.left = 3 * symbol.unit
        return "quietZoneLeft", symbol.line
    if kind == "wide":
        label.gain = 0.2
        return "wideBars", symbol.line
    if kind == "small":
        label.scale = 0.2
        return "xDimension", symbol.line
    if kind == "pale":
        label.colour = (0.5, 0.5, 0.5)
        return "contrast", symbol.line

    def cover(context):
        if kind == "box":
            context.set_source_rgb(1, 1, 1)
            context.rectangle(left + 0.3 * width, top - 1, 0.4 * width, height + 2)
            context.fill()
        else:
            pages.noise(context, random.Random(1), left + 0.5 * width, top - 1, 0.4 * width,
                        height + 2)
    label.marks.append(cover)
    return "covered", symbol.line


SPOILS = ["digit", "missing", "twice", "rule", "edge", "wide", "small", "pale", "box", "picture"]


def tell_what_is_spoilt(folder):
    rounds = 2 if IS_TENTH else 20
    for number in range(rounds):
        chance = random.Random(1000 + number)
        kinds = [chance.choice(LINEAR) for _ in range(5)] + [chance.choice(KINDS)]
        own = pages.work_folder(folder, f"sheet{number}")
        symbols = pages.ours(LINEWRIGHT, own, [label_row(chance, kind) for kind in kinds])
        for spoiling in SPOILS:
            placed = [Placed(symbol, *cell) for symbol, cell in zip(symbols, cells(6))]
            sound = own / f"{spoiling}-sound.pdf"
            if spoiling == SPOILS[0]:
                label_sheet(sound, placed)
            else:
                # Another sheet each time: the labels change their places.
                places = cells(6)
                chance.shuffle(places)
                for label, (left, top) in zip(placed, places):
                    label.left, label.top = left, top
                label_sheet(sound, placed)
            report = check(sound, "--data", own / "rows.csv")
            if report["hasFaults"] or len(report["symbols"]) != len(placed):
                say(f"{sound}: sound, and said to be faulty: {all_faults(report)}")
            document = own / f"{spoiling}.pdf"
            wanted, line = spoil(spoiling, placed, chance, own)
            label_sheet(document, placed)
            report = check(document, "--data", own / "rows.csv")
            faults = all_faults(report)
            if not any(fault in wanted.split("|") and of == line for fault, of in faults):
                say(f"{document}: {wanted} of line {line} not told: {faults}")
            if any(of not in (line, None) for _, of in faults):
                say(f"{document}: told of sound labels too: {faults}, and {line} is spoilt")
    print(f"{rounds * len(SPOILS)} spoilt documents, and as many sound ones")


def all_faults(report):
    """Kinds of faults with the lines of their rows; of covered bars by their place alone."""
    faults = [(fault["kind"], fault["line"]) for fault in report["faults"]]
    missing = [line for kind, line in faults if kind == "missing"]
    for symbol in report["symbols"]:
        line = symbol.get("line", missing[0] if len(missing) == 1 else None)
        faults += [(fault["kind"], line) for fault in symbol["faults"]]
    return faults


def read_scans(folder):
    """Grey pictures of 300 dpi: blurred, noisy, slanted by three degrees."""
    count = 1 if IS_TENTH else 8
    total = 0
    for number in range(count):
        chance = random.Random(2000 + number)
        own = pages.work_folder(folder, f"scan{number}")
        symbols = pages.ours(LINEWRIGHT, own, [label_row(chance, kind) for kind in KINDS])
        sheet = own / "sheet.pdf"
        placed = [Placed(symbol, x + 5, y - 4) for symbol, (x, y) in zip(symbols, cells(10))]
        label_sheet(sheet, placed)
        subprocess.run(["pdftoppm", "-gray", "-r", "300", "-singlefile", sheet, own / "page"],
                       check=True)
        for angle, sigma, grain in ((0, 0.7, 10), (3, 0.7, 10), (-3, 1.0, 20)):
            picture = Image.open(own / "page.pgm").rotate(
                angle, resample=Image.BICUBIC, fillcolor=255)
            picture = picture.filter(ImageFilter.GaussianBlur(sigma))
            pixels = numpy.asarray(picture, dtype=float) * 0.8 + 30
            pixels += numpy.random.default_rng(number).normal(0, grain, pixels.shape)
            scan = own / f"scan{angle}.{'tif' if angle == 3 else 'png'}"
            Image.fromarray(pixels.clip(0, 255).astype("uint8")).save(scan, dpi=(300, 300))
            report = check(scan, "--data", own / "rows.csv")
            total += len(symbols)
            for fault in report["faults"]:
                say(f"{scan}: {fault['message']}")
            for symbol in report["symbols"]:
                for fault in symbol["faults"]:
                    if fault["kind"] in ("unexpected", "otherData", "twice", "unread"):
                        say(f"{scan}: {symbol['shown']}: {fault['message']}")
    print(f"{total} symbols in scans")


def read_many(folder):
    """Live text in our fonts, by the command itself: every label, and nothing else."""
    count = 100 if IS_TENTH else 1000
    chance = random.Random(3000)
    listing = folder / "many.csv"
    listing.write_text("type,data\n" + "".join(
        "{},{}\n".format(*label_row(chance, chance.choice(KINDS))[:2]) for _ in range(count)))
    document = folder / "many.pdf"
    subprocess.run([LINEWRIGHT, "proof", listing, "-o", document], check=True,
                   capture_output=True)
    report = check(document, "--data", listing)
    if len(report["symbols"]) != count:
        say(f"{len(report['symbols'])} of {count} labels found")
    for fault in all_faults(report)[:20]:
        say(f"{document.name}: {fault}")
    print(f"{count} labels of live text on {report['pageCount']} pages")


def main():
    parts = (find_everything, find_nothing, tell_what_is_spoilt, read_scans, read_many)
    folder = Path(tempfile.mkdtemp(prefix="linewright-check-"))
    for part in parts:
        part(pages.work_folder(folder, part.__name__))
    if problems:
        sys.exit(f"{len(problems)} problems; the documents are in {folder}")
    shutil.rmtree(folder)


main()
