"""The dialog on a real display, while the launcher waits for a client that does not end."""

import hashlib
import os
import subprocess

from support import Case, alive, wait_for

OLD, NEW = 3487, 3500
# Qt shows a progress dialog by itself four seconds after it was made.
PROMPT_SECONDS = 2.5


class Window(Case):
    def setUp(self):
        self.assertIn("DISPLAY", os.environ, "to be run with scripts/display.sh")
        super().setUp()
        self.set_client_mode("ignore")
        self.client = self.install(OLD)
        self.complete = self.put_package(NEW)

    def on_screen(self, *command):
        return subprocess.run(command, capture_output=True, check=False, timeout=20).stdout

    def open_dialog(self, **changes):
        """Starts the launcher; the process, and the window of its dialog."""
        changes = {"DISPLAY": os.environ["DISPLAY"], "QT_QPA_PLATFORM": "xcb", **changes}
        logged = len(self.log())
        process = self.start(**changes)
        self.addCleanup(process.kill)
        wait_for(lambda: "local appdata exist" in self.log()[logged:], "the stop of the client")
        search = ("xdotool", "search", "--onlyvisible", "--name", "^Lumivo Drive$")
        windows = wait_for(lambda: self.on_screen(*search).split(), "the dialog", PROMPT_SECONDS)
        return process, windows[0]

    def picture(self, window):
        """What stands for the picture of the window in a comparison, and in a message."""
        return hashlib.sha256(self.on_screen("import", "-window", window, "rgb:-")).hexdigest()

    def lasting_picture(self, window):
        """The picture once it has stopped to change."""
        pictures = [""]

        def is_lasting():
            pictures.append(self.picture(window))
            return pictures[-1] if pictures[-1] == pictures[-2] else None

        return wait_for(is_lasting, "a picture that stays")

    def test_it_stays_and_is_painted_while_the_worker_waits(self):
        process, window = self.open_dialog()
        painted = self.lasting_picture(window)
        rounds = 0
        while rounds < 4 and alive(self.client):
            for keys in (("windowfocus", "--sync", window), ("key", "Escape"), ("key", "alt+F4")):
                self.on_screen("xdotool", *keys)
            cover = ["xev", "-geometry", "800x600+0+0"]
            with subprocess.Popen(cover, stdout=subprocess.DEVNULL) as covering:
                wait_for(lambda: self.picture(window) != painted, "the dialog is covered")
                covering.terminate()
            wait_for(lambda: self.picture(window) == painted, "the dialog is painted again", 1)
            if alive(self.client):
                rounds += 1
        self.assertGreaterEqual(rounds, 2, "so often it was covered while the launcher waited")
        _, errors = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0, errors)
        self.assertNotIn("QThread", errors)
        self.assertFalse(alive(self.client), "the old client has ended")
        self.assert_installed(self.complete)
        self.wait_for_client()

    def test_its_label_is_in_the_users_language(self):
        pictures = {}
        for locale in ("en_US", "fi_FI", "de_DE", "fr_FR"):
            process, window = self.open_dialog(LC_ALL=locale)
            pictures[locale] = self.lasting_picture(window)
            process.kill()
            process.communicate()
        # Finnish has no catalog. What else a locale may change in the picture would show there.
        self.assertEqual(pictures["fi_FI"], pictures["en_US"], "both in English")
        self.assertNotEqual(pictures["de_DE"], pictures["en_US"], "German and English")
        self.assertNotEqual(pictures["fr_FR"], pictures["de_DE"], "French and German")
