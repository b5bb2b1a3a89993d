"""Runs inside Scribus: the pictures of docs/data-merge.md, each a page.

Usage: scribus -g -ns -py merge_pictures.py MERGED.csv OUT.pdf
  with the font of Linewright's folder where fontconfig finds it
"""
import csv
import sys

import scribus

TEXT = "DejaVu Sans Book"


def line(text, left, top, width, font, size, height):
    frame = scribus.createText(left, top, width, height)
    scribus.setText(text, frame)
    scribus.selectText(0, len(text), frame)
    scribus.setFont(font, frame)
    scribus.setFontSize(size, frame)
    scribus.setTextColor("Black", frame)
    scribus.setTextAlignment(scribus.ALIGN_CENTERED, frame)
    scribus.setLineSpacing(size, frame)


def label(row, left, top):
    scribus.setLineColor("Black", scribus.createRect(left, top, 190, 130))
    line(row["article"], left + 5, top + 8, 180, TEXT, 10, 16)
    line(row["barcode"], left + 5, top + 30, 180, row["font"] + " Regular", float(row["size"]), 110)
    if row["font"] != "Linewright EAN UPC":  # which has its digits below the bars
        line(row["text"], left + 5, top + 58, 180, TEXT, 9, 14)


def wrong(caption, text, font, size, left):
    line(text, left, 14, 185, font, size, 100)
    line(caption, left, 122, 185, TEXT, 9, 14)


rows = list(csv.DictReader(open(sys.argv[1], encoding="utf-16"), delimiter="\t"))
scribus.newDocument((140, 610), (0, 0, 0, 0), scribus.LANDSCAPE, 1, scribus.UNIT_POINTS, scribus.PAGE_1, 0, 2)
scribus.gotoPage(1)
for place, row in enumerate(rows[:3]):
    label(row, 10 + 200 * place, 0)
scribus.gotoPage(2)
pen = rows[0]
wrong("119.74 pt: scans", pen["barcode"], pen["font"] + " Regular", 119.74, 10)
wrong("12 pt: no scanner reads it", pen["barcode"], pen["font"] + " Regular", 12, 210)
wrong("the font is missing", pen["barcode"], TEXT, 20, 410)
pdf = scribus.PDFfile()
pdf.file = sys.argv[2]
pdf.pages = [1, 2]
pdf.save()
