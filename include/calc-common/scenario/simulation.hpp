#ifndef CALC_COMMON_SCENARIO_SIMULATION_HPP
#define CALC_COMMON_SCENARIO_SIMULATION_HPP

// Part of the scenario header (include <calc-common/scenario.hpp>): the environment that roots a
// scenario, the calculations, the simulations that join an aircraft to a calculation, and the
// calculation points of a simulation.
//
// Ownership runs from holder to part only, through boost::shared_ptr: no part points back, so
// the graph has no cycle and an object lives as long as anything holds it. Removing an object
// from the environment does not cascade: the simulations that use it keep it alive.

#include <calc-common/export.hpp>
#include <calc-common/numerics.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/results.hpp>
#include <calc-common/scenario/aircraft.hpp>
#include <calc-common/scenario/prediction_options.hpp>
#include <calc-common/scenario/transposition_options.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

// The result tree of a simulation.
struct result_t;

// ---- Calculations ------------------------------------------------------------------------------

/// A noise sources calculation: the noise of each source of the aircraft.
struct VARNO_CALC_COMMON_EXPORT tsour_calculation_t {
    double leading_value = 1.0;           ///< calculation value
    bool engine_sources_enabled = true;   ///< engine sources are calculated
    bool airframe_sources_enabled = true; ///< airframe sources are calculated
    /// Prediction options of every source without its own record.
    boost::shared_ptr<default_prediction_options_t> prediction_options;
    /// Transposition options of every source without its own record.
    boost::shared_ptr<default_transposition_options_t> transposition_options;

    /// Both sets of options new, with their defaults.
    tsour_calculation_t();
};

/// An integrated aircraft noise calculation.
struct VARNO_CALC_COMMON_EXPORT nlcp_calculation_t {
    nlcp_calculation_type_t type = nlcp_static_apu_noise; ///< what is computed
    /// Transposition options; the total of the aircraft is transposed with option 2 set.
    boost::shared_ptr<default_transposition_options_t> transposition_options;
    int selector = -1;       ///< calculation selector
    int second_selector = 0; ///< calculation selector

    /// Default transposition options with a new total aircraft record whose source_option_2
    /// is 1.
    nlcp_calculation_t();
};

/// An engine scaling calculation.
struct VARNO_CALC_COMMON_EXPORT engine_scaling_calculation_t {
    boost::shared_ptr<default_prediction_options_t> prediction_options; ///< model options
    boost::shared_ptr<ambient_conditions_t> ambient_conditions;         ///< the air, all zero
    int selector = 1;                                                   ///< calculation selector

    /// New default prediction options and new zero air.
    engine_scaling_calculation_t();
};

/// Two engines compared by a scaling, with one attenuation map each.
struct VARNO_CALC_COMMON_EXPORT scaling_t {
    std::vector<boost::shared_ptr<engine_t>> engines; ///< the two engines, numbered 0 and 1
    std::vector<boost::shared_ptr<void>> extra_list;  ///< the calculation libraries' records
    std::vector<boost::shared_ptr<attenuations_t>> attenuations; ///< one per engine

    /// Engines 0 and 1, and a new empty attenuation map for each.
    scaling_t();
};

/// What an engine scaling computes: the noise of each engine of the scaling, and the level
/// differences between them. Empty until the calculation library fills it.
struct VARNO_CALC_COMMON_EXPORT scaling_results_t {
    std::vector<boost::shared_ptr<noise_field_t>> engine_noise; ///< levels (dB), per engine
    std::vector<boost::shared_ptr<spectrum_t>> differences;     ///< level differences, dB
};

/// One engine scaling run: a scaling, a calculation and their results.
struct VARNO_CALC_COMMON_EXPORT scaling_simulation_t {
    boost::shared_ptr<scaling_t> scaling;                        ///< what is compared
    boost::shared_ptr<engine_scaling_calculation_t> calculation; ///< how
    boost::shared_ptr<scaling_results_t> results;                ///< the results, new and empty

