"""A file filter that follows a preset, and the presets themselves: by mouse and keys, through undo, save, restart."""

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
        self.editor = PartsEditor(self.program)

    def show_panel(self):
        fields = Fields(self.program)
        self.panel = fields.filter_panel(fields.sections[0])

    def combos(self):
        self.panel.clearCache()
        return accessibility.find_all(self.panel, "combo box")

    def choose(self, combo, entry):
        self.editor.click(combo)
        items = accessibility.find(combo, "list")
        self.program.click(next(item for item in items if item.name == entry))

    def shown(self):
        """The type, the preset, the extensions and whether they can be edited."""
        boxes = [box.name for box in self.combos()]
        extensions = accessibility.find(self.panel, "text")
        is_enabled = extensions.getState().contains(pyatspi.STATE_ENABLED)
        return *boxes, accessibility.text_of(extensions), is_enabled

    def open_presets(self):
        self.editor.click(accessibility.find(self.panel, "push button", "Manage Presets"))
        self.desktop.focus(self.desktop.wait_for_window(f"^{DIALOG}$"))
        return accessibility.find(self.program.root, "dialog", DIALOG)

    def press_ok(self, dialog):
        self.program.click(accessibility.find(dialog, "push button", "OK"))
        self.desktop.wait_for_no_window(f"^{DIALOG}$")
        self.desktop.focus(self.program.window)

    def rename_and_add(self, old, new, added):
        dialog = self.open_presets()
        names = accessibility.find_all(dialog, "text", "Preset name")
        self.program.click(next(name for name in names if accessibility.text_of(name) == old))
        self.desktop.key("ctrl+a")
        self.desktop.type(new)
        self.program.click(accessibility.find(dialog, "push button", "Add"))
        self.desktop.type(added)
        self.desktop.key("Return")
        self.desktop.type("ONE; two")
        self.press_ok(dialog)

    def test_preset_goes_and_comes_back(self):
        names = list(presets().values())
        gone, renamed = names[2], names[0]
        self.start()
        self.program.press("New")
        self.editor.open_pane()
        self.show_panel()
        self.choose(self.combos()[0], "Extensions")
        self.wait_for(("Extensions", "Custom", "", True), self.shown)
        self.choose(self.combos()[1], gone)
        self.wait_for(gone, lambda: self.combos()[1].name)
        following = self.shown()
        self.assertFalse(following[-1])

        self.rename_and_add(renamed, "Pictures", "Mine")
        dialog = self.open_presets()
        self.program.click(accessibility.find(dialog, "push button", "Delete preset " + gone))
        self.press_ok(dialog)
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
        entries = [item.name for item in self.combos()[1].getChildAtIndex(0)]
        self.assertEqual(entries, ["Pictures", *names[1:], "Mine", "Custom"])
        self.assertEqual(json.loads(self.program.read())["extensionsPresets"][-1]["extensions"], "one;two")


if __name__ == "__main__":
    unittest.main()
