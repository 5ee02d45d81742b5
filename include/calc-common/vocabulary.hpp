#ifndef CALC_COMMON_VOCABULARY_HPP
#define CALC_COMMON_VOCABULARY_HPP

/// @file
/// Vocabulary: the enumerations of the data model with their numeric values and display texts,
/// and the catalogue of noise sources.
///
/// The numeric values are stored in records and result files, so they are a file format: they
/// are never renumbered, and the gaps between them are kept. Every enumeration has the fixed
/// underlying type int, so any int, listed or not, is a value of it; a value without a text
/// displays as the empty string.

#include <calc-common/export.hpp>

#include <iosfwd>
#include <string>
#include <vector>

/// Aircraft family.
enum aircraft_type_t : int {
    aircraft_a340 = 1,
    aircraft_a330 = 2,
    aircraft_a321 = 3,
    aircraft_a319 = 4,
    aircraft_a320 = 5,
    aircraft_a310 = 6,
    aircraft_a300_600 = 7,
    aircraft_a318 = 8,
    aircraft_a380 = 9,
    aircraft_a350 = 10,
    aircraft_a400m = 11,
};

/// Airframe noise prediction method.
enum airframe_noise_prediction_method_t : int {
    airframe_isvr_amiet_brooks_howe = 1,
};

/// Atmospheric absorption method (3 is unused).
enum atm_abs_method_t : int {
    atm_abs_sutherland = 0,
    atm_abs_arp866 = 1,
    atm_abs_sae_air1845 = 2,
    atm_abs_arp5534 = 4,
};

/// Shape of an attenuation applied to a source.
enum attenuation_type_t : int {
    attenuation_none = 0,
    attenuation_scalar = 1,
    attenuation_spectrum = 2,
    attenuation_matrix = 3,
};

/// Treatment of fan buzz-saw noise.
enum bsn_method_t : int {
    bsn_unmodified_heidmann = 0,
    bsn_esdu_75020c = 1,
    bsn_add_3db_to_broadband = 2,
    bsn_ignore = 3,
};

/// Kind of calculation.
enum calculation_type_t : int {
    calculation_noise_sources = 0,
    calculation_integrated_aircraft_noise = 1,
};

/// Combustion noise method.
enum combustion_method_t : int {
    combustion_sae_arp876f = 0,
};

/// Side of the fan or compressor that radiates.
enum comp_fan_location_t : int {
    comp_fan_forward = 1,
    comp_fan_aft = 2,
};

/// Noise component of a fan or compressor.
enum comp_fan_noise_component_t : int {
    comp_fan_broadband_noise = 1,
    comp_fan_interaction_tones = 2,
    comp_fan_buzz_saw_noise = 3,
};

/// Choice of Mach number for fan and compressor noise. Its values are chosen by the calculation
/// libraries that read it; it has no display text and streams as its integer value.
enum comp_fan_noise_machper_option_t : int {};

/// Engine manufacturer (5 and 7 are unused).
enum engine_manufacturer_t : int {
    manufacturer_ge_aviation = 0,
    manufacturer_cfm_international = 1,
    manufacturer_pratt_whitney = 2,
    manufacturer_international_aero_engines = 3,
    manufacturer_rolls_royce = 4,
    manufacturer_engine_alliance = 6,
    manufacturer_epi = 8,
};

/// Exponential averaging of levels over time.
enum exp_avg_method_t : int {
    exp_avg_linear_detection = 0,
    exp_avg_real_integration = 1,
};

/// Word of bit flags selecting exported data. Single flags and the three named combinations
/// have texts; any other combination displays as the empty string.
enum export_flag_t : int {
    export_microphone_independent_trajectory_data = 1,
    export_microphone_dependent_trajectory_data = 2,
    export_trajectory_data = 3,
    export_time_dependent_noise_metrics = 4,
    export_time_independent_noise_metrics = 8,
    export_noise_metrics = 12,
    export_noise_maps = 16,
    export_noise_exposure_metrics = 32,
    export_noise_profiles = 64,
    export_footprints = 128,
    export_all_available_data = 255,
};

/// Fan exit-to-stator (fan-OGV) distance correction.
enum fan_esr_model_t : int {
    fan_esr_no_distance_correction = 0,
    fan_esr_pratt_whitney = 1,
};

/// Fan noise method.
enum fan_method_t : int {
    fan_heidmann_1979 = 5,
    fan_heidmann_1996 = 6,
};

/// High-lift flap construction.
enum flap_type_t : int {
    flap_single_slotted = 0,
    flap_double_slotted = 1,
};

/// Flight speed effect on jet noise; every value but the EPI jet method displays as the default.
enum flight_speed_effect_method_t : int {
    flight_speed_effect_standard = 0,
    flight_speed_effect_epi_jet = 1,
};

