"""The folder that holds trees, files and outputs."""

import contextlib
import os
import pathlib
import subprocess
import tempfile

MODIFIED_FROM = 1_000_000_000  # seconds since 1970: September 2001
BLOCK = 1 << 20


def remove(folder):
    # Python's own way takes a recursion and an open file for each level.
    subprocess.run(["rm", "-rf", "--", folder], check=True)


@contextlib.contextmanager
def temporary_folder():
    folder = tempfile.mkdtemp(prefix="vellumark-compare-")
    try:
        yield pathlib.Path(folder)
    finally:
        remove(folder)


class Workspace:
    """Data sets are named after all that they depend on; one that is there from an earlier run is whole."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def output(self, name):
        return self.folder / f"{name}.out"

    def flat_tree(self, files, folders, name_format):
        """Files spread evenly over folders that lie side by side. A name is made of a number."""
        return self._made(f"flat-{files}-{folders}-{len(name_format.format(0))}",
                          lambda root: _fill([root / f"folder {i:03}" for i in range(folders)], files, name_format))

    def chain(self, files, depth, name_format):
        """Files spread evenly over folders of which each one lies in the one before it."""
        def fill(root):
            folders = [root]
            for _ in range(1, depth):
                folders.append(folders[-1] / "d")
            _fill(folders, files, name_format)
        return self._made(f"chain-{files}-{depth}-{len(name_format.format(0))}", fill)

    def random_files(self, count, size):
        """Paths of files that no compression and no repetition makes easier to read."""
        def fill(root):
            for index in range(count):
                with open(root / f"random {index}", "wb") as file:
                    for _ in range(size // BLOCK):
                        file.write(os.urandom(BLOCK))
        return sorted(self._made(f"random-{count}-{size}", fill).iterdir())

    def files(self, title, contents):
        """Paths of files with these names and contents."""
        def fill(root):
            for name, content in contents.items():
                (root / name).write_bytes(content)
        return sorted(self._made(f"{title}-{len(contents)}", fill).iterdir())

    def _made(self, name, fill):
        wanted, unfinished = self.folder / name, self.folder / f"{name}.unfinished"
        if not wanted.exists():
            remove(unfinished)
            unfinished.mkdir()
            fill(unfinished)
            unfinished.rename(wanted)
        return wanted


def _fill(folders, files, name_format):
    for folder in folders:
        folder.mkdir(exist_ok=True)
    per_folder = files // len(folders)
    assert per_folder * len(folders) == files
    for index in range(files):
        path = folders[index // per_folder] / name_format.format(index)
        descriptor = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
        # Sizes of one to eight digits, as a hole without blocks on the disk; times over some twenty years.
        os.ftruncate(descriptor, index * 7919 % 10 ** (1 + index % 8))
        modified = (MODIFIED_FROM + index * 104_729 % 700_000_000) * 10**9 + index * 7919 % 10**9
        os.utime(descriptor, ns=(modified, modified))
        os.close(descriptor)
