#!/usr/bin/env python3
"""What `linewright resources` says is what stands in the plug-in's own tables, each thing once, and
its dialogs can be read.

Usage: resources_test.py PROGRAM
"""
import itertools
import json
import re
import subprocess
import sys
import tempfile
import tomllib
import unittest
from pathlib import Path

PROGRAM = sys.argv[1]
ROOT = Path(__file__).resolve().parent.parent.parent
RESOURCES = ROOT / "plugin" / "resources"
HOSTS_BUTTONS = {0x0F01: "kOKButtonWidgetID", 0x0F02: "kCancelButton_WidgetID"}


def run(*words):
    with tempfile.TemporaryDirectory() as folder:
        return subprocess.run([PROGRAM, "resources", *words, "--config-dir", folder],
                              capture_output=True, timeout=60)


def load(name):
    return tomllib.loads((RESOURCES / name).read_text("utf-8"))


def constants(kind):
    """The plug-in's ids of a kind, by their names."""
    source = (ROOT / "core" / "PluginID.h").read_text()
    found = re.findall(rf"const {kind} (\w+)\(kLinewrightPrefix \+ (0x[0-9A-F]+)\);", source)
    return {name: own(int(number, 16)) for name, number in found}


def own(number):
    return f"0x{0x122100 + number:X}"


def box_of(holder, locale):
    box = holder["boxes"][locale]
    return (box["left"], box["top"], box["left"] + box["width"], box["top"] + box["height"])


def overlap(a, b):
    return a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]


def holds(outer, inner):
    return (outer[0] <= inner[0] and outer[1] <= inner[1] and
            inner[2] <= outer[2] and inner[3] <= outer[3])


class ResourcesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        ran = run("--json")
        if ran.returncode != 0:
            raise AssertionError(ran.stderr.decode())
        cls.told = json.loads(ran.stdout)
        cls.classes = load("linewright.toml")
        cls.views = load("views.toml")
        cls.strings = {path.stem: tomllib.loads(path.read_text("utf-8"))
                       for path in (RESOURCES / "strings").glob("*.toml")}

    def same_once(self, expected, found):
        self.assertEqual(sorted(expected), sorted(found))
        self.assertEqual(len(set(found)), len(list(found)))

    def check_layouts(self, test):
        """Runs test(dialog, locale, its visible widgets) for each dialog and each locale."""
        for dialog, locale in itertools.product(self.told["dialogs"], sorted(self.strings)):
            with self.subTest(dialog=dialog["id"], locale=locale):
                test(dialog, locale, [each for each in dialog["widgets"] if each["visible"]])

    def test_nothing_else_is_told(self):
        self.assertEqual(["version", "plugin", "implementations", "classes", "actions", "menus",
                          "dialogs", "strings"], list(self.told))

    def test_version_and_plug_in(self):
        version = re.search(r"project\(Linewright VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())
        self.assertEqual(version[1], self.told["version"])
        self.assertEqual("0x122100", self.told["plugin"])

    def test_implementations_are_those_that_are_registered(self):
        registered = re.findall(r"^CREATE_(?:PERSIST_)?PMINTERFACE\((\w+), (\w+)\);$",
                                (ROOT / "plugin" / "Registration.cpp").read_text(), re.MULTILINE)
        ids = constants("ImplementationID")
        self.assertEqual([(name, ids[constant]) for name, constant in registered],
                         [(each["class"], each["id"]) for each in self.told["implementations"]])
        self.same_once(ids.values(), [each["id"] for each in self.told["implementations"]])
        self.assertEqual(["LWRAppPrefs"],
                         [each["class"] for each in self.told["implementations"] if each["persistent"]])

    def test_classes_are_those_of_the_table(self):
        self.same_once(constants("ClassID").items(),
                       [(each["name"], each["id"]) for each in self.told["classes"]])
        for row, told in zip(self.classes["boss"], self.told["classes"], strict=True):
            with self.subTest(row["name"]):
                self.assertEqual(row["name"], told["name"])
                self.assertEqual(row.get("base"), told["base"])
                self.assertEqual(row.get("persistent", False), told["persistent"])
                self.assertEqual([(each["name"], f"0x{each['implementation']:X}")
                                  for each in row["interfaces"]],
                                 [(each["name"], each["implementation"])
                                  for each in told["interfaces"]])

    def test_every_implementation_answers_for_one_interface(self):
        self.same_once(constants("ImplementationID").values(),
                       [each["implementation"] for row in self.told["classes"]
                        for each in row["interfaces"]])

    def test_interfaces_of_the_host_have_no_number(self):
        ids = {each["name"]: each["id"] for row in self.told["classes"]
               for each in row["interfaces"]}
        self.assertEqual({"IActionComponent": None, "IDialogController": None, "IObserver": None,
                          "IStartupShutdownService": None, "IORTALinewright": own(0),
                          "ILWRAppPrefs": own(1)}, ids)

    def test_every_action_stands_in_one_menu(self):
        self.same_once(constants("ActionID").values(), [each["id"] for each in self.told["actions"]])
        self.same_once(constants("ActionID").values(),
                       [action for menu in self.told["menus"] for action in menu["actions"]])
        self.assertEqual([menu["text"] for menu in self.views["menu"]],
                         [menu["text"] for menu in self.told["menus"]])
        self.assertEqual({item["text"]: f"0x{item['action']:X}"
                          for menu in self.views["menu"] for item in menu["items"]},
                         {each["text"]: each["id"] for each in self.told["actions"]})

    def test_every_widget_stands_in_one_dialog(self):
        found = [each["id"] for dialog in self.told["dialogs"] for each in dialog["widgets"]
                 if each["id"] is not None and each["id"] not in HOSTS_BUTTONS.values()]
        self.same_once(constants("WidgetID").values(), found)

    def test_dialogs_are_those_of_the_table(self):
        self.assertEqual([250, 251], [dialog["id"] for dialog in self.told["dialogs"]])
        for row, told in zip(self.views["dialog"], self.told["dialogs"], strict=True):
            widgets = [each for group in row["group"] for cells in group["rows"] for each in cells]
            for each, widget in zip(widgets + row["buttons"], told["widgets"], strict=True):
                with self.subTest(widget=each):
                    number = each.get("id")
                    expected = number and HOSTS_BUTTONS.get(number, f"0x{number:X}")
                    self.assertEqual((expected, each["kind"], each.get("visible", True),
                                      each.get("text"), each.get("items", []),
                                      each.get("maxLength", 0), each.get("maxCharacter", 0)),
                                     tuple(widget[name] for name in (
                                         "id", "kind", "visible", "text", "items", "maxLength",
                                         "maxCharacter")))
            self.assertEqual([group.get("title") for group in row["group"]],
                             [group["title"] for group in told["groups"]])
            self.assertEqual((row["title"], f"0x{row['class']:X}", *HOSTS_BUTTONS.values()),
                             (told["title"], told["class"], told["default"], told["cancel"]))

    def test_string_tables_are_those_of_the_locales(self):
        self.assertEqual(["deDE", "enUS", "frFR", "jaJP"], list(self.told["strings"]))
        self.assertEqual(self.strings, self.told["strings"])

    def test_a_widget_has_a_place_in_every_locale_unless_it_is_never_shown(self):
        for dialog in self.told["dialogs"]:
            for each in dialog["groups"] + dialog["widgets"]:
                locales = sorted(self.strings) if each.get("visible", True) else []
                self.assertEqual(locales, list(each["boxes"]))
            self.assertEqual(sorted(self.strings), list(dialog["sizes"]))

    def test_nothing_overlaps(self):
        def test(_, locale, widgets):
            for a, b in itertools.combinations(widgets, 2):
                self.assertFalse(overlap(box_of(a, locale), box_of(b, locale)), (a, b))

        self.check_layouts(test)

    def test_everything_lies_within_its_dialog_and_its_group(self):
        def test(dialog, locale, widgets):
            size = dialog["sizes"][locale]
            window = (0, 0, size["width"], size["height"])
            groups = [box_of(group, locale) for group in dialog["groups"]]
            for a, b in itertools.combinations(groups, 2):
                self.assertFalse(overlap(a, b))
            for box in groups:
                self.assertTrue(holds(window, box))
            for widget in widgets:
                box = box_of(widget, locale)
                self.assertTrue(holds(window, box), widget)
                around = [group for group in groups if overlap(group, box)]
                # The row of buttons is in no group.
                self.assertEqual(0 if widget["kind"] == "button" else 1, len(around), widget)
                self.assertTrue(all(holds(group, box) for group in around), widget)

        self.check_layouts(test)

    def test_buttons_end_where_groups_do(self):
        def test(dialog, locale, widgets):
            buttons = [box_of(each, locale) for each in widgets if each["kind"] == "button"]
            self.assertEqual(sorted(buttons), buttons)
            self.assertEqual(box_of(dialog["groups"][0], locale)[2], buttons[-1][2])

        self.check_layouts(test)

    def test_languages_have_places_of_their_own(self):
        for dialog in self.told["dialogs"]:
            boxes = {json.dumps([each["boxes"].get(locale) for each in dialog["widgets"]])
                     for locale in self.strings}
            self.assertEqual(len(self.strings), len(boxes))

    def test_the_form_is_stated(self):
        ran = run()
        self.assertEqual((2, b""), (ran.returncode, ran.stdout))
        self.assertIn(b"--json is required", ran.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
