"""Trees of folders as nested, indented text: the time per character must not grow with the tree."""

from comparison import commands
from comparison.measure import ComparisonError, best_of

PROGRAMS = {}
SIZES = [12_500, 25_000, 50_000, 100_000, 200_000]
DEPTHS = [100, 200, 400, 800]
GROWTH_TARGET = 1.5
NAME = "picture {:08}.jpeg"


def run(machine, workspace, report):
    report.section("nested: time per character of text, net of an empty folder's, against the first size's")
    empty = task_for(machine, workspace, workspace.flat_tree(0, 1, NAME), "\t")
    start = best_of({"ours": empty}, machine.runs)["ours"]
    wide = {f"wide, 100 folders, {n:,} files": (workspace.flat_tree(n, 100, NAME), "\t") for n in SIZES}
    deep = {f"deep, 500 levels, {n:,} files": (workspace.chain(n, 500, NAME), "\t") for n in SIZES}
    # Most of this text is indents: a line that is copied once a level would show.
    deeper = {f"deepening, {d} levels, {40 * d:,} files": (workspace.chain(40 * d, d, NAME), " " * 8) for d in DEPTHS}
    for shape in (wide, deep, deeper):
        compare_growth(machine, workspace, report, shape, start)


def task_for(machine, workspace, root, indent):
    folder_parts = [commands.name(), commands.text("/"), commands.folder_contents("folder-subfolders", indent),
                    commands.folder_contents("folder-files", indent)]
    command = commands.store(workspace, f"nested-{len(indent)}", [commands.name()], folder_parts=folder_parts)
    return machine.our_task(command, [root], workspace.output(root.name))


def compare_growth(machine, workspace, report, shape, start):
    tasks = {name: task_for(machine, workspace, root, indent) for name, (root, indent) in shape.items()}
    best = best_of(tasks, machine.runs)
    first = None
    for name, (root, indent) in shape.items():
        length = expected_length(root, len(indent))
        written = tasks[name].output.stat().st_size
        if written != length:
            raise ComparisonError(f"{name}: {written} characters instead of {length}")
        per_character = (best[name].wall - start.wall) / length * 1e9
        first = first or per_character
        is_last = name == list(shape)[-1]
        report.figures(name, per_character, first, "ns", GROWTH_TARGET if is_last else None)


def expected_length(root, indent):
    """Characters of the text: a line a file, and one a folder with a slash at its end, indented by their depth."""
    total, open_folders = -1, [(root, 0)]
    while open_folders:
        folder, level = open_folders.pop()
        total += level * indent + len(folder.name) + 2
        for entry in folder.iterdir():
            if entry.is_dir():
                open_folders.append((entry, level + 1))
            else:
                total += (level + 1) * indent + len(entry.name) + 1
    return total
