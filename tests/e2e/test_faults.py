"""Whatever goes wrong, the launcher ends with 0, a complete client runs then, and the next start mends the rest."""

import errno
import io
import itertools
import os
import pathlib
import random
import signal
import subprocess
import tarfile
import time
import unittest
import zipfile

from support import CLIENT, EXECUTABLE, INFO, NOBODY, ROOT, Case, Packages, alive, tree, wait_for

OLD, NEW, NEXT = 3487, 3500, 3600
FULL = os.environ.get("LUMIVO_FULL") == "1"
USER = NOBODY if ROOT else None  # for what only a user meets whom modes stop
ERRORS = (errno.ENOSPC, errno.EDQUOT, errno.EIO, errno.EACCES, errno.EROFS, errno.ENAMETOOLONG)
INSTALLED = "[INFO] lumivo-service(%d): user installation is ready, removing backup app\n"
FAILED = "[ERROR] launcher(%d): Failed to upgrade package\n"
ROLLED_BACK = (
    "[ERROR] lumivo-service(%d): Failed to extract package, rollback to old installation\n",
    FAILED,
)


def cut(start, step):
    """Which steps of a sweep are tried."""
    return itertools.count(1) if FULL else itertools.count(start, step)


class Faults(Case):
    def begin(self, installed=OLD, package=NEW, user=USER, **options):
        super().begin(installed, package, user=user, **options)

    def contents(self):
        """Where the bytes of files lie in the package, which is a zip: first and last, in their order."""
        with zipfile.ZipFile(self.archive()) as file:
            items = [
                (
                    item.header_offset + 30 + len(item.orig_filename.encode("cp437")),
                    item.compress_size,
                )
                for item in file.infolist()
                if not item.external_attr >> 29 & 1
            ]
        return [(start, start + size) for start, size in items if size]

    def spoil(self, late=False):
        """Damages the executable in the package: nearly all is extracted before that shows; or all before it is refused."""
        if late:
            with zipfile.ZipFile(self.archive(), "a") as package:
                return package.writestr("../x", b"")
        data, start = self.archive().read_bytes(), self.contents()[-2][0]
        self.archive().write_bytes(data[:start] + bytes(64) + data[start + 64 :])

    def meet(self, functions, mode="", number=0, error=0, path=None):
        """Runs the launcher into a fault; its status. The calls that were looked for are in `calls` afterwards."""
        calls = self.folder / "calls"
        calls.write_text("")
        process = self.start(
            LD_PRELOAD=os.environ["LUMIVO_FAULT_PRELOAD"],
            FAULT_FUNCTION=functions,
            FAULT_MODE=mode,
            FAULT_NTH=number,
            FAULT_ERRNO=error,
            FAULT_PATH=path or self.folder,
            FAULT_COUNT_FILE=calls,
        )
        process.communicate(timeout=60)
        self.calls = calls.read_text().splitlines()
        return process.returncode

    def installed(self):
        """The build that is there to the last file; otherwise what lies there."""
        found = tree(self.app)
        return next(
            (build for build in (OLD, NEW, NEXT) if found == Packages.of(build, self.files)[1]),
            sorted(found),
        )

    def judge(self, *builds):
        """After a run: one of the builds is complete, and its client was started and runs alone."""
        self.assertIn(self.installed(), builds, self.log())
        self.wait_for_client()

    def upgrade(self, build, *results, spoiled=False, **options):
        """The next start, with a package, which may be damaged, and what can be the result: by default its build."""
        self.end_clients()
        self.put_package(build)
        if spoiled:
            self.spoil()
        self.run_launcher(**options)
        self.judge(*results or (build,))

    def check_mended(self):
        """A normal start, and then an upgrade, leave a whole client each, and the upgrade nothing else."""
        self.upgrade(NEW)
        self.upgrade(NEXT)
        self.assertEqual(
            {*os.listdir(self.app.parent), *self.temporary.glob("*.lock")},
            {"Lumivo.app", "log", "ui.pid"},
        )

    def sweep(
        self,
        functions,
        mode,
        numbers,
        installed=OLD,
        spoiled=False,
        then=False,
        path=None,
        errors=ERRORS,
    ):
        """Meets the fault at each of the numbers, until a run makes fewer calls; `then` meets a damaged package."""
        for number in numbers:
            error = errors[number % len(errors)]
            self.begin(installed)
            if spoiled:
                self.spoil(spoiled == "late")
            status = self.meet(functions, mode, number, error, path)
            if len(self.calls) < number:
                return self.assertGreater(number, 1, "no such call")
            with self.subTest(
                installed=installed,
                spoiled=spoiled,
                then=then,
                mode=mode,
                error=os.strerror(error),
                number=number,
                call=self.calls[number - 1],
            ):
                self.assertEqual(status, -signal.SIGKILL if mode == "kill" else 0)
                if installed and mode == "always" and self.installed() not in (OLD, NEW):
                    # Nothing could be moved any more; but the old client is not lost.
                    self.assertEqual(tree(self.app.parent / "Lumivo.app_tmp"), Packages.of(OLD)[1])
                elif installed and mode != "kill":
                    self.judge(OLD, *() if spoiled else (NEW,))
                    if self.installed() == OLD and self.log():
                        self.assert_logged(FAILED)
                if then:
                    self.upgrade(NEW, OLD, NEW, spoiled=True)
                self.check_mended()


