"""What the end-to-end tests share: a staged bundle of their own, a scratch home, and questions to ask afterwards."""

import os
import pathlib
import re
import shutil
import stat
import subprocess
import tempfile
import time
import unittest

BUNDLE = pathlib.Path(os.environ["LUMIVO_BUNDLE"])
MAKE_PACKAGE, READER = os.environ["LUMIVO_MAKE_PACKAGE"], os.environ["LUMIVO_READER"]
LEVELS = "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n"
ROOT, NOBODY = os.geteuid() == 0, 65534
EXECUTABLE, INFO = "Contents/MacOS/lumivo-drive-ui", "Contents/Resources/INFO"
# The client: writes its pid file, and ends the way HOME/client-mode says when it is asked to. As large as a program.
CLIENT = (
    """#!/bin/sh
echo "pid=$$" >"$HOME/.Lumivo/ui.pid"
case $(cat "$HOME/client-mode" 2>/dev/null) in
  ignore) trap "" TERM ;;
  linger) trap 'sleep 2; rm -f "$HOME/.Lumivo/ui.pid"; exit' TERM ;;
  *) trap 'rm -f "$HOME/.Lumivo/ui.pid"; exit' TERM ;;
esac
for tenth in $(seq 1200); do sleep 0.1; done
exit
"""
    + "#" * 100_000
)


def wait_for(condition, what, seconds=20):
    """The first true result of `condition`, polled; fails when there is none in time."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"timed out: {what}")


def alive(pid):
    """Whether the process runs: a zombie does not."""
    try:
        return (
            pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[0] not in "ZX"
        )
    except OSError:
        return False


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


def make_client(app, build, files):
    """A client with the kinds of entries that real ones have.

    With `files` there are that many more, some of them links and some executable, in folders of fifty.
    """
    contents = {
        "../Info.plist": "<plist><dict><key>CFBundleExecutable</key>"
        "<string>lumivo-drive-ui</string></dict></plist>",
        "help/tool.sh": "#!/bin/sh\n",
        "Größe 図/é.txt": "accents\n",
        f"only in {build}.txt": f"build {build}\n",
    }
    for number in range(files):
        contents[f"many/ö{number // 50}/{number}"] = (
            f"{build} {number}\n" * (number % 30) if number % 25 else None
        )
    for name, text in contents.items():
        path = app / "Contents/Resources" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        if text is None:
            path.symlink_to("../ö0/1")
        else:
            path.write_text(text)
            path.chmod(0o755 if name[-1] in "1h" else 0o644)
    (app / "Contents/Resources/help/latest").symlink_to("../Größe 図/é.txt")
    (app / EXECUTABLE).parent.mkdir()
    (app / EXECUTABLE).write_text(CLIENT)
    (app / EXECUTABLE).chmod(0o755)


class Packages:
    """Installed trees by build and number of additional files, with their nodes; made once, the package beside each."""

    scratch = tempfile.TemporaryDirectory(prefix="lumivo-packages-")
    made = {}

    @classmethod
    def of(cls, build, files=0):
        if (build, files) not in cls.made:
            app = pathlib.Path(cls.scratch.name, f"{build}-{files}/Lumivo.app")
            make_client(app, build, files)
            subprocess.run(
                [MAKE_PACKAGE, app, app.parent, "--build", str(build), "--reader", READER],
                check=True,
                stdout=subprocess.DEVNULL,
            )
            shutil.copy(app.parent / "INFO", app / INFO)
            cls.made[build, files] = (app, tree(app))
        return cls.made[build, files]


class Case(unittest.TestCase):
    """One test: a folder with a bundle of its own, a home and a temporary folder. Ends every client that it started."""

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
        self.home, self.temporary = (
            pathlib.Path(tempfile.mkdtemp(dir=folder))
            for folder in (below or self.folder, self.folder)
        )
        self.app = self.home / ".Lumivo/Lumivo.app"
        if installed:
            shutil.copytree(Packages.of(installed, self.files)[0], self.app, symlinks=True)
        if package:
            self.put_package(package)
        if user:
            subprocess.run(["chown", "-R", f"{user}:{user}", self.home, self.temporary], check=True)

    def copy_bundle(self, name):
        """A copy of the staged bundle, without a package and with all levels."""
        bundle = self.folder / name
        shutil.copytree(
            BUNDLE, bundle, symlinks=True, ignore=shutil.ignore_patterns("lumivo.lvp", "INFO")
        )
        (bundle / "Contents/Resources/package").mkdir(exist_ok=True)
        (bundle / "log/launcher.debug").write_text(LEVELS)
        return bundle

    def put_package(self, build, bundle=None):
        """Gives the bundle the package of `build`; returns the complete tree that it installs."""
        resources = (bundle or self.bundle) / "Contents/Resources"
        app, complete = Packages.of(build, self.files)
        shutil.copy(app.parent / "lumivo.lvp", resources / "package")
        shutil.copy(app.parent / "INFO", resources)
        return complete

    def archive(self):
        return self.bundle / "Contents/Resources/package/lumivo.lvp"

    def environment(self, **changes):
        """What a session sets, with HOME and the temporary folder of this case."""
        environment = {
            "HOME": str(self.home),
            "TMPDIR": str(self.temporary),
            "PATH": os.environ["PATH"],
            "QT_QPA_PLATFORM": "offscreen",
            "LC_ALL": "C.UTF-8",
        }
        return {
            name: str(value)
            for name, value in {**environment, **changes}.items()
            if value is not None
        }

    def start(self, bundle=None, command=(), user=None, **changes):
        """Starts the launcher; its output is collected. `command` goes in front of it."""
        executable = (bundle or self.bundle) / "Contents/MacOS/lumivo-launcher"
        options = {"user": user, "group": user, "extra_groups": []} if user else {}
        return subprocess.Popen(
            [*command, str(executable)],
            env=self.environment(**changes),
            cwd=self.folder,
            text=True,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            **options,
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
        """The process ids of the clients that run from this test's folder."""
        line = f"^/bin/sh {self.folder}/.*/lumivo-drive-ui$"
        return [
            int(pid)
            for pid in subprocess.run(
                ["pgrep", "-f", line], stdout=subprocess.PIPE, check=False
            ).stdout.split()
        ]

    def wait_for_client(self, *others):
        """The process id of the one client that runs but for the others, once its pid file is written."""
        pid_file = self.home / ".Lumivo/ui.pid"
        new = lambda: [pid for pid in self.clients() if pid not in others]
        wait_for(
            lambda: pid_file.exists()
            and [f"pid={pid}\n" for pid in new()] == [pid_file.read_text()],
            f"a client; log:\n{self.log()}",
        )
        return new()[0]

    def end_clients(self):
        """Ends the clients, those too that have only just been started; nobody's process id stays on file."""
        while clients := self.clients():
            subprocess.run(
                ["kill", "-KILL", *map(str, clients)], stderr=subprocess.DEVNULL, check=False
            )
        if (self.home / ".Lumivo/ui.pid").is_file():
            (self.home / ".Lumivo/ui.pid").unlink()

    def install(self, build):
        """Installs `build` and returns the process id of its client."""
        complete, before = self.put_package(build), self.clients()
        self.run_launcher()
        self.assert_installed(complete)
        return self.wait_for_client(*before)

    def assert_same_tree(self, found, complete):
        """By name: a difference of whole files would be too long to print."""
        different = sorted(
            name for name in found.keys() | complete.keys() if found.get(name) != complete.get(name)
        )
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
