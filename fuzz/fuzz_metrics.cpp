// The noise metrics on arbitrary histories of third-octave spectra at an arbitrary step: the
// levels of one spectrum, the time-history metrics, and the exposure level, which must grow by
// exactly 10 log10(2) when the same history is held twice as long per sample.

#include "fuzz_input.hpp"

#include <calc-common/frame.hpp>
#include <calc-common/metrics.hpp>
#include <calc-common/spectra.hpp>

using fuzzing::fuzz_input;

namespace {

constexpr std::size_t max_samples = 24;

std::vector<boost::shared_ptr<spectrum_t>> history_of(fuzz_input& in) {
    std::vector<boost::shared_ptr<spectrum_t>> history(in.count(max_samples));
    for (auto& spectrum : history) {
        spectrum = spectrum_t::create_tob();
        spectrum->values = in.numbers(spectrum->values.size());
    }
    return history;
}

// Exposure of a history held twice as long is 3.0103 dB more, wherever it is finite.
void check_exposure_scaling(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                            double time_step) {
    double const once = Calc_SoundExposureLevel(history, time_step);
    double const twice = Calc_SoundExposureLevel(history, 2.0 * time_step);
    bool const comparable =
        std::isfinite(once) && std::isfinite(twice) && once > 10.0 && std::fabs(once) < 1e6;
    if (comparable && std::fabs(twice - once - 10.0 * std::log10(2.0)) > 1e-9 * std::fabs(once)) {
        std::fprintf(stderr, "mismatch: SEL %.17g at the step, %.17g at twice the step\n", once,
                     twice);
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    std::vector<boost::shared_ptr<spectrum_t>> const history = history_of(in);
    double const time_step = in.number();
    for (auto const& spectrum : history) {
        Calc_OverallLevel(spectrum);
        Calc_AWeightedLevel(spectrum);
        Calc_PerceivedNoiseLevel(spectrum);
        Calc_ToneCorrection(spectrum);
    }
    try {
        Calc_TimeHistoryMetrics(history, time_step);
        Calc_EffectivePerceivedNoiseLevel(history, time_step);
        // A step so large that its double overflows is no step a history is sampled at.
        if (time_step < 1e300) {
            check_exposure_scaling(history, time_step);
        }
    } catch (varno_calc_error const&) {
        // An empty history and a step that is not positive are refused.
    }
    return 0;
}
