"""Copied texts outlive who copied them, seen by other programs at a real clipboard."""

import os
import shutil
import signal
import subprocess
import time
import unittest

from desktop import Desktop, HANG, wait_until

PROGRAMS = os.environ["PROGRAMS"]
# How the keeper is found among all processes: nothing else runs from the test's own folder.
KEEPER = "vellumark-clipboard"


def setUpModule():
    global desktop
    desktop = Desktop()
    unittest.addModuleCleanup(desktop.close)


def utf16(text):
    return text.encode("utf-16-le", "surrogatepass")


def read_process(process, name):
    """A file of /proc; empty when the process has ended, reaped or not."""
    try:
        with open(f"/proc/{process}/{name}", "rb") as file:
            return file.read()
    except OSError:
        return b""


class ClipboardTest(unittest.TestCase):
    def setUp(self):
        self.folder = desktop.home + "/" + self.id().rsplit(".", 1)[-1]
        os.mkdir(self.folder)
        for name in ("clipboard_client", KEEPER):
            shutil.copy(f"{PROGRAMS}/{name}", self.folder)

    def client(self, work, given=b"", wrapper=(), **variables):
        """Exit status and standard output of a program that does one thing and ends. A limit that the wrapper sets
        lets writing fail and sends no signal."""
        done = subprocess.run(
            [*wrapper, self.folder + "/clipboard_client", work],
            input=given, stdout=subprocess.PIPE, env=os.environ | variables, timeout=HANG, check=False,
            restore_signals=False,
        )
        return done.returncode, done.stdout

    def copy(self, text, **variables):
        """The milliseconds that it took."""
        status, out = self.client("set", utf16(text), **variables)
        self.assertEqual(status, 0, out)
        return int(out)

    def replace_program(self, name, script):
        path = f"{self.folder}/{name}"
        if os.path.exists(path):
            os.remove(path)
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + script)
        os.chmod(path, 0o755)

    def processes(self, word=KEEPER):
        """Those that run from the test's folder, with the word in their command lines."""
        own = f"{self.folder}/".encode()
        lines = {entry: read_process(entry, "cmdline") for entry in os.listdir("/proc") if entry.isdigit()}
        return [entry for entry, line in lines.items() if own in line and word.encode() in line]

    def wait_for_keepers(self, count):
        wait_until(lambda: len(self.processes()) == count, f"{count} keepers")
        return self.processes()


