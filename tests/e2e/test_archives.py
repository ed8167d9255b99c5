"""Packages that are damaged, hostile or unusual."""

import dataclasses
import io
import os
import random
import tarfile
import zipfile

from support import CLIENT, EXECUTABLE, FULL, INFO, ORDINARY_USER
from upgrade import INSTALLED, NEW, NEXT, OLD, ROLLED_BACK, UpgradeCase

FOLDER, HARD_LINK = tarfile.DIRTYPE, tarfile.LNKTYPE
LONGEST_NAME = "n" * 255
PATH_BEYOND_THE_LIMIT = "/".join(f"{number:03}" + "ö" * 20 for number in range(120))


@dataclasses.dataclass(frozen=True)
class Entry:
    name: str
    content: bytes = b""
    type: bytes = tarfile.REGTYPE
    mode: int = 0o755
    target: str = ""

    def add_to(self, archive):
        info = tarfile.TarInfo(self.name)
        info.size, info.mode, info.type = len(self.content), self.mode, self.type
        info.linkname = self.target
        archive.addfile(info, io.BytesIO(self.content))


CLIENT_ENTRIES = (
    Entry(EXECUTABLE, CLIENT.encode()),
    Entry(INFO, f"[Version]\nbuild_version={NEW}\n".encode()),
)
UNUSUAL = (
    Entry("one"),
    Entry("two", type=HARD_LINK, target="one"),
    Entry(LONGEST_NAME),
    Entry(PATH_BEYOND_THE_LIMIT + "/x"),
    Entry("read-only", mode=0o555, type=FOLDER),
    Entry("read-only/x", mode=0o444),
    Entry("closed", mode=0, type=FOLDER),
    Entry("Contents/Resources/help/tool.sh", type=FOLDER),
)


class Archives(UpgradeCase):
    def write_archive(self, *entries):
        """A package of these entries, in the place of the one that is there."""
        with tarfile.open(self.archive(), "w:gz", format=tarfile.PAX_FORMAT) as archive:
            for entry in entries:
                entry.add_to(archive)

    def assert_refused(self, message):
        """The old client is back, and it runs."""
        self.assert_logged(message, *ROLLED_BACK)
        self.assert_installed(self.package(OLD).nodes)
        self.wait_for_client()

    def assert_removable(self, **options):
        """The next upgrade leaves nothing else in the home, whatever was extracted before."""
        self.upgrade(NEXT, **options)
        self.assertCountEqual(os.listdir(self.app.parent), ["Lumivo.app", "log", "ui.pid"])
        self.assertEqual(os.listdir(self.home), [".Lumivo"])

    def test_unusual_packages_are_installed_and_can_be_removed(self):
        self.begin(user=ORDINARY_USER)
        self.write_archive(*UNUSUAL, *CLIENT_ENTRIES)
        self.run_launcher(user=ORDINARY_USER)
        self.assert_logged(INSTALLED)
        self.assert_removable(user=ORDINARY_USER)

    def test_packages_that_are_cut_short(self):
        whole, last_content = self.archive().read_bytes(), self.file_contents()[-1]
        ends = [len(whole) * tenths // 10 for tenths in range(10)]
        ends += [last_content.stop, len(whole) - 400, len(whole) - 22, len(whole) - 1]
        for end in ends:
            with self.subTest(end=end, size=len(whole)):
                self.begin()
                self.archive().write_bytes(whole[:end])
                self.run_launcher()
                self.assert_refused("[ERROR] extractor(%d): ")
                self.assert_removable()

    def test_packages_with_a_bit_changed(self):
        whole, contents = self.archive().read_bytes(), self.file_contents()
        with zipfile.ZipFile(self.archive()) as package:
            checksum = package.getinfo(EXECUTABLE).CRC.to_bytes(4, "little")
        contents.append(range(whole.rindex(checksum), whole.rindex(checksum) + len(checksum)))
        choice = random.Random(2)
        places = choice.sample(range(len(whole)), 300 if FULL else 10)
        places += [choice.choice(content) for content in contents]
        for place in places:
            with self.subTest(place=place, size=len(whole)):
                self.begin()
                damaged = bytearray(whole)
                damaged[place] ^= 1 << place % 8
                self.archive().write_bytes(damaged)
                self.run_launcher()
                # A zip has no sum over its names: there a bit may pass, until the next package.
                if any(place in content for content in contents):
                    self.assert_refused("[ERROR] extractor(%d): ")
                self.assert_removable()

    def test_no_package(self):
        self.archive().unlink()
        self.run_launcher()
        self.assert_refused("[ERROR] extractor(%d): archive_read_open_filename failed: '")
        self.assert_removable()
