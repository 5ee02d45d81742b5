// A user of the installed package: two spectra added by energy, the library's exception
// caught by its type when the grids differ, and the A-weighted level of a flat spectrum.
#include <calc-common/calc-common.hpp>

#include <boost/make_shared.hpp>

#include <cstdio>

namespace {

// A flat 60 dB third-octave spectrum weighs in at about 71.7 dB(A): the bands from 500 Hz to
// 5 kHz, near 0 dB of weighting, dominate.
bool a_weighted_flat_spectrum_is_plausible() {
    boost::shared_ptr<spectrum_t> flat = spectrum_t::create_tob();
    flat->fill_with(60.0);
    double const level = Calc_AWeightedLevel(flat);
    std::printf("flat 60 dB spectrum = %.2f dB(A)\n", level);
    return level > 71.0 && level < 72.5;
}

} // namespace

int main() {
    if (!a_weighted_flat_spectrum_is_plausible()) {
        return 1;
    }
    boost::shared_ptr<spectrum_t> a = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> b = spectrum_t::create_tob();
    a->fill_with(50.0);
    b->fill_with(50.0);
    spectrum_t::log_add(a, b, a);
    std::printf("50 dB + 50 dB = %.4f dB\n", a->values[0]);

    boost::shared_ptr<spectrum_t> other =
        boost::make_shared<spectrum_t>(tob_frequency_range_ptr->clone());
    try {
        spectrum_t::log_add(a, other, a);
    } catch (varno_calc_error const& error) {
        std::printf("caught varno_calc_error: %s\n", error.what());
        return a->values[0] > 53.01 && a->values[0] < 53.02 ? 0 : 1;
    }
    return 1;
}
