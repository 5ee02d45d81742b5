// Interpolation and spline throughput: the one-sweep Akima evaluation against the spline kinds.

#include <calc-common/numerics.hpp>

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace {

struct table {
    std::vector<double> x, y, queries;

    table(std::size_t n, std::size_t ni)
        : x(n)
        , y(n)
        , queries(ni) {
        for (std::size_t i = 0; i < n; ++i) {
            x[i] = static_cast<double>(i) + 0.3 * std::sin(static_cast<double>(i));
            y[i] = std::cos(0.2 * x[i]);
        }
        for (std::size_t i = 0; i < ni; ++i) {
            queries[i] = x.back() * static_cast<double>(i) / static_cast<double>(ni);
        }
    }
};

void ParabolicInterpSweep(benchmark::State& state) {
    table t(static_cast<std::size_t>(state.range(0)), 1000);
    std::vector<double> yi(t.queries.size()), dyi(t.queries.size()), slopes(t.x.size());
    std::size_t const n = t.x.size(), ni = t.queries.size();
    for (auto _ : state) {
        Calc_ParabolicInterp(t.x.data(), t.y.data(), n, true, t.queries.data(), ni, yi.data(),
                             dyi.data(), slopes.data());
        benchmark::DoNotOptimize(yi.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(ni));
}
BENCHMARK(ParabolicInterpSweep)->Arg(36)->Arg(360);

void NaturalSplineSweep(benchmark::State& state) {
    table t(static_cast<std::size_t>(state.range(0)), 1000);
    std::vector<double> yq(t.queries.size());
    for (auto _ : state) {
        Calc_Spline(static_cast<int>(t.x.size()), t.x.data(), t.y.data(),
                    static_cast<int>(t.queries.size()), t.queries.data(), yq.data(),
                    SPLINE_NATURAL);
        benchmark::DoNotOptimize(yq.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(t.queries.size()));
}
BENCHMARK(NaturalSplineSweep)->Arg(36)->Arg(360);

// The cubic and monotone kinds solve the whole table for every single value.
void SingleValueSpline(benchmark::State& state) {
    table t(36, 1);
    spline_type const type = static_cast<spline_type>(state.range(0));
    double q = 17.3;
    for (auto _ : state) {
        benchmark::DoNotOptimize(Calc_Spline(36, t.x.data(), t.y.data(), q, type));
    }
}
BENCHMARK(SingleValueSpline)->Arg(SPLINE_NATURAL)->Arg(SPLINE_CUBIC)->Arg(SPLINE_PCHIP);

void AngularInterpParabolic(benchmark::State& state) {
    table t(19, 1);
    std::size_t const n = t.x.size();
    double angle = 7.7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            Calc_AngularInterp_Parabolic(t.x.data(), t.y.data(), n, angle, false));
    }
}
BENCHMARK(AngularInterpParabolic);

} // namespace

BENCHMARK_MAIN();