/// Ground model for the reflection of sound at the observer.
enum ground_reflection_method_t : int {
    ground_perfect = 0,
    ground_certification_sae_air1672b = 1,
    ground_delany_bazley_certification = 2,
    ground_delany_bazley_grass = 3,
    ground_delany_bazley_asphalt = 4,
    ground_delany_bazley_user_defined = 5,
    ground_attenborough_user_defined = 6,
    ground_slit_pore_user_defined = 7,
};

/// Noise indicator (1, 2, 3, 5, 6, 7 and 30 are unused).
enum indicator_type_t : int {
    indicator_splstat = 0,
    indicator_spladj = 4,
    indicator_spl = 8,
    indicator_oaspl = 9,
    indicator_oasplmax = 10,
    indicator_psioasplmax = 11,
    indicator_dba = 12,
    indicator_dbamax = 13,
    indicator_psidbamax = 14,
    indicator_noys = 15,
    indicator_noymax = 16,
    indicator_fnoymax = 17,
    indicator_pnl = 18,
    indicator_pnlmax = 19,
    indicator_psipnlmax = 20,
    indicator_tc = 21,
    indicator_tcmax = 22,
    indicator_ftcmax = 23,
    indicator_tcfmin = 24,
    indicator_pnlt = 25,
    indicator_pnltm = 26,
    indicator_psipnltm = 27,
    indicator_epnl = 28,
    indicator_sel = 29,
    indicator_senel = 31,
    indicator_ta = 32,
    indicator_na = 33,
    indicator_leq24h = 34,
    indicator_leqdt = 35,
    indicator_leqnt = 36,
    indicator_dnl = 37,
    indicator_nni = 38,
    indicator_tne = 39,
    indicator_ecpn = 40,
    indicator_wecpn1 = 41,
    indicator_wecpn2 = 42,
    indicator_wecpn3 = 43,
    indicator_wecpnl = 44,
    indicator_cnel = 45,
    indicator_nef = 46,
};

/// Engine parameter held constant in an iso-parameter transposition (3 is unused).
enum iso_parameter_t : int {
    iso_n1k = 0,
    iso_mrel = 1,
    iso_dtemp = 2,
    iso_v9 = 4,
    iso_v19 = 5,
    iso_vmix = 6,
    iso_w3 = 7,
    iso_lpt_utipc = 8,
};

/// Turbulence spectrum model.
enum iso_turbulence_type_t : int {
    iso_turbulence_liepmann = 0,
    iso_turbulence_karman = 1,
};

/// Jet noise prediction method.
enum jet_noise_prediction_method_t : int {
    jet_snecma_lc2_single_stream = 1,
    jet_sae_arp876c_double_stream = 2,
    jet_sae_arp876f_double_stream = 3,
};

/// Jet stream.
enum jet_type_t : int {
    jet_primary = 1,
    jet_secondary = 2,
};

/// Landing gear bogie size.
enum landing_gear_type_t : int {
    landing_gear_2_wheels = 0,
    landing_gear_4_wheels = 1,
    landing_gear_6_wheels = 2,
};

/// Lateral attenuation method.
enum lateral_attenuation_method_t : int {
    lateral_attenuation_esdu_82027 = 1,
    lateral_attenuation_sae_air1751 = 2,
    lateral_attenuation_sae_air5662 = 3,
};

/// Kind of integrated aircraft noise calculation.
enum nlcp_calculation_type_t : int {
    nlcp_static_apu_noise = 0,
    nlcp_static_engine_noise = 1,
    nlcp_in_flight_take_off = 2,
    nlcp_in_flight_approach = 3,
    nlcp_noise_exposure_scenario = 4,
};

/// Component of a decomposable engine noise source.
enum noise_component_t : int {
    component_broadband_noise = 1,
    component_buzz_saw_noise = 2,
    component_jet = 3,
    component_residual = 4,
    component_tones = 5,
    component_forward_tones = 6,
    component_aft_tones = 7,
    component_interaction_tones = 8,
    component_haystack_noise = 9,
};

/// Parameter of an engine power setting (5 is unused).
enum power_management_parameter_type_t : int {
    power_parameter_mn = 0,
    power_parameter_vcas = 1,
    power_parameter_vtas = 2,
    power_parameter_n1 = 3,
    power_parameter_n1k = 4,
    power_parameter_shp = 6,
    power_parameter_fn = 7,
    power_parameter_fnc = 8,
    power_parameter_vp = 9,
    power_parameter_vs = 10,
    power_parameter_vm = 11,
    power_parameter_mrel = 12,
    power_parameter_ainflow = 13,
    power_parameter_n2 = 14,
    power_parameter_aoa = 15,
    power_parameter_conf = 16,
    power_parameter_lg = 17,
};

