#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

namespace {

// A noise sources simulation of an aircraft with the given engine and airframe sources.
boost::shared_ptr<simulation_t> simulation_of(std::vector<source_type_t> const& engine,
                                              std::vector<source_type_t> const& airframe) {
    auto aircraft = boost::make_shared<aircraft_t>();
    for (auto type : engine) {
        aircraft->engine_sources.push_back(boost::make_shared<source_t>(type));
    }
    for (auto type : airframe) {
        aircraft->airframe_sources.push_back(boost::make_shared<source_t>(type));
    }
    return simulation_t::create_tsour(aircraft, boost::make_shared<tsour_calculation_t>());
}

} // namespace

TEST(OptionLookup, SourceWithoutRecordGetsTheVeryDefaultObject) {
    auto const simulation = simulation_of({source_jet, source_fan_aft}, {source_nai});
    auto const& defaults = *simulation->tsour->prediction_options;
    EXPECT_EQ(simulation->get_jet_prediction_options(0), defaults.jet);
    EXPECT_EQ(simulation->get_aft_fan_prediction_options(1), defaults.aft_fan);
    EXPECT_EQ(simulation->get_nai_prediction_options(0), defaults.nai);
    EXPECT_EQ(simulation->get_spoiler_prediction_options(0), defaults.spoiler);
    // The kind is not compared: a jet source asked for turbine options gets the turbine default.
    EXPECT_EQ(simulation->get_turbine_prediction_options(0), defaults.turbine);
}

TEST(OptionLookup, SourceWithItsOwnRecordGetsIt) {
    auto const simulation = simulation_of({source_fan_forward}, {source_outboard_cavity});
    auto const own_fan = engine_source_prediction_t::create(source_fan_forward);
    simulation->aircraft->engine_sources[0]->prediction_options = own_fan;
    auto const own_cavity = airframe_source_prediction_t::create(source_outboard_cavity);
    simulation->aircraft->airframe_sources[0]->prediction_options = own_cavity;

    EXPECT_EQ(simulation->get_fwd_fan_prediction_options(0), own_fan);
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(0), own_fan);
    EXPECT_EQ(simulation->get_cavity_out_prediction_options(0), own_cavity);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(0), own_cavity);
}

TEST(OptionLookup, TypedGettersChooseTheDefaultByTheSourceType) {
    auto const simulation =
        simulation_of({source_fan_forward, source_fan_aft, source_compressor, source_residual},
                      {source_inboard_cavity, source_outboard_cavity, source_extraneous_airframe,
                       source_nai, source_spoiler});
    auto const& defaults = *simulation->tsour->prediction_options;
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(0), defaults.fwd_fan);
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(1), defaults.aft_fan);
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(2), defaults.compressor);
    EXPECT_FALSE(simulation->get_comp_fan_prediction_options(3));
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(0), defaults.cavity_in);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(1), defaults.cavity_out);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(2), defaults.extraneous);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(3), defaults.nai);
    EXPECT_FALSE(simulation->get_tonal_airframe_source_prediction_options(4));
}

TEST(OptionLookup, AdjustedFlagComesFromTheRecordInForce) {
    auto const simulation = simulation_of(
        {source_jet, source_compressor, source_residual, source_propeller, source_fan_aft}, {});
    auto& defaults = *simulation->tsour->prediction_options;
    defaults.jet->adjusted = true;
    defaults.compressor->adjusted = true;
    EXPECT_TRUE(simulation->is_engine_source_adjusted(0));
    EXPECT_TRUE(simulation->is_engine_source_adjusted(1));
    EXPECT_FALSE(simulation->is_engine_source_adjusted(2));
    EXPECT_FALSE(simulation->is_engine_source_adjusted(3));
    EXPECT_FALSE(simulation->is_engine_source_adjusted(4));

    auto own = engine_source_prediction_t::create(source_jet);
    simulation->aircraft->engine_sources[0]->prediction_options = own;
    EXPECT_FALSE(simulation->is_engine_source_adjusted(0));
    own->adjusted = true;
    simulation->aircraft->engine_sources[2]->prediction_options = own;
    EXPECT_FALSE(simulation->is_engine_source_adjusted(2)); // a residual source has no options
}

TEST(OptionLookup, TranspositionOwnRecordOrDefaultInsertingAMissingType) {
    auto const simulation =
        simulation_of({source_jet, static_cast<source_type_t>(30)}, {source_slats});
    auto& single = simulation->tsour->transposition_options->single_sources;
    EXPECT_EQ(simulation->get_engine_source_transposition_options(0), single.at(source_jet));
    EXPECT_EQ(simulation->get_airframe_source_transposition_options(0), single.at(source_slats));

    auto const own = boost::make_shared<single_source_transposition_t>(source_slats);
    simulation->aircraft->airframe_sources[0]->transposition_options = own;
    single.erase(source_slats);
    EXPECT_EQ(simulation->get_airframe_source_transposition_options(0), own);
    EXPECT_EQ(single.size(), 23u);

    EXPECT_FALSE(simulation->get_engine_source_transposition_options(1));
    EXPECT_EQ(single.size(), 24u);
    EXPECT_EQ(single.count(static_cast<source_type_t>(30)), 1u);
}
