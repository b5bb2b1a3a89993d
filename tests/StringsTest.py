#!/usr/bin/env python3
"""Checks the plug-in's string tables: complete, alike in every locale, and true to each other."""

import itertools
import re
import tomllib
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
ROOMS = ["types", "core", "classic", "current", "imb", "plugin"]
STRINGS = ROOT / "plugin" / "resources" / "strings"
PREFIX = "0x122100kLWR"

# What the program fills in; every other text stands as it is.
MARKERS = {
    "BarCodeLengthLessThanOrCheckDigitHint": ["^0", "^1"],
    "BarCodeLengthMustBeHint": ["^0", "^1"],
    "BarCodeLengthBetweenHint": ["^0", "^1"],
    "BarCodeLengthLessThanHint": ["^0"],
    "ErrorBarCodeBadLength": ["^0", "^1"],
    "ErrorBarCodeInvalidData": ["^0", "^1"],
    "ErrorBarCodeInternal": ["^0", "^1"],
    "WarningBarCodeDataTranslationErrorKey": ["^0"],
}

# Which types show a notes text, by the middle of their key, and the font that each is set in. The
# digits of the two text types are set in any text font.
NOTES = {
    "Postnet": {"PostNetLegacy": "Classic Postnet", "1": "Postal"},
    "USPSIM": {"2": "Postal"},
    "Codabar": {"CodabarLegacy": "Classic Codabar", "3": "Bars"},
    "Code128A": {"Code128ALegacy": "Classic Code 128"},
    "Code128B": {"Code128BLegacy": "Classic Code 128", "Code128": "Bars"},
    "Code128C": {"Code128CLegacy": "Classic Code 128"},
    "Code39": {"Code39Legacy": "Classic Code 39", "7": "Bars"},
    "Code29ASCII": {"Code39ASCIILegacy": "Classic Code 39"},
    "EAN8": {"23": "EAN UPC"},
    "EAN13": {"EAN13Legacy": "Classic EAN UPC", "9": "EAN UPC"},
    "JAN13": {"JAN13Legacy": "Classic EAN UPC", "12": "EAN UPC"},
    "I2OF5": {"I2OF5Legacy": "Classic I2of5", "10": "Bars"},
    "I2OF5TEXT": {"I2OF5TextLegacy": None, "11": None},
    "MSIPlessey": {"MSILegacy": "Classic MSI", "13": "Bars"},
    "UPCA": {"UPCALegacy": "Classic EAN UPC", "14": "EAN UPC"},
    "UPCE": {"UPCELegacy": "Classic EAN UPC", "15": "EAN UPC"},
}


def load(path):
    with path.open("rb") as file:
        table = tomllib.load(file)
    return {key.removeprefix(PREFIX): text for key, text in table.items()}


def display_text(table, middle):
    return table[f"UtilityTypePopupItem{middle}Key"]


def plain(text):
    """The text of a widget without its mnemonic."""
    return re.sub(r"\(&\w\)", "", text).replace("&", "")


class StringsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tables = {path.stem: load(path) for path in sorted(STRINGS.glob("*.toml"))}
        cls.american = cls.tables["enUS"]

    def check(self, test, *rows):
        """Runs test(locale, table, *row) for each locale and each row, every failure reported."""
        for (locale, table), row in itertools.product(self.tables.items(), zip(*rows)):
            with self.subTest(locale=locale, row=row):
                test(locale, table, *row)

    def check_locales(self, test):
        self.check(lambda locale, table, _: test(locale, table), [None])

    def test_the_locales_are_there(self):
        self.assertEqual(["deDE", "enUS", "frFR", "jaJP"], sorted(self.tables))

    def test_every_key_has_a_text_in_every_locale(self):
        def test(_, table):
            self.assertEqual(list(self.american), list(table))
            self.assertEqual([], [key for key, text in table.items() if not text.strip()])

        self.check_locales(test)

    def test_keys_are_written_with_their_prefix(self):
        for path in STRINGS.glob("*.toml"):
            for key in tomllib.loads(path.read_text("utf-8")):
                with self.subTest(locale=path.stem, key=key):
                    self.assertRegex(key, f"^{PREFIX}[A-Za-z0-9]+$")

    def test_the_keys_are_those_that_code_and_resources_ask_for(self):
        sources = [path for room in ROOMS for path in (ROOT / room).rglob("*")
                   if path.suffix in (".cpp", ".h", ".toml") and STRINGS not in path.parents]
        used = {key for path in sources
                for key in re.findall(f'"{PREFIX}([A-Za-z0-9]+)"', path.read_text("utf-8"))}
        self.assertEqual(sorted(used), sorted(self.american))

    def test_markers_are_those_that_are_filled(self):
        def test(_, table, key):
            self.assertEqual(MARKERS.get(key, []), sorted(re.findall(r"\^.?", table[key])))

        self.assertEqual(set(), set(MARKERS) - set(self.american))
        self.check(test, self.american)

    def test_display_texts_differ(self):
        def test(_, table):
            texts = [table[key] for key in table if key.startswith("UtilityTypePopupItem")]
            self.assertEqual(27, len(texts))
            self.assertEqual(27, len(set(texts)))

        self.check_locales(test)

    def test_the_same_items_have_a_mnemonic_in_every_locale(self):
        def test(_, table, key):
            self.assertEqual(self.american[key].count("&"), table[key].count("&"))
            self.assertEqual(table[key].count("&"), len(re.findall(r"&\w", table[key])))
            self.assertLessEqual(table[key].count("&"), 1)

        self.check(test, self.american)

    def test_mnemonics_are_unique_within_the_menu_and_each_dialog(self):
        def test(_, table, items):
            # The menu's own letter stands in the menu bar, its items' letters below it.
            keys = [key for key in table if key.startswith(items) and key != "MenuKey"]
            letters = [c.upper() for key in keys for c in re.findall("&(.)", table[key])]
            self.assertNotEqual([], letters)
            self.assertEqual(len(letters), len(set(letters)), letters)

        self.check(test, ["Menu", "UtilityDialog", "PrefsDialog"])

    def test_samples_are_data_and_the_same_everywhere(self):
        def test(_, table, key):
            self.assertEqual(self.american[key], table[key])
            self.assertRegex(table[key], "^[!-~]+$")

        self.check(test, [key for key in self.american if key.endswith("SampleKey")])

    def test_labels_part_the_description_into_paragraphs(self):
        def test(_, table, part, breaks):
            label = table[f"UtilityDialog{part}LabelKey"]
            self.assertEqual(breaks, len(label) - len(label.lstrip("\n")))

        self.check(test, ["Usage", "Data", "Sample", "Notes"], [0, 2, 2, 2])

    def test_a_part_of_the_description_is_one_paragraph(self):
        def test(_, table, key):
            self.assertEqual(table[key].strip(), table[key])
            self.assertNotIn("\n\n", table[key])

        part = re.compile("UtilityDialog.*(Usage|Data|DataString|Sample|Notes)Key")
        self.check(test, filter(part.fullmatch, self.american))

    def test_every_notes_text_is_known_here(self):
        notes = [key for key in self.american if key.endswith("NotesKey")]
        self.assertEqual(sorted(f"UtilityDialog{name}NotesKey" for name in NOTES), sorted(notes))

    def test_notes_name_the_font_of_each_type(self):
        def test(_, table, notes, fonts):
            text = table[f"UtilityDialog{notes}NotesKey"]
            names = [f"Linewright {font}" for font in fonts.values() if font]
            for name in names:
                self.assertIn(name, text)
                text = text.replace(name, "", 1)
            self.assertNotIn("Linewright", text)

        self.check(test, NOTES, NOTES.values())

    def test_shared_notes_have_a_line_for_each_type_with_its_font(self):
        def test(_, table, notes, fonts):
            lines = table[f"UtilityDialog{notes}NotesKey"].split("\n")
            for middle, font in fonts.items():
                name = display_text(table, middle)
                # The name of a current type begins that of its classic one too.
                line = [line for line in lines if line.startswith(name)][-1]
                self.assertIn(f"Linewright {font}" if font else name, line)

        shared = {notes: fonts for notes, fonts in NOTES.items() if len(fonts) == 2}
        self.check(test, shared, shared.values())

    def test_notes_call_the_check_digit_box_by_its_name(self):
        quotes = {"enUS": "“%s”", "deDE": "„%s“", "frFR": "«\u202f%s\u202f»", "jaJP": "「%s」"}

        def test(locale, table, notes):
            box = quotes[locale] % plain(table["UtilityDialogCheckDigitKey"])
            self.assertIn(box, table[f"UtilityDialog{notes}NotesKey"])

        self.check(test, ["Code39", "I2OF5", "I2OF5TEXT"])

    def test_preference_groups_are_named_after_their_types(self):
        def test(_, table, group):
            legacy = display_text(table, f"{group}Legacy")
            self.assertEqual(legacy, table[f"PrefsDialog{group}GroupKey"])

        self.check(test, ["Code39", "I2OF5", "MSI"])

    def test_french_punctuation_has_its_narrow_space(self):
        for key, text in self.tables["frFR"].items():
            prose = text.replace("- $ : / . +", "")
            with self.subTest(key=key):
                self.assertNotRegex(prose, "[^\u202f][:;!?»]|«[^\u202f]")
                self.assertNotIn("'", prose)

    def test_quotes_are_those_of_the_language(self):
        foreign = {"enUS": '„«»「」"', "deDE": '«»「」"”', "frFR": '„“”「」"', "jaJP": '„“”«»"'}

        def test(locale, table, key):
            self.assertNotRegex(table[key], f"[{foreign[locale]}]")

        self.check(test, self.american)


if __name__ == "__main__":
    unittest.main()
