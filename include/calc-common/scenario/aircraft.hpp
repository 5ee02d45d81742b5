#ifndef CALC_COMMON_SCENARIO_AIRCRAFT_HPP
#define CALC_COMMON_SCENARIO_AIRCRAFT_HPP

// Part of the scenario header (include <calc-common/scenario.hpp>): the aircraft, its engines,
// noise sources, geometry, aerodynamic profiles and measured noise.
//
// Positional fields (value_1 and so on) are numbers this library stores and copies without
// reading them; the calculation libraries give them their meaning. Records hold their parts
// through boost::shared_ptr, so copying a record shares its parts; nothing here clones deeply.

#include <calc-common/export.hpp>
#include <calc-common/results.hpp>
#include <calc-common/scenario/prediction_options.hpp>
#include <calc-common/scenario/transposition_options.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

struct ambient_conditions_t;
struct measured_source_noise_t;

// ---- Noise sources -----------------------------------------------------------------------------

/// The noise input of one source, or of one of its components, as a calculation library reads
/// it: a directivity field of levels, and measured noise where the source was measured.
struct VARNO_CALC_COMMON_EXPORT source_noise_t {
    boost::shared_ptr<noise_field_t> noise_field; ///< levels (dB) over frequency and directivity
    boost::shared_ptr<measured_source_noise_t> measured; ///< measured noise, if any
};

/// One noise source of the aircraft.
struct VARNO_CALC_COMMON_EXPORT source_t {
    source_type_t type; ///< what kind of source this is
    /// The source's own prediction record; null: the calculation's default for its kind applies.
    boost::shared_ptr<source_prediction_t> prediction_options;
    /// The source's own transposition record; null: the calculation's default applies.
    boost::shared_ptr<single_source_transposition_t> transposition_options;
    bool active = true;   ///< the source is calculated
    int engine_index = 0; ///< index of the source's engine in the aircraft's engines
    boost::shared_ptr<source_noise_t> noise; ///< noise of the whole source, if given
    /// Noise of each component the source is broken down into.
    std::map<noise_component_t, boost::shared_ptr<source_noise_t>> components;

    /// A source of `type` with no record of its own.
    explicit source_t(source_type_t const& type);

    /// The source is heard as broadband noise only (jet, combustion, residual, engine totals).
    bool is_broadband_engine_source() const;
    /// The source is the contra-rotating open rotor.
    bool is_cror_engine_source() const;
    /// The source breaks down into broadband noise and tones.
    bool is_global_decomposable_engine_source() const;
};

// ---- Engines -----------------------------------------------------------------------------------

/// How an engine spools down.
struct VARNO_CALC_COMMON_EXPORT spool_down_law_t {
    int type = 0;         ///< kind of law
    double value_1 = 0.0; ///< law coefficient
    double value_2 = 0.0; ///< law coefficient
    double value_3 = 0.0; ///< law coefficient
    double value_4 = 0.0; ///< law coefficient
    double value_5 = 0.0; ///< law coefficient
    double value_6 = 0.0; ///< law coefficient
    double value_7 = 0.0; ///< law coefficient
    double value_8 = 0.5; ///< law coefficient
};

/// Installation and dimensions of an engine.
struct VARNO_CALC_COMMON_EXPORT engine_geometry_t {
    double value_1 = 0.0;                               ///< geometry value
    double value_2 = 50.0;                              ///< geometry value
    double value_3 = 0.0;                               ///< geometry value
    double value_4 = 0.0;                               ///< geometry value
    double value_5 = 0.0;                               ///< geometry value
    double value_6 = 0.0;                               ///< geometry value
    double value_7 = 0.0;                               ///< geometry value
    double value_8 = 0.0;                               ///< geometry value
    double value_9 = 0.0;                               ///< geometry value
    int shift_value = -100;                             ///< shift setting
    double value_10 = 0.0;                              ///< geometry value
    double value_11 = 0.0;                              ///< geometry value
    double value_12 = 0.0;                              ///< geometry value
    double value_13 = 0.0;                              ///< geometry value
    double value_14 = 0.0;                              ///< geometry value
    double value_15 = 1.0;                              ///< geometry value
    double value_16 = 0.0;                              ///< geometry value
    double value_17 = 0.0;                              ///< geometry value
    double value_18 = 0.0;                              ///< geometry value
    double value_19 = 0.0;                              ///< geometry value
    double value_20 = 0.0;                              ///< geometry value
    double value_21 = 0.0;                              ///< geometry value
    double value_22 = 0.0;                              ///< geometry value
    double value_23 = 0.0;                              ///< geometry value
    double value_24 = 0.0;                              ///< geometry value
    boost::shared_ptr<spool_down_law_t> spool_down_law; ///< how the engine spools down
    double value_25 = 0.0;                              ///< geometry value

