// Tone location, separation and Doppler shift on arbitrary third-octave spectra, fundamentals
// and tone frequencies. The first byte picks the routine. Where the inputs are of the size a
// calculation produces, the energetic split of Calc_BBTones must give finite levels.

#include "fuzz_input.hpp"

#include <calc-common/frame.hpp>
#include <calc-common/tones.hpp>

#include <boost/make_shared.hpp>

using fuzzing::fuzz_input;

namespace {

struct third_octave_spectra {
    boost::shared_ptr<spectrum_t> input = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> tones = spectrum_t::create_tob();
};

third_octave_spectra spectra_from(fuzz_input& in) {
    third_octave_spectra spectra;
    for (double& level : spectra.input->values)
        level = in.number();
    return spectra;
}

tone_sep_method_t method_from(fuzz_input& in) {
    return static_cast<tone_sep_method_t>(static_cast<int>(in.count(3)) - 1);
}

bool moderate(double value) {
    return std::fabs(value) <= 300.0;
}

bool all_moderate(std::vector<double> const& values) {
    for (double value : values)
        if (!moderate(value))
            return false;
    return true;
}

void expect_finite(char const* what, std::vector<double> const& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        if (!std::isfinite(values[i]))
            fuzzing::mismatch(what, i, values[i], 0.0);
}

void locate_by_slope(fuzz_input& in) {
    third_octave_spectra spectra = spectra_from(in);
    Calc_TonesLocSlope(spectra.input, spectra.broadband, spectra.tones);
}

void locate_by_frequency(fuzz_input& in) {
    third_octave_spectra spectra = spectra_from(in);
    double const slope_step = in.number();
    double const tone_margin = in.number();
    Calc_TonesLocFreq(spectra.input, slope_step, tone_margin, spectra.broadband, spectra.tones);
}

void separate(fuzz_input& in) {
    third_octave_spectra spectra = spectra_from(in);
    double const check_margin = in.number();
    double const cut_frequency = in.number();
    tone_sep_method_t const method = method_from(in);
    double const slope_step = in.number();
    double const tone_margin = in.number();
    Calc_BBTones(spectra.input, check_margin, cut_frequency, 0.0, method, slope_step, tone_margin,
                 spectra.broadband, spectra.tones);
    bool const realistic = all_moderate(spectra.input->values) && moderate(check_margin) &&
                           moderate(slope_step) && moderate(tone_margin);
    if (realistic) {
        expect_finite("Calc_BBTones broadband", spectra.broadband->values);
        expect_finite("Calc_BBTones tones", spectra.tones->values);
    }
}

void separate_harmonics(fuzz_input& in) {
    third_octave_spectra spectra = spectra_from(in);
    double const check_margin = in.number();
    double const cut_frequency = in.number();
    double const fundamental = in.number();
    double const gap_value = in.number();
    tone_sep_method_t const method = method_from(in);
    double const slope_step = in.number();
    double const tone_margin = in.number();
    // A fundamental whose first harmonic lies below the grid's first band (number 17) leaves
    // the harmonic table's indices unguarded: outside what callers may pass.
    if (!(fundamental >= std::pow(10.0, 1.65)))
        return;
    Calc_EnscaBBTones(spectra.input, check_margin, cut_frequency, fundamental, gap_value, method,
                      slope_step, tone_margin, spectra.broadband, spectra.tones);
}

void dopplerize(fuzz_input& in) {
    third_octave_spectra spectra = spectra_from(in);
    for (double& level : spectra.broadband->values)
        level = in.number();
    double const doppler_ratio = in.number();
    double const frequency = in.number();
    bool const exact_energy = in.flag();
    bool const keep_broadband = in.flag();
    auto unshifted = spectrum_t::create_tob();
    auto shifted = spectrum_t::create_tob();
    double shifted_frequency = 0.0;
    double tone_level = 0.0;
    double tone_level_copy = 0.0;
    Calc_DopplerizeTone(spectra.input, spectra.broadband, doppler_ratio, frequency, unshifted,
                        shifted, &shifted_frequency, &tone_level,
                        in.flag() ? &tone_level_copy : nullptr, exact_energy, keep_broadband);
}

void tone_spectrum(fuzz_input& in) {
    double const frequency = in.number();
    int const band = static_cast<int>(in.count(27)) - 2;
    double const level = in.number();
    auto spectrum = spectrum_t::create_tob();
    try {
        Calc_ToneSpectrum(frequency, band, level, spectrum);
    } catch (varno_calc_error const&) {
        // A frequency outside the band it is said to be in is refused.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    switch (in.byte() % 6) {
    case 0:
        locate_by_slope(in);
        break;
    case 1:
        locate_by_frequency(in);
        break;
    case 2:
        separate(in);
        break;
    case 3:
        separate_harmonics(in);
        break;
    case 4:
        dopplerize(in);
        break;
    default:
        tone_spectrum(in);
        break;
    }
    return 0;
}
