// Cost of the whole flyover example's calculation (100 points, 11 sources, result tree,
// propagation, totals and indicators), against the floor of building its scenario and preparing
// its result tree alone.

#include "pieces.hpp"

#include <benchmark/benchmark.h>

namespace {

void BM_Floor_PrepareFlyoverTree(benchmark::State& state) {
    flyover_options_t const options;
    for (auto _ : state) {
        benchmark::DoNotOptimize(build_flyover_simulation(options, make_fan_grid()));
    }
}
BENCHMARK(BM_Floor_PrepareFlyoverTree)->Unit(benchmark::kMillisecond);

void BM_Flyover(benchmark::State& state) {
    flyover_options_t const options;
    for (auto _ : state) {
        benchmark::DoNotOptimize(run_flyover(options));
    }
}
BENCHMARK(BM_Flyover)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
