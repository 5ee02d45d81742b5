// The result of a simulation: its points, and the pairing of each global record with the same
// slot of every point.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

#include <array>

namespace {

using indicators_ptr = boost::shared_ptr<result_indicators_t>;
using global_slot = boost::shared_ptr<integrated_noise_indicators_t> directional_result_t::*;
using point_slot = boost::shared_ptr<directional_result_noise_t> directional_result_point_t::*;

struct fixed_slot {
    global_slot global;
    point_slot point;
};

// The eight fixed slots, the engine total first: it is listed apart from the other seven.
constexpr std::array<fixed_slot, 8> fixed_slots = {{
    {&directional_result_t::total_engine, &directional_result_point_t::total_engine},
    {&directional_result_t::total_airfoil, &directional_result_point_t::total_airfoil},
    {&directional_result_t::total_landing_gear, &directional_result_point_t::total_landing_gear},
    {&directional_result_t::total_airframe, &directional_result_point_t::total_airframe},
    {&directional_result_t::total_aircraft, &directional_result_point_t::total_aircraft},
    {&directional_result_t::genepass_broadband, &directional_result_point_t::genepass_broadband},
    {&directional_result_t::genepass_tones, &directional_result_point_t::genepass_tones},
    {&directional_result_t::genepass_ground_reflection,
     &directional_result_point_t::genepass_ground_reflection},
}};

// One global record with the record that each point holds in the same slot.
template <class SlotOfPoint>
indicators_ptr pair_up(boost::shared_ptr<integrated_noise_indicators_t> const& indicators,
                       std::vector<boost::shared_ptr<result_point_t>> const& points,
                       SlotOfPoint slot_of_point) {
    auto paired = boost::make_shared<result_indicators_t>();
    paired->indicators = indicators;
    paired->directional.reserve(points.size());
    for (auto const& point : points) {
        paired->directional.push_back(slot_of_point(*point->directional));
    }
    return paired;
}

} // namespace

result_point_t::result_point_t(boost::shared_ptr<aircraft_t> aircraft)
    : directional(boost::make_shared<directional_result_point_t>(aircraft)) {}

void result_t::get_all_indicators(std::vector<indicators_ptr>& all) {
    std::vector<indicators_ptr> fixed;
    for (fixed_slot const& slot : fixed_slots) {
        fixed.push_back(
            pair_up((*global).*slot.global, points,
                    [&](directional_result_point_t& point) { return point.*slot.point; }));
    }
    all.clear();

    for (std::size_t i = 0; i < global->engine_sources.size(); ++i) {
        auto const& entry = global->engine_sources[i];
        if (!entry) {
            continue;
        }
        if (entry->whole) {
            all.push_back(pair_up(entry->whole, points, [i](directional_result_point_t& point) {
                return point.engine_sources[i]->whole;
            }));
        }
        for (auto const& component : entry->components) {
            noise_component_t const key = component.first;
            all.push_back(
                pair_up(component.second, points, [i, key](directional_result_point_t& point) {
                    return point.engine_sources[i]->components[key];
                }));
        }
    }
    for (auto const& total : global->totals_by_source_type) {
        source_type_t const key = total.first;
        all.push_back(pair_up(total.second, points, [key](directional_result_point_t& point) {
            return point.totals_by_source_type[key];
        }));
    }
    all.push_back(fixed.front());
    for (std::size_t i = 0; i < global->airframe_sources.size(); ++i) {
        all.push_back(
            pair_up(global->airframe_sources[i], points,
                    [i](directional_result_point_t& point) { return point.airframe_sources[i]; }));
    }
    all.insert(all.end(), fixed.begin() + 1, fixed.end());
}