class Copy(ClipboardTest):
    def test_text_is_there_when_its_program_has_ended(self):
        for text in ["a\r\n\u00e9\u6f22\U0001F600", "", "a\0b", "\ud800x\udc00\udbff", "\n" * 70000 + "\u00e9" * 70000]:
            with self.subTest(text[:20]):
                self.copy(text)
                expected = text.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace").encode()
                for target in ("UTF8_STRING", "text/plain", "text/plain;charset=utf-8"):
                    self.assertEqual(desktop.clipboard(target), expected)
        self.wait_for_keepers(1)

    def test_hundred_megabytes(self):
        text = "0123456789abcde\n" * 6_250_000
        print("100 MB copied in", self.copy(text), "ms")
        self.assertTrue(desktop.clipboard() == text.encode())

    def test_launcher_that_ignores_ends_of_children(self):
        launcher = ["env", "--ignore-signal=CHLD"]
        self.assertEqual(self.client("set", utf16("kept"), launcher)[0], 0)
        self.assertEqual(self.client("read", b"", launcher), (0, utf16("kept")))

    def test_keeper_ends_when_another_program_copies(self):
        self.copy("first")
        self.copy("second")
        self.assertEqual(desktop.clipboard(), b"second")
        self.wait_for_keepers(1)
        desktop.copy(b"other")
        self.wait_for_keepers(0)
        self.assertEqual(desktop.clipboard(), b"other")

    def test_keeper_has_nothing_of_its_starter(self):
        client = desktop.start(
            self.folder + "/clipboard_client", "stay",
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, cwd=self.folder, start_new_session=True,
        )
        client.stdin.write(utf16("kept"))
        client.stdin.close()
        client.stdin = None
        self.assertRegex(client.stdout.readline(), rb"^\d+\n$")
        keeper = self.wait_for_keepers(1)[0]
        self.assertEqual(read_process(client.pid, f"task/{client.pid}/children"), b"")
        self.assertEqual(os.readlink(f"/proc/{keeper}/cwd"), "/")
        streams = f"/proc/{keeper}/fd/"
        held = [os.readlink(streams + name) for name in os.listdir(streams)]
        self.assertEqual(held.count("/dev/null"), 3)
        self.assertEqual([link for link in held if link.startswith(("pipe:", "/memfd:", "/home", "/tmp"))], [])
        for number in (signal.SIGHUP, signal.SIGTERM):
            try:
                os.killpg(client.pid, number)
            except ProcessLookupError:
                pass
        client.wait(HANG)
        self.assertEqual(desktop.clipboard(), b"kept")

    def test_clipboard_manager_takes_over(self):
        """Some managers copy at once what others have copied, some when its owner ends."""
        self.copy("kept")
        desktop.copy(desktop.clipboard())
        self.wait_for_keepers(0)
        self.assertEqual(desktop.clipboard(), b"kept")

    def test_nobody_keeps_it(self):
        other = desktop.copy(b"other")
        wayland = {"WAYLAND_DISPLAY": "wayland-9", "PATH": self.folder}
        for script in ("exit 1\n", "kill -9 $$\n", "exec 2>&-; sleep 1000 & sleep 1000\n", None):
            with self.subTest(script):
                if script:
                    self.replace_program(KEEPER, script)
                else:
                    os.remove(f"{self.folder}/{KEEPER}")
                start = time.monotonic()
                self.assertEqual(self.client("set", utf16("lost")), (1, b"not set\n"))
                self.assertLess(time.monotonic() - start, 30)
                self.assertEqual(self.processes(), [])
        self.assertEqual(self.client("set", utf16("lost"), **wayland), (1, b"not set\n"))
        self.assertEqual(desktop.clipboard(), b"other")
        self.assertIsNone(other.poll())

    def test_next_keeper_takes_what_the_first_does_not(self):
        path = {"PATH": self.folder + ":" + os.environ["PATH"], "WAYLAND_DISPLAY": "wayland-9"}
        for script in ("cat > /dev/null; exit 1\n", "cat > /dev/null; sleep 1000\n"):
            with self.subTest(script):
                self.replace_program("wl-copy", script)
                self.copy(script, **path)
                self.assertEqual(desktop.clipboard(), script.encode())
                self.assertEqual(self.processes("wl-copy"), [])

    def test_text_that_does_not_fit_into_memory(self):
        desktop.copy(b"other")
        self.assertEqual(self.client("set", utf16("x" * 5000), ["prlimit", "--fsize=4096"]), (1, b"not set\n"))
        self.assertEqual(desktop.clipboard(), b"other")

    def test_no_display(self):
        none = {"DISPLAY": "", "QT_QPA_PLATFORM": "offscreen"}
        self.assertEqual(self.client("set", utf16("lost"), **none), (1, b"not opened\n"))
        gone = {"DISPLAY": ":4711", "QT_QPA_PLATFORM": "offscreen"}
        self.assertEqual(self.client("set", utf16("lost"), **gone), (1, b"not set\n"))


class Read(ClipboardTest):
    def test_text_of_others_and_of_this_program(self):
        desktop.copy("\u00e9\0\U0001F600".encode())
        self.assertEqual(self.client("read"), (0, utf16("\u00e9\0\U0001F600")))
        self.copy("kept")
        self.assertEqual(self.client("read"), (0, utf16("kept")))
        self.assertEqual(self.client("own"), (0, utf16("own")))

    def test_reader_that_fails(self):
        for script in ("echo half a text; exit 1\n", "echo half a text; kill -9 $$\n"):
            self.replace_program(KEEPER, script)
            self.assertEqual(self.client("read"), (1, b""))
        os.remove(f"{self.folder}/{KEEPER}")
        self.assertEqual(self.client("read"), (1, b""))

    def test_owner_that_does_not_answer(self):
        owner = desktop.copy(b"never")
        owner.send_signal(signal.SIGSTOP)
        try:
            start = time.monotonic()
            self.assertEqual(self.client("read"), (1, b""))
            self.assertLess(time.monotonic() - start, 15)
            self.assertEqual(self.processes(), [])
            self.copy("next")
            self.assertEqual(desktop.clipboard(), b"next")
        finally:
            owner.send_signal(signal.SIGCONT)


if __name__ == "__main__":
    unittest.main()
