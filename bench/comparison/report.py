"""The table."""

ROW = "{:<46} {:>10} {:>10} {:>7} {:>9} {:>7}  {}"


def milliseconds(seconds):
    return f"{seconds * 1e3:.1f} ms"


def _ratio(ours, theirs):
    return ours / theirs if theirs > 0 else float("inf")


class Report:
    """Prints rows as they come and remembers the targets that were missed."""

    def __init__(self):
        self._missed = 0

    def section(self, title):
        print("\n" + title)
        print(ROW.format("measurement", "ours", "theirs", "ratio", "cpu ratio", "target", "").rstrip())

    def times(self, name, ours, theirs, target=None):
        """Two samples; the target is for the ratio of their wall times."""
        self._row(name, milliseconds(ours.wall), milliseconds(theirs.wall), _ratio(ours.wall, theirs.wall),
                  _ratio(ours.cpu, theirs.cpu), target)

    def figures(self, name, ours, theirs, unit, target=None):
        """Two numbers; the target is for their ratio."""
        self._row(name, f"{ours:.2f} {unit}", f"{theirs:.2f} {unit}", _ratio(ours, theirs), None, target)

    def figure(self, name, ours, unit, below):
        """A number that is to stay below a target."""
        is_met = ours < below
        self._print(name, f"{ours:.1f} {unit}", "-", "-", "-", f"<{below}", is_met)

    def finish(self):
        """Exit status of the comparison."""
        print(f"\n{self._missed} MISSED" if self._missed else "\nall targets met")
        return 1 if self._missed else 0

    def _row(self, name, ours, theirs, ratio, cpu_ratio, target):
        is_met = None if target is None else ratio <= target
        self._print(name, ours, theirs, f"{ratio:.3f}", "-" if cpu_ratio is None else f"{cpu_ratio:.3f}",
                    "-" if target is None else f"{target:.2f}", is_met)

    def _print(self, name, ours, theirs, ratio, cpu_ratio, target, is_met):
        verdict = {None: "", True: "ok", False: "MISSED"}[is_met]
        self._missed += is_met is False
        print(ROW.format(name, ours, theirs, ratio, cpu_ratio, target, verdict).rstrip(), flush=True)