    /// A run of `calculation` on `scaling`, with new empty results.
    scaling_simulation_t(boost::shared_ptr<scaling_t> scaling,
                         boost::shared_ptr<engine_scaling_calculation_t> calculation);
};

// ---- Calculation points ------------------------------------------------------------------------

/// Orders a map by result identity (result_type_t::less_than); values kept at a point by result.
typedef std::map<boost::shared_ptr<result_type_t>, double, result_type_order> source_values_t;

/// The state of the aircraft and of the air at one point of the trajectory, independent of the
/// direction computed. The calculation libraries fill it; this library reads only `position`
/// and `segment`.
struct VARNO_CALC_COMMON_EXPORT omnidir_calculation_point_t {
    double value_1 = 0.0;    ///< point value
    double value_2 = 0.0;    ///< point value
    double value_3 = 0.0;    ///< point value
    double value_4 = 0.0;    ///< point value
    double value_5 = 0.0;    ///< point value
    double value_6 = 0.0;    ///< point value
    double value_7 = 0.0;    ///< point value
    double value_8 = 0.0;    ///< point value
    double value_9 = 0.0;    ///< point value
    double value_10 = 0.0;   ///< point value
    double position = 0.0;   ///< position along the trajectory, rising from point to point
    double value_11 = 0.0;   ///< point value
    double value_12 = 0.0;   ///< point value
    double value_13 = 0.0;   ///< point value
    double value_14 = 0.0;   ///< point value
    bool first_flag = false; ///< point flag
    double value_15 = 0.0;   ///< point value
    boost::shared_ptr<void> first_record;  ///< the calculation libraries' record
    boost::shared_ptr<void> second_record; ///< the calculation libraries' record
    double value_16 = 0.0;                 ///< point value
    double value_17 = 0.0;                 ///< point value
    double value_18 = 0.0;                 ///< point value
    double value_19 = 0.0;                 ///< point value
    double value_20 = 0.0;                 ///< point value
    /// One rating per engine of the aircraft when the point was made.
    std::vector<boost::shared_ptr<engine_rating_t>> engine_ratings;
    boost::shared_ptr<ambient_conditions_t> first_ambient;  ///< air state, all zero at first
    boost::shared_ptr<ambient_conditions_t> second_ambient; ///< air state, all zero at first
    double value_21 = 0.0;                                  ///< point value
    double value_22 = 0.0;                                  ///< point value
    double value_23 = 0.0;                                  ///< point value
    bool second_flag = false;                               ///< point flag
    source_values_t source_values; ///< a value per result (such as a level adjustment, dB)
    int segment = 0;               ///< number of the trajectory segment the point belongs to
    double value_24 = 0.0;         ///< point value
    bool third_flag = false;       ///< point flag

    /// A point for `aircraft` (not null): a new zero rating for each of its engines.
    explicit omnidir_calculation_point_t(boost::shared_ptr<aircraft_t> aircraft);
};

/// The direction-dependent state of a point, for the direction being computed.
struct VARNO_CALC_COMMON_EXPORT directional_calculation_point_t {
    double value_1 = 0.0;  ///< direction value
    double value_2 = 0.0;  ///< direction value
    double value_3 = 0.0;  ///< direction value
    double value_4 = 0.0;  ///< direction value
    double value_5 = 0.0;  ///< direction value
    double value_6 = 1.0;  ///< direction value; 1.0 only until the first step of direction
    double value_7 = 0.0;  ///< direction value
    double value_8 = 0.0;  ///< direction value
    double value_9 = 0.0;  ///< direction value
    double value_10 = 0.0; ///< direction value
    double value_11 = 0.0; ///< direction value
    double value_12 = 0.0; ///< direction value
    double value_13 = 0.0; ///< direction value
    double value_14 = 0.0; ///< direction value
    double value_15 = 0.0; ///< direction value
    double value_16 = 0.0; ///< direction value
    double value_17 = 0.0; ///< direction value
    double value_18 = 0.0; ///< direction value
    double value_19 = 0.0; ///< direction value
    double value_20 = 0.0; ///< direction value
    double value_21 = 0.0; ///< direction value
    double value_22 = 0.0; ///< direction value
};

