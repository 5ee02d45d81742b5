// Simulations: the factories, and the engine rating of reference of the last segment.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

#include <cmath>

namespace {

// A new simulation of `aircraft` for a calculation of `type`, not yet stepping directions.
boost::shared_ptr<simulation_t> new_simulation(boost::shared_ptr<aircraft_t> aircraft,
                                               calculation_type_t type) {
    auto simulation = boost::make_shared<simulation_t>();
    simulation->aircraft = std::move(aircraft);
    simulation->calculation_type = type;
    simulation->direction_index = -1;
    return simulation;
}

} // namespace

boost::shared_ptr<simulation_t>
simulation_t::create_tsour(boost::shared_ptr<aircraft_t> aircraft,
                           boost::shared_ptr<tsour_calculation_t> tsour) {
    auto simulation = new_simulation(std::move(aircraft), calculation_noise_sources);
    simulation->tsour = std::move(tsour);
    return simulation;
}

boost::shared_ptr<simulation_t>
simulation_t::create_nlcp(boost::shared_ptr<aircraft_t> aircraft,
                          boost::shared_ptr<nlcp_calculation_t> nlcp) {
    auto simulation = new_simulation(std::move(aircraft), calculation_integrated_aircraft_noise);
    simulation->nlcp = std::move(nlcp);
    return simulation;
}

// The reference rating is the one at the middle of the last segment, measured along the
// trajectory; a segment of a single point has no middle to bracket.
boost::shared_ptr<engine_rating_t> simulation_t::get_last_segment_ref_rating() {
    auto const position = [this](std::size_t i) {
        return calculation_points[i]->omnidir->position;
    };
    std::size_t const last = calculation_points.size() - 1;
    int const segment = calculation_points[last]->omnidir->segment;
    std::size_t first = last;
    while (first > 0 && calculation_points[first - 1]->omnidir->segment == segment) {
        --first;
    }
    double const mid = (position(last) + position(first)) * 0.5;
    for (std::size_t i = first + 1; i <= last; ++i) {
        if (position(i - 1) <= mid && mid <= position(i)) {
            bool const later = std::fabs(position(i) - mid) <= std::fabs(mid - position(i - 1));
            auto const& ratings = calculation_points[later ? i : i - 1]->omnidir->engine_ratings;
            return ratings.empty() ? boost::shared_ptr<engine_rating_t>() : ratings.front();
        }
    }
    return {};
}
