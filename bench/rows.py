"""Files of rows to be merged, the same in every run."""
import random
import string
from typing import NamedTuple

DIGITS = string.digits
CODE128 = string.ascii_uppercase + DIGITS


class Row(NamedTuple):
    """What is encoded, and what zint calls its symbology and takes as its data."""
    type: str
    data: str
    symbology: str
    other: str


def _text(rng: random.Random, characters: str, length: int) -> str:
    return "".join(rng.choices(characters, k=length))


def _intelligent_mail(rng: random.Random) -> Row:
    tracking = rng.choice(DIGITS) + rng.choice("01234") + _text(rng, DIGITS, 18)
    routing = _text(rng, DIGITS, 11)
    return Row("imb", tracking + routing, "USPS_IMAIL", f"{tracking}-{routing}")


def _of(kind: str, symbology: str, characters: str, length: int, front: str = "",
        other: str = "{}"):
    def make(rng: random.Random) -> Row:
        data = front + _text(rng, characters, length)
        return Row(kind, data, symbology, other.format(data))
    return make


CODE_128 = _of("code128", "CODE128", CODE128, 12)
EAN_13 = _of("ean13", "EANX", DIGITS, 12)
TEN_TYPES = [
    CODE_128, EAN_13, _intelligent_mail, _of("code39", "CODE39", CODE128, 8),
    _of("codabar", "CODABAR", DIGITS, 8, other="A{}B"), _of("i2of5", "C25INTER", DIGITS, 14),
    _of("msi", "MSI_PLESSEY", DIGITS, 8), _of("ean8", "EANX", DIGITS, 7),
    _of("upca", "UPCA", DIGITS, 11), _of("upce", "UPCE", DIGITS, 6, "0"),
]


def _plain(row: Row, _: random.Random) -> str:
    return f"{row.type},{row.data}\n"


def _wide(row: Row, rng: random.Random) -> str:
    others = ",".join(_text(rng, string.ascii_letters, rng.randint(3, 12)) for _ in range(18))
    return f"{row.type},{row.data},{others}\n"


def _quoted(row: Row, _: random.Random) -> str:
    return f'"{row.type}","{row.data}"\r\n'


# Each file's name, what makes its rows in turns, its header and what makes a line of a row.
FILES = {
    "Code 128": ([CODE_128], "type,data\n", _plain),
    "EAN-13": ([EAN_13], "type,data\n", _plain),
    "Intelligent Mail": ([_intelligent_mail], "type,data\n", _plain),
    "ten types": (TEN_TYPES, "type,data\n", _plain),
    "20 columns": ([EAN_13], "type,data," + ",".join(f"c{i}" for i in range(18)) + "\n", _wide),
    "quoted, CRLF": ([EAN_13], '"type","data"\r\n', _quoted),
}


def rows_of(name: str, count: int) -> list[Row]:
    rng = random.Random(name)
    makers = FILES[name][0]
    return [makers[number % len(makers)](rng) for number in range(count)]


def text_of(name: str, rows: list[Row]) -> str:
    _, header, line = FILES[name]
    rng = random.Random(name)
    return header + "".join(line(row, rng) for row in rows)
