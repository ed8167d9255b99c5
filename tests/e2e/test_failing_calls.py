"""Calls into the system fail: a complete client runs all the same, and the next starts mend."""

import errno

from support import FULL
from sweep import ERRORS, Sweep, SweepCase
from upgrade import ROLLED_BACK, UpgradeCase

# The package is good, or cannot be extracted to its end.
DAMAGES = (None, UpgradeCase.damage_executable)
CHANGES = ("changes", "mkdir", "open-w,symlink", "write", "close-w", "rename", "unlinkat")
LOOKS = ("realpath", "fstatat,fstat", "open,fdopendir,readdir", "access,stat,read")


class FailingCalls(SweepCase):
    def test_a_change_that_fails_once(self):
        for errors in [(error,) for error in ERRORS] if FULL else [ERRORS]:
            damage = UpgradeCase.damage_executable
            self.run_sweep(Sweep("changes", "once", errors=errors, first=1, step=3))
            self.run_sweep(Sweep("changes", "once", errors=errors, first=2, step=3, damage=damage))
            self.run_sweep(Sweep("changes", "once", errors=errors, step=4, installed=None))

    def test_changes_that_fail_from_then_on(self):
        for damage in DAMAGES:
            for calls in CHANGES:
                self.run_sweep(Sweep(calls, "always", step=5, damage=damage))

    def test_a_full_disk_is_named_in_the_log(self):
        self.meet_fault(Sweep("write", "once", "/.Lumivo/Lumivo.app"), 1, errno.ENOSPC)
        self.assert_logged("archive_read_extract2: No space left on device (28)\n", *ROLLED_BACK)

    def test_a_look_at_the_old_client_that_fails(self):
        # Taken for missing, it would stay where the new one is extracted.
        self.run_sweep(Sweep("lstat", "once", "/.Lumivo/Lumivo.app", (errno.EIO,)))

    def test_a_look_at_the_installation_that_fails(self):
        for damage in DAMAGES:
            for calls in LOOKS:
                sweep = Sweep(calls, "once", "/.Lumivo", (errno.EIO,), step=5, damage=damage)
                self.run_sweep(sweep)

    def test_a_package_that_cannot_be_read(self):
        for mode in ("once", "always"):
            self.run_sweep(Sweep("open,read,fstat", mode, "lumivo.lvp", (errno.EIO,), step=2))
