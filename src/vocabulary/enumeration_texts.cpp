// Display texts of the enumerations. Each is a plain switch over the enumerators: a value that
// has no case (a gap, or anything outside the table) falls through to the empty string.

#include <calc-common/vocabulary.hpp>

namespace VARNO {

std::string StringValue(aircraft_type_t const& value) {
    switch (value) {
    case aircraft_a340:
        return "A340";
    case aircraft_a330:
        return "A330";
    case aircraft_a321:
        return "A321";
    case aircraft_a319:
        return "A319";
    case aircraft_a320:
        return "A320";
    case aircraft_a310:
        return "A310";
    case aircraft_a300_600:
        return "A300-600";
    case aircraft_a318:
        return "A318";
    case aircraft_a380:
        return "A380";
    case aircraft_a350:
        return "A350";
    case aircraft_a400m:
        return "A400M";
    }
    return {};
}

std::string StringValue(airframe_noise_prediction_method_t const& value) {
    switch (value) {
    case airframe_isvr_amiet_brooks_howe:
        return "ISVR + Amiet, Brooks, Howe";
    }
    return {};
}

std::string StringValue(atm_abs_method_t const& value) {
    switch (value) {
    case atm_abs_sutherland:
        return "Sutherland";
    case atm_abs_arp866:
        return "ARP866";
    case atm_abs_sae_air1845:
        return "SAE AIR1845";
    case atm_abs_arp5534:
        return "ARP5534";
    }
    return {};
}

std::string StringValue(attenuation_type_t const& value) {
    switch (value) {
    case attenuation_none:
        return "None";
    case attenuation_scalar:
        return "Scalar";
    case attenuation_spectrum:
        return "Spectrum";
    case attenuation_matrix:
        return "Matrix";
    }
    return {};
}

std::string StringValue(bsn_method_t const& value) {
    switch (value) {
    case bsn_unmodified_heidmann:
        return "Unmodified Heidmann method";
    case bsn_esdu_75020c:
        return "ESDU-75020C method";
    case bsn_add_3db_to_broadband:
        return "Add 3 dB to broadband noise";
    case bsn_ignore:
        return "Ignore buzz-saw noise";
    }
    return {};
}

std::string StringValue(calculation_type_t const& value) {
    switch (value) {
    case calculation_noise_sources:
        return "Noise sources calculation";
    case calculation_integrated_aircraft_noise:
        return "Integrated aircraft noise calculation";
    }
    return {};
}

std::string StringValue(combustion_method_t const& value) {
    switch (value) {
    case combustion_sae_arp876f:
        return "SAE ARP876 F";
    }
    return {};
}

std::string StringValue(comp_fan_location_t const& value) {
    switch (value) {
    case comp_fan_forward:
        return "Forward";
    case comp_fan_aft:
        return "Aft";
    }
    return {};
}

std::string StringValue(comp_fan_noise_component_t const& value) {
    switch (value) {
    case comp_fan_broadband_noise:
        return "Broadband noise";
    case comp_fan_interaction_tones:
        return "Interaction tones";
    case comp_fan_buzz_saw_noise:
        return "Buzz-saw noise";
    }
    return {};
}

std::string StringValue(engine_manufacturer_t const& value) {
    switch (value) {
    case manufacturer_ge_aviation:
        return "GE-Aviation";
    case manufacturer_cfm_international:
        return "CFM International";
    case manufacturer_pratt_whitney:
        return "Pratt & Whitney";
    case manufacturer_international_aero_engines:
        return "International Aero Engines";
    case manufacturer_rolls_royce:
        return "Rolls-Royce";
    case manufacturer_engine_alliance:
        return "Engine Alliance";
    case manufacturer_epi:
        return "EPI Inc.";
    }
    return {};
}

std::string StringValue(exp_avg_method_t const& value) {
    switch (value) {
    case exp_avg_linear_detection:
        return "Linear detection";
    case exp_avg_real_integration:
        return "Real integration";
    }
    return {};
}

std::string StringValue(export_flag_t const& value) {
    switch (value) {
    case export_microphone_independent_trajectory_data:
        return "Microphone-independent trajectory data";
    case export_microphone_dependent_trajectory_data:
        return "Microphone-dependent trajectory data";
    case export_trajectory_data:
        return "Trajectory data";
    case export_time_dependent_noise_metrics:
        return "Time-dependent noise metrics";
    case export_time_independent_noise_metrics:
        return "Time-independent noise metrics";
    case export_noise_metrics:
        return "Noise metrics";
    case export_noise_maps:
        return "Noise maps";
    case export_noise_exposure_metrics:
        return "Noise exposure metrics";
    case export_noise_profiles:
        return "Noise profiles";
    case export_footprints:
        return "Footprints";
    case export_all_available_data:
        return "All available data";
    }
    return {};
}

std::string StringValue(fan_esr_model_t const& value) {
    switch (value) {
    case fan_esr_no_distance_correction:
        return "no fan-OGV distance correction";
    case fan_esr_pratt_whitney:
        return "Pratt & Whitney";
    }
    return {};
}

std::string StringValue(fan_method_t const& value) {
    switch (value) {
    case fan_heidmann_1979:
        return "Heidmann 1979";
    case fan_heidmann_1996:
        return "Heidmann 1996";
    }
    return {};
}

std::string StringValue(flap_type_t const& value) {
    switch (value) {
    case flap_single_slotted:
        return "Single-slotted";
    case flap_double_slotted:
        return "Double-slotted";
    }
    return {};
}

std::string StringValue(flight_speed_effect_method_t const& value) {
    // A broken value reads as the default method rather than as nothing.
    return value == flight_speed_effect_epi_jet ? "EPI Jet" : "Standard";
}

std::string StringValue(ground_reflection_method_t const& value) {
    switch (value) {
    case ground_perfect:
        return "Perfect ground";
    case ground_certification_sae_air1672b:
        return "Certification ground (SAE AIR 1672B)";
    case ground_delany_bazley_certification:
        return "Delany-Bazley (Certification)";
    case ground_delany_bazley_grass:
        return "Delany-Bazley (Grass)";
    case ground_delany_bazley_asphalt:
        return "Delany-Bazley (Asphalt)";
    case ground_delany_bazley_user_defined:
        return "Delany-Bazley (User-defined ground)";
    case ground_attenborough_user_defined:
        return "Attenborough (User-defined ground)";
    case ground_slit_pore_user_defined:
        return "Slit-Pore (User-defined ground)";
    }
    return {};
}

std::string StringValue(indicator_type_t const& value) {
    switch (value) {
    case indicator_splstat:
        return "SPLSTAT";
    case indicator_spladj:
        return "SPLADJ";
    case indicator_spl:
        return "SPL";
    case indicator_oaspl:
        return "OASPL";
    case indicator_oasplmax:
        return "OASPLMAX";
    case indicator_psioasplmax:
        return "PSIOASPLMAX";
    case indicator_dba:
        return "DBA";
    case indicator_dbamax:
        return "DBAMAX";
    case indicator_psidbamax:
        return "PSIDBAMAX";
    case indicator_noys:
        return "NOYS";
    case indicator_noymax:
        return "NOYMAX";
    case indicator_fnoymax:
        return "FNOYMAX";
    case indicator_pnl:
        return "PNL";
    case indicator_pnlmax:
        return "PNLMAX";
    case indicator_psipnlmax:
        return "PSIPNLMAX";
    case indicator_tc:
        return "TC";
    case indicator_tcmax:
        return "TCMAX";
    case indicator_ftcmax:
        return "FTCMAX";
    case indicator_tcfmin:
        return "TCFMIN";
    case indicator_pnlt:
        return "PNLT";
    case indicator_pnltm:
        return "PNLTM";
    case indicator_psipnltm:
        return "PSIPNLTM";
    case indicator_epnl:
        return "EPNL";
    case indicator_sel:
        return "SEL";
    case indicator_senel:
        return "SENEL";
    case indicator_ta:
        return "TA";
    case indicator_na:
        return "NA";
    case indicator_leq24h:
        return "LEQ24H";
    case indicator_leqdt:
        return "LEQDT";
    case indicator_leqnt:
        return "LEQNT";
    case indicator_dnl:
        return "DNL";
    case indicator_nni:
        return "NNI";
    case indicator_tne:
        return "TNE";
    case indicator_ecpn:
        return "ECPN";
    case indicator_wecpn1:
        return "WECPN1";
    case indicator_wecpn2:
        return "WECPN2";
    case indicator_wecpn3:
        return "WECPN3";
    case indicator_wecpnl:
        return "WECPNL";
    case indicator_cnel:
        return "CNEL";
    case indicator_nef:
        return "NEF";
    }
    return {};
}

std::string StringValue(iso_parameter_t const& value) {
    switch (value) {
    case iso_n1k:
        return "iso-N1k";
    case iso_mrel:
        return "iso-Mrel";
    case iso_dtemp:
        return "iso-DTemp";
    case iso_v9:
        return "iso-V9";
    case iso_v19:
        return "iso-V19";
    case iso_vmix:
        return "iso-Vmix";
    case iso_w3:
        return "iso-W3";
    case iso_lpt_utipc:
        return "iso-LPT-UTIPC";
    }
    return {};
}

std::string StringValue(iso_turbulence_type_t const& value) {
    switch (value) {
    case iso_turbulence_liepmann:
        return "Liepmann method";
    case iso_turbulence_karman:
        return "Karman method";
    }
    return {};
}

std::string StringValue(jet_noise_prediction_method_t const& value) {
    switch (value) {
    case jet_snecma_lc2_single_stream:
        return "SNECMA LC2 (single-stream)";
    case jet_sae_arp876c_double_stream:
        return "SAE ARP 876C (double-stream)";
    case jet_sae_arp876f_double_stream:
        return "SAE ARP 876F (double-stream)";
    }
    return {};
}

std::string StringValue(jet_type_t const& value) {
    switch (value) {
    case jet_primary:
        return "Primary";
    case jet_secondary:
        return "Secondary";
    }
    return {};
}

std::string StringValue(landing_gear_type_t const& value) {
    switch (value) {
    case landing_gear_2_wheels:
        return "2 wheels by gear";
    case landing_gear_4_wheels:
        return "4 wheels by gear";
    case landing_gear_6_wheels:
        return "6 wheels by gear";
    }
    return {};
}

std::string StringValue(lateral_attenuation_method_t const& value) {
    switch (value) {
    case lateral_attenuation_esdu_82027:
        return "ESDU 82027";
    case lateral_attenuation_sae_air1751:
        return "SAE AIR 1751";
    case lateral_attenuation_sae_air5662:
        return "SAE AIR 5662";
    }
    return {};
}

std::string StringValue(nlcp_calculation_type_t const& value) {
    switch (value) {
    case nlcp_static_apu_noise:
        return "Static APU noise";
    case nlcp_static_engine_noise:
        return "Static engine noise";
    case nlcp_in_flight_take_off:
        return "In-flight noise (take-off)";
    case nlcp_in_flight_approach:
        return "In-flight noise (approach)";
    case nlcp_noise_exposure_scenario:
        return "Noise exposure scenario";
    }
    return {};
}

std::string StringValue(noise_component_t const& value) {
    switch (value) {
    case component_broadband_noise:
        return "Broadband noise";
    case component_buzz_saw_noise:
        return "Buzz-saw noise";
    case component_jet:
        return "Jet";
    case component_residual:
        return "Residual";
    case component_tones:
        return "Tones";
    case component_forward_tones:
        return "Forward tones";
    case component_aft_tones:
        return "Aft tones";
    case component_interaction_tones:
        return "Interaction tones";
    case component_haystack_noise:
        return "Haystack noise";
    }
    return {};
}

std::string StringValue(power_management_parameter_type_t const& value) {
    switch (value) {
    case power_parameter_mn:
        return "Mn";
    case power_parameter_vcas:
        return "Vcas";
    case power_parameter_vtas:
        return "Vtas";
    case power_parameter_n1:
        return "N1";
    case power_parameter_n1k:
        return "N1K";
    case power_parameter_shp:
        return "SHP";
    case power_parameter_fn:
        return "FN";
    case power_parameter_fnc:
        return "FNc";
    case power_parameter_vp:
        return "Vp";
    case power_parameter_vs:
        return "Vs";
    case power_parameter_vm:
        return "Vm";
    case power_parameter_mrel:
        return "Mrel";
    case power_parameter_ainflow:
        return "Ainflow";
    case power_parameter_n2:
        return "N2";
    case power_parameter_aoa:
        return "AoA";
    case power_parameter_conf:
        return "CONF";
    case power_parameter_lg:
        return "LG";
    }
    return {};
}

std::string StringValue(power_management_parameter_unit_t const& value) {
    switch (value) {
    case power_unit_percent:
        return "%";
    case power_unit_rpm:
        return "rpm";
    case power_unit_rad_per_s:
        return "rad/s";
    case power_unit_tr_per_s:
        return "tr/s";
    case power_unit_hp:
        return "HP";
    case power_unit_w:
        return "W";
    case power_unit_dan:
        return "daN";
    case power_unit_n:
        return "N";
    case power_unit_kn:
        return "kN";
    case power_unit_lbf:
        return "lbf";
    case power_unit_m_per_s:
        return "m/s";
    case power_unit_ft_per_s:
        return "ft/s";
    case power_unit_deg:
        return "deg";
    case power_unit_rad:
        return "rad";
    case power_unit_kts:
        return "kts";
    }
    return {};
}

std::string StringValue(seasonal_adjustment_t const& value) {
    switch (value) {
    case season_cold:
        return "Cold";
    case season_temperate:
        return "Temperate";
    case season_warm:
        return "Warm";
    }
    return {};
}

std::string StringValue(source_type_t const& value) {
    return get_standard_source_name(value);
}

std::string StringValue(time_period_t const& value) {
    switch (value) {
    case period_day:
        return "Day time";
    case period_evening:
        return "Evening time";
    case period_night:
        return "Night time";
    }
    return {};
}

std::string StringValue(tone_sep_method_t const& value) {
    switch (value) {
    case tone_sep_slope_differences:
        return "Slope differences";
    case tone_sep_discrete_frequencies_detection:
        return "Discrete frequencies detection";
    }
    return {};
}

std::string StringValue(trajectory_type_t const& value) {
    switch (value) {
    case trajectory_take_off:
        return "Take-off";
    case trajectory_approach:
        return "Approach";
    case trajectory_fly_over:
        return "Fly-over";
    case trajectory_cut_back:
        return "Cut-back";
    }
    return {};
}

std::string StringValue(turbine_method_t const& value) {
    switch (value) {
    case turbine_standard:
        return "Standard";
    case turbine_cfm56:
        return "CFM56";
    case turbine_trent:
        return "TRENT";
    case turbine_sae_arp876f:
        return "SAE ARP876 F";
    }
    return {};
}

std::string StringValue(wecpn_method_t const& value) {
    switch (value) {
    case wecpn_2_periods:
        return "2 periods";
    case wecpn_3_periods:
        return "3 periods";
    }
    return {};
}

} // namespace VARNO
