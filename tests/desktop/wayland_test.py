"""Copied texts on a Wayland desktop, which shows X11 windows too."""

import json
import os
import shutil
import subprocess
import tempfile
import unittest

import accessibility
from desktop import HANG, Desktop, wait_until
from program import FOLDER, ProgramTest

FILE = os.environ["SAMPLES"] + "/README"
MD5 = {"item-type": "checksum", "checksum-type": "md5"}
COMMANDS = {"menuCommands": [
    {"commandType": "Vellumark", "name": "Sum", "separator": "", "fileParts": [MD5]},
    {"commandType": "Configure", "name": "M"},
]}
# The toolkit takes Wayland where the session says so; the X server beside it is one of its own, which shares nothing.
# Its part for Wayland leaves objects behind at the end; our own leaks show in the tests on X11.
SESSION = {"XDG_SESSION_TYPE": "wayland", "LSAN_OPTIONS": "detect_leaks=0"}
NO_KEEPER = {"PATH": "/nonexistent"}


def start_compositor(desktop):
    """Without a screen or keys. It refuses to be root's, and what is root's is not open to others."""
    runtime = tempfile.mkdtemp(prefix="vellumark-wayland-")
    unittest.addModuleCleanup(shutil.rmtree, runtime)
    options = {}
    if os.geteuid() == 0:
        shutil.chown(runtime, "nobody", "nogroup")
        options = {"user": "nobody", "group": "nogroup", "extra_groups": []}
    with open(runtime + "/settings", "w", encoding="utf-8") as file:
        file.write("xwayland disable\n")
    os.chmod(runtime + "/settings", 0o644)
    variables = {"XDG_RUNTIME_DIR": runtime, "WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1",
                 "WLR_RENDERER": "pixman", "DISPLAY": ""}
    desktop.start("sway", "--config", runtime + "/settings", cwd="/", env=os.environ | variables, **options)
    SESSION["WAYLAND_DISPLAY"] = runtime + "/wayland-1"
    wait_until(lambda: copy(b"is there") == 0, "the compositor")


def setUpModule():
    ProgramTest.desktop = Desktop()
    unittest.addModuleCleanup(ProgramTest.desktop.close)
    start_compositor(ProgramTest.desktop)


def copy(content):
    """Another program copies these bytes; its exit status."""
    options = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "timeout": HANG, "check": False}
    return subprocess.run(["wl-copy", "--type", "text/plain;charset=utf-8"], input=content,
                          env=os.environ | SESSION, **options).returncode


def pasted():
    """What another program gets."""
    return subprocess.run(["wl-paste", "--no-newline"], env=os.environ | SESSION, capture_output=True, timeout=HANG,
                          check=True).stdout


def set_text(text, **variables):
    """What a program says that copies the text and ends, without a window."""
    return subprocess.run([FOLDER + "/clipboard_client", "set"], input=text.encode("utf-16-le"),
                          env=os.environ | SESSION | variables, stdout=subprocess.PIPE, timeout=HANG, check=False).stdout


class Text(unittest.TestCase):
    def test_is_there_when_its_program_has_ended(self):
        for text in ["a\r\n\u00e9\u6f22\U0001F600", "", "a\0b", "0123456789abcde\n" * 6_250_000]:
            with self.subTest(text[:20]):
                self.assertRegex(set_text(text), rb"^\d+\n$")
                self.assertTrue(pasted() == text.encode())

    def test_nobody_keeps_it_for_wayland(self):
        """The helper for X11 could, where no Wayland window finds it."""
        copy(b"other")
        self.assertEqual(set_text("lost", **NO_KEEPER), b"not set\n")
        self.assertEqual(pasted(), b"other")


class Window(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program.write("VKCmds.json", json.dumps(COMMANDS).encode())
        self.text = self.program.text_of("Sum", FILE)

    def select_and_press_ok(self):
        self.assertEqual(self.program.select(FILE), (0, ""))
        edit = accessibility.find(self.program.root, "text", "Clipboard Preview")
        self.wait_for(self.text.decode(), lambda: accessibility.text_of(edit))
        self.program.press("OK")

    def test_of_wayland_compares_and_copies(self):
        copy(b"0x" + b"0" * 32)
        self.program.start_unseen(**SESSION)
        self.select_and_press_ok()
        accessibility.find(self.program.root, "label", "NO MATCH")
        self.program.press("OK")
        self.check_end()
        self.assertEqual(pasted(), self.text)

    def test_is_of_x11_where_only_that_can_copy(self):
        copy(b"other")
        self.program.start(**SESSION, **NO_KEEPER)
        self.select_and_press_ok()
        self.check_end()
        self.assertEqual(self.program.desktop.clipboard(), self.text)


if __name__ == "__main__":
    unittest.main()
