#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"
#include "tones/tone_separation.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using namespace VARNO::detail;

// Separation that knows the fundamental: only the bands the first five harmonics can touch may
// hold tones. Where two harmonics meet in one band, that band's energy is shared out between
// them; each harmonic's level is then read back as a Doppler-free tone, listed, and the tone
// levels are rebuilt from the whole list.

namespace VARNO {
namespace detail {

namespace {

constexpr double least_tone_excess_db = 3.0;  // a tone must stand more than this above the floor
constexpr double shared_band_cut_db = 3.0;    // a band shared by two harmonics keeps about half
constexpr double least_shared_tone_db = 0.1;  // a band holding a tone worth settling
constexpr double least_tone_energy_sum = 3.0; // rebuilt energies at or below this are silence

// How a harmonic lies on the grid: the bands it touches and the ratio of their energies.
struct harmonic_entry {
    int band_low;
    int band_high;
    double split_ratio; // energy in band_low over energy in band_high; 1.0 for a single band
};

using harmonic_table = std::array<harmonic_entry, harmonic_count>;

harmonic_entry place_harmonic(double frequency) {
    if (!has_band(frequency)) {
        return {off_grid, off_grid, 1.0};
    }
    int const number = band_number(frequency);
    int const index = tob_index_of_band(number);
    edge_zone const zone = edge_zone_of(frequency, number);
    if (zone == edge_zone::inside) {
        return {index, index, 1.0};
    }
    shared_edge const edge = shared_edge_of(zone, number);
    // The ratio of the shares the split gives a 100 dB tone: the ratio of the distances to the
    // overlap's limits, rounded as the split rounds the shares of that energy.
    double const reference_energy = 1e10;
    edge_shares const shares = share_across_edge(edge.overlap, frequency, reference_energy);
    return {edge.lower_index, edge.lower_index + 1, shares.lower / shares.upper};
}

harmonic_table place_harmonics(double fundamental) {
    harmonic_table table;
    for (int h = 0; h < harmonic_count; ++h) {
        table[static_cast<std::size_t>(h)] = place_harmonic((h + 1) * fundamental);
    }
    return table;
}

// Band i holds the upper part of one harmonic and the lower part of the next: its energy goes to
// the two neighbours in proportion to the harmonics' estimated shares of band i.
void redistribute_shared_band(std::vector<double> const& tones, std::size_t i, double lower_ratio,
                              double upper_ratio, std::vector<double>& adjusted) {
    double const below = energy_of_level(tones[i - 1]);
    double const above = energy_of_level(tones[i + 1]);
    double const e1 = below / lower_ratio;
    double const e2 = above * upper_ratio;
    double const s = e1 / (e1 + e2);
    double const band_energy = energy_of_level(tones[i]);
    adjusted[i - 1] = level_of_energy(band_energy * s + below);
    adjusted[i] = 0.0;
    adjusted[i + 1] = level_of_energy(band_energy * (1 - s) + above);
}

// Settles the bands shared by two successive harmonics. Everything reads `tones`, so a band can
// lose 3 dB more than once.
void settle_shared_bands(std::vector<double> const& tones, harmonic_table const& table,
                         std::vector<double>& adjusted) {
    int const last_band = static_cast<int>(tob_band_count) - 1;
    for (int i = 1; i <= last_band; ++i) {
        std::size_t const band = static_cast<std::size_t>(i);
        if (!(tones[band] > least_shared_tone_db)) {
            continue;
        }
        for (std::size_t j = 0; j + 1 < table.size(); ++j) {
            harmonic_entry const& h = table[j];
            harmonic_entry const& next = table[j + 1];
            bool const whole_then_lower_part =
                h.band_low == i && h.band_high == i && next.band_low == i && next.band_high != i;
            bool const upper_part_then_whole =
                h.band_low != i && h.band_high == i && next.band_low == i && next.band_high == i;
            bool const upper_part_then_lower_part =
                h.band_low != i && h.band_high == i && next.band_low == i && next.band_high != i;
            if (whole_then_lower_part || upper_part_then_whole) {
                adjusted[band] -= shared_band_cut_db;
            } else if (upper_part_then_lower_part) {
                bool const crowded_below = j > 0 && table[j - 1].band_high >= h.band_low;
                if (crowded_below || i >= last_band) {
                    adjusted[band] -= shared_band_cut_db;
                } else {
                    redistribute_shared_band(tones, band, h.split_ratio, next.split_ratio,
                                             adjusted);
                }
            }
        }
    }
}

// Adds the energy of a level to a band, if the band is on the grid.
void add_energy_on_grid(std::vector<double>& energies, int band, double level) {
    if (on_grid(band, energies.size())) {
        energies[static_cast<std::size_t>(band)] += energy_of_level(level);
    }
}

bool keeps_whole(std::bitset<tob_band_count> const& keep_whole, int band) {
    return on_grid(band, tob_band_count) && keep_whole.test(static_cast<std::size_t>(band));
}

} // namespace

void Calc_LevelTonesInBands(boost::shared_ptr<spectrum_t> spectrum,
                            boost::shared_ptr<spectrum_t> tones,
                            std::bitset<tob_band_count> const& keep_whole) {
    std::vector<double>& energies = tones->values;
    std::fill(energies.begin(), energies.end(), 0.0);
    int const last_band = static_cast<int>(tob_band_count) - 1;
    for (tone_id_t& tone : tones->tones) {
        double const f = tone.frequency;
        if (!has_band(f)) {
            continue;
        }
        int const number = band_number(f);
        int const i = tob_index_of_band(number);
        edge_zone const zone = edge_zone_of(f, number);
        bool const split_low = zone == edge_zone::lower_overlap && i > 0;
        bool const split_high = !split_low && zone == edge_zone::upper_overlap && i < last_band;
        if (split_low && keeps_whole(keep_whole, i - 1)) {
            if (on_grid(i, spectrum->values.size())) {
                tone.level = spectrum->values[static_cast<std::size_t>(i)];
            }
            add_energy_on_grid(energies, i, tone.level);
        } else if (split_low || (split_high && !keeps_whole(keep_whole, i + 1))) {
            shared_edge const edge = shared_edge_of(zone, number);
            double lower_share = 0.0;
            double upper_share = 0.0;
            Calc_SplitTone(tone.level, f, edge.overlap.low, edge.overlap.high, &lower_share,
                           &upper_share);
            add_energy_on_grid(energies, edge.lower_index, lower_share);
            add_energy_on_grid(energies, edge.lower_index + 1, upper_share);
        } else {
            add_energy_on_grid(energies, i, tone.level);
        }
    }
}

} // namespace detail
} // namespace VARNO

