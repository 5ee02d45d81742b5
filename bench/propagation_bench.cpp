// Cost of the propagation corrections per spectrum, on the grids callers use, each beside its
// floor: per band, the standard calls its formula cannot do without. For the absorption, the
// arithmetic or the logarithms and powers of the method's coefficient and the level's
// subtraction; for the ground reflection, the complex functions of the impedance, the
// magnitude and phase of the reflection, the interference's cosine and the level's logarithm.

#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>

#include "steady_state.hpp"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
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

constexpr double ln_10 = 2.302585092994046;

// 10^x through the cheapest standard call.
double power_of_ten(double x) {
    return std::exp(x * ln_10);
}

// Per frequency: Sutherland's classical square and its two relaxation fractions; ARP 866's
// decimal logarithm, two powers of ten and the square root of its humidity term; AIR 1845's
// band number (a decimal logarithm) and its coefficient; ARP 5534's band number, the power of
// ten of its mid-frequency and the power of the band conversion.
double coefficient_calls(long method, double f) {
    switch (method) {
    case 0: {
        double const oxygen = 40000.0 / f;
        double const nitrogen = 400.0 / f;
        return 2e-8 * f * f + 0.1 / (oxygen * oxygen + 1.0) + 0.05 / (nitrogen * nitrogen + 1.0);
    }
    case 1: {
        double const log_f = std::log10(f);
        double const x = 0.9 / std::sqrt(f / 1010.0);
        return power_of_ten(log_f * 2.05 - 8.0) + power_of_ten(log_f - 2.7) * x;
    }
    case 2: {
        long const band = std::lround(10.0 * std::log10(f)) - 17;
        return band >= 0 && band < 24 ? 0.4 * static_cast<double>(band) : 0.0;
    }
    default: {
        double const f_mid =
            power_of_ten(0.1 * static_cast<double>(std::lround(10.0 * std::log10(f))));
        double const g = f_mid * f_mid;
        double const loss = (0.01 * 40000.0 / (1.6e9 + g) + 0.1 * 400.0 / (1.6e5 + g)) * g;
        return std::pow(1.1 - loss * 0.001, 1.6) * loss;
    }
    }
}

void absorption_floor(benchmark::State& state) {
    auto const grid = grid_for(state);
    std::vector<double> levels(grid->size());
    for (auto _ : state) {
        std::fill(levels.begin(), levels.end(), 80.0);
        for (std::size_t i = 0; i < levels.size(); ++i) {
            levels[i] -= coefficient_calls(state.range(1), (*grid)(i)) * 15.0;
        }
        benchmark::DoNotOptimize(levels.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(levels.size()));
}
BENCHMARK(absorption_floor)->ArgsProduct({{0, 2000}, {0, 1, 2, 4}});

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
