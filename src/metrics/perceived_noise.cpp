#include <calc-common/metrics.hpp>

#include "frame/numeric_helpers.hpp"
#include "metrics/metrics_detail.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

// Perceived noisiness follows four straight lines in (level, log10 noy) per band: from the
// lowest breakpoint spl_d (0.1 noy) to spl_e (0.3 noy), on to spl_b (1 noy), then with slope
// m_b up to spl_a, and with slope m_c (the doubling every 10 dB of 0.030103) above it, the last
// line passing through spl_c. Bands from 400 Hz to 6.3 kHz have a single line above spl_b and
// no spl_a. The constants are those of the certification noy table.

namespace {

constexpr double no_breakpoint = std::numeric_limits<double>::infinity();

struct noy_band {
    double spl_a, spl_b, spl_c, spl_d, spl_e;
    double m_b, m_c, m_d, m_e;
};

// clang-format off
constexpr std::array<noy_band, VARNO::detail::tob_band_count> noy_bands{{
    //  SPL(a)        SPL(b) SPL(c) SPL(d) SPL(e)  M(b)      M(c)      M(d)      M(e)
    {91.0,          64.0, 52.0, 49.0, 55.0, 0.043478, 0.030103, 0.079520, 0.058098}, //    50 Hz
    {85.9,          60.0, 51.0, 44.0, 51.0, 0.040570, 0.030103, 0.068160, 0.058098}, //    63 Hz
    {87.3,          56.0, 49.0, 39.0, 46.0, 0.036831, 0.030103, 0.068160, 0.052288}, //    80 Hz
    {79.9,          53.0, 47.0, 34.0, 42.0, 0.036831, 0.030103, 0.059640, 0.047534}, //   100 Hz
    {79.8,          51.0, 46.0, 30.0, 39.0, 0.035336, 0.030103, 0.053013, 0.043573}, //   125 Hz
    {76.0,          48.0, 45.0, 27.0, 36.0, 0.033333, 0.030103, 0.053013, 0.043573}, //   160 Hz
    {74.0,          46.0, 43.0, 24.0, 33.0, 0.033333, 0.030103, 0.053013, 0.040221}, //   200 Hz
    {74.9,          44.0, 42.0, 21.0, 30.0, 0.032051, 0.030103, 0.053013, 0.037349}, //   250 Hz
    {94.6,          42.0, 41.0, 18.0, 27.0, 0.030675, 0.030103, 0.053013, 0.034859}, //   315 Hz
    {no_breakpoint, 40.0, 40.0, 16.0, 25.0, 0.030103, 0.030103, 0.053013, 0.034859}, //   400 Hz
    {no_breakpoint, 40.0, 40.0, 16.0, 25.0, 0.030103, 0.030103, 0.053013, 0.034859}, //   500 Hz
    {no_breakpoint, 40.0, 40.0, 16.0, 25.0, 0.030103, 0.030103, 0.053013, 0.034859}, //   630 Hz
    {no_breakpoint, 40.0, 40.0, 16.0, 25.0, 0.030103, 0.030103, 0.053013, 0.034859}, //   800 Hz
    {no_breakpoint, 40.0, 40.0, 16.0, 25.0, 0.030103, 0.030103, 0.053013, 0.034859}, //  1000 Hz
    {no_breakpoint, 38.0, 38.0, 15.0, 23.0, 0.030103, 0.030103, 0.059640, 0.034859}, //  1250 Hz
    {no_breakpoint, 34.0, 34.0, 12.0, 21.0, 0.029960, 0.029960, 0.053013, 0.040221}, //  1600 Hz
    {no_breakpoint, 32.0, 32.0,  9.0, 18.0, 0.029960, 0.029960, 0.053013, 0.037349}, //  2000 Hz
    {no_breakpoint, 30.0, 30.0,  5.0, 15.0, 0.029960, 0.029960, 0.047712, 0.034859}, //  2500 Hz
    {no_breakpoint, 29.0, 29.0,  4.0, 14.0, 0.029960, 0.029960, 0.047712, 0.034859}, //  3150 Hz
    {no_breakpoint, 29.0, 29.0,  5.0, 14.0, 0.029960, 0.029960, 0.053013, 0.034859}, //  4000 Hz
    {no_breakpoint, 30.0, 30.0,  6.0, 15.0, 0.029960, 0.029960, 0.053013, 0.034859}, //  5000 Hz
    {no_breakpoint, 31.0, 31.0, 10.0, 17.0, 0.029960, 0.029960, 0.068160, 0.037349}, //  6300 Hz
    {44.3,          37.0, 34.0, 17.0, 23.0, 0.042285, 0.029960, 0.079520, 0.037349}, //  8000 Hz
    {50.7,          41.0, 37.0, 21.0, 29.0, 0.042285, 0.029960, 0.059640, 0.043573}, // 10000 Hz
}};
// clang-format on

double noy(noy_band const& band, double level) {
    if (level >= band.spl_a) {
        return std::pow(10.0, band.m_c * (level - band.spl_c));
    }
    if (level >= band.spl_b) {
        return std::pow(10.0, band.m_b * (level - band.spl_b));
    }
    if (level >= band.spl_e) {
        return 0.3 * std::pow(10.0, band.m_e * (level - band.spl_e));
    }
    if (level >= band.spl_d) {
        return 0.1 * std::pow(10.0, band.m_d * (level - band.spl_d));
    }
    return 0.0;
}

constexpr double pnl_at_one_noy = 40.0;
constexpr double pndb_per_decade_of_noy =
    33.219280948873624; // 10 / log10(2): +10 PNdB per doubling

} // namespace

double Calc_Noy(std::size_t band_index, double level) {
    if (band_index >= noy_bands.size()) {
        throw varno_calc_error::with_message(
            "Calc_Noy: the band index is past the third-octave grid (0 to 23)");
    }
    return std::isnan(level) ? level : noy(noy_bands[band_index], level);
}

// The loudest band counts in full and the others at 15 %, which the certification procedure
// writes N = 0.85 n_max + 0.15 sum(n).
double VARNO::detail::perceived_noise_level(std::vector<double> const& tob_levels) {
    double loudest = 0.0;
    double total = 0.0;
    for (std::size_t i = 0; i < tob_band_count; ++i) {
        double const n = noy(noy_bands[i], tob_levels[i]);
        loudest = std::max(loudest, n);
        total += n;
    }
    double const noisiness = 0.85 * loudest + 0.15 * total;
    return noisiness > 0.0 ? pnl_at_one_noy + pndb_per_decade_of_noy * std::log10(noisiness) : 0.0;
}

double Calc_PerceivedNoiseLevel(std::vector<double> const& tob_levels) {
    VARNO::detail::check_tob_levels(tob_levels, "Calc_PerceivedNoiseLevel");
    if (VARNO::detail::contains_nan(tob_levels)) {
        return VARNO::detail::not_a_number;
    }
    return VARNO::detail::perceived_noise_level(tob_levels);
}

double Calc_PerceivedNoiseLevel(boost::shared_ptr<spectrum_t> spectrum) {
    return Calc_PerceivedNoiseLevel(
        VARNO::detail::checked_tob_levels(spectrum, "Calc_PerceivedNoiseLevel"));
}
