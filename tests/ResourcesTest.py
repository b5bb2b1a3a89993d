#!/usr/bin/env python3
"""Every program and library for Windows says what it is, has the icon, and wants paths in UTF-8 of any length.

Usage: ResourcesTest.py VERSION FILE…
"""
import sys
import xml.etree.ElementTree
from pathlib import Path

import pefile

SETTINGS = {
    "{http://schemas.microsoft.com/SMI/2019/WindowsSettings}activeCodePage": "UTF-8",
    "{http://schemas.microsoft.com/SMI/2016/WindowsSettings}longPathAware": "true",
}
ICON_SIZES = {16, 32, 48, 64, 256}


def resources(image: pefile.PE, kind: str) -> dict[int, bytes]:
    """Those of one kind, by their number."""
    found = {}
    for entry in image.DIRECTORY_ENTRY_RESOURCE.entries:
        if entry.id == pefile.RESOURCE_TYPE[kind]:
            for numbered in entry.directory.entries:
                place = numbered.directory.entries[0].data.struct
                found[numbered.id] = image.get_data(place.OffsetToData, place.Size)
    return found


def texts(image: pefile.PE) -> dict[str, str]:
    """The texts of the version resource."""
    return {name.decode(): text.decode()
            for information in image.FileInfo[0] if information.Key == b"StringFileInfo"
            for table in information.StringTable for name, text in table.entries.items()}


def icon_sizes(group: bytes) -> set[int]:
    """Widths in pixels; a byte of 0 stands for 256."""
    return {group[6 + 14 * i] or 256 for i in range(int.from_bytes(group[4:6], "little"))}


def mistakes(path: Path, version: str):
    image = pefile.PE(path)
    if not hasattr(image, "DIRECTORY_ENTRY_RESOURCE"):
        yield "has no resources"
        return
    said = texts(image)
    expected = {"CompanyName": "Linewright", "ProductName": "Linewright", "FileVersion": version,
                "ProductVersion": version, "OriginalFilename": path.name, "InternalName": path.name}
    for name, text in expected.items():
        if said.get(name) != text:
            yield f"{name} is {said.get(name)!r}, expected {text!r}"
    if not said.get("FileDescription", "").startswith("Linewright"):
        yield f"FileDescription is {said.get('FileDescription')!r}"
    fixed = image.VS_FIXEDFILEINFO[0]
    numbers = [int(part) for part in version.split(".")] + [0]
    expected_words = (numbers[0] << 16 | numbers[1], numbers[2] << 16 | numbers[3])
    for words in ((fixed.FileVersionMS, fixed.FileVersionLS), (fixed.ProductVersionMS, fixed.ProductVersionLS)):
        if words != expected_words:
            yield f"its version in numbers is {words}, expected {expected_words}"
    sizes = [icon_sizes(group) for group in resources(image, "RT_GROUP_ICON").values()]
    if sizes != [ICON_SIZES]:
        yield f"its icons have the sizes {sizes}, expected {[ICON_SIZES]}"
    place = 2 if image.is_dll() else 1
    manifests = resources(image, "RT_MANIFEST")
    if list(manifests) != [place]:
        yield f"its manifests are in the places {list(manifests)}, expected {[place]}"
        return
    manifest = xml.etree.ElementTree.fromstring(manifests[place])
    for name, value in SETTINGS.items():
        if manifest.findtext(f".//{name}") != value:
            yield f"its manifest does not say {name}: {value}"


found = [f"{path}: {mistake}" for path in sys.argv[2:] for mistake in mistakes(Path(path), sys.argv[1])]
if found or not sys.argv[2:]:
    sys.exit("\n".join(found) or "no files")
print(f"{len(sys.argv[2:])} files say what they are")
