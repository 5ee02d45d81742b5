#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

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

} // namespace

TEST(CalculationPoints, NewPointHasARatingPerEngineAndZeroState) {
    auto aircraft = boost::make_shared<aircraft_t>();
    aircraft->engines.push_back(boost::make_shared<engine_t>(1));
    calculation_point_t const point(aircraft, 7);
    EXPECT_EQ(point.index, 7);
    EXPECT_EQ(point.directional->value_6, 1.0);
    EXPECT_EQ(point.directional->value_5, 0.0);
    ASSERT_EQ(point.omnidir->engine_ratings.size(), 2u);
    EXPECT_NE(point.omnidir->engine_ratings[0], point.omnidir->engine_ratings[1]);
    EXPECT_EQ(point.omnidir->engine_ratings[1]->net_thrust, 0.0);
    EXPECT_NE(point.omnidir->first_ambient, point.omnidir->second_ambient);
    EXPECT_TRUE(point.omnidir->source_values.empty());
    aircraft->engines.push_back(boost::make_shared<engine_t>(2));
    EXPECT_EQ(point.omnidir->engine_ratings.size(), 2u);
}

TEST(CalculationPoints, CreationReplacesEveryPoint) {
    auto const simulation = simulation_with_points(5);
    auto const old_first = simulation->calculation_points[0];
    simulation->create_calculation_points(3);
    EXPECT_EQ(indices(*simulation), (std::vector<int>{0, 1, 2}));
    EXPECT_NE(simulation->calculation_points[0], old_first);
    simulation->create_calculation_points(0);
    EXPECT_TRUE(simulation->calculation_points.empty());
}

TEST(CalculationPoints, InsertionRenumbersTheLaterPoints) {
    auto const simulation = simulation_with_points(3);
    auto const old_second = simulation->calculation_points[1];
    simulation->insert_calculation_point(1);
    EXPECT_EQ(indices(*simulation), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(simulation->calculation_points[2], old_second);
    simulation->insert_calculation_point(4);
    EXPECT_EQ(indices(*simulation), (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(DirectionStepping, RefusedWithoutPointsOrWhileNotStepping) {
    EXPECT_FALSE(stepping(simulation_with_points(0), 3)->move_to_next_direction());

    auto const simulation = simulation_with_points(2);
    simulation->direction_count = 5;
    EXPECT_FALSE(simulation->move_to_next_direction());
    EXPECT_EQ(simulation->direction_index, -1);
    EXPECT_EQ(simulation->calculation_points[0]->directional->value_6, 1.0);

    EXPECT_FALSE(stepping(simulation, 0)->move_to_next_direction());
    EXPECT_FALSE(stepping(simulation, 1)->move_to_next_direction());
}

TEST(DirectionStepping, StepsToTheLastDirectionAndClearsTheDirectionalState) {
    auto const simulation = stepping(simulation_with_points(2), 3);
    auto& directional = *simulation->calculation_points[1]->directional;
    directional.value_22 = 4.0;
    auto const before = simulation->calculation_points[1]->directional;

    EXPECT_TRUE(simulation->move_to_next_direction());
    EXPECT_EQ(directional.value_22, 0.0);
    EXPECT_EQ(directional.value_6, 0.0); // its starting 1.0 is not restored
    EXPECT_EQ(simulation->calculation_points[1]->directional, before);
    EXPECT_TRUE(simulation->move_to_next_direction());
    EXPECT_FALSE(simulation->move_to_next_direction());
    EXPECT_EQ(simulation->direction_index, 2);
}
