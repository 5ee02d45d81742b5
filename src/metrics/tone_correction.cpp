#include <calc-common/metrics.hpp>

#include "frame/numeric_helpers.hpp"
#include "metrics/metrics_detail.hpp"

#include <array>
#include <cmath>

// The tone correction rebuilds a smooth background under the spectrum and charges each band
// for how far it stands above it. Grid index i is band i + 1 of the certification procedure,
// whose slopes start at its band 4 (index 3) and whose background starts at its band 3
// (index 2): the two lowest bands are never judged.

namespace {

constexpr std::size_t n_bands = VARNO::detail::tob_band_count;
constexpr std::size_t first_slope = 3;      // the slope into the 100 Hz band, from 80 Hz
constexpr std::size_t first_background = 2; // the background starts at 80 Hz
constexpr double slope_change_limit = 5.0;  // dB; a larger change of slope marks an irregularity
constexpr double least_difference = 1.5;    // dB; smaller differences earn no correction

using band_levels = std::array<double, n_bands>;

// Steps 1 to 3: the slope into each band, the slopes that change by more than 5 dB, and the
// band each such change points at: the band after a rising slope that steepens, or the band
// before a slope that stops rising.
std::array<bool, n_bands> irregular_bands(std::vector<double> const& levels) {
    band_levels slope{};
    for (std::size_t i = first_slope; i < n_bands; ++i) {
        slope[i] = levels[i] - levels[i - 1];
    }
    std::array<bool, n_bands> irregular{};
    for (std::size_t i = first_slope + 1; i < n_bands; ++i) {
        if (!(std::fabs(slope[i] - slope[i - 1]) > slope_change_limit)) {
            continue;
        }
        if (slope[i] > 0.0 && slope[i] > slope[i - 1]) {
            irregular[i] = true;
        } else if (slope[i] <= 0.0 && slope[i - 1] > 0.0) {
            irregular[i - 1] = true;
        }
    }
    return irregular;
}

// Step 4: an irregular band is replaced by the mean of its neighbours, the last band by the
// continuation of the slope below it.
band_levels levels_without_irregularities(std::vector<double> const& levels) {
    std::array<bool, n_bands> const irregular = irregular_bands(levels);
    band_levels adjusted{};
    for (std::size_t i = 0; i < n_bands; ++i) {
        if (!irregular[i]) {
            adjusted[i] = levels[i];
        } else if (i + 1 < n_bands) {
            adjusted[i] = 0.5 * (levels[i - 1] + levels[i + 1]);
        } else {
            adjusted[i] = 2.0 * levels[i - 1] - levels[i - 2];
        }
    }
    return adjusted;
}

// Steps 5 to 7: the slopes of the adjusted levels, extended by one at each end, averaged over
// three and integrated from the 80 Hz band into the background.
band_levels background(std::vector<double> const& levels) {
    band_levels const adjusted = levels_without_irregularities(levels);
    std::array<double, n_bands + 1> slope{};
    for (std::size_t i = first_slope; i < n_bands; ++i) {
        slope[i] = adjusted[i] - adjusted[i - 1];
    }
    slope[first_background] = slope[first_slope];
    slope[n_bands] = slope[n_bands - 1];
    band_levels floor{};
    floor[first_background] = levels[first_background];
    for (std::size_t i = first_background + 1; i < n_bands; ++i) {
        double const mean_slope = (slope[i - 1] + slope[i] + slope[i + 1]) / 3.0;
        floor[i] = floor[i - 1] + mean_slope;
    }
    return floor;
}

// Step 9: the correction grows with F up to 20 dB; bands from 500 Hz to 5 kHz (indices 10 to 20)
// are charged twice as much as those below and above.
double band_correction(std::size_t index, double difference) {
    bool const mid_range = index >= 10 && index <= 20;
    double correction = 0.0;
    if (difference < least_difference) {
        correction = 0.0;
    } else if (difference < 3.0) {
        correction = difference / 3.0 - 0.5;
    } else if (difference < 20.0) {
        correction = difference / 6.0;
    } else {
        correction = 10.0 / 3.0;
    }
    return mid_range ? 2.0 * correction : correction;
}

} // namespace

tone_correction_t VARNO::detail::tone_correction(std::vector<double> const& tob_levels) {
    band_levels const floor = background(tob_levels);
    tone_correction_t result;
    result.level_differences.assign(n_bands, 0.0);
    for (std::size_t i = first_background; i < n_bands; ++i) {
        double const difference = tob_levels[i] - floor[i];
        result.level_differences[i] = difference;
        double const correction = band_correction(i, difference);
        if (correction > result.correction) {
            result.correction = correction;
            result.band_index = static_cast<int>(i);
        }
    }
    return result;
}

tone_correction_t Calc_ToneCorrectionDetail(std::vector<double> const& tob_levels) {
    VARNO::detail::check_tob_levels(tob_levels, "Calc_ToneCorrection");
    if (VARNO::detail::contains_nan(tob_levels)) {
        tone_correction_t unknown;
        unknown.correction = VARNO::detail::not_a_number;
        unknown.level_differences.assign(n_bands, VARNO::detail::not_a_number);
        return unknown;
    }
    return VARNO::detail::tone_correction(tob_levels);
}

tone_correction_t Calc_ToneCorrectionDetail(boost::shared_ptr<spectrum_t> spectrum) {
    return Calc_ToneCorrectionDetail(
        VARNO::detail::checked_tob_levels(spectrum, "Calc_ToneCorrection"));
}

double Calc_ToneCorrection(boost::shared_ptr<spectrum_t> spectrum) {
    return Calc_ToneCorrectionDetail(spectrum).correction;
}
