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

// Up to two grid indices, with the share of the line's energy each one takes.
struct band_shares {
    int index[2];
    double share[2];
};

band_shares shares_of_line(double frequency, int band) {
    edge_zone const zone = edge_zone_of(frequency, band);
    if (zone == edge_zone::inside) {
        int const index = tob_index_of_band(band);
        return {{index, index}, {1.0, 0.0}};
    }
    shared_edge const edge = shared_edge_of(zone, band);
    edge_shares const shares = share_across_edge(edge.overlap, frequency, 1.0);
    return {{edge.lower_index, edge.lower_index + 1}, {shares.lower, shares.upper}};
}

} // namespace

void share_discrete_lines_into_tob(frequency_range_t const& range,
                                   std::vector<double> const& levels, std::size_t columns,
                                   std::vector<double>& tob_levels) {
    std::fill_n(tob_levels.begin(), tob_band_count * columns, 0.0);
    for (std::size_t k = 0; k < range.count; ++k) {
        double const frequency = range(k);
        // Below 1 Hz, and at a frequency that is not a finite number, a line has no band; a line
        // whose own band is off the grid is dropped whole, even the part of it that overlaps a
        // band on the grid.
        if (!(frequency >= 1.0) || !has_band(frequency)) {
            continue;
        }
        int const band = band_number(frequency);
        if (!on_grid(tob_index_of_band(band), tob_band_count)) {
            continue;
        }
        band_shares const shares = shares_of_line(frequency, band);
        for (int part = 0; part < 2; ++part) {
            if (!on_grid(shares.index[part], tob_band_count) || shares.share[part] == 0.0) {
                continue;
            }
            std::size_t const index = static_cast<std::size_t>(shares.index[part]);
            for (std::size_t column = 0; column < columns; ++column) {
                tob_levels[index * columns + column] +=
                    shares.share[part] * energy_of_level_tenths(levels[k * columns + column]);
            }
        }
    }
    for (std::size_t entry = 0; entry < tob_band_count * columns; ++entry) {
        tob_levels[entry] = energy_to_level(tob_levels[entry]);
    }
}

} // namespace detail
} // namespace VARNO
