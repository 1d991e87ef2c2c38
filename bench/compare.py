#!/usr/bin/env python3
"""Measures vellumark-text side by side with other tools and prints the ratios.

Exit status 0 when every target is met, 1 when one is missed, 2 when the comparison could not be made.
"""

import argparse
import os
import pathlib
import shutil
import signal
import sys

sys.dont_write_bytecode = True

from comparison import checksums, memory, metadata, nested, tree
from comparison.measure import ComparisonError, Machine
from comparison.report import Report
from comparison.workspace import Workspace, temporary_folder

# In this order: peak memory is best told by a process that has not grown itself.
SECTIONS = {"memory": memory, "tree": tree, "nested": nested, "checksums": checksums, "metadata": metadata}
DEFAULT_TOOL = pathlib.Path(__file__).resolve().parent.parent / "build" / "release" / "bin" / "vellumark-text"


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("sections", nargs="*", metavar="SECTION", help=f"of {', '.join(SECTIONS)} (default: all)")
    parser.add_argument("--runs", type=int, default=5, help="timed runs of each command; the best counts (default 5)")
    parser.add_argument("--data", type=pathlib.Path, metavar="FOLDER",
                        help="keep the data in FOLDER, and reuse what is there (default: a temporary folder)")
    parser.add_argument("--tool", type=pathlib.Path, default=DEFAULT_TOOL, help="the vellumark-text to measure")
    arguments = parser.parse_args()
    unknown = set(arguments.sections) - set(SECTIONS)
    if unknown:
        parser.error(f"no such section: {', '.join(sorted(unknown))}")
    if arguments.runs < 1:
        parser.error("--runs takes a number from 1 on")
    return arguments


def check_programs(tool, sections):
    if not os.access(tool, os.X_OK):
        raise ComparisonError(f"{tool} is not there: cmake --preset release && "
                              "cmake --build --preset release --target vellumark-text")
    packages = {package for section in sections for program, package in section.PROGRAMS.items()
                if not shutil.which(program)}
    if packages:
        raise ComparisonError(f"missing Debian packages: {' '.join(sorted(packages))}")


def compare(arguments, folder):
    sections = [module for name, module in SECTIONS.items() if not arguments.sections or name in arguments.sections]
    check_programs(arguments.tool, sections)
    machine = Machine(tool=arguments.tool.resolve(), runs=arguments.runs)
    print(machine.describe())
    report = Report()
    for section in sections:
        section.run(machine, Workspace(folder), report)
    return report.finish()


def main():
    arguments = parse_arguments()
    # Ended so, the temporary folder still goes.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    try:
        if arguments.data:
            arguments.data.mkdir(parents=True, exist_ok=True)
            return compare(arguments, arguments.data.resolve())
        with temporary_folder() as folder:
            return compare(arguments, folder.resolve())
    except (ComparisonError, OSError) as error:
        print(f"compare.py: {error}", file=sys.stderr)
        return 2
    except KeyboardInterrupt:
        return 130


sys.exit(main())
