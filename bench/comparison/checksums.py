"""Checksums of large files in the page cache, against the usual programs on all processors."""

import os
import pathlib
import re

from comparison import commands
from comparison.measure import ComparisonError, Task, best_of

PROGRAMS = {"md5sum": "coreutils", "openssl": "openssl", "xargs": "findutils", "xxhsum": "xxhash", "rhash": "rhash"}
FILES = 8
FILE_SIZE = 256 << 20
TARGET = 1.0

RIVALS = {kind: {f"{kind}sum": [f"{kind}sum"], f"openssl dgst -{kind}": ["openssl", "dgst", f"-{kind}"]}
          for kind in ("md5", "sha1", "sha256", "sha512")}
RIVALS["xxhash64"] = {"xxhsum -H1": ["xxhsum", "-H1"]}
RIVALS["crc32"] = {"rhash --crc32": ["rhash", "--simple", "--crc32"]}
WITHOUT_TARGET = {"crc32"}

# "MD5(path)= digest", or the digest and then the path.
LINE = re.compile(r"^(?:\\?[\w-]+\((?P<path1>.*)\)= (?P<digest1>[0-9a-f]+)|(?P<digest2>[0-9a-f]+) +(?P<path2>.*))$")


def run(machine, workspace, report):
    report.section(f"checksums: {FILES} files of {FILE_SIZE >> 20} MiB, against xargs -P{machine.processors} -n1")
    files = workspace.random_files(FILES, FILE_SIZE)
    path_list = workspace.folder / "checksums.list"
    path_list.write_bytes(b"".join(os.fsencode(file) + b"\0" for file in files))
    for kind, rivals in RIVALS.items():
        parts = [commands.checksum(kind), commands.text("  "), commands.host_path()]
        command = commands.store(workspace, f"checksums-{kind}", parts, end="\n")
        tasks = {"ours": machine.our_task(command, files, workspace.output("ours"))}
        for index, (name, arguments) in enumerate(rivals.items()):
            tasks[name] = Task(["xargs", "-0", f"-P{machine.processors}", "-n1", *arguments],
                               workspace.output(f"theirs-{index}"), path_list)
        best = best_of(tasks, machine.runs)
        check_same_digests(kind, tasks, files)
        rival = min(rivals, key=lambda name: best[name].wall)
        for name in rivals:
            has_target = name == rival and kind not in WITHOUT_TARGET
            report.times(f"{kind}: {name}", best["ours"], best[name], TARGET if has_target else None)


def digests(output):
    found = {}
    for line in output.read_text().splitlines():
        match = LINE.match(line)
        if not match:
            raise ComparisonError(f"no checksum in '{line}'")
        found[pathlib.Path(match["path1"] or match["path2"])] = match["digest1"] or match["digest2"]
    return found


def check_same_digests(kind, tasks, files):
    wanted = digests(tasks["ours"].output)
    if sorted(wanted) != files:
        raise ComparisonError(f"{kind}: {len(wanted)} checksums for {len(files)} files")
    for name, task in tasks.items():
        if digests(task.output) != wanted:
            raise ComparisonError(f"{kind}: {name} has other checksums")
