"""Upgrades that may go wrong: from a complete client, with a package that may be damaged."""

import os
import stat
import zipfile

from support import Case, tree

OLD, NEW, NEXT = 3487, 3500, 3600
INSTALLED = "[INFO] lumivo-service(%d): user installation is ready, removing backup app\n"
FAILED = "[ERROR] launcher(%d): Failed to upgrade package\n"
ROLLED_BACK = (
    "[ERROR] lumivo-service(%d): Failed to extract package, rollback to old installation\n",
    FAILED,
)
LOCAL_HEADER_BYTES = 30  # of a zip, before the name; make-package writes no extra field


class UpgradeCase(Case):
    """A test that begins with a complete client of build OLD and the package of NEW."""

    def begin(self, installed=OLD, package=NEW, **options):
        super().begin(installed, package, **options)

    def file_contents(self):
        """Where the bytes of the package's files lie, as ranges in the order of the entries."""
        with zipfile.ZipFile(self.archive()) as package:
            entries = [
                entry
                for entry in package.infolist()
                if entry.compress_size > 0 and not stat.S_ISLNK(entry.external_attr >> 16)
            ]
        starts = [
            entry.header_offset + LOCAL_HEADER_BYTES + len(entry.orig_filename.encode("cp437"))
            for entry in entries
        ]
        return [range(start, start + entry.compress_size) for start, entry in zip(starts, entries)]

    def damage_executable(self):
        """Damages the package's last entry but one: nearly all is extracted before that shows."""
        executable = self.file_contents()[-2]
        with open(self.archive(), "r+b") as package:
            package.seek(executable.start)
            package.write(bytes(len(executable)))

    def append_refused_entry(self):
        """Gives the package a last entry that is refused, after a complete client."""
        with zipfile.ZipFile(self.archive(), "a") as package:
            package.writestr("../x", b"")

    def build_on_disk(self):
        """The build that is installed to the last file; otherwise the names of what lies there."""
        found = tree(self.app)
        for build in (OLD, NEW, NEXT):
            if found == self.package(build).nodes:
                return build
        return sorted(found)

    def assert_client_runs(self, *builds):
        """After a run: one of the builds is complete, and its client was started and runs alone."""
        self.assertIn(self.build_on_disk(), builds, self.log())
        self.wait_for_client()

    def upgrade(self, build, *results, damage=None, **options):
        """The next start, its package spoiled by `damage`; leaves `build`, or one of `results`."""
        self.end_clients()
        self.put_package(build)
        if damage:
            damage(self)
        self.run_launcher(**options)
        self.assert_client_runs(*(results or (build,)))

    def assert_next_starts_mend(self, is_part_left=False):
        """A normal start and then an upgrade leave a complete client each, and nothing else.

        But where a rollback passed over a part of a bundle, that may stay at its backup name.
        """
        self.upgrade(NEW)
        self.upgrade(NEXT)
        part = {"Lumivo.app_tmp1"} if is_part_left else set()
        left = set(os.listdir(self.app.parent)) - part
        self.assertEqual(left, {"Lumivo.app", "log", "ui.pid"})
        self.assertEqual(list(self.temporary.glob("*.lock")), [])
