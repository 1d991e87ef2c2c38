"""Selections on their way from a file manager to the application, whose intake stands here without its window."""

import json
import os
import shutil
import signal
import socket
import subprocess
import threading
import time
import unittest

from text_tool import HANG, ODD_NAMES, ToolTest

LISTENER = os.environ["LISTENER"]
PIPE = "/com.mirvanta.vellumark.api-1"


class SelectTest(ToolTest):
    def setUp(self):
        super().setUp()
        # The application is looked for beside the tool.
        os.mkdir(self.home + "/bin")
        self.program = shutil.copy(os.environ["VELLUMARK_SELECT"], self.home + "/bin")
        self.runtime = self.home + "/runtime"
        os.mkdir(self.runtime, 0o700)
        self.environment |= {
            "XDG_RUNTIME_DIR": self.runtime,
            "LISTENER_STARTS": self.home + "/starts",
            "LISTENER_SELECTIONS": self.home + "/selections",
        }
        self.addCleanup(self.end_applications)

    def start(self, *arguments, **options):
        return super().start(*arguments, own_commands=False, **options)

    def install_application(self, script=f"exec '{LISTENER}'\n"):
        path = self.home + "/bin/VellumarkConfigure"
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + script)
        os.chmod(path, 0o755)

    def read(self, name):
        try:
            with open(self.home + name, "rb") as file:
                return file.read()
        except FileNotFoundError:
            return b""

    def started(self):
        return [int(line) for line in self.read("/starts").split()]

    def end_applications(self):
        for process in self.started():
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass

    def selections(self, count):
        """What has been selected, once there are so many: (index, path, ...) each."""
        self.wait_until(lambda: self.read("/selections").count(b"\0\0") >= count)
        return [tuple(entry.split(b"\0")) for entry in self.read("/selections").split(b"\0\0")[:-1]]

    def check_selected(self, *arguments, **options):
        self.check_text(b"", *arguments, **options)


class Handover(SelectTest):
    def test_running_application_takes_one_selection_after_the_other(self):
        self.install_application()
        self.write("a")
        here = self.folder
        drive = "C:" + os.fsdecode(here).replace("/", "\\") + "\\a"
        self.check_selected("a", "./..//here")
        self.check_selected("--index", "7", "--", here + b"/a")
        self.check_selected("--paths-from", "-", "-0", drive, given=b"a\0../here\0")
        self.assertEqual(
            self.selections(3),
            [(b"-1", here + b"/a", here), (b"7", here + b"/a"), (b"-1", here + b"/a", here + b"/a", here)],
        )
        self.assertEqual(len(self.started()), 1)

    def test_every_name_arrives(self):
        self.install_application()
        names = [*ODD_NAMES, "\uf05c".encode()]
        for name in names:
            self.write(name)
        self.check_selected("--", *names)
        self.assertEqual(self.selections(1), [(b"-1", *(self.folder + b"/" + name for name in names))])

    def test_paths_that_can_not_be_selected_stay_out(self):
        self.install_application()
        self.check_refused(1, b"vellumark-select: cannot select 'gone': No such file or directory\n", "gone")
        self.check_refused(1, b"cannot select '': the path is empty\n", "")
        self.check_selected("--paths-from", "-")
        self.assertEqual(self.started(), [])
        self.check_refused(1, b"cannot select 'D:\\a': there can be no such path here\n", "D:\\a", ".")
        self.assertEqual(self.selections(1), [(b"-1", self.folder)])

    def test_wrong_usage(self):
        for message, *arguments in [
            (b"no paths given",),
            (b"-0 goes with --paths-from", "-0", "."),
            (b"a number from 0 on", "--index", "-1", "."),
            (b"a number from 0 on", "--index", "2147483648", "."),
            (b"--list", "--list"),
        ]:
            with self.subTest(arguments):
                self.check_refused(2, message, *arguments)
        for option, start in [("--help", b"Usage: "), ("--version", b"vellumark-select 4.7.2.0\n")]:
            status, out, errors = self.run_tool(option)
            self.assertEqual((status, out.startswith(start), errors), (0, True, b""))

    def test_largest_selection(self):
        self.install_application()
        name = b"n" * 250
        self.write(name)
        empty = len(json.dumps({"paths": []}, separators=(",", ":")))
        length = len(b'"C:' + self.folder + b"/" + name + b'",') + (self.folder.count(b"/") + 1)
        most = ((8 << 20) - empty + 1) // length
        self.check_selected("--paths-from", "-", given=b"\n".join([name] * most))
        self.assertEqual(len(self.selections(1)[0]), most + 1)
        self.check_refused(
            1, b"the selection is too large: 83", "--paths-from", "-", given=b"\n".join([name] * (most + 1))
        )


