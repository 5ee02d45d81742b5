#ifndef CALC_COMMON_SRC_TONES_TONE_LOCATION_HPP
#define CALC_COMMON_SRC_TONES_TONE_LOCATION_HPP

// Internal routines of tone location: the array twins of the locators and of the gap filler, the
// bands a fundamental's harmonics touch, and the comparisons the tone routines share.

#include "frame/numeric_helpers.hpp"

#include <vector>

namespace VARNO {
namespace detail {

/// A band holding 0.001 dB or less counts as empty.
constexpr double empty_band_level = 0.001;

/// Index used for a frequency that has no band: it matches no band of the grid.
constexpr int off_grid = -1;

/// Grid index of a frequency, or off_grid when it has no band at all.
inline int grid_index_or_off(double frequency_hz) {
    return has_band(frequency_hz) ? tob_index(frequency_hz) : off_grid;
}

/// The tones of a fundamental that count: its first five harmonics.
constexpr int harmonic_count = 5;

/// a = b tolerantly for tone levels: each is tolerantly at most the other. Unlike the shared
/// tolerantly_equal, a not-a-number or an infinite level equals nothing, itself included, so such
/// a level is never taken for a gap of the floor or for the level of a tone.
inline bool tolerantly_same(double a, double b) {
    return tolerantly_at_most(a, b) && tolerantly_at_most(b, a);
}

/// Comparison policies: the spectrum forms of the tone routines compare tolerantly, their array
/// twins with the plain operators.
struct tolerant_comparison {
    static bool above(double a, double b) { return tolerantly_above(a, b); }
    static bool below(double a, double b) { return tolerantly_below(a, b); }
    static bool at_most(double a, double b) { return tolerantly_at_most(a, b); }
};

struct plain_comparison {
    static bool above(double a, double b) { return a > b; }
    static bool below(double a, double b) { return a < b; }
    static bool at_most(double a, double b) { return a <= b; }
};

/// Slope-difference locator on bare arrays of levels.size() bands, plain comparisons.
void Calc_TonesLocSlopeArray(std::vector<double> const& levels, double* broadband, double* tones);

/// Discrete-frequency locator on bare arrays, plain comparisons; when no band holds more than
/// 0.001 dB every level is broadband and it returns at once.
void Calc_TonesLocFreqArray(std::vector<double> const& levels, double* broadband, double* tones,
                            double const* slope_step, double const* tone_margin);

/// Gap filler on a bare array: a gap is a level of magnitude below 0.1, a value one above 0.1.
void Calc_InterpSpecArray(std::vector<double>& levels);

/// Replaces `bands` by the ascending grid indices (0 to 23) that the first five harmonics of
/// `fundamental` Hz can touch, two for a harmonic within the factor 1.04 of a band edge.
/// Harmonics off the grid, above or below, add nothing, and so does a fundamental that is not a
/// positive finite number.
void Calc_HarmonicBands(double fundamental, std::vector<int>& bands);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_TONES_TONE_LOCATION_HPP
