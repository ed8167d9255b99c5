"""One run of the launcher, from the outside: what is installed, what runs, what is logged."""

import os
import re
import shutil
import signal
import subprocess
import unittest

from support import Case, Screen, alive, tree, wait_for

UPGRADE = (
    "[DEBUG] launcher(%d): running\n",
    "[INFO] lumivo-service(%d): target_version = (",
    "[DEBUG] mac/mac-service(%d): source version = 3487, target version = 3500\n",
    "[DEBUG] mac/mac-service(%d): local appdata exist\n",
    "[INFO] lumivo-service(%d): extract package: '",
    "[DEBUG] extractor(%d): decompress from '",
    "[INFO] lumivo-service(%d): user installation is ready, removing backup app\n",
    "[INFO] lumivo-service(%d): removing aged app folder ",
    "[DEBUG] launcher(%d): done\n",
)
FAILED = "[ERROR] launcher(%d): Failed to upgrade package\n"
ROLLED_BACK = "[ERROR] lumivo-service(%d): Failed to extract package, rollback to old installation\n"
NOTHING_TO_ROLL_BACK = "[ERROR] lumivo-service(%d): Failed to extract package, and no old installation to rollback\n"
LANGUAGES = """en_US=enu zh_TW=cht zh_HK=cht zh_CN=chs zh_SG=chs ja_JP=jpn de_DE=deu ko_KR=krn fr_FR=fra it_IT=ita es_ES=esn
    pt_BR=ptb pt_PT=ptg ru_RU=rus da_DK=dan nb_NO=nor nn_NO=nor sv_SE=sve nl_NL=nld pl_PL=plk hu_HU=hun tr_TR=trk cs_CZ=csy
    fi_FI=enu C=enu"""
NO_NEED = "[DEBUG] launcher(%d): no need to upgrade\n"


class Runs(Case):
    def test_first_installation_starts_a_client_of_its_own(self):
        aged = self.home / ".Lumivo/app/old"
        aged.mkdir(parents=True)
        held, other = os.pipe()  # would be inherited: it stays open across exec
        os.set_inheritable(held, True)
        complete = self.put_package(3487)
        process = self.start()
        _, errors = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0, errors)
        os.close(held), os.close(other)

        pid = self.wait_for_starts(1)
        words = self.starts()[0]
        self.assertEqual(words[1], str(pid), "the client leads a session of its own")
        self.assertEqual(words[2], str(self.app / "Contents/MacOS"))
        self.assertEqual(words[3:], [], "descriptors that the client inherited")
        self.assert_installed(complete)
        self.assertFalse(aged.parent.exists())
        self.assert_logged("[INFO] lumivo-service(%d): source does not exist\n", "source version = 0, target version = 3487",
                           "[ERROR] mac/mac-service(%d): Cannot unregister bundle, ")
        self.assertNotIn("local appdata exist", self.log())

    def test_upgrade_replaces_the_running_client(self):
        old = self.install(3487)
        new = self.install(3500)
        self.assertFalse(alive(old))
        self.assertTrue(alive(new))
        self.assert_logged(*UPGRADE)

    def test_nothing_is_done_without_need(self):
        old = self.install(3487)
        before = tree(self.app)
        for build in (3487, 3400):  # the same build, and a lower one
            with self.subTest(build=build):
                self.put_package(build)
                starts = len(self.starts())
                self.run_launcher()
                self.wait_for_starts(starts + 1)
                self.assert_logged(f"source version = 3487, target version = {build}\n", NO_NEED)
                self.assert_same_tree(tree(self.app), before)
                self.assertTrue(alive(old))

    def test_missing_executable_is_installed_again_without_a_stop(self):
        old = self.install(3487)
        (self.app / "Contents/MacOS/lumivo-drive-ui").unlink()
        complete = self.put_package(3487)
        self.run_launcher()
        self.wait_for_starts(2)
        self.assert_installed(complete)
        self.assertTrue(alive(old))
        self.assertNotIn("pid file", self.log())

    def test_a_client_that_ignores_the_request_is_killed(self):
        (self.home / "client-mode").write_text("ignore")
        old = self.install(3487)
        self.install(3500)
        self.assertFalse(alive(old))


class Damage(Case):
    def damage(self):
        """Spoils bytes in the middle: a zip is counted by the directory at its end, so files are written before it shows."""
        data = bytearray(self.archive().read_bytes())
        middle = len(data) // 2
        data[middle:middle + 64] = bytes(64)
        self.archive().write_bytes(data)

    def test_damaged_archive_leaves_the_old_bundle(self):
        self.install(3487)
        before = tree(self.app)
        self.put_package(3500)
        self.damage()
        self.run_launcher()
        self.assert_installed(before)
        self.assert_logged("[ERROR] extractor(%d): ", ROLLED_BACK, FAILED)
        self.wait_for_starts(2)

    def test_damaged_archive_without_an_old_bundle_is_mended_by_the_next_start(self):
        self.put_package(3487)
        self.damage()
        self.run_launcher()
        self.assert_logged(NOTHING_TO_ROLL_BACK, FAILED, "[ERROR] mac/mac-service(%d): Failed to launch Lumivo UI\n")
        self.assertEqual(self.starts(), [])
        self.install(3487)

    def test_backups_of_interrupted_runs_are_passed_over_and_removed(self):
        self.install(3487)
        stale = self.home / ".Lumivo/Lumivo.app_tmp/stale"
        stale.mkdir(parents=True)
        self.install(3500)
        self.assert_logged("[ERROR] lumivo-service(%d): failed to backup app from '", "user installation is ready")

    def test_ten_blocked_backups_leave_everything_as_it_is(self):
        self.install(3487)
        before = tree(self.app)
        for number in ("", *range(1, 10)):
            (self.home / f".Lumivo/Lumivo.app_tmp{number}/blocks").mkdir(parents=True)
        self.put_package(3500)
        self.run_launcher()
        self.wait_for_starts(2)
        self.assert_same_tree(tree(self.app), before)
        self.assertEqual(self.log().count("failed to backup app"), 11)
        self.assert_logged("' at max retries, exiting\n", FAILED)


