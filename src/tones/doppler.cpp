#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"

#include <algorithm>
#include <cmath>

using namespace VARNO::detail;

// A tone read from band levels: near a band edge only part of its energy lies in its own band,
// the rest in the neighbour. When the neighbour holds a tone too, the two bands are summed; when
// it holds none, the tone's remainder sits in the neighbour's broadband, and the tone level is
// corrected by the decibels its band falls short of the whole tone, taking that energy back from
// the broadband where there is enough of it. The two edges are deliberately treated differently:
// the lower neighbour counts as a tone above 0.001 dB and the upper one above 0.0 dB, a tone near
// the upper edge of the last band but one loses its level, and only a tone near the lower edge
// has its measured neighbours restored in the unshifted spectrum.

namespace {

struct tone_position {
    int number; // band number
    int index;  // grid index, off_grid for a frequency with no band
    edge_zone zone;
};

tone_position locate(double frequency) {
    if (!has_band(frequency)) {
        return {0, off_grid, edge_zone::inside};
    }
    int const number = band_number(frequency);
    return {number, tob_index_of_band(number), edge_zone_of(frequency, number)};
}

// The tone is `shortfall_db` louder than its in-band level; decide whether the neighbouring
// broadband band can give the remainder back, and take it from there if so.
double corrected_level(double in_band, double shortfall_db, double& neighbour_broadband,
                       bool exact_energy, bool keep_broadband) {
    double const whole = in_band + shortfall_db;
    if (keep_broadband) {
        return whole;
    }
    if (in_band < empty_band_level) {
        return in_band;
    }
    if (exact_energy) {
        double const remainder = energy_of_level_tenths(whole) - energy_of_level_tenths(in_band);
        if (tolerantly_at_most(energy_of_level_tenths(neighbour_broadband), remainder)) {
            return in_band;
        }
        neighbour_broadband =
            level_of_energy(energy_of_level_tenths(neighbour_broadband) -
                            energy_of_level_tenths(whole) + energy_of_level_tenths(in_band));
        return whole;
    }
    // Approximation: the remainder is taken as a level `shortfall_db` below the in-band level.
    if (tolerantly_at_most(neighbour_broadband, in_band - shortfall_db)) {
        return in_band;
    }
    neighbour_broadband = level_of_energy(energy_of_level_tenths(neighbour_broadband) -
                                          energy_of_level_tenths(in_band - shortfall_db));
    return whole;
}

double recovered_level(std::vector<double> const& tones, std::vector<double>& broadband,
                       double frequency, tone_position position, bool exact_energy,
                       bool keep_broadband) {
    int const n = static_cast<int>(tones.size());
    int const i = position.index;
    if (i < 1 || i > n - 2) {
        return 0.0; // first or last band, or off the grid
    }
    std::size_t const band = static_cast<std::size_t>(i);
    double const in_band = tones[band];
    if (position.zone == edge_zone::lower_overlap) {
        std::size_t const below = band - 1;
        if (tones[below] > empty_band_level) {
            return level_of_energy(energy_of_level_tenths(tones[below]) +
                                   energy_of_level_tenths(in_band));
        }
        edge_overlap const overlap = overlap_around(band_lower_edge(position.number));
        double const shortfall =
            level_of_energy(overlap.high - overlap.low) - level_of_energy(frequency - overlap.low);
        return corrected_level(in_band, shortfall, broadband[below], exact_energy, keep_broadband);
    }
    if (position.zone == edge_zone::upper_overlap) {
        if (i == n - 2) {
            return 0.0; // kept as it is: no level for a tone at the top of the last band but one
        }
        std::size_t const above = band + 1;
        if (tolerantly_above(tones[above], 0.0)) {
            return level_of_energy(energy_of_level_tenths(in_band) +
                                   energy_of_level_tenths(tones[above]));
        }
        edge_overlap const overlap = overlap_around(band_upper_edge(position.number));
        double const shortfall =
            level_of_energy(overlap.high - overlap.low) - level_of_energy(overlap.high - frequency);
        return corrected_level(in_band, shortfall, broadband[above], exact_energy, keep_broadband);
    }
    return in_band;
}

// The spectrum of one tone of `level` dB at `frequency` Hz, levels below 0.001 dB read as silence.
void write_tone_spectrum(double frequency, int index, double level,
                         boost::shared_ptr<spectrum_t> const& scratch, spectrum_t& out) {
    std::vector<double>& values = out.values;
    if (!on_grid(index, values.size())) {
        std::fill(values.begin(), values.end(), 0.0);
        return;
    }
    Calc_ToneSpectrum(frequency, index, level, scratch);
    std::transform(scratch->values.begin(), scratch->values.begin() + values.size(), values.begin(),
                   [](double share) { return share < empty_band_level ? 0.0 : share; });
}

// A tone near the lower edge of an inner band shows the bands as measured rather than as split.
void restore_measured_neighbours(std::vector<double> const& tones, double level, std::size_t band,
                                 std::vector<double>& unshifted) {
    std::size_t const n = tones.size();
    bool const level_is_in_band = tolerantly_same(level, tones[band]);
    if (tones[band - 1] > empty_band_level) {
        unshifted[band - 1] = tones[band - 1];
        unshifted[band] = tones[band];
    } else if (level_is_in_band) {
        unshifted[band] = tones[band];
        unshifted[band - 1] = 0.0;
    }
    if (band == n - 2) {
        return;
    }
    if (tones[band + 1] > empty_band_level) {
        unshifted[band + 1] = tones[band + 1];
        unshifted[band] = tones[band];
    } else if (level_is_in_band) {
        unshifted[band] = tones[band];
        unshifted[band + 1] = 0.0;
    }
}

} // namespace

void Calc_DopplerizeTone(boost::shared_ptr<spectrum_t> tones,
                         boost::shared_ptr<spectrum_t> broadband, double doppler_ratio,
                         double frequency, boost::shared_ptr<spectrum_t> unshifted,
                         boost::shared_ptr<spectrum_t> shifted, double* shifted_frequency,
                         double* tone_level, double* tone_level_copy, bool exact_energy,
                         bool keep_broadband) {
    thread_local boost::shared_ptr<spectrum_t> const tone_scratch = spectrum_t::create_tob();
    tone_scratch->frequency_range = tones->frequency_range;

    std::vector<double> const& tone_levels = tones->values;
    int const n = static_cast<int>(tone_levels.size());
    tone_position const position = locate(frequency);
    double const level = recovered_level(tone_levels, broadband->values, frequency, position,
                                         exact_energy, keep_broadband);

    write_tone_spectrum(frequency, position.index, level, tone_scratch, *unshifted);
    if (position.index >= 1 && position.index <= n - 2 &&
        position.zone == edge_zone::lower_overlap) {
        restore_measured_neighbours(tone_levels, level, static_cast<std::size_t>(position.index),
                                    unshifted->values);
    }

    // The shifted tone is a pure split tone: no neighbour is consulted.
    double const shifted_hz = doppler_ratio * frequency;
    write_tone_spectrum(shifted_hz, grid_index_or_off(shifted_hz), level, tone_scratch, *shifted);

    *shifted_frequency = shifted_hz;
    *tone_level = level;
    if (tone_level_copy != nullptr) {
        *tone_level_copy = level;
    }
}
