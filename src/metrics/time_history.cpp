#include <calc-common/metrics.hpp>

#include "frame/numeric_helpers.hpp"
#include "metrics/metrics_detail.hpp"

#include <algorithm>
#include <cmath>

// Metrics of a history sampled at a uniform step. Integrals become sums of the samples times
// the step. The 10 dB-down period runs from the first to the last sample at or above the
// maximum less 10 dB, dips in between included, and the EPNL duration correction is normalised
// to 10 s.

namespace {

using VARNO::detail::not_a_number;

constexpr double down_period_depth = 10.0;         // dB below the maximum
constexpr double epnl_reference_duration = 10.0;   // s
constexpr std::size_t band_sharing_half_width = 2; // samples on each side of PNLTM

struct sample_range {
    std::size_t first;
    std::size_t last;
};

sample_range down_period(std::vector<double> const& levels, double maximum) {
    double const floor = maximum - down_period_depth;
    auto const at_least_floor = [floor](double level) { return level >= floor; };
    std::size_t const first = static_cast<std::size_t>(
        std::find_if(levels.begin(), levels.end(), at_least_floor) - levels.begin());
    std::size_t const last = static_cast<std::size_t>(
        levels.rend() - std::find_if(levels.rbegin(), levels.rend(), at_least_floor) - 1);
    return {first, last};
}

double energy_sum(std::vector<double> const& levels, sample_range range) {
    double energy = 0.0;
    for (std::size_t k = range.first; k <= range.last; ++k) {
        energy += VARNO::detail::level_to_energy(levels[k]);
    }
    return energy;
}

level_maximum_t maximum_of(std::vector<double> const& levels, double time_step) {
    level_maximum_t maximum;
    if (VARNO::detail::contains_nan(levels)) {
        maximum.level = not_a_number;
        return maximum;
    }
    maximum.index =
        static_cast<std::size_t>(std::max_element(levels.begin(), levels.end()) - levels.begin());
    maximum.level = levels[maximum.index];
    maximum.time = static_cast<double>(maximum.index) * time_step;
    return maximum;
}

// A tone that moves between two bands during the flyover can lower C at the very sample of
// PNLTM; PNLTM is then raised to the mean C of the five samples centred on it (fewer at the
// ends of the history).
double band_sharing_adjustment(std::vector<double> const& tone_corrections, std::size_t peak) {
    std::size_t const first = peak > band_sharing_half_width ? peak - band_sharing_half_width : 0;
    std::size_t const last = std::min(peak + band_sharing_half_width, tone_corrections.size() - 1);
    double sum = 0.0;
    for (std::size_t k = first; k <= last; ++k) {
        sum += tone_corrections[k];
    }
    double const mean = sum / static_cast<double>(last - first + 1);
    return std::max(0.0, mean - tone_corrections[peak]);
}

effective_perceived_noise_t unknown_epnl(std::vector<double> pnlt) {
    effective_perceived_noise_t result;
    result.pnlt = std::move(pnlt);
    result.pnltm.level = result.band_sharing = result.pnltm_adjusted = not_a_number;
    result.first_10db_down_time = result.last_10db_down_time = not_a_number;
    result.duration_correction = result.epnl = not_a_number;
    return result;
}

effective_perceived_noise_t epnl_of(std::vector<double> const& pnl,
                                    std::vector<double> const& tone_corrections, double time_step) {
    std::vector<double> pnlt(pnl.size());
    std::transform(pnl.begin(), pnl.end(), tone_corrections.begin(), pnlt.begin(),
                   [](double p, double c) { return p + c; });
    if (VARNO::detail::contains_nan(pnlt)) {
        return unknown_epnl(std::move(pnlt));
    }
    effective_perceived_noise_t result;
    result.pnltm = maximum_of(pnlt, time_step);
    result.band_sharing = band_sharing_adjustment(tone_corrections, result.pnltm.index);
    result.pnltm_adjusted = result.pnltm.level + result.band_sharing;
    sample_range const period = down_period(pnlt, result.pnltm.level);
    result.first_10db_down = period.first;
    result.last_10db_down = period.last;
    result.first_10db_down_time = static_cast<double>(period.first) * time_step;
    result.last_10db_down_time = static_cast<double>(period.last) * time_step;
    result.duration_correction =
        10.0 * std::log10(energy_sum(pnlt, period) * time_step / epnl_reference_duration) -
        result.pnltm.level;
    result.epnl = result.pnltm_adjusted + result.duration_correction;
    result.pnlt = std::move(pnlt);
    return result;
}

double exposure_level(std::vector<double> const& levels, sample_range range, double time_step) {
    if (VARNO::detail::contains_nan(levels)) {
        return not_a_number;
    }
    return VARNO::detail::energy_to_level(energy_sum(levels, range) * time_step);
}

sample_range whole(std::vector<double> const& levels) {
    return {0, levels.size() - 1};
}

// Per-sample levels of a history of spectra, each spectrum checked and analysed once; a
// spectrum holding a not-a-number gives not-a-number levels.
struct sampled_history {
    std::vector<double> oaspl, dba, pnl, tone_correction;
};

enum class wanted { exposure, perceived, all };

sampled_history sample(std::vector<boost::shared_ptr<spectrum_t>> const& history, double time_step,
                       wanted what, char const* function) {
    VARNO::detail::check_history(history.size(), time_step, function);
    sampled_history sampled;
    for (boost::shared_ptr<spectrum_t> const& spectrum : history) {
        std::vector<double> const& levels = VARNO::detail::checked_tob_levels(spectrum, function);
        bool const unknown = VARNO::detail::contains_nan(levels);
        if (what != wanted::perceived) {
            sampled.dba.push_back(unknown ? not_a_number : VARNO::detail::a_weighted_level(levels));
        }
        if (what == wanted::all) {
            sampled.oaspl.push_back(Calc_OverallLevel(levels));
        }
        if (what != wanted::exposure) {
            sampled.pnl.push_back(unknown ? not_a_number
                                          : VARNO::detail::perceived_noise_level(levels));
            sampled.tone_correction.push_back(
                unknown ? not_a_number : VARNO::detail::tone_correction(levels).correction);
        }
    }
    return sampled;
}

} // namespace

