// A user of the installed package: two spectra added by energy, and the library's exception
// caught by its type when the grids differ.
#include <calc-common/calc-common.hpp>

#include <boost/make_shared.hpp>

#include <cstdio>

int main() {
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
