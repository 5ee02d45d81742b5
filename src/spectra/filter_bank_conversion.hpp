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

/// Working record of one conversion: the three banks and the energies of the input's lines.
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
    void add_band_energy(acoustics::OctaveBandFilterBank const& bank,
                         acoustics::OctaveBandFilter const& filter, double* energies);
    void add_filtered_energy(acoustics::OctaveBandFilterBank const& bank,
                             acoustics::OctaveBandFilter const& filter, filter_bank_shape shape,
                             double* energies) const;
    struct line_span {
        std::size_t first;
        std::size_t last;
    };
    line_span lines_reaching(acoustics::OctaveBandFilter const& filter,
                             filter_bank_shape shape) const;
    double response(acoustics::OctaveBandFilterBank const& bank,
                    acoustics::OctaveBandFilter const& filter, filter_bank_shape shape,
                    double frequency) const;

    frequency_range_t const& range_;
    std::size_t columns_;
    filter_bank_shape shape_;
    std::vector<double> line_energies_;
    std::vector<double> coarser_energies_; // per column: the coarser band through the shape
    std::vector<double> finer_cells_;      // per column: the finer band's part of the cells
    std::vector<double> coarser_cells_;    // per column: the coarser band's part of the cells
    acoustics::OctaveBandFilterBank twelfth_octaves_;
    acoustics::OctaveBandFilterBank third_octaves_;
    acoustics::OctaveBandFilterBank octaves_;
};

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_SPECTRA_FILTER_BANK_CONVERSION_HPP