class Killed(Faults):
    def test_at_every_step(self):
        self.sweep("changes", "kill", cut(1, 3))
        self.sweep("changes", "kill", cut(2, 3), then=True)
        self.sweep("changes", "kill", cut(3, 4), installed=None)
        self.sweep("changes", "kill", cut(4, 4), spoiled=True, then=True)

    def test_at_a_sample_of_steps_of_a_large_upgrade(self):
        self.files = 2000
        self.begin()
        self.meet("changes")
        numbers = random.Random(1).sample(range(1, len(self.calls)), 60 if FULL else 4)
        self.sweep("changes", "kill", numbers[::2])
        self.sweep("changes", "kill", numbers[1::2], then=True)

    def test_in_a_rollback_that_began_when_all_was_there(self):
        self.sweep("rename,unlinkat", "kill", cut(1, 2), spoiled="late")


class Failing(Faults):
    def test_a_change_that_fails_once(self):
        for errors in [(error,) for error in ERRORS] if FULL else [ERRORS]:
            self.sweep("changes", "once", cut(1, 3), errors=errors)
            self.sweep("changes", "once", cut(2, 3), errors=errors, spoiled=True)
            self.sweep("changes", "once", cut(1, 4), errors=errors, installed=None)
        self.sweep("write,read", "short", cut(1, 4))

    def test_changes_that_fail_from_then_on(self):
        for spoiled in (False, True):
            for functions in (
                "changes",
                "mkdir",
                "open-w,symlink",
                "write",
                "close-w",
                "rename",
                "unlinkat",
            ):
                self.sweep(functions, "always", cut(1, 5), spoiled=spoiled)

    def test_looks_that_fail(self):
        for functions in (
            "lstat,realpath",
            "fstatat,fstat",
            "open,fdopendir,readdir",
            "access,stat,read",
        ):
            for spoiled in (False, True):
                self.sweep(
                    functions,
                    "once",
                    cut(1, 5),
                    spoiled=spoiled,
                    path="/.Lumivo",
                    errors=(errno.EIO,),
                )
        for mode in ("once", "always"):
            self.sweep("open,read,fstat", mode, cut(1, 2), path="lumivo.lvp", errors=(errno.EIO,))


