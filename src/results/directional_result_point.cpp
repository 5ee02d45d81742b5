// All noise at one calculation point, slot by slot.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "results/result_slots.hpp"

#include <boost/make_shared.hpp>

directional_result_point_t::directional_result_point_t(boost::shared_ptr<aircraft_t> aircraft)
    : engine_sources(aircraft->engine_sources.size())
    , airframe_sources(aircraft->airframe_sources.size()) {}

boost::shared_ptr<directional_result_noise_t>*
directional_result_point_t::find_ptr(boost::shared_ptr<result_type_t> type) {
    return VARNO::detail::find_slot(*this, *type);
}

boost::shared_ptr<directional_result_noise_t>
directional_result_point_t::find(boost::shared_ptr<result_type_t> type) {
    boost::shared_ptr<directional_result_noise_t>* slot = find_ptr(type);
    return slot != nullptr ? *slot : boost::shared_ptr<directional_result_noise_t>();
}

boost::shared_ptr<directional_result_noise_t>
directional_result_point_t::create(boost::shared_ptr<result_type_t> type,
                                   boost::shared_ptr<frequency_range_t> first,
                                   boost::shared_ptr<frequency_range_t> second, bool option) {
    auto record = boost::make_shared<directional_result_noise_t>(type, first, second, option);
    return VARNO::detail::store_record(*this, *type, record);
}

void directional_result_point_t::get_all(
    std::vector<boost::shared_ptr<directional_result_noise_t>>& all) const {
    VARNO::detail::append_engine_sources(*this, all);
    // At a point every total by source type comes before the engine total.
    for (auto const& total : totals_by_source_type) {
        all.push_back(total.second);
    }
    all.push_back(total_engine);
    all.insert(all.end(), airframe_sources.begin(), airframe_sources.end());
    VARNO::detail::append_closing_slots(*this, all);
}

void directional_result_point_t::clear_values() {
    VARNO::detail::clear_slots(*this);
}
