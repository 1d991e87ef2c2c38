"""A file filter that follows a preset, and the presets themselves: by mouse and keys, through undo, save, restart."""

import contextlib
import json
import unittest

import accessibility
import pyatspi
from desktop import Desktop
from editor import PartsEditor
from fields import Fields
from labels import presets
from program import ProgramTest

DIALOG = "Manage Filter Presets"


def setUpModule():
    ProgramTest.desktop = Desktop("1900x1024")
    unittest.addModuleCleanup(ProgramTest.desktop.close)


class Filters(ProgramTest):
    def start(self):
        self.program.start()
        self.desktop.resize(self.program.window, 1800, 950)

    def show_panel(self):
        self.fields = Fields(self.program)
        self.panel = self.fields.filter_panel(self.fields.sections[0])

    def shown(self):
        """The type, the preset, the extensions and whether they can be edited."""
        self.panel.clearCache()
        boxes = [box.name for box in accessibility.find_all(self.panel, "combo box")]
        extensions = accessibility.find(self.panel, "text")
        is_enabled = extensions.getState().contains(pyatspi.STATE_ENABLED)
        return *boxes, accessibility.text_of(extensions), is_enabled

    @contextlib.contextmanager
    def presets(self):
        self.program.click(accessibility.find(self.panel, "push button", "Manage Presets"))
        self.desktop.focus(self.desktop.wait_for_window(f"^{DIALOG}$"))
        dialog = accessibility.find(self.program.root, "dialog", DIALOG)
        yield dialog
        self.program.click(accessibility.find(dialog, "push button", "OK"))
        self.desktop.wait_for_no_window(f"^{DIALOG}$")
        self.desktop.focus(self.program.window)

    def test_preset_goes_and_comes_back(self):
        names = list(presets().values())
        gone = names[2]
        self.start()
        self.program.press("New")
        PartsEditor(self.program).open_pane()
        self.show_panel()
        self.fields.set_combo_box(self.panel, None, "Extensions")
        self.wait_for(("Extensions", "Custom", "", True), self.shown)
        self.fields.set_combo_box(self.panel, "Preset:", gone)
        following = self.shown()
        self.assertEqual((following[1], following[3]), (gone, False))

        with self.presets() as dialog:
            self.program.click(accessibility.find(dialog, "text", "Preset name"))
            self.desktop.key("ctrl+a")
            self.desktop.type("Pictures")
            self.program.click(accessibility.find(dialog, "push button", "Add"))
            self.desktop.type("Mine")
            self.desktop.key("Return")
            self.desktop.type("ONE; two")
        with self.presets() as dialog:
            self.program.click(accessibility.find(dialog, "push button", "Delete preset " + gone))
        self.wait_for(("Extensions", "Custom", following[2], True), self.shown)
        self.desktop.key("ctrl+z")
        self.wait_for(following, self.shown)

        self.program.rename_in_place(self.program.selected()[0], "Filtered")
        self.program.press("Save")
        self.wait_for(False, self.program.is_save_shown)
        self.program.press("Cancel")
        self.check_end()
        self.start()  # with the pane open, as it was left
        self.program.click(self.program.cell(self.program.rows().index("Filtered")))
        accessibility.find(self.program.root, "push button", f"Filter \u2014 Extensions: {gone}")
        self.show_panel()
        self.wait_for(following, self.shown)
        preset = accessibility.find_control(self.panel, "combo box", "Preset:")
        self.assertEqual([item.name for item in preset.getChildAtIndex(0)], ["Pictures", *names[1:], "Mine", "Custom"])
        self.assertEqual(json.loads(self.program.read())["extensionsPresets"][-1]["extensions"], "one;two")


if __name__ == "__main__":
    unittest.main()
