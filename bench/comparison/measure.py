"""Runs programs and takes their time and peak memory."""

import dataclasses
import os
import pathlib
import subprocess
import time


class ComparisonError(Exception):
    """The comparison can't be made, or a tool's output is wrong."""


@dataclasses.dataclass(frozen=True)
class Sample:
    """One run with the programs that it started, `xargs` and its children for instance."""
    wall: float  # seconds
    cpu: float  # seconds, user and system
    peak: int  # bytes of resident memory; never below that of this process


@dataclasses.dataclass(frozen=True)
class Task:
    """A command that writes its standard output to a file, and its messages to another beside that. Some programs
    show progress there, which is no part of the comparison."""
    arguments: list
    output: pathlib.Path
    input: pathlib.Path = pathlib.Path(os.devnull)

    def run(self):
        messages = self.output.with_suffix(".messages")
        with open(self.input, "rb") as source, open(self.output, "wb") as sink, open(messages, "wb") as told:
            begin = time.perf_counter()
            process = subprocess.Popen([str(argument) for argument in self.arguments],
                                       stdin=source, stdout=sink, stderr=told)
            _, status, usage = os.wait4(process.pid, 0)
            wall = time.perf_counter() - begin
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            raise ComparisonError(f"{self.arguments[0]} ended with status {process.returncode}: "
                                  + messages.read_text(errors="replace").strip())
        return Sample(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024)


def best_of(tasks, runs):
    """The best sample of each named task. The tasks take turns, so that a busy moment of the machine hits them alike;
    a first round, which warms the cache, is not counted."""
    samples = {name: [] for name in tasks}
    for turn in range(runs + 1):
        for name, task in tasks.items():
            sample = task.run()
            if turn > 0:
                samples[name].append(sample)
    return {name: Sample(min(s.wall for s in of_task), min(s.cpu for s in of_task), max(s.peak for s in of_task))
            for name, of_task in samples.items()}


@dataclasses.dataclass(frozen=True)
class Machine:
    """What is measured, and how often."""
    tool: pathlib.Path
    runs: int

    @property
    def processors(self):
        return len(os.sched_getaffinity(0))

    def describe(self):
        return (f"best of {self.runs} runs, {self.processors} processors, "
                f"load {os.getloadavg()[0]:.1f} before the first run\n")

    def our_task(self, command, paths, output):
        """The tool with a stored command, which is a file that holds that one command."""
        return Task([self.tool, "--commands", command, "--index", "0", "--", *paths], output)
