// Cost of the propagation corrections per spectrum, on the grids callers use.

#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

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
    for (auto _ : state) {
        Calc_GroundReflectionEffect(options, ambient, 120.0, 121.5, 340.0, 12.0, effect, phase,
                                    &delay);
        benchmark::DoNotOptimize(effect->values.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(effect->values.size()));
}
BENCHMARK(ground_reflection)->ArgsProduct({{0, 2000}, {0, 1, 5, 6, 7}});

} // namespace

BENCHMARK_MAIN();
