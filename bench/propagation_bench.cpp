// Cost of the propagation corrections per spectrum, on the grids callers use. The ground
// reflection stands beside its floor: per band, the standard calls its ground model cannot do
// without (the complex functions of the impedance, the magnitude and phase of the reflection,
// the interference's cosine and the level's logarithm).

#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>

#include "steady_state.hpp"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <cmath>
#include <complex>
#include <vector>

namespace {

boost::shared_ptr<ambient_conditions_t> standard_air() {
    auto ambient = boost::make_shared<ambient_conditions_t>();
    ambient->temperature = 288.15;
    ambient->pressure = 101325.0;
    ambient->relative_humidity = 70.0;
    return ambient;
}

boost::shared_ptr<frequency_range_t> grid_for(benchmark::State const& state) {
    if (state.range(0) == 0) {
        return tob_frequency_range_ptr;
    }
    return frequency_range_t::create_nb(10.0, 10.0 * state.range(0), 10.0);
}

void absorption(benchmark::State& state) {
    auto const method = static_cast<atm_abs_method_t>(state.range(1));
    auto const ambient = standard_air();
    auto spectrum = boost::make_shared<spectrum_t>(grid_for(state));
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        spectrum->fill_with(80.0);
        VARNO::TrrApi::AtmAbsCorrection(method, spectrum, 1500.0, ambient);
        benchmark::DoNotOptimize(spectrum->values.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(spectrum->values.size()));
}
BENCHMARK(absorption)->ArgsProduct({{0, 2000}, {0, 1, 2, 4}});

void ground_reflection(benchmark::State& state) {
    auto options = boost::make_shared<common_all_sources_transposition_t>();
    options->ground_reflection_method = static_cast<ground_reflection_method_t>(state.range(1));
    options->ground_flow_resistivity = 200.0;
    options->ground_layer_thickness = 50.0;
    options->attenborough_porosity_rate = 40.0;
    options->attenborough_flow_resistivity = 120.0;
    auto const ambient = standard_air();
    auto const grid = grid_for(state);
    auto effect = boost::make_shared<spectrum_t>(grid);
    auto phase = boost::make_shared<spectrum_t>(grid);
    double delay = 0.0;
    Calc_GroundReflectionEffect(options, ambient, 120.0, 121.5, 340.0, 12.0, effect, phase, &delay);
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        Calc_GroundReflectionEffect(options, ambient, 120.0, 121.5, 340.0, 12.0, effect, phase,
                                    &delay);
        benchmark::DoNotOptimize(effect->values.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(effect->values.size()));
}
BENCHMARK(ground_reflection)->ArgsProduct({{0, 2000}, {0, 1, 5, 6, 7}});

using complex = std::complex<double>;

// The layer model: four powers of the frequency (one logarithm, four exponentials), the
// refraction's square root and the layer's complex exponential.
complex layer_calls(double f) {
    double const log_r = std::log(f / 200.0);
    complex const kc{std::exp(-0.7 * log_r), std::exp(-0.59 * log_r)};
    complex const zc{std::exp(-0.75 * log_r), std::exp(-0.73 * log_r)};
    complex const s = std::sqrt(1.0 - kc * kc);
    return std::exp(complex{0.0, 1.0} * kc * s) * zc;
}

// The slit-pore model: two complex hyperbolic tangents and the impedance's square root.
complex slit_pore_calls(double f) {
    double const v = std::sqrt(f * 0.01);
    complex const g{0.7071067811865476, -0.7071067811865476};
    return std::sqrt(std::tanh(g * v) * std::tanh(g * (v * 0.84)));
}

complex model_calls(long method, double f) {
    switch (method) {
    case 5:
        return layer_calls(f);
    case 6:
        return std::sqrt(complex{f, 1.0});
    case 7:
        return slit_pore_calls(f);
    default:
        return {f, 0.0};
    }
}

void ground_reflection_floor(benchmark::State& state) {
    auto const grid = grid_for(state);
    std::vector<double> effect(grid->size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < effect.size(); ++i) {
            complex const reflection = model_calls(state.range(1), (*grid)(i));
            double const r = std::abs(reflection);
            double const interference = std::cos(std::arg(reflection) + 0.01 * (*grid)(i));
            effect[i] = 10.0 * std::log10(r * interference + r * r + 1.0);
        }
        benchmark::DoNotOptimize(effect.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(effect.size()));
}
BENCHMARK(ground_reflection_floor)->ArgsProduct({{0, 2000}, {0, 1, 5, 6, 7}});

} // namespace

BENCHMARK_MAIN();
