#!/usr/bin/python3
"""Runs every benchmark program of a Release build and prints one table: kernel, median CPU
time per iteration (which a loaded machine disturbs less than the wall clock), the median of its floor from the same run, their ratio, and the heap allocations
per iteration in the steady state ("-" where the program does not count them).

A kernel's floor is the benchmark of the same program named `<kernel>_floor` with the same
arguments, or the one named in FLOORS.

Benchmarks run on several threads (an argument named `threads`, timed on the wall clock, with
0 for all the cores) get a table of their own: the wall time of each thread count, the counter
`observers_per_second`, and the speed-up over the one-thread run of the same benchmark, which is
their floor.

    python3 bench/report.py build-bench [--benchmark_filter=...]
"""
import glob
import json
import os
import re
import statistics
import subprocess
import sys
import time

REPETITIONS = 7
FLOORS = {
    "BM_PerceivedNoiseAndToneCorrection": "BM_Floor_OverallLevel",
    "BM_EffectivePerceivedNoiseLevel_30s": "BM_Floor_OverallLevel_30s",
    "BM_TimeHistoryMetrics_30s": "BM_Floor_OverallLevel_30s",
    "BM_Flyover": "BM_Floor_PrepareFlyoverTree",
}
SCALE_NS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def medians(program, extra, threaded):
    output = subprocess.run([program, "--benchmark_format=json",
                             "--benchmark_repetitions=%d" % REPETITIONS,
                             "--benchmark_report_aggregates_only=true",
                             "--benchmark_enable_random_interleaving=true"] + extra,
                            check=True, capture_output=True, text=True).stdout
    rows = {}
    if not output.strip():  # a filter that matches none of the program's benchmarks
        return rows
    for entry in json.loads(output)["benchmarks"]:
        if entry.get("aggregate_name") != "median":
            continue
        allocations = entry.get("allocs")
        rows[entry["run_name"]] = (entry["cpu_time"] * SCALE_NS[entry["time_unit"]], allocations)
        if "/threads:" in entry["run_name"]:
            threaded[entry["run_name"]] = entry
    return rows


def floor_of(name, rows):
    base, _, arguments = name.partition("/")
    candidates = [FLOORS.get(base, base + "_floor")]
    if arguments:
        candidates.insert(0, candidates[0] + "/" + arguments)
    for candidate in candidates:
        if candidate in rows:
            return rows[candidate][0]
    return None


def readable(ns):
    for unit, scale in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if ns >= scale:
            return "%.3g %s" % (ns / scale, unit)
    return "%.3g ns" % ns


def whole_program_row(program):
    """Median wall time of five runs of an example program, as a kernel without a floor."""
    times = []
    for _ in range(5):
        start = time.perf_counter()
        subprocess.run([os.path.abspath(program)], check=True, capture_output=True,
                       cwd=os.path.dirname(program))
        times.append((time.perf_counter() - start) * 1e9)
    return statistics.median(times)


def thread_order(name):
    """Sorts a benchmark's thread counts upwards, with 0 (all the cores) last."""
    threads = int(re.search(r"/threads:(\d+)", name).group(1))
    return (re.sub(r"/threads:\d+", "", name), threads == 0, threads)


def print_scaling(threaded):
    """The threaded benchmarks: wall time, throughput and speed-up over one thread."""
    if not threaded:
        return
    print()
    print("%-46s %7s %12s %12s %8s" % ("threaded (wall clock)", "threads", "time",
                                        "observers/s", "speed-up"))
    for name in sorted(threaded, key=thread_order):
        entry = threaded[name]
        single = threaded.get(re.sub(r"/threads:\d+", "/threads:1", name))
        rate = entry.get("observers_per_second")
        print("%-46s %7s %12s %12s %8s" % (
            name, "%d" % entry["threads"] if "threads" in entry else "-",
            readable(entry["real_time"] * SCALE_NS[entry["time_unit"]]),
            "%.1f" % rate if rate else "-",
            "%.2f" % (single["real_time"] / entry["real_time"]) if single else "-"))


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else "build-bench"
    extra = sys.argv[2:]
    print("%-46s %12s %12s %7s %7s" % ("kernel", "time", "floor", "ratio", "allocs"))
    threaded = {}
    for program in sorted(glob.glob(os.path.join(build, "bench", "*_bench"))):
        rows = medians(program, extra, threaded)
        for name, (ns, allocations) in sorted(rows.items()):
            if name.endswith("_floor") or "_floor/" in name or name in FLOORS.values():
                continue
            if name in threaded:
                continue
            floor = floor_of(name, rows)
            print("%-46s %12s %12s %7s %7s" % (
                name, readable(ns), readable(floor) if floor else "-",
                "%.2f" % (ns / floor) if floor else "-",
                "%.2f" % allocations if allocations is not None else "-"))
    flyovers = sorted(glob.glob(os.path.join(build, "examples", "flyover*")))
    flyovers = [path for path in flyovers if os.access(path, os.X_OK) and os.path.isfile(path)]
    if not flyovers:
        print("%-46s %12s" % ("whole flyover (examples/flyover)", "not built"))
    for program in flyovers:
        print("%-46s %12s %12s %7s %7s" % ("whole flyover (" + os.path.basename(program) + ")",
                                           readable(whole_program_row(program)), "-", "-", "-"))
    print_scaling(threaded)


if __name__ == "__main__":
    main()
