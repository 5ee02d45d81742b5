#ifndef CALC_COMMON_SRC_GEOMETRY_AIRCRAFT_AXES_HPP
#define CALC_COMMON_SRC_GEOMETRY_AIRCRAFT_AXES_HPP

// Plain three-vectors and the aircraft's body axes, shared by the angle and distance routines.
// Frame: x and y horizontal, z up; heading turns from +x towards -y.

#include "frame/numeric_helpers.hpp"

#include <cmath>

namespace VARNO {
namespace detail {

struct vector3 {
    double x, y, z;
};

inline double dot(vector3 const& a, vector3 const& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline double length(vector3 const& a) {
    return std::sqrt(dot(a, a));
}

inline vector3 scaled(double a, vector3 const& u) {
    return {a * u.x, a * u.y, a * u.z};
}

inline vector3 combine(double a, vector3 const& u, double b, vector3 const& v) {
    return {a * u.x + b * v.x, a * u.y + b * v.y, a * u.z + b * v.z};
}

/// Forward and lower body axes for pitch, heading and roll in degrees. Positive pitch raises the
/// nose; positive roll tilts the lower axis towards +y at heading 0.
struct aircraft_axes {
    vector3 forward;
    vector3 lower;

    aircraft_axes(double pitch, double heading, double roll) {
        double const cp = std::cos(pitch * degrees_to_radians);
        double const sp = std::sin(pitch * degrees_to_radians);
        double const ch = std::cos(heading * degrees_to_radians);
        double const sh = std::sin(heading * degrees_to_radians);
        double const cr = std::cos(roll * degrees_to_radians);
        double const sr = std::sin(roll * degrees_to_radians);
        forward = {cp * ch, -cp * sh, sp};
        lower = {sp * ch * cr + sh * sr, -sp * sh * cr + ch * sr, -cp * cr};
    }

    /// The forward axis turned by `angle` degrees towards the lower axis: the flight direction
    /// for an angle of attack, and with the angle negated, the forward axis raised by it.
    vector3 turned_towards_lower(double angle) const {
        return combine(std::cos(angle * degrees_to_radians), forward,
                       std::sin(angle * degrees_to_radians), lower);
    }
};

/// From the source to the observer's ear, `observer_height` above `observer_z`.
inline vector3 line_of_sight(double source_x, double source_y, double source_z, double observer_x,
                             double observer_y, double observer_z, double observer_height) {
    return {observer_x - source_x, observer_y - source_y, observer_z + observer_height - source_z};
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_GEOMETRY_AIRCRAFT_AXES_HPP
