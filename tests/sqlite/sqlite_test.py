#!/usr/bin/env python3
"""The extension in the sqlite3 program, as it is loaded by hand.

Usage: sqlite_test.py EXTENSION STREAM-PROGRAM ROWS
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

EXTENSION, STREAM, ROWS = Path(sys.argv[1]).resolve(), sys.argv[2], int(sys.argv[3])
CONFIG = tempfile.TemporaryDirectory()
ENVIRONMENT = {**os.environ, "XDG_CONFIG_HOME": CONFIG.name}


def sql(*lines: str, script: str = "") -> list[str]:
    words = [word for line in [f".load {EXTENSION.with_suffix('')}", *lines] for word in ("-cmd", line)]
    run = subprocess.run(["sqlite3", "-batch", "-bail", "-nullvalue", "NULL", *words, ":memory:", script or ".quit"],
                         capture_output=True, text=True, env=ENVIRONMENT)
    assert run.returncode == 0, run.stderr
    assert run.stderr == "", run.stderr
    return run.stdout.splitlines()


class SqliteTest(unittest.TestCase):
    def test_barcode_or_error(self):
        self.assertEqual(
            sql(script="""SELECT barcode('ean13', sku), barcode_error('ean13', sku) FROM
                          (SELECT '400638133393' AS sku UNION ALL SELECT '40O' UNION ALL SELECT NULL)"""),
            ["Y(0A63IB*NNNTNL(|NULL", "NULL|Only the digits 0 to 9", "NULL|NULL"])

    def test_numbers_and_blobs(self):
        self.assertEqual(sql(script="SELECT barcode('ean13', 400638133393)"), ["Y(0A63IB*NNNTNL("])
        self.assertEqual(sql(script="SELECT barcode('classic-code128b', x'4142') = char(0x2c6)||'AB'||char(0x2020, 0x160)"), ["1"])
        self.assertEqual(sql(script="SELECT barcode('classic-code128b', x'') = barcode('classic-code128b', '')"), ["1"])

    def test_unknown_types(self):
        self.assertEqual(sql(script="SELECT barcode('ean31', '1'), barcode_error('ean31', '1') LIKE '%ean13%'"),
                         ["NULL|1"])

    def test_deterministic_and_innocuous(self):
        self.assertEqual(sql("PRAGMA trusted_schema = OFF", script="""
            CREATE TABLE article(sku TEXT, code TEXT AS (barcode('ean13', sku)) STORED);
            CREATE INDEX refused ON article(barcode_error('ean13', sku));
            INSERT INTO article(sku) VALUES ('400638133393'), ('x');
            SELECT code FROM article"""), ["Y(0A63IB*NNNTNL(", "NULL"])

    def test_many_rows(self):
        made = sql(script=f"""
            CREATE TABLE article AS WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT {ROWS})
                SELECT printf('%s%011d', CASE WHEN i % 1000 = 7 THEN 'x' ELSE '4' END, i * 7919 % 100000000000) AS sku FROM n;
            CREATE TABLE result AS SELECT sku, barcode('ean13', sku) AS code, barcode_error('ean13', sku) AS why FROM article;
            SELECT count(*), count(code), count(why), count(DISTINCT code), min(why), max(why), sum((code IS NULL) = (why IS NULL)) FROM result;
            SELECT sku, code FROM result WHERE rowid % ({ROWS} / 1000) = 1""")
        refused = ROWS // 1000
        self.assertEqual(made[0], f"{ROWS}|{ROWS - refused}|{refused}|{ROWS - refused}|"
                                  "Only the digits 0 to 9|Only the digits 0 to 9|0")
        self.assertGreater(len(made), 999)
        rows = [line.split("|", 1) for line in made[1:]]
        lines = "".join(json.dumps({"type": "_QVT_BARCODE_EAN13_", "data": sku}) + "\n" for sku, _ in rows)
        streamed = subprocess.run([STREAM, "stream"], input=lines, capture_output=True, text=True,
                                  check=True, env=ENVIRONMENT).stdout.splitlines()
        for (sku, code), line in zip(rows, streamed, strict=True):
            answer = json.loads(line)
            self.assertEqual(code, answer["text"] if answer["status"] == 0 else "NULL", sku)


unittest.main(argv=[sys.argv[0]], verbosity=2)
