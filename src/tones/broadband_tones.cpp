#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"
#include "tones/tone_separation.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace VARNO::detail;

// Separation by shape alone: locate the tone bands, fill the holes they leave in the broadband
// floor, give doubtful tones back, and finally take the floor's energy out of each tone band.

namespace VARNO {
namespace detail {

namespace {

// The cut index lies two bands below the grid index of the cut frequency.
constexpr int cut_band_offset = tob_first_band + 2;

} // namespace

int cut_index(double cut_frequency, std::size_t band_count) {
    if (!has_band(cut_frequency)) {
        return 0;
    }
    int const k = band_number(cut_frequency) - cut_band_offset;
    return on_grid(k, band_count) ? k : 0;
}

int Calc_SeparateTones(boost::shared_ptr<spectrum_t> spectrum, double check_margin,
                       double cut_frequency, double gap_value, tone_sep_method_t method,
                       double slope_step, double tone_margin,
                       boost::shared_ptr<spectrum_t> broadband,
                       boost::shared_ptr<spectrum_t> tones) {
    int const k = cut_index(cut_frequency, spectrum->values.size());
    if (method == tone_sep_slope_differences) {
        Calc_TonesLocSlope(spectrum, broadband, tones);
    } else if (method == tone_sep_discrete_frequencies_detection) {
        Calc_TonesLocFreq(spectrum, slope_step, tone_margin, broadband, tones);
    }
    Calc_InterpSpec(broadband, gap_value);
    Calc_CheckTones(spectrum, k, check_margin, gap_value, broadband, tones);
    return k;
}

int Calc_SeparateTonesArray(double const* levels, std::size_t band_count, double* broadband,
                            double* tones, double check_margin, double cut_frequency,
                            tone_sep_method_t method, double slope_step, double tone_margin) {
    thread_local std::vector<double> input;
    thread_local std::vector<double> floor;
    if (input.size() != band_count) {
        input.resize(band_count);
        floor.resize(band_count);
    }
    std::copy(levels, levels + band_count, input.begin());

    int const k = cut_index(cut_frequency, band_count);
    if (method == tone_sep_discrete_frequencies_detection) {
        Calc_TonesLocFreqArray(input, floor.data(), tones, &slope_step, &tone_margin);
    } else {
        Calc_TonesLocSlopeArray(input, floor.data(), tones);
    }
    Calc_InterpSpecArray(floor);
    Calc_CheckTonesArray(input, k, &check_margin, floor, tones);
    std::copy(floor.begin(), floor.end(), broadband);
    return k;
}

} // namespace detail
} // namespace VARNO

int Calc_BBTones(boost::shared_ptr<spectrum_t> spectrum, double const& check_margin,
                 double const& cut_frequency, double const& /*unused*/, tone_sep_method_t method,
                 double const& slope_step, double const& tone_margin,
                 boost::shared_ptr<spectrum_t> broadband, boost::shared_ptr<spectrum_t> tones) {
    std::size_t const n = tob_frequency_range_ptr->count;
    double const* const levels = spectrum->values.data();
    double* const floor = broadband->values.data();
    double* const tone_levels = tones->values.data();
    int const k = Calc_SeparateTonesArray(levels, n, floor, tone_levels, check_margin,
                                          cut_frequency, method, slope_step, tone_margin);
    // At and below the cut index no tone survives, whatever the check decided.
    std::size_t const cut = static_cast<std::size_t>(k);
    for (std::size_t i = 0; i <= cut; ++i) {
        floor[i] = levels[i];
        tone_levels[i] = 0.0;
    }
    // Above it a tone band keeps the energetic excess of the input over the floor; a band whose
    // excess rounds away to nothing holds no tone, that is silence.
    for (std::size_t i = cut + 1; i < n; ++i) {
        double const excess = energy_of_level(levels[i]) - energy_of_level(floor[i]);
        tone_levels[i] = levels[i] > floor[i] && excess > 0.0 ? level_of_energy(excess) : 0.0;
    }
    return k;
}
