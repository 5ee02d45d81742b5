#ifndef CALC_COMMON_GEOMETRY_HPP
#define CALC_COMMON_GEOMETRY_HPP

// Trajectory geometry: source and observer angles, lateral distance, flight quantities and time
// series.

#endif // CALC_COMMON_GEOMETRY_HPP