/// Unit of an engine power setting parameter.
enum power_management_parameter_unit_t : int {
    power_unit_percent = 1,
    power_unit_rpm = 2,
    power_unit_rad_per_s = 3,
    power_unit_tr_per_s = 4,
    power_unit_hp = 5,
    power_unit_w = 6,
    power_unit_dan = 7,
    power_unit_n = 8,
    power_unit_kn = 9,
    power_unit_lbf = 10,
    power_unit_m_per_s = 11,
    power_unit_ft_per_s = 12,
    power_unit_deg = 13,
    power_unit_rad = 14,
    power_unit_kts = 15,
};

/// Season of a noise exposure scenario.
enum seasonal_adjustment_t : int {
    season_cold = 0,
    season_temperate = 1,
    season_warm = 2,
};

/// Part of the day of a noise exposure scenario.
enum time_period_t : int {
    period_day = 1,
    period_evening = 2,
    period_night = 3,
};

/// Method separating tones from broadband noise.
enum tone_sep_method_t : int {
    tone_sep_slope_differences = 0,
    tone_sep_discrete_frequencies_detection = 1,
};

/// Flight procedure.
enum trajectory_type_t : int {
    trajectory_take_off = 1,
    trajectory_approach = 2,
    trajectory_fly_over = 3,
    trajectory_cut_back = 4,
};

/// Turbine noise method.
enum turbine_method_t : int {
    turbine_standard = 0,
    turbine_cfm56 = 1,
    turbine_trent = 2,
    turbine_sae_arp876f = 3,
};

/// Weighting periods of the WECPN indicator.
enum wecpn_method_t : int {
    wecpn_2_periods = 0,
    wecpn_3_periods = 1,
};

/// Exhaust configuration: the key by which jet calculations choose their data. From 0 on the
/// value is the configuration number; -2 and -1 are configuration 0 computed on the primary or
/// bypass speed instead of the mixing speed. 23, 24, 35, 36, 38 to 199, 204 and 205 are unused.
/// It has a display text but no stream output.
enum exhaust_type_t : int {
    exhaust_m0_primary_speed = -2,
    exhaust_m0_bypass_speed = -1,
    exhaust_m0_mixing_speed = 0,
    exhaust_separated = 1,
    exhaust_confluent_iae = 2,
    exhaust_mixed_cfm56_5c = 3,
    exhaust_separated_cf6_80e1 = 4,
    exhaust_separated_rr = 5,
    exhaust_single_flow_arp876c = 6,
    exhaust_supersonic_mtf = 7,
    exhaust_mixed_pw = 8,
    exhaust_separated_cfmi_a320_development = 9,
    exhaust_separated_pw4168a_a330 = 10,
    exhaust_separated_trent500_development = 11,
    exhaust_separated_cfmi_a321 = 12,
    exhaust_trent500_a340_600_certification = 13,
    exhaust_a380_trent900_ndft = 14,
    exhaust_a380_trent900_ncft = 15,
    exhaust_a380_gp7200_ndft = 16,
    exhaust_a380_gp7200_ncft = 17,
    exhaust_a380_gp7200_ncft_without_vjet_decrease = 18,
    exhaust_rosas = 19,
    exhaust_gtf = 20,
    exhaust_cfm56_5bp_nip_a = 21,
    exhaust_cfm56_5bp_nip_b = 22,
    exhaust_mixed_pw6000 = 25,
    exhaust_august_2007_secondary_jet = 26,
    exhaust_leap56_wind_tunnel = 27,
    exhaust_cfm56_5b_nip_cepra19_a = 28,
    exhaust_cfm56_5b_nip_cepra19_rain = 29,
    exhaust_cfm56_5b_nip_cepra19_b = 30,
    exhaust_nip_cepra19_forward_silencer_aft = 31,
    exhaust_silencer_robust_curve = 32,
    exhaust_rosas_from_cfm = 33,
    exhaust_silencer_cfm56_5b_2004 = 34,
    exhaust_a320_cfm565b_silencer = 37,
    exhaust_a321neo_flap_slat_micro_arc_fo = 200,
    exhaust_a321neo_flap_slat_average = 201,
    exhaust_a320neo_flap_slat_micro_arc_fo = 202,
    exhaust_a320neo_flap_slat_average_micro_arc_fo_sl = 203,
    exhaust_a321neo_m_curve_ap_micro_arc_fo = 206,
    exhaust_a320neo_m_curve_ap_micro_arc_fo = 207,
    exhaust_a320neo_m_curve_ap_micro_arc_fo_smoothed = 208,
};

