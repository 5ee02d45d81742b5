#ifndef CALC_COMMON_SCENARIO_PREDICTION_OPTIONS_HPP
#define CALC_COMMON_SCENARIO_PREDICTION_OPTIONS_HPP

// Part of the scenario header (include <calc-common/scenario.hpp>): the options of the source
// noise models, one record per kind of source, and the defaults a calculation owns.
//
// The records are plain data without virtual functions. A record is held through a
// boost::shared_ptr to its base and converted back with boost::static_pointer_cast by whoever
// knows its kind; the pointer made by boost::make_shared of the derived record destroys it whole.
// Apart from source_type, adjusted and the *_method fields, the library only sets the defaults:
// what the other fields select is settled by the calculation library that reads them.

#include <calc-common/export.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/shared_ptr.hpp>

#include <set>
#include <vector>

/// The two fields every per-source prediction record begins with.
struct VARNO_CALC_COMMON_EXPORT source_prediction_t {
    source_type_t source_type; ///< the source the record is for
    bool adjusted = false;     ///< the source's levels are adjusted (see is_engine_source_adjusted)

    /// A record for a source of `type`.
    explicit source_prediction_t(source_type_t type)
        : source_type(type) {}
};

/// Base of the prediction records of the engine sources.
struct VARNO_CALC_COMMON_EXPORT engine_source_prediction_t : source_prediction_t {
    /// A record for an engine source of `type`.
    explicit engine_source_prediction_t(source_type_t type)
        : source_prediction_t(type) {}

    /// The default record of an engine source that has one: jet, turbine, combustion, fan
    /// forward, fan aft or compressor. Any other type throws varno_calc_error.
    static boost::shared_ptr<engine_source_prediction_t> create(source_type_t const& type);
};

/// Base of the prediction records of the airframe sources.
struct VARNO_CALC_COMMON_EXPORT airframe_source_prediction_t : source_prediction_t {
    /// A record for an airframe source of `type`.
    explicit airframe_source_prediction_t(source_type_t type)
        : source_prediction_t(type) {}

    /// The default record of an airframe source (types 12 to 23). Any other type throws
    /// varno_calc_error.
    static boost::shared_ptr<airframe_source_prediction_t> create(source_type_t const& type);
};

// ---- Engine sources ----------------------------------------------------------------------------

/// Jet noise model options.
struct VARNO_CALC_COMMON_EXPORT jet_prediction_t : engine_source_prediction_t {
    bool jet_flag = true;                                                     ///< model switch
    jet_noise_prediction_method_t jet_method = jet_sae_arp876c_double_stream; ///< jet model
    double jet_parameter = 0.0;                                               ///< model parameter
    bool jet_option_1 = false;                                                ///< model option
    bool jet_option_2 = false;                                                ///< model option
    bool jet_option_3 = false;                                                ///< model option

    /// The record with its defaults.
    jet_prediction_t()
        : engine_source_prediction_t(source_jet) {}
};

/// Turbine noise model options.
struct VARNO_CALC_COMMON_EXPORT turbine_prediction_t : engine_source_prediction_t {
    bool turbine_flag = false;                          ///< model switch
    turbine_method_t turbine_method = turbine_standard; ///< turbine model
    int turbine_option_1 = 0;                           ///< model option
    int turbine_option_2 = 0;                           ///< model option
    bool turbine_option_3 = false;                      ///< model option

    /// The record with its defaults.
    turbine_prediction_t()
        : engine_source_prediction_t(source_turbine) {}
};

/// Combustion noise model options.
struct VARNO_CALC_COMMON_EXPORT combustion_prediction_t : engine_source_prediction_t {
    bool combustion_flag = false;                                   ///< model switch
    combustion_method_t combustion_method = combustion_sae_arp876f; ///< combustion model

    /// The record with its defaults.
    combustion_prediction_t()
        : engine_source_prediction_t(source_combustion) {}
};

/// Options shared by the fan and compressor models.
struct VARNO_CALC_COMMON_EXPORT comp_fan_prediction_t : engine_source_prediction_t {
    bool comp_fan_flag = false;  ///< model switch
    int comp_fan_count = 5;      ///< model count setting
    int comp_fan_option_1 = 0;   ///< model option
    int comp_fan_option_2 = 0;   ///< model option
    double comp_fan_ratio = 1.1; ///< model ratio

