#ifndef CALC_COMMON_GEOMETRY_HPP
#define CALC_COMMON_GEOMETRY_HPP

/// @file
/// Trajectory geometry: source and observer angles, lateral distance, flight quantities and time
/// series.
///
/// Frame of the angle and distance functions (but Calc_AzimuthAngle): x and y horizontal, z up.
/// Heading turns from +x towards -y; positive pitch raises the nose; positive roll tilts the
/// aircraft's lower axis towards +y at heading 0. The angle of attack turns the flight direction
/// from the forward axis towards the lower axis. Angles are in degrees unless stated.

#include <calc-common/export.hpp>

#include <cstddef>
#include <vector>

// ==== Emission and observation angles ===========================================================

/// Azimuth (degrees, -90 to 90) of the observer seen from the source, in the plane of the
/// lateral axis and of the lower axis turned by `plane_angle` towards the forward axis: 0 in the
/// aircraft's plane of symmetry, positive on the side of the lateral axis. Own frame, z down,
/// with the usual yaw-pitch-roll axes. Not-a-number when the observer lies on the line through
/// the source normal to both of those axes.
VARNO_CALC_COMMON_EXPORT double Calc_AzimuthAngle(double const& source_x, double const& source_y,
                                                  double const& source_z, double const& observer_x,
                                                  double const& observer_y,
                                                  double const& observer_z, double const& yaw,
                                                  double const& roll, double const& pitch,
                                                  double const& plane_angle);

/// Angle in radians between the flight direction and the line from the source to the observer
/// (whose ear is `observer_height` above `observer_z`), for the Doppler shift: 0 ahead, pi
/// behind, pi/2 when source and observer coincide.
VARNO_CALC_COMMON_EXPORT void Calc_DopplerAngle(double pitch, double heading, double roll,
                                                double attack, double source_x, double source_y,
                                                double source_z, double observer_x,
                                                double observer_y, double observer_z,
                                                double observer_height, double* angle);

/// Elevation (degrees) of the line of sight in two ways: from the ratio of horizontal to slant
/// distance, and from the height of the source over the observer's ear against `distance`.
/// No ratio is clamped: a ratio beyond 1 in size gives not-a-number.
VARNO_CALC_COMMON_EXPORT void Calc_ElevationAngle(double source_z, double observer_z,
                                                  double observer_height, double distance,
                                                  double horizontal_distance, double slant_distance,
                                                  double* elevation_from_ratio, double* elevation);

/// Emission angle (degrees, 0 to 180) between the forward axis raised by `axis_angle` and the
/// line from the source to the observer's ear; 90 when they coincide. Also gives the angle
/// referred to the flight path, angle - pitch + path_angle - axis_angle, and to the body,
/// angle - axis_angle.
VARNO_CALC_COMMON_EXPORT void
Calc_EmissionAngle(double pitch, double path_angle, double heading, double roll, double axis_angle,
                   double source_x, double source_y, double source_z, double observer_x,
                   double observer_y, double observer_z, double observer_height, double* angle,
                   double* angle_to_path, double* angle_to_body);

/// Retarded-time geometry of a source flying straight at Mach `mach` in air at `temperature`
/// (K), whose wave front of radius `wave_radius` (m) has already left: the elevation (degrees) of
/// the source over the observer (at `observer_z` less `observer_offset`), the delay
/// wave_radius / c (s) and the distance (m) from the emission point to the observer.
/// Returns 0 when solved, 1 for a temperature not above 0 K or a source at the speed of sound (then
/// the unsolved results are 0.0).
VARNO_CALC_COMMON_EXPORT int Calc_ImpactAngle(double temperature, double wave_radius, double mach,
                                              double pitch, double heading, double roll,
                                              double attack, double source_x, double source_y,
                                              double source_z, double observer_x, double observer_y,
                                              double observer_offset, double observer_z,
                                              double* elevation, double* delay, double* distance);

// ==== Lateral distance and flight quantities ====================================================

/// How Calc_LateralDistance finds its foot points: on the flight line (inex_type 0), or at a
/// point the caller fixes (1: take-off before brake release, 2: approach after 50 ft).
struct _lateral_distance_inex_data_t {
    int inex_type;  ///< 0 normal, 1 take-off before brake release, 2 approach after 50 ft
    double point_x; ///< x of the fixed point
    double point_y; ///< y of the fixed point
    double point_z; ///< z of the fixed point
};

