// Cost of converting narrowband spectra to third-octave bands, by path and method, each beside
// its floor on the same lines: the standard calls that compute what the conversion must, one
// exponential per line for an energy, and for the filter curve also 24 multiply-adds per line
// with weights read from a table.
#include <calc-common/spectra.hpp>

#include "steady_state.hpp"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr double exponent_per_db = 0.23025850929940456840; // ln(10)/10
constexpr std::size_t bands = 24;

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
    convert_spectrum_to_tob(input, output, method, 0);
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert_spectrum_to_tob(input, output, method, 0));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(summation)->ArgsProduct({{0, 1, 2}, {1, 10}});

// One exponential per line into one accumulator: the energy sum every method must make.
double energy_sum(std::vector<double> const& levels) {
    double sum = 0.0;
    for (double const level : levels) {
        sum += std::exp(level * exponent_per_db);
    }
    return sum;
}

// One exponential per line, then 24 multiply-adds with the line's weights from a table.
void weighted_energy_sums(std::vector<double> const& levels, std::vector<double> const& weights,
                          std::array<double, bands>& sums) {
    sums.fill(0.0);
    double const* weight = weights.data();
    for (double const level : levels) {
        double const energy = std::exp(level * exponent_per_db);
        for (std::size_t band = 0; band < bands; ++band) {
            sums[band] += energy * weight[band];
        }
        weight += bands;
    }
}

void summation_floor(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> input = broadband(static_cast<double>(state.range(1)));
    std::vector<double> weights(input->values.size() * bands, 0.5);
    std::array<double, bands> sums{};
    for (auto _ : state) {
        if (state.range(0) == nbtob_butterworth) {
            weighted_energy_sums(input->values, weights, sums);
            benchmark::DoNotOptimize(sums.data());
        } else {
            benchmark::DoNotOptimize(energy_sum(input->values));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(summation_floor)->ArgsProduct({{0, 1, 2}, {1, 10}});

void filter_banks(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> input = broadband(static_cast<double>(state.range(1)));
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    auto const method = static_cast<nbtob_conversion_method>(state.range(0));
    VARNO::TrrApi::NbToTob(input, output, method);
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        VARNO::TrrApi::NbToTob(input, output, method);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(filter_banks)->ArgsProduct({{0, 1, 2}, {1, 10}});

void filter_banks_floor(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> input = broadband(static_cast<double>(state.range(1)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(energy_sum(input->values));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(filter_banks_floor)->ArgsProduct({{0, 1, 2}, {1, 10}});

boost::shared_ptr<noise_field_t> directional_field() {
    boost::shared_ptr<frequency_range_t> range = frequency_range_t::create_nb(1.0, 20000.0, 1.0);
    boost::shared_ptr<noise_field_column_range_t> columns =
        boost::make_shared<noise_field_column_range_t>(37, nullptr, nullptr, nullptr);
    boost::shared_ptr<noise_field_t> field = boost::make_shared<noise_field_t>(range, columns);
    std::fill(field->values.begin(), field->values.end(), 40.0);
    return field;
}

void field_summation(benchmark::State& state) {
    boost::shared_ptr<noise_field_t> input = directional_field();
    boost::shared_ptr<noise_field_t> output = noise_field_t::create_tob(input->column_range);
    convert_noise_field_to_tob(input, output, nbtob_line_band, 0);
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(convert_noise_field_to_tob(input, output, nbtob_line_band, 0));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(field_summation);

void field_summation_floor(benchmark::State& state) {
    boost::shared_ptr<noise_field_t> input = directional_field();
    for (auto _ : state) {
        benchmark::DoNotOptimize(energy_sum(input->values));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(input->values.size()));
}
BENCHMARK(field_summation_floor);

// Energy sum of two spectra of 2235 lines, line by line, read back in dB.
boost::shared_ptr<spectrum_t> ramp(double start) {
    boost::shared_ptr<spectrum_t> spectrum =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(10.0, 22350.0, 10.0));
    for (std::size_t k = 0; k < spectrum->values.size(); ++k) {
        spectrum->at(k) = start + 30.0 * std::cos(0.003 * static_cast<double>(k));
    }
    return spectrum;
}

void log_add(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> a = ramp(50.0);
    boost::shared_ptr<spectrum_t> b = ramp(47.0);
    b->frequency_range = a->frequency_range;
    boost::shared_ptr<spectrum_t> sum = boost::make_shared<spectrum_t>(a->frequency_range);
    bench_support::steady_state_allocations counted(state);
    for (auto _ : state) {
        spectrum_t::log_add(a, b, sum);
        benchmark::DoNotOptimize(sum->values.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(a->values.size()));
}
BENCHMARK(log_add);

// Two exponentials and one logarithm per line.
void log_add_floor(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> a = ramp(50.0);
    boost::shared_ptr<spectrum_t> b = ramp(47.0);
    std::vector<double> sum(a->values.size());
    for (auto _ : state) {
        for (std::size_t k = 0; k < sum.size(); ++k) {
            sum[k] = std::log(std::exp(a->values[k] * exponent_per_db) +
                              std::exp(b->values[k] * exponent_per_db));
        }
        benchmark::DoNotOptimize(sum.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long>(sum.size()));
}
BENCHMARK(log_add_floor);

} // namespace

BENCHMARK_MAIN();
