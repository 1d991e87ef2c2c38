"""Runs save-commands on a settings folder of its own, plainly or under strace. Paths are str, contents bytes."""

import os
import re
import shutil
import signal
import stat
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["SAVE_COMMANDS"]
HANG = 120  # seconds, far beyond what any case takes under a sanitizer
NOT_WRITTEN = b"Failed to write commands to temporary file.\n"
NOT_REPLACED = b"Failed to replace commands file.\n"


class SaveTest(unittest.TestCase):
    actions = ("save", "load")  # of the file that is tested
    name = "VKCmds.json"

    def setUp(self):
        self.root = os.path.realpath(tempfile.mkdtemp(prefix="vellumark-"))
        self.addCleanup(shutil.rmtree, self.root)
        self.folder = self.root + "/Mirvanta/Vellumark"
        os.makedirs(self.folder)
        self.file = self.folder + "/" + self.name
        self.temporary = self.file + "+"
        self.environment = os.environ | {"XDG_CONFIG_HOME": self.root}

    def start(self, *arguments, under=(), **options):
        pipes = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "env": self.environment}
        return subprocess.Popen([*under, PROGRAM, *arguments], **(pipes | options))

    def run_tool(self, *arguments, **options):
        """Exit status, standard output and standard error."""
        with self.start(*arguments, **options) as process:
            try:
                out, errors = process.communicate(timeout=HANG)
            except subprocess.TimeoutExpired:
                process.kill()
                raise
            return process.returncode, out, errors

    def save(self, name="new", **options):
        """Exit status and standard error."""
        return self.run_tool(self.actions[0], name, **options)[::2]

    def saved_as(self, name, **options):
        """The bytes that a save of that name makes."""
        self.assertEqual(self.save(name, **options), (0, b""))
        with open(self.file, "rb") as file:
            return file.read()

    def content(self, path=None):
        try:
            with open(path or self.file, "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def write(self, content, path=None):
        with open(path or self.file, "wb") as file:
            file.write(content)

    def loaded(self):
        """What the program makes of the stored file: the one command's name, or None when there is no file."""
        status, out, errors = self.run_tool(self.actions[1])
        if b"Missing File" in errors:
            return None
        self.assertEqual((status, errors), (0, b""))
        return out.decode().strip() or None

    def injected(self, *injections):
        """A tracer that changes the given system calls of the main thread."""
        chosen = [part for injection in injections for part in ("-e", "inject=" + injection)]
        return ["strace", "-qq", "-o", "/dev/null", *chosen]

    def calls_of_a_save(self):
        """Each system call of a save with its number among those of its name in the whole run."""
        trace = self.root + "/trace"
        self.assertEqual(self.save(under=["strace", "-qq", "-o", trace]), (0, b""))
        with open(trace, encoding="utf-8", errors="replace") as lines:
            names = re.findall(r"^(\w+)\(", lines.read(), re.MULTILINE)
        begin, end = [at for at, name in enumerate(names) if name == "getppid"]
        return [(name, names[: at + 1].count(name)) for at, name in enumerate(names) if begin < at <= end]

    def killed_at(self, call, number):
        status, _ = self.save(under=self.injected(f"{call}:signal=KILL:when={number}"))
        # strace dies of the signal that its child died of.
        return status == -signal.SIGKILL

    def permissions(self, path=None):
        return stat.S_IMODE(os.stat(path or self.file).st_mode)
