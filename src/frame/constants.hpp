#ifndef CALC_COMMON_SRC_FRAME_CONSTANTS_HPP
#define CALC_COMMON_SRC_FRAME_CONSTANTS_HPP

// Constants every subsystem shares, in the digits every routine uses.

namespace VARNO {
namespace detail {

// ---- Angles --------------------------------------------------------------------------------

constexpr double pi = 3.141592653589793;
constexpr double degrees_to_radians = 0.017453292519943295;
constexpr double radians_to_degrees = 57.29577951308232;

// ---- Time --------------------------------------------------------------------------------

constexpr double seconds_per_minute = 60.0;
constexpr double seconds_per_hour = 3600.0;

// ---- Speed of sound ------------------------------------------------------------------------
// The speed of sound in dry air, c = sqrt(gamma R T), as three routines of the library take it.
// Each was calibrated with its own constants, which differ from the fourth digit on; they stand
// side by side here so that none is mistaken for another, and must not be merged.

/// Flight speeds and Mach numbers (the standard-atmosphere relations of the flight manuals):
/// gamma R = 1.4 * 287.05, the rounded gas constant, so that c^2 = 401.87 T (m^2/s^2, T in K).
constexpr double flight_gamma_gas_constant = 401.87;

/// Source-to-observer geometry of the impact angle: gamma = 1.4 and the finer gas constant
/// (J/(kg K)) below, c^2 = 1.4 * 287.0530720470647 * T.
constexpr double impact_heat_capacity_ratio = 1.4;
constexpr double impact_gas_constant = 287.0530720470647;

/// Ground impedance models: c = 20.0468 sqrt(T) (m/s, T in K).
constexpr double ground_sound_speed_per_root_kelvin = 20.0468;

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_FRAME_CONSTANTS_HPP
