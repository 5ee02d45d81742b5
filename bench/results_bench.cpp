// Cost of the result tree: its preparation for a run of 100 points and 12 sources, and the
// write and read-back of one directional noise record, as a run's result files are written at
// every point and read by the post-processing. The record's floor moves the same number of bytes
// with one fwrite and one fread; the preparation, which builds the tree, has none.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "steady_state.hpp"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <cstdio>
#include <vector>

namespace {

constexpr std::size_t point_count = 100;

// An aircraft of six engine sources and six airframe sources, every engine source with its
// noise on a 10 Hz narrowband grid at every point.
struct prepared_run {
    environment_t environment;
    boost::shared_ptr<simulation_t> simulation;
    boost::shared_ptr<frequency_range_t> narrowband =
        frequency_range_t::create_nb(10.0, 10000.0, 10.0);
    range_provider_t provider = [this](boost::shared_ptr<source_noise_t>, std::size_t) {
        return narrowband;
    };

    prepared_run() {
        auto aircraft = environment.add_aircraft();
        for (source_type_t type : {source_jet, source_fan_forward, source_fan_aft, source_turbine,
                                   source_combustion, source_compressor}) {
            aircraft->engine_sources.push_back(boost::make_shared<source_t>(type));
            aircraft->engine_sources.back()->noise = boost::make_shared<source_noise_t>();
        }
        for (source_type_t type : {source_slats, source_flaps, source_main_landing_gear,
                                   source_nose_landing_gear, source_clean_wing, source_empennage}) {
            aircraft->airframe_sources.push_back(boost::make_shared<source_t>(type));
        }
        simulation =
            environment.add_tsour_simulation(aircraft, environment.add_tsour_calculation());
        simulation->create_calculation_points(point_count);
    }
};

void result_preparation(benchmark::State& state) {
    prepared_run run;
    for (auto _ : state) {
        run.simulation->prepare_noise_sources_results(run.provider);
        benchmark::DoNotOptimize(run.simulation->result.get());
    }
}
BENCHMARK(result_preparation)->Unit(benchmark::kMicrosecond);

boost::shared_ptr<directional_result_noise_t> filled_record() {
    auto const record = boost::make_shared<directional_result_noise_t>(
        result_type_t::create_total_aircraft(), frequency_range_t::create_nb(10.0, 10000.0, 10.0),
        frequency_range_t::create_nb(10.0, 5000.0, 10.0), true);
    record->clear_values();
    return record;
}

// Bytes of one record as the writer lays it out.
long record_bytes(directional_result_noise_t const& record,
                  boost::shared_ptr<simulation_t> const& simulation) {
    std::FILE* file = std::tmpfile();
    record.write(file, simulation);
    long const bytes = std::ftell(file);
    std::fclose(file);
    return bytes;
}

void record_write_read(benchmark::State& state) {
    auto const simulation = boost::make_shared<simulation_t>();
    auto const record = filled_record();
    std::FILE* file = std::tmpfile();
    record->write(file, simulation);
    std::rewind(file);
    record->read(file);
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        std::rewind(file);
        record->write(file, simulation);
        std::rewind(file);
        record->read(file);
    }
    state.SetBytesProcessed(state.iterations() * record_bytes(*record, simulation));
    std::fclose(file);
}
BENCHMARK(record_write_read);

void record_write_read_floor(benchmark::State& state) {
    auto const bytes = static_cast<std::size_t>(
        record_bytes(*filled_record(), boost::make_shared<simulation_t>()));
    std::vector<char> block(bytes, 1);
    std::FILE* file = std::tmpfile();
    for (auto _ : state) {
        std::rewind(file);
        std::fwrite(block.data(), 1, bytes, file);
        std::rewind(file);
        benchmark::DoNotOptimize(std::fread(block.data(), 1, bytes, file));
    }
    std::fclose(file);
}
BENCHMARK(record_write_read_floor);

} // namespace

BENCHMARK_MAIN();
