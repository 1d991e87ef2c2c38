"""Runs vellumark-text in a folder of its own, with commands of its own. Paths and outputs are bytes."""

import json
import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ["VELLUMARK_TEXT"]
HANG = 120  # seconds, far beyond what any case takes under a sanitizer

# A background job of a shell ignores interrupts, and the program would inherit that.
signal.signal(signal.SIGINT, signal.default_int_handler)

NAME = {"item-type": "name", "name-type": "full-name"}
PATH = {"item-type": "path", "path-type": "path-no-drive", "separator-text": "/"}
SHA256 = {"item-type": "checksum", "checksum-type": "sha256"}
TAB = {"item-type": "text", "text": "\t"}
FOLDER_FILES = {"item-type": "folder-files", "startText": ">"}

ODD_NAMES = [b"new\nline", b"'quoted\" $x", b"-dash", b"--list", b"-", b" ", b"back\\slash", b"C:", b"c:x", b"file."]
ODD_NAMES += [b"n" * 255, "\u00e9\u6f22\U0001F600".encode(), b"\xff\xc3(", b"\xed\xa0\x80", b"\x01\x7f"]


def command(name, *parts, **keys):
    return {"commandType": "Vellumark", "name": name, "separator": "\n", "fileParts": parts} | keys


def write_json(path, value):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        json.dump(value, file)


COMMANDS = {
    "menuCommands": [
        {"commandType": "Configure", "name": ""},
        command("names", NAME),
        command("paths", PATH),
        command("sums", NAME, TAB, SHA256),
    ],
    "commandsLibrary": [
        command("paths", NAME, separator="never: the menu has this name too"),
        command("a\tb\nc", PATH, addFilesFromFolders=True),
        command("tree", NAME, folderParts=[NAME, FOLDER_FILES]),
        command("all sums", NAME, TAB, SHA256, addFilesFromFolders=True),
    ],
}


class ToolTest(unittest.TestCase):
    program = PROGRAM

    def setUp(self):
        folder = os.path.realpath(tempfile.mkdtemp(prefix="vellumark-"))
        self.addCleanup(shutil.rmtree, folder)
        write_json(folder + "/commands.json", COMMANDS)
        self.home = folder
        self.folder = os.fsencode(folder) + b"/here"
        os.mkdir(self.folder)
        self.environment = os.environ | {
            "HOME": folder,
            "XDG_CONFIG_HOME": folder + "/user",
            "XDG_CONFIG_DIRS": folder + "/machine",
        }

    def write(self, name, content=b""):
        with open(os.path.join(self.folder, os.fsencode(name)), "wb") as file:
            file.write(content)

    def write_sparse(self, name, size):
        """Zeros that take no room; a file that is there keeps its content as far as it goes."""
        with open(os.path.join(self.folder, os.fsencode(name)), "ab") as file:
            file.truncate(size)

    def start(self, *arguments, own_commands=True, **options):
        own = ["--commands", self.home + "/commands.json"] if own_commands else []
        pipes = dict.fromkeys(["stdin", "stdout", "stderr"], subprocess.PIPE)
        options = pipes | {"cwd": self.folder, "env": self.environment} | options
        return subprocess.Popen([self.program, *own, *arguments], **options)

    def run_tool(self, *arguments, given=b"", **options):
        """Exit status, standard output and standard error."""
        with self.start(*arguments, **options) as process:
            try:
                out, errors = process.communicate(given, timeout=HANG)
            except subprocess.TimeoutExpired:
                process.kill()
                raise
            return process.returncode, out, errors

    def check_text(self, text, *arguments, **options):
        self.assertEqual(self.run_tool(*arguments, **options), (0, text, b""))

    def check_refused(self, status, message, *arguments, text=b"", **options):
        result = self.run_tool(*arguments, **options)
        self.assertEqual(result[:2], (status, text), result[2])
        self.assertIn(message, result[2])

    def wait_until(self, condition):
        end = time.monotonic() + HANG
        while not condition():
            self.assertLess(time.monotonic(), end)
            time.sleep(0.005)
