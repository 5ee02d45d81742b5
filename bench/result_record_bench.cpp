// Cost of writing one directional noise record to a file and reading it back, as a run's result
// files are written at every point and read by the post-processing. The floor moves the same
// number of bytes with one fwrite and one fread.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "steady_state.hpp"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <cstdio>
#include <vector>

namespace {

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