void Calc_EnscaBBTones(boost::shared_ptr<spectrum_t> spectrum, double check_margin,
                       double cut_frequency, double fundamental, double gap_value,
                       tone_sep_method_t method, double slope_step, double tone_margin,
                       boost::shared_ptr<spectrum_t> broadband,
                       boost::shared_ptr<spectrum_t> tones) {
    thread_local boost::shared_ptr<spectrum_t> const adjusted_tones = spectrum_t::create_tob();
    thread_local boost::shared_ptr<spectrum_t> const unshifted_scratch = spectrum_t::create_tob();
    thread_local boost::shared_ptr<spectrum_t> const shifted_scratch = spectrum_t::create_tob();
    thread_local std::vector<int> harmonic_bands;

    Calc_SeparateTones(spectrum, check_margin, cut_frequency, gap_value, method, slope_step,
                       tone_margin, broadband, tones);

    // Keep tones only where a harmonic can be and the input stands clear of the floor.
    Calc_HarmonicBands(fundamental, harmonic_bands);
    std::vector<double> const& levels = spectrum->values;
    std::vector<double>& floor = broadband->values;
    std::vector<double>& tone_levels = tones->values;
    for (std::size_t i = 0; i < levels.size(); ++i) {
        bool const harmonic_band = std::find(harmonic_bands.begin(), harmonic_bands.end(),
                                             static_cast<int>(i)) != harmonic_bands.end();
        if (harmonic_band && floor[i] + least_tone_excess_db < levels[i]) {
            tone_levels[i] = level_of_energy(energy_of_level_tenths(levels[i]) -
                                             energy_of_level_tenths(floor[i]));
        } else {
            tone_levels[i] = gap_value;
            floor[i] = levels[i];
        }
    }

    std::copy(tone_levels.begin(), tone_levels.begin() + tob_band_count,
              adjusted_tones->values.begin());
    settle_shared_bands(tone_levels, place_harmonics(fundamental), adjusted_tones->values);

    // Read each harmonic back as a tone without Doppler shift: only the energy bookkeeping
    // between the tone and the neighbouring broadband band is wanted.
    for (int h = 1; h <= harmonic_count; ++h) {
        double const f = h * fundamental;
        int const i = grid_index_or_off(f);
        if (!on_grid(i, tob_band_count)) {
            continue; // off the grid, above or below
        }
        double shifted_hz = 0.0;
        double level = 0.0;
        Calc_DopplerizeTone(adjusted_tones, broadband, 1.0, f, unshifted_scratch, shifted_scratch,
                            &shifted_hz, &level, &level, true, false);
        tones->tones.push_back(tone_id_t::create_bpf(i, h, f, level));
    }

    Calc_LevelTonesInBands(spectrum, tones, std::bitset<tob_band_count>());
    for (double& value : tone_levels) {
        value = value > least_tone_energy_sum ? level_of_energy(value) : 0.0;
    }
}
