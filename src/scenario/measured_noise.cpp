// Measured source noise and the power setting it was measured at.

#include <calc-common/scenario.hpp>

#include "frame/numeric_helpers.hpp"

#include <boost/make_shared.hpp>

namespace {

using VARNO::detail::pi;
using VARNO::detail::radians_to_degrees;
using VARNO::detail::seconds_per_hour;
using VARNO::detail::seconds_per_minute;

constexpr double newtons_per_decanewton = 10.0;
constexpr double decanewtons_per_kilonewton = 100.0;
constexpr double decanewtons_per_pound_force = 0.44482216152605;
constexpr double metres_per_foot = 0.3048;
constexpr double metres_per_nautical_mile = 1852.0;

// A parameter stored in the canonical unit of its family.
struct canonical_value {
    power_management_parameter_unit_t unit;
    double value;
};

canonical_value to_rpm(double value, power_management_parameter_unit_t unit) {
    switch (unit) {
    case power_unit_rad_per_s:
        return {power_unit_rpm, value * seconds_per_minute / (2.0 * pi)};
    case power_unit_tr_per_s:
        return {power_unit_rpm, value * seconds_per_minute};
    default:
        return {power_unit_rpm, value};
    }
}

canonical_value to_decanewtons(double value, power_management_parameter_unit_t unit) {
    switch (unit) {
    case power_unit_n:
        return {power_unit_dan, value / newtons_per_decanewton};
    case power_unit_kn:
        return {power_unit_dan, value * decanewtons_per_kilonewton};
    case power_unit_lbf:
        return {power_unit_dan, value * decanewtons_per_pound_force};
    default:
        return {power_unit_dan, value};
    }
}

canonical_value to_metres_per_second(double value, power_management_parameter_unit_t unit) {
    switch (unit) {
    case power_unit_ft_per_s:
        return {power_unit_m_per_s, value * metres_per_foot};
    case power_unit_kts:
        return {power_unit_m_per_s, value * metres_per_nautical_mile / seconds_per_hour};
    default:
        return {power_unit_m_per_s, value};
    }
}

canonical_value to_degrees(double value, power_management_parameter_unit_t unit) {
    return {power_unit_deg, unit == power_unit_rad ? value * radians_to_degrees : value};
}

// A unit the family does not convert keeps its number under the canonical unit: the caller
// knows what a percentage of a spool speed means, so the number is not touched.
canonical_value canonical(power_management_parameter_type_t type, double value,
                          power_management_parameter_unit_t unit) {
    // On the number: the family of spool speeds includes the unnamed value 5.
    switch (static_cast<int>(type)) {
    case power_parameter_n1:
    case power_parameter_n1k:
    case 5:
    case power_parameter_n2:
        return to_rpm(value, unit);
    case power_parameter_fn:
    case power_parameter_fnc:
        return to_decanewtons(value, unit);
    case power_parameter_vp:
    case power_parameter_vs:
    case power_parameter_vm:
        return to_metres_per_second(value, unit);
    case power_parameter_ainflow:
        return to_degrees(value, unit);
    default:
        return {unit, value};
    }
}

} // namespace

measured_source_noise_element_t::measured_source_noise_element_t()
    : power_management(boost::make_shared<power_management_t>()) {}

void measured_source_noise_element_t::add_power_management_parameter(
    power_management_parameter_type_t type, double value, power_management_parameter_unit_t unit) {
    auto const stored = canonical(type, value, unit);
    (*power_management)[power_management_key_t(type, stored.unit)] =
        boost::make_shared<power_management_parameter_t>(
            power_management_parameter_t{type, stored.value, stored.unit});
}

measured_source_noise_t::measured_source_noise_t(std::size_t count)
    : elements(count) {
    for (auto& element : elements) {
        element = boost::make_shared<measured_source_noise_element_t>();
    }
}
