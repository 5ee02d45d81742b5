#!/usr/bin/python3
"""Runs every benchmark program of a Release build and prints one table: kernel, median CPU
time per iteration (which a loaded machine disturbs less than the wall clock), the median of its floor from the same run, their ratio, and the heap allocations
per iteration in the steady state ("-" where the program does not count them).

A kernel's floor is the benchmark of the same program named `<kernel>_floor` with the same
arguments, or the one named in FLOORS.

    python3 bench/report.py build-bench [--benchmark_filter=...]
"""
import glob
import json
import os
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


def medians(program, extra):
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


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else "build-bench"
    extra = sys.argv[2:]
    print("%-46s %12s %12s %7s %7s" % ("kernel", "time", "floor", "ratio", "allocs"))
    for program in sorted(glob.glob(os.path.join(build, "bench", "*_bench"))):
        rows = medians(program, extra)
        for name, (ns, allocations) in sorted(rows.items()):
            if name.endswith("_floor") or "_floor/" in name or name in FLOORS.values():
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


if __name__ == "__main__":
    main()
