// A level flyover heard by one microphone: the calculation that the example program runs, kept
// callable on its own so that a test and a benchmark can run it too.
#ifndef VARNO_EXAMPLES_FLYOVER_HPP
#define VARNO_EXAMPLES_FLYOVER_HPP

#include <calc-common/calc-common.hpp>

#include <cstddef>
#include <vector>

/// What the flyover is: the flight, the microphone and the ground under it.
struct flyover_options_t {
    double altitude = 120.0;        ///< height of the flight path above the ground, m
    double mach = 0.25;             ///< flight Mach number
    double microphone_height = 1.2; ///< microphone above the ground, m
    ground_reflection_method_t ground = ground_delany_bazley_grass; ///< ground model
    std::size_t point_count = 100; ///< calculation points, evenly spread in time
    double duration = 20.0;        ///< time from the first point to the last, s
};

/// The sound at the microphone at one calculation point.
struct flyover_sample_t {
    double time = 0.0;                   ///< s, 0 when the aircraft is overhead
    double distance = 0.0;               ///< source to microphone, m
    double emission_angle = 0.0;         ///< between the flight direction and the ray, degrees
    double doppler_ratio = 1.0;          ///< received over emitted frequency
    double fan_tone_received = 0.0;      ///< received blade-passing frequency, Hz
    double oaspl = 0.0;                  ///< overall level of the total aircraft, dB
    double la = 0.0;                     ///< A-weighted level, dB(A)
    double pnlt = 0.0;                   ///< tone-corrected perceived noise level, PNdB
    double loudest_band = 0.0;           ///< nominal frequency of the loudest band, Hz
    boost::shared_ptr<spectrum_t> total; ///< third-octave spectrum of the total aircraft
};

/// The outcome of a flyover: the simulation with its filled result tree, the time history at
/// the microphone and the indicators integrated over it.
struct flyover_t {
    boost::shared_ptr<simulation_t> simulation;
    std::vector<flyover_sample_t> samples;
    double time_step = 0.0;                   ///< s between calculation points
    double fan_blade_passing_frequency = 0.0; ///< emitted, Hz
    time_history_metrics_t metrics;
};

/// Runs the whole calculation: scenario, result tree, sources, propagation, totals and metrics.
flyover_t run_flyover(flyover_options_t const& options);

#endif // VARNO_EXAMPLES_FLYOVER_HPP
