"""A start with nothing to upgrade, by the bundle that ships, against the same Qt calls."""

import os
import pathlib
import shutil
import subprocess
import tempfile

from harness import Scratch, run

SAME, SYSTEM, BARE = "same Qt calls", "same Qt calls, the system's libraries", "bare application"
STARTS_PER_ROUND = 5


class Bundle:
    """The staged bundle, a home with its client installed, and the programs to compare it with."""

    def __init__(self, bench, folder, home):
        subprocess.run(
            ["cmake", "--install", bench.build, "--prefix", folder],
            check=True,
            stdout=subprocess.DEVNULL,
        )
        self.home = home
        contents = folder / "Lumivo.app/Contents"
        installed = home / ".Lumivo/Lumivo.app/Contents"
        client = installed / "MacOS/lumivo-drive-ui"
        # Beside the launcher it loads the bundle's libraries, elsewhere those of the system.
        peer, system_peer = contents / "MacOS/bench-start", folder / "system/bench-start"
        for source, target in (
            (contents / "Resources/INFO", installed / "Resources/INFO"),
            (bench.program("bench-client"), client),
            (bench.program("bench-start"), peer),
            (bench.program("bench-start"), system_peer),
        ):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)
        self.commands = {
            "ours": [contents / "MacOS/lumivo-launcher"],
            SAME: [peer, "same", contents, client],
            SYSTEM: [system_peer, "same", contents, client],
            BARE: [peer, "bare", contents, client],
        }

    def environments(self, bench, pipe):
        home = str(self.home)
        env = bench.environment(
            HOME=home, TMPDIR=home, XDG_RUNTIME_DIR=home, LUMIVO_BENCH_PIPE=str(pipe)
        )
        return {
            "offscreen": {**env, "QT_QPA_PLATFORM": "offscreen"},
            "X": {**env, "DISPLAY": os.environ["DISPLAY"]},
        }


def start(bench):
    with Scratch("disk", bench.disk) as scratch, tempfile.TemporaryDirectory() as folder:
        home = pathlib.Path(folder)
        bundle = Bundle(bench, scratch.path, home)
        pipe = home / "pipe"
        os.mkfifo(pipe)
        environments = bundle.environments(bench, pipe)
        reader = os.open(pipe, os.O_RDWR)
        for platform, env in environments.items():
            times(bench, platform, bundle.commands, env, reader)
        for platform, env in environments.items():
            calls = {
                name: system_calls(bundle.commands[name], env, home) for name in ("ours", SAME)
            }
            bench.table.numbers(f"system calls, {platform}", SAME, *calls.values())
        under_valgrind(bench, bundle.commands, environments["offscreen"], home)
        os.close(reader)
    size = os.path.getsize(bench.build / "ui-client/launcher/lumivo-launcher") >> 10
    bench.table.row("executable with its catalogs", ours=f"{size} KiB")


def times(bench, platform, commands, env, pipe):
    def contender(command):
        return lambda: run(command, env, pipe)

    contenders = {name: contender(command) for name, command in commands.items()}
    bench.in_turn(rounds=2, **contenders)  # everything is in the page cache after that
    rounds = bench.rounds * (1 if bench.quick else STARTS_PER_ROUND)
    costs = bench.in_turn(rounds=rounds, **contenders)
    for what, kind, peer, bound in (
        ("start to the client's `main`", "start", SAME, 1.05),
        ("start to the client's `main`", "start", SYSTEM, None),
        ("start to the client's `main`", "start", BARE, None),
        ("whole process", "wall", SAME, None),
        ("processor time of a start", "cpu", SAME, None),
    ):
        row = f"{what}, {platform}"
        bench.table.compare(row, peer, costs, (kind,), bound, sides=("ours", peer))
    faults = [round(bench.median(costs[name], "page_faults")) for name in ("ours", SAME)]
    bench.table.numbers(f"page faults, {platform}", SAME, *faults)


def system_calls(command, env, home):
    """How many the process and its threads make, without the client's."""
    trace = home / "trace"
    run(["strace", "-f", "-qq", "-o", trace, *command], env)
    lines = trace.read_text(encoding="utf-8", errors="replace").splitlines()
    calls = [line.split(None, 1) for line in lines]
    clients = {
        pid
        for pid, call in calls
        if call.startswith("execve(") and "lumivo-drive-ui" in call.split(",")[0]
    }
    # A call that was interrupted by another thread's has a second line; signals begin with "---".
    return sum(
        pid not in clients and "resumed>" not in call and call[0].isalpha() for pid, call in calls
    )


def under_valgrind(bench, commands, env, home):
    def measured(tool, line_start, name):
        out = home / "out"
        run(["valgrind", f"--tool={tool}", f"--{tool}-out-file={out}", *commands[name]], env)
        lines = out.read_text(encoding="utf-8").splitlines()
        return max(int(line[len(line_start) :]) for line in lines if line.startswith(line_start))

    for what, tool, line_start, divisor, unit in (
        ("instructions of a start, offscreen", "callgrind", "totals: ", 10**6, " M"),
        ("heap of a start at its peak, offscreen", "massif", "mem_heap_B=", 1024, " KiB"),
    ):
        numbers = [measured(tool, line_start, name) for name in ("ours", SAME)]
        bench.table.numbers(what, SAME, *numbers, divisor, unit)