    /// Default geometry with a new default spool-down law.
    engine_geometry_t();
};

/// One set of engine thermodynamic parameters (a cycle point or a user segment).
struct VARNO_CALC_COMMON_EXPORT thermodynamic_parameters_t {
    double value_1 = 0.0;  ///< cycle value
    double value_2 = 0.0;  ///< cycle value
    double value_3 = 0.0;  ///< cycle value
    double value_4 = 0.0;  ///< cycle value
    double value_5 = 0.0;  ///< cycle value
    double value_6 = 0.0;  ///< cycle value
    double value_7 = 0.0;  ///< cycle value
    double value_8 = 0.0;  ///< cycle value
    double value_9 = 0.0;  ///< cycle value
    double value_10 = 0.0; ///< cycle value
    double value_11 = 0.0; ///< cycle value
    double value_12 = 0.0; ///< cycle value
    double value_13 = 0.0; ///< cycle value
    double value_14 = 0.0; ///< cycle value
    double value_15 = 0.0; ///< cycle value
    double value_16 = 0.0; ///< cycle value
    double value_17 = 0.0; ///< cycle value
    double value_18 = 0.0; ///< cycle value
    double value_19 = 0.0; ///< cycle value
    double value_20 = 0.0; ///< cycle value
    double value_21 = 0.0; ///< cycle value
    double value_22 = 0.0; ///< cycle value
    double value_23 = 0.0; ///< cycle value
    double value_24 = 0.0; ///< cycle value
    double value_25 = 0.0; ///< cycle value
    double value_26 = 0.0; ///< cycle value
    double value_27 = 0.0; ///< cycle value
};

/// Jet flow parameters kept with a jet result.
struct VARNO_CALC_COMMON_EXPORT jet_thermo_params_t {
    double value_1 = 0.0;  ///< jet value
    double value_2 = 0.0;  ///< jet value
    double value_3 = 0.0;  ///< jet value
    double value_4 = 0.0;  ///< jet value
    double value_5 = 0.0;  ///< jet value
    double value_6 = 0.0;  ///< jet value
    double value_7 = 0.0;  ///< jet value
    double value_8 = 0.0;  ///< jet value
    double value_9 = 0.0;  ///< jet value
    double value_10 = 0.0; ///< jet value
    double value_11 = 0.0; ///< jet value
    double value_12 = 0.0; ///< jet value
};

/// How the engine's thermodynamic cycle is obtained and corrected.
struct VARNO_CALC_COMMON_EXPORT thermo_effects_t {
    /// Computes a set of thermodynamic parameters in place; copied with the record, never
    /// called by this library.
    typedef boost::function<void(boost::shared_ptr<thermodynamic_parameters_t>)> callback_type;

    bool enabled = true;      ///< thermodynamic effects are applied
    std::string code = "000"; ///< code of the cycle deck or model
    std::string description;  ///< free text
    callback_type callback;   ///< the caller's cycle computation, empty by default
    double value_1 = 0.0;     ///< model value
    double value_2 = 0.0;     ///< model value
    /// Four parameter sets of the cycle.
    std::array<boost::shared_ptr<thermodynamic_parameters_t>, 4> parameters;
    /// Parameter sets of the user segments.
    std::vector<boost::shared_ptr<thermodynamic_parameters_t>> user_segments;
    /// Second parameter sets of the user segments, one per user segment.
    std::vector<boost::shared_ptr<thermodynamic_parameters_t>> second_user_segments;

    /// Enabled, code "000", four new parameter sets, no user segment.
    thermo_effects_t();

    /// Appends `count` new records to each list of user segments; nothing for 0 or less.
    void set_segments(int count);
    /// Number of user segments.
    std::size_t user_segment_count() const;
};

