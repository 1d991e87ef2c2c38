"""Sets the fields of the editing pane to stored values, as a user does."""

import os

import accessibility
import labels
import pyatspi
from desktop import wait_until

# Files that have the properties of a group.
EXAMPLES = {"Photo": "Photos/Harbour.jpg", "GPS": "Photos/Harbour.jpg", "Image": "Photos/Harbour.jpg",
            "Music": "Sounds/Morning Bell.mp3", "Audio": "Sounds/Morning Bell.mp3",
            "Media": "Sounds/Morning Bell.mp3", "Video": "Films/Test Card.mp4"}
EXAMPLE = "Documents/Report.docx"  # for all others


class Fields:
    def __init__(self, program):
        self.program = program
        pane = accessibility.find(program.root, "filler", "Edit")
        column = pane.getChildAtIndex(0).getChildAtIndex(0)
        self.sections = [column.getChildAtIndex(place) for place in range(len(labels.SECTIONS))]
        self.example = None

    def build(self, command):
        """Gives a new command what the stored one has, except for its names."""
        files, folders = self.sections[:2]
        self.add_parts(files, command["fileParts"])
        if "folderParts" in command:
            self.set_check_box(folders, "Same As Files", False)
            self.add_parts(folders, command["folderParts"])
        elif "folderFilter" in command:
            # Only then does the filter show, which goes on to hold when its panel has gone.
            self.set_check_box(folders, "Add Files From Folders", True)
        for section, kind in ((files, "file"), (folders, "folder")):
            if command.get(kind + "FilterEnabled"):
                self.set_filter(section, kind, command[kind + "Filter"])
        for section, rows in zip(self.sections, labels.SECTIONS):
            self.set_rows(section, rows, command)

    def add_parts(self, section, parts):
        palette = accessibility.find(section, "list", "Parts of the text")
        for part in parts:
            chip, *rows = labels.PARTS[part["item-type"]]
            accessibility.press(accessibility.find(palette, "push button", "Add " + chip))
            controls = accessibility.find(section, "push button", "Delete").parent
            self.set_rows(controls, rows, part)

    def set_filter(self, section, kind, stored):
        """Extensions have no choice of what is to be done with them, and those of a preset are not edited here."""
        missing = {"filterAction"} if stored["filterMode"] == "extensions" else set()
        missing |= {"filterPattern"} if "fileFilterPresetUuid" in stored else set()
        rows = [row for row in labels.filter_rows(kind + "s") if row[0] not in missing]
        self.set_rows(self.filter_panel(section), rows, stored)

    @staticmethod
    def filter_panel(section):
        """With its controls shown; collapsed it tells its filter in its title."""
        def search():
            buttons = accessibility.matches(section, "push button")
            return next((button for button in buttons if button.name.startswith("Filter")), None)

        header = wait_until(search, "the filter")
        header.clearCache()
        if not header.getState().contains(pyatspi.STATE_EXPANDED):
            accessibility.press(header)
        return header.parent.parent

    def set_rows(self, root, rows, stored):
        for key, kind, label, *entries in rows:
            if key in stored:
                value = entries[0][stored[key]] if entries else stored[key]
                getattr(self, "set_" + kind.replace(" ", "_"))(root, label, value)

    # Each control, found below `root` by its label.

    def set_check_box(self, root, label, value):
        """A box that is not there stands for what is off; a number is one that is on."""
        if value is not False or accessibility.find_all(root, "check box", label):
            self.check(accessibility.find(root, "check box", label), value is not False)

    def set_choice(self, root, _, label):
        self.check(accessibility.find(root, name=label), True)

    def check(self, box, is_on):
        box.clearCache()
        if box.getState().contains(pyatspi.STATE_CHECKED) != is_on:
            accessibility.press(box)

    def set_combo_box(self, root, label, entry):
        """Opened, by the arrow keys."""
        box = accessibility.find_control(root, "combo box", label) if label else accessibility.find(root, "combo box")
        entries = [item.name for item in box.getChildAtIndex(0)]
        box.clearCache()
        steps = entries.index(entry) - entries.index(box.name)
        if not steps:
            return
        accessibility.press(box)
        self.program.desktop.key(*["Down" if steps > 0 else "Up"] * abs(steps), "Return")
        self.wait_for(box, lambda: box.name == entry, entry)

    def set_text(self, root, label, text):
        """Marks for blanks show in a box that doesn't have the focus, and are no part of its text."""
        edit = accessibility.find(root, "text", label)
        self.focus(edit)
        if accessibility.text_of(edit) != text:
            edit.queryEditableText().setTextContents(text)

    def set_line(self, root, label, text):
        """What is typed counts when the line is left."""
        self.set_text(root, label, text)
        self.program.desktop.key("Return")

    def set_number(self, root, label, number):
        edit = accessibility.find(root, "text", label)
        self.focus(edit)
        self.program.desktop.key("ctrl+a", *str(number))
        self.wait_for(edit, lambda: accessibility.text_of(edit) == str(number), label)

    def set_spin_button(self, root, label, number):
        accessibility.find(root, "spin button", label).queryValue().currentValue = number

    def set_property(self, root, label, name):
        """Its row is there when a file that has such properties is selected."""
        wanted = labels.property_label(name)
        example = EXAMPLES.get(name.split(".")[1], EXAMPLE)
        if example != self.example:
            self.program.select(os.path.join(os.environ["SAMPLES"], example))
            self.example = example
        node = accessibility.find(root, "table", label)

        def row():
            node.clearCache()
            table = node.queryTable()
            names = [table.getAccessibleAt(row, 0).name for row in range(table.nRows)]
            return wanted in names and [names.index(wanted)]

        node.queryTable().addRowSelection(wait_until(row, wanted)[0])

    def focus(self, control):
        control.queryComponent().grabFocus()
        self.wait_for(control, lambda: control.getState().contains(pyatspi.STATE_FOCUSED), "the focus")

    @staticmethod
    def wait_for(node, condition, what):
        def comes():
            node.clearCache()
            return condition()

        wait_until(comes, what)
