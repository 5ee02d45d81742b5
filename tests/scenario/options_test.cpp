#include <calc-common/scenario.hpp>

#include "support/error_text.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <string>
#include <tuple>

using test_support::error_text;

TEST(PredictionOptions, ModelDefaultsThatSelectBehaviourAndTheirEnscaSet) {
    default_prediction_options_t const options;
    // The buzz-saw record has no factory to name its kind; the others are named by theirs.
    EXPECT_EQ(options.bsn->source_type, source_fan_forward_buzz_saw);
    EXPECT_EQ(options.airframe_noise->method, airframe_isvr_amiet_brooks_howe);
    EXPECT_EQ(std::make_tuple(options.jet->jet_flag, options.jet->jet_method,
                              options.turbine->turbine_method, options.bsn->bsn_method,
                              options.compressor->comp_fan_count, options.aft_fan->comp_fan_ratio,
                              options.fwd_fan->fwd_fan_option),
              std::make_tuple(true, jet_sae_arp876c_double_stream, turbine_standard,
                              bsn_esdu_75020c, 5, 1.1, 0));
    EXPECT_EQ(options.cavity_in->linear_coefficients, (std::vector<double>{2.584, 312.754191}));
    EXPECT_EQ(options.cavity_out->quadratic_coefficients,
              (std::vector<double>{-0.0169045487453876, 3.8369353762419, -90.4001368778021}));
    EXPECT_EQ(options.nai->linear_coefficients, (std::vector<double>{0.0, 0.0}));
    EXPECT_EQ(options.extraneous->quadratic_coefficients.size(), 3u);

    // The ENSCA set changes only the jet, turbine and forward fan choices.
    auto const ensca = default_prediction_options_t::create_ensca_options();
    EXPECT_EQ(std::make_tuple(ensca->jet->jet_method, ensca->turbine->turbine_method,
                              ensca->fwd_fan->fwd_fan_option, ensca->fwd_fan->comp_fan_option_1,
                              ensca->aft_fan->comp_fan_option_1),
              std::make_tuple(jet_sae_arp876f_double_stream, turbine_sae_arp876f, 1, 0, 0));
}

TEST(PredictionOptions, FactoriesMakeTheRecordOfEachKindAndRefuseOthersByName) {
    for (auto type : {source_jet, source_turbine, source_combustion, source_fan_forward,
                      source_fan_aft, source_compressor}) {
        EXPECT_EQ(engine_source_prediction_t::create(type)->source_type, type);
    }
    for (int value = 12; value <= 23; ++value) {
        auto const type = static_cast<source_type_t>(value);
        EXPECT_EQ(airframe_source_prediction_t::create(type)->source_type, type);
    }
    // Any other kind is refused by name.
    for (int value : {4, 6, 11, 12, -1}) {
        auto const type = static_cast<source_type_t>(value);
        EXPECT_EQ(error_text([&] { engine_source_prediction_t::create(type); }),
                  "An error occurred in function engine_source_prediction_t::create")
            << value;
    }
    for (int value : {0, 11, 24}) {
        auto const type = static_cast<source_type_t>(value);
        EXPECT_EQ(error_text([&] { airframe_source_prediction_t::create(type); }),
                  "An error occurred in function airframe_source_prediction_t::create")
            << value;
    }
}

