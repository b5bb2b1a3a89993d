"""Runs inside Scribus: a page for each row of a JSON file, with a font string in a text frame.

Usage: scribus -g -ns -py set_fonts.py ROWS.json OUT.pdf
"""
import json
import sys

import scribus

rows = json.load(open(sys.argv[1], encoding="utf-8"))
scribus.newDocument((200, 500), (0, 0, 0, 0), scribus.LANDSCAPE, 1, scribus.UNIT_POINTS,
                    scribus.PAGE_1, 0, len(rows))
for page, row in enumerate(rows, 1):
    scribus.gotoPage(page)
    frame = scribus.createText(20, 20, 460, 160)
    scribus.setText(row["text"], frame)
    scribus.selectText(0, len(row["text"]), frame)
    scribus.setFont(row["family"] + " Regular", frame)
    scribus.setFontSize(row["size"], frame)
    scribus.setTextColor("Black", frame)
pdf = scribus.PDFfile()
pdf.file = sys.argv[2]
pdf.pages = list(range(1, len(rows) + 1))
pdf.save()
