"""A save is killed at each of its system calls: the file is the old one or the new one, whole."""

import os
import unittest

from save_tool import SaveTest


class Kill(SaveTest):
    def check_every_call(self, prepare, old):
        """`prepare` makes the state before each save; `old` is the file's name for it and its content."""
        prepare()
        calls = self.calls_of_a_save()
        new = ("new", self.content())
        self.assertLess({"openat", "write", "fsync"}, {name for name, _ in calls})
        seen = []
        for call, number in calls:
            with self.subTest(call=call, number=number):
                prepare()
                self.assertTrue(self.killed_at(call, number), "not killed")
                found = (self.loaded(), self.content())
                self.assertIn(found, (old, new))
                seen.append(found == new)
        # Old up to the rename, new from then on.
        self.assertEqual(seen, sorted(seen))
        self.assertEqual((seen[0], seen[-1]), (False, True))
        # What the last kills left does not stand in the way.
        prepare()
        temporary = os.path.realpath(self.file) + "+"
        self.write(b"x" * 1_000_000, temporary)
        self.assertEqual(self.saved_as("new"), new[1])
        self.assertFalse(os.path.lexists(temporary))

    def test_over_an_old_file(self):
        old = self.saved_as("old")
        self.check_every_call(lambda: self.write(old), ("old", old))

    def test_first_save(self):
        def prepare():
            if os.path.lexists(self.file):
                os.remove(self.file)

        self.check_every_call(prepare, (None, None))

    def test_through_a_link(self):
        old = self.saved_as("old")
        target = self.root + "/target"

        def prepare():
            self.write(old, target)
            if not os.path.islink(self.file):
                os.remove(self.file)
                os.symlink("../../target", self.file)

        self.check_every_call(prepare, ("old", old))
        self.assertTrue(os.path.islink(self.file))


class KillLastCommand(Kill):
    actions = ("save-last", "load-last")
    name = "LastCmd.json"


if __name__ == "__main__":
    unittest.main()
