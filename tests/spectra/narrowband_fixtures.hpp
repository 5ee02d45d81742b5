#ifndef VARNO_TESTS_SPECTRA_NARROWBAND_FIXTURES_HPP
#define VARNO_TESTS_SPECTRA_NARROWBAND_FIXTURES_HPP

#include <calc-common/spectra.hpp>

#include <boost/make_shared.hpp>

#include <cstddef>

// A spectrum at one level on its own regular grid from f_start to f_end, df apart (Hz).
inline boost::shared_ptr<spectrum_t> narrowband(double f_start, double f_end, double df,
                                                double level) {
    boost::shared_ptr<spectrum_t> spectrum =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(f_start, f_end, df));
    spectrum->fill_with(level);
    return spectrum;
}

// Width in Hz of band `band` (0 is 50 Hz) of the third-octave grid.
inline double band_width(std::size_t band) {
    return tob_fl[17 + band] - tob_fl[16 + band];
}

#endif
