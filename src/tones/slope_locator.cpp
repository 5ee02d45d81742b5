#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"

#include <cmath>

using namespace VARNO::detail;

// A band is a tone when it stands above the mean of its two neighbours, that is when its
// curvature 2*S[i] - S[i-1] - S[i+1] is positive beyond rounding noise. The last band has no
// upper neighbour and must rise by a full decibel over the band below it. Band 0 is never a tone.

namespace {

constexpr double curvature_noise_db = 1e-9;
constexpr double last_band_rise_db = 1.0;

void route_band(std::size_t band, double level, bool is_tone, double* broadband, double* tones) {
    broadband[band] = is_tone ? 0.0 : level;
    tones[band] = is_tone ? level : 0.0;
}

} // namespace

void Calc_TonesLocSlope(boost::shared_ptr<spectrum_t> spectrum,
                        boost::shared_ptr<spectrum_t> broadband,
                        boost::shared_ptr<spectrum_t> tones) {
    std::vector<double> const& levels = spectrum->values;
    std::size_t const n = levels.size();
    double* const broadband_levels = broadband->values.data();
    double* const tone_levels = tones->values.data();
    route_band(0, levels[0], false, broadband_levels, tone_levels);
    for (std::size_t i = 1; i + 1 < n; ++i) {
        double curvature = (levels[i] - levels[i - 1]) + (levels[i] - levels[i + 1]);
        if (tolerantly_at_most(std::fabs(curvature), curvature_noise_db)) {
            curvature = 0.0;
        }
        route_band(i, levels[i], tolerantly_above(curvature, 0.0), broadband_levels, tone_levels);
    }
    double const rise = levels[n - 1] - levels[n - 2];
    route_band(n - 1, levels[n - 1], tolerantly_at_least(rise, last_band_rise_db), broadband_levels,
               tone_levels);
}

void VARNO::detail::Calc_TonesLocSlopeArray(std::vector<double> const& levels, double* broadband,
                                            double* tones) {
    std::size_t const n = levels.size();
    route_band(0, levels[0], false, broadband, tones);
    for (std::size_t i = 1; i + 1 < n; ++i) {
        double const curvature = 2.0 * levels[i] - levels[i - 1] - levels[i + 1];
        route_band(i, levels[i], curvature > curvature_noise_db, broadband, tones);
    }
    double const rise = levels[n - 1] - levels[n - 2];
    route_band(n - 1, levels[n - 1], rise >= last_band_rise_db, broadband, tones);
}