/// One instant of a simulation: a point of the trajectory with its two parts.
struct VARNO_CALC_COMMON_EXPORT calculation_point_t {
    int index; ///< the point's place in its simulation's calculation_points
    boost::shared_ptr<omnidir_calculation_point_t> omnidir;         ///< direction-free state
    boost::shared_ptr<directional_calculation_point_t> directional; ///< state of the direction

    /// Point number `index` for `aircraft` (not kept; not null).
    calculation_point_t(boost::shared_ptr<aircraft_t> aircraft, int index);
};

// ---- Simulations -------------------------------------------------------------------------------

/// Says on which frequency range a source's noise is held at a calculation point (by the point's
/// index); a null answer means the third-octave range.
typedef boost::function<boost::shared_ptr<frequency_range_t>(boost::shared_ptr<source_noise_t>,
                                                             std::size_t)>
    range_provider_t;

/// One calculation run: an aircraft joined to a noise sources (tsour) or an integrated aircraft
/// noise (nlcp) calculation, with its calculation points and its result.
struct VARNO_CALC_COMMON_EXPORT simulation_t {
    boost::shared_ptr<aircraft_t> aircraft;                          ///< the aircraft, shared
    calculation_type_t calculation_type = calculation_noise_sources; ///< set by the factories
    boost::shared_ptr<tsour_calculation_t> tsour; ///< the noise sources calculation, or null
    boost::shared_ptr<nlcp_calculation_t> nlcp;   ///< the integrated calculation, or null
    double first_value = 0.0;                     ///< run value
    double second_value = 0.0;                    ///< run value
    bool first_switch = true;                     ///< run switch
    bool second_switch = false; ///< a genePass calculation: results prepared for a global pass
    double third_value = 0.0;   ///< run value
    bool third_switch = false;  ///< run switch
    bool fourth_switch = false; ///< run switch
    std::vector<boost::shared_ptr<calculation_point_t>> calculation_points; ///< in trajectory order
    std::vector<boost::shared_ptr<void>> first_list;  ///< the calculation libraries' records
    std::vector<boost::shared_ptr<void>> second_list; ///< the calculation libraries' records
    std::int32_t direction_index = -1;  ///< direction being computed; -1 when not stepping
    std::int32_t direction_count = 0;   ///< number of directions of a directional run
    boost::shared_ptr<result_t> result; ///< the result tree, null until prepared
    /// Directivity interpolator: the library's shared linear one, the very object.
    boost::shared_ptr<angular_interpolation_t> angular_interpolation =
        angular_interpolation_t::linear;

    // -- Factories --

    /// A noise sources simulation of `aircraft` (calculation type 0).
    static boost::shared_ptr<simulation_t>
    create_tsour(boost::shared_ptr<aircraft_t> aircraft,
                 boost::shared_ptr<tsour_calculation_t> tsour);
    /// An integrated aircraft noise simulation of `aircraft` (calculation type 1).
    static boost::shared_ptr<simulation_t> create_nlcp(boost::shared_ptr<aircraft_t> aircraft,
                                                       boost::shared_ptr<nlcp_calculation_t> nlcp);

    // -- Engine state (tsour simulations) --

    /// The `adjusted` flag of the prediction options in force for engine source `index`; false
    /// for a source kind without prediction options.
    bool is_engine_source_adjusted(int index) const;
    /// First engine rating at the point nearest the middle of the last trajectory segment (the
    /// later one on a tie); null when that segment has a single point. Needs at least one point.
    boost::shared_ptr<engine_rating_t> get_last_segment_ref_rating();

    // -- Calculation points --

    /// Replaces every point by `count` new points numbered 0 to count - 1. The result is kept.
    void create_calculation_points(std::size_t const& count);
    /// Inserts a new point before `position` (at most the number of points) and renumbers the
    /// later ones. The result is kept and no longer matches the points.
    void insert_calculation_point(std::size_t const& position);
    /// Steps to the next direction: clears the directional state of every point and the
    /// directional values of a result that matches the points. False, with nothing changed,
    /// when there is no point, direction_index is negative or the last direction is reached.
    bool move_to_next_direction();

