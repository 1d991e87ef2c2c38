"""What a user at a terminal sees: the status line and what an interrupt does."""

import fcntl
import os
import signal
import struct
import termios
import threading
import time
import unittest

from text_tool import HANG, ToolTest

ERASE = b"\r\033[K"
LARGE = 1 << 29  # takes some tenths of a second to hash: the line is first shown after one
HUGE = 8 << 30  # takes many seconds to hash


class Terminal:
    """A pseudo-terminal that keeps all that is written to it."""

    def __init__(self, columns):
        self.master, self.slave = os.openpty()
        fcntl.ioctl(self.slave, termios.TIOCSWINSZ, struct.pack("4H", 24, columns, 0, 0))
        self.shown = b""
        self.reader = threading.Thread(target=self.read)
        self.reader.start()

    def read(self):
        try:
            while block := os.read(self.master, 65536):
                self.shown += block
        except OSError:
            pass  # the last writer is gone

    def close(self):
        os.close(self.slave)
        self.reader.join()
        os.close(self.master)
        return self.shown


class AtTerminal(ToolTest):
    def run_at_terminal(self, *arguments, columns=200, given=b""):
        """Exit status, standard output, what the line showed between its erasures, and the seconds that it took."""
        terminal = Terminal(columns)
        started = time.monotonic()
        try:
            status, out, _ = self.run_tool(*arguments, stderr=terminal.slave, given=given)
        finally:
            shown = terminal.close()
        return status, out, shown.split(ERASE), time.monotonic() - started

    def test_status_line_vanishes(self):
        self.write_sparse("sparse", LARGE)
        status, out, shown, _ = self.run_at_terminal("--command", "sums", "sparse")
        self.assertEqual((status, out[:7]), (0, b"sparse\t"))
        self.assertEqual(shown, [b"", b"Computing checksums... " + self.folder + b"/sparse", b""])

    def test_status_line_is_refreshed_at_most_ten_times_a_second(self):
        self.write("a")
        self.write_sparse("sparse", LARGE)
        given = b"a\n" * 20_000 + b"sparse\n"
        status, out, shown, seconds = self.run_at_terminal("--command", "sums", "--paths-from", "-", given=given)
        self.assertEqual((status, out.count(b"\n")), (0, 20_000))
        lines = len(shown) - 2
        self.assertGreater(lines, 0)
        self.assertLessEqual(lines, 1 + seconds * 10)

    def test_status_line_fits_and_controls_nothing(self):
        name = b"a\n\033[2J" + b"b" * 100 + "\u6f22".encode() * 40
        self.write_sparse(name, LARGE)
        _, _, shown, _ = self.run_at_terminal("--command", "sums", name, columns=40)
        self.assertEqual(len(shown), 3)
        line = shown[1].decode()
        self.assertRegex(line, "^Computing checksum.*\\.\\.\\..*\u6f22$")
        self.assertLessEqual(len(line) + line.count("\u6f22"), 39)
        _, _, shown, _ = self.run_at_terminal("--command", "sums", name, columns=1000)
        self.assertRegex(shown[1].decode(), "/a\\?\\?\\[2Jb+\u6f22+$")

    def test_no_status_without_a_terminal(self):
        self.write_sparse("sparse", LARGE)
        self.assertEqual(self.run_tool("--command", "sums", "sparse")[2], b"")


class Interrupt(ToolTest):
    def setUp(self):
        super().setUp()
        # An interrupt joins no threads, which the thread sanitizer would report.
        options = os.environ.get("TSAN_OPTIONS", "")
        self.environment["TSAN_OPTIONS"] = options + " report_thread_leaks=0"

    def interrupt(self, process, ready):
        self.addCleanup(process.kill)
        self.wait_until(ready)
        started = time.monotonic()
        process.send_signal(signal.SIGINT)
        out, _ = process.communicate(timeout=HANG)
        self.assertEqual((process.returncode, out), (130, b""))
        self.assertLess(time.monotonic() - started, 2)

    def opened(self, process, name):
        fds = f"/proc/{process.pid}/fd/"
        try:
            return any(os.readlink(fds + fd).endswith(name) for fd in os.listdir(fds))
        except FileNotFoundError:
            return False  # closed while we looked

    def test_while_hashing(self):
        self.write_sparse("huge", HUGE)
        self.write("first")
        process = self.start("--command", "sums", "first", "huge")
        self.interrupt(process, lambda: self.opened(process, "/huge"))

    def test_while_hashing_at_a_terminal(self):
        self.write_sparse("huge", HUGE)
        terminal = Terminal(80)
        try:
            process = self.start("--command", "sums", "huge", stderr=terminal.slave)
            self.interrupt(process, lambda: b"Computing" in terminal.shown)
        finally:
            shown = terminal.close()
        self.assertTrue(shown.endswith(ERASE), shown)

    def start_reading_paths(self, **options):
        """A process that has read its first path and waits for more."""
        self.write("a")
        process = self.start("--paths-from", "-", **options)
        process.stdin.write(b"a\n")
        process.stdin.flush()
        self.wait_until(lambda: not any(fcntl.ioctl(process.stdin, termios.FIONREAD, bytes(4))))
        return process

    def test_while_reading_paths(self):
        self.interrupt(self.start_reading_paths(), lambda: True)

    def test_stays_ignored_for_a_background_job(self):
        process = self.start_reading_paths(preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_IGN))
        self.addCleanup(process.kill)
        process.send_signal(signal.SIGINT)
        self.assertEqual(process.communicate(b"a\n", timeout=HANG), (b"a\na", b""))


if __name__ == "__main__":
    unittest.main()
