#ifndef CALC_COMMON_SRC_SPECTRA_TOB_CONVERSION_HPP
#define CALC_COMMON_SRC_SPECTRA_TOB_CONVERSION_HPP

// The two ways a spectrum or a field reaches the 24 third-octave bands: summation of a
// regular narrowband grid, and sharing of a list of discrete lines. Levels are frequency-major
// with `columns` values per frequency (one for a spectrum), in the input and in the output.

#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

#include <cstddef>
#include <vector>

namespace VARNO {
namespace detail {

/// Number of level columns: one for a spectrum.
inline std::size_t column_count(spectrum_t const&) {
    return 1;
}

/// Number of level columns of a field: its directivity columns.
inline std::size_t column_count(noise_field_t const& field) {
    return field.column_range->size();
}

/// Power response |H|^2 at `frequency` of a Butterworth band-pass filter of the given order and
/// quality factor, centred on `centre` (both Hz): 1 / (1 + (q*(f/fc - fc/f))^(2*order)).
inline double band_pass_power_response(double q, std::size_t order, double frequency,
                                       double centre) {
    double const detuning = q * (frequency / centre - centre / frequency);
    double const detuning_squared = detuning * detuning;
    double power = 1.0;
    for (std::size_t i = 0; i < order; ++i) {
        power *= detuning_squared;
    }
    return 1.0 / (1.0 + power);
}

/// Order of the band-pass curve of the narrowband conversion's method 1.
constexpr std::size_t tob_filter_order = 3;

/// Narrowband summation of `levels` (on the regular grid `range`) into `tob_levels`, whose
/// first 24*columns entries are overwritten. Returns 1 for an unknown method (the bands are
/// then zero) as soon as there is a level to sum, 0 otherwise.
int sum_narrowband_into_tob(frequency_range_t const& range, std::vector<double> const& levels,
                            std::size_t columns, nbtob_conversion_method method, int line_count,
                            std::vector<double>& tob_levels);

/// Sharing of the discrete lines of the listed `range` into `tob_levels`, whose first
/// 24*columns entries are overwritten.
void share_discrete_lines_into_tob(frequency_range_t const& range,
                                   std::vector<double> const& levels, std::size_t columns,
                                   std::vector<double>& tob_levels);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_SPECTRA_TOB_CONVERSION_HPP
