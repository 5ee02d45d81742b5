#ifndef CALC_COMMON_SRC_FRAME_LEVELS_HPP
#define CALC_COMMON_SRC_FRAME_LEVELS_HPP

// Levels and energies. A level L in dB stands for the energy 10^(L/10). Spectra add by energy
// with a cut: a level of 0.0 dB is silence, so levels at or below 1 dB carry no energy and an
// energy sum at or below 1 (0 dB) reads back as silence. The band sums of the conversions and
// the tone routines work without the cut, so that faint lines still add up.

#include "frame/tolerance.hpp"

#include <cmath>

namespace VARNO {
namespace detail {

/// Levels at or below this (dB) carry no energy once cut.
constexpr double level_cut_db = 1.0;

/// Energy 10^(L/10) of a level in dB, with no cut: faint and negative levels keep theirs.
inline double energy_of_level(double level_db) {
    return std::pow(10.0, level_db / 10.0);
}

/// The same energy written 10^(0.1*L), which rounds one bit apart from 10^(L/10). The reading
/// of tones from bands is made this way; each caller keeps the rounding it was calibrated with.
inline double energy_of_level_tenths(double level_db) {
    return std::pow(10.0, 0.1 * level_db);
}

/// Exponent per dB of a level's energy, ln(10)/10: 10^(L/10) = exp(L * ln(10)/10).
constexpr double energy_exponent_per_db = 0.23025850929940456840;

/// Energy 10^(L/10) of a level in dB with no cut, taken as one exponential exp(L*ln(10)/10),
/// which costs less than half a power and agrees with it to a few units in the last place. The
/// kernels that take an energy for every line and column of a spectrum, and sum energies, use
/// it; routines that subtract energies keep the power they were calibrated with.
inline double fast_energy_of_level(double level_db) {
    return std::exp(level_db * energy_exponent_per_db);
}

/// Level 10*log10(E) in dB of an energy, with no cut: an energy of 0 gives minus infinity.
inline double level_of_energy(double energy) {
    return 10.0 * std::log10(energy);
}

/// Decibels per natural-log unit of energy, 10/ln(10): 10*log10(E) = ln(E) * 10/ln(10).
constexpr double decibels_per_energy_neper = 4.3429448190325182765;

/// Level 10*log10(E) in dB of an energy with no cut, taken through the natural logarithm,
/// which costs less than the decimal one and agrees with it to a few units in the last place.
/// The level addition uses it for every line.
inline double fast_level_of_energy(double energy) {
    return std::log(energy) * decibels_per_energy_neper;
}

/// Level of a band's energy with no cut, or 0.0 for a band that no energy reaches (tolerantly):
/// a small energy gives a negative level.
inline double uncut_band_level(double energy) {
    return tolerantly_equal(energy, 0.0) ? 0.0 : level_of_energy(energy);
}

/// Energy of a level, or 0 for a level at or below the cut. The comparison is plain: a
/// not-a-number level counts as silence.
inline double level_to_energy(double level_db) {
    return level_db > level_cut_db ? fast_energy_of_level(level_db) : 0.0;
}

/// Level of an energy sum, or 0.0 (silence) for a sum at or below 1.
inline double energy_to_level(double energy) {
    return energy > level_cut_db ? fast_level_of_energy(energy) : 0.0;
}

/// Energy sum of two levels, each cut, read back in dB with the cut.
inline double add_levels(double a_db, double b_db) {
    return energy_to_level(level_to_energy(a_db) + level_to_energy(b_db));
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_FRAME_LEVELS_HPP
