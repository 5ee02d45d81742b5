// All integrated indicators of a simulation, slot by slot.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "results/result_slots.hpp"
#include "results/source_family.hpp"

#include <boost/make_shared.hpp>

directional_result_t::directional_result_t(boost::shared_ptr<aircraft_t> aircraft) {
    if (aircraft) {
        engine_sources.resize(aircraft->engine_sources.size());
        airframe_sources.resize(aircraft->airframe_sources.size());
    }
}

boost::shared_ptr<integrated_noise_indicators_t>*
directional_result_t::find_ptr(boost::shared_ptr<result_type_t> type) {
    return VARNO::detail::find_slot(*this, *type);
}

boost::shared_ptr<integrated_noise_indicators_t>
directional_result_t::find(boost::shared_ptr<result_type_t> type) {
    boost::shared_ptr<integrated_noise_indicators_t>* slot = find_ptr(type);
    return slot != nullptr ? *slot : boost::shared_ptr<integrated_noise_indicators_t>();
}

boost::shared_ptr<integrated_noise_indicators_t>
directional_result_t::create(boost::shared_ptr<result_type_t> type) {
    auto record = boost::make_shared<integrated_noise_indicators_t>(type);
    return VARNO::detail::store_record(*this, *type, record);
}

void directional_result_t::get_all(
    std::vector<boost::shared_ptr<integrated_noise_indicators_t>>& all) const {
    VARNO::detail::append_engine_sources(*this, all);
    // Globally the totals by source type stand beside their own family: engine totals before
    // the engine total, airframe totals after the airframe sources.
    for (auto const& total : totals_by_source_type) {
        if (VARNO::detail::is_engine_source_type(total.first)) {
            all.push_back(total.second);
        }
    }
    all.push_back(total_engine);
    all.insert(all.end(), airframe_sources.begin(), airframe_sources.end());
    for (auto const& total : totals_by_source_type) {
        if (VARNO::detail::is_airframe_source_type(total.first)) {
            all.push_back(total.second);
        }
    }
    VARNO::detail::append_closing_slots(*this, all);
}

void directional_result_t::clear_values() {
    VARNO::detail::clear_slots(*this);
}
