"""Commands put together in the real window: by mouse, by keyboard alone, and what is saved of them."""

import os
import unittest

import accessibility
from desktop import Desktop, wait_until
from editor import PartsEditor
from program import ProgramTest

PALETTE = ("Text", "Name", "Path", "File Size", "Date", "File Property", "Auto Number", "Checksum")

# Chips that make "IMG_0001 - 2024-03-05 - 1,234 KB; ", then three kinds more, with what is set for each: the control's
# place in the order of Tab, its role, its name and its value (the entry's number, or a text).
HINT = "Enter text for this part"
ZEROS = (2, "check box", "Add Leading Zeros to Make 2 Digits", None)
CHIPS = (
    ("Name", (0, "combo box", "Type:", 1)),
    ("Text", (0, "text", HINT, " - ")),
    ("Date", (1, "combo box", "Date Format:", 6)),
    ("Text", (0, "text", HINT, "-")),
    ("Date", (1, "combo box", "Date Format:", 10), ZEROS),
    ("Text", (0, "text", HINT, "-")),
    ("Date", (1, "combo box", "Date Format:", 11), ZEROS),
    ("Text", (0, "text", HINT, " - ")),
    ("File Size", (0, "combo box", "Size Format:", 1), (1, "check box", "Add Thousands Separator", None)),
    ("Text", (0, "text", HINT, " KB; ")),
)
MORE_CHIPS = (
    ("Path", (1, "text", "Separator:", "/")),
    ("Auto Number", (1, "text", "Step:", "7")),
    ("Checksum", (0, "combo box", "Checksum Type:", 4), (1, "check box", "Uppercase", None)),
)
SHOWN = "IMG_0001 - 2024-03-05 - 1,234 KB; IMG_0002 - 2024-03-05 - 1 KB; "


def setUpModule():
    ProgramTest.desktop = Desktop("1900x1024")
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Editor(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program.write_commands(["One", "<Configure"])
        self.program.start()
        self.desktop.resize(self.program.window, 1800, 950)  # the whole palette is seen
        self.paths = [self.write("IMG_0001.jpg", 1234 * 1024 - 5), self.write("IMG_0002.jpg", 9)]
        self.assertEqual(self.program.select(*self.paths), (0, ""))
        self.editor = PartsEditor(self.program)

    def write(self, name, size):
        path = f"{self.program.home}/{name}"
        with open(path, "wb") as file:
            file.write(b"x" * size)
        os.utime(path, (1709647329, 1709647329))  # 5 March 2024
        return path

    def shown(self):
        return accessibility.text_of(accessibility.find(self.program.root, "text", "Clipboard Preview"))

    def check_saved(self, name):
        """Saves the command under a name: a terminal prints what the preview shows."""
        shown = self.shown()
        row = self.program.selected()[0]
        self.program.rename_in_place(row, name)
        self.program.press("Save")
        self.wait_for(False, self.program.is_save_shown)
        self.assertEqual(self.program.text_of(name, *self.paths).decode(), shown)

    def undo(self, steps):
        """Every step was one: that many undone, nothing is left but the empty command."""
        self.desktop.key(*["ctrl+z"] * (steps - 1))
        self.wait_for(1, lambda: len(self.editor.row()))
        self.desktop.key("ctrl+z")
        self.wait_for([], self.editor.row)

    # By mouse.

    def set_by_mouse(self, role, name, value):
        control = self.editor.control(role, name)
        self.editor.click(control)
        if role == "combo box":
            entries = accessibility.find(control, "list")
            self.program.click(entries.getChildAtIndex(value))
        elif role == "text":
            self.desktop.key("ctrl+a")
            self.desktop.type(value)

    def build_by_mouse(self, chips):
        for kind, *settings in chips:
            row = self.editor.row()
            self.editor.add(kind)
            self.wait_for(len(row) + 1, lambda: len(self.editor.row()))
            for _, role, name, value in settings:
                self.set_by_mouse(role, name, value)

    def test_by_mouse(self):
        self.program.press("New")
        self.editor.open_pane()
        self.build_by_mouse(CHIPS)
        self.wait_for(SHOWN, self.shown)
        self.build_by_mouse(MORE_CHIPS)
        self.check_saved("Built by mouse")
        row = self.editor.row()

        self.editor.throw_out(row[0])
        self.wait_for(row[1:], self.editor.row)
        self.desktop.key("ctrl+z")
        self.wait_for(len(row), lambda: len(self.editor.row()))
        self.editor.move(row[0], behind=row[2])
        self.wait_for([row[1], row[2], row[0] + "*"], lambda: self.editor.row()[:3])

        moved = self.editor.row()
        start = self.editor.middle(row[1])
        self.desktop.take(start, (start[0] + 300, start[1]))
        self.desktop.key_in_drag("Escape")
        self.desktop.let_go()
        self.wait_for(moved, self.editor.row)
        built = sum(len(chip) for chip in CHIPS + MORE_CHIPS)
        self.undo(built + len(("renamed", "moved")))

    # By keyboard alone, from the commands list on.

    def build_by_keys(self, chips):
        """From the palette on, where it ends again."""
        for kind, *settings in chips:
            self.desktop.key("Home", *["Right"] * PALETTE.index(kind), "Return")
            place = 0
            self.desktop.key("Tab", "Tab")
            for wanted, role, _, value in settings:
                self.desktop.key(*["Tab"] * (wanted - place))
                place = wanted
                if role == "combo box":
                    self.desktop.key("Home", *["Down"] * value)
                elif role == "check box":
                    self.desktop.key("space")
                else:
                    self.desktop.key("ctrl+a")
                    self.desktop.type(value)
            self.desktop.key(*["shift+Tab"] * (place + 2))

    def test_by_keyboard(self):
        self.program.press("New")
        self.editor.open_pane()
        accessibility.find(self.program.root, "push button", "View/Edit").queryComponent().grabFocus()
        self.desktop.key("Tab", "Tab")  # past the filter
        self.build_by_keys(CHIPS)
        self.wait_for(SHOWN, self.shown)
        self.build_by_keys(MORE_CHIPS)
        self.check_saved("Built by keys")


if __name__ == "__main__":
    unittest.main()
