// Calculation points of a simulation, and the stepping from one direction to the next.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

namespace {

// Everything goes to zero, value_6 with it: its starting 1.0 belongs to a new point only.
void zero_directional_state(directional_calculation_point_t& state) {
    state = directional_calculation_point_t();
    state.value_6 = 0.0;
}

} // namespace

omnidir_calculation_point_t::omnidir_calculation_point_t(boost::shared_ptr<aircraft_t> aircraft)
    : first_ambient(boost::make_shared<ambient_conditions_t>())
    , second_ambient(boost::make_shared<ambient_conditions_t>()) {
    // Sized from the aircraft now: engines added later do not reach existing points.
    engine_ratings.reserve(aircraft->engines.size());
    for (std::size_t engine = 0; engine < aircraft->engines.size(); ++engine) {
        engine_ratings.push_back(boost::make_shared<engine_rating_t>());
    }
}

calculation_point_t::calculation_point_t(boost::shared_ptr<aircraft_t> aircraft, int index)
    : index(index)
    , omnidir(boost::make_shared<omnidir_calculation_point_t>(std::move(aircraft)))
    , directional(boost::make_shared<directional_calculation_point_t>()) {}

void simulation_t::create_calculation_points(std::size_t const& count) {
    calculation_points.clear();
    calculation_points.reserve(count);
    for (std::size_t index = 0; index < count; ++index) {
        calculation_points.push_back(
            boost::make_shared<calculation_point_t>(aircraft, static_cast<int>(index)));
    }
}

void simulation_t::insert_calculation_point(std::size_t const& position) {
    auto const at = calculation_points.begin() + static_cast<std::ptrdiff_t>(position);
    calculation_points.insert(
        at, boost::make_shared<calculation_point_t>(aircraft, static_cast<int>(position)));
    // Each point's index stays its place in the vector.
    for (std::size_t later = position + 1; later < calculation_points.size(); ++later) {
        ++calculation_points[later]->index;
    }
}

bool simulation_t::move_to_next_direction() {
    if (calculation_points.empty() || direction_index < 0 ||
        direction_index >= direction_count - 1) {
        return false;
    }
    for (auto const& point : calculation_points) {
        zero_directional_state(*point->directional);
    }
    // The result tree is cleared in place, so that its records stay valid for the next
    // direction; a tree made for other points is left alone.
    clear_directional_results();
    ++direction_index;
    return true;
}
