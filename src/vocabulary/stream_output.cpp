// Stream output of the enumerations: the display text and nothing more.

#include <calc-common/vocabulary.hpp>

#include <ostream>

namespace {

template <class Enumeration>
std::ostream& write_text(std::ostream& os, Enumeration const& value) {
    return os << VARNO::StringValue(value);
}

} // namespace

// Exhaust configurations have no stream output of their own: streaming one writes its number,
// through the conversion to int, and their labels are reached through StringValue alone.

std::ostream& operator<<(std::ostream& os, aircraft_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, airframe_noise_prediction_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, atm_abs_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, attenuation_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, bsn_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, calculation_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, combustion_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, comp_fan_location_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, comp_fan_noise_component_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, comp_fan_noise_machper_option_t const& value) {
    // No display text: the option is shown by its number.
    return os << static_cast<int>(value);
}
std::ostream& operator<<(std::ostream& os, engine_manufacturer_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, exp_avg_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, export_flag_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, fan_esr_model_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, fan_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, flap_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, flight_speed_effect_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, ground_reflection_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, indicator_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, iso_parameter_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, iso_turbulence_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, jet_noise_prediction_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, jet_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, landing_gear_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, lateral_attenuation_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, nlcp_calculation_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, noise_component_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, power_management_parameter_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, power_management_parameter_unit_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, seasonal_adjustment_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, source_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, time_period_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, tone_sep_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, trajectory_type_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, turbine_method_t const& value) {
    return write_text(os, value);
}
std::ostream& operator<<(std::ostream& os, wecpn_method_t const& value) {
    return write_text(os, value);
}