class Start(SelectTest):
    def test_application_goes_on_alone(self):
        self.install_application()
        with open(self.home + "/held", "wb") as held:
            os.set_inheritable(held.fileno(), True)
            self.check_selected(".", close_fds=False)
        (process,) = self.started()
        self.selections(1)
        self.assertEqual(os.getsid(process), process)
        self.assertEqual(os.readlink(f"/proc/{process}/cwd"), "/")
        files = [os.readlink(f"/proc/{process}/fd/{fd}") for fd in os.listdir(f"/proc/{process}/fd")]
        self.assertEqual(files.count("/dev/null"), 3, files)
        self.assertNotIn(self.home + "/held", files)

    def test_several_at_once_start_one_application(self):
        self.install_application(f"sleep 0.3\nexec '{LISTENER}'\n")
        tools = [self.start("--index", str(number), ".") for number in range(8)]
        for tool in tools:
            self.assertEqual((tool.communicate(timeout=HANG), tool.returncode), ((b"", b""), 0))
        indices = sorted(int(selection[0]) for selection in self.selections(8))
        self.assertEqual((indices, len(self.started())), (list(range(8)), 1))

    def test_after_a_crash(self):
        self.install_application()
        self.check_selected("--index", "1", ".")
        self.selections(1)
        os.kill(self.started()[0], signal.SIGKILL)
        self.assertTrue(os.path.exists(self.runtime + PIPE))
        self.check_selected("--index", "2", ".")
        self.assertEqual([selection[0] for selection in self.selections(2)], [b"1", b"2"])

    def test_no_application(self):
        self.check_refused(1, b"VellumarkConfigure can't be started: No such file or directory\n", ".")
        self.install_application("exit 3\n")
        self.check_refused(1, b"VellumarkConfigure ended before it took the selection\n", ".")
        self.install_application("echo $$ > '" + self.home + "/starts'\nexec sleep 600\n")
        started = time.monotonic()
        self.check_refused(1, b"VellumarkConfigure doesn't listen\n", ".")
        # A busy machine can make it later.
        self.assertGreaterEqual(time.monotonic() - started, 10)

    def test_folder_that_others_can_change(self):
        os.chmod(self.runtime, 0o777)
        os.mkdir(f"{self.home}/vellumark-{os.geteuid()}", 0o755)
        self.install_application()
        self.environment["TMPDIR"] = self.home
        self.check_refused(1, b"doesn't take the selection: Permission denied\n", ".")
        self.assertEqual(self.started(), [])


class End(SelectTest):
    def send_until(self, is_over):
        message = json.dumps({"paths": ["C:\\"]}).encode()
        while not is_over.is_set():
            try:
                with socket.socket(socket.AF_UNIX) as client:
                    client.connect(self.runtime + PIPE)
                    client.sendall(message)
            except OSError:
                time.sleep(0.001)

    def test_while_messages_come(self):
        for most in range(1, 21):
            is_over = threading.Event()
            clients = [threading.Thread(target=self.send_until, args=[is_over]) for _ in range(2)]
            environment = self.environment | {"LISTENER_MOST": str(most)}
            with subprocess.Popen([LISTENER], env=environment, stderr=subprocess.PIPE) as listener:
                for client in clients:
                    client.start()
                try:
                    _, errors = listener.communicate(timeout=HANG)
                finally:
                    is_over.set()
            for client in clients:
                client.join()
            self.assertEqual(listener.returncode, 0, errors[-3000:])

    def test_next_one_takes_over(self):
        self.install_application("exit 3\n")  # a further one would be told of
        environment = self.environment | {"LISTENER_MOST": "1"}
        first = subprocess.Popen([LISTENER], env=environment, stderr=subprocess.PIPE)
        self.wait_until(lambda: os.path.exists(self.runtime + PIPE))
        for number in range(10):
            second = subprocess.Popen([LISTENER], env=environment, stderr=subprocess.PIPE)
            self.assertIn(b"CreateNamedPipe() failed", second.stderr.readline())
            self.check_selected("--index", str(number), ".")
            first.communicate(timeout=HANG)
            self.assertEqual(first.returncode, 0)
            first = second
        self.check_selected(".")
        first.communicate(timeout=HANG)


if __name__ == "__main__":
    unittest.main()
