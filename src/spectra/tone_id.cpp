#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

using namespace VARNO::detail;

tone_id_t::tone_id_t()
    : band_index(0)
    , bpf_harmonic(0.0)
    , cror_harmonic_1(0)
    , cror_harmonic_2(0)
    , engine_order(0)
    , ni_order(0)
    , frequency(0.0)
    , level(0.0) {}

namespace {

// A tone of no kind yet, placed in its band at its frequency (Hz) and level (dB).
tone_id_t placed_tone(int band_index, double frequency, double level) {
    tone_id_t tone;
    tone.band_index = band_index;
    tone.frequency = frequency;
    tone.level = level;
    return tone;
}

} // namespace

tone_id_t tone_id_t::create_bpf(int band_index, double bpf_harmonic, double frequency,
                                double level) {
    tone_id_t tone = placed_tone(band_index, frequency, level);
    tone.bpf_harmonic = bpf_harmonic;
    return tone;
}

tone_id_t tone_id_t::create_cror(int band_index, int cror_harmonic_1, int cror_harmonic_2,
                                 double frequency, double level) {
    tone_id_t tone = placed_tone(band_index, frequency, level);
    tone.cror_harmonic_1 = cror_harmonic_1;
    tone.cror_harmonic_2 = cror_harmonic_2;
    return tone;
}

tone_id_t tone_id_t::create_eo(int band_index, int engine_order, double frequency, double level) {
    tone_id_t tone = placed_tone(band_index, frequency, level);
    tone.engine_order = engine_order;
    return tone;
}

tone_id_t tone_id_t::create_ni(int band_index, int ni_order, double frequency, double level) {
    tone_id_t tone = placed_tone(band_index, frequency, level);
    tone.ni_order = ni_order;
    return tone;
}

tone_id_t tone_id_t::clone() const {
    return *this;
}

bool tone_id_t::equals(tone_id_t const& other) const {
    return cror_harmonic_2 == other.cror_harmonic_2 &&
           tolerantly_equal(bpf_harmonic, other.bpf_harmonic) &&
           engine_order == other.engine_order && cror_harmonic_1 == other.cror_harmonic_1 &&
           ni_order == other.ni_order;
}
