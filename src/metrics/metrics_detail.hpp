#ifndef CALC_COMMON_SRC_METRICS_METRICS_DETAIL_HPP
#define CALC_COMMON_SRC_METRICS_METRICS_DETAIL_HPP

// Input checks shared by the metrics, and the unchecked per-spectrum analyses that the
// time-history metrics run once per sample after checking the whole history.

#include <calc-common/metrics.hpp>

#include <limits>
#include <vector>

namespace VARNO {
namespace detail {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

/// True when any level is not a number: such a level makes a metric not a number rather than
/// silence, which is what the energy helpers would make of it.
bool contains_nan(std::vector<double> const& levels);

/// The levels of a spectrum on any grid; throws varno_calc_error naming `function` when there is
/// no spectrum.
std::vector<double> const& checked_levels(boost::shared_ptr<spectrum_t> const& spectrum,
                                          char const* function);

/// The 24 levels of a spectrum on the third-octave grid (the grid itself or an equal copy);
/// throws varno_calc_error naming `function` otherwise.
std::vector<double> const& checked_tob_levels(boost::shared_ptr<spectrum_t> const& spectrum,
                                              char const* function);

/// Throws varno_calc_error naming `function` unless there are 24 levels.
void check_tob_levels(std::vector<double> const& levels, char const* function);

/// Throws varno_calc_error naming `function` for an empty history or a step that is not a
/// positive number.
void check_history(std::size_t samples, double time_step, char const* function);

/// Unchecked analyses of 24 third-octave levels without a not-a-number among them.
double a_weighted_level(std::vector<double> const& tob_levels);
double perceived_noise_level(std::vector<double> const& tob_levels);
tone_correction_t tone_correction(std::vector<double> const& tob_levels);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_METRICS_METRICS_DETAIL_HPP
