"""The editing pane of the application's window, as a screen reader sees it and as mouse and keys work it."""

import time

import accessibility
import pyatspi
from desktop import wait_until


class PartsEditor:
    """The chips of one template: the first in the pane is that for files."""

    def __init__(self, program, number=0):
        self.program = program
        self.number = number

    def open_pane(self):
        """Which may be open from the session before."""
        header = accessibility.find(self.program.root, "push button", "View/Edit")
        if not header.getState().contains(pyatspi.STATE_EXPANDED):
            accessibility.press(header)
        wait_until(lambda: accessibility.find_all(self.program.root, "list", "Parts of the text"), "the chips")

    def _chips(self):
        row = accessibility.find_all(self.program.root, "list", "Parts of the text")[self.number]
        return [row.getChildAtIndex(index) for index in range(row.childCount)]

    def row(self):
        """The names of the chips in the row; "*" behind the selected one."""
        chips = [chip for chip in self._chips() if chip.getRole() == pyatspi.ROLE_LIST_ITEM]
        return [chip.name + "*" * chip.getState().contains(pyatspi.STATE_SELECTED) for chip in chips]

    def find(self, name):
        """The first chip of this name."""
        return wait_until(lambda: [chip for chip in self._chips() if chip.name == name], name)[0]

    def middle(self, name):
        """Where it is or is going to be."""
        return self.program.middle(self.find(name))

    def add(self, kind):
        """Drags a chip from the palette to the end of the row."""
        start = self.middle("Add " + kind)
        row = [chip for chip in self._chips() if chip.getRole() == pyatspi.ROLE_LIST_ITEM]
        end = self.program.middle(row[-1]) if row else (start[0], start[1] + 55)
        self.program.desktop.drag(start, (end[0] + 10, end[1]))

    def move(self, name, behind):
        self.program.desktop.drag(self.middle(name), self._gap(behind))

    def throw_out(self, name):
        x, y = self.middle(name)
        self.program.desktop.drag((x, y), (x, y + 150))

    def _gap(self, name):
        x, y = self.middle(name)
        return x + 3, y

    def click(self, control):
        """Once it has come to rest: sections move to their heights."""
        places = []

        def rests():
            time.sleep(0.1)
            places.append(self.program.middle(control))
            return places[-2:] == places[-1:] * 2

        wait_until(rests, "the control's rest")
        self.program.desktop.click(*places[-1])

    def control(self, role, name):
        """A control of the selected part."""
        return accessibility.find_control(self.program.root, role, name)
