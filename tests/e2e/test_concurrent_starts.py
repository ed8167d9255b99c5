"""Several launchers at once: one of them works on the installation, and nobody is locked out."""

import os
import pathlib
import signal
import time

from support import FULL, wait_for
from sweep import Sweep, SweepCase
from upgrade import NEW, NEXT, OLD, UpgradeCase

TURN_SECONDS = 10  # that a launcher waits for another one's work on the installation


class ConcurrentStarts(UpgradeCase):
    def assert_all_end_well(self, *processes):
        for process in processes:
            _, errors = process.communicate(timeout=60)
            self.assertEqual(process.returncode, 0, errors)

    def start_with_five_seconds_work(self):
        """Replaces a client that has to be ended with force."""
        self.begin(package=OLD)
        self.set_client_mode("ignore")
        self.run_launcher()
        self.wait_for_client()
        self.put_package(NEW)

    def test_twenty_starts_in_one_moment_and_the_end_of_the_session(self):
        self.start_with_five_seconds_work()
        processes = [self.start() for _ in range(20)]

        def running():
            return [process for process in processes if process.poll() is None]

        wait_for(lambda: len(running()) == 1, "nineteen leave")
        self.assertNotIn("extract package", self.log(), "they leave at once")
        (lock,) = self.temporary.glob("*.lock")
        self.assertEqual(oct(lock.stat().st_mode & 0o777), "0o600", "nobody else can hold it")
        for process in running():
            process.send_signal(signal.SIGTERM)
            process.send_signal(signal.SIGHUP)
        self.run_launcher()
        self.assert_all_end_well(*processes)
        self.assertEqual(self.log().count("extract package"), 1)
        self.assertEqual(self.log().count("app has already launched"), 20)
        self.assert_client_runs(NEW)

    def test_copies_at_different_places_take_turns(self):
        copy = self.copy_bundle("Copy.app")
        self.put_package(NEXT, copy)
        for _ in range(30 if FULL else 5):
            self.begin()
            self.assert_all_end_well(self.start(), self.start(bundle=copy))
            self.assert_installed(self.package(NEXT).nodes)
            wait_for(self.clients, "a client")

    def test_a_copy_leaves_the_work_to_a_launcher_that_takes_too_long(self):
        self.start_with_five_seconds_work()
        slow = self.start()
        wait_for(lambda: "local appdata exist" in self.log(), "the stop of the client")
        slow.send_signal(signal.SIGSTOP)
        self.addCleanup(slow.kill)
        before, client = time.monotonic(), self.wait_for_client()
        copy = self.copy_bundle("Copy.app")
        self.put_package(NEXT, copy)
        self.run_launcher(bundle=copy)
        self.assertGreaterEqual(time.monotonic() - before, TURN_SECONDS)
        self.assertEqual(self.build_on_disk(), OLD)
        self.assertEqual(self.wait_for_client(), client, "nothing was started or ended")
        self.assert_logged(
            f"[NOTE] launcher(%d): another launcher is working on '{self.app.parent}', waiting",
            f"[WARNING] launcher(%d): another launcher is still working on '{self.app.parent}', "
            "leaving it alone\n",
        )
        self.set_client_mode("end")
        next_in_turn = self.start(bundle=copy)
        slow.send_signal(signal.SIGCONT)
        self.assert_all_end_well(slow, next_in_turn)
        self.assert_client_runs(NEXT)


class LockFile(SweepCase):
    """What lies under the name of the single-instance lock in the temporary folder."""

    def setUp(self):
        super().setUp()
        calls = self.calls_without_fault(Sweep("open-w", "once", path=".lock"))
        self.name = pathlib.Path(calls[0]).name
        self.held_by_this_test = f"{os.getpid()}\nlumivo-launcher\n{os.uname().nodename}\n".encode()
        self.begin()

    def lock(self):
        return self.temporary / self.name

    def test_a_file_that_nobody_holds_is_replaced(self):
        foreign_host = b"99999999\nlumivo-launcher\nother-host\n"
        contents = (b"", b"1", b"garbage\n", bytes(40), self.held_by_this_test, foreign_host)
        for content in contents:
            with self.subTest(content=content):
                self.begin()
                self.lock().write_bytes(content)
                self.run_launcher()
                self.assertFalse(os.path.lexists(self.lock()), "the launcher's own lock is gone")
                self.assert_client_runs(NEW)

    def test_what_cannot_be_a_lock_is_left_alone_and_locks_nobody_out(self):
        target = self.folder / "target"
        target.write_text("kept")
        makers = {
            "pipe": os.mkfifo,
            "folder": os.mkdir,
            "link to a file": lambda path: path.symlink_to(target),
            "link to nothing": lambda path: path.symlink_to("nowhere"),
        }
        for kind, make in makers.items():
            with self.subTest(kind):
                self.begin()
                make(self.lock())
                self.run_launcher()
                self.assertTrue(os.path.lexists(self.lock()), "it is not the launcher's")
                self.assert_client_runs(NEW)
        self.assertEqual(target.read_text(), "kept")
