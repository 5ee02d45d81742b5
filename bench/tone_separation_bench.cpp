// Cost of separating tones from the broadband floor of one 24-band third-octave spectrum, as a
// calculation library does once per spectrum.

#include <calc-common/tones.hpp>

#include <benchmark/benchmark.h>

namespace {

boost::shared_ptr<spectrum_t> fan_like_spectrum() {
    double const levels[24] = {60, 62, 63, 64, 65, 66, 66, 65, 64, 67, 74, 61,
                               69, 66, 63, 71, 67, 61, 54, 62, 52, 51, 50, 49};
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->values.assign(levels, levels + 24);
    return spectrum;
}

void BM_BBTones(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> const spectrum = fan_like_spectrum();
    boost::shared_ptr<spectrum_t> const broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> const tones = spectrum_t::create_tob();
    tone_sep_method_t const method = static_cast<tone_sep_method_t>(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            Calc_BBTones(spectrum, 1.5, 250.0, 0.0, method, 2.0, 3.0, broadband, tones));
    }
}
BENCHMARK(BM_BBTones)->Arg(0)->Arg(1);

void BM_EnscaBBTones(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> const spectrum = fan_like_spectrum();
    boost::shared_ptr<spectrum_t> const broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> const tones = spectrum_t::create_tob();
    tone_sep_method_t const method = static_cast<tone_sep_method_t>(state.range(0));
    for (auto _ : state) {
        tones->tones.clear(); // the driver appends to the list; keep it from growing
        Calc_EnscaBBTones(spectrum, 1.0, 125.0, 453.45, 0.0, method, 2.0, 3.0, broadband, tones);
        benchmark::DoNotOptimize(tones->values.data());
    }
}
BENCHMARK(BM_EnscaBBTones)->Arg(0)->Arg(1);

void BM_DopplerizeTone(benchmark::State& state) {
    boost::shared_ptr<spectrum_t> const tones = spectrum_t::create_tob();
    tones->values[10] = 70.0;
    boost::shared_ptr<spectrum_t> const broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> const unshifted = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> const shifted = spectrum_t::create_tob();
    double shifted_frequency = 0.0;
    double level = 0.0;
    for (auto _ : state) {
        broadband->fill_with(69.5);
        Calc_DopplerizeTone(tones, broadband, 1.55, 455.0, unshifted, shifted, &shifted_frequency,
                            &level, nullptr, true, false);
        benchmark::DoNotOptimize(level);
    }
}
BENCHMARK(BM_DopplerizeTone);

} // namespace

BENCHMARK_MAIN();
