"""The lists of commands under mouse and keys, and what comes of it on the disk."""

import unittest

from desktop import Desktop
from program import UNSAVED, ProgramTest, shipped_commands

MORE = "More Commands..."


def setUpModule():
    ProgramTest.desktop = Desktop()
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Start(ProgramTest):
    def test_shipped_commands(self):
        self.program.start()
        shipped = shipped_commands()
        self.wait_for_rows(*(command["name"] for command in shipped["menuCommands"]))
        self.assertEqual((self.program.selected(), self.program.is_save_shown()), ([0], False))
        self.program.show_list("Commands Library")
        self.wait_for_rows(*(command["name"] for command in shipped["commandsLibrary"]), name="Commands Library")
        self.program.press("Cancel")
        self.check_end()
        self.assertIsNone(self.program.read())


class Edits(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program.write_commands(["A", "B", "C", "D", "<Configure"], ["X"])
        self.program.start()
        self.wait_for_rows("A", "B", "C", "D", MORE)

    def press_keys(self, *keys):
        self.program.desktop.key(*keys)

    def save(self):
        self.program.press("Save")
        self.wait_for(False, self.program.is_save_shown)

    def test_reorder_by_dragging(self):
        self.program.drag(0, 3)
        self.wait_for_rows("B", "C", "A", "D", MORE)
        self.assertEqual((self.program.selected(), self.program.is_save_shown()), ([2], True))
        self.press_keys("ctrl+z")
        self.wait_for_rows("A", "B", "C", "D", MORE)
        self.assertEqual((self.program.selected(), self.program.is_save_shown()), ([0], False))
        self.press_keys("ctrl+y")
        self.wait_for_rows("B", "C", "A", "D", MORE)
        self.program.drag(3, 0)
        self.wait_for_rows("D", "B", "C", "A", MORE)
        before = self.program.read()
        self.save()
        self.assertNotEqual(self.program.read(), before)
        self.assertEqual(self.program.saved_names(), (["D", "B", "C", "A", ""], ["X"]))

    def test_rename(self):
        self.program.rename_in_place(1, "In place")
        self.wait_for_rows("A", "In place" + UNSAVED, "C", "D", MORE)
        self.program.choose_from_menu(2, "Rename")
        dialog = self.program.desktop.wait_for_window("^Rename Command$")
        self.program.desktop.focus(dialog)
        self.program.desktop.type("By dialog")
        self.press_keys("Tab")
        self.program.desktop.type("One")
        self.press_keys("Return")
        self.wait_for_rows("A", "In place" + UNSAVED, "By dialog" + UNSAVED, "D", MORE)
        self.press_keys("ctrl+z")
        self.wait_for_rows("A", "In place" + UNSAVED, "C", "D", MORE)
        self.press_keys("ctrl+y")
        self.save()
        self.wait_for_rows("A", "In place", "By dialog", "D", MORE)
        self.assertEqual(self.program.saved_names(), (["A", "In place", "By dialog", "D", ""], ["X"]))

    def test_delete_and_move(self):
        self.program.click(self.program.cell(1))
        self.wait_for([1], self.program.selected)
        self.press_keys("Delete")
        self.wait_for_rows("A", "C", "D", MORE)
        self.program.choose_from_menu(0, "Move to Commands Library")
        self.wait_for_rows("C", "D", MORE)
        self.save()
        self.assertEqual(self.program.saved_names(), (["C", "D", ""], ["X", "A"]))
        self.press_keys("ctrl+z", "ctrl+z", "ctrl+z")
        self.wait_for_rows("A", "B", "C", "D", MORE)
        self.program.show_list("Commands Library")
        self.wait_for_rows("X", name="Commands Library")


if __name__ == "__main__":
    unittest.main()
