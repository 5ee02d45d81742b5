// The options in force for one source of a simulation's aircraft: the source's own record when
// it has one, otherwise the default that the calculation holds for its kind. Sources and
// calculation are read unchecked: these serve noise sources (tsour) simulations only.

#include <calc-common/scenario.hpp>

namespace {

// The source's own record converted to the kind asked for, which the caller vouches for, or the
// calculation's default.
template <typename Record, typename Default>
boost::shared_ptr<Record> own_or_default(source_t const& source,
                                         boost::shared_ptr<Default> const& fallback) {
    if (source.prediction_options) {
        return boost::static_pointer_cast<Record>(source.prediction_options);
    }
    return fallback;
}

boost::shared_ptr<comp_fan_prediction_t>
default_comp_fan_record(default_prediction_options_t const& defaults, source_type_t type) {
    switch (type) {
    case source_fan_forward:
        return defaults.fwd_fan;
    case source_fan_aft:
        return defaults.aft_fan;
    case source_compressor:
        return defaults.compressor;
    default:
        return {};
    }
}

// The calculation's default record of an engine source kind, or null for a kind without
// prediction options.
boost::shared_ptr<source_prediction_t>
default_engine_record(default_prediction_options_t const& defaults, source_type_t type) {
    switch (type) {
    case source_jet:
        return defaults.jet;
    case source_turbine:
        return defaults.turbine;
    case source_combustion:
        return defaults.combustion;
    default:
        return default_comp_fan_record(defaults, type);
    }
}

boost::shared_ptr<tonal_airframe_source_prediction_t>
default_tonal_record(default_prediction_options_t const& defaults, source_type_t type) {
    switch (type) {
    case source_inboard_cavity:
        return defaults.cavity_in;
    case source_outboard_cavity:
        return defaults.cavity_out;
    case source_extraneous_airframe:
        return defaults.extraneous;
    case source_nai:
        return defaults.nai;
    default:
        return {};
    }
}

// The source's own transposition record, or the calculation's default for its type. A type the
// defaults lack gets an empty entry, which is what the caller receives.
boost::shared_ptr<single_source_transposition_t>
transposition_in_force(boost::shared_ptr<source_t> const source,
                       default_transposition_options_t& defaults) {
    if (source->transposition_options) {
        return source->transposition_options;
    }
    return defaults.single_sources[source->type];
}

} // namespace

bool simulation_t::is_engine_source_adjusted(int index) const {
    auto const& source = *aircraft->engine_sources[index];
    auto const& defaults = *tsour->prediction_options;
    auto const record = default_engine_record(defaults, source.type);
    if (!record) {
        return false;
    }
    return own_or_default<source_prediction_t>(source, record)->adjusted;
}

boost::shared_ptr<jet_prediction_t> simulation_t::get_jet_prediction_options(int index) {
    return own_or_default<jet_prediction_t>(*aircraft->engine_sources[index],
                                            tsour->prediction_options->jet);
}

boost::shared_ptr<turbine_prediction_t> simulation_t::get_turbine_prediction_options(int index) {
    return own_or_default<turbine_prediction_t>(*aircraft->engine_sources[index],
                                                tsour->prediction_options->turbine);
}

boost::shared_ptr<combustion_prediction_t>
simulation_t::get_combustion_prediction_options(int index) {
    return own_or_default<combustion_prediction_t>(*aircraft->engine_sources[index],
                                                   tsour->prediction_options->combustion);
}

boost::shared_ptr<fwd_fan_prediction_t> simulation_t::get_fwd_fan_prediction_options(int index) {
    return own_or_default<fwd_fan_prediction_t>(*aircraft->engine_sources[index],
                                                tsour->prediction_options->fwd_fan);
}

boost::shared_ptr<aft_fan_prediction_t> simulation_t::get_aft_fan_prediction_options(int index) {
    return own_or_default<aft_fan_prediction_t>(*aircraft->engine_sources[index],
                                                tsour->prediction_options->aft_fan);
}

boost::shared_ptr<compressor_prediction_t>
simulation_t::get_compressor_prediction_options(int index) {
    return own_or_default<compressor_prediction_t>(*aircraft->engine_sources[index],
                                                   tsour->prediction_options->compressor);
}