/// One engine's rating at a calculation point, filled by the calculation libraries. All zero
/// on creation. Speeds are in the units the power settings use (rpm), thrusts in daN.
struct VARNO_CALC_COMMON_EXPORT engine_rating_t {
    double n1 = 0.0;                   ///< low-pressure spool speed, rpm
    double n1k = 0.0;                  ///< corrected low-pressure spool speed, rpm
    double n2 = 0.0;                   ///< high-pressure spool speed, rpm
    double net_thrust = 0.0;           ///< net thrust, daN
    double corrected_net_thrust = 0.0; ///< net thrust corrected to standard air, daN
    double relative_mach = 0.0;        ///< fan tip relative Mach number
    /// The cycle at this rating, when the calculation library keeps it; null otherwise.
    boost::shared_ptr<thermodynamic_parameters_t> thermodynamics;
};

/// One engine of the aircraft.
struct VARNO_CALC_COMMON_EXPORT engine_t {
    /// Bit of value_type: the engine's noise is given as a pseudo-breakdown of its total.
    static constexpr int pseudo_breakdown_bit = 16;

    int index;          ///< the engine's number
    int value_type = 2; ///< type flags: 2 turbofan, 4 turboprop, 8 propfan, 1 fuselage-mounted,
                        ///< 16 pseudo-breakdown (see VARNO::EngineTypeToString)
    boost::shared_ptr<engine_geometry_t> geometry;      ///< installation and dimensions
    boost::shared_ptr<thermo_effects_t> thermo_effects; ///< thermodynamic cycle
    int selector = 1;                                   ///< model selector
    int second_selector = -1;                           ///< model selector

    /// A wing-mounted turbofan numbered `index`, with default geometry and cycle.
    explicit engine_t(int index);
};

// ---- Geometry ----------------------------------------------------------------------------------

/// A landing gear cylinder with equipment.
struct VARNO_CALC_COMMON_EXPORT equipped_cylinder_t {
    double value_1 = 0.0; ///< dimension
    double value_2 = 0.0; ///< dimension
    double value_3 = 0.0; ///< dimension
};

/// A bare landing gear cylinder.
struct VARNO_CALC_COMMON_EXPORT unequipped_cylinder_t {
    double value_1 = 0.0; ///< dimension
    double value_2 = 0.0; ///< dimension
    double value_3 = 0.0; ///< dimension
    double value_4 = 0.0; ///< dimension
};

/// Dimensions of one flap.
struct VARNO_CALC_COMMON_EXPORT flap_geometry_t {
    double value_1 = 0.0; ///< dimension
    double value_2 = 0.0; ///< dimension
    double value_3 = 0.0; ///< dimension
};

/// Dimensions of one slat.
struct VARNO_CALC_COMMON_EXPORT slat_geometry_t {
    double value_1 = 0.0; ///< dimension
    double value_2 = 0.0; ///< dimension
    double value_3 = 0.0; ///< dimension
};

/// Dimensions of one spoiler.
struct VARNO_CALC_COMMON_EXPORT spoiler_geometry_t {
    double value_1 = 0.0; ///< dimension
    double value_2 = 0.0; ///< dimension
};

/// Geometry of one landing gear and its cylinders.
struct VARNO_CALC_COMMON_EXPORT landing_gear_geometry_t {
    double value_1 = 0.0;                                                       ///< dimension
    double value_2 = 0.0;                                                       ///< dimension
    double value_3 = 0.0;                                                       ///< dimension
    double value_4 = 0.0;                                                       ///< dimension
    double value_5 = 0.0;                                                       ///< dimension
    double value_6 = 0.0;                                                       ///< dimension
    std::vector<boost::shared_ptr<unequipped_cylinder_t>> unequipped_cylinders; ///< bare ones
    std::vector<boost::shared_ptr<equipped_cylinder_t>> equipped_cylinders;     ///< with equipment

    /// Appends an equipped cylinder holding the three values in order.
    void add_equipped_cylinder(double first, double second, double third);
    /// Appends a bare cylinder holding the four values in order.
    void add_unequipped_cylinder(double first, double second, double third, double fourth);
};

