#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

TEST(TranspositionOptions, DefaultsHoldEverySourceTypeWithItsMeasurementDistance) {
    default_transposition_options_t const options;
    // Measurement distance (m) of each source type, by its number.
    double const distances[] = {10, 20, 20, 0,  0,  40, 20, 20, 20, 20, 20, 20,
                                40, 40, 40, 40, 40, 40, 40, 40, 40, 40, 40, 40};
    ASSERT_EQ(options.single_sources.size(), 24u);
    for (auto const& entry : options.single_sources) {
        EXPECT_EQ(entry.second->source_distance, distances[entry.first]) << entry.first;
    }
    auto const& jet = *options.single_sources.at(source_jet);
    EXPECT_FALSE(jet.source_flag_7);
    EXPECT_TRUE(jet.source_flag_8);
    EXPECT_EQ(jet.source_option_3, 1);
    EXPECT_EQ(jet.source_option_4, 1);
    EXPECT_EQ(options.single_sources.at(source_turbine)->source_option_3, 0);

    auto const& gear = *options.single_sources.at(source_main_landing_gear);
    EXPECT_FALSE(gear.source_flag_1 || gear.source_flag_2 || gear.source_flag_3 ||
                 gear.source_flag_4);
    EXPECT_TRUE(gear.source_flag_5);
    EXPECT_FALSE(gear.source_flag_6 || gear.source_flag_7);
    EXPECT_TRUE(gear.source_flag_8);
    EXPECT_EQ(gear.source_option_5, -2);

    ASSERT_TRUE(options.common_all_sources);
    EXPECT_EQ(options.common_all_sources->ground_reflection_method, ground_slit_pore_user_defined);
    EXPECT_EQ(options.common_all_sources->slit_pore_porosity, 0.5);
    EXPECT_EQ(options.common_all_sources->slit_pore_flow_resistivity, 50.0);
    EXPECT_EQ(options.common_all_sources->common_option_4, 4);
}

TEST(TranspositionOptions, TotalAircraftTakesNoSourceTypeDefaults) {
    default_transposition_options_t const options;
    // The records are plain, without virtual functions: the holder knows what it made.
    auto const& record =
        static_cast<total_aircraft_transposition_t const&>(*options.total_aircraft);
    EXPECT_EQ(record.source_distance, 20.0);
    EXPECT_EQ(record.source_option_2, 0);
    EXPECT_TRUE(record.source_flag_6 && record.source_flag_7);
    EXPECT_EQ(record.total_option_2, 3);
    EXPECT_EQ(record.total_option_5, 1);
}