boost::shared_ptr<slats_prediction_t> simulation_t::get_slats_prediction_options(int index) {
    return own_or_default<slats_prediction_t>(*aircraft->airframe_sources[index],
                                              tsour->prediction_options->slats);
}

boost::shared_ptr<flaps_prediction_t> simulation_t::get_flaps_prediction_options(int index) {
    return own_or_default<flaps_prediction_t>(*aircraft->airframe_sources[index],
                                              tsour->prediction_options->flaps);
}

boost::shared_ptr<wing_prediction_t> simulation_t::get_wing_prediction_options(int index) {
    return own_or_default<wing_prediction_t>(*aircraft->airframe_sources[index],
                                             tsour->prediction_options->wing);
}

boost::shared_ptr<empennage_prediction_t>
simulation_t::get_empennage_prediction_options(int index) {
    return own_or_default<empennage_prediction_t>(*aircraft->airframe_sources[index],
                                                  tsour->prediction_options->empennage);
}

boost::shared_ptr<nlg_prediction_t> simulation_t::get_nlg_prediction_options(int index) {
    return own_or_default<nlg_prediction_t>(*aircraft->airframe_sources[index],
                                            tsour->prediction_options->nlg);
}

boost::shared_ptr<mlg_prediction_t> simulation_t::get_mlg_prediction_options(int index) {
    return own_or_default<mlg_prediction_t>(*aircraft->airframe_sources[index],
                                            tsour->prediction_options->mlg);
}

boost::shared_ptr<clg_prediction_t> simulation_t::get_clg_prediction_options(int index) {
    return own_or_default<clg_prediction_t>(*aircraft->airframe_sources[index],
                                            tsour->prediction_options->clg);
}

boost::shared_ptr<cavity_in_prediction_t>
simulation_t::get_cavity_in_prediction_options(int index) {
    return own_or_default<cavity_in_prediction_t>(*aircraft->airframe_sources[index],
                                                  tsour->prediction_options->cavity_in);
}

boost::shared_ptr<cavity_out_prediction_t>
simulation_t::get_cavity_out_prediction_options(int index) {
    return own_or_default<cavity_out_prediction_t>(*aircraft->airframe_sources[index],
                                                   tsour->prediction_options->cavity_out);
}

boost::shared_ptr<extraneous_prediction_t>
simulation_t::get_extraneous_prediction_options(int index) {
    return own_or_default<extraneous_prediction_t>(*aircraft->airframe_sources[index],
                                                   tsour->prediction_options->extraneous);
}

boost::shared_ptr<nai_prediction_t> simulation_t::get_nai_prediction_options(int index) {
    return own_or_default<nai_prediction_t>(*aircraft->airframe_sources[index],
                                            tsour->prediction_options->nai);
}

boost::shared_ptr<spoiler_prediction_t> simulation_t::get_spoiler_prediction_options(int index) {
    return own_or_default<spoiler_prediction_t>(*aircraft->airframe_sources[index],
                                                tsour->prediction_options->spoiler);
}

boost::shared_ptr<comp_fan_prediction_t> simulation_t::get_comp_fan_prediction_options(int index) {
    auto const& source = *aircraft->engine_sources[index];
    return own_or_default<comp_fan_prediction_t>(
        source, default_comp_fan_record(*tsour->prediction_options, source.type));
}

boost::shared_ptr<tonal_airframe_source_prediction_t>
simulation_t::get_tonal_airframe_source_prediction_options(int index) {
    auto const& source = *aircraft->airframe_sources[index];
    return own_or_default<tonal_airframe_source_prediction_t>(
        source, default_tonal_record(*tsour->prediction_options, source.type));
}

boost::shared_ptr<single_source_transposition_t>
simulation_t::get_engine_source_transposition_options(int index) {
    return transposition_in_force(aircraft->engine_sources[index], *tsour->transposition_options);
}

boost::shared_ptr<single_source_transposition_t>
simulation_t::get_airframe_source_transposition_options(int index) {
    return transposition_in_force(aircraft->airframe_sources[index], *tsour->transposition_options);
}
