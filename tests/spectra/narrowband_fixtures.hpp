#ifndef VARNO_TESTS_SPECTRA_NARROWBAND_FIXTURES_HPP
#define VARNO_TESTS_SPECTRA_NARROWBAND_FIXTURES_HPP

#include <calc-common/spectra.hpp>

#include <boost/make_shared.hpp>

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

// A level whose energy is negligible beside any other in these tests (narrowband lines are not
// cut, so a silent 0.0 dB line would still add an energy of 1).
constexpr double inaudible = -400.0;

// A spectrum at one level on its own regular grid from f_start to f_end, df apart (Hz).
inline boost::shared_ptr<spectrum_t> narrowband(double f_start, double f_end, double df,
                                                double level) {
    boost::shared_ptr<spectrum_t> spectrum =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(f_start, f_end, df));
    spectrum->fill_with(level);
    return spectrum;
}

// A 0 Hz to `f_end` grid, inaudible but for one line at `frequency`.
inline boost::shared_ptr<spectrum_t> single_line(double frequency, double level, double df,
                                                 double f_end = 20000.0) {
    boost::shared_ptr<spectrum_t> spectrum = narrowband(0.0, f_end, df, inaudible);
    spectrum->at(static_cast<std::size_t>(std::lround(frequency / df))) = level;
    return spectrum;
}

// A listed (discrete-tone) spectrum with the given lines.
inline boost::shared_ptr<spectrum_t> listed_lines(std::vector<double> const& frequencies,
                                                  std::vector<double> const& levels) {
    boost::shared_ptr<spectrum_t> spectrum =
        boost::make_shared<spectrum_t>(frequency_range_t::create_dt(frequencies.size()));
    spectrum->frequency_range->frequencies = frequencies;
    spectrum->values = levels;
    return spectrum;
}

inline boost::shared_ptr<spectrum_t> tob_filled_with(double level) {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->fill_with(level);
    return spectrum;
}

// Noise-field columns at the given angles (degrees).
inline boost::shared_ptr<noise_field_column_range_t> columns_at(std::vector<double> angles) {
    return noise_field_column_range_t::from_angles(angles);
}

// The message log_add fails with for these operands, or "" when it adds them.
template <class Levels>
std::string message_of_log_add(boost::shared_ptr<Levels> a, boost::shared_ptr<Levels> b,
                               boost::shared_ptr<Levels> result) {
    try {
        Levels::log_add(a, b, result);
    } catch (varno_calc_error const& error) {
        return error.what();
    }
    return "";
}

// Width in Hz of band `band` (0 is 50 Hz) of the third-octave grid.
inline double band_width(std::size_t band) {
    return tob_fl[17 + band] - tob_fl[16 + band];
}

#endif
