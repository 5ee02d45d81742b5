// Throughput of the footprint example over a small fixed grid (8 x 5 observers, each hearing
// the whole take-off climb) on one thread, two and all cores, in observer-trajectories per
// second of wall time. The one-thread run is the floor that the others' speed-up is taken from.
// Forty observers share out evenly among 2, 4 or 8 threads, so that no thread finishes alone.

#include "footprint.hpp"

#include <benchmark/benchmark.h>

namespace {

void BM_Footprint(benchmark::State& state) {
    footprint_options_t options;
    options.extent_x = 7000.0;
    options.step_x = 1000.0;
    options.extent_y = 2000.0;
    options.step_y = 500.0;
    options.threads = static_cast<int>(state.range(0));
    std::size_t observers = 0;
    int threads = 0;
    for (auto _ : state) {
        footprint_t const footprint = run_footprint(options);
        observers = footprint.levels.size();
        threads = footprint.threads;
        benchmark::DoNotOptimize(footprint.levels.data());
    }
    state.counters["observers_per_second"] = benchmark::Counter(
        static_cast<double>(observers * state.iterations()), benchmark::Counter::kIsRate);
    state.counters["threads"] = threads;
}
// Threads 0 stands for all the cores.
BENCHMARK(BM_Footprint)
    ->ArgName("threads")
    ->Arg(1)
    ->Arg(2)
    ->Arg(0)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
