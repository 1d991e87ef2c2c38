"""A file whose checksum takes as long as a test likes, on every machine."""

import os
import signal

from desktop import wait_until


class BigFile:
    """It lies on no disk, and nobody waits for its end."""

    def __init__(self, path):
        self.path = path
        with open(path, "wb"):
            self.grow()

    def grow(self):
        os.truncate(self.path, 1 << 42)

    def position(self, process):
        """How many of its bytes the process has read; 0 when it reads none."""
        positions = [0]
        for number in os.listdir(f"/proc/{process}/fd"):
            try:
                if os.readlink(f"/proc/{process}/fd/{number}") == self.path:
                    with open(f"/proc/{process}/fdinfo/{number}", encoding="ascii") as info:
                        positions.append(int(info.readline().split()[1]))
            except FileNotFoundError:
                pass  # closed meanwhile
        return max(positions)

    def end_for(self, process):
        """Ends the file where the process has come to in reading it, so that it has read the whole file."""
        wait_until(lambda: self.position(process), "the reading of the file")
        os.kill(process, signal.SIGSTOP)
        try:
            wait_until(lambda: set(states(process)) == {"T"}, "the stop of the process")
            os.truncate(self.path, self.position(process))
        finally:
            os.kill(process, signal.SIGCONT)


def states(process):
    """A letter a thread."""
    for thread in os.listdir(f"/proc/{process}/task"):
        try:
            with open(f"/proc/{process}/task/{thread}/stat", encoding="utf-8") as file:
                yield file.read().rpartition(") ")[2][0]
        except FileNotFoundError:
            pass  # ended meanwhile