    // -- Options in force for one source (tsour simulations): the source's own record, or else
    // the calculation's default for its kind. Indices are not checked. --

    /// Jet options of engine source `index`.
    boost::shared_ptr<jet_prediction_t> get_jet_prediction_options(int index);
    /// Turbine options of engine source `index`.
    boost::shared_ptr<turbine_prediction_t> get_turbine_prediction_options(int index);
    /// Combustion options of engine source `index`.
    boost::shared_ptr<combustion_prediction_t> get_combustion_prediction_options(int index);
    /// Forward fan options of engine source `index`.
    boost::shared_ptr<fwd_fan_prediction_t> get_fwd_fan_prediction_options(int index);
    /// Aft fan options of engine source `index`.
    boost::shared_ptr<aft_fan_prediction_t> get_aft_fan_prediction_options(int index);
    /// Compressor options of engine source `index`.
    boost::shared_ptr<compressor_prediction_t> get_compressor_prediction_options(int index);
    /// Fan or compressor options of engine source `index`, chosen by its type; null for a source
    /// that is neither and has no record of its own.
    boost::shared_ptr<comp_fan_prediction_t> get_comp_fan_prediction_options(int index);
    /// Slat options of airframe source `index`.
    boost::shared_ptr<slats_prediction_t> get_slats_prediction_options(int index);
    /// Flap options of airframe source `index`.
    boost::shared_ptr<flaps_prediction_t> get_flaps_prediction_options(int index);
    /// Clean wing options of airframe source `index`.
    boost::shared_ptr<wing_prediction_t> get_wing_prediction_options(int index);
    /// Empennage options of airframe source `index`.
    boost::shared_ptr<empennage_prediction_t> get_empennage_prediction_options(int index);
    /// Nose landing gear options of airframe source `index`.
    boost::shared_ptr<nlg_prediction_t> get_nlg_prediction_options(int index);
    /// Main landing gear options of airframe source `index`.
    boost::shared_ptr<mlg_prediction_t> get_mlg_prediction_options(int index);
    /// Other landing gear options of airframe source `index`.
    boost::shared_ptr<clg_prediction_t> get_clg_prediction_options(int index);
    /// Inboard cavity options of airframe source `index`.
    boost::shared_ptr<cavity_in_prediction_t> get_cavity_in_prediction_options(int index);
    /// Outboard cavity options of airframe source `index`.
    boost::shared_ptr<cavity_out_prediction_t> get_cavity_out_prediction_options(int index);
    /// Extraneous airframe options of airframe source `index`.
    boost::shared_ptr<extraneous_prediction_t> get_extraneous_prediction_options(int index);
    /// NAI options of airframe source `index`.
    boost::shared_ptr<nai_prediction_t> get_nai_prediction_options(int index);
    /// Spoiler options of airframe source `index`.
    boost::shared_ptr<spoiler_prediction_t> get_spoiler_prediction_options(int index);
    /// Tonal airframe options of airframe source `index`, chosen by its type; null for a source
    /// that is not tonal and has no record of its own.
    boost::shared_ptr<tonal_airframe_source_prediction_t>
    get_tonal_airframe_source_prediction_options(int index);
    /// Transposition options of engine source `index`. A source type missing from the defaults
    /// gets an empty entry there, which is returned.
    boost::shared_ptr<single_source_transposition_t>
    get_engine_source_transposition_options(int index);
    /// Transposition options of airframe source `index`, looked up as for engine sources.
    boost::shared_ptr<single_source_transposition_t>
    get_airframe_source_transposition_options(int index);

    // -- Result tree --

