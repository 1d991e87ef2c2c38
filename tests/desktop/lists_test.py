"""The lists of commands under mouse and keys, and what comes of it on the disk."""

import os
import unittest

import accessibility
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
        self.program.click(accessibility.find(self.program.root, "page tab", "Commands Library"))
        self.wait_for_rows(*(command["name"] for command in shipped["commandsLibrary"]), name="Commands Library")
        self.program.press("Cancel")
        self.check_end()
        self.assertIsNone(self.program.read())

    def test_last_command_that_can_not_be_read(self):
        self.program.write_commands("AB")
        for content in (b"", b"\xff{", b'{"commandType": "Vellumark", "fileParts": 1}', None):
            with self.subTest(content=content):
                if content is None:
                    os.remove(self.program.settings + "/LastCmd.json")
                    os.mkdir(self.program.settings + "/LastCmd.json")
                else:
                    self.program.write("LastCmd.json", content)
                self.program.start()
                self.wait_for_rows("A", "B")
                self.assertEqual(self.program.selected(), [0])
                self.program.press("Cancel")
                self.check_end()

    def test_broken_commands_file(self):
        broken = b'{"menuCommands": [{"commandType"'
        self.program.write("VKCmds.json", broken)
        self.program.start(with_box=True)
        self.assertIn("Failed to load stored commands\n", self.program.answer_box("OK"))
        accessibility.find(self.program.root, "label", "Context menu commands list is empty")
        self.wait_for_rows()
        self.assertEqual(self.program.read(), broken)
        self.program.press("Reset to default commands list")
        self.wait_for_rows(*(command["name"] + UNSAVED for command in shipped_commands()["menuCommands"]))
        self.assertEqual(self.program.read(), broken)
        self.program.press("Save")
        self.wait_for(False, self.program.is_save_shown)
        self.assertEqual(self.program.saved_names()[0][-1], MORE)


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
        self.program.click(accessibility.find(self.program.root, "page tab", "Commands Library"))
        self.wait_for_rows("X", name="Commands Library")

    def test_leave_with_changes(self):
        before = self.program.read()
        self.program.rename_in_place(0, "Z")
        self.wait_for_rows("Z" + UNSAVED, "B", "C", "D", MORE)
        self.program.press("Cancel")
        self.check_end()
        self.assertEqual(self.program.read(), before)

        self.program.start()
        self.program.rename_in_place(0, "Z")
        self.wait_for_rows("Z" + UNSAVED, "B", "C", "D", MORE)
        self.program.press("OK")
        self.assertIn("You have made changes", self.program.answer_box("Save"))
        self.check_end()
        self.assertEqual(self.program.saved_names(), (["Z", "B", "C", "D", ""], ["X"]))


if __name__ == "__main__":
    unittest.main()
