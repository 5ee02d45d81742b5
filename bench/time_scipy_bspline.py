#!/usr/bin/python3
"""Times SciPy's splrep (fit of 1000 noisy points, s = 10) and splev (10^5 abscissas) on the
table of bspline_bench.cpp, and, given the path of the built bspline_bench, runs it in the same
session and prints both timings side by side.

    /usr/bin/python3 bench/time_scipy_bspline.py [build/bench/bspline_bench]
"""
import json
import os
import subprocess
import sys
import timeit

import numpy as np
from scipy.interpolate import splev, splrep

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "tests", "numerics"))
from generate_bspline_reference import datasets  # noqa: E402  the committed noisy1000 table

SMOOTHING_FACTOR = 10.0
EVALUATION_COUNT = 100000


def best_time_us(statement, repeat=7):
    """Best mean time per call in microseconds, over `repeat` runs of automatically sized loops."""
    timer = timeit.Timer(statement)
    loops, _ = timer.autorange()
    return min(timer.repeat(repeat=repeat, number=loops)) / loops * 1e6


def scipy_times():
    x, y = datasets()["noisy1000"]
    fit = best_time_us(lambda: splrep(x, y, k=3, s=SMOOTHING_FACTOR))
    tck = splrep(x, y, k=3, s=SMOOTHING_FACTOR)
    at = np.linspace(x[0], x[-1], EVALUATION_COUNT)
    evaluate = best_time_us(lambda: splev(at, tck))
    return {"BM_BSplineFit1000": fit, "BM_BSplineEvaluate1e5": evaluate}


def cpp_times(executable):
    output = subprocess.run([executable, "--benchmark_format=json", "--benchmark_repetitions=5",
                             "--benchmark_report_aggregates_only=true"],
                            check=True, capture_output=True, text=True).stdout
    times = {}
    for entry in json.loads(output)["benchmarks"]:
        if entry.get("aggregate_name") == "median":
            assert entry["time_unit"] == "us"
            times[entry["run_name"]] = entry["real_time"]
    return times


def main():
    scipy = scipy_times()
    cpp = cpp_times(sys.argv[1]) if len(sys.argv) > 1 else {}
    print("%-24s %14s %14s" % ("case", "SciPy (us)", "C++ (us)"))
    for name, seconds in scipy.items():
        ours = "%14.1f" % cpp[name] if name in cpp else "%14s" % "-"
        print("%-24s %14.1f %s" % (name, seconds, ours))


if __name__ == "__main__":
    main()
