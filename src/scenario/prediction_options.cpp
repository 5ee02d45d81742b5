// Defaults of the prediction options and the factories of per-source records.

#include <calc-common/frame.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

// The cavity tones follow laws fitted to measurements; the other tonal sources have none until
// the caller gives them.
cavity_in_prediction_t::cavity_in_prediction_t()
    : tonal_airframe_source_prediction_t(
          source_inboard_cavity, {2.584, 312.754191},
          {-0.0210863136927448, 4.61987508012959, -127.330905307016}) {}

cavity_out_prediction_t::cavity_out_prediction_t()
    : tonal_airframe_source_prediction_t(
          source_outboard_cavity, {2.2339, 285.419989},
          {-0.0169045487453876, 3.8369353762419, -90.4001368778021}) {}

extraneous_prediction_t::extraneous_prediction_t()
    : tonal_airframe_source_prediction_t(source_extraneous_airframe, {0.0, 0.0}, {0.0, 0.0, 0.0}) {}

nai_prediction_t::nai_prediction_t()
    : tonal_airframe_source_prediction_t(source_nai, {0.0, 0.0}, {0.0, 0.0, 0.0}) {}

default_prediction_options_t::default_prediction_options_t()
    : jet(boost::make_shared<jet_prediction_t>())
    , turbine(boost::make_shared<turbine_prediction_t>())
    , fwd_fan(boost::make_shared<fwd_fan_prediction_t>())
    , aft_fan(boost::make_shared<aft_fan_prediction_t>())
    , compressor(boost::make_shared<compressor_prediction_t>())
    , combustion(boost::make_shared<combustion_prediction_t>())
    , bsn(boost::make_shared<bsn_prediction_t>())
    , airframe_noise(boost::make_shared<airframe_noise_prediction_t>())
    , slats(boost::make_shared<slats_prediction_t>())
    , flaps(boost::make_shared<flaps_prediction_t>())
    , wing(boost::make_shared<wing_prediction_t>())
    , cavity_in(boost::make_shared<cavity_in_prediction_t>())
    , cavity_out(boost::make_shared<cavity_out_prediction_t>())
    , empennage(boost::make_shared<empennage_prediction_t>())
    , nlg(boost::make_shared<nlg_prediction_t>())
    , mlg(boost::make_shared<mlg_prediction_t>())
    , clg(boost::make_shared<clg_prediction_t>())
    , extraneous(boost::make_shared<extraneous_prediction_t>())
    , nai(boost::make_shared<nai_prediction_t>())
    , spoiler(boost::make_shared<spoiler_prediction_t>()) {}

boost::shared_ptr<default_prediction_options_t>
default_prediction_options_t::create_ensca_options() {
    auto options = boost::make_shared<default_prediction_options_t>();
    options->fwd_fan->fwd_fan_option = 1;
    // The two fan options restate their default on purpose: this option set names them.
    options->fwd_fan->comp_fan_option_1 = 0;
    options->aft_fan->comp_fan_option_1 = 0;
    options->turbine->turbine_method = turbine_sae_arp876f;
    options->jet->jet_method = jet_sae_arp876f_double_stream;
    return options;
}

boost::shared_ptr<engine_source_prediction_t>
engine_source_prediction_t::create(source_type_t const& type) {
    switch (type) {
    case source_jet:
        return boost::make_shared<jet_prediction_t>();
    case source_turbine:
        return boost::make_shared<turbine_prediction_t>();
    case source_combustion:
        return boost::make_shared<combustion_prediction_t>();
    case source_fan_forward:
        return boost::make_shared<fwd_fan_prediction_t>();
    case source_fan_aft:
        return boost::make_shared<aft_fan_prediction_t>();
    case source_compressor:
        return boost::make_shared<compressor_prediction_t>();
    default:
        // The buzz-saw options belong to the calculation's defaults alone.
        throw varno_calc_error("engine_source_prediction_t::create");
    }
}

boost::shared_ptr<airframe_source_prediction_t>
airframe_source_prediction_t::create(source_type_t const& type) {
    switch (type) {
    case source_slats:
        return boost::make_shared<slats_prediction_t>();
    case source_flaps:
        return boost::make_shared<flaps_prediction_t>();
    case source_clean_wing:
        return boost::make_shared<wing_prediction_t>();
    case source_empennage:
        return boost::make_shared<empennage_prediction_t>();
    case source_nose_landing_gear:
        return boost::make_shared<nlg_prediction_t>();
    case source_main_landing_gear:
        return boost::make_shared<mlg_prediction_t>();
    case source_other_landing_gear:
        return boost::make_shared<clg_prediction_t>();
    case source_inboard_cavity:
        return boost::make_shared<cavity_in_prediction_t>();
    case source_outboard_cavity:
        return boost::make_shared<cavity_out_prediction_t>();
    case source_extraneous_airframe:
        return boost::make_shared<extraneous_prediction_t>();
    case source_nai:
        return boost::make_shared<nai_prediction_t>();
    case source_spoiler:
        return boost::make_shared<spoiler_prediction_t>();
    default:
        throw varno_calc_error("airframe_source_prediction_t::create");
    }
}
