"""The application in its window, with settings folders of its own, as a user has it before him."""

import json
import os
import shutil
import socket
import subprocess
import tempfile
import time
import unittest

import accessibility
import pyatspi
from desktop import HANG, wait_until

FOLDER = os.environ["PROGRAMS"]
KEEPER = "vellumark-clipboard"
TITLE = "^Vellumark Configure$"
NAME_COLUMN = 1
MENU_ENTRIES = ("Duplicate", "Rename", "Delete", "Move to Commands Library")
UNSAVED, NOT_SHOWN = ", unsaved changes", ", not shown for this selection"


def shipped_commands():
    with open(FOLDER + "/VKCmds.json", encoding="utf-8") as file:
        return json.load(file)


class Program:
    """One user's application: at first none runs."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.folder = FOLDER
        self.home = tempfile.mkdtemp(dir=desktop.home)
        self.runtime = self.home + "/runtime"
        os.mkdir(self.runtime, 0o700)
        # The developer's own choice of a look is none of the tests' business.
        own_look = ("QT_SCALE", "QT_QPA", "QT_STYLE", "XDG_CURRENT", "KDE_")
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith(own_look)}
        self.environment |= {"XDG_CONFIG_HOME": self.home, "XDG_RUNTIME_DIR": self.runtime}
        self.pipe = self.runtime + "/com.mirvanta.vellumark.api-1"
        self.settings = self.home + "/Mirvanta/Vellumark"
        self.process = self.window = self.root = None

    def write(self, name, content):
        """Puts bytes into a file of the settings."""
        os.makedirs(self.settings, exist_ok=True)
        with open(f"{self.settings}/{name}", "wb") as file:
            file.write(content)

    def write_commands(self, menu, library=()):
        """Stored commands of these names; one that starts with "<" is built-in, such as "<Configure"."""
        template = shipped_commands()["menuCommands"][0]

        def command(name):
            return {"commandType": name[1:], "name": ""} if name.startswith("<") else template | {"name": name}

        lists = {"menuCommands": menu, "commandsLibrary": library}
        stored = {key: [command(name) for name in names] for key, names in lists.items()}
        self.write("VKCmds.json", json.dumps(stored | {"extensionsPresets": []}).encode())

    def read(self, name="VKCmds.json"):
        """A settings file's bytes; None while there is none."""
        try:
            with open(f"{self.settings}/{name}", "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def saved_names(self):
        """The menu's and the library's names in the commands file."""
        stored = json.loads(self.read())
        return tuple([command["name"] for command in stored[key]] for key in ("menuCommands", "commandsLibrary"))

    def move(self):
        """Into a folder of its own, where a test may replace what lies beside it."""
        self.folder = tempfile.mkdtemp(dir=self.home)
        for name in ("VellumarkConfigure", KEEPER, "VKCmds.json", "VKDefaultPresets.json", "VKGallery.json"):
            shutil.copy(f"{FOLDER}/{name}", self.folder)

    def start(self, with_box=False, **environment):
        """`with_box`: a box comes with the window and has the focus."""
        self._start_process(environment)
        self.attach(self.process.pid, with_box)

    def start_unseen(self, **environment):
        """Where the window is none of this display's: only for what a screen reader can see and do."""
        self._start_process(environment)
        self.find_root(self.process.pid)

    def _start_process(self, environment):
        self.scale = int(environment.get("QT_SCALE_FACTOR", "1"))
        self.process = self.desktop.start(
            self.folder + "/VellumarkConfigure", env=self.environment | environment, stderr=subprocess.PIPE
        )

    def attach(self, process=None, with_box=False):
        """Finds the window of the process, or of whichever runs, and brings it to the front unless a box is there."""
        windows = wait_until(lambda: self._windows_of(process, 2 if with_box else 1), "the window")
        self.window = max(windows, key=lambda window: self.desktop.geometry(window)[3])
        self.find_root(self.window_process(self.window))
        if not with_box:
            self.desktop.focus(self.window)

    def window_process(self, window):
        return int(self.desktop.ask("xdotool", "getwindowpid", window) or 0)

    def _windows_of(self, process, count):
        windows = [w for w in self.desktop.windows(TITLE) if process in (None, self.window_process(w))]
        return windows if len(windows) >= count else None

    def find_root(self, process):
        """The process as a screen reader sees it, once it has a window."""

        def search():
            for application in pyatspi.Registry.getDesktop(0):
                if application and application.get_process_id() == process and application.childCount:
                    return application
            return None

        self.root = wait_until(search, "the accessible window")

    def select(self, *arguments):
        """What a file manager calls. The tool's exit status and what it complains of."""
        done = subprocess.run(
            [FOLDER + "/vellumark-select", *arguments],
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
            timeout=HANG, check=False,
        )
        return done.returncode, done.stderr.decode()

    def text_of(self, command, *paths):
        """The bytes that the tool for terminals makes of a command and paths."""
        call = [FOLDER + "/vellumark-text", "--command", command, "--", *paths]
        return subprocess.run(call, env=self.environment, capture_output=True, timeout=HANG, check=True).stdout

    def send(self, message):
        """Bytes to the socket as one message."""
        with socket.socket(socket.AF_UNIX) as client:
            client.connect(self.pipe)
            client.sendall(message)

    def wait_for_end(self):
        """The exit status, and what went to standard error."""
        errors = self.process.communicate(timeout=HANG)[1].decode(errors="replace")
        return self.process.returncode, errors

    # The lists, as a screen reader sees them.

    def table(self, name="Context Menu Commands"):
        return accessibility.find(self.root, "table", name)

    def cells(self, **table):
        """The names' cells, one a row."""
        cells = self.table(**table).queryTable()
        return [cells.getAccessibleAt(row, NAME_COLUMN) for row in range(cells.nRows)]

    def cell(self, row, **table):
        return self.cells(**table)[row]

    def rows(self, **table):
        return [cell.name for cell in self.cells(**table)]

    def selected(self, **table):
        """Numbers of the selected rows."""
        chosen = [cell.getState().contains(pyatspi.STATE_SELECTED) for cell in self.cells(**table)]
        return [row for row, is_chosen in enumerate(chosen) if is_chosen]

    def middle(self, node):
        """Where to click it, on the screen."""
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        # The toolkit tells its own units, not the screen's.
        return self.scale * (box.x + box.width // 2), self.scale * (box.y + box.height // 2)

    def click(self, node, button=1):
        self.desktop.click(*self.middle(node), button)

    def show_list(self, name):
        self.click(accessibility.find(self.root, "page tab", name))

    def press(self, name):
        accessibility.press(accessibility.find(self.root, "push button", name))

    def box(self):
        """The window of the box that stands over the main one."""
        return wait_until(lambda: set(self.desktop.windows(TITLE)) - {self.window}, "the box").pop()

    def answer_box(self, button):
        """Presses a button of the box that shows; what the box says."""
        box = accessibility.find(self.root, "alert")
        text = accessibility.find(box, "label").name
        accessibility.press(accessibility.find(box, "push button", button))
        return text

    def is_save_shown(self):
        return bool(accessibility.find_all(self.root, "push button", "Save"))

    def choose_from_menu(self, row, entry):
        """Opens the menu of a row in the menu's list with the mouse, and takes an entry."""
        self.click(self.cell(row), button=3)
        self.choose_from_open_menu(entry)

    def choose_from_open_menu(self, entry):
        """By the keys. A toolkit's menu can't be found from its window, so the entry is counted."""
        self.desktop.key(*["Down"] * (MENU_ENTRIES.index(entry) + 1), "Return")

    def drag(self, row, gap):
        """Takes a row with the mouse and lets it go before row `gap`."""
        start = self.middle(self.cell(row))
        target = self.cell(gap).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        self.desktop.drag(start, (start[0], target.y + 1))

    def rename_in_place(self, row, name):
        self.click(self.cell(row))
        wait_until(lambda: self.selected() == [row], "the row's selection")
        self.rename_current(name)

    def rename_current(self, name):
        self.desktop.key("F2")
        self.desktop.type(name)
        self.desktop.key("Return")


class ProgramTest(unittest.TestCase):
    """Gives each test a program whose windows are gone behind it."""

    desktop = None

    def setUp(self):
        self.program = Program(self.desktop)
        self.addCleanup(self.end_windows)

    def end_windows(self):
        for window in self.desktop.windows("Vellumark Configure"):
            self.desktop.ask("xdotool", "windowkill", window)
        self.desktop.wait_for_no_window("Vellumark Configure")

    def wait_for(self, expected, actual, **arguments):
        """Until the function gives what is expected; else tells the difference."""
        end = time.monotonic() + HANG
        while True:
            try:
                value = actual(**arguments)
            except accessibility.GONE as gone:
                value = gone
            if value == expected or time.monotonic() > end:
                break
            time.sleep(0.02)
        self.assertEqual(value, expected)

    def wait_for_rows(self, *expected, **table):
        self.wait_for(list(expected), self.program.rows, **table)

    def check_end(self):
        """The program has ended by itself and well."""
        status, errors = self.program.wait_for_end()
        self.assertEqual(status, 0, errors[-3000:])
