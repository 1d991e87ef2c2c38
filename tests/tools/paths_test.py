"""Which paths are selected, how they may be written, and what odd entries of a file system give."""

import hashlib
import os
import unittest

from text_tool import ODD_NAMES, ToolTest

EMPTY = hashlib.sha256(b"").hexdigest().encode()


class Paths(ToolTest):
    def make_deep_folder(self):
        """A folder whose path has more bytes than one system call takes; yields its path and a descriptor."""
        part = b"d" * 250
        descriptor = os.open(self.folder, os.O_RDONLY)
        for _ in range(20):
            os.mkdir(part, dir_fd=descriptor)
            inner = os.open(part, os.O_RDONLY, dir_fd=descriptor)
            os.close(descriptor)
            descriptor = inner
        self.addCleanup(os.close, descriptor)
        os.close(os.open("file", os.O_CREAT | os.O_WRONLY, dir_fd=descriptor))
        return self.folder + (b"/" + part) * 20, descriptor

    def test_spellings(self):
        os.mkdir(self.folder + b"/dir")
        self.write("dir/f")
        os.symlink("dir", self.folder + b"/link")
        here = self.folder
        drive = "C:" + os.fsdecode(here).replace("/", "\\")
        for spelling, path in [
            ("dir/f", b"/dir/f"),
            ("../here/dir", b"/dir"),
            ("link/../dir", b"/dir"),
            ("link/", b"/link"),
            ("link/f", b"/link/f"),
            (here + b"/dir//", b"/dir"),
            (drive + "\\dir\\f", b"/dir/f"),
            (drive.replace("C:", "c:") + "\\dir", b"/dir"),
        ]:
            with self.subTest(spelling):
                self.check_text(here + path, "--command", "paths", "--", spelling)

    def test_odd_names(self):
        for name in ODD_NAMES:
            self.write(name, name)
            with self.subTest(name):
                line = name.decode(errors="replace") + "\t" + hashlib.sha256(name).hexdigest()
                self.check_text(line.encode(), "--command", "sums", "--", name)
        given = b"\0".join(ODD_NAMES)
        status, out, errors = self.run_tool("--command", "all sums", "-0", "--paths-from", "-", given=given)
        self.assertEqual((status, out.count(b"\t"), errors), (0, len(ODD_NAMES), b""))

    def test_paths_that_can_not_be_selected(self):
        self.write("a")
        os.symlink("loop", self.folder + b"/loop")
        for path, message in [
            ("gone", b"cannot select 'gone': No such file or directory"),
            ("a/below", b"cannot select 'a/below': "),
            ("loop/x", b"cannot select 'loop/x': Too many levels of symbolic links"),
            ("n" * 256, b"File name too long"),
            ("D:\\a", b"cannot select 'D:\\a': there can be no such path here"),
            ("\\\\no-such-server\\share\\a", b"No such file or directory"),
            ("\\\\\\a", b"Path not absolute"),
            ("", b"cannot select '': the path is empty"),
            (b"\xff\033[2J", "cannot select '\ufffd?[2J': No such".encode()),
        ]:
            with self.subTest(path):
                self.check_refused(1, message, "a", path, "../here", text=b"a\nhere")
        self.check_refused(1, b"'gone'", "gone", text=b"")

    def test_server_and_drive_alone(self):
        self.check_text(b"\\\\no-such-server\nC:\nC:", "\\\\no-such-server", "C:\\", "/")

    def test_absolute_paths_need_no_current_folder(self):
        self.write("a")
        gone = self.home + "/gone"
        os.mkdir(gone)

        def enter_and_remove():
            os.chdir(gone)
            os.rmdir(gone)

        self.check_text(b"a", self.folder + b"/a", preexec_fn=enter_and_remove)

    def test_lists_of_paths(self):
        for name in "abc":
            self.write(name)
        lines = self.home + "/lines"
        for content in [b"b\nc\n", b"b\nc"]:
            with open(lines, "wb") as file:
                file.write(content)
            for source in ["-", "/dev/stdin", lines]:
                with self.subTest(source):
                    self.check_text(b"a\nb\nc", "--paths-from", source, "a", given=content)
        self.check_text(b"b\nc", "-0", "--paths-from=-", given=b"b\0c\0")
        self.check_text(b"b\nc", "--paths-from", "/dev/stdin", given=b"b\nc\n")
        self.check_text(b"", "--paths-from", "-", given=b"")
        self.check_refused(1, b"cannot select '': ", "--paths-from", "-", given=b"b\n\nc\n", text=b"b\nc")
        self.check_refused(1, b"/gone: No such file", "--paths-from", self.home + "/gone", "a")
        self.check_refused(1, self.home.encode() + b": Is a directory\n", "--paths-from", self.home, "a")

    def test_a_great_many_paths(self):
        names = [b"file-%03d" % (number * 7 % 256) for number in range(50_000)]
        for name in set(names):
            self.write(name)
        self.check_text(b"\n".join(names), "--paths-from", "-", given=b"\n".join(names))
        self.check_text(b"\n".join(names), "-0", "--paths-from", "-", given=b"\0".join(names))

    def test_deep_paths(self):
        path, descriptor = self.make_deep_folder()
        file = path + b"/file"
        self.assertGreater(len(path), 4096)
        self.check_text(file, "--command", "paths", file)
        self.check_text(file, "--command", "a\tb\nc", self.folder + b"/" + b"d" * 250)
        self.check_text(b"file\t" + EMPTY, "--command", "sums", file)
        self.check_text(file, "--command", "paths", "file", preexec_fn=lambda: os.fchdir(descriptor))


if __name__ == "__main__":
    unittest.main()
