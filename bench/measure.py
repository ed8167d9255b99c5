#!/usr/bin/env python3
"""Measures the launcher against what people would use instead, and prints a table.

scripts/bench builds what it needs and calls it; bench/README.md says how to read the table.
"""

import argparse
import datetime
import os
import pathlib
import re
import subprocess
import sys
import textwrap

import harness
import inside
import start
import upgrade
from packages import Packages
from table import Table

SECTIONS = {
    "extraction": upgrade.extraction,
    "disk": upgrade.disk,
    "entries": upgrade.entries,
    "start": start.start,
    "parts": inside.parts,
    "copy": inside.copy,
}


class Bench:
    """What every section needs to know, and the table that it adds its rows to."""

    environment = staticmethod(harness.environment)
    median = staticmethod(harness.median)

    def __init__(self, options):
        self.build, self.quick = options.build.resolve(), options.quick
        self.rounds = options.rounds or (3 if self.quick else 9)
        self.memory, self.disk = harness.MEMORY, options.disk or self.build
        self.packages = Packages(self.build)
        self.table = Table()

    def program(self, name):
        return self.build / "bench" / name

    def media(self):
        """Where scratch folders lie, by what they lie on."""
        return (("memory", self.memory), ("disk", self.disk))

    def in_turn(self, rounds=None, **contenders):
        return harness.run_in_turn(rounds or self.rounds, contenders)


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def heading(options):
    """Date, command, machine and versions, as bench/RESULTS.md names them."""
    processor = dict(
        re.findall(r"^([^\t:]+)\t*: (.*)$", pathlib.Path("/proc/cpuinfo").read_text(), re.M)
    )
    cache = dict(
        re.findall(r"^(\w+):\w+=(.*)$", (options.build / "CMakeCache.txt").read_text(), re.M)
    )
    command = ["scripts/bench", *sys.argv[sys.argv.index("--build") + 2 :]]
    compiler = output_of(cache["CMAKE_CXX_COMPILER"], "--version").splitlines()[0]
    facts = (
        f"{datetime.date.today()}, `{' '.join(command)}`",
        f"{processor['model name']} (family {processor['cpu family']}, model "
        f"{processor['model']}), {os.cpu_count()} processors",
        f"Linux {os.uname().release}",
        f"disk: {harness.file_system_of(options.disk or options.build)}",
        f"{compiler}, {cache['CMAKE_BUILD_TYPE']}",
        f"Qt {output_of('pkg-config', '--modversion', 'Qt5Core').strip()}",
        output_of("bsdtar", "--version").strip(),
        " ".join(os.confstr("CS_GNU_LIBC_VERSION").split()),
    )
    return "\n".join(textwrap.wrap("; ".join(facts), 118, break_on_hyphens=False)) + "."


def arguments():
    parser = argparse.ArgumentParser(
        description="Measures the launcher against its peers and prints a table."
    )
    parser.add_argument(
        "--build",
        required=True,
        type=pathlib.Path,
        metavar="DIR",
        help="a build folder with the benchmarks",
    )
    parser.add_argument(
        "--disk",
        type=pathlib.Path,
        metavar="DIR",
        help="a folder on the disk to measure (default: the build folder)",
    )
    parser.add_argument(
        "--quick",
        action="store_true",
        help="few rounds and small inputs: only to see that all runs",
    )
    parser.add_argument(
        "--rounds", type=int, metavar="N", help="rounds of each comparison (default: 9, quick 3)"
    )
    parser.add_argument(
        "sections", nargs="*", metavar="SECTION", help=f"of {', '.join(SECTIONS)}; default: all"
    )
    options = parser.parse_args()
    if not set(options.sections) <= set(SECTIONS):
        parser.error(f"the sections are {', '.join(SECTIONS)}")
    disk = options.disk or options.build
    if harness.file_system_of(disk) in ("tmpfs", "ramfs"):
        parser.error(f"{disk} is in memory; name a folder on a disk with --disk")
    return options


def main():
    options = arguments()
    print(heading(options), end="\n\n")
    bench = Bench(options)
    for section in options.sections or SECTIONS:
        SECTIONS[section](bench)
    missed = bench.table.missed
    print(f"\n{missed} of the bounds missed" if missed else "\nall bounds kept")


if __name__ == "__main__":
    main()
