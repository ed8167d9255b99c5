"""Where, as whom and with what limits the launcher is started."""

import dataclasses
import os
from typing import Optional

from support import ORDINARY_USER, Case, tree
from upgrade import NEW, NEXT, OLD, UpgradeCase


@dataclasses.dataclass(frozen=True)
class Surrounding:
    name: str
    link: Optional[str] = None  # this node of the home is behind a link
    limit: Optional[str] = None  # a shell sets it before the launcher starts
    user: Optional[int] = None
    variables: dict = dataclasses.field(default_factory=dict)
    is_upgrade_possible: bool = True

    def start_options(self):
        command = ["sh", "-c", f'{self.limit}; exec "$0"'] if self.limit else ()
        return {"command": command, "user": self.user, **self.variables}


SURROUNDINGS = (
    Surrounding("home behind a link", link=""),
    Surrounding("installation behind a link", link=".Lumivo"),
    Surrounding("bundle behind a link", link=".Lumivo/Lumivo.app"),
    Surrounding("no locale", variables={"LC_ALL": "C"}),
    Surrounding("bundle of another user's", user=ORDINARY_USER),
    Surrounding("bare", variables={"PATH": None, "TMPDIR": None, "LC_ALL": None}),
    Surrounding("files for their owner only", limit="umask 077"),
    Surrounding("files for everybody", limit="umask 000"),
    Surrounding("few open files", limit="ulimit -n 40"),
    Surrounding("small files", limit="ulimit -f 16", is_upgrade_possible=False),
)


class Surroundings(UpgradeCase):
    def put_behind_link(self, name):
        """Moves a node of the home elsewhere, a link in its place; returns where it lies now."""
        target = self.home.with_name(self.home.name + "-target")
        (self.home / name).rename(target)
        (self.home / name).symlink_to(target)
        return target

    def assert_upgrades(self, surrounding):
        """A damaged package, a good one, and another."""
        options = surrounding.start_options()
        self.upgrade(NEW, OLD, damage=UpgradeCase.damage_executable, **options)
        for build in (NEW, NEXT):
            result = build if surrounding.is_upgrade_possible else OLD
            self.upgrade(build, result, **options)
            self.assert_installed(self.package(result).nodes)

    def test_an_upgrade_a_failed_one_and_another(self):
        for surrounding in SURROUNDINGS:
            with self.subTest(surrounding.name):
                self.begin(user=surrounding.user)
                if surrounding.link is None:
                    self.assert_upgrades(surrounding)
                    continue
                target = self.put_behind_link(surrounding.link)
                self.assert_upgrades(surrounding)
                if surrounding.link.endswith(".app"):
                    # What the link led to is not the launcher's.
                    self.assert_same_tree(tree(target), self.package(OLD).nodes)
                else:
                    self.assertTrue((self.home / surrounding.link).is_symlink(), "the link stays")

    def test_nobody_reads_the_output(self):
        process = self.start()
        process.stdout.close()
        process.stderr.close()
        self.assertEqual(process.wait(timeout=60), 0)
        self.assert_client_runs(NEW)


class UnusableHome(Case):
    """Where nothing can be installed, the launcher says so once, on standard error."""

    def assert_nothing_to_install_to(self, errors):
        self.assertEqual(errors.count("failed to create folder: '"), 1, errors)
        no_old = "Failed to extract package, and no old installation to rollback\n"
        self.assertEqual(errors.count(no_old), 1, errors)
        self.assertNotIn("failed to backup", errors)

    def test_a_file_in_the_way(self):
        self.put_package(OLD)
        file = self.folder / "file"
        file.write_text("kept")
        (self.home / ".Lumivo").write_text("kept")
        for home, in_the_way in ((self.home, self.home / ".Lumivo"), (file, file)):
            with self.subTest(home=home):
                _, errors = self.run_launcher(HOME=home)
                self.assert_nothing_to_install_to(errors)
                self.assertEqual(in_the_way.read_text(), "kept")

    def test_no_right_to_write(self):
        self.begin(package=OLD, user=ORDINARY_USER)
        self.home.chmod(0o555)
        for home in (self.home, None):
            with self.subTest(home=home):
                _, errors = self.run_launcher(user=ORDINARY_USER, HOME=home)
                self.assert_nothing_to_install_to(errors)
                self.assertEqual(os.listdir(self.home), [])
                self.assertFalse(os.path.exists("/.Lumivo"), "in the root folder")

    def test_a_closed_installation(self):
        self.begin(installed=OLD, package=NEW, user=ORDINARY_USER)
        installation = self.home / ".Lumivo"
        installation.chmod(0)
        self.addCleanup(installation.chmod, 0o755)
        _, errors = self.run_launcher(user=ORDINARY_USER)
        self.assert_nothing_to_install_to(errors)
        installation.chmod(0o755)
        self.assert_installed(self.package(OLD).nodes)