TEST(TranspositionOptions, DefaultsOfEverySourceTypeAndOfTheWholeAircraft) {
    default_transposition_options_t const options;
    // Measurement distance (m) of each source type, by its number.
    double const distances[] = {10, 20, 20, 0,  0,  40, 20, 20, 20, 20, 20, 20,
                                40, 40, 40, 40, 40, 40, 40, 40, 40, 40, 40, 40};
    ASSERT_EQ(options.single_sources.size(), 24u);
    for (auto const& entry : options.single_sources) {
        EXPECT_EQ(entry.second->source_distance, distances[entry.first]) << entry.first;
    }
    auto const& jet = *options.single_sources.at(source_jet);
    EXPECT_EQ(std::make_tuple(jet.source_flag_7, jet.source_flag_8, jet.source_option_3,
                              jet.source_option_4),
              std::make_tuple(false, true, 1, 1));
    EXPECT_EQ(options.single_sources.at(source_turbine)->source_option_3, 0);
    auto const& gear = *options.single_sources.at(source_main_landing_gear);
    EXPECT_EQ(std::make_tuple(gear.source_flag_1, gear.source_flag_2, gear.source_flag_3,
                              gear.source_flag_4, gear.source_flag_5, gear.source_flag_6,
                              gear.source_flag_7, gear.source_flag_8, gear.source_option_5),
              std::make_tuple(false, false, false, false, true, false, false, true, -2));

    auto const& common = *options.common_all_sources;
    EXPECT_EQ(std::make_tuple(common.ground_reflection_method, common.slit_pore_porosity,
                              common.slit_pore_flow_resistivity, common.common_option_4),
              std::make_tuple(ground_slit_pore_user_defined, 0.5, 50.0, 4));

    // The total of the aircraft takes none of the per-type defaults. The records are plain,
    // without virtual functions: the holder knows what it made.
    auto const& record =
        static_cast<total_aircraft_transposition_t const&>(*options.total_aircraft);
    EXPECT_EQ(std::make_tuple(record.source_distance, record.source_option_2, record.source_flag_6,
                              record.source_flag_7, record.total_option_2, record.total_option_5),
              std::make_tuple(20.0, 0, true, true, 3, 1));
}

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

TEST(OptionLookup, GettersGiveTheVeryDefaultObjectByTheSourceTypeOrTheSourcesOwnRecord) {
    auto const simulation =
        simulation_of({source_fan_forward, source_fan_aft, source_compressor, source_residual},
                      {source_inboard_cavity, source_outboard_cavity, source_extraneous_airframe,
                       source_nai, source_spoiler});
    auto const& defaults = *simulation->tsour->prediction_options;
    EXPECT_EQ(simulation->get_aft_fan_prediction_options(1), defaults.aft_fan);
    EXPECT_EQ(simulation->get_nai_prediction_options(3), defaults.nai);
    EXPECT_EQ(simulation->get_spoiler_prediction_options(4), defaults.spoiler);
    // The kind is not compared: a source asked for another kind's options gets that default.
    EXPECT_EQ(simulation->get_jet_prediction_options(3), defaults.jet);
    EXPECT_EQ(simulation->get_turbine_prediction_options(0), defaults.turbine);
    // The shared getters choose the default by the source type.
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(0), defaults.fwd_fan);
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(1), defaults.aft_fan);
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(2), defaults.compressor);
    EXPECT_FALSE(simulation->get_comp_fan_prediction_options(3));
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(0), defaults.cavity_in);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(1), defaults.cavity_out);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(2), defaults.extraneous);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(3), defaults.nai);
    EXPECT_FALSE(simulation->get_tonal_airframe_source_prediction_options(4));

    auto const own_fan = engine_source_prediction_t::create(source_fan_forward);
    simulation->aircraft->engine_sources[0]->prediction_options = own_fan;
    auto const own_cavity = airframe_source_prediction_t::create(source_outboard_cavity);
    simulation->aircraft->airframe_sources[1]->prediction_options = own_cavity;
    EXPECT_EQ(simulation->get_fwd_fan_prediction_options(0), own_fan);
    EXPECT_EQ(simulation->get_comp_fan_prediction_options(0), own_fan);
    EXPECT_EQ(simulation->get_cavity_out_prediction_options(1), own_cavity);
    EXPECT_EQ(simulation->get_tonal_airframe_source_prediction_options(1), own_cavity);
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

    // A type without a default gets an empty entry, added to the defaults.
    EXPECT_FALSE(simulation->get_engine_source_transposition_options(1));
    EXPECT_EQ(single.count(static_cast<source_type_t>(30)), 1u);
}