@unittest.skipUnless(ROOT, "needs root to mount file systems")
class Discs(Faults):
    def mount(self, *arguments):
        """As the command does it, with a folder for the last argument; it comes off at the end."""
        arguments[-1].mkdir(parents=True, exist_ok=True)
        if subprocess.run(["mount", *arguments], capture_output=True, check=False).returncode != 0:
            self.skipTest("mounting is not allowed here")
        self.addCleanup(subprocess.run, ["umount", "-l", arguments[-1]], check=True)
        self.addCleanup(self.end_clients)

    def test_a_disc_that_fills_at_any_point(self):
        disc = self.folder / "disc"
        self.mount("-t", "tmpfs", "-o", "size=1m", "none", disc)
        for left in range(0, 128 * 1024, 4096 if FULL else 16384):
            with self.subTest(left=left):
                self.begin(below=disc)
                (self.app.parent / "ui.pid").symlink_to(
                    self.folder / f"pid-{left}"
                )  # the client's file lies elsewhere
                (self.app.parent / "log").mkdir()
                free = os.statvfs(disc)
                (disc / "filler").write_bytes(bytes(max(0, free.f_bavail * free.f_frsize - left)))
                self.run_launcher()
                self.judge(OLD, NEW)
                (disc / "filler").unlink()
                self.check_mended()
                subprocess.run(["rm", "-r", self.home], check=True)

    def test_a_full_disc_of_the_log(self):
        self.mount("-t", "tmpfs", "-o", "size=4k", "none", self.app.parent / "log")
        (self.app.parent / "log/filler").write_bytes(bytes(4096))
        self.run_launcher()
        self.judge(NEW)

    def test_a_bundle_on_a_read_only_disc(self):
        image = self.folder / "image"
        self.mount("--bind", self.bundle, image)
        subprocess.run(["mount", "-o", "remount,bind,ro", image], check=True)
        self.run_launcher(bundle=image)
        self.judge(NEW)


def node(name, content=b"", **attributes):
    info = tarfile.TarInfo(name)
    for key, value in {"size": len(content), "mode": 0o755, **attributes}.items():
        setattr(info, key, value)
    return info, content


FOLDER, LINK, HARD = (
    {"type": kind} for kind in (tarfile.DIRTYPE, tarfile.SYMTYPE, tarfile.LNKTYPE)
)
SPARSE = {
    f"GNU.sparse.{key}": value
    for key, value in (("major", "1"), ("minor", "0"), ("name", "sparse"), ("realsize", "9000000"))
}
DEEP = "/".join(f"{number:03}" + "ö" * 20 for number in range(120))  # more than a path may have
# Whether the package is taken, and what comes in it before a small client; "out" is a folder beside the home.
ARCHIVES = {
    "through a link": (False, node("link", linkname="../../../out", **LINK), node("link/x")),
    "the bundle for a link": (False, node(".", linkname="../../out", **LINK), node("x")),
    "a name too long": (False, node("n" * 256)),
    "odd ones": (
        True,
        node("one"),
        node("two", linkname="one", **HARD),
        node("n" * 255),
        node(DEEP + "/x"),
        node("ro", mode=0o555, **FOLDER),
        node("ro/x", mode=0o444),
        node("closed", mode=0, **FOLDER),
        node("Contents/Resources/help/tool.sh", **FOLDER),
        node("sparse", b"1\n1048576\n1\n".ljust(512, b"\0") + b"x", pax_headers=SPARSE),
    ),
}


class Archives(Faults):
    def write(self, *extra):
        self.archive().unlink()
        with tarfile.open(self.archive(), "w:gz", format=tarfile.PAX_FORMAT) as archive:
            for info, content in (
                *extra,
                node(EXECUTABLE, CLIENT.encode()),
                node(INFO, f"[Version]\nbuild_version={NEW}\n".encode()),
            ):
                archive.addfile(info, io.BytesIO(content))

    def check(self, taken, line, user=None):
        """A package that is not taken leaves the old client; what was extracted can be removed again. None: either."""
        self.run_launcher(user=user)
        self.assertEqual(os.listdir(self.home), [".Lumivo"])
        if taken:
            self.assert_logged(INSTALLED)
        elif taken is False:
            self.assert_logged(line, *ROLLED_BACK)
            self.judge(OLD)
            self.assert_installed(Packages.of(OLD)[1])
        if self.archive().is_dir():
            self.archive().rmdir()
        self.upgrade(NEXT, user=user)
        self.assertEqual(set(os.listdir(self.app.parent)), {"Lumivo.app", "log", "ui.pid"})

    def test_hostile_and_odd_archives(self):
        out = self.folder / "out"
        out.mkdir()
        out.chmod(0o777)
        for name, (taken, *extra) in ARCHIVES.items():
            for broken in ((), (node("../x"),))[: 1 + taken]:
                with self.subTest(archive=name, broken=bool(broken)):
                    self.begin()
                    self.write(*extra, *broken)
                    self.check(
                        taken and not broken,
                        "[ERROR] extractor(%d): archive_read_extract2 failed: '",
                        USER,
                    )
                    self.assertEqual((os.listdir(out), out.stat().st_mode & 0o777), ([], 0o777))

    def test_damaged_packages(self):
        whole, contents, spread = self.archive().read_bytes(), self.contents(), random.Random(2)
        size = len(whole)
        bits = spread.sample(range(size), 300 if FULL else 10) + [
            spread.randrange(*content) for content in contents
        ]
        cuts = [size * tenth // 10 for tenth in range(10)] + [
            contents[-1][1],
            size - 400,
            size - 22,
            size - 1,
        ]
        for kind, place in [
            *(("bit", bit) for bit in bits),
            *(("cut", end) for end in cuts),
            ("none", 0),
            ("folder", 0),
        ]:
            with self.subTest(kind=kind, place=place, size=size):
                self.begin()
                rest = (
                    bytes([whole[place] ^ 1 << place % 8]) + whole[place + 1 :]
                    if kind == "bit"
                    else b""
                )
                self.archive().write_bytes(whole[:place] + rest)
                if kind in ("none", "folder"):
                    self.archive().unlink()
                if kind == "folder":
                    self.archive().mkdir()
                # A zip has no sum over its names: a bit there may pass, until the next package.
                passes = kind == "bit" and not any(
                    first <= place < last for first, last in contents
                )
                self.check(None if passes else False, "[ERROR] extractor(%d): ")


