"""Random files of rows, for those who compare one run of the program with another."""
import codecs
import random

ENCODINGS = {
    "utf-8": ("utf-8", b""), "utf-8 with mark": ("utf-8", codecs.BOM_UTF8),
    "utf-16le": ("utf-16le", b""), "utf-16be": ("utf-16be", codecs.BOM_UTF16_BE),
    "windows-1252": ("cp1252", b""), "mac-roman": ("mac_roman", b""),
}


def table(rng: random.Random, encoding: str, rows: int, quotes: bool = True) -> bytes:
    """Rows with quotes in all places, refused ones, ragged ones, blank lines."""
    codec, mark = ENCODINGS[encoding]
    ending = rng.choice(["\n", "\r\n", "\r"])
    letters = "äÉß" if codec in ("cp1252", "mac_roman") else "äÉ中😁"
    lines = ["note,type,data"]
    for number in range(rows):
        kind = rng.random()
        note = f"{number}{rng.choice(letters)}" * rng.randint(0, 4)
        if quotes and kind < 0.2:
            note = f'"{note}{rng.choice(["", ending, chr(10), chr(13), chr(34) * 2, ","])}x"'
        elif quotes and kind < 0.3:
            note += '5" disk'
        if kind < 0.99:
            data = rng.randrange(10**12) if rng.random() < 0.97 else f"x{rng.randrange(40)}"
            lines.append(f"{note},{rng.choice(['ean13', 'ean13', 'classic-codabar'])},{data}")
        else:
            lines.append(rng.choice(["", note, f"{note},ean13,1,2"]))
    text = ending.join(lines) + (ending if rng.random() < 0.5 else "")
    return mark + text.encode(codec)
