"""Before an upgrade the client is asked to end, waited for, and ended with force if it stays."""

import os
import time

from support import ORDINARY_USER, alive, wait_for
from upgrade import INSTALLED, NEW, OLD, UpgradeCase

MISSED = "[NOTE] mac/mac-service(%d): Failed to read pid file '"


class ClientStop(UpgradeCase):
    def assert_upgrade_takes_at_least(self, seconds):
        """Each look at whether the client has gone is a second after the one before."""
        start = time.monotonic()
        self.run_launcher()
        self.assertGreaterEqual(time.monotonic() - start, seconds)

    def start_a_client(self, mode):
        self.begin(package=OLD)
        self.set_client_mode(mode)
        self.run_launcher()
        client = self.wait_for_client()
        self.put_package(NEW)
        return client

    def test_a_client_that_ends_at_once_late_or_not_at_all(self):
        for mode, seconds in {"end": 0, "linger": 2, "ignore": 5}.items():
            with self.subTest(mode):
                client = self.start_a_client(mode)
                self.assert_upgrade_takes_at_least(seconds)
                self.assertFalse(alive(client), "the old client has ended")
                self.assert_client_runs(NEW)

    def test_a_pid_file_that_cannot_be_read(self):
        makers = {
            "pipe": os.mkfifo,
            "folder": os.mkdir,
            "closed": lambda path: path.touch(mode=0),
        }
        for kind, make in makers.items():
            with self.subTest(kind):
                self.begin(user=ORDINARY_USER)
                make(self.pid_file())
                self.run_launcher(user=ORDINARY_USER)
                self.assert_logged(MISSED, INSTALLED)
                self.assertEqual(self.build_on_disk(), NEW)
                wait_for(self.clients, "the client")
