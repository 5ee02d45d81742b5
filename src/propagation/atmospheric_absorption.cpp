// Application of atmospheric absorption to a spectrum, frequency by frequency.

#include <calc-common/propagation.hpp>

#include "propagation/absorption_coefficients.hpp"

#include <cmath>
#include <limits>

using namespace VARNO::detail;

namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// Below this a frequency is taken as 0 Hz: a steady component that the air does not absorb.
constexpr double zero_frequency = 1e-6;

struct air1845_absorption {
    double coefficient(double frequency) const { return air1845_coefficient(frequency); }
};

// Calls `apply` with the coefficient formula of `method`, prepared for the air; does nothing
// for a method that has no formula. The air is read only by the methods that depend on it, so
// the fixed table and an unknown method accept a caller that has no ambient conditions.
template <class Apply>
void with_method(atm_abs_method_t method, double distance,
                 boost::shared_ptr<ambient_conditions_t> const& air, Apply&& apply) {
    switch (method) {
    case atm_abs_sutherland:
        apply(sutherland_absorption(air->temperature, air->pressure, air->relative_humidity));
        return;
    case atm_abs_arp866:
        apply(arp866_absorption(air->temperature, air->relative_humidity));
        return;
    case atm_abs_sae_air1845:
        apply(air1845_absorption());
        return;
    case atm_abs_arp5534:
        apply(
            arp5534_absorption(air->temperature, air->pressure, air->relative_humidity, distance));
        return;
    }
}

} // namespace

namespace VARNO {
namespace TrrApi {

void AtmAbsCoefficients(atm_abs_method_t method, double const& distance,
                        boost::shared_ptr<ambient_conditions_t> ambient,
                        boost::shared_ptr<spectrum_t> absorption) {
    frequency_range_t const& grid = *absorption->frequency_range;
    std::vector<double>& losses = absorption->values;
    with_method(method, distance, ambient, [&](auto const& formula) {
        for (std::size_t i = 0; i < losses.size(); ++i) {
            double const f = grid(i);
            if (std::fabs(f) < zero_frequency) {
                losses[i] = 0.0;
            } else if (f < 0.0) {
                losses[i] = not_a_number;
            } else {
                losses[i] = formula.coefficient(f) * (distance / 100.0);
            }
        }
    });
}

void AtmAbsCorrection(atm_abs_method_t method, boost::shared_ptr<spectrum_t> spectrum,
                      double const& distance, boost::shared_ptr<ambient_conditions_t> ambient) {
    frequency_range_t const& grid = *spectrum->frequency_range;
    std::vector<double>& levels = spectrum->values;
    with_method(method, distance, ambient, [&](auto const& formula) {
        for (std::size_t i = 0; i < levels.size(); ++i) {
            double const f = grid(i);
            if (std::isnan(levels[i]) || std::fabs(f) < zero_frequency) {
                continue;
            }
            levels[i] =
                f < 0.0 ? not_a_number : levels[i] - (formula.coefficient(f) * distance) / 100.0;
        }
    });
}

} // namespace TrrApi
} // namespace VARNO
