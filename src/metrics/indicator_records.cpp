#include <calc-common/metrics.hpp>
#include <calc-common/results.hpp>

#include "frame/numeric_helpers.hpp"
#include "metrics/metrics_detail.hpp"

#include <boost/format.hpp>

#include <cmath>

namespace {

using VARNO::detail::not_a_number;

void require_record(boost::shared_ptr<integrated_noise_indicators_t> const& indicators,
                    char const* function) {
    if (!indicators) {
        throw varno_calc_error::with_message(
            (boost::format("%1%: no indicators record was given") % function).str());
    }
}

/// Energy mean of one level of the events: 10 log10(mean of 10^(L/10)).
double energy_mean(std::vector<noise_event_t> const& events, double noise_event_t::*field) {
    if (events.empty()) {
        return 0.0;
    }
    double energy = 0.0;
    for (noise_event_t const& event : events) {
        if (std::isnan(event.*field)) {
            return not_a_number;
        }
        energy += VARNO::detail::level_to_energy(event.*field);
    }
    return VARNO::detail::energy_to_level(energy / static_cast<double>(events.size()));
}

} // namespace

void Calc_FillIndicators(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                         double time_step,
                         boost::shared_ptr<integrated_noise_indicators_t> indicators,
                         std::vector<double> const& angles) {
    require_record(indicators, "Calc_FillIndicators");
    if (!angles.empty() && angles.size() != history.size()) {
        throw varno_calc_error::with_message(
            "Calc_FillIndicators: there must be one angle for each spectrum, or none");
    }
    time_history_metrics_t const metrics = Calc_TimeHistoryMetrics(history, time_step);
    indicators->oaspl_max = metrics.oaspl_max.level;
    indicators->dba_max = metrics.dba_max.level;
    indicators->pnl_max = metrics.pnl_max.level;
    indicators->pnltm = metrics.perceived.pnltm.level;
    indicators->epnl = metrics.perceived.epnl;
    indicators->sel = metrics.sel;
    if (!angles.empty()) {
        indicators->psi_oaspl_max = angles[metrics.oaspl_max.index];
        indicators->psi_dba_max = angles[metrics.dba_max.index];
        indicators->psi_pnl_max = angles[metrics.pnl_max.index];
        indicators->psi_pnltm = angles[metrics.perceived.pnltm.index];
    }
}

void Calc_FillExposure(std::vector<noise_event_t> const& events, double threshold,
                       boost::shared_ptr<integrated_noise_indicators_t> indicators) {
    require_record(indicators, "Calc_FillExposure");
    indicators->leq24h = Calc_EquivalentLevel(events, 0.0, 24.0);
    indicators->leqdt = Calc_EquivalentLevel(events, 7.0, 22.0);
    indicators->leqnt = Calc_EquivalentLevel(events, 22.0, 7.0);
    indicators->dnl = Calc_DayNightLevel(events);
    indicators->cnel = Calc_CommunityNoiseEquivalentLevel(events);
    indicators->na = Calc_NumberAbove(events, threshold);
    indicators->ta = Calc_TotalTimeAbove(events);
    indicators->nef = Calc_NoiseExposureForecast(events);
    noise_exposure_t& averages = indicators->exposure;
    averages.avg_oaspl_max = energy_mean(events, &noise_event_t::oaspl_max);
    averages.avg_dba_max = energy_mean(events, &noise_event_t::la_max);
    averages.avg_pnl_max = energy_mean(events, &noise_event_t::pnl_max);
    averages.avg_pnltm = energy_mean(events, &noise_event_t::pnltm);
    averages.avg_epnl = energy_mean(events, &noise_event_t::epnl);
    averages.avg_sel = energy_mean(events, &noise_event_t::sel);
}
