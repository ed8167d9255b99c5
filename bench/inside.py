"""What happens inside a process: log lines, strings, copying a file."""

import json
import random

from harness import Cost, Scratch, run, warm_memory

COPY_BYTES, QUICK_COPY_BYTES = 1 << 30, 128 << 20
LOG_LINE = "one log line"


def parts(bench):
    for medium, parent in bench.media():
        with Scratch(medium, parent) as scratch:
            pairs = run_parts(bench, scratch.path, "." if medium == "memory" else LOG_LINE)
        for name, costs in pairs.items():
            if name == LOG_LINE:
                bench.table.compare(f"{name}, {medium}", "spdlog", costs, bound=1.2)
            else:
                bound = 2.0 if name.startswith("per entry") else None
                bench.table.compare(f"`ustring`, {name}", "`std::string`", costs, bound=bound)


def run_parts(bench, folder, names):
    """What bench-parts measures of the pairs whose names match, by name and side."""
    command = [
        bench.program("bench-parts"),
        f"--benchmark_filter={names}",
        f"--benchmark_repetitions={bench.rounds}",
        f"--benchmark_min_time={0.05 if bench.quick else 0.2}",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_format=json",
    ]
    output = run(command, bench.environment(LUMIVO_BENCH_FOLDER=str(folder))).output
    results = json.loads(output)["benchmarks"]
    pairs = {}
    # They come in the order in which they ran, a random one.
    for result in sorted(results, key=lambda result: result["family_index"]):
        if result["run_type"] == "iteration":
            name, side = result["run_name"].rsplit("/", 1)
            costs = pairs.setdefault(name, {}).setdefault(side, [])
            costs.append(Cost(wall=result["real_time"] * 1e-9))
    return pairs


def copy(bench):
    """One large file, forced to the disk by both sides."""
    size = QUICK_COPY_BYTES if bench.quick else COPY_BYTES
    ours = [bench.program("bench-step"), "copy"]
    theirs = ["sh", "-c", 'cp "$1" "$2" && sync "$2"', "sh"]
    for medium, parent in bench.media():
        with Scratch(medium, parent) as scratch:
            (scratch.path / "source").write_bytes(
                random.Random(1).randbytes(1 << 20) * (size >> 20)
            )
            contenders = {"ours": copier(scratch, ours), "theirs": copier(scratch, theirs)}
            bench.in_turn(rounds=1, **contenders)
            costs = bench.in_turn(**contenders)
        what = f"`FSCopy` of {size >> 20} MiB, {medium}"
        bound = 1.05 if medium == "disk" else None
        bench.table.compare(what, "`cp`, `sync FILE`", costs, bound=bound)
        bench.table.compare(f"{what}, processor", "`cp`, `sync FILE`", costs, ("cpu",))


def copier(scratch, command):
    """A contender that runs `command` with the file and its copy's name as the last arguments."""
    source, target = scratch.path / "source", scratch.path / "target"

    def contender():
        target.unlink(missing_ok=True)
        scratch.settle()
        warm_memory(2 * COPY_BYTES)
        return run([*command, source, target])

    return contender
