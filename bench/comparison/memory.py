"""Peak memory for a million files."""

from comparison import commands
from comparison.measure import ComparisonError, best_of

PROGRAMS = {}
FILES = 1_000_000
FOLDERS = 100
NAME = "picture {:012}.jpeg"  # 25 characters
TARGET = 400  # bytes a file


def run(machine, workspace, report):
    report.section("memory: a million files from folders, one character of text each")
    command = commands.store(workspace, "memory", [commands.text("x")], separator="", from_folders=True)
    root = workspace.flat_tree(FILES, FOLDERS, NAME)
    task = machine.our_task(command, [root], workspace.output("ours"))
    sample = best_of({"ours": task}, runs=min(machine.runs, 3))["ours"]
    if task.output.read_bytes() != b"x" * FILES:
        raise ComparisonError(f"{task.output.stat().st_size} characters for {FILES} files, or wrong ones")
    report.figure("peak resident memory a file", sample.peak / FILES, "bytes", below=TARGET)
