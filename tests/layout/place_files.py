"""Runs inside Scribus: places files and says how large each is, in points, as JSON.

Usage: scribus -g -ns -py place_files.py SIZES.json FILE…
"""
import json
import sys

import scribus


def placed_size(file):
    """Of an SVG as the objects that it becomes, of any other file as a picture at its own scale."""
    if file.endswith(".svg"):
        scribus.deselectAll()
        scribus.placeSVG(file, 0, 0)
        return scribus.getSize(scribus.getSelectedObject())
    frame = scribus.createImage(0, 0, 400, 400)
    scribus.loadImage(file, frame)
    scribus.setScaleFrameToImage(frame)
    return scribus.getSize(frame)


scribus.newDocument((500, 500), (0, 0, 0, 0), scribus.PORTRAIT, 1, scribus.UNIT_POINTS,
                    scribus.PAGE_1, 0, 1)
sizes = {file: placed_size(file) for file in sys.argv[2:]}
with open(sys.argv[1], "w", encoding="utf-8") as out:
    json.dump(sizes, out)
