"""The table of the results, in Markdown, printed row by row as they come."""

import statistics

from harness import median

NAMES = {"wall": "wall", "cpu": "processor"}


UNITS = ((1e-3, "ms"), (1e-5, "µs"), (0, "ns"))
PER_SECOND = {"ms": 1e3, "µs": 1e6, "ns": 1e9}


def shown(seconds):
    """Several times in one unit: "994 / 992 ms"."""
    unit = next(unit for least, unit in UNITS if seconds[0] >= least)
    numbers = [value * PER_SECOND[unit] for value in seconds]
    return " / ".join(f"{n:.0f}" if n >= 1000 else f"{n:.4g}" for n in numbers) + f" {unit}"


class Table:
    def __init__(self):
        self.missed = 0
        self.cells("what", "against", "ours", "theirs", "ratio", "bound")
        print("|---" * 6 + "|", flush=True)

    @staticmethod
    def cells(*cells):
        print("|" + "".join(f" {cell} |" if cell else " |" for cell in cells), flush=True)

    def row(self, what, against="", ours="", theirs="", ratios=(), bound=None, unit=""):
        """One row. No ratio may be above the bound. With a `unit`, what is bound is `ours`."""
        is_missed = bound is not None and max(ratios) > bound
        self.missed += is_missed
        ratio = "" if unit else " / ".join(f"{value:.3f}" for value in ratios)
        limit = "" if bound is None else f"{bound:g}{unit}" + (", MISSED" if is_missed else "")
        self.cells(what, against, ours, theirs, ratio, limit)

    def numbers(self, what, against, ours, theirs, divisor=1, unit=""):
        """Two plain numbers and their ratio; a unit is `divisor` of them."""
        shown_numbers = [f"{number // divisor}{unit}" for number in (ours, theirs)]
        self.row(what, against, *shown_numbers, [ours / theirs])

    def compare(self, what, against, costs, kinds=("wall",), bound=None, sides=("ours", "theirs")):
        """Medians of both sides, and the median of the ratios; the bound is for every kind."""
        ours, theirs = (costs[side] for side in sides)
        ratios = [
            statistics.median(getattr(a, kind) / getattr(b, kind) for a, b in zip(ours, theirs))
            for kind in kinds
        ]
        if len(kinds) > 1:
            what += ", " + " / ".join(NAMES[kind] for kind in kinds)
        medians = [shown([median(side, kind) for kind in kinds]) for side in (ours, theirs)]
        self.row(what, against, *medians, ratios, bound)
