"""Packages that are damaged, hostile or unusual."""

import dataclasses
import io
import os
import random
import tarfile

from support import CLIENT, EXECUTABLE, FULL, INFO, ORDINARY_USER
from upgrade import INSTALLED, NEW, NEXT, OLD, ROLLED_BACK, UpgradeCase

FOLDER, LINK, HARD_LINK = tarfile.DIRTYPE, tarfile.SYMTYPE, tarfile.LNKTYPE
REFUSED = "[ERROR] extractor(%d): archive_read_extract2 failed: '"
LONGEST_NAME = "n" * 255
PATH_BEYOND_THE_LIMIT = "/".join(f"{number:03}" + "ö" * 20 for number in range(120))
ONE_BYTE_AFTER_A_HOLE = {
    "GNU.sparse.major": "1",
    "GNU.sparse.minor": "0",
    "GNU.sparse.name": "sparse",
    "GNU.sparse.realsize": "9000000",
}
MAP_OF_THE_HOLE = b"1\n1048576\n1\n".ljust(512, b"\0")


@dataclasses.dataclass(frozen=True)
class Entry:
    name: str
    content: bytes = b""
    type: bytes = tarfile.REGTYPE
    mode: int = 0o755
    target: str = ""
    headers: dict = dataclasses.field(default_factory=dict)

    def add_to(self, archive):
        info = tarfile.TarInfo(self.name)
        info.size, info.mode, info.type = len(self.content), self.mode, self.type
        info.linkname, info.pax_headers = self.target, self.headers
        archive.addfile(info, io.BytesIO(self.content))


CLIENT_ENTRIES = (
    Entry(EXECUTABLE, CLIENT.encode()),
    Entry(INFO, f"[Version]\nbuild_version={NEW}\n".encode()),
)
# What comes before the client. "out" is a folder beside the home.
HOSTILE = {
    "through a link": (Entry("link", type=LINK, target="../../../out"), Entry("link/x")),
    "a link for the bundle": (Entry(".", type=LINK, target="../../out"), Entry("x")),
    "a name too long": (Entry(LONGEST_NAME + "n"),),
}
UNUSUAL = (
    Entry("one"),
    Entry("two", type=HARD_LINK, target="one"),
    Entry(LONGEST_NAME),
    Entry(PATH_BEYOND_THE_LIMIT + "/x"),
    Entry("read-only", mode=0o555, type=FOLDER),
    Entry("read-only/x", mode=0o444),
    Entry("closed", mode=0, type=FOLDER),
    Entry("Contents/Resources/help/tool.sh", type=FOLDER),
    Entry("sparse", MAP_OF_THE_HOLE + b"x", headers=ONE_BYTE_AFTER_A_HOLE),
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

    def test_hostile_packages_are_refused(self):
        out = self.folder / "out"
        out.mkdir(mode=0o700)
        for name, entries in HOSTILE.items():
            with self.subTest(name):
                self.begin()
                self.write_archive(*entries, *CLIENT_ENTRIES)
                self.run_launcher()
                self.assert_refused(REFUSED)
                self.assert_removable()
                self.assertEqual(os.listdir(out), [])
                self.assertEqual(oct(out.stat().st_mode & 0o777), oct(0o700))

    def test_unusual_packages_are_installed_and_can_be_removed(self):
        self.begin(user=ORDINARY_USER)
        self.write_archive(*UNUSUAL, *CLIENT_ENTRIES)
        self.run_launcher(user=ORDINARY_USER)
        self.assert_logged(INSTALLED)
        self.assert_removable(user=ORDINARY_USER)

    def test_a_part_of_an_unusual_package_can_be_removed(self):
        self.begin(user=ORDINARY_USER)
        self.write_archive(*UNUSUAL, Entry("../x"))
        self.run_launcher(user=ORDINARY_USER)
        self.assert_refused(REFUSED)
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

    def test_no_package_or_a_folder(self):
        self.archive().unlink()
        self.run_launcher()
        self.assert_refused("[ERROR] extractor(%d): ")
        self.begin(package=None)
        self.archive().mkdir()
        self.run_launcher()
        self.assert_refused("[ERROR] extractor(%d): ")
        self.archive().rmdir()
        self.assert_removable()
