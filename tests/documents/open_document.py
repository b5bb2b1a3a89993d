"""Runs inside Scribus: opens a document and exports it.

Usage: scribus -g -ns -py open_document.py DOCUMENT OUT.pdf
"""
import sys

import scribus

scribus.openDoc(sys.argv[1])
pdf = scribus.PDFfile()
pdf.file = sys.argv[2]
pdf.pages = list(range(1, scribus.pageCount() + 1))
pdf.save()
