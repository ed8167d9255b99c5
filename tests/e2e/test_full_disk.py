"""File systems that are full or read-only. Whatever cannot be written, a complete client runs."""

import os
import subprocess
import unittest

from support import FULL, ROOT
from upgrade import NEW, OLD, UpgradeCase


@unittest.skipUnless(ROOT, "needs root to mount file systems")
class FullDisk(UpgradeCase):
    def mount(self, *options, at):
        """Mounts as the command of that name does, until the end of the test."""
        at.mkdir(parents=True, exist_ok=True)
        mounted = subprocess.run(["mount", *options, at], capture_output=True, check=False)
        if mounted.returncode != 0:
            self.skipTest("mounting is not allowed here")
        self.addCleanup(subprocess.run, ["umount", "-l", at], check=True)
        self.addCleanup(self.end_clients)

    def fill(self, disk, left):
        """Leaves that many bytes of the disk free."""
        space = os.statvfs(disk)
        size = max(0, space.f_bavail * space.f_frsize - left)
        (disk / "filler").write_bytes(bytes(size))

    def test_a_disk_that_fills_at_any_point(self):
        disk = self.folder / "disk"
        self.mount("-t", "tmpfs", "-o", "size=1m", "none", at=disk)
        for left in range(0, 128 * 1024, 4096 if FULL else 16384):
            with self.subTest(left=left):
                self.begin(below=disk)
                # The client writes its file to another disk, and so it always starts.
                self.pid_file().symlink_to(self.folder / f"pid-{left}")
                (self.home / ".Lumivo/log").mkdir()
                self.fill(disk, left)
                self.run_launcher()
                self.assert_client_runs(OLD, NEW)
                (disk / "filler").unlink()
                self.assert_next_starts_mend()
                self.end_clients()
                subprocess.run(["rm", "-r", self.home], check=True)