level_maximum_t Calc_LevelMaximum(std::vector<double> const& levels, double time_step) {
    VARNO::detail::check_history(levels.size(), time_step, "Calc_LevelMaximum");
    return maximum_of(levels, time_step);
}

double Calc_ExposureLevel(std::vector<double> const& levels, double time_step) {
    VARNO::detail::check_history(levels.size(), time_step, "Calc_ExposureLevel");
    return exposure_level(levels, whole(levels), time_step);
}

double Calc_ExposureLevel10dBDown(std::vector<double> const& levels, double time_step) {
    VARNO::detail::check_history(levels.size(), time_step, "Calc_ExposureLevel10dBDown");
    if (VARNO::detail::contains_nan(levels)) {
        return not_a_number;
    }
    double const maximum = *std::max_element(levels.begin(), levels.end());
    return exposure_level(levels, down_period(levels, maximum), time_step);
}

double Calc_TimeAbove(std::vector<double> const& levels, double time_step, double threshold) {
    VARNO::detail::check_history(levels.size(), time_step, "Calc_TimeAbove");
    if (VARNO::detail::contains_nan(levels)) {
        return not_a_number;
    }
    auto const above = std::count_if(levels.begin(), levels.end(),
                                     [threshold](double level) { return level > threshold; });
    return static_cast<double>(above) * time_step;
}

effective_perceived_noise_t
Calc_EffectivePerceivedNoise(std::vector<double> const& pnl,
                             std::vector<double> const& tone_corrections, double time_step) {
    VARNO::detail::check_history(pnl.size(), time_step, "Calc_EffectivePerceivedNoise");
    if (tone_corrections.size() != pnl.size()) {
        throw varno_calc_error::with_message("Calc_EffectivePerceivedNoise: there must be one "
                                             "tone correction for each perceived noise level");
    }
    return epnl_of(pnl, tone_corrections, time_step);
}

effective_perceived_noise_t
Calc_EffectivePerceivedNoise(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                             double time_step) {
    sampled_history const sampled =
        sample(history, time_step, wanted::perceived, "Calc_EffectivePerceivedNoiseLevel");
    return epnl_of(sampled.pnl, sampled.tone_correction, time_step);
}

double Calc_EffectivePerceivedNoiseLevel(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                                         double time_step) {
    return Calc_EffectivePerceivedNoise(history, time_step).epnl;
}

double Calc_SoundExposureLevel(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                               double time_step) {
    sampled_history const sampled =
        sample(history, time_step, wanted::exposure, "Calc_SoundExposureLevel");
    return exposure_level(sampled.dba, whole(sampled.dba), time_step);
}

time_history_metrics_t
Calc_TimeHistoryMetrics(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                        double time_step) {
    sampled_history sampled = sample(history, time_step, wanted::all, "Calc_TimeHistoryMetrics");
    time_history_metrics_t metrics;
    metrics.oaspl_max = maximum_of(sampled.oaspl, time_step);
    metrics.dba_max = maximum_of(sampled.dba, time_step);
    metrics.pnl_max = maximum_of(sampled.pnl, time_step);
    metrics.perceived = epnl_of(sampled.pnl, sampled.tone_correction, time_step);
    metrics.sel = exposure_level(sampled.dba, whole(sampled.dba), time_step);
    metrics.sel_10db_down =
        std::isnan(metrics.dba_max.level)
            ? not_a_number
            : exposure_level(sampled.dba, down_period(sampled.dba, metrics.dba_max.level),
                             time_step);
    metrics.oaspl = std::move(sampled.oaspl);
    metrics.dba = std::move(sampled.dba);
    metrics.pnl = std::move(sampled.pnl);
    return metrics;
}
