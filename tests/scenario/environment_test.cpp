#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <tuple>

TEST(Environment, AddedObjectsAreSharedAndRemovalKeepsOrderIgnoresBadIndicesWithoutCascade) {
    environment_t environment;
    auto const first = environment.add_aircraft();
    auto const second = environment.add_aircraft();
    auto const tsour = environment.add_tsour_calculation();
    auto const simulation = environment.add_tsour_simulation(first, tsour);
    environment.add_nlcp_simulation(second, environment.add_nlcp_calculation());
    environment_t const copy = environment;
    EXPECT_EQ(std::make_tuple(environment.aircraft.at(0), copy.simulations.at(0),
                              simulation->aircraft, simulation->tsour),
              std::make_tuple(first, simulation, first, tsour));

    environment.remove_simulation_at(2);
    environment.remove_aircraft_at(0);
    environment.remove_tsour_calculation_at(0);
    environment.remove_nlcp_calculation_at(5);
    EXPECT_EQ(environment.aircraft, std::vector<boost::shared_ptr<aircraft_t>>{second});
    EXPECT_EQ(std::make_tuple(environment.simulations.size(), environment.tsour_calculations.size(),
                              environment.nlcp_calculations.size()),
              std::make_tuple(2u, 0u, 1u));
    EXPECT_TRUE(simulation->aircraft == first && simulation->tsour);
    environment.remove_simulation_at(0);
    EXPECT_EQ(environment.simulations.at(0)->calculation_type,
              calculation_integrated_aircraft_noise);
    // Nothing checks that the parts belong to the environment, or exist.
    EXPECT_FALSE(environment.add_tsour_simulation(nullptr, tsour)->aircraft);
}

TEST(Environment, ScalingsCompareTwoEngines) {
    environment_t environment;
    auto const scaling = environment.add_scaling();
    EXPECT_EQ(std::make_tuple(scaling->engines.size(), scaling->engines.at(0)->index,
                              scaling->engines.at(1)->index, scaling->attenuations.size()),
              std::make_tuple(2u, 0, 1, 2u));
    EXPECT_NE(scaling->attenuations[0], scaling->attenuations[1]);
    auto const calculation = environment.add_scaling_calculation();
    EXPECT_EQ(std::make_tuple(calculation->selector, calculation->ambient_conditions->temperature),
              std::make_tuple(1, 0.0));
    auto const run = environment.add_scaling_simulation(scaling, calculation);
    EXPECT_EQ(run->scaling, scaling);
    EXPECT_TRUE(run->results && run->results->engine_noise.empty());
}

TEST(Simulation, FactoriesSetOneCalculationWithItsDefaultsAndTheSharedLinearInterpolator) {
    auto const aircraft = boost::make_shared<aircraft_t>();
    auto const tsour =
        simulation_t::create_tsour(aircraft, boost::make_shared<tsour_calculation_t>());
    EXPECT_EQ(
        std::make_tuple(tsour->calculation_type, tsour->direction_index, tsour->direction_count),
        std::make_tuple(calculation_noise_sources, -1, 0));
    EXPECT_TRUE(tsour->first_switch && !tsour->second_switch && !tsour->result && !tsour->nlcp);
    EXPECT_EQ(tsour->angular_interpolation.get(), angular_interpolation_t::linear.get());
    auto const& calculation = *tsour->tsour;
    EXPECT_EQ(calculation.leading_value, 1.0);
    EXPECT_TRUE(calculation.engine_sources_enabled && calculation.airframe_sources_enabled);
    EXPECT_EQ(calculation.transposition_options->total_aircraft->source_option_2, 0);

    // An integrated calculation transposes the total of the aircraft with its own setting.
    auto const nlcp = simulation_t::create_nlcp(aircraft, boost::make_shared<nlcp_calculation_t>());
    EXPECT_EQ(nlcp->calculation_type, calculation_integrated_aircraft_noise);
    EXPECT_TRUE(!nlcp->tsour && nlcp->aircraft == aircraft);
    auto const& total = *nlcp->nlcp->transposition_options->total_aircraft;
    EXPECT_EQ(std::make_tuple(nlcp->nlcp->type, nlcp->nlcp->selector, total.source_option_2,
                              total.source_distance),
              std::make_tuple(nlcp_static_apu_noise, -1, 1, 20.0));
}

