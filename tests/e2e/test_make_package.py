"""The package maker: what it refuses, what it leaves behind, and who can read its packages."""

import os
import pathlib
import plistlib
import shutil
import stat
import subprocess
import sys
import tempfile
import zipfile
import zlib
from typing import NamedTuple

from support import EXECUTABLE, INFO, MAKE_PACKAGE, READER, Case, tree

sys.path.insert(0, os.path.dirname(MAKE_PACKAGE))
from zip_writer import DEFLATED, STORED, ZSTANDARD, Member, ZipWriter  # noqa: E402

PLIST, RESOURCES = "Contents/Info.plist", "Contents/Resources/"
SIGNATURE = "Contents/_CodeSignature/CodeResources"


def file(content=b"", mode=0o644):
    def make(path):
        path.write_bytes(content)
        path.chmod(mode)

    return make


def link(target):
    return lambda path: path.symlink_to(target)


def plist(executable, form=plistlib.FMT_XML):
    return file(plistlib.dumps({"CFBundleExecutable": executable}, fmt=form))


# The kinds of entries that clients have.
CLIENT = {
    EXECUTABLE: file(b"#!" + os.urandom(300_000), 0o755),
    PLIST: plist("lumivo-drive-ui", plistlib.FMT_BINARY),
    "-": file(b"3"),
    RESOURCES + "- *[x] '\"": file(b"2"),
    RESOURCES + "a-b": file(),
    RESOURCES + "a/b": file(b"1"),
    RESOURCES + "ü.txt": file(bytes(range(256)) * 4000),
    RESOURCES + "o\u0308.txt": file(b"decomposed"),
    RESOURCES + "fills a reader's buffer": file(bytes(1 << 18)),
    RESOURCES + "empty": os.mkdir,
    RESOURCES + "loop": link("loop"),
    RESOURCES + "run me": file(b"#!", 0o755),
    RESOURCES + "link": link("../MacOS/../Resources/ü.txt"),
    RESOURCES + "dangling": link("nowhere"),
    RESOURCES + "up": link(".."),
}


def put(path, make):
    """Makes a node of the tree, in place of what is there."""
    path.parent.mkdir(parents=True, exist_ok=True)
    path.unlink(missing_ok=True)
    make(path)


def versions(major="1", minor="0", icon_overlay="1"):
    """What INFO says of the packages here."""
    return (
        f"[Version]\nmajor_version={major}\nminor_version={minor}\nbuild_version=3487\n"
        f"icon_overlay_version={icon_overlay}\n"
    ).encode()


def make_app(folder, nodes=None):
    app = folder / "Client.app"
    for name, make in (nodes or CLIENT).items():
        put(app / name, make)
    return app


def members(package):
    """What Python's own reader lists, by name: no flag says that names are UTF-8, but they are."""
    found = zipfile.ZipFile(package).infolist()
    return {member.filename.encode("cp437").decode().rstrip("/"): member for member in found}


def listed_by_7z(package):
    """Name -> mode, size and checksum."""
    command = ["7z", "l", "-slt", "-ba", package]
    text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    found = {}
    for block in text.strip().split("\n\n"):
        fields = dict(line.partition(" = ")[::2] for line in block.splitlines())
        mode = fields["Attributes"].split()[-1]
        found[fields["Path"]] = (mode, int(fields["Size"]), int(fields["CRC"] or "0", 16))
    return found


