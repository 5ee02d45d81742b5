#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"
#include "geometry/aircraft_axes.hpp"

#include <cmath>

using namespace VARNO::detail;

namespace {

// Below this length (in the caller's unit) source and observer count as one point.
constexpr double coincidence_length = 1e-9;

constexpr double half_pi = pi / 2.0;

// Angle in radians of a cosine. Cosines within rounding of +1 or -1 are taken as exact
// alignment, so that acos never sees a value just outside its domain. (pi in degrees is exactly
// 180.0, so the clamped values also convert exactly.)
double aligned_acos(double cosine) {
    if (tolerantly_at_least(cosine, 1.0)) {
        return 0.0;
    }
    if (tolerantly_at_most(cosine, -1.0)) {
        return pi;
    }
    return std::acos(cosine);
}

} // namespace

double Calc_AzimuthAngle(double const& source_x, double const& source_y, double const& source_z,
                         double const& observer_x, double const& observer_y,
                         double const& observer_z, double const& yaw, double const& roll,
                         double const& pitch, double const& plane_angle) {
    // Yaw-pitch-roll axes of a frame with z down.
    double const cy = std::cos(yaw * degrees_to_radians), sy = std::sin(yaw * degrees_to_radians);
    double const cr = std::cos(roll * degrees_to_radians), sr = std::sin(roll * degrees_to_radians);
    double const cp = std::cos(pitch * degrees_to_radians);
    double const sp = std::sin(pitch * degrees_to_radians);
    vector3 const lateral{sr * cy * sp - cr * sy, sr * sy * sp + cr * cy, sr * cp};
    vector3 const forward{cy * cp, sy * cp, -sp};
    vector3 const lower{cy * sp * cr + sy * sr, sy * sp * cr - cy * sr, cp * cr};

    double const ca = std::cos(plane_angle * degrees_to_radians);
    double const sa = std::sin(plane_angle * degrees_to_radians);
    vector3 const in_plane = combine(sa, forward, ca, lower);
    vector3 const d{observer_x - source_x, observer_y - source_y, observer_z - source_z};
    double const u = dot(d, lateral);
    double const v = dot(d, in_plane);
    return 90.0 - std::acos(u / std::hypot(u, v)) * radians_to_degrees;
}

void Calc_DopplerAngle(double pitch, double heading, double roll, double attack, double source_x,
                       double source_y, double source_z, double observer_x, double observer_y,
                       double observer_z, double observer_height, double* angle) {
    vector3 const d = line_of_sight(source_x, source_y, source_z, observer_x, observer_y,
                                    observer_z, observer_height);
    double const distance = length(d);
    // A distance on the threshold already counts as coincident here; a not-a-number distance
    // does not, and runs through to the result.
    if (tolerantly_at_most(distance, coincidence_length)) {
        *angle = half_pi;
        return;
    }
    vector3 const flight = aircraft_axes(pitch, heading, roll).turned_towards_lower(attack);
    *angle = aligned_acos(dot(flight, d) / distance);
}

void Calc_ElevationAngle(double source_z, double observer_z, double observer_height,
                         double distance, double horizontal_distance, double slant_distance,
                         double* elevation_from_ratio, double* elevation) {
    *elevation_from_ratio = std::acos(horizontal_distance / slant_distance) * radians_to_degrees;
    *elevation =
        std::asin((source_z - (observer_z + observer_height)) / distance) * radians_to_degrees;
}

void Calc_EmissionAngle(double pitch, double path_angle, double heading, double roll,
                        double axis_angle, double source_x, double source_y, double source_z,
                        double observer_x, double observer_y, double observer_z,
                        double observer_height, double* angle, double* angle_to_path,
                        double* angle_to_body) {
    vector3 const d = line_of_sight(source_x, source_y, source_z, observer_x, observer_y,
                                    observer_z, observer_height);
    double const distance = length(d);
    // Unlike the Doppler angle, a distance on the threshold is still measured.
    if (tolerantly_below(distance, coincidence_length)) {
        *angle = 90.0;
    } else {
        vector3 const axis = aircraft_axes(pitch, heading, roll).turned_towards_lower(-axis_angle);
        *angle = aligned_acos(dot(axis, d) / distance) * radians_to_degrees;
    }
    *angle_to_path = *angle - pitch + path_angle - axis_angle;
    *angle_to_body = *angle - axis_angle;
}
