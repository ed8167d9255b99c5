"""The power may go at any moment: the next start leaves a complete client, old or new, and runs it.

The home lies on a file system in a file, and that file on another one, which clones files in an
instant. A power cut is such a clone: it holds what has reached the disk by then, and what was only
in memory is missing.
"""

import ctypes
import dataclasses
import errno
import itertools
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import unittest

from support import EXECUTABLE, INFO, ROOT, Case, tree, wait_for

FULL = os.environ.get("LUMIVO_FULL") == "1"
OLD, NEW = 3487, 3500
# With the size of a disk that each can live on.
FILE_SYSTEMS = {"ext4": "64M", "xfs": "320M"}
TOOLS = ("mkfs.btrfs", *(f"mkfs.{kind}" for kind in FILE_SYSTEMS))
CLONE_NEWNS = 0x20000


def run(*command):
    subprocess.run([str(word) for word in command], check=True, stdout=subprocess.DEVNULL)


def force(path):
    """Forces the file to the disk, if it is there."""
    try:
        descriptor = os.open(path, os.O_RDONLY)
    except FileNotFoundError:
        return
    os.fsync(descriptor)
    os.close(descriptor)


def force_nothing(_home):
    pass


def force_version_file(home):
    force(home / ".Lumivo/Lumivo.app" / INFO)


def force_another_file(home):
    """With it go the names of all files that were made and removed, but not what they hold."""
    (home / "another").write_text("another")
    force(home / "another")


# What other programs, an indexer perhaps, do in the moment before the power goes.
OTHER_PROGRAMS = (force_nothing, force_version_file, force_another_file)
CONDITIONS = list(itertools.product(FILE_SYSTEMS, OTHER_PROGRAMS))


@dataclasses.dataclass(frozen=True)
class Cut:
    """When and how the power goes."""

    call: int  # the number of the launcher's call before which it goes; None: after the last one
    file_system: str
    other_program: callable

    def __str__(self):
        return f"before call {self.call}, {self.file_system}, {self.other_program.__name__}"


def is_milestone(call):
    """Whether something begins or ends with this call, so that an order may be wrong there."""
    name, _, path = call.partition(" ")
    return name in ("rename", "syncfs") or path.endswith(INFO)


def cuts(calls):
    """The cuts to try in a run with these calls; a full run has milestones under all conditions."""
    step = 10 if FULL else len(calls) // 3
    conditions = itertools.cycle(CONDITIONS)
    numbers = [n for n, call in enumerate(calls, 1) if is_milestone(call) or n % step == 0]
    for number in (*numbers, None):
        is_thorough = FULL and (number is None or is_milestone(calls[number - 1]))
        for condition in CONDITIONS if is_thorough else [next(conditions)]:
            yield Cut(number, *condition)