/// Geometry of the airframe: landing gears, flaps, slats and spoilers.
struct VARNO_CALC_COMMON_EXPORT aircraft_geometry_t {
    double value_1 = 0.0;                                           ///< dimension
    double value_2 = 0.0;                                           ///< dimension
    double value_3 = 0.0;                                           ///< dimension
    double value_4 = 0.0;                                           ///< dimension
    double value_5 = 0.0;                                           ///< dimension
    double value_6 = 0.0;                                           ///< dimension
    double value_7 = 0.0;                                           ///< dimension
    double value_8 = 0.0;                                           ///< dimension
    double value_9 = 0.0;                                           ///< dimension
    double value_10 = 0.0;                                          ///< dimension
    double value_11 = 0.0;                                          ///< dimension
    double value_12 = 0.0;                                          ///< dimension
    boost::shared_ptr<landing_gear_geometry_t> first_landing_gear;  ///< landing gear
    boost::shared_ptr<landing_gear_geometry_t> second_landing_gear; ///< landing gear
    boost::shared_ptr<landing_gear_geometry_t> third_landing_gear;  ///< landing gear
    boost::shared_ptr<landing_gear_geometry_t> fourth_landing_gear; ///< landing gear
    double value_13 = 0.0;                                          ///< dimension
    double value_14 = 0.0;                                          ///< dimension
    double value_15 = 0.0;                                          ///< dimension
    int flap_count_value = 2;                                       ///< number of flaps
    boost::shared_ptr<flap_geometry_t> first_flap;                  ///< flap
    boost::shared_ptr<flap_geometry_t> second_flap;                 ///< flap
    double value_16 = 0.0;                                          ///< dimension
    double value_17 = 0.0;                                          ///< dimension
    int slat_count_value = 4;                                       ///< number of slats
    double value_18 = 0.0;                                          ///< dimension
    std::array<boost::shared_ptr<slat_geometry_t>, 4> slats;        ///< slats
    double value_19 = 0.0;                                          ///< dimension
    double value_20 = 0.0;                                          ///< dimension
    std::vector<boost::shared_ptr<spoiler_geometry_t>> spoilers;    ///< spoilers, none at first

    /// Four new landing gears, two new flaps, four new slats, no spoiler.
    aircraft_geometry_t();

    /// Appends a spoiler holding the two values in order.
    void add_spoiler(double first, double second);
};

// ---- Aerodynamics ------------------------------------------------------------------------------

/// Data of the Amiet trailing-edge model for one part of a profile.
struct VARNO_CALC_COMMON_EXPORT amiet_model_data_t {
    double value_1 = 0.0; ///< model value
    double value_2 = 0.0; ///< model value
    double value_3 = 0.0; ///< model value
    double value_4 = 0.0; ///< model value
    double value_5 = 0.0; ///< model value
    double value_6 = 0.0; ///< model value
};

/// Data of the Howe trailing-edge model for one part of a profile.
struct VARNO_CALC_COMMON_EXPORT howe_model_data_t {
    double value_1 = 0.0; ///< model value
    double value_2 = 0.0; ///< model value
    double value_3 = 0.0; ///< model value
    double value_4 = 0.0; ///< model value
    double value_5 = 0.0; ///< model value
    double value_6 = 0.0; ///< model value
    double value_7 = 0.0; ///< model value
    double value_8 = 0.0; ///< model value
};

/// Data of the Brooks model for one part of a profile or one spoiler.
struct VARNO_CALC_COMMON_EXPORT brooks_model_data_t {
    double value_1 = 0.0;       ///< model value
    double value_2 = 0.0;       ///< model value
    double value_3 = 0.0;       ///< model value
    std::vector<double> values; ///< further model values, none at first
};

/// Aerodynamic profile of the aircraft at one configuration.
struct VARNO_CALC_COMMON_EXPORT aero_profile_t {
    double value_1 = 0.0;                                                ///< profile value
    double value_2 = 0.0;                                                ///< profile value
    double value_3 = 0.0;                                                ///< profile value
    double value_4 = 0.0;                                                ///< profile value
    double value_5 = 0.0;                                                ///< profile value
    double value_6 = 0.0;                                                ///< profile value
    double value_7 = 0.0;                                                ///< profile value
    double value_8 = 0.0;                                                ///< profile value
    std::array<boost::shared_ptr<amiet_model_data_t>, 6> amiet;          ///< Amiet model data
    std::array<boost::shared_ptr<howe_model_data_t>, 4> howe;            ///< Howe model data
    boost::shared_ptr<brooks_model_data_t> brooks;                       ///< Brooks model data
    std::vector<boost::shared_ptr<brooks_model_data_t>> brooks_spoilers; ///< one per spoiler
    double value_9 = 0.0;                                                ///< profile value
    double value_10 = 0.0;                                               ///< profile value

    /// Six new Amiet, four new Howe and one new Brooks record, no spoiler data.
    aero_profile_t();

