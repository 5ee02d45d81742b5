#ifndef CALC_COMMON_SRC_SPECTRA_FILTER_BANK_CONVERSION_HPP
#define CALC_COMMON_SRC_SPECTRA_FILTER_BANK_CONVERSION_HPP

// Conversion of narrowband levels to fractional-octave bands through banks of band-pass
// filters, as a spectrum analyser's synthesis from a fine spectrum works.
//
// Three banks cover 1 Hz to 100 kHz at 12, 3 and 1 bands per octave, all of order 3 and on the
// base-ten ratio 10^0.3, so that their band edges nest: four twelfth-octave bands make a third,
// three thirds an octave, and the third-octave edges are those of the library's grid.
//
// A band's energy is the sum over the lines of the line's energy times the band's response to
// it. The filter shape is the conversion's code:
//   1  ideal rectangular band: a line counts wholly in the band between whose edges it lies;
//   2  a line covers df around its frequency and counts by the part of that width that lies
//      between the band's edges (white noise then fills each band exactly);
//   3  Butterworth band-pass of the bank's order on the exact centre, with the bank's design Q,
//      whose noise bandwidth equals the band's width.
// A band narrower than ten lines is not resolved by the narrowband: an ideal or Butterworth
// filter would see one or two lines and swing by decibels with their placing. Such a band
// takes, instead, part of the energy that its shape gives the band of the next coarser bank
// that holds it: the part of the coarser band's energy that the lines' cells (df around each
// line, the exact integral of a piecewise-flat spectrum) place in the finer band. White noise
// is then shared by bandwidth, and a tone stays in the band that holds it.
//
// Levels add as the narrowband summation adds them, which this conversion stands in for: every
// line carries 10^(L/10) with no cut, so faint lines still sum to an audible band, and a band
// reads 10*log10 of its energy, 0.0 only when no energy reaches it.

#include <calc-common/spectra.hpp>

#include "spectra/tob_line_weights.hpp"

#include <cstddef>
#include <vector>

namespace VARNO {
namespace detail {

/// Filter shape of the filter-bank conversion, the code its caller's method maps to.
enum filter_bank_shape : int {
    filter_bank_rectangular = 1,
    filter_bank_proportional = 2,
    filter_bank_butterworth = 3
};

/// Code of a narrowband conversion method: 0 gives 1, 2 gives 2, anything else 3.
filter_bank_shape filter_bank_shape_of(nbtob_conversion_method method);

/// The three banks, 1 Hz to 100 kHz at 12, 3 and 1 bands per octave. They depend on constants
/// alone: built once, on first use, and shared read-only by every thread.
struct filter_banks {
    filter_banks();
    acoustics::OctaveBandFilterBank twelfth_octaves;
    acoustics::OctaveBandFilterBank third_octaves;
    acoustics::OctaveBandFilterBank octaves;
};

/// The banks every conversion uses.
filter_banks const& shared_filter_banks();

/// Working storage of the conversions made on one thread: the energies of the input's lines,
/// the per-column sums of a band resolved through a coarser one, and for the Butterworth shape
/// the filters that the bands draw their energy through, their responses to the lines of the
/// last grid converted and their per-column energies. It survives
/// between calls, so that a run over many spectra on one grid allocates nothing and computes
/// no response twice.
struct filter_bank_scratch {
    std::vector<double> line_energies;
    std::vector<double> coarser_energies; // per column: the coarser band through the shape
    std::vector<double> finer_cells;      // per column: the finer band's part of the cells
    std::vector<double> coarser_cells;    // per column: the coarser band's part of the cells
    std::vector<acoustics::OctaveBandFilter const*> wanted_filters; // of the current call
    regular_grid_key responses_grid;                                // grid of the responses
    std::vector<acoustics::OctaveBandFilter const*> heard_filters;  // whose responses are kept
    std::vector<double> responses;         // per pass over the lines, per line, per filter
    std::vector<double> filtered_energies; // per column, per pass, per filter

    /// This thread's storage.
    static filter_bank_scratch& of_this_thread();
};

/// Working record of one conversion, over the shared banks and this thread's storage.
class filter_bank_conversion {
public:
    /// Lines of `range` with `columns` levels each (frequency-major), in dB.
    filter_bank_conversion(frequency_range_t const& range, std::vector<double> const& levels,
                           std::size_t columns, filter_bank_shape shape);
    filter_bank_conversion(filter_bank_conversion const&) = delete;
    filter_bank_conversion& operator=(filter_bank_conversion const&) = delete;

    /// Levels in dB of the bands of the bank of `bands_per_octave` (12, 3 or 1) whose nominal
    /// centres lie from `f_low` to `f_high` Hz, band-major with `columns` per band, written to
    /// `levels` (resized).
    void band_levels(std::size_t bands_per_octave, double f_low, double f_high,
                     std::vector<double>& levels);

private:
    acoustics::OctaveBandFilterBank const& bank_with(std::size_t bands_per_octave) const;
    acoustics::OctaveBandFilterBank const* coarser_than(std::size_t bands_per_octave) const;
    void add_band_energy(acoustics::OctaveBandFilter const& filter, double* energies);
    acoustics::OctaveBandFilter const* holder_of(acoustics::OctaveBandFilter const& filter) const;
    void add_filtered_energy(acoustics::OctaveBandFilter const& filter, filter_bank_shape shape,
                             double* energies) const;
    struct line_span {
        std::size_t first;
        std::size_t last;
    };
    line_span lines_reaching(acoustics::OctaveBandFilter const& filter) const;
    double response(acoustics::OctaveBandFilter const& filter, filter_bank_shape shape,
                    double frequency) const;

    void
    filter_through_butterworth_bands(std::vector<acoustics::OctaveBandFilter>::const_iterator first,
                                     std::vector<acoustics::OctaveBandFilter>::const_iterator last);
    void keep_responses_of_wanted_filters();

    frequency_range_t const& range_;
    std::size_t columns_;
    filter_bank_shape shape_;
    filter_banks const& banks_;
    filter_bank_scratch& scratch_;
};

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_SPECTRA_FILTER_BANK_CONVERSION_HPP
