"""What a start makes of the installation when nothing goes wrong but, perhaps, the package."""

import os

from support import EXECUTABLE, Case, alive, tree

OLD, LOWER, NEW = 3487, 3400, 3500


class Installation(Case):
    def test_first_start_installs_the_client_and_removes_the_older_layout(self):
        older_layout = self.home / ".Lumivo/app"
        (older_layout / "data").mkdir(parents=True)
        self.install(OLD)
        self.assertFalse(older_layout.exists())
        self.assert_logged(
            "[INFO] lumivo-service(%d): source does not exist\n",
            f"source version = 0, target version = {OLD}",
            "[ERROR] mac/mac-service(%d): Cannot unregister bundle, ",
        )

    def test_upgrade_replaces_the_running_client(self):
        old = self.install(OLD)
        new = self.install(NEW)
        self.assertFalse(alive(old), "the old client has ended")
        self.assertTrue(alive(new), "the new one runs")
        self.assertNotIn("Failed", self.log())
        self.assert_logged(
            f"[INFO] lumivo-service(%d): target_version = (1, 0, {NEW}, 1)\n",
            f"[INFO] lumivo-service(%d): source_version = (1, 0, {OLD}, 1)\n",
            f"[DEBUG] mac/mac-service(%d): Source version: ('{OLD}', '1')\n",
            f"[DEBUG] mac/mac-service(%d): Target version: ('{NEW}', '1')\n",
            f"[DEBUG] mac/mac-service(%d): source version = {OLD}, target version = {NEW}\n",
            "[DEBUG] mac/mac-service(%d): local appdata exist\n",
            f"[INFO] lumivo-service(%d): extract package: '{self.archive()}' -> '{self.app}'\n",
            f"[DEBUG] extractor(%d): decompress from '{self.archive()}' to '{self.app}'\n",
            "[INFO] lumivo-service(%d): user installation is ready, removing backup app\n",
            "[DEBUG] launcher(%d): done\n",
        )

    def test_the_same_build_and_a_lower_one_change_nothing(self):
        self.install(OLD)
        before = tree(self.app)
        for build in (OLD, LOWER):
            with self.subTest(build=build):
                others = self.clients()
                self.put_package(build)
                self.run_launcher()
                self.wait_for_client(*others)
                self.assert_same_tree(tree(self.app), before)
                self.assert_logged(
                    f"source version = {OLD}, target version = {build}\n",
                    "[DEBUG] launcher(%d): no need to upgrade\n",
                )

    def test_a_client_without_its_executable_is_installed_again_and_not_stopped(self):
        old = self.install(OLD)
        (self.app / EXECUTABLE).unlink()
        self.install(OLD)
        self.assertTrue(alive(old), "the client that still runs")
        self.assertNotIn("pid file", self.log())

    def test_a_damaged_package_without_an_old_client_is_mended_by_the_next_start(self):
        self.put_package(OLD)
        os.truncate(self.archive(), 1000)
        self.run_launcher()
        self.assert_logged(
            "[ERROR] lumivo-service(%d): "
            "Failed to extract package, and no old installation to rollback\n",
            "[ERROR] launcher(%d): Failed to upgrade package\n",
            "/lumivo-drive-ui): No such file or directory (2)\n",
            "[ERROR] mac/mac-service(%d): Failed to launch Lumivo UI\n",
        )
        self.assertEqual(self.clients(), [])
        self.install(OLD)
