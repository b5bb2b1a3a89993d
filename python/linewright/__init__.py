"""Barcodes as text for barcode fonts.

>>> import linewright
>>> linewright.encode("ean13", "400638133393")
'Y(0A63IB*NNNTNL('

Texts that are set in their font are barcodes; what cannot be one is refused with the reason. Plug-in
and fonts are found from the place of this package.
"""
from __future__ import annotations

import atexit
import enum
import threading
from typing import Any, NamedTuple

from . import _library

__all__ = ["Barcode", "Many", "Reason", "Refused", "Type", "Verification", "draw", "encode",
           "encode_many", "open", "types", "verify"]
__version__: str = _library.version

_FLAGS = {"strict": 2, "warn": 4, "text": 16, "no_text": 32, "fit": 64, "bearer": 128,
          "margin_marks": 256, "grey": 512}
_BYTES = 1
_opening = threading.Lock()
_is_open = False


class Reason(enum.IntEnum):
    """What became of a row."""

    MADE = 0
    WARNED = 1
    UNKNOWN_TYPE = 2
    BAD_DATA = 3
    NOT_STRICT = 4
    MISSING = 255


class Refused(ValueError):
    """Data or a type that makes no barcode.

    >>> try:
    ...     encode("ean13", "40O638133393")
    ... except Refused as refused:
    ...     print(refused, refused.type, refused.position, refused.status)
    Only the digits 0 to 9 _QVT_BARCODE_EAN13_ 2 -6301
    """

    def __init__(self, message: str, type: str, position: int | None, hint: str, status: int,
                 reason: Reason, warnings: tuple[str, ...]) -> None:
        super().__init__(message)
        #: The type name that was sent to the plug-in.
        self.type = type
        #: Where in the data the refused character stands, from 0; None where none is to blame.
        self.position = position
        #: The plug-in's hint; empty where it gives none.
        self.hint = hint
        #: The plug-in's status; 0 where it was not the plug-in that refused.
        self.status = status
        self.reason = reason
        self.warnings = warnings

    def __reduce__(self) -> tuple[Any, ...]:
        return (Refused, (str(self), self.type, self.position, self.hint, self.status, self.reason,
                          self.warnings))


class Barcode(str):
    """Font text; set in `font` at `size` points it is the barcode. A notebook shows it drawn.

    >>> pen = encode("ean13", "4006381333937")
    >>> pen.font, round(pen.size, 1), pen.human_readable
    ('Linewright EAN UPC', 119.7, '4006381333931')
    >>> pen.warnings
    ('the check digit 7 was replaced by the computed one, 1',)
    """

    #: The type name that was sent to the plug-in.
    type: str
    #: The font string, of which the text is the characters.
    font_bytes: bytes
    #: What people read below the bars.
    human_readable: str
    #: The font's family, and its size in points; empty and 0 for a type without bars.
    font: str
    size: float
    warnings: tuple[str, ...]
    _made_of: tuple[str, str | bytes, dict[str, Any]]

    def _drawn(self, format: str) -> bytes | None:
        if not self.font:
            return None
        type, data, options = self._made_of
        return draw(type, data, format, **options)

    def _repr_svg_(self) -> str | None:
        drawn = self._drawn("svg")
        return None if drawn is None else drawn.decode()

    def _repr_png_(self) -> bytes | None:
        return self._drawn("png")


class Type(NamedTuple):
    """A barcode type."""

    name: str
    short_name: str
    display_text: str
    font: str
    size: float


class Many(NamedTuple):
    """What became of rows: of the kind that they came in, and with the index of a Series. A refused
    row's text is None."""

    texts: Any
    statuses: Any
    reasons: Any


class Verification(NamedTuple):
    """What scanners made of a drawing: "scans", "scans as other", "does not scan" or "no scanner"."""

    verdict: str
    read: str
    warnings: tuple[str, ...]


def open(*, plugin: str = "", config_dir: str = "", app_dir: str = "", fonts: str = "",
         locale: str = "") -> None:
    """Starts the plug-in, which the first call does otherwise. Raises RuntimeError where it does not
    start, or has been started with other places.

    >>> open()
    >>> open(locale="jaJP")
    Traceback (most recent call last):
    RuntimeError: it is open already, with another plug-in, folder or locale
    """
    global _is_open
    with _opening:
        _library.open(plugin, config_dir, app_dir, fonts, locale)
        if _is_open:
            _library.close()
            return
        _is_open = True
        atexit.register(_library.close)


def _start() -> None:
    if not _is_open:
        open()


def _options(data: str | bytes = "", *, check: bool | int = False, ratio: float = 2.0,
             dpi: float = 0, pixels_per_module: float = 0, **wishes: Any) -> _library.Options:
    flags = 0 if isinstance(data, str) else _BYTES
    texts = {}
    if wishes.get("text") is False:
        wishes["no_text"] = True
    for name, value in wishes.items():
        if name in _FLAGS:
            flags |= _FLAGS[name] if value else 0
        elif name in ("x_dimension", "height", "quiet_zone", "bar_width_reduction", "ink"):
            texts[name] = str(value)
        else:
            raise TypeError(f"there is no option {name!r}")
    return _library.Options(flags, int(check), ratio, texts, dpi, pixels_per_module)


