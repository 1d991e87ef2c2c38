"""What README promises: `./run FILE` opens the window with the file selected, and Enter puts its name on the clipboard.

    first_use.py RUN FILE

It stands beside the tests, which have other programs built than a user has: `.ci/run` calls it on a fresh checkout.
"""

import os
import subprocess
import sys

from desktop import Desktop

TITLE = "^Vellumark Configure$"


def copied_name(run, path):
    """What is on the clipboard when the window has gone."""
    builder = {"HOME": os.environ["HOME"]}
    desktop = Desktop()
    try:
        subprocess.run([run, path], env=os.environ | builder, check=True)
        desktop.focus(desktop.wait_for_window(TITLE))
        desktop.key("Return")
        desktop.wait_for_no_window(TITLE)
        return desktop.clipboard().decode()
    finally:
        desktop.close()


if __name__ == "__main__":
    copied, expected = copied_name(*sys.argv[1:]), os.path.basename(sys.argv[2])
    print("copied:", copied)
    sys.exit(copied != expected)
