#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <tuple>

TEST(Environment, AddedObjectsAreSharedWithTheCaller) {
    environment_t environment;
    auto const aircraft = environment.add_aircraft();
    auto const tsour = environment.add_tsour_calculation();
    auto const simulation = environment.add_tsour_simulation(aircraft, tsour);
    environment_t const copy = environment;
    EXPECT_EQ(std::make_tuple(environment.aircraft.at(0), copy.simulations.at(0),
                              simulation->aircraft, simulation->tsour),
              std::make_tuple(aircraft, simulation, aircraft, tsour));

    // Nothing checks that the parts belong to the environment, or exist.
    environment.add_tsour_simulation(nullptr, tsour);
    EXPECT_EQ(environment.simulations.size(), 2u);
    EXPECT_FALSE(environment.simulations[1]->aircraft);
}

TEST(Environment, RemovalKeepsOrderIgnoresBadIndicesAndDoesNotCascade) {
    environment_t environment;
    auto const first = environment.add_aircraft();
    auto const second = environment.add_aircraft();
    auto const simulation =
        environment.add_tsour_simulation(first, environment.add_tsour_calculation());
    environment.add_nlcp_simulation(second, environment.add_nlcp_calculation());

    environment.remove_simulation_at(2);
    EXPECT_EQ(environment.simulations.size(), 2u);
    environment.remove_aircraft_at(0);
    ASSERT_EQ(environment.aircraft.size(), 1u);
    EXPECT_EQ(environment.aircraft[0], second);
    EXPECT_EQ(simulation->aircraft, first);
    environment.remove_tsour_calculation_at(0);
    environment.remove_nlcp_calculation_at(5);
    EXPECT_TRUE(environment.tsour_calculations.empty());
    EXPECT_EQ(environment.nlcp_calculations.size(), 1u);
    ASSERT_TRUE(simulation->tsour);
    environment.remove_simulation_at(0);
    EXPECT_EQ(environment.simulations.at(0)->calculation_type,
              calculation_integrated_aircraft_noise);
}

TEST(Environment, ScalingsCompareTwoEngines) {
    environment_t environment;
    auto const scaling = environment.add_scaling();
    ASSERT_EQ(scaling->engines.size(), 2u);
    EXPECT_EQ(std::make_tuple(scaling->engines[0]->index, scaling->engines[1]->index),
              std::make_tuple(0, 1));
    ASSERT_EQ(scaling->attenuations.size(), 2u);
    EXPECT_NE(scaling->attenuations[0], scaling->attenuations[1]);
    auto const calculation = environment.add_scaling_calculation();
    EXPECT_EQ(std::make_tuple(calculation->selector, calculation->ambient_conditions->temperature),
              std::make_tuple(1, 0.0));
    auto const run = environment.add_scaling_simulation(scaling, calculation);
    EXPECT_EQ(run->scaling, scaling);
    EXPECT_TRUE(run->results && run->results->engine_noise.empty());
}

TEST(Calculations, DefaultsOfTheTwoKinds) {
    tsour_calculation_t const tsour;
    EXPECT_EQ(tsour.leading_value, 1.0);
    EXPECT_TRUE(tsour.engine_sources_enabled && tsour.airframe_sources_enabled);
    EXPECT_TRUE(tsour.prediction_options && tsour.transposition_options);
    EXPECT_EQ(tsour.transposition_options->total_aircraft->source_option_2, 0);

    nlcp_calculation_t const nlcp;
    auto const& total = *nlcp.transposition_options->total_aircraft;
    EXPECT_EQ(
        std::make_tuple(nlcp.type, nlcp.selector, total.source_option_2, total.source_distance),
        std::make_tuple(nlcp_static_apu_noise, -1, 1, 20.0));
}

TEST(Simulation, FactoriesSetOneCalculationAndTheSharedLinearInterpolator) {
    auto const aircraft = boost::make_shared<aircraft_t>();
    auto const tsour =
        simulation_t::create_tsour(aircraft, boost::make_shared<tsour_calculation_t>());
    EXPECT_EQ(
        std::make_tuple(tsour->calculation_type, tsour->direction_index, tsour->direction_count),
        std::make_tuple(calculation_noise_sources, -1, 0));
    EXPECT_TRUE(tsour->first_switch && !tsour->second_switch && !tsour->result && !tsour->nlcp);
    EXPECT_EQ(tsour->angular_interpolation.get(), angular_interpolation_t::linear.get());

    auto const nlcp = simulation_t::create_nlcp(aircraft, boost::make_shared<nlcp_calculation_t>());
    EXPECT_EQ(nlcp->calculation_type, calculation_integrated_aircraft_noise);
    EXPECT_TRUE(!nlcp->tsour && nlcp->aircraft == aircraft);
}

namespace {

// A simulation whose points carry the given segments and positions.
boost::shared_ptr<simulation_t> trajectory(std::vector<std::pair<int, double>> const& points) {
    auto simulation = simulation_t::create_tsour(boost::make_shared<aircraft_t>(),
                                                 boost::make_shared<tsour_calculation_t>());
    simulation->create_calculation_points(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        simulation->calculation_points[i]->omnidir->segment = points[i].first;
        simulation->calculation_points[i]->omnidir->position = points[i].second;
    }
    return simulation;
}

boost::shared_ptr<engine_rating_t> rating_of(boost::shared_ptr<simulation_t> const& simulation,
                                             std::size_t point) {
    return simulation->calculation_points[point]->omnidir->engine_ratings.at(0);
}

} // namespace

TEST(Simulation, ReferenceRatingIsAtTheMiddleOfTheLastSegment) {
    // Last segment from 10 to 40: the middle 25 lies exactly between 20 and 30.
    auto const tie = trajectory({{0, 0.0}, {1, 10.0}, {1, 20.0}, {1, 30.0}, {1, 40.0}});
    EXPECT_EQ(tie->get_last_segment_ref_rating(), rating_of(tie, 3));
    // Middle 25 nearer to 20 than to 40.
    auto const nearer = trajectory({{1, 10.0}, {1, 20.0}, {1, 40.0}});
    EXPECT_EQ(nearer->get_last_segment_ref_rating(), rating_of(nearer, 1));
    auto const single = trajectory({{0, 0.0}, {0, 10.0}, {1, 20.0}});
    EXPECT_FALSE(single->get_last_segment_ref_rating());
}
