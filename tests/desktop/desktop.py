"""A desktop for the tests of windows: a display of its own with a window manager, a session bus and accessibility.

There is one a process, in `setUpModule`, for the accessibility library stays with the first bus that it meets:

    def setUpModule():
        global desktop
        desktop = Desktop()
        unittest.addModuleCleanup(desktop.close)
"""

import os
import re
import shutil
import subprocess
import tempfile
import time

HANG = 60  # seconds, far beyond what any step takes under a sanitizer


def wait_until(condition, what, seconds=HANG):
    """The condition's first true value; fails when none has come in time."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds} s in vain for {what}")
        time.sleep(0.01)


class Desktop:
    def __init__(self, size="1280x1024"):
        self.home = os.path.realpath(tempfile.mkdtemp(prefix="vellumark-desktop-"))
        os.mkdir(self.home + "/runtime", 0o700)
        self.processes = []
        # Programs under test start with these; so does whatever this process asks the desktop by.
        for name in ("WAYLAND_DISPLAY", "XAUTHORITY", "XDG_SESSION_TYPE", "QT_QPA_PLATFORM", "SESSION_MANAGER"):
            os.environ.pop(name, None)
        os.environ.update({
            "HOME": self.home,
            "XDG_CONFIG_HOME": self.home + "/config",
            "XDG_CONFIG_DIRS": self.home + "/machine",
            "XDG_DATA_HOME": self.home + "/data",
            "XDG_CACHE_HOME": self.home + "/cache",
            "XDG_RUNTIME_DIR": self.home + "/runtime",
            "GSETTINGS_BACKEND": "memory",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        })
        try:
            self._start_services(size)
        except BaseException:
            self.close()
            raise

    def _start_services(self, size):
        # A server that starts anew when its last client goes would take the others' first steps with it.
        server = ["Xvfb", "-displayfd", "1", "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset"]
        display = self._start_and_read(server)
        os.environ["DISPLAY"] = ":" + display
        bus = ["dbus-daemon", "--session", "--nofork", "--print-address=1"]
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_read(bus)
        self.start("openbox", "--sm-disable")
        self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        wait_until(lambda: "window id" in self.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")
        wait_until(lambda: "unix:" in self.ask("xprop", "-root", "AT_SPI_BUS"), "the accessibility bus")

    def _start_and_read(self, command):
        """Starts a service that goes on; what it tells in its first line."""
        process = self.start(*command, stdout=subprocess.PIPE)
        line = process.stdout.readline().decode().strip()
        if not line:
            raise AssertionError(f"{command[0]} does not start")
        return line

    def close(self):
        """Ends all that was started, the display last."""
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
            for pipe in (process.stdin, process.stdout, process.stderr):
                if pipe:
                    pipe.close()
        shutil.rmtree(self.home, ignore_errors=True)

    def start(self, *command, **options):
        """A Popen; what its output says goes to /dev/null unless the options say otherwise."""
        quiet = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        self.processes.append(subprocess.Popen(command, **(quiet | options)))
        return self.processes[-1]

    def ask(self, *command):
        """The output of a program that ends; empty when it fails, for what it asks about may not be there yet."""
        done = subprocess.run(command, capture_output=True, timeout=HANG, check=False)
        return done.stdout.decode(errors="replace") if done.returncode == 0 else ""

    def do(self, *command):
        subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, timeout=HANG, check=True)

    # Windows, by the ids that xdotool gives (decimal texts).

    def windows(self, title):
        """Visible windows whose titles match the regular expression."""
        return self.ask("xdotool", "search", "--onlyvisible", "--name", title).split()

    def wait_for_window(self, title):
        return wait_until(lambda: self.windows(title), f"a window '{title}'")[0]

    def wait_for_no_window(self, title):
        wait_until(lambda: not self.windows(title), f"the end of the window '{title}'")

    def focus(self, window):
        """Brings the window to the front and waits until the keys go there."""
        self.do("xdotool", "windowactivate", "--sync", window)
        wait_until(lambda: self.ask("xdotool", "getwindowfocus").strip() == window, "the focus")

    def geometry(self, window):
        """Left, top, width and height of the window's inside, on the screen."""
        info = self.ask("xwininfo", "-id", window)
        numbers = [re.search(name + r":\s*(-?\d+)", info) for name in ("left X", "left Y", "Width", "Height")]
        return tuple(int(number[1]) for number in numbers)

    def resize(self, window, width, height):
        self.do("xdotool", "windowmove", "--sync", window, "0", "0", "windowsize", "--sync", window, str(width), str(height))

    def screenshot(self, path, window="root"):
        """Writes a picture of a window or of the whole screen, in the format that the path's extension names."""
        self.do("import", "-silent", "-window", window, path)

    # Keys and mouse, as a user's: they go where the focus or the pointer is.

    def key(self, *keys):
        """Such as "Return", "ctrl+a", "alt+o"."""
        if keys:
            self.do("xdotool", "key", "--clearmodifiers", *keys)

    def key_in_drag(self, key):
        # To clear modifiers would release the mouse's button as well.
        self.do("xdotool", "key", key)

    def type(self, text):
        self.do("xdotool", "type", "--clearmodifiers", "--delay", "5", "--", text)

    def click(self, x, y, button=1):
        self.do("xdotool", "mousemove", str(x), str(y), "click", str(button))

    def drag(self, start, end):
        self.take(start, end)
        self.let_go()

    def take(self, start, end, steps=8):
        """Small steps, for a drag begins only when the pointer is seen moving with the button held."""
        (left, top), (right, bottom) = start, end
        self.do("xdotool", "mousemove", str(left), str(top), "mousedown", "1")
        for step in range(1, steps + 1):
            x, y = left + (right - left) * step // steps, top + (bottom - top) * step // steps
            self.do("xdotool", "mousemove", str(x), str(y))
            time.sleep(0.06)

    def let_go(self):
        self.do("xdotool", "mouseup", "1")

    # The clipboard, as other programs see it.

    def clipboard(self, target="UTF8_STRING"):
        """Bytes; None when nobody owns the clipboard or the owner has no such form of it."""
        command = ["xclip", "-out", "-selection", "clipboard", "-target", target]
        done = subprocess.run(command, capture_output=True, timeout=HANG, check=False)
        return done.stdout if done.returncode == 0 else None

    def copy(self, content):
        """Another program copies these bytes; it owns the clipboard when this returns."""
        command = ["xclip", "-in", "-selection", "clipboard", "-target", "UTF8_STRING", "-quiet"]
        process = self.start(*command, stdin=subprocess.PIPE)
        process.stdin.write(content)
        process.stdin.close()
        process.stdin = None
        wait_until(lambda: self.clipboard() == content, "the copied text")
        return process