class Power(Case):
    files = 40

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        missing = [tool for tool in TOOLS if not shutil.which(tool)]
        if missing or not ROOT or not os.path.exists("/dev/loop-control"):
            raise unittest.SkipTest(f"needs root, loop devices and {', '.join(TOOLS)}")
        # What is mounted from here on, with its loop devices, cannot outlive this process; but in a
        # chroot, whose root is no mount point, only the cleanup unmounts it.
        if ctypes.CDLL(None).unshare(CLONE_NEWNS) != 0:
            raise unittest.SkipTest("needs the right to mount")
        subprocess.run(["mount", "--make-rprivate", "/"], capture_output=True, check=False)
        cls.images = pathlib.Path(tempfile.mkdtemp(prefix="lumivo-power-"))
        cls.addClassCleanup(cls.images.rmdir)
        with tempfile.NamedTemporaryFile(dir="/dev/shm", prefix="lumivo-power-") as memory:
            os.truncate(memory.name, 2 << 30)
            run("mkfs.btrfs", "-q", memory.name)
            run("mount", "-o", "loop", memory.name, cls.images)
            cls.addClassCleanup(run, "umount", cls.images)
        cls.image, cls.clone = cls.images / "image", cls.images / "clone"

    def setUp(self):
        super().setUp()
        self.disk = self.folder / "disk"
        self.disk.mkdir()
        self.home = self.disk / "home"
        self.app = self.home / ".Lumivo/Lumivo.app"
        self.addCleanup(self.take_disk_out)

    def put_disk_in(self):
        run("mount", "-o", "loop", self.image, self.disk)

    def take_disk_out(self):
        self.end_clients()
        command = ["umount", self.disk]
        if os.path.ismount(self.disk):
            wait_for(
                lambda: subprocess.run(command, capture_output=True).returncode == 0,
                "a client that ends lets go of the disk",
            )

    def begin_with(self, file_system, installed):
        """A home on a disk of its own, with a client installed long ago, or without one."""
        self.take_disk_out()
        self.image.unlink(missing_ok=True)
        prepared = self.images / f"{file_system}-{installed}"
        if not prepared.exists():
            run("truncate", "-s", FILE_SYSTEMS[file_system], self.image)
            run(f"mkfs.{file_system}", "-q", self.image)
            self.put_disk_in()
            self.home.mkdir()
            if installed:
                self.put_package(installed)
                self.run_launcher()
                self.wait_for_client()
            self.take_disk_out()
            self.image.rename(prepared)
        run("cp", "--reflink=always", prepared, self.image)
        self.put_disk_in()

    def put_new_package(self, damaged=False):
        """The package of the new client. A damaged one lacks its end, which shows at last."""
        complete = self.put_package(NEW)
        if damaged:
            os.truncate(self.archive(), self.archive().stat().st_size - 100)
        return complete

    def run_with_fault(self, status=0, **fault):
        """Runs the launcher to its end, which has that status; returns the changes that it made."""
        made = self.folder / "calls"
        made.write_text("")
        process = self.start(
            LD_PRELOAD=os.environ["LUMIVO_FAULT_PRELOAD"],
            FAULT_PATH=self.home,
            FAULT_COUNT_FILE=made,
            **{"FAULT_FUNCTION": "changes", **fault},
        )
        process.communicate(timeout=60)
        self.assertEqual(process.returncode, status)
        return made.read_text().splitlines()

    def run_until(self, cut):
        """Runs the launcher into the power cut."""
        if cut.call:
            self.run_with_fault(-signal.SIGKILL, FAULT_MODE="kill", FAULT_NTH=cut.call)
        else:
            self.run_with_fault()
        self.cut_power(cut.other_program)

    def cut_power(self, other_program):
        other_program(self.home)
        run("cp", "--reflink=always", self.image, self.clone)
        self.take_disk_out()
        self.clone.rename(self.image)
        self.put_disk_in()

    def differences(self, client):
        """The names of what is not as in that client, or in that client only."""
        found = tree(self.app)
        return sorted(n for n in {*found, *client} if found.get(n) != client.get(n))

    def assert_complete(self, *clients):
        """One of the clients is there to the last byte, and runs."""
        self.assertIn([], [self.differences(client) for client in clients], self.log())
        self.wait_for_client()

    def try_cuts(self, installed, damaged_before=False, damaged_after=False, first_cut=None):
        """Cuts the power in a run, and starts the launcher once more.

        `first_cut` is the call before which the power goes in another run before that one. The
        package may be damaged in those runs, or at that last start.
        """
        old = [self.put_package(OLD)] if installed else []

        def begin(file_system):
            self.begin_with(file_system, installed)
            self.put_new_package(damaged_before)
            if first_cut:
                self.run_until(Cut(first_cut, file_system, force_another_file))

        begin("ext4")
        for cut in cuts(self.run_with_fault()):
            with self.subTest(cut=str(cut)):
                begin(cut.file_system)
                self.run_until(cut)
                new = self.put_new_package(damaged_after)
                self.run_launcher()
                self.assert_complete(new, *old)

    def test_first_installation(self):
        self.try_cuts(None)

    def test_upgrade(self):
        self.try_cuts(OLD)

    def test_upgrade_with_a_damaged_package_at_the_next_start(self):
        self.try_cuts(OLD, damaged_after=True)

    def test_failed_upgrade(self):
        self.try_cuts(OLD, damaged_before=True, damaged_after=True)

    def test_second_cut_in_the_start_that_mends(self):
        self.begin_with("ext4", OLD)
        self.put_new_package()
        calls = self.run_with_fault()
        files = [number for number, call in enumerate(calls, 1) if call.startswith("open-w")]
        first_cut = files[len(files) // 2]
        self.try_cuts(OLD, first_cut=first_cut)
        if FULL:
            self.try_cuts(OLD, first_cut=first_cut, damaged_after=True)

    def test_disk_that_reports_an_error(self):
        old = self.put_package(OLD)
        for number, what in ((1, "before the version file"), (2, "with it")):
            with self.subTest(fails=what):
                self.begin_with("ext4", OLD)
                self.put_new_package()
                self.run_with_fault(FAULT_FUNCTION="syncfs", FAULT_NTH=number)
                self.assert_logged(
                    f"[ERROR] extractor(%d): failed to force '{self.app}' to the disk"
                )
                self.assert_complete(old)

    def test_without_the_barrier_a_cut_would_be_noticed(self):
        self.begin_with("ext4", OLD)
        new = self.put_new_package()
        self.run_with_fault(
            FAULT_FUNCTION="syncfs", FAULT_MODE="always", FAULT_NTH=1, FAULT_ERRNO=errno.ENOSYS
        )
        self.assert_complete(new)
        self.cut_power(force_version_file)
        lost = self.differences(new)
        self.assertNotIn(os.fsencode(INFO), lost)
        self.assertIn(os.fsencode(EXECUTABLE), lost)
