"""Pages with barcodes of several makers on them, and pages without."""
import math
import random
import re
import subprocess
from dataclasses import dataclass, field
from pathlib import Path

import cairo

MM = 72 / 25.4
A4 = (210, 297)


@dataclass
class Symbol:
    """Bars as rectangles (left, top, right, bottom) in narrow widths, from (0, 0) on."""
    name: str
    data: str
    bars: list
    unit: float  # mm
    type: str = ""
    line: int = 0

    @property
    def width(self):
        return max(bar[2] for bar in self.bars) * self.unit

    @property
    def height(self):
        return max(bar[3] for bar in self.bars) * self.unit


@dataclass
class Placed:
    symbol: Symbol
    left: float
    top: float
    turn: int = 0
    colour: tuple = (0, 0, 0)
    scale: float = 1
    gain: float = 0  # of a narrow width
    marks: list = field(default_factory=list)


def moved(bars):
    left = min(bar[0] for bar in bars)
    top = min(bar[1] for bar in bars)
    return [(a - left, b - top, c - left, d - top) for a, b, c, d in bars]


def ours(linewright, folder, rows):
    """Symbols of rows (type, data, name, what a reader says), drawn by the command."""
    listing = folder / "rows.csv"
    listing.write_text("type,data\n" + "".join(f'{row[0]},"{row[1]}"\n' for row in rows))
    subprocess.run([linewright, "draw", listing, "-o", folder / "{line}.svg", "--no-text"],
                   check=True, stderr=subprocess.DEVNULL)
    symbols = []
    for line, (kind, _, name, says) in enumerate(rows, 2):
        svg = (folder / f"{line}.svg").read_text()
        paths = re.findall(r'<path d="([^"]*)"', svg)
        width = float(re.search(r'width="([\d.]+)mm"', svg)[1])
        units = float(re.search(r'viewBox="0 0 ([\d.]+)', svg)[1])
        bars = [tuple(map(float, found)) for found in re.findall(
            r"M([\d.]+) ([\d.]+)H([\d.]+)V([\d.]+)H[\d.]+z", paths[0])]
        symbols.append(Symbol(name, says, moved(bars), width / units, kind, line))
    return symbols


def of_zint(kind, data, name, says, unit=0.33):
    svg = subprocess.run(["zint", "-b", str(kind), "-d", data, "--filetype=SVG", "--direct",
                          "--notext"], check=True, capture_output=True, text=True).stdout
    bars = []
    for x, y, width, height in re.findall(
            r'<rect x="([\d.]+)" y="([\d.]+)" width="([\d.]+)" height="([\d.]+)" />', svg):
        x, y, width, height = (float(each) / 2 for each in (x, y, width, height))
        bars.append((x, y, x + width, y + height))
    return Symbol(name, says, moved(bars), unit)


def of_gnu_barcode(kind, data, name, says, unit=0.4):
    text = subprocess.run(["barcode", "-E", "-n", "-c", "-b", data, "-e", kind], check=True,
                          capture_output=True, text=True).stdout
    bars = []
    for height, x, y, width in re.findall(
            r"\[\s*([\d.]+)\s+([\d.]+)\s+([\d.]+)\s+([\d.]+)\]", text):
        height, x, y, width = map(float, (height, x, y, width))
        # It leaves 0.15 of a module for ink.
        width += 0.15
        bars.append((x - width / 2, -y - height, x + width / 2, -y))
    return Symbol(name, says, moved(bars), unit)


def draw(context, placed):
    symbol = placed.symbol
    context.save()
    context.translate(placed.left, placed.top)
    if placed.turn == 90:
        context.translate(symbol.height, 0)
    elif placed.turn == 180:
        context.translate(symbol.width, symbol.height)
    elif placed.turn == 270:
        context.translate(0, symbol.width)
    context.rotate(math.radians(placed.turn))
    context.scale(symbol.unit * placed.scale, symbol.unit * placed.scale)
    context.set_source_rgb(*placed.colour)
    for left, top, right, bottom in symbol.bars:
        context.rectangle(left - placed.gain / 2, top, right - left + placed.gain, bottom - top)
        context.fill()
    context.restore()
    for mark in placed.marks:
        mark(context)


