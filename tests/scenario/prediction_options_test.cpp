#include <calc-common/scenario.hpp>

#include <gtest/gtest.h>

#include <string>

TEST(PredictionOptions, EachDefaultRecordNamesItsSourceKind) {
    default_prediction_options_t const options;
    struct row {
        source_prediction_t const* record;
        source_type_t type;
    };
    for (row const r :
         {row{options.jet.get(), source_jet}, row{options.turbine.get(), source_turbine},
          row{options.fwd_fan.get(), source_fan_forward},
          row{options.aft_fan.get(), source_fan_aft},
          row{options.compressor.get(), source_compressor},
          row{options.combustion.get(), source_combustion},
          row{options.bsn.get(), source_fan_forward_buzz_saw},
          row{options.slats.get(), source_slats}, row{options.flaps.get(), source_flaps},
          row{options.wing.get(), source_clean_wing},
          row{options.cavity_in.get(), source_inboard_cavity},
          row{options.cavity_out.get(), source_outboard_cavity},
          row{options.empennage.get(), source_empennage},
          row{options.nlg.get(), source_nose_landing_gear},
          row{options.mlg.get(), source_main_landing_gear},
          row{options.clg.get(), source_other_landing_gear},
          row{options.extraneous.get(), source_extraneous_airframe},
          row{options.nai.get(), source_nai}, row{options.spoiler.get(), source_spoiler}}) {
        ASSERT_NE(r.record, nullptr) << r.type;
        EXPECT_EQ(r.record->source_type, r.type);
        EXPECT_FALSE(r.record->adjusted) << r.type;
    }
    EXPECT_EQ(options.airframe_noise->method, airframe_isvr_amiet_brooks_howe);
}

TEST(PredictionOptions, ModelDefaultsThatSelectBehaviour) {
    default_prediction_options_t const options;
    EXPECT_TRUE(options.jet->jet_flag);
    EXPECT_EQ(options.jet->jet_method, jet_sae_arp876c_double_stream);
    EXPECT_EQ(options.turbine->turbine_method, turbine_standard);
    EXPECT_EQ(options.bsn->bsn_method, bsn_esdu_75020c);
    EXPECT_EQ(options.compressor->comp_fan_count, 5);
    EXPECT_EQ(options.aft_fan->comp_fan_ratio, 1.1);
    EXPECT_EQ(options.fwd_fan->fwd_fan_option, 0);
    EXPECT_EQ(options.cavity_in->linear_coefficients, (std::vector<double>{2.584, 312.754191}));
    EXPECT_EQ(options.cavity_out->quadratic_coefficients,
              (std::vector<double>{-0.0169045487453876, 3.8369353762419, -90.4001368778021}));
    EXPECT_EQ(options.nai->linear_coefficients, (std::vector<double>{0.0, 0.0}));
    EXPECT_EQ(options.extraneous->quadratic_coefficients.size(), 3u);
}

TEST(PredictionOptions, EnscaOptionsChangeOnlyTheJetTurbineAndForwardFanChoices) {
    default_prediction_options_t const plain;
    auto const ensca = default_prediction_options_t::create_ensca_options();
    EXPECT_EQ(ensca->jet->jet_method, jet_sae_arp876f_double_stream);
    EXPECT_EQ(ensca->turbine->turbine_method, turbine_sae_arp876f);
    EXPECT_EQ(ensca->fwd_fan->fwd_fan_option, 1);
    EXPECT_EQ(ensca->fwd_fan->comp_fan_option_1, plain.fwd_fan->comp_fan_option_1);
    EXPECT_EQ(ensca->aft_fan->comp_fan_option_1, plain.aft_fan->comp_fan_option_1);
    EXPECT_EQ(ensca->jet->jet_flag, plain.jet->jet_flag);
    EXPECT_EQ(ensca->turbine->turbine_flag, plain.turbine->turbine_flag);
}

TEST(PredictionOptions, FactoriesMakeTheRecordOfEachKindWithItsDefaults) {
    for (auto type : {source_jet, source_turbine, source_combustion, source_fan_forward,
                      source_fan_aft, source_compressor}) {
        EXPECT_EQ(engine_source_prediction_t::create(type)->source_type, type);
    }
    auto const fan = boost::static_pointer_cast<comp_fan_prediction_t>(
        engine_source_prediction_t::create(source_compressor));
    EXPECT_EQ(fan->comp_fan_count, 5);
    for (int value = 12; value <= 23; ++value) {
        auto const type = static_cast<source_type_t>(value);
        EXPECT_EQ(airframe_source_prediction_t::create(type)->source_type, type);
    }
    auto const cavity = boost::static_pointer_cast<tonal_airframe_source_prediction_t>(
        airframe_source_prediction_t::create(source_inboard_cavity));
    EXPECT_EQ(cavity->linear_coefficients[0], 2.584);
}

TEST(PredictionOptions, FactoriesRefuseOtherKindsByName) {
    auto const message = [](auto make) {
        try {
            make();
        } catch (varno_calc_error const& error) {
            return std::string(error.what());
        }
        return std::string("no error");
    };
    std::string const engine = "An error occurred in function engine_source_prediction_t::create";
    std::string const airframe =
        "An error occurred in function airframe_source_prediction_t::create";
    for (int value : {4, 6, 11, 12, -1}) {
        auto const type = static_cast<source_type_t>(value);
        EXPECT_EQ(message([&] { engine_source_prediction_t::create(type); }), engine) << value;
    }
    for (int value : {0, 11, 24}) {
        auto const type = static_cast<source_type_t>(value);
        EXPECT_EQ(message([&] { airframe_source_prediction_t::create(type); }), airframe) << value;
    }
}
