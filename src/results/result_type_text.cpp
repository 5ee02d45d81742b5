// Display texts of results, as result files print them.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <array>

namespace {

constexpr char const* unknown = "unknown";

struct component_text {
    noise_component_t component;
    char const* text;
};

// The texts of one engine source type. A type without component texts prints its one text for
// any component; a type with them prints "unknown" for a component it does not list.
struct engine_source_texts {
    source_type_t type;
    char const* whole;
    std::array<component_text, 4> components;
};

constexpr component_text none = {static_cast<noise_component_t>(0), nullptr};

constexpr std::array<engine_source_texts, 11> engine_texts = {{
    {source_jet, "Jet", {none, none, none, none}},
    {source_turbine,
     "Turbine",
     {{{component_broadband_noise, "Turbine - broadband"},
       {component_tones, "Turbine - tones"},
       none,
       none}}},
    {source_combustion, "Combustion", {none, none, none, none}},
    {source_fan_forward,
     "Fan forward",
     {{{component_broadband_noise, "Fan forward - broadband"},
       {component_buzz_saw_noise, "Fan forward - buzz-saw"},
       {component_tones, "Fan forward - interaction tones"},
       none}}},
    {source_fan_aft,
     "Fan aft",
     {{{component_broadband_noise, "Fan aft - broadband"},
       {component_tones, "Fan aft - interaction tones"},
       none,
       none}}},
    {source_residual, "Residual", {none, none, none, none}},
    {source_total_engine_propellers_excluded,
     "Total engine, propeller(s) excluded",
     {none, none, none, none}},
    {source_propeller,
     "Propeller",
     {{{component_broadband_noise, "Propeller - broadband"},
       {component_tones, "Propeller - tones"},
       none,
       none}}},
    {source_cror_propellers,
     "CROR propellers",
     {{{component_broadband_noise, "CROR propellers - broadband"},
       {component_forward_tones, "CROR forward propeller tones"},
       {component_aft_tones, "CROR aft propeller tones"},
       {component_interaction_tones, "CROR propellers - interaction tones"}}}},
    {source_compressor,
     "Compressor",
     {{{component_broadband_noise, "Compressor - broadband"},
       {component_tones, "Compressor - tones"},
       none,
       none}}},
    {source_total_engine_pseudo_breakdown,
     "Total engine (pseudo-breakdown input)",
     {{{component_jet, "Jet"},
       {component_residual, "Residual"},
       {component_tones, "Total engine tones (pseudo-breakdown output)"},
       none}}},
}};

// Airframe sources and totals by source type share most names, but not all: a total of
// clean wings is a wing total, and other landing gears total as the central gear.
struct source_type_texts {
    char const* airframe_source;
    char const* total;
};

constexpr std::array<source_type_texts, 24> source_type_text_table = {{
    {nullptr, "Jet (total)"},
    {nullptr, "Turbine (total)"},
    {nullptr, "Combustion (total)"},
    {nullptr, "Fan forward (total)"},
    {nullptr, nullptr},
    {nullptr, "Fan aft (total)"},
    {nullptr, "Residual (total)"},
    {nullptr, "Total engine, propeller(s) excluded (total)"},
    {nullptr, "Propeller (total)"},
    {nullptr, "CROR propellers (total)"},
    {nullptr, "Compressor (total)"},
    {nullptr, nullptr},
    {"Slats", "Slats (total)"},
    {"Flaps", "Flaps (total)"},
    {"Clean wing", "Wing (total)"},
    {"Empennage", "Empennage (total)"},
    {"Nose landing gear", "Nose landing gear (total)"},
    {"Main landing gear", "Main landing gear (total)"},
    {"Other landing gear", "Central landing gear (total)"},
    {"Inboard cavity", "Inboard cavity (total)"},
    {"Outboard cavity", "Outboard cavity (total)"},
    {"Extraneous airframe source", "Extraneous (total)"},
    {"NAI", "NAI (total)"},
    {"Spoiler", "Spoiler (total)"},
}};

constexpr std::array<char const*, 7> total_texts = {
    "Total engine", "Airfoil", "Total landing gear", "Total airframe", "Total aircraft",
    nullptr, // by source type, from the source type table
    "Engine"};

constexpr std::array<char const*, 3> genepass_texts = {
    "Total aircraft - broadband", "Total aircraft - tones", "Ground reflection"};

// The entry of a table at a value, or nullptr for a value outside it.
template <class Table>
auto const* entry_at(Table const& table, int value) {
    return value >= 0 && static_cast<std::size_t>(value) < table.size() ? &table[value] : nullptr;
}

std::string text_or_unknown(char const* text) {
    return text != nullptr ? text : unknown;
}

std::string engine_source_text(source_type_t type, bool whole, noise_component_t component) {
    for (engine_source_texts const& row : engine_texts) {
        if (row.type != type) {
            continue;
        }
        if (whole || row.components.front().text == nullptr) {
            return row.whole;
        }
        for (component_text const& entry : row.components) {
            if (entry.text != nullptr && entry.component == component) {
                return entry.text;
            }
        }
        return unknown;
    }
    return unknown;
}

std::string airframe_source_text(source_type_t type) {
    auto const* row = entry_at(source_type_text_table, type);
    return text_or_unknown(row != nullptr ? row->airframe_source : nullptr);
}

std::string total_text(total_type_t total, source_type_t type) {
    if (total == total_by_source_type) {
        auto const* row = entry_at(source_type_text_table, type);
        return text_or_unknown(row != nullptr ? row->total : nullptr);
    }
    auto const* text = entry_at(total_texts, total);
    return text_or_unknown(text != nullptr ? *text : nullptr);
}

std::string genepass_text(genepass_result_type_t type) {
    auto const* text = entry_at(genepass_texts, type);
    return text_or_unknown(text != nullptr ? *text : nullptr);
}

} // namespace

std::string result_type_t::to_string(boost::shared_ptr<simulation_t> simulation) const {
    if (engine_source) {
        return engine_source_text(simulation->aircraft->engine_sources[source_index]->type,
                                  whole_source, component);
    }
    if (airframe_source) {
        return airframe_source_text(simulation->aircraft->airframe_sources[source_index]->type);
    }
    if (total) {
        return total_text(total_type, source_type);
    }
    if (genepass) {
        return genepass_text(genepass_type);
    }
    return unknown;
}