def new_page(path, size=A4):
    surface = cairo.PDFSurface(str(path), size[0] * MM, size[1] * MM)
    context = cairo.Context(surface)
    context.scale(MM, MM)
    return surface, context


def write(context, text, x, y, size=3, family="DejaVu Sans"):
    context.select_font_face(family)
    context.set_font_size(size)
    context.set_source_rgb(0, 0, 0)
    context.move_to(x, y)
    context.show_text(text)


WORDS = ("quay ill lattice Hilfe million illicit 1111 1lIl pallet 0042 minimum wing | || fill "
         "barley 4006381333931 till annum").split()


def paragraph(context, chance, x, y, width, lines, size=3):
    for line in range(lines):
        write(context, " ".join(chance.choice(WORDS) for _ in range(int(width / size / 3))), x,
              y + line * size * 1.3, size)


def hatching(context, x, y, width, height, step, line, upright=True):
    context.set_source_rgb(0, 0, 0)
    context.set_line_width(line)
    place = 0
    while place < (width if upright else height):
        if upright:
            context.move_to(x + place, y)
            context.line_to(x + place, y + height)
        else:
            context.move_to(x, y + place)
            context.line_to(x + width, y + place)
        context.stroke()
        place += step


def noise(context, chance, x, y, width, height, pixels=80):
    picture = cairo.ImageSurface(cairo.FORMAT_RGB24, pixels, pixels)
    content = picture.get_data()
    for place in range(0, len(content), 4):
        content[place:place + 3] = bytes([chance.randrange(256)] * 3)
    picture.mark_dirty()
    context.save()
    context.translate(x, y)
    context.scale(width / pixels, height / pixels)
    context.set_source_surface(picture)
    context.paint()
    context.restore()


def table(context, chance, x, y, rows, columns):
    context.set_source_rgb(0, 0, 0)
    context.set_line_width(0.2)
    places = [0]
    for _ in range(columns):
        places.append(places[-1] + chance.choice([4, 7, 11]))
    for place in places:
        context.move_to(x + place, y)
        context.line_to(x + place, y + 5 * rows)
        context.stroke()
    for row in range(rows + 1):
        context.move_to(x, y + 5 * row)
        context.line_to(x + places[-1], y + 5 * row)
        context.stroke()
    for row in range(rows):
        for place in places[:-1]:
            write(context, str(chance.randrange(100)), x + place + 0.5, y + 5 * row + 4, 2.5)


def chart(context, chance, x, y, bars):
    context.set_source_rgb(0.2, 0.2, 0.2)
    for bar in range(bars):
        height = chance.uniform(5, 40)
        context.rectangle(x + 3 * bar, y + 40 - height, 2, height)
        context.fill()


def page_without(path, seed):
    """A page full of what is no barcode."""
    chance = random.Random(seed)
    surface, context = new_page(path)
    parts = [
        lambda y: paragraph(context, chance, 15, y + 4, 170, 12, chance.choice([2, 2.5, 3])),
        lambda y: hatching(context, 15, y, 80, 40, chance.choice([0.5, 1, 1.5, 2]),
                           chance.choice([0.2, 0.3, 0.5]), chance.random() < 0.7),
        lambda y: noise(context, chance, 20, y, 60, 40, chance.choice([60, 120, 240])),
        lambda y: table(context, chance, 15, y, 8, chance.choice([8, 14, 20])),
        lambda y: chart(context, chance, 15, y, 40),
        lambda y: write(context, "Illlill IIII", 15, y + 25, 22),
    ]
    for place in range(5):
        chance.choice(parts)(15 + 52 * place)
    surface.finish()


def work_folder(base, name):
    folder = Path(base) / name
    folder.mkdir(parents=True, exist_ok=True)
    return folder
