// The pieces of the flyover calculation, one file each.
#ifndef VARNO_EXAMPLES_FLYOVER_PIECES_HPP
#define VARNO_EXAMPLES_FLYOVER_PIECES_HPP

#include "flyover.hpp"

#include <string>

// ---- Scenario (scenario.cpp) ----------------------------------------------------------------

/// A two-engine aircraft with its engine and airframe sources, joined to a noise sources
/// calculation over the ground of `options`, with its calculation points and a prepared result
/// tree. The fan sources are held on `fan_grid`, everything else on third-octave bands.
boost::shared_ptr<simulation_t>
build_flyover_simulation(flyover_options_t const& options,
                         boost::shared_ptr<frequency_range_t> fan_grid);

/// The narrowband grid of the fan sources: 25 Hz lines up to 11.2 kHz.
boost::shared_ptr<frequency_range_t> make_fan_grid();

// ---- Illustrative source spectra (source_spectra.cpp) ---------------------------------------
// Source models belong to the calculation libraries; these made-up shapes only give the
// example something plausible to propagate. Levels are at 1 m from the source.

/// Third-octave spectrum of a jet or airframe source heard at `emission_angle` degrees.
boost::shared_ptr<spectrum_t> illustrative_broadband_source(source_type_t type,
                                                            double emission_angle);

/// Narrowband spectrum of a forward or aft fan: a broadband hump and tones at the first three
/// harmonics of `blade_passing_frequency` (Hz).
boost::shared_ptr<spectrum_t> illustrative_fan_source(source_type_t type, double emission_angle,
                                                      boost::shared_ptr<frequency_range_t> grid,
                                                      double blade_passing_frequency);

// ---- Propagation path (propagation_path.cpp) ------------------------------------------------

/// The ray from the aircraft to the microphone at one instant, and what it does to each band.
struct propagation_path_t {
    double distance = 0.0;       ///< m
    double emission_angle = 0.0; ///< degrees
    double doppler_ratio = 1.0;  ///< received over emitted frequency
    /// Spherical divergence from 1 m, less atmospheric absorption, plus ground reflection, dB
    /// per third-octave band.
    boost::shared_ptr<spectrum_t> gain;
};

/// Traces the ray from a source at `x` (m along the track, the microphone at 0) through the air
/// and off the ground that `simulation`'s options describe.
propagation_path_t trace_path(flyover_options_t const& options, double x,
                              boost::shared_ptr<simulation_t> simulation,
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

// ---- Result file (result_file.cpp) ----------------------------------------------------------

/// Writes every result record of every point of `flyover` to `path`, reads them back into a
/// freshly prepared tree and tells whether every level came back unchanged.
bool round_trip_results(flyover_t const& flyover, flyover_options_t const& options,
                        std::string const& path);

// ---- Report (report.cpp) --------------------------------------------------------------------

/// Prints one line per `every` samples and the integrated indicators.
void print_report(flyover_t const& flyover, std::size_t every);

/// Writes the time history as CSV: one row per sample, the spectrum's bands last.
void write_history_csv(flyover_t const& flyover, std::string const& path);

/// Draws the level history and a spectrogram into `png` with gnuplot; false when it fails.
bool plot_history(flyover_t const& flyover, std::string const& csv, std::string const& png);

#endif // VARNO_EXAMPLES_FLYOVER_PIECES_HPP
