#include "metrics/metrics_detail.hpp"

#include "frame/numeric_helpers.hpp"

#include <boost/format.hpp>

#include <algorithm>
#include <cmath>

namespace {

[[noreturn]] void fail(char const* function, char const* fault) {
    throw varno_calc_error::with_message((boost::format("%1%: %2%") % function % fault).str());
}

char const* const off_grid =
    "the spectrum is not on the third-octave grid (24 bands, 50 Hz to 10 kHz)";

bool on_tob_grid(boost::shared_ptr<frequency_range_t> const& range) {
    return range == tob_frequency_range_ptr ||
           (range && !range->isNB() && range->equals(tob_frequency_range_ptr));
}

} // namespace

bool VARNO::detail::contains_nan(std::vector<double> const& levels) {
    return std::any_of(levels.begin(), levels.end(),
                       [](double level) { return std::isnan(level); });
}

std::vector<double> const&
VARNO::detail::checked_levels(boost::shared_ptr<spectrum_t> const& spectrum, char const* function) {
    if (!spectrum) {
        fail(function, "no spectrum was given");
    }
    return spectrum->values;
}

std::vector<double> const&
VARNO::detail::checked_tob_levels(boost::shared_ptr<spectrum_t> const& spectrum,
                                  char const* function) {
    if (!spectrum || !on_tob_grid(spectrum->frequency_range) ||
        spectrum->values.size() != tob_band_count) {
        fail(function, off_grid);
    }
    return spectrum->values;
}

void VARNO::detail::check_tob_levels(std::vector<double> const& levels, char const* function) {
    if (levels.size() != tob_band_count) {
        fail(function, "expected 24 third-octave levels, 50 Hz to 10 kHz");
    }
}

void VARNO::detail::check_history(std::size_t samples, double time_step, char const* function) {
    if (samples == 0) {
        fail(function, "the history is empty");
    }
    if (!(time_step > 0.0) || std::isinf(time_step)) {
        fail(function, "the time step is not a positive number of seconds");
    }
}