/// Noise source of an aircraft: 0 to 11 are engine sources, 12 to 23 airframe sources.
enum source_type_t : int {
    source_jet = 0,
    source_turbine = 1,
    source_combustion = 2,
    source_fan_forward = 3,
    source_fan_forward_buzz_saw = 4,
    source_fan_aft = 5,
    source_residual = 6,
    source_total_engine_propellers_excluded = 7,
    source_propeller = 8,
    source_cror_propellers = 9,
    source_compressor = 10,
    source_total_engine_pseudo_breakdown = 11,
    source_slats = 12,
    source_flaps = 13,
    source_clean_wing = 14,
    source_empennage = 15,
    source_nose_landing_gear = 16,
    source_main_landing_gear = 17,
    source_other_landing_gear = 18,
    source_inboard_cavity = 19,
    source_outboard_cavity = 20,
    source_extraneous_airframe = 21,
    source_nai = 22,
    source_spoiler = 23,
};

// ---- Source catalogue ---------------------------------------------------------------------

/// Standard name of a noise source, such as "Fan forward"; empty for a value outside 0..23.
VARNO_CALC_COMMON_EXPORT std::string get_standard_source_name(source_type_t const& type);

/// Noise components into which an engine source breaks down, in their standard order
/// (broadband first, then tones); empty for a source that does not break down.
VARNO_CALC_COMMON_EXPORT std::vector<noise_component_t> get_source_components(source_type_t type);

/// True for the engine sources that break down into components (turbine, fan forward, fan aft,
/// propeller, CROR propellers, compressor): exactly those with components.
VARNO_CALC_COMMON_EXPORT bool is_global_decomposable_engine_source(source_type_t type);

// ---- Display texts ------------------------------------------------------------------------

namespace VARNO {

/// @{
/// Display text of a value; the empty string for a value without one.
VARNO_CALC_COMMON_EXPORT std::string StringValue(aircraft_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(airframe_noise_prediction_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(atm_abs_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(attenuation_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(bsn_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(calculation_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(combustion_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(comp_fan_location_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(comp_fan_noise_component_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(engine_manufacturer_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(exhaust_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(exp_avg_method_t const& value);
/// Text of a single flag or of one of the named combinations; empty for other combinations.
VARNO_CALC_COMMON_EXPORT std::string StringValue(export_flag_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(fan_esr_model_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(fan_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(flap_type_t const& value);
/// "EPI Jet" for 1 and "Standard" for every other value, so that a broken value reads as the
/// default.
VARNO_CALC_COMMON_EXPORT std::string StringValue(flight_speed_effect_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(ground_reflection_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(indicator_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(iso_parameter_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(iso_turbulence_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(jet_noise_prediction_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(jet_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(landing_gear_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(lateral_attenuation_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(nlcp_calculation_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(noise_component_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(power_management_parameter_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(power_management_parameter_unit_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(seasonal_adjustment_t const& value);
/// The standard source name, as get_standard_source_name gives it.
VARNO_CALC_COMMON_EXPORT std::string StringValue(source_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(time_period_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(tone_sep_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(trajectory_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(turbine_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::string StringValue(wecpn_method_t const& value);
/// @}

/// Description of an engine from its word of type flags, such as "Turbofan: wing-mounted".
/// The type is the first of the flags 2 (turbofan), 4 (turboprop), 8 (propfan) that is set, or
/// "Unknown" when none is; flag 1 means fuselage-mounted, otherwise wing-mounted; flag 16 adds
/// " (PSEUDO-breakdown)".
VARNO_CALC_COMMON_EXPORT std::string EngineTypeToString(int engine_type);

} // namespace VARNO

// ---- Stream output: writes the display text and nothing more --------------------------------

/// @{
/// Writes the display text of a value (VARNO::StringValue) and nothing more.
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, aircraft_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  airframe_noise_prediction_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, atm_abs_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  attenuation_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, bsn_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  calculation_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  combustion_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  comp_fan_location_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  comp_fan_noise_component_t const& value);
/// Writes the integer value: this option has no display text.
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  comp_fan_noise_machper_option_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  engine_manufacturer_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, exp_avg_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, export_flag_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, fan_esr_model_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, fan_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, flap_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  flight_speed_effect_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  ground_reflection_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, indicator_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, iso_parameter_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  iso_turbulence_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  jet_noise_prediction_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, jet_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  landing_gear_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  lateral_attenuation_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  nlcp_calculation_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, noise_component_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  power_management_parameter_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  power_management_parameter_unit_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os,
                                                  seasonal_adjustment_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, source_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, time_period_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, tone_sep_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, trajectory_type_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, turbine_method_t const& value);
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& os, wecpn_method_t const& value);
/// @}

#endif // CALC_COMMON_VOCABULARY_HPP
