#ifndef CALC_COMMON_SRC_TONES_TONE_SEPARATION_HPP
#define CALC_COMMON_SRC_TONES_TONE_SEPARATION_HPP

// Internal routines of the separation of tones from the broadband floor.

#include <calc-common/tones.hpp>

#include "frame/numeric_helpers.hpp"

#include <bitset>
#include <cstddef>
#include <vector>

namespace VARNO {
namespace detail {

/// The cut index: the band number of `cut_frequency` (Hz) less 19, two bands below its grid
/// index; 0 when that is not an index of a grid of `band_count` bands or the frequency has no band.
int cut_index(double cut_frequency, std::size_t band_count);

/// Locate (method 0 or 1; any other value leaves the outputs as given), fill the floor, check the
/// tones. Returns the cut index.
int Calc_SeparateTones(boost::shared_ptr<spectrum_t> spectrum, double check_margin,
                       double cut_frequency, double gap_value, tone_sep_method_t method,
                       double slope_step, double tone_margin,
                       boost::shared_ptr<spectrum_t> broadband,
                       boost::shared_ptr<spectrum_t> tones);

/// The same on `band_count` bare levels with plain comparisons, working on per-thread copies that
/// are resized only when the band count changes: the discrete-frequency locator for method 1 and
/// the slope locator for any other value. The floor is copied to `broadband` at the end.
int Calc_SeparateTonesArray(double const* levels, std::size_t band_count, double* broadband,
                            double* tones, double check_margin, double cut_frequency,
                            tone_sep_method_t method, double slope_step, double tone_margin);

/// Tone check on bare arrays, plain comparisons, near-zero levels as the gaps of the floor.
void Calc_CheckTonesArray(std::vector<double> const& levels, int k, double const* check_margin,
                          std::vector<double>& broadband, double* tones);

/// Rebuilds the values of `tones` from its whole tone list, as energies (not dB): each listed tone
/// adds its energy to its band, split with the neighbour within the factor 1.04 of a band edge
/// unless that neighbour's `keep_whole` flag is set, in which case the tone takes the input level
/// of its band (in the list too) and stays whole. Shares off the 24-band grid, and tones whose
/// frequency has no band, add nothing.
void Calc_LevelTonesInBands(boost::shared_ptr<spectrum_t> spectrum,
                            boost::shared_ptr<spectrum_t> tones,
                            std::bitset<tob_band_count> const& keep_whole);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_TONES_TONE_SEPARATION_HPP
