#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"

#include <cmath>

using namespace VARNO::detail;

namespace {

// Standard troposphere with a linear lapse, and the speed of sound of the flight manuals.
constexpr double sea_level_temperature = 288.15; // K
constexpr double sea_level_pressure = 101325.0;  // Pa
constexpr double lapse_rate = -0.0065;           // K/m
constexpr double gravity = 9.81;                 // m/s2
constexpr double gas_constant = 287.05;          // J/(kg K)
constexpr double sea_level_sound_speed_squared =
    flight_gamma_gas_constant * sea_level_temperature; // m2/s2
constexpr double knot = 0.5144;                        // m/s

// gamma/(gamma - 1) and its inverse for gamma = 1.4, as double arithmetic gives them.
constexpr double pressure_exponent = 3.4999999999999996;
constexpr double inverse_pressure_exponent = 0.28571428571428575;

// The fixed-point iteration stops once an update moves the altitude by 0.1 m or less.
constexpr double altitude_convergence = 0.1; // m

double speed_of_sound(double temperature) {
    return std::sqrt(temperature * flight_gamma_gas_constant);
}

bool is_missing(double speed) {
    return tolerantly_at_most(speed, 0.0) && tolerantly_at_least(speed, 0.0);
}

} // namespace

int Calc_PressureAltitude(double altitude, double temperature_offset, double* pressure_altitude) {
    double h = altitude;
    double change = 0.0;
    do {
        double const correction =
            std::log(std::fabs(lapse_rate * h + sea_level_temperature) / sea_level_temperature) *
            temperature_offset / lapse_rate;
        double const next = altitude - correction;
        change = std::fabs(next - h);
        h = next;
        *pressure_altitude = h;
    } while (tolerantly_above(change, altitude_convergence));
    return 0;
}

int Calc_TrueAirSpeed(double calibrated_speed, double altitude, double ground_temperature,
                      double* true_speed, double* mach) {
    double pressure_altitude = 0.0;
    Calc_PressureAltitude(altitude, ground_temperature - sea_level_temperature, &pressure_altitude);
    double const temperature_drop = lapse_rate * pressure_altitude;
    double const exponent = (-gravity / lapse_rate) / gas_constant;
    // Sea-level pressure over the static pressure at the pressure altitude.
    double const pressure_ratio =
        sea_level_pressure /
        (std::pow(temperature_drop / sea_level_temperature + 1.0, exponent) * sea_level_pressure);

    // Impact pressure of the calibrated speed at sea level, carried to the static pressure aloft.
    double const v = calibrated_speed * knot;
    double const impact_ratio =
        std::pow(v * v * 0.2 / sea_level_sound_speed_squared + 1.0, pressure_exponent) - 1.0;
    *mach = std::sqrt(
        (std::pow(pressure_ratio * impact_ratio + 1.0, inverse_pressure_exponent) - 1.0) * 5.0);
    *true_speed = speed_of_sound(temperature_drop + ground_temperature) * *mach;
    return 0;
}

void Calc_Speed(double* true_speed, double* mach, double calibrated_speed, double altitude,
                double temperature) {
    if (!is_missing(calibrated_speed) && (is_missing(*true_speed) || is_missing(*mach))) {
        // The calibrated speed rules: both others are recomputed, even one the caller gave.
        // Here the temperature is the one at the ground, with the lapse applied above it.
        Calc_TrueAirSpeed(calibrated_speed, altitude, temperature, true_speed, mach);
        return;
    }
    // Otherwise the temperature is the local one at the aircraft.
    if (!is_missing(*true_speed) && is_missing(*mach)) {
        *mach = *true_speed / speed_of_sound(temperature);
        return;
    }
    if (!is_missing(*mach) && is_missing(*true_speed)) {
        *true_speed = speed_of_sound(temperature) * *mach;
    }
}
