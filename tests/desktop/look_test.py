"""How the windows look: pictures for the eye, kept with the build, and what of them can be counted."""

import os
import shutil
import time
import unittest

import accessibility
from big_file import BigFile
from desktop import Desktop, wait_until
from editor import PartsEditor
from program import TITLE, UNSAVED, ProgramTest, shipped_commands

PICTURES = os.environ["PICTURES"]
SAMPLES = os.environ["SAMPLES"]

# A desktop with dark colours, of a kind whose settings file the toolkit reads without a plugin.
DARK_VARIABLES = {"QT_QPA_PLATFORMTHEME": "kde", "XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
DARK_SETTINGS = os.path.dirname(__file__) + "/dark.kdeglobals"


def setUpModule():
    os.makedirs(PICTURES, exist_ok=True)
    ProgramTest.desktop = Desktop("2600x1800")
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Look(ProgramTest):
    def start(self, is_dark=False, **environment):
        if is_dark:
            shutil.copy(DARK_SETTINGS, self.program.home + "/kdeglobals")
        self.program.start(**environment, **(DARK_VARIABLES if is_dark else {}))

    def take(self, name, window=None):
        path = f"{PICTURES}/{name}.png"
        self.desktop.screenshot(path, window or self.program.window)
        return path

    def measure(self, picture, *steps):
        """The mean lightness, 0 to 1, of the picture after these steps."""
        return float(self.desktop.ask("convert", picture, *steps, "-format", "%[fx:mean]", "info:"))

    def holds(self, picture, colour):
        """Whether a pixel is of exactly this colour."""
        return self.measure(picture, "-fill", "black", "+opaque", colour, "-fill", "white", "-opaque", colour) > 0

    def change_and_select(self):
        """Brings the window to where it has a selection and an unsaved command."""
        entries = [f"{SAMPLES}/{name}" for name in sorted(os.listdir(SAMPLES))]
        self.assertEqual(self.program.select("--index", "2", "--", *entries), (0, ""))
        self.wait_for([2], self.program.selected)
        self.program.rename_in_place(2, "Copy Paths")
        self.wait_for("Copy Paths" + UNSAVED, lambda: self.program.cell(2).name)
        self.desktop.key("Up", "Up")
        self.wait_for([0], self.program.selected)

    def take_dialog(self, name, title):
        dialog = self.desktop.wait_for_window(title)
        self.desktop.focus(dialog)
        path = self.take(name, dialog)
        self.desktop.key("Escape")
        self.desktop.wait_for_no_window(title)
        return path

    def take_windows(self, scheme, colour):
        """Pictures of the window and its dialogs, the window's once it shows the colour."""
        self.change_and_select()
        self.wait_for(True, lambda: self.holds(self.take("window-" + scheme), colour))
        self.program.press("About")
        self.take_dialog("about-" + scheme, "^About ")
        self.desktop.key("shift+F10")
        self.program.choose_from_open_menu("Rename")
        self.take_dialog("rename-" + scheme, "^Rename Command$")
        self.take_editor(scheme)
        return f"{PICTURES}/window-{scheme}.png"

    def take_editor(self, scheme):
        """A picture of the parts of a command, the date's selected."""
        scale = self.program.scale
        self.desktop.resize(self.program.window, 1290 * scale, 860 * scale)
        names = self.program.rows()
        self.program.click(self.program.cell(names.index("Copy Names, Sizes and Dates")))
        editor = PartsEditor(self.program)
        editor.open_pane()
        self.program.click(editor.find("Modified Date, YYYY-MM-DD HH:MM:SS"))
        wait_until(lambda: any(name.endswith("*") for name in editor.row()), "the chip's selection")
        editor.control("combo box", "Date Format:")
        time.sleep(0.5)  # until the sections have their heights
        self.take("editor-" + scheme)
        self.take_filter(scheme)

    def take_filter(self, scheme):
        """Pictures of the filter of files, which follows a preset, and of the presets."""
        accessibility.find(self.program.root, "push button", "Filter").queryComponent().grabFocus()
        self.desktop.key("space", "Tab", "Down", "Tab", "Home")
        accessibility.find(self.program.root, "push button", "Manage Presets")
        time.sleep(0.5)
        self.take("filter-" + scheme)
        self.program.press("Manage Presets")
        self.take_dialog("presets-" + scheme, "^Manage Filter Presets$")

    def test_colours(self):
        shown = {"light": "#0080ff", "dark": "#6ba8ff"}
        for scheme, other in (("light", "dark"), ("dark", "light")):
            with self.subTest(scheme):
                self.start(scheme == "dark")
                picture = self.take_windows(scheme, shown[scheme])
                self.assertFalse(self.holds(picture, shown[other]))
                self.assertEqual(self.measure(picture) < 0.5, scheme == "dark")
                self.program.press("OK")
                self.desktop.focus(self.program.box())
                self.take("question-" + scheme, self.program.box())
                self.program.answer_box("Don't Save")
                self.check_end()

    def test_double_scale(self):
        self.start()
        size = self.desktop.geometry(self.program.window)[2:]
        self.program.press("Cancel")
        self.check_end()
        self.start(QT_SCALE_FACTOR="2")
        self.assertEqual(self.desktop.geometry(self.program.window)[2:], tuple(2 * side for side in size))
        self.take_windows("double", "#0080ff")

    def test_waiting(self):
        names = [command["name"] for command in shipped_commands()["menuCommands"]]
        index = str(names.index("Copy SHA-256 Checksums"))
        big = BigFile(self.program.home + "/" + "Backup of the whole disk, " * 6 + "2024.img")
        for name, options in (("light", {}), ("dark", {"is_dark": True}), ("double", {"QT_SCALE_FACTOR": "2"})):
            self.start(**options)
            self.assertEqual(self.program.select("--index", index, big.path), (0, ""))
            accessibility.find(self.program.root, "label", "Updating...")
            self.program.press("OK")
            dialog = self.program.box()
            self.wait_for(2, lambda: len(accessibility.find_all(self.program.root, "label", "Computing checksums...")))
            self.take("waiting-" + name, dialog)
            self.desktop.focus(dialog)
            self.desktop.key("Escape")
            self.wait_for([self.program.window], lambda: self.desktop.windows(TITLE))
            self.program.press("Cancel")
            self.check_end()

    def test_empty_list(self):
        self.program.write("VKCmds.json", b"{")
        self.start(with_box=True)
        self.take("failure", self.program.box())
        self.program.answer_box("OK")
        wait_until(lambda: len(self.desktop.windows(TITLE)) == 1, "the end of the box")
        self.program.attach()
        accessibility.find(self.program.root, "push button", "Reset to default commands list")
        self.take("empty")


if __name__ == "__main__":
    unittest.main()