class MakePackage(Case):
    def setUp(self):
        self.addCleanup(os.umask, os.umask(0o022))
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="lumivo-e2e-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.package = self.folder / "out/lumivo.lvp"

    def make(self, app, *more, out="out", status=(0,), **environment):
        command = [MAKE_PACKAGE, app, self.folder / out, "--build", "3487", "--reader", READER]
        environment = {**os.environ, **environment}
        done = subprocess.run(
            [*command, *more], capture_output=True, text=True, env=environment, timeout=60
        )
        self.assertIn(done.returncode, status, done)
        return done

    def refused(self, app, reason, *more, out="out", **environment):
        """Refused for that reason, with nothing left behind and nothing lost."""
        with self.subTest(reason, more=more):
            nodes, package = sorted(self.folder.rglob("*")), tree(self.folder / out)
            done = self.make(app, *more, out=out, status=(1,), **environment)
            self.assertRegex(done.stderr, reason)
            self.assertEqual(sorted(self.folder.rglob("*")), nodes)
            self.assert_same_tree(tree(self.folder / out), package)

    def test_trees_that_would_not_survive_are_refused(self):
        class Row(NamedTuple):
            reason: str
            path: str
            make: object

        rows = (
            Row("there is no executable", EXECUTABLE, link("../Resources/run me")),
            Row("is not executable", EXECUTABLE, file(b"data")),
            Row("l': .*'/etc/passwd' leaves", RESOURCES + "l", link("/etc/passwd")),
            Row("leaves", "l", link(RESOURCES + "up/../../x")),
            Row("leaves", RESOURCES + "l", link("../../../Client.app/back")),
            Row("differ only by case", RESOURCES + "info", file()),
            Row("Unicode form", RESOURCES + "ö.txt", file()),
            Row("UTF-8", "\udcff", file()),
            Row("control character", RESOURCES + "a\nb", file()),
            Row("backslash", RESOURCES + "c\\d", file()),
            Row("is a device", "pipe", os.mkfifo),
            Row("not a plain file", INFO, link("a/b")),
            Row("INFO disagrees: 'build_version=3488'", INFO, file(b"build_version = 3488\n")),
            Row("no plain file 'Contents/Info.plist'", PLIST, link("../-")),
            Row("Info.plist' cannot be read", PLIST, file(b"<plist><dict>")),
            Row("names 'launcher' as CFBundleExecutable", PLIST, plist("launcher")),
            Row("signed but brings no '.*/INFO'", SIGNATURE, file()),
        )
        for number, row in enumerate(rows):
            app = make_app(self.folder / str(number))
            put(app / row.path, row.make)
            self.refused(app, row.reason)

    def test_signatures_in_extended_attributes_are_refused(self):
        app = make_app(self.folder)
        try:
            os.setxattr(app / "-", "user.com.apple.cs.CodeSignature", b"")
        except OSError as error:
            self.skipTest(f"no extended attributes here: {error}")
        self.refused(app, "'-' keeps a signature in the attribute")

    def test_arguments_that_are_refused(self):
        app = make_app(self.folder)
        put(self.folder / "old/INFO/folder", file())
        put(self.folder / "without/zstandard.py", file(b"raise ImportError"))
        for text in ("", "a,b", " 1", "1;2", "1\\x", "1%20", "ä", "1\n"):
            self.refused(app, "minor_version", "--minor", text)
        for text in ("", "0", "12a", "-5", "+5", "2147483648"):
            self.refused(app, "build_version", "--build", text)
        self.refused(app, "no such reader", "--reader", "/none")
        self.refused(app, "in the way", out="old")
        self.refused(app, "lies in the tree", out="Client.app/out")
        self.refused(app, "EPOCH 'today'", SOURCE_DATE_EPOCH="today")
        self.refused(app, "install its module", PYTHONPATH=str(self.folder / "without"))

    def test_what_reads_back_differently_is_refused_and_the_old_package_stays(self):
        app, reader = make_app(self.folder), self.folder / "reader"
        self.make(app)
        for spoiler in (
            "rm a-b",
            "chmod -x run*",
            "echo >> ../MacOS/lumivo-drive-ui",
            "touch extra",
            "ln -sfn b link",
            "rmdir empty",
            "exit 3",
            "kill -TERM $PPID; exec sleep 9",
        ):
            script = f'#!/bin/sh\n"{READER}" "$1" "$2" && cd "$2/{RESOURCES}"\n{spoiler}\n'
            put(reader, file(script.encode(), 0o755))
            reason = "read back|interrupted by SIGTERM"
            self.refused(app, reason, "--build", "3500", "--reader", reader)

    def test_a_signed_client_keeps_every_byte_and_its_signature_is_verified(self):
        own = b"; ours\r\n" + versions().replace(b"\n", b"\r\n")
        app = make_app(self.folder, {**CLIENT, SIGNATURE: file(b"seal"), INFO: file(own)})
        told = self.folder / "told"
        script = f'#!/bin/sh\necho "$1 $2 $3" >>"{told}"\ngrep -q seal "$4/{SIGNATURE}"\n'
        put(self.folder / "tools/codesign", file(script.encode(), 0o755))
        told.touch()
        path = f"{self.folder}/tools:{os.environ['PATH']}"

        self.make(app, PATH=path)
        self.assertEqual(told.read_text(), "--verify --deep --strict\n")
        subprocess.run(["bsdtar", "-xf", self.package, "-C", self.folder, INFO], check=True)
        self.assertEqual((self.folder / INFO).read_bytes(), own)

        put(app / SIGNATURE, file(b"broken"))
        self.refused(app, "signature is not valid", PATH=path)
        put(app / INFO, file(b"[Version]\nbuild_version=3487\n"))
        self.refused(app, "does not say just this")

    def test_other_tools_read_and_list_the_same_tree(self):
        class Row(NamedTuple):
            kind: str
            method: int
            extract: list

        rows = (
            Row("zip", ZSTANDARD, ["bsdtar", "-xf", self.package, "-C"]),
            Row("zip-deflate", DEFLATED, ["unzip", "-q", self.package, "-d"]),
        )
        app, expected = make_app(self.folder), {}
        put(app / INFO, file(versions()))
        for path in app.rglob("*"):
            data = os.fsencode(os.readlink(path)) if path.is_symlink() else b""
            if path.is_file() and not path.is_symlink():
                data = path.read_bytes()
            mode = stat.filemode(path.lstat().st_mode)
            expected[str(path.relative_to(app))] = (mode, len(data), zlib.crc32(data))

        for row in rows:
            self.make(app, "--format", row.kind)
            into = self.folder / row.kind
            into.mkdir()
            subprocess.run([*row.extract, into], check=True)
            self.assert_same_tree(tree(into), tree(app))
            found = members(self.package)
            listed = {
                name: (stat.filemode(member.external_attr >> 16), member.file_size, member.CRC)
                for name, member in found.items()
            }
            self.assertEqual(listed, expected)
            self.assertEqual(listed_by_7z(self.package), expected)
            self.assertEqual(found[RESOURCES + "ü.txt"].compress_type, row.method)
            # Random bytes do not shrink.
            self.assertEqual(found[EXECUTABLE].compress_type, STORED)

    def test_the_executable_and_the_versions_come_last_and_nothing_tells_when_or_by_whom(self):
        app = make_app(self.folder)
        put(app / INFO, file(b"; the client's own\r\n[Version]\r\nbuild_version = 3487\r\n"))
        more = ["--major", "2", "--minor", "1.5", "--icon-overlay", "7"]
        self.make(app, *more, SOURCE_DATE_EPOCH="1000000000")
        info = (self.folder / "out/INFO").read_bytes()
        self.assertEqual(info, versions("2", "1.5", "7"))
        found = members(self.package)
        self.assertEqual(list(found)[-2:], [EXECUTABLE, INFO])
        # No flag for names, whose bytes then reach the disk in every locale.
        self.assertEqual({member.flag_bits for member in found.values()}, {0})
        self.assertEqual({member.extra for member in found.values()}, {b""})
        self.assertEqual({member.date_time for member in found.values()}, {(2001, 9, 9, 1, 46, 40)})

    def test_bytes_keep_pace_with_entries_and_folders_come_before_their_contents(self):
        nodes = {path: CLIENT[path] for path in (EXECUTABLE, PLIST)}
        for number in range(20):
            nodes[f"Contents/Z/{number}.so"] = file(bytes(50_000 * number))
        for number in range(400):
            nodes[f"Contents/A/{number // 20}/{number}"] = file(bytes(10 * number))
        self.make(make_app(self.folder, nodes))

        sizes = {name: member.file_size for name, member in members(self.package).items()}
        total, written, seen, distance = sum(sizes.values()), 0, {""}, 0
        for number, (name, size) in enumerate(sizes.items()):
            self.assertIn(os.path.dirname(name), seen)
            seen.add(name)
            distance = max(distance, abs(written / total - number / len(sizes)))
            written += size
        unavoidable = (max(sizes.values()) / 2 + sizes[EXECUTABLE]) / total
        self.assertLess(distance, unavoidable + 0.01)

    def test_the_same_tree_gives_the_same_bytes_anywhere_on_another_day(self):
        one = make_app(self.folder / "1")
        two = make_app(self.folder / "2", {path: CLIENT[path] for path in reversed(CLIENT)})
        for path in two.rglob("*"):
            os.utime(path, (1e9, 1e9), follow_symlinks=False)
            if path.is_file() and not path.is_symlink():
                path.chmod(path.stat().st_mode & 0o700)
        changed = "import os, time\ntime.time = lambda: 2e9\nos.sched_getaffinity = lambda _: {0}\n"
        put(self.folder / "sitecustomize.py", file(changed.encode()))
        strange = {"TZ": "Asia/Tokyo", "LC_ALL": "C", "PYTHONPATH": str(self.folder)}
        for kind in ("zip", "zip-deflate", "tar.gz", "tar.xz"):
            self.make(one, "--format", kind, out=f"1/{kind}")
            self.make(two, "--format", kind, out=f"2/{kind}", **strange)
            self.assert_same_tree(tree(one.parent / kind), tree(two.parent / kind))

    def test_sizes_and_counts_beyond_the_old_fields_reach_other_tools(self):
        mode, size, package = stat.S_IFREG | 0o644, 5 << 30, self.folder / "large.zip"
        small = [str(number) for number in range(66_000)]
        with open(package, "wb") as archive:
            writer = ZipWriter(archive, 10**9)
            writer.add(Member(b"shrunk", mode, ZSTANDARD, 2, size, 4), [b"data"])
            for name in small:
                text = name.encode()
                length = len(text)
                writer.add(Member(text, mode, STORED, zlib.crc32(text), length, length), [text])
            writer.close()

        expected = {"shrunk": size, **{name: len(name) for name in small}}
        with zipfile.ZipFile(package) as found:
            self.assertEqual({m.filename: m.file_size for m in found.infolist()}, expected)
            self.assertEqual(found.read("65999"), b"65999")
        listed = subprocess.run(["bsdtar", "-tvf", package], capture_output=True, text=True)
        lines = [line.split() for line in listed.stdout.splitlines()]
        self.assertEqual({line[-1]: int(line[4]) for line in lines}, expected)
