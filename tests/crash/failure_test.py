"""What stands in a save's way: failing system calls, full disks, odd entries, missing rights, another save."""

import os
import resource
import signal
import struct
import time
import unittest

from save_tool import NOT_REPLACED, NOT_WRITTEN, PROGRAM, SaveTest

NOBODY = 65534


class Failure(SaveTest):
    def setUp(self):
        super().setUp()
        self.new = self.saved_as("new")
        self.old = self.saved_as("old")

    def check_refused(self, message, **options):
        self.assertEqual(self.save(**options), (1, message))
        self.assertEqual((self.content(), self.loaded()), (self.old, "old"))
        self.assertFalse(os.path.isfile(self.temporary))

    def check_saved(self, **options):
        self.assertEqual(self.saved_as("new", **options), self.new)
        self.assertFalse(os.path.lexists(self.temporary))

    def test_failing_calls(self):
        numbers = dict(reversed(self.calls_of_a_save()))  # the first call of a name
        self.write(self.old)
        for call, error, message in [
            ("write", "ENOSPC", NOT_WRITTEN),
            ("fsync", "EIO", NOT_WRITTEN),
            ("fsync", "EDQUOT", NOT_WRITTEN),
            ("ftruncate", "EIO", NOT_WRITTEN),
            ("renameat", "EACCES", NOT_REPLACED),
            ("renameat", "ENOSPC", NOT_REPLACED),
        ]:
            with self.subTest(call=call, error=error):
                self.check_refused(message, under=self.injected(f"{call}:error={error}:when={numbers[call]}"))
        # Interrupted, or on a file system without locks; the folder's change can't be brought to the disk everywhere.
        for call, error, later in [("write", "EINTR", 0), ("flock", "ENOLCK", 0), ("fsync", "EINVAL", 1)]:
            with self.subTest(call=call, error=error):
                self.write(self.old)
                self.check_saved(under=self.injected(f"{call}:error={error}:when={numbers[call] + later}"))

    def test_limit_in_the_middle_of_the_file(self):
        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (len(self.new) // 2,) * 2)

        self.check_refused(NOT_WRITTEN, preexec_fn=limit, restore_signals=False)

    def test_missing_rights(self):
        program = self.root + "/save-commands"
        with open(PROGRAM, "rb") as file:
            self.write(file.read(), program)
        os.chmod(program, 0o755)
        os.chmod(self.root, 0o755)
        user = {}
        if os.geteuid() == 0:
            user = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
            for path in [self.root + "/Mirvanta", self.folder, self.file]:
                os.chown(path, NOBODY, NOBODY)
        as_user = {"executable": program, **user}
        self.check_saved(**as_user)
        self.write(self.old)
        os.chmod(self.folder, 0o555)
        self.check_refused(NOT_WRITTEN, **as_user)
        os.chmod(self.folder, 0o755)
        os.chmod(self.file, 0o444)
        self.check_refused(NOT_REPLACED, **as_user)

    def test_permissions_and_owner_stay(self):
        if os.geteuid() == 0:
            os.chown(self.file, NOBODY, NOBODY)
        owner = os.stat(self.file).st_uid
        for bits in [0o600, 0o640, 0o666]:
            os.chmod(self.file, bits)
            self.check_saved(umask=0o022)
            self.assertEqual((self.permissions(), os.stat(self.file).st_uid), (bits, owner))
        # The temporary file is never wider than the old one.
        os.chmod(self.file, 0o600)
        self.write(b"", self.temporary)
        os.chmod(self.temporary, 0o666)
        self.killed_at(*next(call for call in self.calls_of_a_save() if call[0] == "write"))
        self.assertEqual(self.permissions(self.temporary), 0o600)

    def test_kept_copies_are_as_private_as_the_file(self):
        if os.geteuid() == 0:
            os.chown(self.file, NOBODY, NOBODY)
        self.write(b"kept", self.root + "/elsewhere")
        os.symlink("nowhere", self.file + ".broken")
        os.symlink(self.root + "/elsewhere", self.file + ".broken2")
        for number, bits, without_links in [(3, 0o640, False), (4, 0o640, True), (5, 0o604, True)]:
            self.write(self.old)
            os.chmod(self.file, bits)
            # A copy where there can be no second name.
            under = self.injected("linkat:error=EPERM") if without_links else ()
            self.assertEqual(self.run_tool("keep", "new", under=under, umask=0), (0, b"", b""))
            copy = f"{self.file}.broken{number}"
            self.assertEqual((self.content(copy), self.permissions(copy)), (self.old, bits))
        self.assertEqual(self.content(self.root + "/elsewhere"), b"kept")
        self.assertFalse(os.path.exists(self.folder + "/nowhere"))
        # The owner and one more user: the list isn't copied, and its mask is no right of the group's.
        self.write(self.old)
        entries = [(1, 6, 2**32 - 1), (2, 6, NOBODY), (4, 0, 2**32 - 1), (16, 6, 2**32 - 1), (32, 4, 2**32 - 1)]
        access = struct.pack("<I", 2) + b"".join(struct.pack("<HHI", *entry) for entry in entries)
        os.setxattr(self.file, "system.posix_acl_access", access)
        self.run_tool("keep", "new", under=self.injected("linkat:error=EPERM"))
        self.assertEqual(self.permissions(self.file + ".broken6"), 0o600)

    def test_entries_in_the_way(self):
        os.remove(self.file)
        for make in (os.mkdir, os.mkfifo, lambda path: os.symlink("/dev/null", path)):
            make(self.file)
            kind = os.lstat(self.file).st_mode
            self.assertEqual(self.save(), (1, NOT_REPLACED))
            self.assertEqual(os.lstat(self.file).st_mode, kind)
            self.assertFalse(os.path.lexists(self.temporary))
            status, _, errors = self.run_tool("load")
            self.assertEqual(status, 1)
            self.assertIn(b"Read Error", errors)
            os.rmdir(self.file) if os.path.isdir(self.file) else os.remove(self.file)

        self.write(self.old)
        os.mkdir(self.temporary)
        self.check_refused(NOT_WRITTEN)
        os.rmdir(self.temporary)
        self.write(b"kept", self.root + "/kept")
        for make in (os.mkfifo, lambda path: os.symlink(self.root + "/kept", path)):
            make(self.temporary)
            self.check_saved()
        self.assertEqual(self.content(self.root + "/kept"), b"kept")

    def test_links_stay(self):
        os.remove(self.file)
        os.mkdir(self.root + "/dotfiles")
        os.symlink("dotfiles/second", self.root + "/first")
        os.symlink("../../first", self.file)
        target = self.root + "/dotfiles/second"
        for content in [None, self.old]:
            if content:
                self.write(content, target)
            self.check_saved()
            self.assertEqual(os.readlink(self.file), "../../first")
            self.assertEqual(self.content(target), self.new)
            self.assertEqual(os.listdir(self.root + "/dotfiles"), ["second"])
        for text in ["missing/folder", "VKCmds.json"]:
            os.remove(self.file)
            os.symlink(text, self.file)
            self.assertEqual(self.save(), (1, NOT_WRITTEN))
            self.assertEqual(os.readlink(self.file), text)

    def start_slow_save(self, name, seconds):
        """A save that stays that long in its write; returns when it has the temporary file."""
        write = next(number for call, number in self.calls_of_a_save() if call == "write")
        self.write(self.old)
        delay = f"write:delay_enter={int(seconds * 1e6)}:when={write}"
        process = self.start("save", name, under=self.injected(delay))
        while not os.path.lexists(self.temporary):
            self.assertIsNone(process.poll())
            time.sleep(0.001)
        return process

    def test_second_save_waits(self):
        with self.start_slow_save("old", 0.4) as first:
            self.check_saved()
            self.assertEqual(first.wait(), 0)
        self.assertEqual(self.content(), self.new)

    def test_second_save_gives_up(self):
        with self.start_slow_save("new", 4) as first:
            start = time.monotonic()
            self.assertEqual(self.save("second"), (1, NOT_WRITTEN))
            self.assertGreater(time.monotonic() - start, 0.9)
            self.assertEqual(self.content(), self.old)
            self.assertEqual(first.wait(), 0)
        self.assertEqual(self.content(), self.new)

    def test_many_saves_at_once(self):
        whole = [self.saved_as(str(i)) for i in range(6)]
        for _ in range(10):
            saves = [self.start("save", str(i)) for i in range(6)]
            while any(save.poll() is None for save in saves):
                self.assertIn(self.content(), whole)
            for save in saves:
                self.assertIn((save.communicate()[1], save.returncode), [(b"", 0), (NOT_WRITTEN, 1)])
            self.assertIn(self.content(), whole)
            self.assertFalse(os.path.lexists(self.temporary))


if __name__ == "__main__":
    unittest.main()