    /// A record for the fan or compressor source `type`.
    explicit comp_fan_prediction_t(source_type_t type)
        : engine_source_prediction_t(type) {}
};

/// Forward fan noise model options.
struct VARNO_CALC_COMMON_EXPORT fwd_fan_prediction_t : comp_fan_prediction_t {
    int fwd_fan_option = 0; ///< forward fan option

    /// The record with its defaults.
    fwd_fan_prediction_t()
        : comp_fan_prediction_t(source_fan_forward) {}
};

/// Aft fan noise model options.
struct VARNO_CALC_COMMON_EXPORT aft_fan_prediction_t : comp_fan_prediction_t {
    /// The record with its defaults.
    aft_fan_prediction_t()
        : comp_fan_prediction_t(source_fan_aft) {}
};

/// Compressor noise model options.
struct VARNO_CALC_COMMON_EXPORT compressor_prediction_t : comp_fan_prediction_t {
    /// The record with its defaults.
    compressor_prediction_t()
        : comp_fan_prediction_t(source_compressor) {}
};

/// Fan buzz-saw noise options; they exist only among a calculation's defaults.
struct VARNO_CALC_COMMON_EXPORT bsn_prediction_t : engine_source_prediction_t {
    bsn_method_t bsn_method = bsn_esdu_75020c; ///< buzz-saw treatment
    double bsn_ratio = 1.1;                    ///< model ratio

    /// The record with its defaults.
    bsn_prediction_t()
        : engine_source_prediction_t(source_fan_forward_buzz_saw) {}
};

// ---- Airframe sources --------------------------------------------------------------------------

/// Airframe noise model choice; it belongs to no single source.
struct VARNO_CALC_COMMON_EXPORT airframe_noise_prediction_t {
    /// airframe model
    airframe_noise_prediction_method_t method = airframe_isvr_amiet_brooks_howe;
};

/// Slat noise options.
struct VARNO_CALC_COMMON_EXPORT slats_prediction_t : airframe_source_prediction_t {
    /// The record with its defaults.
    slats_prediction_t()
        : airframe_source_prediction_t(source_slats) {}
};

/// Flap noise options.
struct VARNO_CALC_COMMON_EXPORT flaps_prediction_t : airframe_source_prediction_t {
    std::set<double> deflections; ///< flap deflections to compute, deg

    /// The record with its defaults.
    flaps_prediction_t()
        : airframe_source_prediction_t(source_flaps) {}
};

/// Clean wing noise options.
struct VARNO_CALC_COMMON_EXPORT wing_prediction_t : airframe_source_prediction_t {
    /// The record with its defaults.
    wing_prediction_t()
        : airframe_source_prediction_t(source_clean_wing) {}
};

/// Empennage noise options.
struct VARNO_CALC_COMMON_EXPORT empennage_prediction_t : airframe_source_prediction_t {
    /// The record with its defaults.
    empennage_prediction_t()
        : airframe_source_prediction_t(source_empennage) {}
};

/// Nose landing gear noise options.
struct VARNO_CALC_COMMON_EXPORT nlg_prediction_t : airframe_source_prediction_t {
    /// The record with its defaults.
    nlg_prediction_t()
        : airframe_source_prediction_t(source_nose_landing_gear) {}
};

/// Main landing gear noise options.
struct VARNO_CALC_COMMON_EXPORT mlg_prediction_t : airframe_source_prediction_t {
    /// The record with its defaults.
    mlg_prediction_t()
        : airframe_source_prediction_t(source_main_landing_gear) {}
};

/// Other (central) landing gear noise options.
struct VARNO_CALC_COMMON_EXPORT clg_prediction_t : airframe_source_prediction_t {
    /// The record with its defaults.
    clg_prediction_t()
        : airframe_source_prediction_t(source_other_landing_gear) {}
};

/// Spoiler noise options.
struct VARNO_CALC_COMMON_EXPORT spoiler_prediction_t : airframe_source_prediction_t {
    std::set<double> deflections; ///< spoiler deflections to compute, deg

    /// The record with its defaults.
    spoiler_prediction_t()
        : airframe_source_prediction_t(source_spoiler) {}
};

