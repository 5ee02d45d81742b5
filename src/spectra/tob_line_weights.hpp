#ifndef CALC_COMMON_SRC_SPECTRA_TOB_LINE_WEIGHTS_HPP
#define CALC_COMMON_SRC_SPECTRA_TOB_LINE_WEIGHTS_HPP

// What the narrowband summation needs of a grid and nothing else: which band takes each line
// whole, the filter curve's weight of every line in every band, and the part of each line's
// width that each band covers. They depend on the grid alone, so each thread keeps those of the
// last grid it summed and rebuilds them only when the grid changes: a run over many spectra on
// one grid then pays one exponential per line and allocates nothing.

#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

#include <array>
#include <cstddef>
#include <vector>

namespace VARNO {
namespace detail {

/// Identity of a regular grid, by which a thread knows that the grid it meets is the one whose
/// weights it keeps: first line and step in Hz, and line count. A grid whose step is not
/// positive lists its frequencies instead, and never matches.
struct regular_grid_key {
    double f_start = 0.0;
    double df = 0.0;
    std::size_t count = 0;
    bool regular = false;

    /// Key of `range`.
    static regular_grid_key of(frequency_range_t const& range) {
        return {range.f_start, range.df, range.count, tolerantly_above(range.df, 0.0)};
    }

    /// Both keys are of one regular grid.
    bool same_grid(regular_grid_key const& other) const {
        return regular && other.regular && f_start == other.f_start && df == other.df &&
               count == other.count;
    }
};

/// Lower edge in Hz of band `band` (0 to 23) of the third-octave grid.
inline double tob_band_lower(std::size_t band) {
    return tob_fl[tob_first_band - 1 + band];
}

/// Upper edge in Hz of band `band` (0 to 23) of the third-octave grid.
inline double tob_band_upper(std::size_t band) {
    return tob_fl[tob_first_band + band];
}

/// Lines of each band when a line goes wholly to the band that holds it: band i holds the
/// lines [run_start[i], run_start[i + 1]); bands below `first_band` hold none.
struct whole_line_runs {
    std::size_t first_band;
    std::array<std::size_t, tob_band_count + 1> run_start;
};

/// Line-to-band runs of a regular grid, kept per thread.
whole_line_runs const& whole_line_runs_of(frequency_range_t const& range);

/// Power response of every band's filter curve to every line of a regular grid, line-major
/// (24 per line), kept per thread.
std::vector<double> const& filter_weights_of(frequency_range_t const& range);

/// A band's part (0 to 1) of a line's width.
struct band_share {
    std::size_t band;
    double share;
};

/// The bands each line of a regular grid reaches, with their parts of its width: line k's
/// are entries [first_entry[k], first_entry[k + 1]), in ascending band order. Bands a line
/// does not reach are left out.
struct overlap_shares {
    std::vector<std::size_t> first_entry;
    std::vector<band_share> entries;
};

/// Overlap shares of a regular grid, kept per thread.
overlap_shares const& overlap_shares_of(frequency_range_t const& range);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_SPECTRA_TOB_LINE_WEIGHTS_HPP