def _refuse(made: dict[str, Any], data: str | bytes) -> None:
    """Raises Refused for what was not made."""
    reason = Reason(made["reason"])
    if reason <= Reason.WARNED:
        return
    position = made["position"] if made["position"] >= 0 else None
    if position is not None and isinstance(data, str):
        position = len(data.encode()[:position].decode())
    raise Refused(made["message"], made["type"], position, made["hint"], made["status"], reason,
                  tuple(made["warnings"]))


def encode(type: str, data: str | bytes, *, check: bool | int = False, ratio: float = 2.0,
           strict: bool = False) -> Barcode:
    """The font text of a barcode. `type` is one of types() or what people write, such as "EAN-13";
    bytes are sent as they are. Raises Refused.

    >>> encode("code39", "FIX-0042", check=True, ratio=3).human_readable
    'FIX-0042M'
    """
    _start()
    options: dict[str, Any] = {"check": check, "ratio": ratio, "strict": strict}
    made = _library.encode(type, data, _options(data, **options))
    _refuse(made, data)
    barcode = Barcode(made["text"])
    barcode.type = made["type"]
    barcode.font_bytes = made["bytes"]
    barcode.human_readable = made["human_readable"]
    barcode.font = made["font"]
    barcode.size = made["size"]
    barcode.warnings = tuple(made["warnings"])
    barcode._made_of = (type, data, options)
    return barcode


def _is_missing(item: Any) -> bool:
    if isinstance(item, str):
        return False
    is_nan = isinstance(item, float) and item != item
    return item is None or is_nan or type(item).__name__ == "NAType"  # pandas.NA


def encode_many(type: str, data: Any, *, check: bool | int = False, ratio: float = 2.0,
                strict: bool = False, warn: bool = True) -> Many:
    """The font texts of a sequence of str, a pandas.Series or a numpy array. None and NaN stay
    missing. Without `warn` a row with warnings is MADE. Other threads run meanwhile.

    >>> made = encode_many("ean13", ["400638133393", "40O638133393"])
    >>> made.texts
    ['Y(0A63IB*NNNTNL(', None]
    >>> [Reason(reason).name for reason in made.reasons]
    ['MADE', 'BAD_DATA']
    """
    _start()
    items = data.tolist() if hasattr(data, "tolist") else list(data)
    rows = [row for row, item in enumerate(items) if not _is_missing(item)]
    for row in rows:
        if not isinstance(items[row], str):
            raise TypeError(f"row {row} is no str but {items[row].__class__}")
    is_whole = len(rows) == len(items)
    given = items if is_whole else [items[row] for row in rows]
    made = _library.encode_many(type, given,
                                _options(check=check, ratio=ratio, strict=strict, warn=warn))
    columns = [*made]
    if not is_whole:
        columns = [[None] * len(items), [0] * len(items), [int(Reason.MISSING)] * len(items)]
        for column, values in zip(columns, made):
            for row, value in zip(rows, values):
                column[row] = value
    return Many(*(_like(data, column, kind) for column, kind
                  in zip(columns, ("object", "int32", "uint8"))))


def _like(data: Any, column: list[Any], kind: str) -> Any:
    """A column of the kind that data is."""
    if hasattr(data, "index") and hasattr(data, "to_frame"):
        return data._constructor(column, index=data.index, dtype=kind, name=data.name)
    if hasattr(data, "dtype"):
        import numpy
        return numpy.array(column, dtype=kind)
    return column


def types() -> list[Type]:
    """All types.

    >>> len(types()), types()[8].short_name
    (27, 'classic-ean13')
    """
    _start()
    return [Type(*row) for row in _library.types()]


def draw(type: str, data: str | bytes, format: str = "pdf", **options: Any) -> bytes:
    """A barcode drawn, as the content of a file: pdf, eps, svg, png or tiff. The options are the
    command's: check, ratio, strict, x_dimension, height, quiet_zone, bar_width_reduction ("0.33mm", "10x"), ink, text, fit, bearer,
    margin_marks, grey, dpi, pixels_per_module. Raises Refused; RuntimeError for a drawing that
    cannot be had.

    >>> draw("ean13", "400638133393", x_dimension="0.4mm")[:5]
    b'%PDF-'
    """
    _start()
    made = _library.draw(type, data, format, _options(data, **options))
    _refuse(made, data)
    return bytes(made["file"])


def verify(type: str, data: str | bytes, **options: Any) -> Verification:
    """Draws a barcode and has scanners read it. The options are those of draw.

    >>> verify("ean13", "400638133393").verdict
    'scans'
    """
    _start()
    made = _library.verify(type, data, _options(data, **options))
    _refuse(made, data)
    verdict = ("no scanner", "scans", "scans as other", "does not scan")[made["verdict"]]
    return Verification(verdict, made["read"], tuple(made["warnings"]))
