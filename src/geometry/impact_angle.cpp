#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"
#include "geometry/aircraft_axes.hpp"

#include <algorithm>
#include <cmath>

using namespace VARNO::detail;

namespace {

// Squared speeds of sound and quadratic coefficients at or below this count as zero.
constexpr double negligible = 1e-9;

bool not_negative(double r) {
    return tolerantly_at_least(r, 0.0);
}

// Of the two times back along the flight line, the least one that is not negative; if both are
// negative, the one nearer to now.
double retarded_time(double r1, double r2) {
    bool const first_ok = not_negative(r1);
    bool const second_ok = not_negative(r2);
    if (first_ok && second_ok) {
        return std::min(r1, r2);
    }
    if (first_ok || second_ok) {
        return first_ok ? r1 : r2;
    }
    return std::max(r1, r2);
}

} // namespace

int Calc_ImpactAngle(double temperature, double wave_radius, double mach, double pitch,
                     double heading, double roll, double attack, double source_x, double source_y,
                     double source_z, double observer_x, double observer_y, double observer_offset,
                     double observer_z, double* elevation, double* delay, double* distance) {
    double const c2 = impact_heat_capacity_ratio * impact_gas_constant * temperature;
    double const c = std::sqrt(c2);
    double const dx = observer_x - source_x;
    double const dy = observer_y - source_y;
    // Height of the source over the observer: the other way round from dx and dy.
    double const dz = source_z - (observer_z - observer_offset);
    // A not-a-number temperature is not caught here: it runs through to the results.
    if (tolerantly_at_most(c2, negligible)) {
        *elevation = 0.0;
        *delay = 0.0;
        *distance = 0.0;
        return 1;
    }
    *delay = wave_radius / c;

    // The source flew straight at constant speed: find the time t back along its line such that
    // a sound emitted there has travelled the wave radius plus c*t to the observer,
    // A t^2 + 2 B t + K = 0.
    vector3 const velocity =
        scaled(mach * c, aircraft_axes(pitch, heading, roll).turned_towards_lower(attack));
    double const a =
        velocity.x * velocity.x + velocity.y * velocity.y + velocity.z * velocity.z - c2;
    double const b = velocity.y * dy + velocity.x * dx - velocity.z * dz - (wave_radius / c) * c2;
    double const k = dx * dx + dy * dy + dz * dz - (wave_radius / c) * (wave_radius / c) * c2;
    if (tolerantly_at_most(std::fabs(a), negligible)) {
        // A source at the speed of sound: the wave fronts pile up and there is no single root.
        *elevation = 0.0;
        *distance = 0.0;
        return 1;
    }
    // A negative discriminant is not tested: the not-a-number runs through.
    double const q = std::sqrt(4.0 * b * b - 4.0 * k * a);
    double const t = retarded_time((q - 2 * b) / (2 * a), (-2 * b - q) / (2 * a));

    double const ex = dx + t * velocity.x;
    double const ey = dy + t * velocity.y;
    double const ez = dz - t * velocity.z;
    *distance = std::sqrt(ex * ex + ey * ey + ez * ez);
    // The elevation takes the source's height now over the distance from where it emitted.
    double s = dz / *distance;
    if (tolerantly_below(s, -1.0)) {
        s = -1.0;
    } else if (tolerantly_above(s, 1.0)) {
        s = 1.0;
    }
    *elevation = std::asin(s) * radians_to_degrees;
    return 0;
}
