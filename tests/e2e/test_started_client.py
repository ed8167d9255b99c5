"""What the client gets from the launcher and from whoever started that: only its environment."""

import os
import pathlib
import re
import signal
import sys

from support import EXECUTABLE, Case

BUILD = 3487
# Runs a command with every signal blocked and ignored, and with a file open.
HAND_DOWN = """
import os, signal, sys
for number in signal.valid_signals() - {signal.SIGKILL, signal.SIGSTOP}:
    signal.signal(number, signal.SIG_IGN)
signal.pthread_sigmask(signal.SIG_BLOCK, signal.valid_signals())
os.dup2(os.open("/dev/zero", os.O_RDONLY), 9)
os.execv(sys.argv[1], sys.argv[1:])
"""


class StartedClient(Case):
    def start_client(self, **options):
        self.begin(package=BUILD)
        self.set_client_mode("report")
        self.run_launcher(**options)
        return self.wait_for_client()

    def signals(self, state):
        """The signals that were in that state when the client was started."""
        status = (self.home / "client-signals").read_text()
        mask = int(re.search(rf"^{state}:\s+(\w+)$", status, re.MULTILINE)[1], 16)
        return [number for number in signal.valid_signals() if mask >> (number - 1) & 1]

    def test_it_leads_a_session_of_its_own(self):
        client = self.start_client()
        self.assertEqual(os.getsid(client), client)

    def test_it_inherits_no_signal_and_no_file(self):
        for command in ((), (sys.executable, "-c", HAND_DOWN)):
            with self.subTest(command):
                client = self.start_client(command=command)
                self.assertEqual(self.signals("SigBlk"), [])
                self.assertEqual(self.signals("SigIgn"), [])
                files = pathlib.Path(f"/proc/{client}/fd").iterdir()
                opened = {os.readlink(file) for file in files}
                # The shell that runs the client holds its script open.
                self.assertEqual(opened, {"/dev/null", str(self.app / EXECUTABLE)})

    def test_it_has_the_environment_that_the_launcher_was_started_with(self):
        # The second one is what the launcher takes for itself where none is set.
        for zone in (None, ":/etc/localtime", "Asia/Tokyo"):
            with self.subTest(zone=zone):
                client = self.start_client(TZ=zone)
                environment = pathlib.Path(f"/proc/{client}/environ").read_text()
                given = [f"{name}={text}" for name, text in self.environment(TZ=zone).items()]
                self.assertCountEqual(environment.rstrip("\0").split("\0"), given)
