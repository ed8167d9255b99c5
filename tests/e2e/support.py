"""What the end-to-end tests share: bundles, homes, packages, and questions to ask afterwards."""

import dataclasses
import functools
import os
import pathlib
import re
import shutil
import signal
import stat
import subprocess
import tempfile
import time
import unittest

BUNDLE = pathlib.Path(os.environ["LUMIVO_BUNDLE"])
MAKE_PACKAGE, READER = os.environ["LUMIVO_MAKE_PACKAGE"], os.environ["LUMIVO_READER"]
EXECUTABLE, INFO = "Contents/MacOS/lumivo-drive-ui", "Contents/Resources/INFO"
LAUNCHER = "Contents/MacOS/lumivo-launcher"
ALL_LEVELS = "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n"
FULL = os.environ.get("LUMIVO_FULL") == "1"
ROOT, NOBODY = os.geteuid() == 0, 65534
# For what only a user meets whom file modes stop; None is the user who runs the tests.
ORDINARY_USER = NOBODY if ROOT else None
PROPERTIES = (
    "<plist><dict><key>CFBundleExecutable</key><string>lumivo-drive-ui</string></dict></plist>\n"
)
# The comment makes the client as large as a program.
CLIENT = pathlib.Path(__file__).with_name("client.sh").read_text() + "#" * 100_000
PAUSE_SECONDS = 0.02
MEMORY, ENOUGH_BYTES = "/dev/shm", 1 << 30


