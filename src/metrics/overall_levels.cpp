#include <calc-common/metrics.hpp>

#include "frame/numeric_helpers.hpp"
#include "metrics/metrics_detail.hpp"

#include <array>
#include <cmath>

// The A-weighting is the closed form of the sound level meter standard: two real poles at low
// frequency (f1, twice), one each at f2 and f3, two at high frequency (f4), normalised by the
// constant that makes the weighting 0 dB at 1 kHz to within 0.001 dB.

namespace {

constexpr double a_pole_low = 20.598997;    // f1, Hz
constexpr double a_pole_mid_1 = 107.65265;  // f2, Hz
constexpr double a_pole_mid_2 = 737.86223;  // f3, Hz
constexpr double a_pole_high = 12194.217;   // f4, Hz
constexpr double a_normalisation_db = -2.0; // A1000

// The weights of the 24 grid bands, at the exact mid-band frequencies 10^(b/10) Hz of base-10
// third-octave bands rather than at the rounded nominal ones.
std::array<double, VARNO::detail::tob_band_count> const& tob_a_weights() {
    static std::array<double, VARNO::detail::tob_band_count> const weights = [] {
        std::array<double, VARNO::detail::tob_band_count> w{};
        for (std::size_t i = 0; i < w.size(); ++i) {
            int const band = VARNO::detail::tob_first_band + static_cast<int>(i);
            w[i] = Calc_AWeighting(std::pow(10.0, band / 10.0));
        }
        return w;
    }();
    return weights;
}

} // namespace

double Calc_AWeighting(double frequency) {
    double const f2 = frequency * frequency;
    double const h2 = a_pole_high * a_pole_high;
    double const response =
        h2 * f2 * f2 /
        ((f2 + a_pole_low * a_pole_low) * std::sqrt(f2 + a_pole_mid_1 * a_pole_mid_1) *
         std::sqrt(f2 + a_pole_mid_2 * a_pole_mid_2) * (f2 + h2));
    return 20.0 * std::log10(response) - a_normalisation_db;
}

double Calc_OverallLevel(std::vector<double> const& levels) {
    if (VARNO::detail::contains_nan(levels)) {
        return VARNO::detail::not_a_number;
    }
    double energy = 0.0;
    for (double const level : levels) {
        energy += VARNO::detail::level_to_energy(level);
    }
    return VARNO::detail::energy_to_level(energy);
}

double Calc_OverallLevel(boost::shared_ptr<spectrum_t> spectrum) {
    return Calc_OverallLevel(VARNO::detail::checked_levels(spectrum, "Calc_OverallLevel"));
}

// A silent band stays silent: the weighting applies to the sound in a band, not to the 0.0
// that stands for its absence.
double VARNO::detail::a_weighted_level(std::vector<double> const& tob_levels) {
    std::array<double, tob_band_count> const& weights = tob_a_weights();
    double energy = 0.0;
    for (std::size_t i = 0; i < tob_band_count; ++i) {
        if (tob_levels[i] > level_cut_db) {
            energy += std::pow(10.0, (tob_levels[i] + weights[i]) / 10.0);
        }
    }
    return energy_to_level(energy);
}

double Calc_AWeightedLevel(std::vector<double> const& tob_levels) {
    VARNO::detail::check_tob_levels(tob_levels, "Calc_AWeightedLevel");
    if (VARNO::detail::contains_nan(tob_levels)) {
        return VARNO::detail::not_a_number;
    }
    return VARNO::detail::a_weighted_level(tob_levels);
}

double Calc_AWeightedLevel(boost::shared_ptr<spectrum_t> spectrum) {
    return Calc_AWeightedLevel(VARNO::detail::checked_tob_levels(spectrum, "Calc_AWeightedLevel"));
}
