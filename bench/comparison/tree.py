"""Paths, names, sizes and dates of all files in a tree, against find."""

import itertools
import os
import subprocess

from comparison import commands
from comparison.measure import ComparisonError, Task, best_of

PROGRAMS = {"find": "findutils"}
SIZES = [1_000, 10_000, 100_000, 200_000]
FOLDERS = 100
TARGET = 0.4
GROWTH_TARGET = 1.5  # a time per file that grew with the square of the tree would be twenty times as long
NAME = "picture {:08}.jpeg"  # 21 characters
FIND_FORMAT = r"%p\t%f\t%s\t%TY-%Tm-%Td %TH:%TM:%TS\n"


def run(machine, workspace, report):
    report.section("tree: path, name, size and date of each file, against find -printf")
    tab = commands.text("\t")
    command = commands.store(
        workspace, "tree", [commands.host_path(), tab, commands.name(), tab, commands.size(), tab,
                            commands.iso_date()], end="\n", from_folders=True)
    ours, theirs = {}, {}
    for files in SIZES:
        root = workspace.flat_tree(files, FOLDERS, NAME)
        ours[files] = machine.our_task(command, [root], workspace.output(f"ours-{files}"))
        theirs[files] = Task(["find", root, "-type", "f", "-printf", FIND_FORMAT],
                             workspace.output(f"theirs-{files}"))
    sides = {"ours": ours, "theirs": theirs}
    best = best_of({(side, files): sides[side][files] for files in SIZES for side in sides}, machine.runs)
    for files in SIZES:
        check_same_lines(ours[files].output, theirs[files].output, files)
        report.times(f"{files:,} files", best["ours", files], best["theirs", files],
                     TARGET if files == SIZES[-1] else None)
    per_file = {files: best["ours", files].wall / files * 1e6 for files in SIZES}
    for files in SIZES:
        report.figures(f"growth: time per file, {files:,} : {SIZES[1]:,}", per_file[files], per_file[SIZES[1]], "us",
                       GROWTH_TARGET if files == SIZES[-1] else None)


def check_same_lines(ours, theirs, count):
    """Both must have told the same of the same files; find writes fractions of seconds besides, and in any order."""
    subprocess.run(["sed", "-i", r"s/\.[0-9]*$//", theirs], check=True)
    for output in (ours, theirs):
        subprocess.run(["sort", "-o", output, output], check=True, env=os.environ | {"LC_ALL": "C"})
    told = 0
    with open(ours, "rb") as our_lines, open(theirs, "rb") as their_lines:
        for our_line, their_line in itertools.zip_longest(our_lines, their_lines):
            if our_line != their_line:
                raise ComparisonError(f"the outputs differ: {our_line} here, {their_line} there")
            told += 1
    if told != count:
        raise ComparisonError(f"{told} lines for {count} files")
