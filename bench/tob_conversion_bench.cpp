// Cost of converting narrowband spectra to third-octave bands, by path and method.
#include <calc-common/spectra.hpp>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>

namespace {

boost::shared_ptr<spectrum_t> broadband(double df) {
    boost::shared_ptr<spectrum_t> spectrum =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(df, 20000.0, df));
    for (std::size_t k = 0; k < spectrum->values.size(); ++k) {
        spectrum->at(k) = 40.0 + 5.0 * std::sin(0.01 * static_cast<double>(k));
    }
    return spectrum;
}

void summation(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> input = broadband(static_cast<double>(state.range(1)));
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    auto const method = static_cast<nbtob_conversion_method>(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert_spectrum_to_tob(input, output, method, 0));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(summation)->ArgsProduct({{0, 1, 2}, {1, 10}});

void filter_banks(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> input = broadband(static_cast<double>(state.range(1)));
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    auto const method = static_cast<nbtob_conversion_method>(state.range(0));
    for (auto _ : state) {
        VARNO::TrrApi::NbToTob(input, output, method);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(filter_banks)->ArgsProduct({{0, 1, 2}, {1, 10}});

void field_summation(benchmark::State& state) {
    boost::shared_ptr<frequency_range_t> range = frequency_range_t::create_nb(1.0, 20000.0, 1.0);
    boost::shared_ptr<noise_field_column_range_t> columns =
        boost::make_shared<noise_field_column_range_t>(37, nullptr, nullptr, nullptr);
    boost::shared_ptr<noise_field_t> input = boost::make_shared<noise_field_t>(range, columns);
    std::fill(input->values.begin(), input->values.end(), 40.0);
    boost::shared_ptr<noise_field_t> output = noise_field_t::create_tob(columns);
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert_noise_field_to_tob(input, output, nbtob_line_band, 0));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(field_summation);

} // namespace

BENCHMARK_MAIN();
