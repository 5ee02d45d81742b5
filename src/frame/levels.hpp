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

/// The same energy written 10^(0.1*L), which rounds one bit apart from 10^(L/10). The band
/// summations and the reading of tones from bands are made this way; each caller keeps the
/// rounding it was calibrated with.
inline double energy_of_level_tenths(double level_db) {
    return std::pow(10.0, 0.1 * level_db);
}

/// Level 10*log10(E) in dB of an energy, with no cut: an energy of 0 gives minus infinity.
inline double level_of_energy(double energy) {
    return 10.0 * std::log10(energy);
}

/// Level of a band's energy with no cut, or 0.0 for a band that no energy reaches (tolerantly):
/// a small energy gives a negative level.
inline double uncut_band_level(double energy) {
    return tolerantly_equal(energy, 0.0) ? 0.0 : level_of_energy(energy);
}

/// Energy of a level, or 0 for a level at or below the cut. The comparison is plain: a
/// not-a-number level counts as silence.
inline double level_to_energy(double level_db) {
    return level_db > level_cut_db ? energy_of_level(level_db) : 0.0;
}

/// Level of an energy sum, or 0.0 (silence) for a sum at or below 1.
inline double energy_to_level(double energy) {
    return energy > level_cut_db ? level_of_energy(energy) : 0.0;
}

/// Energy sum of two levels, each cut, read back in dB with the cut.
inline double add_levels(double a_db, double b_db) {
    return energy_to_level(level_to_energy(a_db) + level_to_energy(b_db));
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_FRAME_LEVELS_HPP
