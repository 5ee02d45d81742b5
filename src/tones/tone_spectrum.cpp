#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"

#include <algorithm>
#include <cmath>

// A tone has one frequency, a third-octave spectrum only bands. Within the overlap around a band
// edge, from edge/1.04 to edge*1.04, a tone's energy is shared by the two bands in linear
// proportion to its distance from the two limits; elsewhere it all lies in its own band.

void Calc_SplitTone(double level, double frequency, double overlap_low, double overlap_high,
                    double* level_low, double* level_high) {
    using namespace VARNO::detail;
    bool const in_overlap = tolerantly_below(overlap_low, overlap_high) &&
                            tolerantly_at_most(overlap_low, frequency) &&
                            tolerantly_at_most(frequency, overlap_high);
    if (!in_overlap) {
        *level_low = 0.0;
        *level_high = 0.0;
        throw varno_calc_error("Calc_SplitTone");
    }
    double const energy = std::pow(10.0, level / 10.0);
    double const width = overlap_high - overlap_low;
    // A tone on a limit leaves the far band a share of zero, that is minus infinity dB.
    *level_low = 10.0 * std::log10((overlap_high - frequency) * energy / width);
    *level_high = 10.0 * std::log10((frequency - overlap_low) * energy / width);
}

namespace {

void set_if_on_grid(std::vector<double>& values, int band, double level) {
    if (VARNO::detail::on_grid(band, values.size())) {
        values[static_cast<std::size_t>(band)] = level;
    }
}

} // namespace

void Calc_ToneSpectrum(double frequency, int band, double level,
                       boost::shared_ptr<spectrum_t> spectrum) {
    using namespace VARNO::detail;
    std::vector<double>& values = spectrum->values;
    if (!on_grid(band, values.size())) {
        spectrum->clear();
        return;
    }
    int const number = band + tob_first_band;
    edge_zone const zone = edge_zone_of(frequency, number);
    if (zone == edge_zone::inside) {
        std::fill(values.begin(), values.end(), 0.0);
        values[static_cast<std::size_t>(band)] = level;
        return;
    }
    shared_edge const edge = shared_edge_of(zone, number);
    double lower_share = 0.0;
    double upper_share = 0.0;
    Calc_SplitTone(level, frequency, edge.overlap.low, edge.overlap.high, &lower_share,
                   &upper_share);
    // Written only once the split has succeeded, so a failed split leaves the spectrum as it was.
    // A share that falls off the grid is lost.
    std::fill(values.begin(), values.end(), 0.0);
    set_if_on_grid(values, edge.lower_index, lower_share);
    set_if_on_grid(values, edge.lower_index + 1, upper_share);
}