namespace {

boost::shared_ptr<simulation_t> simulation_with_points(std::size_t count) {
    auto const simulation = simulation_t::create_tsour(boost::make_shared<aircraft_t>(),
                                                       boost::make_shared<tsour_calculation_t>());
    simulation->create_calculation_points(count);
    return simulation;
}

// Sets the simulation stepping from the first of `count` directions.
boost::shared_ptr<simulation_t> stepping(boost::shared_ptr<simulation_t> simulation, int count) {
    simulation->direction_count = count;
    simulation->direction_index = 0;
    return simulation;
}

std::vector<int> indices(simulation_t const& simulation) {
    std::vector<int> result;
    for (auto const& point : simulation.calculation_points) {
        result.push_back(point->index);
    }
    return result;
}

// A simulation whose points carry the given segments and positions.
boost::shared_ptr<simulation_t> trajectory(std::vector<std::pair<int, double>> const& points) {
    auto simulation = simulation_with_points(points.size());
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
    EXPECT_FALSE(trajectory({{0, 0.0}, {0, 10.0}, {1, 20.0}})->get_last_segment_ref_rating());
}

TEST(CalculationPoints, NewPointHasARatingPerEngineAndZeroState) {
    auto aircraft = boost::make_shared<aircraft_t>();
    aircraft->engines.push_back(boost::make_shared<engine_t>(1));
    calculation_point_t const point(aircraft, 7);
    EXPECT_EQ(std::make_tuple(point.index, point.directional->value_6, point.directional->value_5),
              std::make_tuple(7, 1.0, 0.0));
    ASSERT_EQ(point.omnidir->engine_ratings.size(), 2u);
    EXPECT_NE(point.omnidir->engine_ratings[0], point.omnidir->engine_ratings[1]);
    EXPECT_EQ(point.omnidir->engine_ratings[1]->net_thrust, 0.0);
    EXPECT_NE(point.omnidir->first_ambient, point.omnidir->second_ambient);
    aircraft->engines.push_back(boost::make_shared<engine_t>(2));
    EXPECT_EQ(point.omnidir->engine_ratings.size(), 2u);
}

TEST(CalculationPoints, CreationReplacesEveryPointAndInsertionRenumbersTheLaterPoints) {
    auto const simulation = simulation_with_points(5);
    auto const old_first = simulation->calculation_points[0];
    simulation->create_calculation_points(3);
    EXPECT_NE(simulation->calculation_points[0], old_first);
    auto const old_second = simulation->calculation_points[1];
    simulation->insert_calculation_point(1);
    simulation->insert_calculation_point(4);
    EXPECT_EQ(indices(*simulation), (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(simulation->calculation_points[2], old_second);
}

TEST(DirectionStepping, StepsOnlyWhileSteppingToTheLastDirectionAndClearsTheDirectionalState) {
    EXPECT_FALSE(stepping(simulation_with_points(0), 3)->move_to_next_direction());

    auto const simulation = simulation_with_points(2);
    simulation->direction_count = 3;
    EXPECT_FALSE(simulation->move_to_next_direction()); // not stepping yet
    EXPECT_EQ(simulation->direction_index, -1);
    EXPECT_FALSE(stepping(simulation, 1)->move_to_next_direction());
    auto& directional = *simulation->calculation_points[1]->directional;
    EXPECT_EQ(directional.value_6, 1.0); // refused steps clear nothing
    directional.value_22 = 4.0;

    EXPECT_TRUE(stepping(simulation, 3)->move_to_next_direction());
    EXPECT_EQ(directional.value_22, 0.0);
    EXPECT_EQ(directional.value_6, 0.0); // its starting 1.0 is not restored
    EXPECT_EQ(simulation->calculation_points[1]->directional.get(), &directional);
    EXPECT_TRUE(simulation->move_to_next_direction());
    EXPECT_FALSE(simulation->move_to_next_direction());
    EXPECT_EQ(simulation->direction_index, 2);
}