    /// Appends spoiler data holding the three values in order.
    void add_brooks_spoilers(double first, double second, double third);
};

/// The aircraft's aerodynamic profiles.
struct VARNO_CALC_COMMON_EXPORT aero_data_t {
    std::vector<boost::shared_ptr<aero_profile_t>> profiles; ///< profiles, none at first
    int selector = 0;                                        ///< profile selector

    /// Appends a new default profile and returns it.
    boost::shared_ptr<aero_profile_t> add_profile();
    /// Removes every profile.
    void clear_profiles();
};

// ---- Measured noise ----------------------------------------------------------------------------

/// One engine power setting parameter, in its stored unit.
struct VARNO_CALC_COMMON_EXPORT power_management_parameter_t {
    power_management_parameter_type_t type{}; ///< which parameter
    double value = 0.0;                       ///< its value, in `unit`
    power_management_parameter_unit_t unit{}; ///< the unit of `value`
};

/// Key of a power setting parameter: the parameter and the unit it is stored in.
typedef std::pair<power_management_parameter_type_t, power_management_parameter_unit_t>
    power_management_key_t;

/// The power setting of a measurement, one parameter per key.
typedef std::map<power_management_key_t, boost::shared_ptr<power_management_parameter_t>>
    power_management_t;

/// The noise of a source measured at one power setting.
struct VARNO_CALC_COMMON_EXPORT measured_source_noise_element_t {
    boost::shared_ptr<noise_field_t> noise_field; ///< measured levels (dB), null until filled
    double reference_distance = 0.0;              ///< distance the levels refer to, m
    boost::shared_ptr<power_management_t> power_management; ///< the power setting, empty at first
    /// The air of the measurement, null until given.
    boost::shared_ptr<ambient_conditions_t> ambient_conditions;

    /// An element with an empty power setting.
    measured_source_noise_element_t();

    /// Stores a power setting parameter at (type, canonical unit of its family), replacing any
    /// parameter there. Speeds of rotation go to rpm, thrusts to daN, speeds to m/s and angles
    /// to degrees; a unit the family does not convert keeps its number under the canonical unit,
    /// and parameters of no family keep their unit.
    void add_power_management_parameter(power_management_parameter_type_t type, double value,
                                        power_management_parameter_unit_t unit);
};

/// Measured noise of a source at several power settings.
struct VARNO_CALC_COMMON_EXPORT measured_source_noise_t {
    std::vector<boost::shared_ptr<measured_source_noise_element_t>> elements; ///< measurements
    bool first_switch = true;                                                 ///< model switch
    int selector = 1;                                                         ///< model selector
    int second_selector = 0;                                                  ///< model selector
    bool second_switch = false;                                               ///< model switch
    double value = 0.0;                                                       ///< model value
    bool third_switch = false;                                                ///< model switch

    /// `count` new elements.
    explicit measured_source_noise_t(std::size_t count = 0);
};

// ---- Aircraft ----------------------------------------------------------------------------------

/// Total noise of an aircraft, dB.
struct VARNO_CALC_COMMON_EXPORT total_noise_db_t {
    double value_1 = 0.0; ///< level, dB
    double value_2 = 0.0; ///< level, dB
};

/// One aircraft of a scenario. The sizes of its two source lists fix the size of every result
/// structure made for it, and an index into them is the source_index of a result_type_t.
struct VARNO_CALC_COMMON_EXPORT aircraft_t {
    std::vector<boost::shared_ptr<engine_t>> engines;          ///< engines, by number
    std::vector<boost::shared_ptr<source_t>> engine_sources;   ///< engine noise sources
    std::vector<boost::shared_ptr<source_t>> airframe_sources; ///< airframe noise sources
    boost::shared_ptr<aero_data_t> aero_data;                  ///< aerodynamic profiles
    boost::shared_ptr<aircraft_geometry_t> geometry;           ///< airframe geometry
    boost::shared_ptr<total_noise_db_t> total_noise;           ///< total noise, dB
    /// Attenuation lists by result: total engine, total airfoil and total landing gear at first.
    boost::shared_ptr<attenuations_t> attenuations;

    /// One engine numbered 0, no source, default geometry and aerodynamics.
    aircraft_t();

    /// Index of the first airframe source of `type`, or -1 when there is none.
    int find_airframe_source_index(source_type_t const& type) const;
};

#endif // CALC_COMMON_SCENARIO_AIRCRAFT_HPP