    /// Replaces the result by an empty tree: one point result per calculation point, and a new
    /// global result, all sized from the aircraft.
    void create_result();
    /// Drops the result; records held elsewhere live on.
    void clear_results();
    /// Prepares the result tree of every enabled source and its totals, the genePass way when
    /// second_switch is set and the classic way otherwise. `range_provider` gives each source's
    /// frequency range at each point.
    void prepare_noise_sources_results(
        boost::function<boost::shared_ptr<frequency_range_t>(boost::shared_ptr<source_noise_t>,
                                                             size_t)>& range_provider);
    /// Prepares the result tree by source and by source-type totals.
    void prepare_noise_sources_results_classic(
        boost::function<boost::shared_ptr<frequency_range_t>(boost::shared_ptr<source_noise_t>,
                                                             size_t)>& range_provider);
    /// Prepares the classic tree plus the broadband and tone components of decomposable engine
    /// sources and a narrowband ground-reflection result, for a global pass.
    void prepare_noise_sources_results_genePass(
        boost::function<boost::shared_ptr<frequency_range_t>(boost::shared_ptr<source_noise_t>,
                                                             size_t)>& range_provider);
    /// Prepares the point results of the total aircraft alone (and the genePass ones when
    /// second_switch is set).
    void prepare_integrated_aircraft_results();

private:
    /// Clears in place the directional values of every point result and of the global result,
    /// so that the next direction starts from a clean, still valid result tree.
    void clear_directional_results();
};

// ---- Environment -------------------------------------------------------------------------------

/// The root of a scenario: it holds the aircraft, the calculations and the simulations.
/// Copying it shares every element.
struct VARNO_CALC_COMMON_EXPORT environment_t {
    std::vector<boost::shared_ptr<scaling_t>> scalings;                     ///< engine scalings
    std::vector<boost::shared_ptr<aircraft_t>> aircraft;                    ///< aircraft
    std::vector<boost::shared_ptr<tsour_calculation_t>> tsour_calculations; ///< noise sources
    std::vector<boost::shared_ptr<engine_scaling_calculation_t>> scaling_calculations; ///< scaling
    std::vector<boost::shared_ptr<nlcp_calculation_t>> nlcp_calculations;     ///< integrated noise
    std::vector<boost::shared_ptr<simulation_t>> simulations;                 ///< runs
    std::vector<boost::shared_ptr<scaling_simulation_t>> scaling_simulations; ///< scaling runs

    /// Appends a new default aircraft and returns it.
    boost::shared_ptr<aircraft_t> add_aircraft();
    /// Appends a new noise sources calculation with default options and returns it.
    boost::shared_ptr<tsour_calculation_t> add_tsour_calculation();
    /// Appends a new integrated aircraft noise calculation and returns it.
    boost::shared_ptr<nlcp_calculation_t> add_nlcp_calculation();
    /// Appends a new scaling of two engines and returns it.
    boost::shared_ptr<scaling_t> add_scaling();
    /// Appends a new engine scaling calculation and returns it.
    boost::shared_ptr<engine_scaling_calculation_t> add_scaling_calculation();
    /// Appends and returns a noise sources simulation; the arguments are not checked.
    boost::shared_ptr<simulation_t>
    add_tsour_simulation(boost::shared_ptr<aircraft_t> aircraft,
                         boost::shared_ptr<tsour_calculation_t> tsour);
    /// Appends and returns an integrated aircraft noise simulation; the arguments are not checked.
    boost::shared_ptr<simulation_t> add_nlcp_simulation(boost::shared_ptr<aircraft_t> aircraft,
                                                        boost::shared_ptr<nlcp_calculation_t> nlcp);
    /// Appends and returns an engine scaling run.
    boost::shared_ptr<scaling_simulation_t>
    add_scaling_simulation(boost::shared_ptr<scaling_t> scaling,
                           boost::shared_ptr<engine_scaling_calculation_t> calculation);

    /// Removes aircraft `index`; an index out of range is ignored. Simulations keep theirs.
    void remove_aircraft_at(std::size_t const& index);
    /// Removes noise sources calculation `index`; an index out of range is ignored.
    void remove_tsour_calculation_at(std::size_t const& index);
    /// Removes integrated aircraft noise calculation `index`; an index out of range is ignored.
    void remove_nlcp_calculation_at(std::size_t const& index);
    /// Removes simulation `index`; an index out of range is ignored.
    void remove_simulation_at(std::size_t const& index);
};

#endif // CALC_COMMON_SCENARIO_SIMULATION_HPP
