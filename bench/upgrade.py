"""Size, memory, time and safety of an upgrade: how the launcher extracts a package."""

import os

from harness import Scratch, run, run_step
from packages import REALISTIC_BYTES

SERIES = (1000, 3000, 10000, 30000, 100000)
BOTH = ("wall", "cpu")
# Run by bash, with a command and its arguments; the last one is the folder that it writes to.
THEN_SYNC_FOLDER = ["bash", "-c", '"$@" && sync -f "${!#}"', "bash"]
THEN_SYNC = ["bash", "-c", '"$@" && sync', "bash"]


def extract(bench, archive):
    return [bench.program("bench-step"), "extract", archive]


def others(package, packed):
    """What people would use instead: name, command and bound."""
    return (
        ("`bsdtar -xf`", ["bsdtar", "-xf", package / "lumivo.lvp", "-C"], 1.0),
        ("`unzip -q`, `zip -9`", ["unzip", "-q", packed / "tree.zip", "-d"], 0.4),
        ("`tar --zstd -xf`", ["tar", "--zstd", "-xf", packed / "tree.tar.zst", "-C"], 1.0),
        ("`cp -a`", ["cp", "-a", f"{packed}/tree/."], None),
    )


def extraction(bench):
    """In memory, where no disk hides the program. Writing through to memory costs nothing."""
    package = bench.packages.realistic()
    packed = bench.packages.packed_by_others(package)
    archive = package / "lumivo.lvp"
    size(bench, archive, packed / "tree.zip")
    with Scratch("memory", bench.memory) as scratch:

        def contender(runner, command):
            return scratch.into_new_folder(runner, command, 2 * REALISTIC_BYTES)

        ours = contender(run_step, extract(bench, archive))
        ours()
        for name, command, bound in others(package, packed):
            costs = bench.in_turn(ours=ours, theirs=contender(run, command))
            bench.table.compare("upgrade, memory", name, costs, BOTH, bound)
        count = [bench.program("bench-step"), "count", archive, "unused"]
        costs = bench.in_turn(ours=lambda: run_step(count), theirs=ours)
    bench.table.compare("count, memory", "the whole extraction", costs, bound=0.05)
    peak = bench.median(costs["theirs"], "peak_memory") / 1024
    bench.table.row(
        "peak memory of the extraction above idle",
        ours=f"{peak:.2f} MiB",
        ratios=[peak],
        bound=12,  # the window of Zstandard, 8 MiB, and 4 MiB beside it
        unit=" MiB",
    )


def size(bench, ours, theirs):
    sizes = [os.path.getsize(path) for path in (ours, theirs)]
    shown = [f"{number / 1e6:.1f} MB" for number in sizes]
    bench.table.row("size of the package", "`zip -9`", *shown, [sizes[0] / sizes[1]], 0.85)


def disk(bench):
    """On the disk: what the write barriers cost, and others when they force as much to the disk."""
    small = bench.packages.small(SERIES[0])
    package = small if bench.quick else bench.packages.realistic()
    packed = bench.packages.packed_by_others(package)
    command = extract(bench, package / "lumivo.lvp")
    unforced = bench.environment(LD_PRELOAD=str(bench.program("libbench-no-barrier.so")))
    check_barriers(bench, extract(bench, small / "lumivo.lvp"), unforced)

    def without_barrier(arguments):
        return run_step(arguments, unforced)

    def compare(what, against, ours, theirs):
        with Scratch("disk", bench.disk) as scratch:
            contenders = {
                side: scratch.into_new_folder(runner, arguments, 2 * REALISTIC_BYTES)
                for side, (runner, arguments) in (("ours", ours), ("theirs", theirs))
            }
            bench.table.compare(what, against, bench.in_turn(**contenders), BOTH)

    with_barrier, without = (run_step, command), (without_barrier, command)
    bsdtar = ["bsdtar", "-xf", package / "lumivo.lvp", "-C"]
    compare("upgrade, disk", "without the barrier", with_barrier, without)
    compare("upgrade, disk", "`bsdtar -xf`, `sync`", with_barrier, (run, THEN_SYNC + bsdtar))
    for name, other, _ in others(package, packed):
        forced = (run, THEN_SYNC_FOLDER + other)
        compare("upgrade, disk", f"{name}, `sync -f`", with_barrier, forced)
    compare("upgrade without the barrier, disk", "`bsdtar -xf`", without, (run, bsdtar))


def check_barriers(bench, command, unforced):
    """A preloaded library that is not found, say, would go unnoticed in the figures."""
    with Scratch("disk", bench.disk) as scratch:
        for env, is_forced in ((bench.environment(), True), (unforced, False)):
            trace = scratch.path / "trace"
            # The program gets the library, strace does not.
            variables = [f"--env={name}={value}" for name, value in env.items()]
            strace = ["strace", "-f", "-qq", "--trace=syncfs", "-o", trace, *variables]
            scratch.into_new_folder(run, [*strace, *command], 0)()
            if ("syncfs(" in trace.read_text()) != is_forced:
                raise SystemExit(
                    f"bench: expected the barrier {'with' if is_forced else 'without'}"
                )


def entries(bench):
    """Whether many entries cost more than few, each."""
    series = SERIES[:3] if bench.quick else SERIES
    with Scratch("memory", bench.memory) as scratch:
        contenders = {}
        for count in series:
            command = extract(bench, bench.packages.small(count) / "lumivo.lvp")
            contenders[str(count)] = scratch.into_new_folder(run_step, command, 2 * REALISTIC_BYTES)
        costs = bench.in_turn(**contenders)
    for kind, name in (("wall", "wall clock"), ("cpu", "processor")):
        each = [bench.median(costs[str(count)], kind) / count * 1e6 for count in series]
        # What is paid once makes the entries of a small package dear; none may become dearer by
        # being one of many.
        growth = max(large / small for i, small in enumerate(each) for large in each[i + 1 :])
        bench.table.row(
            f"{name} per entry, {', '.join(map(str, series))} small files",
            "fewer files",
            ", ".join(f"{time:.1f}" for time in each) + " µs",
            ratios=[growth],
            bound=1.15,
        )
    few, many = series[0], series[-1]
    peaks = [bench.median(costs[str(count)], "peak_memory") * 1024 for count in (few, many)]
    growth = (peaks[1] - peaks[0]) / (many - few)
    bench.table.row("growth of peak memory per entry", ours=f"{growth:.1f} bytes")
