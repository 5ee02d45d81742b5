// The footprint calculation: the climb is flown once into a list of positions; then, for every
// observer of the grid, each position's ray is traced, every source carried along it and added
// by energy into the total aircraft, and the total's history integrated into the indicators.
// Everything the observers share is made before the parallel loop and only read inside it.
#include "footprint.hpp"

#include "aircraft_sound.hpp"

#include <omp.h>

#include <cmath>
#include <stdexcept>

namespace {

// The aircraft's position at one point of the trajectory, on the track y = 0.
struct position_t {
    double x = 0.0; // m
    double z = 0.0; // m
};

// What every observer hears from: the aircraft, its air and ground, the trajectory.
struct scene_t {
    boost::shared_ptr<simulation_t> simulation;
    boost::shared_ptr<frequency_range_t> fan_grid;
    boost::shared_ptr<ambient_conditions_t> air;
    engine_power_t power;
    std::vector<position_t> trajectory;
    double path_angle = 0.0; // degrees
    double mach = 0.0;
    double time_step = 0.0; // s
    double microphone_height = 0.0;
};

// The climb's positions every time step, from its start for as long as it lasts.
std::vector<position_t> fly(climb_t const& climb, double speed) {
    double const rise = climb.end_altitude - climb.start_altitude;
    double const path_length = std::hypot(climb.length, rise);
    double const step = speed * climb.time_step;
    auto const count = static_cast<std::size_t>(path_length / step) + 1;
    std::vector<position_t> trajectory(count);
    for (std::size_t k = 0; k < count; ++k) {
        double const flown = static_cast<double>(k) * step / path_length;
        trajectory[k].x = flown * climb.length;
        trajectory[k].z = climb.start_altitude + flown * rise;
    }
    return trajectory;
}

scene_t make_scene(footprint_options_t const& options) {
    scene_t scene;
    scene.simulation = build_aircraft_simulation(options.ground);
    scene.fan_grid = make_fan_grid();
    scene.air = standard_air();
    scene.power = take_off_power();
    climb_t const& climb = options.climb;
    double speed = 0.0;
    double mach = climb.mach;
    Calc_Speed(&speed, &mach, 0.0, 0.0, scene.air->temperature);
    scene.trajectory = fly(climb, speed);
    scene.path_angle = degrees(std::atan2(climb.end_altitude - climb.start_altitude, climb.length));
    scene.mach = climb.mach;
    scene.time_step = climb.time_step;
    scene.microphone_height = options.microphone_height;
    return scene;
}

// Adds every source of the aircraft, heard along `path`, into `total`.
void add_aircraft(scene_t const& scene, propagation_path_t const& path,
                  boost::shared_ptr<spectrum_t> const& total) {
    aircraft_t const& aircraft = *scene.simulation->aircraft;
    for (auto const* sources : {&aircraft.engine_sources, &aircraft.airframe_sources}) {
        for (auto const& source : *sources) {
            heard_source_t const heard =
                hear_source(source->type, path, scene.power, scene.fan_grid);
            spectrum_t::log_add(total, heard.whole, total);
        }
    }
}

// The whole chain at one observer: nothing here is shared but what the scene holds, read only.
observer_levels_t hear_climb(scene_t const& scene, double x, double y) {
    ray_geometry_t ray;
    ray.path_angle = scene.path_angle;
    ray.mach = scene.mach;
    ray.observer_x = x;
    ray.observer_y = y;
    ray.microphone_height = scene.microphone_height;
    auto const& ground = scene.simulation->tsour->transposition_options->common_all_sources;
    std::vector<boost::shared_ptr<spectrum_t>> history;
    history.reserve(scene.trajectory.size());
    for (position_t const& position : scene.trajectory) {
        ray.source_x = position.x;
        ray.source_z = position.z;
        auto const total = spectrum_t::create_tob();
        add_aircraft(scene, trace_path(ray, ground, scene.air), total);
        history.push_back(total);
    }
    time_history_metrics_t const metrics = Calc_TimeHistoryMetrics(history, scene.time_step);
    return {metrics.sel, metrics.dba_max.level, metrics.perceived.epnl};
}

// `extent` / `step` + 1 lines (rounded) `step` apart, centred on `centre`. The offsets from the
// centre are whole or half steps, exact in binary, so lines on either side mirror exactly.
std::vector<double> grid_lines(double centre, double extent, double step) {
    auto const count = static_cast<std::size_t>(std::floor(extent / step + 0.5)) + 1;
    double const middle = 0.5 * static_cast<double>(count - 1);
    std::vector<double> lines(count);
    for (std::size_t k = 0; k < count; ++k) {
        lines[k] = centre + (static_cast<double>(k) - middle) * step;
    }
    return lines;
}

void check(footprint_options_t const& options) {
    climb_t const& climb = options.climb;
    bool const sound = climb.length > 0.0 && climb.start_altitude >= 0.0 &&
                       climb.end_altitude >= 0.0 && climb.mach > 0.0 && climb.mach < 0.9 &&
                       climb.time_step > 0.0 && options.extent_x >= 0.0 &&
                       options.extent_y >= 0.0 && options.step_x > 0.0 && options.step_y > 0.0 &&
                       options.microphone_height > 0.0 && options.threads >= 0;
    if (!sound) {
        throw std::invalid_argument(
            "footprint: need a climb of positive length above the ground at a Mach number "
            "between 0 and 0.9, a positive time step, grid steps and microphone height, "
            "extents of 0 or more and a thread count of 0 or more");
    }
}

} // namespace

footprint_t run_footprint(footprint_options_t const& options) {
    check(options);
    scene_t const scene = make_scene(options);
    footprint_t footprint;
    footprint.x = grid_lines(0.5 * options.climb.length, options.extent_x, options.step_x);
    footprint.y = grid_lines(0.0, options.extent_y, options.step_y);
    footprint.trajectory_points = scene.trajectory.size();
    footprint.threads = options.threads > 0 ? options.threads : omp_get_max_threads();

    std::size_t const columns = footprint.x.size();
    auto const observers = static_cast<long>(columns * footprint.y.size());
    footprint.levels.resize(static_cast<std::size_t>(observers));
    // An observer takes milliseconds: handing them out one at a time balances the threads at
    // no noticeable cost, and each writes only its own entry.
#pragma omp parallel for schedule(dynamic) num_threads(footprint.threads)
    for (long k = 0; k < observers; ++k) {
        auto const n = static_cast<std::size_t>(k);
        footprint.levels[n] = hear_climb(scene, footprint.x[n % columns], footprint.y[n / columns]);
    }
    return footprint;
}
