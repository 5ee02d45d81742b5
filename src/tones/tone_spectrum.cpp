#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"

#include <algorithm>
#include <cmath>

using namespace VARNO::detail;

// A tone has one frequency, a third-octave spectrum only bands: within the overlap around a band
// edge a tone's energy is shared by the two bands, elsewhere it all lies in its own band.

void Calc_SplitTone(double level, double frequency, double overlap_low, double overlap_high,
                    double* level_low, double* level_high) {
    bool const in_overlap = tolerantly_below(overlap_low, overlap_high) &&
                            tolerantly_at_most(overlap_low, frequency) &&
                            tolerantly_at_most(frequency, overlap_high);
    if (!in_overlap) {
        *level_low = 0.0;
        *level_high = 0.0;
        throw varno_calc_error("Calc_SplitTone");
    }
    edge_shares const shares =
        share_across_edge({overlap_low, overlap_high}, frequency, energy_of_level(level));
    // A tone on a limit leaves the far band a share of zero, that is minus infinity dB.
    *level_low = level_of_energy(shares.lower);
    *level_high = level_of_energy(shares.upper);
}

namespace {

void set_if_on_grid(std::vector<double>& values, int band, double level) {
    if (on_grid(band, values.size())) {
        values[static_cast<std::size_t>(band)] = level;
    }
}

} // namespace

void Calc_ToneSpectrum(double frequency, int band, double level,
                       boost::shared_ptr<spectrum_t> spectrum) {
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