class Instances(Case):
    def test_second_start_leaves_at_once_and_a_copy_elsewhere_runs(self):
        (self.home / "client-mode").write_text("linger")
        self.install(3487)
        self.put_package(3500)
        first = self.start()
        wait_for(lambda: self.log().count("): running\n") == 2, "the first instance works")

        output, errors = self.run_launcher(seconds=3)
        self.assertIn("lib path", output)
        self.assertNotIn("TavLocale", errors, "a second instance chooses no language")
        self.assert_logged("[DEBUG] main(%d): app has already launched, return\n")
        self.assertIsNone(first.poll())
        for number in (signal.SIGTERM, signal.SIGHUP):  # the session ends while the client is away
            first.send_signal(number)

        copy = self.copy_bundle("Copy.app")
        self.put_package(3400, copy)
        self.run_launcher(bundle=copy)
        self.assertIn("target version = 3400", self.log())
        first.communicate(timeout=30)
        self.assertEqual(first.returncode, 0)
        self.assertIn("user installation is ready, removing backup app", self.log().rsplit("extract package", 1)[1])

    def test_locks_that_nobody_holds_do_not_block(self):
        """What a killed launcher, a power cut and others leave under the lock's name, a living process's id included."""
        (self.home / "client-mode").write_text("linger")
        self.install(3487)
        self.put_package(3500)
        crashed = self.start()
        lock = wait_for(lambda: list(self.temporary.glob("*.lock")), "the lock file")[0]
        wait_for(lambda: "local appdata exist" in self.log(), "the upgrade")
        crashed.kill()
        crashed.communicate()
        victim = self.folder / "victim"
        for content in (lock.read_text(), "", "garbage\n", f"{os.getpid()}\nlumivo-launcher\n{os.uname().nodename}\n", None):
            with self.subTest(content=content):
                lock.symlink_to(victim) if content is None else lock.write_text(content)
                runs = self.log().count("): done\n")
                self.run_launcher()
                self.assertEqual(self.log().count("): done\n"), runs + 1)
        self.assertFalse(victim.exists())


class Surroundings(Case):
    def test_language_follows_the_system_and_falls_back_to_english(self):
        self.put_package(3487)
        for word in LANGUAGES.split():
            locale, code = word.split("=")
            with self.subTest(locale=locale):
                _, errors = self.run_launcher(LC_ALL=locale)
                self.assertIn(f"libcommon/TavLocale:138 qPrintable(qstrDef)=[{code}\n] ", errors)
                self.assertIn(f"libcommon/TavLocale:161 qPrintable(qstrLangFileName)=[:/{code}.qm] ", errors)

    def test_levels_decide_what_is_logged(self):
        self.put_package(3487)
        (self.bundle / "log/launcher.debug").unlink()
        self.run_launcher()
        self.wait_for_starts(1)
        lines = self.log()
        self.assertIn("[ERROR] mac/mac-service", lines)
        self.assertFalse(re.search(r"\[(INFO|DEBUG|NOTE)\]", lines), lines)

        (self.bundle / "log/launcher.debug").write_text("service_debug=6\n")
        self.run_launcher()
        self.assertIn("[INFO] lumivo-service", self.log())
        self.assertNotIn("[DEBUG]", self.log())

    @unittest.skipUnless(os.geteuid() == 0, "needs root to become a user who may not write")
    def test_home_that_cannot_be_written(self):
        self.put_package(3487)
        self.temporary.chmod(0o777)
        _, errors = self.run_launcher(user=65534)
        self.assertIn("[ERROR] lumivo-service", errors, "without a log folder, errors go to standard error")
        self.assertFalse((self.home / ".Lumivo").exists())

    def test_relative_program_name_gives_a_relative_folder(self):
        self.put_package(3487)
        result = subprocess.run(["Lumivo.app/Contents/MacOS/lumivo-launcher"], env=self.environment(), cwd=self.folder,
                                capture_output=True, text=True, timeout=60)
        self.assertEqual((result.returncode, result.stdout), (0, "lib path = 'Lumivo.app/Contents/Frameworks/plugins'\n"))


@unittest.skipUnless(shutil.which("Xvfb"), "needs Xvfb")
class Window(Screen):
    def test_neither_escape_nor_a_close_request_ends_the_run(self):
        (self.home / "client-mode").write_text("linger")
        old = self.install(3487)
        complete = self.put_package(3500)
        process = self.start(DISPLAY=self.display, QT_QPA_PLATFORM="xcb")
        window = wait_for(lambda: self.xdotool("search", "--onlyvisible", "--name", "^Lumivo Drive$"), "the dialog")[0]
        self.xdotool("windowfocus", "--sync", window)
        self.xdotool("key", "--window", window, "Escape")
        self.xdotool("key", "Escape")
        self.xdotool("key", "alt+F4")
        self.assertTrue(alive(old), "the keys came too late to prove anything")
        self.assertIn(window, self.xdotool("search", "--onlyvisible", "--name", "^Lumivo Drive$"))
        _, errors = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0, errors)
        self.assertNotIn("QThread", errors)
        self.assert_installed(complete)
        self.wait_for_starts(2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