def wait_for(condition, what, seconds=20):
    """The first true result of `condition`, asked again and again; fails when time is over."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(PAUSE_SECONDS)
    raise AssertionError(f"timed out after {seconds} seconds: {what}")


def alive(pid):
    """Whether the process runs: a zombie does not."""
    try:
        after_name = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1]
    except OSError:
        return False
    return after_name.split()[0] not in ("Z", "X")


def tree(folder):
    """Every node below `folder`: its kind with its bytes and execute bit, or its link text."""
    found = {}
    for path in sorted(folder.rglob("*")):
        info = path.lstat()
        name = os.fsencode(path.relative_to(folder))
        if stat.S_ISLNK(info.st_mode):
            found[name] = ("link", os.readlink(path))
        elif stat.S_ISDIR(info.st_mode):
            found[name] = ("folder",)
        else:
            found[name] = ("file", path.read_bytes(), bool(info.st_mode & stat.S_IXUSR))
    return found


def choose_temporary_folder():
    """Memory, where there is enough: the launcher forces to the disk what it writes."""
    if not os.access(MEMORY, os.W_OK):
        return
    space = os.statvfs(MEMORY)
    if space.f_bavail * space.f_frsize >= ENOUGH_BYTES and not space.f_flag & os.ST_NOEXEC:
        tempfile.tempdir = MEMORY


choose_temporary_folder()
# For what is made once and never changed; it is removed when the program ends.
SHARED_FOLDER = tempfile.TemporaryDirectory(prefix="lumivo-shared-")
SHARED = pathlib.Path(SHARED_FOLDER.name).resolve()
SHARED.chmod(0o755)


def link_or_copy(source, destination):
    """A second name for the file, or a copy where it would be on another file system."""
    try:
        os.link(source, destination)
    except OSError:
        shutil.copy2(source, destination)


def change_owner(folder, user):
    """Gives the folder and all that lies below to the user and the group of that number."""
    for path in (folder, *folder.rglob("*")):
        os.chown(path, user, user, follow_symlinks=False)


@functools.lru_cache
def shared_bundle():
    """The staged bundle, where every user can reach it. Nobody changes its files in place."""
    bundle = SHARED / "Lumivo.app"
    shutil.copytree(BUNDLE, bundle, symlinks=True, copy_function=link_or_copy)
    return bundle


def make_client(app, build, files):
    """A client with the kinds of entries that real ones have.

    With `files` there are that many more, in folders of fifty: every 25th a link, every tenth
    executable.
    """
    resources = app / "Contents/Resources"
    (resources / "help").mkdir(parents=True)
    (app / "Contents/Info.plist").write_text(PROPERTIES)
    (resources / "help/tool.sh").write_text("#!/bin/sh\n")
    (resources / "help/tool.sh").chmod(0o755)
    (resources / "help/latest").symlink_to("../Größe 図/é.txt")
    (resources / "Größe 図").mkdir()
    (resources / "Größe 図/é.txt").write_text("accents\n")
    (resources / f"only in {build}.txt").write_text(f"build {build}\n")
    for number in range(files):
        path = resources / f"many/ö{number // 50}/{number}"
        path.parent.mkdir(parents=True, exist_ok=True)
        if number % 25 == 0:
            path.symlink_to("../ö0/1")
            continue
        path.write_text(f"{build} {number}\n" * (number % 30))
        path.chmod(0o755 if number % 10 == 1 else 0o644)
    (app / EXECUTABLE).parent.mkdir()
    (app / EXECUTABLE).write_text(CLIENT)
    (app / EXECUTABLE).chmod(0o755)


@dataclasses.dataclass(frozen=True)
class Package:
    """A package, the version file that goes with it, and the client that both were made of."""

    archive: pathlib.Path
    info: pathlib.Path
    app: pathlib.Path  # as it is after an installation
    nodes: dict  # of `app`


@functools.lru_cache(maxsize=None)
def package_of(build, files):
    """The package of a client as make_client() makes it."""
    folder = SHARED / f"{build}-{files}"
    app = folder / "Lumivo.app"
    make_client(app, build, files)
    subprocess.run(
        [MAKE_PACKAGE, app, folder, "--build", str(build), "--reader", READER],
        check=True,
        stdout=subprocess.DEVNULL,
    )
    shutil.copy(folder / "INFO", app / INFO)
    return Package(folder / "lumivo.lvp", folder / "INFO", app, tree(app))


class Case(unittest.TestCase):
    """A test with a bundle, a home and a temporary folder of its own. It ends all its clients."""

    files = 0  # that clients have in addition
    home = pathlib.Path("/nowhere")

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="lumivo-e2e-")).resolve()
        self.folder.chmod(0o755)
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.addCleanup(self.end_clients)
        self.bundle = self.copy_bundle("Lumivo.app")
        self.begin()

    def begin(self, installed=None, package=None, below=None, user=None):
        """A fresh home, with a complete client that does not run, and the package in the bundle."""
        self.end_clients()
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="home-", dir=below or self.folder))
        self.temporary = pathlib.Path(tempfile.mkdtemp(prefix="tmp-", dir=self.folder))
        self.app = self.home / ".Lumivo/Lumivo.app"
        if installed:
            shutil.copytree(self.package(installed).app, self.app, symlinks=True)
        if package:
            self.put_package(package)
        if user is not None:
            change_owner(self.home, user)
            change_owner(self.temporary, user)

    def copy_bundle(self, name):
        """A bundle without a package and with all log levels; its other files are shared."""
        bundle = self.folder / name
        own = shutil.ignore_patterns("lumivo.lvp", "INFO", "launcher.debug")
        shutil.copytree(
            shared_bundle(), bundle, symlinks=True, ignore=own, copy_function=link_or_copy
        )
        (bundle / "Contents/Resources/package").mkdir(exist_ok=True)
        (bundle / "log").mkdir(exist_ok=True)
        (bundle / "log/launcher.debug").write_text(ALL_LEVELS)
        return bundle

    def package(self, build):
        return package_of(build, self.files)

    def put_package(self, build, bundle=None):
        """Gives the bundle the package of `build`; returns the complete tree that it installs."""
        resources = (bundle or self.bundle) / "Contents/Resources"
        package = self.package(build)
        shutil.copy(package.archive, resources / "package")
        shutil.copy(package.info, resources)
        return package.nodes

    def archive(self):
        return self.bundle / "Contents/Resources/package/lumivo.lvp"

    def pid_file(self):
        return self.home / ".Lumivo/ui.pid"

    def set_client_mode(self, mode):
        """How the clients that are started from now on take the request to end: see client.sh."""
        (self.home / "client-mode").write_text(mode + "\n")

    def environment(self, **changes):
        """What a session sets, and the changes; None takes a variable away."""
        variables = {
            "HOME": self.home,
            "TMPDIR": self.temporary,
            "PATH": os.environ["PATH"],
            "QT_QPA_PLATFORM": "offscreen",
            "LC_ALL": "C.UTF-8",
            **changes,
        }
        return {name: str(value) for name, value in variables.items() if value is not None}

    def start(self, bundle=None, command=(), user=None, **changes):
        """Starts the launcher; its output is collected. `command` goes in front of it."""
        as_user = {"user": user, "group": user, "extra_groups": []} if user is not None else {}
        return subprocess.Popen(
            [*command, str((bundle or self.bundle) / LAUNCHER)],
            env=self.environment(**changes),
            cwd=self.folder,
            text=True,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            **as_user,
        )

    def run_launcher(self, **options):
        """Runs the launcher to its end, which has to be a good one; returns what it printed."""
        process = self.start(**options)
        output, errors = process.communicate(timeout=60)
        self.assertEqual(process.returncode, 0, errors)
        self.assertIn("lib path = '", output)
        return output, errors

    def log(self):
        path = self.home / ".Lumivo/log/launcher.log"
        return path.read_text(errors="replace") if path.exists() else ""

    def clients(self):
        """The process IDs of the clients that run from this test's folder."""
        found = []
        for process in os.listdir("/proc"):
            if not process.isdigit():
                continue
            try:
                line = pathlib.Path(f"/proc/{process}/cmdline").read_bytes()
            except OSError:
                continue  # it has just ended
            if line.startswith(b"/bin/sh\0%b/" % os.fsencode(self.folder)):
                found.append(int(process))
        return found

    def wait_for_client(self, *others):
        """The ID of the one client that runs but for the others, once its pid file is written."""

        def client():
            running = [pid for pid in self.clients() if pid not in others]
            named = self.pid_file().read_text() if self.pid_file().exists() else ""
            return running if [f"pid={pid}\n" for pid in running] == [named] else None

        return wait_for(client, f"a client that runs alone; log:\n{self.log()}")[0]

    def end_clients(self):
        """Ends the clients and their pid file. One that was never waited for may be overlooked."""
        while clients := self.clients():
            for pid in clients:
                try:
                    os.kill(pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
        if self.pid_file().is_file():
            self.pid_file().unlink()

    def install(self, build):
        """Installs `build` and returns the process ID of its client."""
        complete, before = self.put_package(build), self.clients()
        self.run_launcher()
        self.assert_installed(complete)
        return self.wait_for_client(*before)

    def assert_same_tree(self, found, expected):
        """By name: a difference of whole files would be too long to print."""
        different = [
            name for name in found.keys() | expected.keys() if found.get(name) != expected.get(name)
        ]
        self.assertEqual(sorted(different), [], "these differ, or are on one side only")

    def assert_installed(self, complete):
        """The per-user bundle is exactly the complete tree, and no backup lies beside it."""
        self.assert_same_tree(tree(self.app), complete)
        self.assertEqual([path.name for path in self.app.parent.glob("Lumivo.app_*")], [])

    def assert_logged(self, *messages):
        """The messages stand in the log, in this order; `%d` stands for any number."""
        log, position = self.log(), 0
        for message in messages:
            found = re.compile(re.escape(message).replace("%d", r"-?\d+")).search(log, position)
            self.assertIsNotNone(found, f"not logged (in this order): {message}\n{log}")
            position = found.end()
