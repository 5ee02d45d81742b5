// Cost of the noise metrics a calculation library computes at each observer: PNL and tone
// correction of one third-octave spectrum, and the EPNL of a 30 s flyover sampled every 0.5 s.
// The floor is the overall level of each spectrum (24 energy terms and a logarithm), which
// every metric must at least take.

#include <calc-common/metrics.hpp>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

boost::shared_ptr<spectrum_t> fan_like_spectrum(double offset) {
    double const levels[24] = {60, 62, 63, 64, 65, 66, 66, 65, 64, 67, 74, 61,
                               69, 66, 63, 71, 67, 61, 54, 62, 52, 51, 50, 49};
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    for (std::size_t i = 0; i < 24; ++i) {
        spectrum->values[i] = levels[i] + offset;
    }
    return spectrum;
}

// 61 spectra, 0 to 30 s: the level climbs to a peak at 15 s and falls away again.
std::vector<boost::shared_ptr<spectrum_t>> flyover() {
    std::vector<boost::shared_ptr<spectrum_t>> history;
    for (int k = 0; k <= 60; ++k) {
        double const from_peak = 0.5 * (k - 30);
        history.push_back(fan_like_spectrum(20.0 - 0.1 * from_peak * from_peak));
    }
    return history;
}

void BM_Floor_OverallLevel(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> const spectrum = fan_like_spectrum(0.0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Calc_OverallLevel(spectrum));
    }
}
BENCHMARK(BM_Floor_OverallLevel);

void BM_Floor_OverallLevel_30s(benchmark::State& state) {
    std::vector<boost::shared_ptr<spectrum_t>> const history = flyover();
    for (auto _ : state) {
        for (boost::shared_ptr<spectrum_t> const& spectrum : history) {
            benchmark::DoNotOptimize(Calc_OverallLevel(spectrum));
        }
    }
}
BENCHMARK(BM_Floor_OverallLevel_30s);

void BM_PerceivedNoiseAndToneCorrection(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> const spectrum = fan_like_spectrum(0.0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Calc_PerceivedNoiseLevel(spectrum) +
                                 Calc_ToneCorrection(spectrum));
    }
}
BENCHMARK(BM_PerceivedNoiseAndToneCorrection);

void BM_EffectivePerceivedNoiseLevel_30s(benchmark::State& state) {
    std::vector<boost::shared_ptr<spectrum_t>> const history = flyover();
    for (auto _ : state) {
        benchmark::DoNotOptimize(Calc_EffectivePerceivedNoiseLevel(history, 0.5));
    }
}
BENCHMARK(BM_EffectivePerceivedNoiseLevel_30s);

void BM_TimeHistoryMetrics_30s(benchmark::State& state) {
    std::vector<boost::shared_ptr<spectrum_t>> const history = flyover();
    for (auto _ : state) {
        benchmark::DoNotOptimize(Calc_TimeHistoryMetrics(history, 0.5).sel);
    }
}
BENCHMARK(BM_TimeHistoryMetrics_30s);

} // namespace

BENCHMARK_MAIN();
