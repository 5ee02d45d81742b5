// A fan as the microphone hears it: its narrowband spectrum in third-octave bands, the tones at
// the blade-passing harmonics taken out of the broadband floor and moved by the Doppler shift.
#include "aircraft_sound.hpp"

#include <cmath>

namespace {

// The separation asks for a tone to stand 3 dB above the floor and finds candidate bands by
// their slopes; a gap in the floor is marked 0 dB.
constexpr double check_margin = 3.0;
constexpr double gap_value = 0.0;

} // namespace

heard_fan_t hear_fan(boost::shared_ptr<spectrum_t> narrowband, double blade_passing_frequency,
                     double doppler_ratio) {
    auto const emitted = spectrum_t::create_tob();
    convert_spectrum_to_tob(narrowband, emitted, nbtob_line_band, 0);

    heard_fan_t heard;
    heard.broadband = spectrum_t::create_tob();
    auto const emitted_tones = spectrum_t::create_tob();
    Calc_EnscaBBTones(emitted, check_margin, 0.0, blade_passing_frequency, gap_value,
                      tone_sep_slope_differences, 0.0, 0.0, heard.broadband, emitted_tones);

    heard.tones = spectrum_t::create_tob();
    heard.fundamental_received = doppler_ratio * blade_passing_frequency;
    auto const unshifted = spectrum_t::create_tob();
    auto const shifted = spectrum_t::create_tob();
    for (tone_id_t const& tone : emitted_tones->tones) {
        double shifted_frequency = 0.0;
        double level = 0.0;
        Calc_DopplerizeTone(emitted_tones, heard.broadband, doppler_ratio, tone.frequency,
                            unshifted, shifted, &shifted_frequency, &level, nullptr, true, true);
        if (level > 0.0) {
            spectrum_t::log_add(heard.tones, shifted, heard.tones);
            // Grid index of the band that holds the shifted tone (50 Hz is band 17).
            int const band = static_cast<int>(10.0 * std::log10(shifted_frequency) + 0.5) - 17;
            heard.tones->tones.push_back(
                tone_id_t::create_bpf(band, tone.bpf_harmonic, shifted_frequency, level));
        }
    }
    return heard;
}
