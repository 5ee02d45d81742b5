#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"
#include "geometry/aircraft_axes.hpp"

#include <cmath>

using namespace VARNO::detail;

namespace {

// Below this squared horizontal part of the flight direction the line counts as vertical.
constexpr double vertical_line_limit = 1e-9;

struct foot_points {
    double ground_x, ground_y;
    vector3 spatial;
};

// Nearest points to the observer's ear: of the flight line's ground track (horizontally) and of
// the flight line in space.
foot_points on_flight_line(vector3 const& flight, vector3 const& source, vector3 const& ear,
                           double along_ground, double horizontal_squared) {
    double const s = along_ground / horizontal_squared;
    double const t =
        ((ear.z - source.z) * flight.z + along_ground) / (flight.z * flight.z + horizontal_squared);
    return {s * flight.x + source.x,
            s * flight.y + source.y,
            {t * flight.x + source.x, t * flight.y + source.y, t * flight.z + source.z}};
}

} // namespace

_lateral_distance_inex_data_t lateral_distance_inex_normal() {
    return {0, 0.0, 0.0, 0.0};
}

_lateral_distance_inex_data_t
lateral_distance_inex_take_off_before_brake_release(double x, double y, double z) {
    return {1, x, y, z};
}

_lateral_distance_inex_data_t lateral_distance_inex_approach_after_50ft(double x, double y,
                                                                        double z) {
    return {2, x, y, z};
}

void Calc_LateralDistance(double pitch, double heading, double roll, double attack, double source_x,
                          double source_y, double source_z, double observer_x, double observer_y,
                          double observer_z, double observer_height,
                          _lateral_distance_inex_data_t inex, double* lateral_distance,
                          double* least_distance) {
    vector3 const flight = aircraft_axes(pitch, heading, roll).turned_towards_lower(attack);
    vector3 const source{source_x, source_y, source_z};
    vector3 const ear{observer_x, observer_y, observer_z + observer_height};
    double const along_ground = (ear.x - source.x) * flight.x + (ear.y - source.y) * flight.y;
    double const horizontal_squared = flight.y * flight.y + flight.x * flight.x;
    if (tolerantly_below(std::fabs(horizontal_squared), vertical_line_limit)) {
        *lateral_distance = 0.0;
        *least_distance = 0.0;
        return;
    }
    // Values 1 and 2 differ only in the caller's reason for fixing the point.
    foot_points const foot =
        inex.inex_type != 0
            ? foot_points{inex.point_x, inex.point_y, {inex.point_x, inex.point_y, inex.point_z}}
            : on_flight_line(flight, source, ear, along_ground, horizontal_squared);
    *lateral_distance = std::hypot(ear.x - foot.ground_x, ear.y - foot.ground_y);
    *least_distance =
        length({ear.x - foot.spatial.x, ear.y - foot.spatial.y, ear.z - foot.spatial.z});
}
