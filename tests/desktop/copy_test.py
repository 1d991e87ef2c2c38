"""The main job in the real window: a selection's text is shown, copied, and there when the window has gone."""

import json
import os
import subprocess
import unittest

import accessibility
from desktop import HANG, Desktop
from program import FOLDER, ProgramTest, shipped_commands

SAMPLES = os.environ["SAMPLES"]


def setUpModule():
    ProgramTest.desktop = Desktop()
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Copy(ProgramTest):
    def setUp(self):
        super().setUp()
        self.paths = [os.path.join(SAMPLES, name) for name in ("README", "Café menu.md", "Documents")]
        self.commands = [command["name"] for command in shipped_commands()["menuCommands"]]

    def text_of(self, command):
        """What the tool for terminals makes of the same command and paths."""
        call = [FOLDER + "/vellumark-text", "--command", command, "--", *self.paths]
        return subprocess.run(call, env=self.program.environment, capture_output=True, timeout=HANG, check=True).stdout

    def shown(self):
        return accessibility.text_of(accessibility.find(self.program.root, "text", "Clipboard Preview"))

    def open_with_paths(self):
        self.program.start()
        self.wait_for_rows(*self.commands)
        self.assertEqual(self.program.select(*self.paths), (0, ""))

    def show(self, command):
        self.program.click(self.program.cell(self.commands.index(command)))
        self.wait_for(self.text_of(command).decode(), self.shown)

    def test_text_outlives_the_window(self):
        self.open_with_paths()
        command = "Copy Names, Sizes and Dates"
        for shown in ("Copy Names", command):
            self.show(shown)
        accessibility.find(self.program.root, "push button", "OK").queryComponent().grabFocus()
        self.program.desktop.key("Return")
        self.check_end()
        self.assertEqual(self.program.desktop.clipboard(), self.text_of(command))
        self.assertEqual(json.loads(self.program.read("LastCmd.json"))["name"], command)
        self.program.start()
        self.wait_for([self.commands.index(command)], self.program.selected)
        self.program.press("Cancel")
        self.check_end()

    def test_comparison_of_checksums(self):
        self.program.write("VKCmds.json", json.dumps({"menuCommands": [
            {"commandType": "Vellumark", "name": "Sum", "separator": "",
             "fileParts": [{"item-type": "checksum", "checksum-type": "md5"}]}, {"commandType": "Configure", "name": "M"},
        ]}).encode())
        self.commands, self.paths = ["Sum", "M"], self.paths[:1]
        text = self.text_of("Sum")
        for copied, verdict, button, left in (
            (b"MD5: " + text.upper(), "MATCH", "Cancel", b"MD5: " + text.upper()),
            (b"0" * 32, "NO MATCH", "OK", text),
        ):
            with self.subTest(verdict):
                self.program.desktop.copy(copied)
                self.open_with_paths()
                self.show("Sum")
                self.program.press("OK")
                self.program.desktop.wait_for_window("Checksum comparison$")
                accessibility.find(self.program.root, "label", verdict)
                self.program.press(button)
                self.check_end()
                self.assertEqual(self.program.desktop.clipboard(), left)


if __name__ == "__main__":
    unittest.main()
