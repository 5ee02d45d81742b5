#include "tones/tone_location.hpp"

#include <bitset>

// The first five harmonics of a fundamental can hold tones. A harmonic clear of its band edges
// touches one band; within the factor 1.04 of an edge it touches the two bands that share it.
// Only indices on the 24-band grid are listed, so a harmonic below the grid adds nothing, as one
// above it does.

namespace VARNO {
namespace detail {

namespace {

void mark_on_grid(int index, std::bitset<tob_band_count>& touched) {
    if (on_grid(index, tob_band_count)) {
        touched.set(static_cast<std::size_t>(index));
    }
}

} // namespace

void Calc_HarmonicBands(double fundamental, std::vector<int>& bands) {
    std::bitset<tob_band_count> touched;
    for (int harmonic = 1; harmonic <= harmonic_count; ++harmonic) {
        double const frequency = harmonic * fundamental;
        if (!has_band(frequency)) {
            continue;
        }
        int const band = band_number(frequency);
        edge_zone const zone = edge_zone_of(frequency, band);
        if (zone == edge_zone::inside) {
            mark_on_grid(tob_index_of_band(band), touched);
            continue;
        }
        int const lower_index = shared_edge_of(zone, band).lower_index;
        mark_on_grid(lower_index, touched);
        mark_on_grid(lower_index + 1, touched);
    }
    bands.clear();
    for (std::size_t index = 0; index < touched.size(); ++index) {
        if (touched.test(index)) {
            bands.push_back(static_cast<int>(index));
        }
    }
}

} // namespace detail
} // namespace VARNO
