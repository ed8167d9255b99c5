"""Runs of the launcher in which a library call fails or is the last one, one call after another."""

import dataclasses
import errno
import itertools
import os
import signal
from collections.abc import Callable
from typing import Optional

from support import FULL, tree
from upgrade import FAILED, NEW, OLD, UpgradeCase

ERRORS = (errno.ENOSPC, errno.EDQUOT, errno.EIO, errno.EACCES, errno.EROFS, errno.ENAMETOOLONG)


@dataclasses.dataclass(frozen=True)
class Sweep:
    """One kind of fault, as tests/support/fault-preload.cpp makes it, and the runs that meet it."""

    calls: str
    mode: str
    path: str = ""  # none: the test's folder
    errors: tuple = ERRORS  # taken in turn; of no meaning where the process is killed
    first: int = 1  # the number of the first call that is tried
    step: int = 1  # how far apart those are; a full run tries all
    installed: Optional[int] = OLD
    damage: Optional[Callable] = None  # of the package
    next_damage: Optional[Callable] = None  # of the package that the start after the fault finds

    def __str__(self):
        """What is particular to it."""
        values = [(field, getattr(self, field.name)) for field in dataclasses.fields(self)]
        return ", ".join(
            f"{field.name}={value}" for field, value in values if value != field.default
        )

    def calls_to_try(self):
        return itertools.count(1) if FULL else itertools.count(self.first, self.step)


class SweepCase(UpgradeCase):
    def meet_fault(self, sweep, number=0, error=0):
        """Runs the launcher; the call of that number meets the fault. Its status and its calls."""
        list_of_calls = self.folder / "calls"
        list_of_calls.write_text("")
        process = self.start(
            LD_PRELOAD=os.environ["LUMIVO_FAULT_PRELOAD"],
            FAULT_FUNCTION=sweep.calls,
            FAULT_MODE=sweep.mode,
            FAULT_NTH=number,
            FAULT_ERRNO=error,
            FAULT_PATH=sweep.path or self.folder,
            FAULT_COUNT_FILE=list_of_calls,
        )
        process.communicate(timeout=60)
        return process.returncode, list_of_calls.read_text().splitlines()

    def calls_without_fault(self, sweep):
        """The calls of a run that meets no fault."""
        _, calls = self.meet_fault(sweep)
        self.wait_for_client()
        return calls

    def run_sweep(self, sweep):
        """Until a run makes fewer calls than the next one that is to be tried."""
        for number, error in zip(sweep.calls_to_try(), itertools.cycle(sweep.errors)):
            self.begin(sweep.installed)
            if sweep.damage:
                sweep.damage(self)
            status, calls = self.meet_fault(sweep, number, error)
            if len(calls) < number:
                self.assertGreater(number, sweep.first, f"no such call: {sweep}")
                return
            with self.subTest(
                sweep, number=number, call=calls[number - 1], error=os.strerror(error)
            ):
                self.assert_survived(sweep, status)

    def assert_survived(self, sweep, status):
        """The status is good, a client runs where one can, and the next starts mend the rest."""
        self.assertEqual(status, -signal.SIGKILL if sweep.mode == "kill" else 0)
        if sweep.installed and sweep.mode != "kill":
            self.assert_old_or_new(sweep)
        if sweep.next_damage:
            self.upgrade(NEW, OLD, NEW, damage=sweep.next_damage)
        self.assert_next_starts_mend(is_part_left=sweep.next_damage is not None)

    def assert_old_or_new(self, sweep):
        build = self.build_on_disk()
        if sweep.mode == "always" and build not in (OLD, NEW):
            # Nothing could be moved any more, but the old client is not lost.
            backup = tree(self.app.parent / "Lumivo.app_tmp")
            self.assert_same_tree(backup, self.package(OLD).nodes)
            if self.log():
                self.assert_logged("failed to restore app from '")
            return
        self.assert_client_runs(*((OLD,) if sweep.damage else (OLD, NEW)))
        if build == OLD and self.log():
            self.assert_logged(FAILED)
