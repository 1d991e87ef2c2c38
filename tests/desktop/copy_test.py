"""The main job in the real window: a selection's text is shown, copied, and there when the window has gone."""

import json
import os
import shutil
import unittest

import accessibility
from big_file import BigFile
from desktop import Desktop, wait_until
from program import FOLDER, KEEPER, TITLE, ProgramTest, shipped_commands

SAMPLES = os.environ["SAMPLES"]


def setUpModule():
    ProgramTest.desktop = Desktop()
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Copy(ProgramTest):
    def setUp(self):
        super().setUp()
        self.paths = [os.path.join(SAMPLES, name) for name in ("README", "Café menu.md", "Documents")]
        self.commands = [command["name"] for command in shipped_commands()["menuCommands"]]

    def write_checksum_commands(self, *kinds):
        """Each makes such checksums and is named so."""
        commands = [{"commandType": "Vellumark", "name": kind, "separator": "",
                     "fileParts": [{"item-type": "checksum", "checksum-type": kind}]} for kind in kinds]
        self.program.write("VKCmds.json", json.dumps({"menuCommands": commands}).encode())
        self.commands = list(kinds)

    def text_of(self, command):
        return self.program.text_of(command, *self.paths)

    def shown(self):
        return accessibility.text_of(accessibility.find(self.program.root, "text", "Clipboard Preview"))

    def open_with_paths(self):
        self.program.start()
        self.wait_for_rows(*self.commands)
        self.assertEqual(self.program.select(*self.paths), (0, ""))

    def show(self, command):
        self.program.click(self.program.cell(self.commands.index(command)))
        self.wait_for(self.text_of(command).decode(), self.shown)

    def press_ok(self):
        self.desktop.focus(self.program.window)
        accessibility.find(self.program.root, "push button", "OK").queryComponent().grabFocus()
        self.desktop.key("Return")

    def check_nothing_copied(self):
        self.wait_for([self.program.window], lambda: self.desktop.windows(TITLE))
        self.assertEqual(self.desktop.clipboard(), b"before")
        self.assertIsNone(self.program.read("LastCmd.json"))

    def check_copied(self, command):
        self.check_end()
        self.assertEqual(self.desktop.clipboard(), self.text_of(command))
        self.assertEqual(json.loads(self.program.read("LastCmd.json"))["name"], command)

    def test_text_outlives_the_window(self):
        self.open_with_paths()
        command = "Copy Names, Sizes and Dates"
        for shown in ("Copy Names", command):
            self.show(shown)
        self.press_ok()
        self.check_copied(command)
        self.program.start()
        self.wait_for([self.commands.index(command)], self.program.selected)
        self.program.press("Cancel")
        self.check_end()

    def open_wait_dialog(self):
        """OK while a run is on; what tells the user to wait."""
        accessibility.find(self.program.root, "label", "Updating...")
        self.press_ok()
        message = accessibility.find(self.program.root, "label", "Please wait while the text is generated.")
        item = "C:" + self.paths[0].replace("/", "\\")
        self.wait_for(["Computing checksums...", item], lambda: [
            label.name for label in accessibility.find_all(message.parent, "label")[2:]])
        return message

    def test_waiting_for_a_text(self):
        self.write_checksum_commands("md5", "sha512")
        big = BigFile(self.program.home + "/big")
        self.paths = [big.path]
        self.desktop.copy(b"before")
        self.open_with_paths()
        message = self.open_wait_dialog()
        accessibility.press(accessibility.find(message.parent, "push button", "Cancel"))
        wait_until(lambda: not accessibility.find_all(self.program.root, "label", message.name), "the dialog's end")
        accessibility.find(self.program.root, "label", "Updating...")
        big.end_for(self.program.process.pid)
        self.wait_for(self.text_of("md5").decode(), self.shown)
        self.check_nothing_copied()

        big.grow()
        self.program.click(self.program.cell(1))
        self.open_wait_dialog()
        big.end_for(self.program.process.pid)
        self.check_copied("sha512")

    def test_clipboard_that_takes_nothing(self):
        self.program.move()
        keeper = f"{self.program.folder}/{KEEPER}"
        with open(keeper, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\nexit 1\n")
        self.desktop.copy(b"before")
        self.open_with_paths()
        self.show("Copy Names")
        for _ in range(2):
            self.press_ok()
            self.program.box()
            self.assertEqual(self.program.answer_box("OK"), "Failed to copy text to Windows clipboard")
            self.wait_for([self.program.window], lambda: self.desktop.windows(TITLE))
            self.assertEqual(self.shown(), self.text_of("Copy Names").decode())
            self.check_nothing_copied()
        shutil.copy(f"{FOLDER}/{KEEPER}", keeper)
        self.press_ok()
        self.check_copied("Copy Names")

    def test_comparison_of_checksums(self):
        self.write_checksum_commands("md5")
        self.paths = self.paths[:1]
        text = self.text_of("md5")
        match, other = b"MD5: " + text.upper(), b"0" * 32
        for copied, verdict, answer, left in (
            (match, "MATCH", "Cancel", match),
            (other, "NO MATCH", "Cancel", other),
            (other, "NO MATCH", "Escape", other),
            (other, "NO MATCH", "OK", text),
        ):
            with self.subTest(verdict, answer=answer):
                self.desktop.copy(copied)
                self.open_with_paths()
                self.show("md5")
                self.program.press("OK")
                dialog = self.desktop.wait_for_window("Checksum comparison$")
                accessibility.find(self.program.root, "label", verdict)
                if answer == "Escape":
                    self.desktop.focus(dialog)
                    self.desktop.key(answer)
                else:
                    self.program.press(answer)
                self.check_end()
                self.assertEqual(self.desktop.clipboard(), left)
                self.assertEqual(self.program.read("LastCmd.json") is None, left != text)


if __name__ == "__main__":
    unittest.main()
