// The pieces of the flyover calculation, one file each, beside those it shares with the
// footprint.
#ifndef VARNO_EXAMPLES_FLYOVER_PIECES_HPP
#define VARNO_EXAMPLES_FLYOVER_PIECES_HPP

#include "aircraft_sound.hpp"
#include "flyover.hpp"

#include <string>

// ---- Scenario (scenario.cpp) ----------------------------------------------------------------

/// The examples' aircraft and its noise sources calculation over the ground of `options`, with
/// its calculation points and a prepared result tree. The fan sources are held on `fan_grid`,
/// everything else on third-octave bands.
boost::shared_ptr<simulation_t>
build_flyover_simulation(flyover_options_t const& options,
                         boost::shared_ptr<frequency_range_t> fan_grid);

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
