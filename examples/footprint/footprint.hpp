// The noise footprint of a take-off climb: the examples' aircraft heard by every observer of a
// regular grid on the ground, each observer's time history integrated into SEL, LAmax and EPNL.
// Observers are independent: OpenMP shares them among the threads, and each writes only its own
// entry of the grid, so that the grid does not depend on how many threads computed it.
#ifndef VARNO_EXAMPLES_FOOTPRINT_HPP
#define VARNO_EXAMPLES_FOOTPRINT_HPP

#include <calc-common/calc-common.hpp>

#include <cstddef>
#include <vector>

/// A straight climb along +x over the ground track y = 0, engines at take-off power.
struct climb_t {
    double start_altitude = 0.0; ///< height at x = 0, m
    double end_altitude = 600.0; ///< height at x = `length`, m
    double length = 6000.0;      ///< ground distance of the climb, m
    double mach = 0.25;          ///< flight Mach number along the path
    double time_step = 0.5;      ///< s between the points of the trajectory
};

/// What the footprint is: the climb, the grid of observers and the ground under them.
struct footprint_options_t {
    climb_t climb;
    /// Grid extent along the track and across it, m; the grid is centred on the middle of the
    /// climb's ground track and is symmetric about the track.
    double extent_x = 12000.0;
    double extent_y = 4000.0;       ///< m
    double step_x = 200.0;          ///< m between grid columns
    double step_y = 100.0;          ///< m between grid rows
    double microphone_height = 1.2; ///< microphones above the ground, m
    ground_reflection_method_t ground = ground_delany_bazley_grass; ///< ground model
    int threads = 0; ///< threads sharing the observers; 0 for as many as there are cores
};

/// The indicators of the climb at one observer.
struct observer_levels_t {
    double sel = 0.0;    ///< sound exposure level over the trajectory, dB(A) re 1 s
    double la_max = 0.0; ///< largest A-weighted level, dB(A)
    double epnl = 0.0;   ///< effective perceived noise level, EPNdB
};

/// The footprint over the grid.
struct footprint_t {
    std::vector<double> x; ///< grid columns, m along the track
    std::vector<double> y; ///< grid rows, m across the track, y[j] = -y[rows - 1 - j]
    /// One entry per observer, row after row: the observer at (x[i], y[j]) is at
    /// j * x.size() + i.
    std::vector<observer_levels_t> levels;
    std::size_t trajectory_points = 0; ///< points of the climb each observer hears
    int threads = 0;                   ///< threads that shared the observers
};

/// Runs the whole calculation: the climb, then every observer of the grid on the threads of
/// `options`.
footprint_t run_footprint(footprint_options_t const& options);

/// The observer at (x[i], y[j]) of a footprint.
inline observer_levels_t const& level_at(footprint_t const& footprint, std::size_t i,
                                         std::size_t j) {
    return footprint.levels[j * footprint.x.size() + i];
}

#endif // VARNO_EXAMPLES_FOOTPRINT_HPP
