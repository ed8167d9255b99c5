"""The packages that are measured, and the trees in them. They are kept between runs."""

import dataclasses
import hashlib
import os
import pathlib
import plistlib
import random
import shutil
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parent.parent
REALISTIC_BYTES, REALISTIC_ENTRIES = 250 << 20, 4000
# Of a package with N small files: Info.plist, the executable, INFO, and the folders above them.
ENTRIES_OF_EVERY_PACKAGE = 6
FILES_PER_FOLDER = 100


@dataclasses.dataclass
class Origin:
    """Where files of the realistic tree come from, and how far it may grow with them."""

    root: pathlib.Path
    pattern: str
    folder: str
    largest_file: int
    bytes_share: float
    entries_share: float


def origins():
    libraries = pathlib.Path("/usr/lib", os.uname().machine + "-linux-gnu")
    return (
        Origin(libraries, "*.so*", "Frameworks", 24 << 20, 0.8, 0.2),
        Origin(pathlib.Path("/usr/bin"), "*", "Resources/bin", 8 << 20, 0.9, 0.25),
        Origin(pathlib.Path("/usr/share"), "**/*", "Resources/share", 1 << 20, 1, 0.993),
    )


class RealisticTree:
    """Libraries with their links, executables, and small files in many folders."""

    def __init__(self, contents):
        self.contents, self.size, self.names = contents, 0, set()

    def fill(self):
        for origin in origins():
            for path in sorted(origin.root.glob(origin.pattern)):
                self.take(path, origin)

    def take(self, path, origin):
        """Copies one file or link into the tree, if it fits."""
        target = self.contents / origin.folder / path.relative_to(origin.root)
        link = os.readlink(path) if path.is_symlink() else ""
        if not self.can_be_packed(target, link) or not (link or path.is_file()):
            return
        size = 0 if link else path.stat().st_size
        folders = [parent for parent in target.parents if self.contents in parent.parents]
        names = {str(name).lower() for name in [target, *folders]}
        bytes_after, entries_after = self.size + size, len(self.names | names)
        if (
            size <= origin.largest_file
            and bytes_after <= REALISTIC_BYTES * origin.bytes_share
            and entries_after <= REALISTIC_ENTRIES * origin.entries_share
        ):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(path, target, follow_symlinks=False)
            self.size = bytes_after
            self.names |= names

    def can_be_packed(self, target, link):
        """No links that leave the tree, and no two names that differ in case alone."""
        leads_out = link and ("/" in link or not (target.parent / link).exists())
        name = str(target)
        return not leads_out and name.isascii() and name.lower() not in self.names


def fill_with_small_files(contents, count):
    """As many files of 100 to 1,000 random bytes as make a package of `count` entries."""
    numbers = random.Random(count)
    for index in range(count - ENTRIES_OF_EVERY_PACKAGE - count // FILES_PER_FOLDER):
        folder = contents / f"Resources/folder-{index // FILES_PER_FOLDER}"
        folder.mkdir(parents=True, exist_ok=True)
        data = numbers.randbytes(numbers.randrange(100, 1000))
        (folder / f"file-{index}.txt").write_bytes(data)


class Packages:
    """Packages by name, each a folder with lumivo.lvp and INFO."""

    def __init__(self, build):
        self.client = build / "bench/bench-client"
        self.reader = build / "packaging/lumivo-read-package"
        # What makes them is part of the name: a change there makes them anew.
        makers = [pathlib.Path(__file__), SOURCE / "packaging/make-package"]
        makers += sorted((SOURCE / "packaging").glob("*.py"))
        digest = hashlib.sha256(b"".join(maker.read_bytes() for maker in makers))
        self.folder = build / f"bench/packages-{digest.hexdigest()[:12]}"

    def realistic(self):
        return self.package("realistic", lambda contents: RealisticTree(contents).fill())

    def small(self, count):
        return self.package(
            f"small-{count}", lambda contents: fill_with_small_files(contents, count)
        )

    def package(self, name, fill):
        package = self.folder / name
        if not package.exists():
            self.remove_older()
            self.folder.mkdir(exist_ok=True)
            with tempfile.TemporaryDirectory(dir=self.folder) as work:
                app, made = pathlib.Path(work, "app"), pathlib.Path(work, "made")
                self.make_client(app / "Contents")
                fill(app / "Contents")
                self.pack(app, made)
                made.rename(package)
        return package

    def remove_older(self):
        for folder in self.folder.parent.glob("packages-*"):
            if folder != self.folder:
                shutil.rmtree(folder)

    def make_client(self, contents):
        """The executable, and the property list that names it."""
        (contents / "MacOS").mkdir(parents=True)
        shutil.copy(self.client, contents / "MacOS/lumivo-drive-ui")
        plist = {"CFBundleExecutable": "lumivo-drive-ui"}
        (contents / "Info.plist").write_bytes(plistlib.dumps(plist))

    def pack(self, app, made):
        command = [SOURCE / "packaging/make-package", app, made, "--build", "4000"]
        command += ["--reader", self.reader]
        subprocess.run(command, check=True, stdout=sys.stderr)

    @staticmethod
    def packed_by_others(package):
        """A folder with the package's tree as it is, and as other tools pack it."""
        others, work = package / "others", package / "unfinished"
        if not others.exists():
            shutil.rmtree(work, ignore_errors=True)
            tree = work / "tree"
            tree.mkdir(parents=True)
            for command in (
                ["bsdtar", "-xf", package / "lumivo.lvp"],
                ["zip", "-q", "-9", "-X", "-y", "-r", work / "tree.zip", "."],
                ["tar", "--zstd", "-cf", work / "tree.tar.zst", "."],
            ):
                subprocess.run(command, cwd=tree, check=True)
            work.rename(others)
        return others
