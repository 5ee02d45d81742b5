#ifndef CALC_COMMON_SRC_FRAME_NUMERIC_HELPERS_HPP
#define CALC_COMMON_SRC_FRAME_NUMERIC_HELPERS_HPP

// Numeric rules shared by every subsystem: tolerant comparison, level addition by energy,
// third-octave band arithmetic and the sea-level speed of sound. Each rule lives here once.

#include <cmath>
#include <cstddef>
#include <limits>

namespace VARNO {
namespace detail {

// ---- Tolerant comparison -------------------------------------------------------------------
// Each side is widened by its own magnitude times machine epsilon, so values that differ only
// by the rounding of their last bit compare as equal.

constexpr double machine_epsilon = std::numeric_limits<double>::epsilon();

inline double widen(double a) {
    return std::fabs(a) * machine_epsilon;
}

/// a is above b by more than both values' rounding.
inline bool tolerantly_above(double a, double b) {
    return a - widen(a) > b + widen(b);
}

/// a is below b by more than both values' rounding.
inline bool tolerantly_below(double a, double b) {
    return a + widen(a) < b - widen(b);
}

inline bool tolerantly_at_most(double a, double b) {
    return a - widen(a) <= b + widen(b);
}

inline bool tolerantly_at_least(double a, double b) {
    return a + widen(a) >= b - widen(b);
}

/// Neither value is tolerantly above the other (so a not-a-number equals everything).
inline bool tolerantly_equal(double a, double b) {
    return !tolerantly_above(a, b) && !tolerantly_above(b, a);
}

// ---- Level addition by energy ----------------------------------------------------------------
// A level of 0.0 dB stands for silence, so levels at or below 1 dB carry no energy and an
// energy sum that stays at or below 1 (that is, 0 dB) reads back as silence. The comparisons are
// plain: a not-a-number level counts as silence.

constexpr double level_cut_db = 1.0;

/// Energy 10^(L/10) of a level in dB, or 0 for a level at or below the cut.
inline double level_to_energy(double level_db) {
    return level_db > level_cut_db ? std::pow(10.0, level_db / 10.0) : 0.0;
}

/// Level in dB of an energy sum, or 0.0 (silence) for a sum at or below 1.
inline double energy_to_level(double energy) {
    return energy > level_cut_db ? 10.0 * std::log10(energy) : 0.0;
}

/// Energy sum of two levels, read back in dB.
inline double add_levels(double a_db, double b_db) {
    return energy_to_level(level_to_energy(a_db) + level_to_energy(b_db));
}

// ---- Third-octave band arithmetic ------------------------------------------------------------
// Band b is centred on 10^(b/10) Hz; the 24-band grid runs from band 17 (50 Hz) to band 40
// (10 kHz). Near a band edge, frequencies within a factor of 1.04 are shared by both bands.

constexpr int tob_first_band = 17;
constexpr std::size_t tob_band_count = 24;
constexpr double band_edge_overlap = 1.04;

/// Band number of a frequency in Hz: the integer part of 10*log10(f) + 0.5.
inline int band_number(double frequency_hz) {
    return static_cast<int>(10.0 * std::log10(frequency_hz) + 0.5);
}

/// Index on the 24-band grid of a band number (0 is 50 Hz, 23 is 10 kHz).
inline int tob_index_of_band(int band) {
    return band - tob_first_band;
}

/// Index on the 24-band grid of a frequency in Hz.
inline int tob_index(double frequency_hz) {
    return tob_index_of_band(band_number(frequency_hz));
}

/// Lower edge of band b in Hz, 10^((2b - 1)/20).
inline double band_lower_edge(int band) {
    return std::pow(10.0, (2.0 * band - 1.0) / 20.0);
}

/// Upper edge of band b in Hz, 10^((2b + 1)/20).
inline double band_upper_edge(int band) {
    return std::pow(10.0, (2.0 * band + 1.0) / 20.0);
}

/// How a line's energy is shared by the two bands that meet at `edge_hz` when it falls in the
/// overlap from edge/1.04 to edge*1.04: `lower` goes to the band below, `upper` to the one above.
struct edge_shares {
    double lower;
    double upper;
};

inline edge_shares shares_across_edge(double frequency_hz, double edge_hz) {
    double const overlap_low = edge_hz / band_edge_overlap;
    double const overlap_high = edge_hz * band_edge_overlap;
    double const width = overlap_high - overlap_low;
    return {(overlap_high - frequency_hz) / width, (frequency_hz - overlap_low) / width};
}

// ---- Angles --------------------------------------------------------------------------------

constexpr double pi = 3.141592653589793;
constexpr double degrees_to_radians = 0.017453292519943295;
constexpr double radians_to_degrees = 57.29577951308232;

// ---- Air -----------------------------------------------------------------------------------

/// Speed of sound at sea level in the standard atmosphere, m/s (about 340.294).
inline double const sea_level_speed_of_sound = std::sqrt(115800.07979450634);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_FRAME_NUMERIC_HELPERS_HPP
