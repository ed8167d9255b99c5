#!/usr/bin/env python3
"""Measures the launcher against what people would use instead, and prints a table. scripts/bench builds and calls it.

Whatever is compared runs in turn within one round, and a ratio is the median of the ratios of the rounds, so that a
machine that is slow for a while is slow for both sides.
"""

import argparse
import contextlib
import json
import os
import pathlib
import plistlib
import random
import shutil
import statistics
import struct
import subprocess
import sys
import tempfile
import time
import types

SOURCE = pathlib.Path(__file__).resolve().parent.parent
MEMORY = "/dev/shm"
PACKAGE_BYTES, PACKAGE_ENTRIES = 250 << 20, 4000
SERIES = (1000, 3000, 10000, 30000, 100000)
COPY_BYTES = 1 << 30


def environment(**more):
    """No time zone and no locale of whoever runs this; the same for both sides."""
    return {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", **more}


def warm_memory(size):
    """A virtual machine's host takes back what lies idle, and giving it again would be paid by whoever runs first."""
    block = b"x" * size
    del block


def run(command, env=None, pipe=None):
    """Runs `command` to its end and returns what it cost, in seconds. With `pipe`, the client tells there when its
    main() was reached: `start` is the time until then."""
    with tempfile.TemporaryFile() as output:
        actions = [
            (os.POSIX_SPAWN_DUP2, output.fileno(), 1),
            (os.POSIX_SPAWN_OPEN, 2, "/dev/null", os.O_WRONLY, 0),
        ]
        command = [str(part) for part in command]
        before = time.clock_gettime(time.CLOCK_MONOTONIC)
        pid = os.posix_spawnp(command[0], command, env or environment(), file_actions=actions)
        _, status, usage = os.wait4(pid, 0)
        wall = time.clock_gettime(time.CLOCK_MONOTONIC) - before
        output.seek(0)
        text = output.read().decode()
    if status != 0:
        raise SystemExit(f"bench: status {status}: {' '.join(command)}")
    seconds, nanoseconds = (
        struct.unpack("qq", os.read(pipe, 16)) if pipe is not None else (before, 0)
    )
    return types.SimpleNamespace(
        wall=wall,
        cpu=usage.ru_utime + usage.ru_stime,
        output=text,
        faults=usage.ru_minflt + usage.ru_majflt,
        start=seconds + nanoseconds * 1e-9 - before,
    )


def step(arguments):
    """What a step of the upgrade cost by its own account: its process is not part of it, for it is the launcher's."""
    wall, cpu, peak, _ = map(float, run(arguments).output.split())
    return types.SimpleNamespace(wall=wall, cpu=cpu, peak=peak)


def rounds(count, contenders):
    """Runs each of the named contenders once a round, in turn, each of them first in its turn: lists of costs."""
    names, costs = list(contenders), {name: [] for name in contenders}
    for number in range(count):
        for name in names[number % len(names) :] + names[: number % len(names)]:
            costs[name].append(contenders[name]())
    return costs


class Table:
    """The rows of the result, printed as they come."""

    def __init__(self):
        print(
            "| what | against | ours | theirs | ratio | bound |\n|---|---|---|---|---|---|",
            flush=True,
        )
        self.missed = 0

    def row(self, what, against="", ours="", theirs="", value=None, limit=None, text=None):
        is_missed = limit is not None and value > limit
        self.missed += is_missed
        bound = "" if limit is None else f"{limit:g}{', MISSED' if is_missed else ''}"
        print(
            f"| {what} | {against} | {ours} | {theirs} | {text or f'{value:.3f}'} | {bound} |",
            flush=True,
        )

    def pair(self, what, against, costs, kind, limit=None, theirs="theirs"):
        sides = [[getattr(cost, kind) for cost in costs[name]] for name in ("ours", theirs)]
        medians = [statistics.median(side) for side in sides]
        unit, name = (1e9, "ns") if medians[0] < 1e-3 else (1e3, "ms")
        self.row(
            what,
            against,
            *(f"{median * unit:.4g} {name}" for median in medians),
            statistics.median(a / b for a, b in zip(*sides)),
            limit,
        )


class Bench:
    def __init__(self, options):
        self.build, self.quick = pathlib.Path(options.build).resolve(), options.quick
        self.count = options.rounds or (3 if self.quick else 9)
        self.packages = self.build / "bench/zstandard-packages"
        self.table = Table()

    def program(self, name):
        return self.build / "bench" / name

    @contextlib.contextmanager
    def media(self):
        """Scratch folders, by the name of what they lie on."""
        with tempfile.TemporaryDirectory(dir=MEMORY) as memory, tempfile.TemporaryDirectory(
            dir=self.build
        ) as disc:
            yield {"memory": pathlib.Path(memory), "disc": pathlib.Path(disc)}

    def package(self, name, fill):
        """The folder of a package of the tree that `fill` makes; kept between runs."""
        out = self.packages / name
        if not out.exists():
            self.packages.mkdir(parents=True, exist_ok=True)
            with tempfile.TemporaryDirectory(dir=self.packages) as work:
                app, made = pathlib.Path(work, "app"), pathlib.Path(work, "made")
                (app / "Contents/MacOS").mkdir(parents=True)
                shutil.copy(self.program("bench-client"), app / "Contents/MacOS/lumivo-drive-ui")
                plist = {"CFBundleExecutable": "lumivo-drive-ui"}
                (app / "Contents/Info.plist").write_bytes(plistlib.dumps(plist))
                fill(app / "Contents")
                subprocess.run(
                    [
                        SOURCE / "packaging/make-package",
                        app,
                        made,
                        "--build",
                        "4000",
                        "--reader",
                        self.build / "packaging/lumivo-read-package",
                    ],
                    check=True,
                    stdout=sys.stderr,
                )
                made.rename(out)
        return out

    @staticmethod
    def peers_of(package):
        """A folder with the package's tree as it is, and as other tools pack it; kept as well."""
        peers, work = package / "peers", package / "unfinished"
        if not peers.exists():
            shutil.rmtree(work, ignore_errors=True)
            tree = work / "tree"
            tree.mkdir(parents=True)
            for command in (
                ["bsdtar", "-xf", package / "lumivo.lvp"],
                ["zip", "-q", "-9", "-X", "-y", "-r", work / "tree.zip", "."],
                ["tar", "--zstd", "-cf", work / "tree.tar.zst", "."],
            ):
                subprocess.run(command, cwd=tree, check=True)
            work.rename(peers)
        return peers

    def fill_realistic(self, contents):
        """Libraries with their links, executables, and small files in many folders, all from this machine."""
        libraries = pathlib.Path("/usr/lib", os.uname().machine + "-linux-gnu")
        share = pathlib.Path("/usr/share")
        # From where, to where, the largest file, and how far the bytes and the entries may grow.
        sources = (
            (libraries, "*.so*", "Frameworks", 24 << 20, 0.8, 0.2),
            (pathlib.Path("/usr/bin"), "*", "Resources/bin", 8 << 20, 0.9, 0.25),
            (share, "**/*", "Resources/share", 1 << 20, 1, 0.993),
        )
        size, seen = 0, set()
        for root, pattern, folder, largest, bytes_part, entries_part in sources:
            for path in sorted(root.glob(pattern)):
                target = contents / folder / path.relative_to(root)
                parents = [parent for parent in target.parents if contents in parent.parents]
                names = {str(name).lower() for name in [target, *parents]}
                # The package maker refuses links that leave the tree and names that are one to the user's disc.
                link = os.readlink(path) if path.is_symlink() else None
                bytes_more = 0 if link else path.stat().st_size
                if (
                    not (link or path.is_file())
                    or str(target).lower() in seen
                    or not str(target).isascii()
                    or bytes_more > largest
                    or size + bytes_more > PACKAGE_BYTES * bytes_part
                    or len(seen) + len(names - seen) > PACKAGE_ENTRIES * entries_part
                    or link
                    and ("/" in link or not (target.parent / link).exists())
                ):
                    continue
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(path, target, follow_symlinks=False)
                size, seen = size + bytes_more, seen | names

    @staticmethod
    def fill_small(count):
        def fill(contents):
            numbers = random.Random(count)
            for index in range(count - 6 - count // 100):
                folder = contents / f"Resources/folder-{index // 100}"
                folder.mkdir(parents=True, exist_ok=True)
                (folder / f"file-{index}.txt").write_bytes(
                    numbers.randbytes(numbers.randrange(100, 1000))
                )

        return fill

    def extraction(self):
        package = self.package("realistic", self.fill_realistic)
        archive, others = package / "lumivo.lvp", self.peers_of(package)
        peers = (
            ("`bsdtar -xf`", ["bsdtar", "-xf", archive, "-C"], 1.0),
            ("`unzip -q`, `zip -9`", ["unzip", "-q", others / "tree.zip", "-d"], 0.4),
            ("`tar --zstd -xf`", ["tar", "--zstd", "-xf", others / "tree.tar.zst", "-C"], 1.0),
            ("`cp -a`", ["cp", "-a", f"{others}/tree/."], None),
        )
        sizes = [os.path.getsize(path) for path in (archive, others / "tree.zip")]
        megabytes = [f"{size / 1e6:.1f} MB" for size in sizes]
        self.table.row("package", "`zip -9`", *megabytes, sizes[0] / sizes[1], 0.85)
        with self.media() as media:
            for medium, scratch in media.items():
                ours = self.into_new_folder(
                    medium, scratch, step, [self.program("bench-step"), "extract", archive]
                )
                ours()
                for peer, command, limit in peers:
                    theirs = self.into_new_folder(medium, scratch, run, command)
                    costs = rounds(self.count, {"ours": ours, "theirs": theirs})
                    for kind in ("wall", "cpu"):
                        self.table.pair(
                            f"upgrade, {medium}, {kind}",
                            peer,
                            costs,
                            kind,
                            limit if medium == "memory" else None,
                        )
                count = lambda: step([self.program("bench-step"), "count", archive, "unused"])
                costs = rounds(self.count, {"ours": count, "theirs": ours})
                self.table.pair(f"count, {medium}", "the whole extraction", costs, "wall", 0.05)
        peak = statistics.median(cost.peak for cost in costs["theirs"]) / 1024
        self.table.row(
            "peak memory of the extraction above idle", value=peak, limit=4, text=f"{peak:.2f} MiB"
        )

    @staticmethod
    def into_new_folder(medium, scratch, runner, command):
        """Runs `command` with a new folder as its last argument."""

        def once():
            folder = tempfile.mkdtemp(dir=scratch)
            if medium == "disc":
                os.sync()
            warm_memory(2 * PACKAGE_BYTES)
            cost = runner(command + [folder])
            # On a disc, a removal just before would be paid by the next run.
            if medium == "memory":
                shutil.rmtree(folder)
            return cost

        return once

    def entries(self):
        series = SERIES[:3] if self.quick else SERIES
        archives = {
            count: self.package(f"small-{count}", self.fill_small(count)) / "lumivo.lvp"
            for count in series
        }
        with self.media() as media:
            costs = rounds(
                self.count,
                {
                    count: self.into_new_folder(
                        "memory",
                        media["memory"],
                        step,
                        [self.program("bench-step"), "extract", archive],
                    )
                    for count, archive in archives.items()
                },
            )
        for kind, name in (("wall", "wall clock"), ("cpu", "processor")):
            each = {
                count: statistics.median(getattr(cost, kind) for cost in costs[count]) / count * 1e6
                for count in series
            }
            # What is paid once makes the entries of a small package dear; none may become dearer by being one of many.
            growth = max(
                each[large] / each[small] for small in series for large in series if large > small
            )
            self.table.row(
                f"{name} per entry, {', '.join(map(str, series))} small files",
                "fewer files",
                value=growth,
                limit=1.15,
                ours=", ".join(f"{each[count]:.1f}" for count in series) + " µs",
            )
        peaks = [
            statistics.median(cost.peak for cost in costs[count])
            for count in (series[0], series[-1])
        ]
        self.table.row(
            "growth of peak memory per entry",
            text=f"{(peaks[1] - peaks[0]) * 1024 / (series[-1] - series[0]):.1f} bytes",
        )

    def start(self):
        with self.media() as media, tempfile.TemporaryDirectory() as home:
            scratch = media["disc"]
            subprocess.run(
                ["cmake", "--install", self.build, "--prefix", scratch],
                check=True,
                stdout=subprocess.DEVNULL,
            )
            contents, app = scratch / "Lumivo.app/Contents", pathlib.Path(
                home, ".Lumivo/Lumivo.app/Contents"
            )
            client, peer, pipe = (
                app / "MacOS/lumivo-drive-ui",
                scratch / "bench-start",
                os.path.join(home, "pipe"),
            )
            # The installed client is the package's; the peer finds the same picture beside itself.
            for source, target in (
                (contents / "Resources/INFO", app / "Resources/INFO"),
                (self.program("bench-client"), client),
                (self.program("bench-start"), peer),
                (contents / "Resources/images/ico_72_lumivo.png", scratch / "icon.png"),
            ):
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
            commands = {"ours": [contents / "MacOS/lumivo-launcher"]}
            for kind in ("same", "bare", "translator"):
                commands[kind] = [peer, kind, contents / "Frameworks/plugins", client]
            os.mkfifo(pipe)
            env = environment(HOME=home, TMPDIR=home, XDG_RUNTIME_DIR=home, LUMIVO_BENCH_PIPE=pipe)
            ways = {
                "offscreen": {**env, "QT_QPA_PLATFORM": "offscreen"},
                "X": {**env, "DISPLAY": os.environ["DISPLAY"]},
            }
            reader = os.open(pipe, os.O_RDWR)
            for way, variables in ways.items():
                self.start_on(way, commands, variables, reader)
            for way, variables in ways.items():
                self.report(
                    f"system calls, {way}",
                    {
                        name: self.system_calls(command, variables, home)
                        for name, command in commands.items()
                    },
                )
            self.under_valgrind(commands, ways["offscreen"], home)
            os.close(reader)
        self.report(
            "executable with its twenty catalogs, KiB",
            {"ours": os.path.getsize(self.build / "ui-client/launcher/lumivo-launcher") >> 10},
        )

    def start_on(self, way, commands, env, pipe):
        contenders = {
            name: lambda command=command: run(command, env, pipe)
            for name, command in commands.items()
        }
        rounds(2, contenders)
        costs = rounds(self.count * (1 if self.quick else 5), contenders)
        for what, kind, against, peer, limit in (
            ("start to the client's `main`", "start", "same calls", "same", 1.05),
            ("start to the client's `main`", "start", "bare application", "bare", None),
            ("whole process", "wall", "same calls", "same", None),
            ("whole process", "wall", "application and translator", "translator", 1.35),
            ("processor time", "cpu", "same calls", "same", None),
        ):
            self.table.pair(f"{what}, {way}", against, costs, kind, limit, peer)
        self.report(
            f"page faults, {way}",
            {name: statistics.median_low(cost.faults for cost in costs[name]) for name in costs},
        )

    def report(self, what, numbers):
        self.table.row(what, text=", ".join(f"{name} {number}" for name, number in numbers.items()))

    @staticmethod
    def system_calls(command, env, home):
        """Those of the process and its threads, without the client's."""
        trace = os.path.join(home, "trace")
        run(["strace", "-f", "-qq", "-o", trace] + command, env)
        with open(trace, encoding="utf-8", errors="replace") as file:
            lines = [line.split(None, 1) for line in file]
        clients = {
            pid
            for pid, call in lines
            if call.startswith("execve(") and "lumivo-drive-ui" in call.split(",")[0]
        }
        return sum(
            pid not in clients and "resumed>" not in call and call[0].isalpha()
            for pid, call in lines
        )

    def under_valgrind(self, commands, env, home):
        """Instructions in millions, and the heap at its peak."""
        out, million, heap = os.path.join(home, "out"), {}, {}
        for name, command in commands.items():
            for tool, line_start, found in (
                ("callgrind", "totals: ", million),
                ("massif", "mem_heap_B=", heap),
            ):
                run(["valgrind", f"--tool={tool}", f"--{tool}-out-file={out}"] + command, env)
                with open(out, encoding="utf-8") as file:
                    found[name] = max(
                        int(line[len(line_start) :]) for line in file if line.startswith(line_start)
                    )
        self.table.row(
            "instructions of a start, offscreen",
            "same calls",
            value=million["ours"] / million["same"],
        )
        self.report(
            "instructions of a start, offscreen, millions",
            {name: n // 10**6 for name, n in million.items()},
        )
        self.report(
            "heap of a start, offscreen, KiB", {name: size >> 10 for name, size in heap.items()}
        )

    def parts(self):
        with self.media() as media:
            for medium, scratch in media.items():
                command = [
                    self.program("bench-parts"),
                    f"--benchmark_repetitions={self.count}",
                    "--benchmark_enable_random_interleaving=true",
                    "--benchmark_format=json",
                    f"--benchmark_min_time={0.05 if self.quick else 0.2}",
                    f"--benchmark_filter={'.' if medium == 'memory' else 'log line'}",
                ]
                results = json.loads(
                    run(command, environment(LUMIVO_BENCH_FOLDER=str(scratch))).output
                )
                pairs = {}
                for result in results["benchmarks"]:
                    if result["run_type"] == "iteration":
                        name, side = result["run_name"].rsplit("/", 1)
                        time_of_one = types.SimpleNamespace(wall=result["real_time"] * 1e-9)
                        pairs.setdefault(name, {}).setdefault(side, []).append(time_of_one)
                for name, costs in pairs.items():
                    is_log = name == "one log line"
                    limit = 1.2 if is_log else 2.0 if name.startswith("per entry") else None
                    self.table.pair(
                        f"{name}, {medium}" if is_log else f"`ustring`, {name}",
                        "spdlog" if is_log else "`std::string`",
                        costs,
                        "wall",
                        limit,
                    )

    def copy(self):
        with self.media() as media:
            for medium, scratch in media.items():
                source, target = scratch / "source", scratch / "target"
                source.write_bytes(
                    random.Random(1).randbytes(1 << 20) * (COPY_BYTES >> (23 if self.quick else 20))
                )

                def contender(*command):
                    def once():
                        target.unlink(missing_ok=True)
                        os.sync()
                        warm_memory(2 * COPY_BYTES)
                        return run([*command, source, target])

                    return once

                contenders = {
                    "ours": contender(self.program("bench-step"), "copy"),
                    "theirs": contender("sh", "-c", 'cp "$1" "$2" && sync "$2"', "sh"),
                }
                rounds(1, contenders)
                costs = rounds(self.count, contenders)
                for kind, limit in (("wall", 1.05 if medium == "disc" else None), ("cpu", None)):
                    self.table.pair(
                        f"`FSCopy`, {medium}, {kind}", "`cp`, `sync FILE`", costs, kind, limit
                    )


SECTIONS = ("extraction", "entries", "start", "parts", "copy")


def main():
    parser = argparse.ArgumentParser(
        description="Measures the launcher against its peers and prints a table."
    )
    parser.add_argument(
        "--build", required=True, metavar="DIR", help="a build folder with the benchmarks"
    )
    parser.add_argument(
        "--quick",
        action="store_true",
        help="few rounds and small inputs: only to see that all runs",
    )
    parser.add_argument(
        "--rounds", type=int, metavar="N", help="rounds of each comparison (default: 9, quick 3)"
    )
    parser.add_argument(
        "sections", nargs="*", metavar="SECTION", help=f"of {', '.join(SECTIONS)}; default: all"
    )
    options = parser.parse_args()
    if not set(options.sections) <= set(SECTIONS):
        parser.error(f"the sections are {', '.join(SECTIONS)}")
    bench = Bench(options)
    for section in options.sections or SECTIONS:
        getattr(bench, section)()
    print(
        f"\n{bench.table.missed} of the bounds missed"
        if bench.table.missed
        else "\nall bounds kept"
    )


if __name__ == "__main__":
    main()
