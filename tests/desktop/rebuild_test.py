"""Commands of the gallery put together again from "New" in the real window, field by field: what is saved of them is
what is shipped.

These are the few that have, together, all kinds of parts and all fields that the gallery uses. ALL_COMMANDS=1 in the
environment takes all commands, by hand, for that takes ten minutes or more:

    ALL_COMMANDS=1 PROGRAMS=$PWD/build/dev/bin SAMPLES=$PWD/samples /usr/bin/python3 -B tests/desktop/rebuild_test.py
"""

import json
import os
import time
import unittest

import accessibility
from desktop import Desktop, wait_until
from editor import PartsEditor
from fields import Fields
from program import FOLDER, ProgramTest

ABOUT = ("category", "description")  # what an entry of the gallery has besides its command
LISTED = {"showInMenu": True}  # what the commands file tells of every command in its lists


def setUpModule():
    ProgramTest.desktop = Desktop("1900x1024")
    unittest.addModuleCleanup(ProgramTest.desktop.close)


def gallery():
    with open(FOLDER + "/VKGallery.json", encoding="utf-8") as file:
        entries = json.load(file)["galleryCommands"]
    return [{key: value for key, value in entry.items() if key not in ABOUT} for entry in entries]


def fields(stored, path=()):
    """What is set in a command, and in parts of each type."""
    if isinstance(stored, dict):
        path = (stored["item-type"],) if "item-type" in stored else path
        return {field for key, value in stored.items() for field in fields(value, (*path, key))}
    if isinstance(stored, list):
        return {field for value in stored for field in fields(value, path)}
    return {path} if stored not in (False, "") else set()


def sample(commands):
    """Each brings most that is new, until nothing is missing."""
    missing = set().union(*map(fields, commands))
    while missing:
        best = max(commands, key=lambda command: len(fields(command) & missing))
        missing -= fields(best)
        yield best


class Rebuild(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program.start()
        self.desktop.resize(self.program.window, 1800, 950)

    def rename(self, row, command):
        self.program.choose_from_menu(row, "Rename")
        title = "^Rename Command$"
        self.desktop.focus(self.desktop.wait_for_window(title))
        dialog = accessibility.find(self.program.root, "dialog", "Rename Command")
        names = accessibility.find_all(dialog, "text")
        for edit, key in zip(names, ("name", "name1")):
            edit.queryEditableText().setTextContents(command.get(key, ""))
        self.desktop.key("Return")
        self.desktop.wait_for_no_window(title)
        self.desktop.focus(self.program.window)

    def saved(self, name):
        commands = json.loads(self.program.read() or b"{}").get("menuCommands", [])
        return next((command for command in commands if command["name"] == name), None)

    def test_saved_is_shipped(self):
        everything = gallery()
        commands = everything if os.environ.get("ALL_COMMANDS") else sample(everything)
        pane = None
        for command in commands:
            with self.subTest(command["name"]):
                start = time.monotonic()
                self.program.click(self.program.cell(0))
                self.program.press("New")
                self.wait_for([1], self.program.selected)
                if not pane:
                    PartsEditor(self.program).open_pane()
                    pane = Fields(self.program)
                pane.build(command)
                self.rename(1, command)
                self.program.press("Save")
                saved = wait_until(lambda: self.saved(command["name"]), "the saved command")
                self.assertEqual(saved, command | LISTED)
                print(command["name"], round(time.monotonic() - start, 1), "s")


if __name__ == "__main__":
    unittest.main()
