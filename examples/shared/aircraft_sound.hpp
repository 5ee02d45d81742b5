// The examples' aircraft as an observer on the ground hears it: the aircraft and its sources,
// made-up source spectra, the ray from the aircraft to the observer and what it does to each
// band, and the fans' tones separated from their broadband floor and Doppler-shifted. The flyover
// and the footprint both hear the aircraft through these pieces, one file each.
#ifndef VARNO_EXAMPLES_AIRCRAFT_SOUND_HPP
#define VARNO_EXAMPLES_AIRCRAFT_SOUND_HPP

#include <calc-common/calc-common.hpp>

// ---- Angles ----------------------------------------------------------------------------------

constexpr double pi = 3.14159265358979323846;

/// Degrees of an angle of `radians`.
inline double degrees(double radians) {
    return radians * 180.0 / pi;
}

/// Radians of an angle of `degrees_` degrees.
inline double radians(double degrees_) {
    return degrees_ * pi / 180.0;
}

// ---- Aircraft and air (aircraft.cpp) --------------------------------------------------------

/// A two-engine aircraft (jet, forward fan with its broadband and tone components and aft fan on
/// each engine; slats, flaps, two main landing gears and a nose gear) joined to a noise sources
/// calculation whose sources are reflected by `ground`; no calculation points yet.
boost::shared_ptr<simulation_t> build_aircraft_simulation(ground_reflection_method_t ground);

/// The narrowband grid of the fan sources: 25 Hz lines up to 11.2 kHz.
boost::shared_ptr<frequency_range_t> make_fan_grid();

/// True for the forward and aft fans, the sources held on the narrowband grid.
bool is_fan(source_type_t type);

/// Standard air at the ground (288.15 K, 101325 Pa), 70 % humid.
boost::shared_ptr<ambient_conditions_t> standard_air();

// ---- Illustrative source spectra (source_spectra.cpp) ---------------------------------------
// Source models belong to the calculation libraries; these made-up shapes only give the
// examples something plausible to propagate. Levels are at 1 m from the source.

/// How hard the engines run, as the made-up engine spectra see it.
struct engine_power_t {
    double jet_gain = 0.0;  ///< dB added to the jet's spectrum
    double fan_gain = 0.0;  ///< dB added to each fan's broadband hump and tones
    double fan_speed = 1.0; ///< fan shaft speed over that of the approach: moves humps and tones
    /// Emitted blade-passing frequency of the fans, Hz: 1.6 kHz at approach speed.
    double blade_passing_frequency() const { return 1600.0 * fan_speed; }
};

/// The engines on approach, as the flyover has them: every gain 0 dB, BPF 1.6 kHz.
engine_power_t approach_power();

/// The engines at take-off power: the jet 12 dB louder (jet noise grows with the eighth power of
/// the jet velocity, here 1.4 times the approach's), the fans turning 1.5 times faster and 9 dB
/// louder (about the fifth power of their tip speed).
engine_power_t take_off_power();

/// Third-octave spectrum of a jet or airframe source heard at `emission_angle` degrees.
boost::shared_ptr<spectrum_t> illustrative_broadband_source(source_type_t type,
                                                            double emission_angle,
                                                            engine_power_t const& power);

/// Narrowband spectrum of a forward or aft fan: a broadband hump and tones at the first three
/// harmonics of the blade-passing frequency of `power`.
boost::shared_ptr<spectrum_t> illustrative_fan_source(source_type_t type, double emission_angle,
                                                      engine_power_t const& power,
                                                      boost::shared_ptr<frequency_range_t> grid);

// ---- Propagation path (propagation_path.cpp) ------------------------------------------------

/// Where the aircraft and the observer are at one instant. The aircraft flies along +x, wings
/// level, its nose along its flight path; the observer's feet are on the ground, z = 0.
struct ray_geometry_t {
    double source_x = 0.0;          ///< m
    double source_y = 0.0;          ///< m
    double source_z = 0.0;          ///< height above the ground, m
    double path_angle = 0.0;        ///< climb angle of the flight path, degrees
    double mach = 0.0;              ///< flight Mach number
    double observer_x = 0.0;        ///< m
    double observer_y = 0.0;        ///< m
    double microphone_height = 0.0; ///< microphone above the ground, m
};

/// The ray from the aircraft to the microphone at one instant, and what it does to each band.
struct propagation_path_t {
    double distance = 0.0;       ///< m
    double emission_angle = 0.0; ///< degrees
    double doppler_ratio = 1.0;  ///< received over emitted frequency
    /// Spherical divergence from 1 m, less atmospheric absorption, plus ground reflection, dB
    /// per third-octave band.
    boost::shared_ptr<spectrum_t> gain;
};

/// Traces the ray of `ray` through `ambient` air and off the ground that `ground` describes.
propagation_path_t trace_path(ray_geometry_t const& ray,
                              boost::shared_ptr<common_all_sources_transposition_t> ground,
                              boost::shared_ptr<ambient_conditions_t> ambient);

/// Adds the path's gain to every sounding band of a third-octave spectrum; a band brought to
/// 0 dB or below falls silent.
void apply_path(propagation_path_t const& path, boost::shared_ptr<spectrum_t> spectrum);

// ---- Fan tones (fan_tones.cpp) --------------------------------------------------------------

/// A fan heard at the microphone, before propagation, in third-octave bands.
struct heard_fan_t {
    boost::shared_ptr<spectrum_t> broadband; ///< broadband part, dB
    boost::shared_ptr<spectrum_t> tones;     ///< Doppler-shifted tones, dB, with their tone list
    double fundamental_received = 0.0;       ///< received blade-passing frequency, Hz
};

/// Converts a narrowband fan to third-octave bands, separates its tones from the broadband
/// floor and moves them by `doppler_ratio`.
heard_fan_t hear_fan(boost::shared_ptr<spectrum_t> narrowband, double blade_passing_frequency,
                     double doppler_ratio);

// ---- One source at the microphone (heard_source.cpp) ----------------------------------------

/// One source of the aircraft as the microphone hears it at one instant.
struct heard_source_t {
    /// Third-octave spectrum at the microphone, dB; a fan's carries its tone list.
    boost::shared_ptr<spectrum_t> whole;
    boost::shared_ptr<spectrum_t> narrowband; ///< a fan's narrowband spectrum at 1 m; else empty
    boost::shared_ptr<spectrum_t> broadband;  ///< a fan's broadband part at the microphone
    boost::shared_ptr<spectrum_t> tones;      ///< a fan's tones at the microphone
    double fan_tone_received = 0.0;           ///< a fan's received blade-passing frequency, Hz
};

/// Makes the spectrum of a source of type `type` towards the ray of `path`, separates and
/// Doppler-shifts a fan's tones, and carries it all to the microphone.
heard_source_t hear_source(source_type_t type, propagation_path_t const& path,
                           engine_power_t const& power,
                           boost::shared_ptr<frequency_range_t> fan_grid);

#endif // VARNO_EXAMPLES_AIRCRAFT_SOUND_HPP