/// Foot points on the flight line.
VARNO_CALC_COMMON_EXPORT _lateral_distance_inex_data_t lateral_distance_inex_normal();
/// Foot points at (x, y, z), for a take-off before brake release.
VARNO_CALC_COMMON_EXPORT _lateral_distance_inex_data_t
lateral_distance_inex_take_off_before_brake_release(double x, double y, double z);
/// Foot points at (x, y, z), for an approach after the 50 ft point.
VARNO_CALC_COMMON_EXPORT _lateral_distance_inex_data_t
lateral_distance_inex_approach_after_50ft(double x, double y, double z);

/// Lateral distance: horizontal distance from the observer to the nearest point of the flight
/// line's ground track; least distance: from the observer's ear (`observer_height` above
/// `observer_z`) to the nearest point of the flight line. Both are measured to the record's point
/// instead when it fixes one, and are 0.0 for a vertical flight line.
VARNO_CALC_COMMON_EXPORT void
Calc_LateralDistance(double pitch, double heading, double roll, double attack, double source_x,
                     double source_y, double source_z, double observer_x, double observer_y,
                     double observer_z, double observer_height, _lateral_distance_inex_data_t inex,
                     double* lateral_distance, double* least_distance);

/// Pressure altitude (m) in the standard troposphere of a geometric `altitude` (m) in air that is
/// `temperature_offset` (K) warmer than standard, by fixed-point iteration to 0.1 m. Returns 0.
VARNO_CALC_COMMON_EXPORT int Calc_PressureAltitude(double altitude, double temperature_offset,
                                                   double* pressure_altitude);

/// True air speed (m/s) and Mach number of a calibrated air speed (knots) at `altitude` (m),
/// with `ground_temperature` (K) at sea level and the standard lapse. Returns 0.
VARNO_CALC_COMMON_EXPORT int Calc_TrueAirSpeed(double calibrated_speed, double altitude,
                                               double ground_temperature, double* true_speed,
                                               double* mach);

/// Fills in the missing speeds (0.0 means missing). A calibrated speed (knots) sets both true
/// speed (m/s) and Mach number from `temperature` taken as the ground temperature; otherwise one
/// of true speed and Mach number gives the other at the local `temperature` (K).
VARNO_CALC_COMMON_EXPORT void Calc_Speed(double* true_speed, double* mach, double calibrated_speed,
                                         double altitude, double temperature);

// ==== Time series and integrated metrics ========================================================

/// Pairs the samples of two series by a greedy warping path from the first samples to the last
/// ones, each step to the nearest-valued of the neighbouring pairs (ties: a step in `second`,
/// then in `first`, then both). second_links[i] receives the indices of `first` paired with
/// sample i of `second`, and first_links[j] the other way round; both are resized to their
/// series and appended to, so pass them empty. Empty inputs leave them alone.
VARNO_CALC_COMMON_EXPORT void
Calc_AlignTimeSeries(std::vector<double> const& first, std::vector<double> const& second,
                     std::vector<std::vector<std::size_t>>& second_links,
                     std::vector<std::vector<std::size_t>>& first_links);

/// Resamples three series over the ascending abscissas x (count of them) onto a grid of half
/// steps that holds x[centre] exactly, by linear interpolation. The outputs are not resized: they
/// need 2*(x[centre] - x[0]) + 2*(x[count-1] - x[centre]) + 1 entries (integer parts); a grid
/// point outside x leaves its entries as they are.
VARNO_CALC_COMMON_EXPORT void
interpIntegratedMetrics(int centre, std::vector<double> const& x, std::vector<double> const& y1,
                        std::vector<double> const& y2, std::vector<double> const& y3,
                        std::size_t const& count, std::vector<double>& out1,
                        std::vector<double>& out2, std::vector<double>& out3);

/// Energy sum, at half-unit steps of weight 0.5, of a level that falls from `start_level` (dB) by
/// spherical spreading as the distance grows from `start_distance` at `speed` per unit, down to
/// and including the first sample at or below `stop_level`; at most 1000 steps. With
/// `ratio_form` the level is written as a gain over the start level, otherwise as a loss. Gives
/// 0.0 for a speed that is not positive or a start not above the stop.
VARNO_CALC_COMMON_EXPORT void extrapIntegratedMetrics(double const& start_distance,
                                                      double const& speed,
                                                      double const& start_level,
                                                      double const& stop_level, bool ratio_form,
                                                      double* energy);

#endif // CALC_COMMON_GEOMETRY_HPP
