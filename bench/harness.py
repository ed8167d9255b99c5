"""Runs commands, and turns what they cost into rows of a table.

Whatever is compared runs in turn within one round, and a ratio is the median of the ratios of the
rounds, so that a machine that is slow for a while is slow for both sides.
"""

import dataclasses
import os
import pathlib
import shutil
import statistics
import struct
import subprocess
import tempfile
import time

MEMORY = "/dev/shm"


@dataclasses.dataclass
class Cost:
    """What one run of a command cost: times in seconds, memory in KiB."""

    wall: float
    cpu: float = 0.0
    start: float = 0.0  # until the client's main() was reached
    page_faults: int = 0
    peak_memory: float = 0.0  # above what was there before
    output: str = ""


def environment(**more):
    """No time zone and no locale of whoever runs this; the same for both sides."""
    return {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", **more}


def run(command, env=None, pipe=None):
    """Runs `command` to its end. The client that it starts tells `pipe` when its main() began."""
    command = [str(part) for part in command]
    with tempfile.TemporaryFile() as output:
        actions = [
            (os.POSIX_SPAWN_DUP2, output.fileno(), 1),
            (os.POSIX_SPAWN_OPEN, 2, "/dev/null", os.O_WRONLY, 0),
        ]
        before = time.clock_gettime(time.CLOCK_MONOTONIC)
        pid = os.posix_spawnp(command[0], command, env or environment(), file_actions=actions)
        _, status, usage = os.wait4(pid, 0)
        wall = time.clock_gettime(time.CLOCK_MONOTONIC) - before
        output.seek(0)
        text = output.read().decode()
    if status != 0:
        raise SystemExit(f"bench: status {status}: {' '.join(command)}")
    cost = Cost(wall, usage.ru_utime + usage.ru_stime, output=text)
    cost.page_faults = usage.ru_minflt + usage.ru_majflt
    if pipe is not None:
        seconds, nanoseconds = struct.unpack("qq", os.read(pipe, 16))
        cost.start = seconds + nanoseconds * 1e-9 - before
    return cost


def run_step(command, env=None):
    """Runs bench-step, which says itself what its step cost.

    Starting the process is not part of it: in an upgrade the step runs inside the launcher.
    """
    wall, cpu, peak_memory, _ = map(float, run(command, env).output.split())
    return Cost(wall, cpu, peak_memory=peak_memory)


def run_in_turn(rounds, contenders):
    """Runs every contender once a round, and each of them first in its turn.

    `contenders` are functions by name; the result is a list of what they return by name.
    """
    names, costs = list(contenders), {name: [] for name in contenders}
    for number in range(rounds):
        first = number % len(names)
        for name in names[first:] + names[:first]:
            costs[name].append(contenders[name]())
    return costs


def median(costs, kind):
    return statistics.median(getattr(cost, kind) for cost in costs)


def warm_memory(size):
    """Has the host of a virtual machine hand out memory now.

    It takes back what lies idle, and whoever runs first would pay for getting it again.
    """
    block = b"x" * size
    del block


class Scratch:
    """A folder for what one comparison writes, in memory or on the disk."""

    def __init__(self, medium, parent):
        self.medium = medium
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="scratch-", dir=parent))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path)
        self.settle()

    def settle(self):
        """Whoever runs next does not pay for what was written or removed before."""
        if self.medium == "disk":
            os.sync()

    def into_new_folder(self, runner, command, memory):
        """A contender that runs `command` with a new folder as its last argument.

        `memory` is how many bytes are to be warm for it.
        """

        def contender():
            folder = tempfile.mkdtemp(dir=self.path)
            self.settle()
            warm_memory(memory)
            cost = runner([*command, folder])
            # A disk is still busy with a removal when the next one runs, so there it has to wait.
            if self.medium == "memory":
                shutil.rmtree(folder)
            return cost

        return contender


def file_system_of(folder):
    command = ["stat", "--file-system", "--format=%T", folder]
    name = subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()
    return "ext4" if name == "ext2/ext3" else name  # they share one number
