"""The package maker: what it refuses, what it leaves behind, and whether its packages are what the launcher wants."""

import os
import subprocess
import unittest
import zipfile

from support import EXECUTABLE, INFO, MAKE_PACKAGE, READER, ROOT, Case, tree

RES = "Contents/Resources/"
# The kinds of entries that clients have, each as put() takes it.
CLIENT = {
    EXECUTABLE: b"#!" + os.urandom(300_000),
    "-": b"3",
    RES + "- *[x] '\"": b"2",
    RES + "a-b": b"",
    RES + "a/b": b"1",
    RES + "ü.txt": b"composed",
    RES + "o\u0308.txt": b"decomposed",
    RES + "empty": os.mkdir,
    RES + "loop": "loop",
    RES + "run me": b"#!",
    RES + "link": "../MacOS/../Resources/ü.txt",
    RES + "dangling": "nowhere",
    RES + "up": "..",
}


def put(path, what, mode=0o755):
    """Replaces a node by a file of these bytes (a script can be executed), a link, or what a function makes there."""
    path.parent.mkdir(parents=True, exist_ok=True)
    path.unlink(missing_ok=True)
    if isinstance(what, str):
        path.symlink_to(what)
    elif callable(what):
        what(path)
    else:
        path.write_bytes(what)
        path.chmod(mode if what[:2] == b"#!" else mode & 0o666)


def make_app(folder, order=1, mode=0o755):
    for name in list(CLIENT)[::order]:
        put(folder / "Client.app" / name, CLIENT[name], mode)
    return folder / "Client.app"


class MakePackage(Case):
    def make(self, app, *more, out="out", status=(0,), **environment):
        command = [
            MAKE_PACKAGE,
            app,
            self.folder / out,
            "--build",
            "3487",
            "--reader",
            READER,
            *more,
        ]
        done = subprocess.run(
            command, capture_output=True, text=True, env={**os.environ, **environment}, timeout=60
        )
        self.assertIn(done.returncode, status, done)
        return done

    def refused(self, app, message, *more, out="out", **environment):
        """Refused for that reason, with nothing left behind and nothing lost."""
        with self.subTest(message, more=more):
            nodes, package = sorted(self.folder.rglob("*")), tree(self.folder / out)
            done = self.make(app, *more, out=out, status=(1,), **environment)
            self.assertRegex(done.stderr, message)
            self.assertEqual(sorted(self.folder.rglob("*")), nodes)
            self.assert_same_tree(tree(self.folder / out), package)

    def test_trees_that_are_refused(self):
        rows = [
            ("there is no executable", EXECUTABLE, "../Resources/run me"),
            ("is not executable", EXECUTABLE, b"data"),
            ("l': .*'/etc/passwd' leaves", RES + "l", "/etc/passwd"),
            ("leaves", "l", RES + "up/../../x"),
            ("leaves", RES + "l", "../../../Client.app/back"),
            ("differ only by case", RES + "info", b""),
            ("Unicode form", RES + "ö.txt", b""),
            ("UTF-8", "\udcff", b""),
            ("control character", RES + "a\nb", b""),
            ("backslash", RES + "c\\d", b""),
            ("is a device", "pipe", os.mkfifo),
            ("not a plain file", INFO, "a/b"),
            (
                "INFO disagrees: 'build_version=3488'",
                INFO,
                b"; ours\n[Version]\nbuild_version = 3488\n",
            ),
        ]
        for number, (message, name, what) in enumerate(rows):
            app = make_app(self.folder / str(number))
            put(app / name, what)
            self.refused(app, message)

    def test_arguments_that_are_refused(self):
        app = make_app(self.folder)
        put(self.folder / "old/INFO/folder", b"")
        for text in ("", "a,b", " 1", "1;2", "1\\x", "1%20", "ä", "1\n"):
            self.refused(app, "minor_version", "--minor", text)
        for text in ("", "0", "12a", "-5", "+5", "2147483648"):
            self.refused(app, "build_version", "--build", text)
        self.refused(app, "no such reader", "--reader", "/none")
        self.refused(app, "in the way", out="old")
        self.refused(app, "lies in the tree", out="Client.app/out")
        self.refused(app, "EPOCH 'today'", SOURCE_DATE_EPOCH="today")

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
            put(reader, f'#!/bin/sh\n"{READER}" "$1" "$2" && cd "$2/{RES}"\n{spoiler}\n'.encode())
            self.refused(
                app, "read back|interrupted by SIGTERM", "--build", "3500", "--reader", reader
            )

    def test_the_package_holds_the_tree_and_ends_with_the_executable_and_the_versions(self):
        app = make_app(self.folder)
        put(app / INFO, b"; the client's own\r\n[Version]\r\nbuild_version = 3487\r\n")
        self.make(
            app,
            "--major",
            "2",
            "--minor",
            "1.5",
            "--icon-overlay",
            "7",
            SOURCE_DATE_EPOCH="1000000000",
        )
        info = b"[Version]\nmajor_version=2\nminor_version=1.5\nbuild_version=3487\nicon_overlay_version=7\n"
        self.assertEqual((self.folder / "out/INFO").read_bytes(), info)
        entries = zipfile.ZipFile(self.folder / "out/lumivo.lvp").infolist()
        names = [entry.filename.encode("cp437").decode().rstrip("/") for entry in entries]
        self.assertEqual(names, sorted(set(names) - {EXECUTABLE, INFO}) + [EXECUTABLE, INFO])
        # No flag for names, whose bytes then reach the disc in every locale; one time for all, nothing about owners.
        self.assertEqual(
            {(entry.flag_bits & 0x800, entry.extra, entry.date_time) for entry in entries},
            {(0, b"", (2001, 9, 9, 1, 46, 40))},
        )

    def test_the_same_tree_gives_the_same_bytes_on_another_day(self):
        one, two = make_app(self.folder / "1"), make_app(self.folder / "2", order=-1, mode=0o700)
        for path in two.rglob("*"):
            os.utime(path, (1e9, 1e9), follow_symlinks=False)
        put(self.folder / "sitecustomize.py", b"import time\ntime.time = lambda: 2e9\n")
        strange = {
            "TZ": "Asia/Tokyo",
            "LC_ALL": "C",
            "ZIPOPT": "-0",
            "PYTHONPATH": str(self.folder),
        }
        for kind in ("zip", "tar.gz", "tar.xz"):
            for app, environment in ((one, {}), (two, strange)):
                self.make(app, "--format", kind, out=app.parent / kind, **environment)
            self.assert_same_tree(tree(one.parent / kind), tree(two.parent / kind))

    @unittest.skipUnless(ROOT, "only root can mount a small disc")
    def test_a_full_disc_leaves_nothing_wherever_it_strikes(self):
        app, disc, told = make_app(self.folder), self.temporary, set()
        for kilobytes in range(64, 1600, 96):
            subprocess.run(
                ["mount", "-t", "tmpfs", "-o", f"size={kilobytes}k", "tmpfs", disc], check=True
            )
            self.addCleanup(subprocess.run, ["umount", disc], check=True)
            done = self.make(app, out=disc / "out", status=(0, 1))
            self.assertEqual(os.listdir(disc), [] if done.returncode else ["out"], done)
            told.add(done.stderr.split("'")[0].split(" (")[0])
        self.assertTrue("" in told and len(told) > 3, told)


if __name__ == "__main__":
    unittest.main()