/// Options of an airframe source heard as a tone: the tone frequency follows a linear and a
/// quadratic law whose coefficients are kept here.
struct VARNO_CALC_COMMON_EXPORT tonal_airframe_source_prediction_t : airframe_source_prediction_t {
    std::vector<double> linear_coefficients;    ///< two coefficients of the linear law
    std::vector<double> quadratic_coefficients; ///< three coefficients of the quadratic law

    /// A record for the tonal source `type` with its two laws.
    tonal_airframe_source_prediction_t(source_type_t type, std::vector<double> linear,
                                       std::vector<double> quadratic)
        : airframe_source_prediction_t(type)
        , linear_coefficients(std::move(linear))
        , quadratic_coefficients(std::move(quadratic)) {}
};

/// Inboard cavity tone options.
struct VARNO_CALC_COMMON_EXPORT cavity_in_prediction_t : tonal_airframe_source_prediction_t {
    /// The record with its defaults.
    cavity_in_prediction_t();
};

/// Outboard cavity tone options.
struct VARNO_CALC_COMMON_EXPORT cavity_out_prediction_t : tonal_airframe_source_prediction_t {
    /// The record with its defaults.
    cavity_out_prediction_t();
};

/// Extraneous airframe tone options; both laws are zero until set.
struct VARNO_CALC_COMMON_EXPORT extraneous_prediction_t : tonal_airframe_source_prediction_t {
    /// The record with its defaults.
    extraneous_prediction_t();
};

/// Nacelle anti-icing (NAI) tone options; both laws are zero until set.
struct VARNO_CALC_COMMON_EXPORT nai_prediction_t : tonal_airframe_source_prediction_t {
    double nai_value_1 = 0.0; ///< model value
    double nai_value_2 = 0.0; ///< model value

    /// The record with its defaults.
    nai_prediction_t();
};

// ---- Defaults of a calculation -------------------------------------------------------------

/// The prediction options a calculation owns: one record per kind of source, used by every
/// source that holds no record of its own.
struct VARNO_CALC_COMMON_EXPORT default_prediction_options_t {
    boost::shared_ptr<jet_prediction_t> jet;                       ///< jet
    boost::shared_ptr<turbine_prediction_t> turbine;               ///< turbine
    boost::shared_ptr<fwd_fan_prediction_t> fwd_fan;               ///< fan forward
    boost::shared_ptr<aft_fan_prediction_t> aft_fan;               ///< fan aft
    boost::shared_ptr<compressor_prediction_t> compressor;         ///< compressor
    boost::shared_ptr<combustion_prediction_t> combustion;         ///< combustion
    boost::shared_ptr<bsn_prediction_t> bsn;                       ///< fan buzz-saw
    boost::shared_ptr<airframe_noise_prediction_t> airframe_noise; ///< airframe model
    boost::shared_ptr<slats_prediction_t> slats;                   ///< slats
    boost::shared_ptr<flaps_prediction_t> flaps;                   ///< flaps
    boost::shared_ptr<wing_prediction_t> wing;                     ///< clean wing
    boost::shared_ptr<cavity_in_prediction_t> cavity_in;           ///< inboard cavity
    boost::shared_ptr<cavity_out_prediction_t> cavity_out;         ///< outboard cavity
    boost::shared_ptr<empennage_prediction_t> empennage;           ///< empennage
    boost::shared_ptr<nlg_prediction_t> nlg;                       ///< nose landing gear
    boost::shared_ptr<mlg_prediction_t> mlg;                       ///< main landing gear
    boost::shared_ptr<clg_prediction_t> clg;                       ///< other landing gear
    boost::shared_ptr<extraneous_prediction_t> extraneous;         ///< extraneous airframe
    boost::shared_ptr<nai_prediction_t> nai;                       ///< NAI
    boost::shared_ptr<spoiler_prediction_t> spoiler;               ///< spoiler

    /// Every record new, with its defaults.
    default_prediction_options_t();

    /// The defaults with the SAE ARP 876F jet and turbine models and the forward fan option set.
    static boost::shared_ptr<default_prediction_options_t> create_ensca_options();
};

#endif // CALC_COMMON_SCENARIO_PREDICTION_OPTIONS_HPP
