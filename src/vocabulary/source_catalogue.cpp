// The catalogue of noise sources: standard names, breakdown into components, class predicates.

#include "vocabulary/source_catalogue.hpp"

#include <cstdint>

namespace {

// Membership of a source value in a set of at most 32 engine sources, given as a bit mask. The
// value is compared without sign, so a negative value lies above every bound and is in no set.
bool in_source_set(source_type_t type, std::uint32_t mask, source_type_t last_member) {
    auto const bit = static_cast<std::uint32_t>(type);
    return bit <= static_cast<std::uint32_t>(last_member) && ((mask >> bit) & 1u) != 0;
}

constexpr std::uint32_t bit(source_type_t type) {
    return 1u << static_cast<unsigned>(type);
}

constexpr std::uint32_t decomposable_engine_sources =
    bit(source_turbine) | bit(source_fan_forward) | bit(source_fan_aft) | bit(source_propeller) |
    bit(source_cror_propellers) | bit(source_compressor);
static_assert(decomposable_engine_sources == 1834, "decomposable engine source mask");

constexpr std::uint32_t broadband_engine_sources =
    bit(source_jet) | bit(source_combustion) | bit(source_residual) |
    bit(source_total_engine_propellers_excluded) | bit(source_total_engine_pseudo_breakdown);
static_assert(broadband_engine_sources == 2245, "broadband engine source mask");

} // namespace

std::string get_standard_source_name(source_type_t const& type) {
    switch (type) {
    case source_jet:
        return "Jet";
    case source_turbine:
        return "Turbine";
    case source_combustion:
        return "Combustion";
    case source_fan_forward:
        return "Fan forward";
    case source_fan_forward_buzz_saw:
        return "Fan forward - buzz-saw";
    case source_fan_aft:
        return "Fan aft";
    case source_residual:
        return "Residual";
    case source_total_engine_propellers_excluded:
        return "Total engine, propeller(s) excluded";
    case source_propeller:
        return "Propeller";
    case source_cror_propellers:
        return "CROR propellers";
    case source_compressor:
        return "Compressor";
    case source_total_engine_pseudo_breakdown:
        return "Total engine (pseudo-breakdown input)";
    case source_slats:
        return "Slats";
    case source_flaps:
        return "Flaps";
    case source_clean_wing:
        return "Clean wing";
    case source_empennage:
        return "Empennage";
    case source_nose_landing_gear:
        return "Nose landing gear";
    case source_main_landing_gear:
        return "Main landing gear";
    case source_other_landing_gear:
        return "Other landing gear";
    case source_inboard_cavity:
        return "Inboard cavity";
    case source_outboard_cavity:
        return "Outboard cavity";
    case source_extraneous_airframe:
        return "Extraneous airframe source";
    case source_nai:
        return "NAI";
    case source_spoiler:
        return "Spoiler";
    }
    return {};
}

std::vector<noise_component_t> get_source_components(source_type_t type) {
    switch (type) {
    case source_turbine:
    case source_fan_aft:
    case source_propeller:
    case source_compressor:
        return {component_broadband_noise, component_tones};
    case source_fan_forward:
        // The forward fan also radiates buzz-saw noise, listed after its tones.
        return {component_broadband_noise, component_tones, component_buzz_saw_noise};
    case source_cror_propellers:
        return {component_broadband_noise, component_forward_tones, component_aft_tones,
                component_interaction_tones};
    default:
        return {};
    }
}

bool is_global_decomposable_engine_source(source_type_t type) {
    return in_source_set(type, decomposable_engine_sources, source_compressor);
}

namespace VARNO {
namespace detail {

bool is_broadband_engine_source(source_type_t type) {
    return in_source_set(type, broadband_engine_sources, source_total_engine_pseudo_breakdown);
}

bool is_cror_engine_source(source_type_t type) {
    return type == source_cror_propellers;
}

} // namespace detail
} // namespace VARNO
