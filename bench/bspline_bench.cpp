// Fit of a smoothing cubic spline to 1000 noisy points, and evaluation at 10^5 abscissas, on the
// table that bench/time_scipy_bspline.py times with SciPy.
#include <calc-common/numerics.hpp>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

namespace reference {
#include "../tests/numerics/bspline_reference.inc"
}

constexpr int table_size = sizeof(reference::noisy1000_x) / sizeof(double);
constexpr double smoothing_factor = 10.0; // table size times the noise variance (0.1^2)
constexpr int evaluation_count = 100000;

std::vector<double> evenly_spread(double first, double last, int count) {
    std::vector<double> x(count);
    for (int i = 0; i < count; ++i) {
        x[i] = first + (last - first) * i / (count - 1);
    }
    return x;
}

void BM_BSplineFit1000(benchmark::State& state) {
    for (auto _ : state) {
        VARNO::BSpline spline(reference::noisy1000_x, reference::noisy1000_y, table_size,
                              smoothing_factor);
        benchmark::DoNotOptimize(spline.coefficients.get());
    }
}
BENCHMARK(BM_BSplineFit1000)->Unit(benchmark::kMicrosecond);

void BM_BSplineEvaluate1e5(benchmark::State& state) {
    VARNO::BSpline const spline(reference::noisy1000_x, reference::noisy1000_y, table_size,
                                smoothing_factor);
    std::vector<double> const x = evenly_spread(
        reference::noisy1000_x[0], reference::noisy1000_x[table_size - 1], evaluation_count);
    std::vector<double> y(evaluation_count);
    for (auto _ : state) {
        spline.evaluate(x.data(), y.data(), evaluation_count);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * evaluation_count);
}
BENCHMARK(BM_BSplineEvaluate1e5)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