class Client(Faults):
    def test_however_the_client_ends(self):
        # What the client does, or whose the process id is by now, and how many seconds the stop takes.
        for kind, seconds in (
            ("ends", 0),
            ("linger", 2),
            ("ignore", 5),
            ("zombie", 5),
            ("gone", 0),
            *[("foreign", 5)] * ROOT,
        ):
            with self.subTest(client=kind):
                self.begin(package=OLD)
                (self.home / "client-mode").write_text(kind)
                self.run_launcher()
                pid = self.wait_for_client()
                if kind in ("zombie", "gone", "foreign"):
                    self.end_clients()
                    process = subprocess.Popen(["sleep", "60" if kind == "foreign" else "0"])
                    self.addCleanup(lambda process=process: (process.kill(), process.wait()))
                    pid = process.pid
                    wait_for(lambda: kind == "foreign" or not alive(pid), "its end")
                    if kind == "gone":
                        process.wait()
                    (self.home / ".Lumivo/ui.pid").write_text(f"pid={pid}\n")
                    subprocess.run(["chmod", "-R", "a+w", self.home / ".Lumivo"], check=True)
                self.put_package(NEW)
                started = time.monotonic()
                self.run_launcher(user=USER if kind == "foreign" else None)
                took, slack = time.monotonic() - started, 2 + os.getloadavg()[0]
                self.assertTrue(seconds <= took < seconds + slack, took)
                self.assertEqual(alive(pid), kind == "foreign")
                if alive(pid):
                    self.assert_logged(
                        "[ERROR] mac/mac-service(%d): kill: Operation not permitted (1)\n"
                    )
                self.judge(NEW)

    def test_a_pid_file_that_cannot_be_read(self):
        for put in (os.mkfifo, os.mkdir, lambda path: os.close(os.open(path, os.O_CREAT, 0))):
            self.begin()
            put(self.home / ".Lumivo/ui.pid")
            self.run_launcher(user=USER)
            self.assert_logged("[NOTE] mac/mac-service(%d): Failed to read pid file '", INSTALLED)
            self.assertEqual(self.installed(), NEW)


