#ifndef CALC_COMMON_SRC_FRAME_BANDS_HPP
#define CALC_COMMON_SRC_FRAME_BANDS_HPP

// Third-octave band arithmetic. Band b is centred on 10^(b/10) Hz and runs from 10^((2b-1)/20)
// to 10^((2b+1)/20); the 24-band grid runs from band 17 (50 Hz) to band 40 (10 kHz). Around each
// edge, frequencies within a factor of 1.04 of it lie in an overlap that the two bands meeting
// there share: a level in the overlap is split between them in linear proportion to its
// distance from the overlap's far limits.

#include "frame/constants.hpp"
#include "frame/tolerance.hpp"

#include <cmath>
#include <cstddef>

namespace VARNO {
namespace detail {

constexpr int tob_first_band = 17;
constexpr std::size_t tob_band_count = 24;

/// Only a positive finite frequency has a band number: anything else lies off every grid and
/// must never reach band_number, whose conversion to an integer it would make undefined.
inline bool has_band(double frequency_hz) {
    return frequency_hz > 0.0 && std::isfinite(frequency_hz);
}

/// Band number of a frequency in Hz that has one: the integer part of 10*log10(f) + 0.5.
inline int band_number(double frequency_hz) {
    return static_cast<int>(10.0 * std::log10(frequency_hz) + 0.5);
}

/// Index on the 24-band grid of a band number (0 is 50 Hz, 23 is 10 kHz).
inline int tob_index_of_band(int band) {
    return band - tob_first_band;
}

/// Index on the 24-band grid of a frequency in Hz that has a band.
inline int tob_index(double frequency_hz) {
    return tob_index_of_band(band_number(frequency_hz));
}

/// An index lies on a grid of `band_count` bands.
inline bool on_grid(int index, std::size_t band_count) {
    return index >= 0 && index < static_cast<int>(band_count);
}

/// Lower edge of band b in Hz, 10^((2b - 1)/20).
inline double band_lower_edge(int band) {
    return std::pow(10.0, (2.0 * band - 1.0) / 20.0);
}

/// Upper edge of band b in Hz, 10^((2b + 1)/20).
inline double band_upper_edge(int band) {
    return std::pow(10.0, (2.0 * band + 1.0) / 20.0);
}

/// Factor around a band edge within which the two bands meeting there share a frequency.
constexpr double band_edge_overlap = 1.04;

/// The overlap around a band edge, from edge/1.04 to edge*1.04 (Hz).
struct edge_overlap {
    double low;
    double high;
};

inline edge_overlap overlap_around(double edge_hz) {
    return {edge_hz / band_edge_overlap, edge_hz * band_edge_overlap};
}

/// Where a frequency lies in its band: clear of both overlaps, or in the overlap of the lower
/// or of the upper edge (tolerantly; the lower edge is tested first).
enum class edge_zone { inside, lower_overlap, upper_overlap };

inline edge_zone edge_zone_of(double frequency_hz, int band) {
    if (tolerantly_above(band_lower_edge(band) * band_edge_overlap, frequency_hz)) {
        return edge_zone::lower_overlap;
    }
    if (tolerantly_above(frequency_hz, band_upper_edge(band) / band_edge_overlap)) {
        return edge_zone::upper_overlap;
    }
    return edge_zone::inside;
}

/// The two bands that share a frequency lying in an overlap of band `band`: the grid index of
/// the lower one (the upper one follows it), and the overlap's limits.
struct shared_edge {
    int lower_index;
    edge_overlap overlap;
};

inline shared_edge shared_edge_of(edge_zone zone, int band) {
    int const index = tob_index_of_band(band);
    if (zone == edge_zone::lower_overlap) {
        return {index - 1, overlap_around(band_lower_edge(band))};
    }
    return {index, overlap_around(band_upper_edge(band))};
}

/// The parts of `energy` at `frequency_hz` that go to the band below and the band above the
/// edge of `overlap`, each in proportion to the frequency's distance from the far limit. An
/// energy of 1 gives the fractions; a frequency on a limit leaves the far band nothing.
struct edge_shares {
    double lower;
    double upper;
};

inline edge_shares share_across_edge(edge_overlap overlap, double frequency_hz, double energy) {
    double const width = overlap.high - overlap.low;
    return {(overlap.high - frequency_hz) * energy / width,
            (frequency_hz - overlap.low) * energy / width};
}

/// Design Q of a Butterworth band-pass of `order` for bands of `bands_per_octave` on the octave
/// ratio `octave_ratio`: the ideal band's Q widened by (pi/2N)/sin(pi/2N), so that the filter
/// passes white noise over exactly the band's width.
inline double butterworth_band_q(double octave_ratio, std::size_t bands_per_octave,
                                 std::size_t order) {
    double const n = static_cast<double>(order);
    double const half_band = 0.5 / static_cast<double>(bands_per_octave);
    double const ideal_q =
        1.0 / (std::pow(octave_ratio, half_band) - std::pow(octave_ratio, -half_band));
    return (pi / 2.0 / n) * ideal_q / std::sin(pi / (2.0 * n));
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_FRAME_BANDS_HPP
