"""What the end-to-end tests share: a staged bundle of their own, a scratch home, and questions to ask afterwards."""

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
TEST_CLIENT = pathlib.Path(os.environ["LUMIVO_TEST_CLIENT"])
MAKE_PACKAGE = os.environ["LUMIVO_MAKE_PACKAGE"]
LEVELS = "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n"


def wait_for(condition, what, seconds=20):
    """The first true result of `condition`, polled; fails when there is none in time."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"timed out: {what}")


def tree(folder):
    """Every node below `folder`: its kind with what makes it differ (bytes, link text, execute bit)."""
    found = {}
    for path in sorted(folder.rglob("*")):
        info = path.lstat()
        name = os.fsencode(path.relative_to(folder))
        if stat.S_ISLNK(info.st_mode):
            found[name] = ("link", os.readlink(path))
        elif stat.S_ISDIR(info.st_mode):
            found[name] = ("folder",)
        else:
            found[name] = ("file", path.read_bytes(), bool(info.st_mode & 0o100))
    return found


def make_client(folder, build):
    """A client tree with the test client as its executable and the kinds of entries that real ones have."""
    app = folder / f"client-{build}" / "Lumivo.app"
    for name in ("MacOS", "Resources/help", "Resources/Größe 図"):
        (app / "Contents" / name).mkdir(parents=True)
    shutil.copy(TEST_CLIENT, app / "Contents/MacOS/lumivo-drive-ui")
    (app / f"Contents/Resources/only in {build}.txt").write_text(f"build {build}\n")
    (app / "Contents/Resources/Größe 図/é.txt").write_text("accents\n")
    (app / "Contents/Resources/help/tool.sh").write_text("#!/bin/sh\n")
    (app / "Contents/Resources/help/tool.sh").chmod(0o755)
    (app / "Contents/Resources/help/latest").symlink_to("../Größe 図/é.txt")
    return app


class Packages:
    """Packages by build number, made once per test program."""

    scratch = tempfile.TemporaryDirectory(prefix="lumivo-packages-")
    folder = pathlib.Path(scratch.name)
    made = {}

    @classmethod
    def of(cls, build):
        if build not in cls.made:
            out, app = cls.folder / f"package-{build}", make_client(cls.folder, build)
            subprocess.run([MAKE_PACKAGE, app, out, "--build", str(build), "--reader", os.environ["LUMIVO_READER"]], check=True,
                           stdout=subprocess.DEVNULL)
            complete = tree(app)
            complete[b"Contents/Resources/INFO"] = ("file", (out / "INFO").read_bytes(), False)
            cls.made[build] = (out, complete)
        return cls.made[build]


class Case(unittest.TestCase):
    """One test: a folder with a home and a bundle of its own. Ends every client that it started."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="lumivo-e2e-")).resolve()
        self.folder.chmod(0o755)
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.addCleanup(self.end_clients)
        self.home = self.folder / "home"
        self.home.mkdir()
        self.temporary = self.folder / "tmp"
        self.temporary.mkdir()
        self.app = self.home / ".Lumivo/Lumivo.app"
        self.bundle = self.copy_bundle("Lumivo.app")

    def copy_bundle(self, name):
        """A copy of the staged bundle, hard-linked where that works."""
        def link(source, target):
            try:
                os.link(source, target)
            except OSError:
                shutil.copy2(source, target)
        bundle = self.folder / name
        shutil.copytree(BUNDLE, bundle, symlinks=True, copy_function=link,
                        ignore=shutil.ignore_patterns("lumivo.lvp", "INFO", "launcher.debug"))
        (bundle / "log/launcher.debug").write_text(LEVELS)
        return bundle

    def put_package(self, build, bundle=None):
        """Gives the bundle the package of `build`; returns the complete tree that it installs."""
        resources = (bundle or self.bundle) / "Contents/Resources"
        out, complete = Packages.of(build)
        (resources / "package").mkdir(exist_ok=True)
        for source, target in (("lumivo.lvp", "package/lumivo.lvp"), ("INFO", "INFO")):
            (resources / target).unlink(missing_ok=True)
            shutil.copy(out / source, resources / target)
        return complete

    def archive(self):
        return self.bundle / "Contents/Resources/package/lumivo.lvp"

    def environment(self, **changes):
        """What a session sets, with HOME and the temporary folder of this case."""
        environment = {"HOME": str(self.home), "TMPDIR": str(self.temporary), "PATH": os.environ["PATH"],
                       "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
        return {name: value for name, value in {**environment, **changes}.items() if value is not None}

    def start(self, bundle=None, command=(), user=None, **changes):
        """Starts the launcher; its output is collected. `command` goes in front of it."""
        executable = (bundle or self.bundle) / "Contents/MacOS/lumivo-launcher"
        options = {"user": user, "group": user, "extra_groups": []} if user else {}
        return subprocess.Popen([*command, str(executable)], env=self.environment(**changes), cwd=self.folder, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)

    def run_launcher(self, seconds=60, **options):
        """Runs the launcher to its end, which has to be a good one; returns what it printed."""
        process = self.start(**options)
        output, errors = process.communicate(timeout=seconds)
        self.assertEqual(process.returncode, 0, errors)
        self.assertIn("lib path = '", output)
        return output, errors

    def log(self):
        path = self.home / ".Lumivo/log/launcher.log"
        return path.read_text(errors="replace") if path.exists() else ""

    def starts(self):
        """The starts of clients so far, each a list of words: process id, session id, folder, descriptors."""
        path = self.home / "starts"
        return [line.split(" ") for line in path.read_text().splitlines()] if path.exists() else []

    def wait_for_starts(self, count):
        wait_for(lambda: len(self.starts()) >= count, f"{count} clients started; log:\n{self.log()}")
        self.assertEqual(len(self.starts()), count)
        return int(self.starts()[-1][0])

    def end_clients(self):
        for words in self.starts():
            if alive(int(words[0])):
                os.kill(int(words[0]), signal.SIGKILL)

    def install(self, build):
        """Installs `build` and returns the process id of its client."""
        complete = self.put_package(build)
        before = len(self.starts())
        self.run_launcher()
        self.assert_installed(complete)
        return self.wait_for_starts(before + 1)

    def assert_same_tree(self, found, complete):
        """By name: a difference of whole files would be too long to print."""
        different = sorted(name for name in found.keys() | complete.keys() if found.get(name) != complete.get(name))
        self.assertEqual(different, [])

    def assert_installed(self, complete):
        """The per-user bundle is exactly the complete tree, and no backup lies beside it."""
        self.assert_same_tree(tree(self.app), complete)
        self.assertEqual([path.name for path in self.app.parent.glob("Lumivo.app_*")], [])

    def assert_logged(self, *messages):
        """The messages stand in the log, in this order; `%d` stands for any number."""
        log, position = self.log(), 0
        for message in messages:
            found = re.compile(re.escape(message).replace("%d", r"-?\d+")).search(log, position)
            self.assertTrue(found, f"not logged (in this order): {message}\n{log}")
            position = found.end()


def alive(pid):
    """Whether the process runs: a zombie does not."""
    try:
        return pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[0] not in "ZX"
    except OSError:
        return False


class Screen(Case):
    """A test with an X server and a window manager of its own."""

    def setUp(self):
        super().setUp()
        reader, writer = os.pipe()
        server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "800x600x24", "-noreset", "-nolisten",
                                   "tcp"], pass_fds=[writer], stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (server.terminate(), server.wait()))
        os.close(writer)
        with os.fdopen(reader) as line:
            number = line.readline().strip()
        self.assertTrue(number, "Xvfb did not start")
        self.display = ":" + number
        manager = subprocess.Popen(["openbox"], env=self.environment(DISPLAY=self.display), stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (manager.terminate(), manager.wait()))

    def xdotool(self, *words):
        return subprocess.run(["xdotool", *words], env=self.environment(DISPLAY=self.display), capture_output=True,
                              text=True).stdout.split()
