"""One run of the launcher, from the outside: what is installed, what runs, what is logged."""

import os
import pathlib
import re
import subprocess
import unittest

from support import EXECUTABLE, NOBODY, ROOT, Case, alive, tree, wait_for

UPGRADE = (
    "[DEBUG] mac/mac-service(%d): source version = 3487, target version = 3500\n",
    "[DEBUG] mac/mac-service(%d): local appdata exist\n",
    "[INFO] lumivo-service(%d): extract package: '",
    "[INFO] lumivo-service(%d): user installation is ready, removing backup app\n",
    "[DEBUG] launcher(%d): done\n",
)
LANGUAGES = """en_US=enu zh_TW=cht zh_HK=cht zh_CN=chs zh_SG=chs ja_JP=jpn de_DE=deu ko_KR=krn fr_FR=fra it_IT=ita es_ES=esn
    pt_BR=ptb pt_PT=ptg ru_RU=rus da_DK=dan nb_NO=nor nn_NO=nor sv_SE=sve nl_NL=nld pl_PL=plk hu_HU=hun tr_TR=trk cs_CZ=csy
    fi_FI=enu C=enu"""


class Runs(Case):
    def test_first_installation_starts_a_client_of_its_own(self):
        aged = self.home / ".Lumivo/app/old"
        aged.mkdir(parents=True)
        pid = self.install(3487)
        self.assertEqual(os.getsid(pid), pid, "the client leads a session of its own")
        opened = {
            os.readlink(descriptor) for descriptor in pathlib.Path(f"/proc/{pid}/fd").iterdir()
        }
        self.assertEqual(
            opened,
            {"/dev/null", str(self.app / EXECUTABLE)},
            "what the client has open, itself included",
        )
        self.assertNotIn(
            "TZ=", pathlib.Path(f"/proc/{pid}/environ").read_text(), "the launcher's own time zone"
        )
        self.assertFalse(aged.parent.exists())
        self.assert_logged(
            "[INFO] lumivo-service(%d): source does not exist\n",
            "source version = 0, target version = 3487",
            "[ERROR] mac/mac-service(%d): Cannot unregister bundle, ",
        )

    def test_upgrade_replaces_the_running_client(self):
        old, new = self.install(3487), self.install(3500)
        self.assertEqual((alive(old), alive(new)), (False, True))
        self.assert_logged(*UPGRADE)

    def test_nothing_is_done_without_need_and_a_missing_executable_needs_no_stop(self):
        old = self.install(3487)
        before = tree(self.app)
        for build in (3487, 3400):  # the same build, and a lower one
            self.put_package(build)
            others = self.clients()
            self.run_launcher()
            self.wait_for_client(*others)
            self.assert_logged(
                f"source version = 3487, target version = {build}\n",
                "[DEBUG] launcher(%d): no need to upgrade\n",
            )
            self.assert_same_tree(tree(self.app), before)
        (self.app / EXECUTABLE).unlink()
        self.install(3487)
        self.assertTrue(alive(old))
        self.assertNotIn("pid file", self.log())

    def test_damaged_archive_without_an_old_bundle_is_mended_by_the_next_start(self):
        self.put_package(3487)
        os.truncate(self.archive(), 1000)
        self.run_launcher()
        self.assert_logged(
            "[ERROR] lumivo-service(%d): Failed to extract package, and no old installation to rollback\n",
            "[ERROR] launcher(%d): Failed to upgrade package\n",
            "[ERROR] mac/mac-service(%d): Failed to launch Lumivo UI\n",
        )
        self.assertEqual(self.clients(), [])
        self.install(3487)


class Surroundings(Case):
    def test_language_follows_the_system_and_falls_back_to_english(self):
        self.put_package(3487)
        for word in LANGUAGES.split():
            locale, code = word.split("=")
            with self.subTest(locale=locale):
                _, errors = self.run_launcher(LC_ALL=locale)
                self.assertIn(f"libcommon/TavLocale:138 qPrintable(qstrDef)=[{code}\n] ", errors)
                self.assertIn(
                    f"libcommon/TavLocale:161 qPrintable(qstrLangFileName)=[:/{code}.qm] ", errors
                )

    def test_levels_decide_what_is_logged(self):
        self.put_package(3487)
        for levels, logged in (("", {"ERROR"}), ("service_debug=6\n", {"ERROR", "INFO"})):
            (self.bundle / "log/launcher.debug").write_text(levels)
            self.run_launcher()
            self.assertEqual(set(re.findall(r"\[([A-Z]+)\]", self.log())), logged)

    @unittest.skipUnless(ROOT, "needs root to become a user who may not write")
    def test_a_home_that_cannot_be_written_or_is_not_there(self):
        self.put_package(3487)
        self.temporary.chmod(0o777)
        for home in (self.home, None):
            _, errors = self.run_launcher(user=NOBODY, HOME=home)
            self.assertIn(
                "[ERROR] lumivo-service",
                errors,
                "without a log folder, errors go to standard error",
            )
            self.assertFalse((self.home / ".Lumivo").exists() or os.path.exists("/.Lumivo"))


@unittest.skipUnless(os.environ.get("DISPLAY"), "needs a display")
class Window(Case):
    def on_screen(self, *command):
        return subprocess.run(command, capture_output=True, check=False, timeout=20).stdout

    def test_it_stays_and_is_painted_while_the_worker_waits_for_the_client(self):
        (self.home / "client-mode").write_text("ignore")
        old = self.install(3487)
        complete = self.put_package(3500)
        process = self.start(DISPLAY=os.environ["DISPLAY"], QT_QPA_PLATFORM="xcb")
        self.addCleanup(process.kill)
        search = ("xdotool", "search", "--onlyvisible", "--name", "^Lumivo Drive$")
        window = wait_for(lambda: self.on_screen(*search).split(), "the dialog")[0]
        picture = lambda: self.on_screen("import", "-window", window, "rgb:-")
        pictures = [b""]
        wait_for(
            lambda: pictures.append(picture()) or pictures[-1] == pictures[-2] != b"",
            "a picture that stays",
        )
        samples = 0
        while samples < 4 and alive(old):
            for keys in (("windowfocus", "--sync", window), ("key", "Escape"), ("key", "alt+F4")):
                self.on_screen("xdotool", *keys)
            with subprocess.Popen(
                ["xev", "-geometry", "800x600+0+0"], stdout=subprocess.DEVNULL
            ) as cover:
                wait_for(lambda: picture() != pictures[-1], "the dialog is covered")
                cover.terminate()
            wait_for(lambda: picture() == pictures[-1], "the dialog is painted again", 1)
            samples += alive(old)
        self.assertGreaterEqual(samples, 2)
        _, errors = process.communicate(timeout=60)
        self.assertEqual(
            (process.returncode, alive(old), "QThread" in errors), (0, False, False), errors
        )
        self.assert_installed(complete)
        self.wait_for_client()


if __name__ == "__main__":
    unittest.main(verbosity=2)