class Many(Faults):
    def ends(self, *processes):
        self.assertEqual(
            {process.communicate(timeout=60) and process.returncode for process in processes}, {0}
        )

    def test_twenty_starts_in_one_moment_and_the_end_of_the_session(self):
        self.files = 2000
        self.begin(package=OLD)
        (self.home / "client-mode").write_text(
            "ignore"
        )  # so that the first launcher has five seconds' work
        self.run_launcher()
        self.put_package(NEW)
        moment = time.monotonic()
        processes = [self.start() for _ in range(20)]
        wait_for(
            lambda: [process.poll() for process in processes].count(None) == 1, "nineteen leave"
        )
        self.assertLess(time.monotonic() - moment, 1 + os.getloadavg()[0])
        for process, number in itertools.product(processes, (signal.SIGTERM, signal.SIGHUP)):
            process.send_signal(number)
        wait_for(lambda: "extractor(" in self.log(), "the extraction")
        self.run_launcher()
        self.ends(*processes)
        self.assertEqual(
            [self.log().count(text) for text in ("extract package", "already launched")], [1, 20]
        )
        self.judge(NEW)

    def test_copies_at_different_places_take_turns(self):
        copy = self.copy_bundle("Copy.app")
        self.put_package(NEXT, copy)
        for _ in range(30 if FULL else 10):
            self.begin()
            self.ends(self.start(), self.start(bundle=copy))
            self.assert_installed(Packages.of(NEXT)[1])
            wait_for(self.clients, "a client")

    def test_what_lies_under_the_name_of_the_lock(self):
        self.meet("open-w", path=".lock")
        name, victim = pathlib.Path(self.calls[0]).name, self.folder / "victim"
        holder = f"{os.getpid()}\nlumivo-launcher\n{os.uname().nodename}\n".encode()
        rows = [
            b"",
            b"garbage\n",
            bytes(40),
            b"1",
            holder,
            b"99999999\nlumivo-launcher\nother-host\n",
            os.mkfifo,
            os.mkdir,
            lambda path: path.symlink_to(victim),
            lambda path: path.symlink_to("nowhere"),
            *[lambda path: (path.write_bytes(holder), os.chown(path, NOBODY, NOBODY))] * ROOT,
        ]
        victim.write_text("kept")
        for content in rows:
            with self.subTest(content=content):
                self.begin()
                lock = self.temporary / name
                content(lock) if callable(content) else lock.write_bytes(content)
                self.run_launcher()
                self.assertEqual(os.path.lexists(lock), callable(content))
                self.judge(NEW)
        self.assertEqual(victim.read_text(), "kept")
        self.begin()
        self.run_launcher(TMPDIR=self.folder / "missing")
        self.judge(NEW)

    def test_a_socket_guards_where_a_lock_cannot(self):
        (self.home / "client-mode").write_text("ignore")
        self.put_package(OLD)
        self.meet("open-w", path=".lock")
        (self.temporary / pathlib.Path(self.calls[0]).name).mkdir()
        self.put_package(NEW)
        for runs, crashes in ((2, True), (3, False)):
            first = self.start()
            wait_for(lambda: self.log().count("): running\n") == runs, "the first instance works")
            if crashes:
                first.kill()
                first.communicate()
        self.run_launcher()
        self.assert_logged("[DEBUG] main(%d): app has already launched, return\n")
        self.ends(first)
        self.judge(NEW)
        self.assertEqual(list(self.temporary.glob("*.socket")), [])


class Odd(Faults):
    def test_surroundings_of_an_upgrade_a_failed_one_and_another(self):
        limits = ("umask 077", "umask 000", "ulimit -n 40", "ulimit -f 16")
        rows = [
            *({"link": name} for name in ("", ".Lumivo", ".Lumivo/Lumivo.app")),
            {"LC_ALL": "C"},
            {"user": USER},
            {"PATH": None, "TMPDIR": None, "LC_ALL": None},
            *({"command": ["sh", "-c", f'{limit}; exec "$0"']} for limit in limits),
        ]
        for number, row in enumerate(rows):
            with self.subTest(row=dict(row)):
                self.begin()
                link, real = row.pop("link", None), self.folder / f"real-{number}"
                if link is not None:
                    (self.home / link).rename(real)
                    (self.home / link).symlink_to(real)
                self.upgrade(NEW, OLD, spoiled=True, **row)
                for build in (NEW, NEXT):
                    result = OLD if "-f" in str(row) else build  # the client exceeds that limit
                    self.upgrade(build, result, **row)
                self.assert_installed(Packages.of(result)[1])
                if link == ".Lumivo/Lumivo.app":
                    self.assertEqual(
                        tree(real),
                        Packages.of(OLD)[1],
                        "what the link led to is not the launcher's",
                    )
                elif link is not None:
                    self.assertTrue((self.home / link).is_symlink(), "the link stays")


if __name__ == "__main__":
    unittest.main(verbosity=2)
