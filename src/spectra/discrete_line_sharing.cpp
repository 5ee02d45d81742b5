#include "spectra/tob_conversion.hpp"

#include "frame/numeric_helpers.hpp"

#include <algorithm>

// A list of discrete lines (tones) is placed on the third-octave grid by the band of each
// line's frequency. A line within the 1.04 overlap of a band edge is shared by the two bands in
// proportion to its place in the overlap; a share that would fall off the grid is lost. Each
// line carries its whole energy 10^(L/10), however faint: the one cut is on the band total, so a
// band whose energy stays at or below 1 is silent, while two 0.9 dB lines in one band sound.

namespace VARNO {
namespace detail {

namespace {

// Up to two bands, with the share of the line's energy each one takes.
struct band_shares {
    int band[2];
    double share[2];
};

band_shares shares_of_line(double frequency, int band) {
    int const index = tob_index_of_band(band);
    double const lower_edge = band_lower_edge(band);
    double const upper_edge = band_upper_edge(band);
    if (tolerantly_below(frequency, lower_edge * band_edge_overlap)) {
        edge_shares const shares = shares_across_edge(frequency, lower_edge);
        return {{index - 1, index}, {shares.lower, shares.upper}};
    }
    if (tolerantly_at_most(frequency, upper_edge / band_edge_overlap)) {
        return {{index, index}, {1.0, 0.0}};
    }
    edge_shares const shares = shares_across_edge(frequency, upper_edge);
    return {{index, index + 1}, {shares.lower, shares.upper}};
}

bool on_grid(int index) {
    return index >= 0 && index < static_cast<int>(tob_band_count);
}

} // namespace

void share_discrete_lines_into_tob(frequency_range_t const& range,
                                   std::vector<double> const& levels, std::size_t columns,
                                   std::vector<double>& tob_levels) {
    std::fill_n(tob_levels.begin(), tob_band_count * columns, 0.0);
    for (std::size_t k = 0; k < range.count; ++k) {
        double const frequency = range(k);
        // Below 1 Hz a line has no band; a line whose own band is off the grid is dropped
        // whole, even the part of it that overlaps a band on the grid.
        if (frequency < 1.0) {
            continue;
        }
        int const band = band_number(frequency);
        if (!on_grid(tob_index_of_band(band))) {
            continue;
        }
        band_shares const shares = shares_of_line(frequency, band);
        for (int part = 0; part < 2; ++part) {
            if (!on_grid(shares.band[part]) || shares.share[part] == 0.0) {
                continue;
            }
            std::size_t const index = static_cast<std::size_t>(shares.band[part]);
            for (std::size_t column = 0; column < columns; ++column) {
                tob_levels[index * columns + column] +=
                    shares.share[part] * line_energy(levels[k * columns + column]);
            }
        }
    }
    for (std::size_t entry = 0; entry < tob_band_count * columns; ++entry) {
        tob_levels[entry] = energy_to_level(tob_levels[entry]);
    }
}

} // namespace detail
} // namespace VARNO
