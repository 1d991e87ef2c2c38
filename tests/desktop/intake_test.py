"""Selections that a file manager hands to the application, and what may go wrong between the two."""

import os
import unittest

import accessibility
from desktop import HANG, Desktop
from program import NOT_SHOWN, TITLE, ProgramTest

FOLDER_COMMAND = "Extract Folder"  # the only one that says whether the selection is a folder


def setUpModule():
    ProgramTest.desktop = Desktop()
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Intake(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program.write_commands(["A", "B", "C", "<ExtractFolder", "<Configure"])
        self.folder = self.program.home + "/selected"
        self.file = self.folder + "/file.txt"
        os.mkdir(self.folder)
        with open(self.file, "w", encoding="utf-8") as file:
            file.write("x")

    def select(self, *arguments):
        self.assertEqual(self.program.select(*arguments), (0, ""))

    def wait_for_selection(self, row, path):
        """The current row, and the marks that this selected path gives the rows."""
        marked = FOLDER_COMMAND + (NOT_SHOWN if path == self.file else "")
        self.wait_for([[row], "A", "B", "C", marked, "More Commands..."],
                      lambda: [self.program.selected(), *self.program.rows()])

    def test_tool_starts_the_application(self):
        self.select("--index", "2", self.file)
        self.program.attach()
        self.wait_for_selection(2, self.file)
        self.select(self.folder)
        self.wait_for_selection(2, self.folder)
        self.select("--index", "1", "--", self.file)
        self.wait_for_selection(1, self.file)
        self.assertEqual(self.desktop.windows(TITLE), [self.program.window])
        self.program.press("Cancel")
        self.desktop.wait_for_no_window(TITLE)

    def test_next_window_takes_over(self):
        self.program.start()
        first = self.program.process
        self.program.start()
        first.terminate()
        self.assertEqual(first.wait(HANG), 0)
        self.select("--index", "2", self.file)
        self.wait_for_selection(2, self.file)
        self.assertEqual(self.desktop.windows(TITLE), [self.program.window])

    def test_window_comes_to_the_front(self):
        self.program.start()
        self.desktop.do("xdotool", "windowminimize", self.program.window)
        self.desktop.wait_for_no_window(TITLE)
        self.select(self.file)
        self.desktop.wait_for_window(TITLE)
        self.wait_for_selection(0, self.file)

    def test_messages_that_are_none(self):
        self.program.start()
        for message in (b"", b"\0" * 10000, b"\xff\xfe{", b"[1]", b'{"paths": ["C:\\\\"', b'{"commandIndex": 1}',
                        b'{"commandIndex": 1, "paths": [1, ""]}', b"[" * 100000, b" " * (8 << 20) + b"{}"):
            self.program.send(message)
        self.select("--index", "3", self.folder)
        self.wait_for_selection(3, self.folder)
        # One step alone, so that none of the others chose a row.
        self.program.desktop.key("ctrl+z")
        self.wait_for_selection(0, self.folder)
        self.program.press("Cancel")
        self.check_end()


class Window(ProgramTest):
    def divider(self):
        return accessibility.find(self.program.root, name="Divider")

    def state(self):
        """Where the window stands on the screen, and its divider."""
        return self.desktop.geometry(self.program.window), self.program.middle(self.divider())[0]

    def test_state_is_kept(self):
        self.program.write_commands("ABC", "XYZ")
        self.program.start()
        self.desktop.do("xdotool", "windowsize", self.program.window, "900", "700")
        self.wait_for((900, 700), lambda: self.desktop.geometry(self.program.window)[2:])
        self.program.show_list("Commands Library")
        self.program.click(self.program.cell(2, name="Commands Library"))
        self.wait_for([2], self.program.selected, name="Commands Library")
        self.program.show_list("Context Menu Commands")
        x, y = self.program.middle(self.divider())
        self.desktop.drag((x, y), (x + 80, y))
        state = self.state()
        self.assertGreater(state[1], x + 40)
        self.program.process.terminate()
        self.check_end()

        self.program.start()
        self.wait_for(state, self.state)
        self.program.show_list("Commands Library")
        self.wait_for([2], self.program.selected, name="Commands Library")


if __name__ == "__main__":
    unittest.main()
