"""Which command runs, from which file; wrong usage; where messages and texts go."""

import json
import os
import unittest

from text_tool import COMMANDS, ToolTest, command, write_json

USER_FILE = "/user/Mirvanta/Vellumark/VKCmds.json"


class Commands(ToolTest):
    def setUp(self):
        super().setUp()
        self.write("b")
        self.write("a")

    def test_choice(self):
        folder = self.folder
        for arguments, text in [
            ([], b"b\na"),
            (["--index", "1"], b"b\na"),
            (["--index=2"], folder + b"/b\n" + folder + b"/a"),
            (["--command", "paths"], folder + b"/b\n" + folder + b"/a"),
            (["--command", "a\tb\nc"], folder + b"/b\n" + folder + b"/a"),
        ]:
            with self.subTest(arguments):
                self.check_text(text, *arguments, "b", "a")

    def test_list(self):
        self.check_text(
            b"menu\t0\tMore Commands...\tbuilt-in\nmenu\t1\tnames\nmenu\t2\tpaths\nmenu\t3\tsums\n"
            b"library\t0\tpaths\nlibrary\t1\ta?b?c\nlibrary\t2\ttree\nlibrary\t3\tall sums\n",
            "--list",
        )

    def test_wrong_usage(self):
        for message, *arguments in [
            (b"no paths given",),
            (b"--list takes neither", "--list", "a"),
            (b"exclude each other", "--index", "1", "--command", "names", "a"),
            (b"-0 goes with --paths-from", "-0", "a"),
            (b"a number from 0 on", "--index", "-1", "a"),
            (b"a number from 0 on", "--index", "1x", "a"),
            (b"a number from 0 on", "--index", "99999999999999999999", "a"),
            (b"no command 4: the menu has 4", "--index", "4", "a"),
            (b"no command is named 'Names'", "--command", "Names", "a"),
            (b"'More Commands...' is a built-in command", "--index", "0", "a"),
            (b"--index", "a", "--index"),
            (b"--comman", "--comman", "names", "a"),
            (b"-dash", "-dash"),
            (b"--index", "--index", "1", "--index", "1", "a"),
        ]:
            with self.subTest(arguments):
                self.check_refused(2, message, *arguments)

    def test_help_and_version_come_alone(self):
        for option, start in [("--help", b"Usage: "), ("-h", b"Usage: "), ("--version", b"vellumark-text 4.7.2.0\n")]:
            with self.subTest(option):
                status, out, errors = self.run_tool(option, own_commands=False)
                self.assertEqual((status, out.startswith(start), errors), (0, True, b""))

    def test_bad_commands_file(self):
        for content, message in [
            (None, b"bad.json: Missing File\n"),
            ("{", b"bad.json: Invalid JSON (incomplete JSON)\n"),
            ("{}", b"JSON value missing: menuCommands\n"),
            ('{"menuCommands":[]}', b"the menu has no file-name command\n"),
        ]:
            with self.subTest(content):
                if content is not None:
                    self.write("bad.json", content.encode())
                self.check_refused(1, message, "--commands", "bad.json", "a", own_commands=False)
        # What the user has is broken: nothing stands in for it.
        write_json(self.home + USER_FILE, [])
        self.check_refused(1, b"Top-level JSON value", "a", own_commands=False)

    def test_default_commands(self):
        def names():
            status, out, _ = self.run_tool("--list", own_commands=False)
            return status, [line.split(b"\t")[2] for line in out.splitlines()]

        status, shipped = names()
        self.assertEqual((status, shipped[0]), (0, b"Copy Names"))
        self.check_text(b"a", "a", own_commands=False)
        write_json(self.home + USER_FILE, COMMANDS)
        self.assertEqual(names()[1][1], b"names")

    def test_pipes(self):
        given = json.dumps(COMMANDS).encode()
        self.check_text(b"a", "--commands", "/dev/stdin", "a", given=given, own_commands=False)
        # A stored file is none that somebody writes to just now: waiting for it could last for ever.
        os.makedirs(os.path.dirname(self.home + USER_FILE))
        os.mkfifo(self.home + USER_FILE)
        self.check_refused(1, b"Read Error (Not a regular file)", "a", own_commands=False)

    def test_output_errors(self):
        for arguments in [["a"], ["--list"], ["--help"]]:
            with self.subTest(arguments), open("/dev/full", "wb") as full:
                status, _, errors = self.run_tool(*arguments, stdout=full)
                self.assertEqual((status, errors), (1, b"vellumark-text: standard output: No space left on device\n"))
        status, _, errors = self.run_tool("a", stdout=None, preexec_fn=lambda: os.close(1))
        self.assertEqual((status, errors), (1, b"vellumark-text: standard output: Bad file descriptor\n"))

    def test_text_beyond_every_buffer(self):
        # A slice ends inside a surrogate pair wherever its size is even.
        text = "x" + "\U0001F600" * 100_000
        self.write("long.json", json.dumps({"menuCommands": [command("long", startText=text)]}).encode())
        self.check_text(text.encode(), "--commands", "long.json", "a", own_commands=False)


if __name__ == "__main__":
    unittest.main()
