// Defaults of the transposition options.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

namespace {

bool is_airframe_source_type(source_type_t type) {
    return type >= source_slats && type <= source_spoiler;
}

// No source type: none of the per-type defaults applies.
constexpr auto no_source_type = static_cast<source_type_t>(-1);

constexpr int source_type_count = 24;

} // namespace

single_source_transposition_t::single_source_transposition_t(source_type_t type) {
    if (type == source_jet) {
        source_option_3 = 1;
        source_option_4 = 1;
        source_flag_7 = false;
        source_flag_8 = true;
        source_distance = 10.0;
    } else if (type == source_fan_forward || type == source_fan_forward_buzz_saw) {
        source_distance = 0.0;
    } else if (type == source_fan_aft) {
        source_distance = 40.0;
    } else if (is_airframe_source_type(type)) {
        source_flag_6 = false;
        source_flag_7 = false;
        source_distance = 40.0;
    }
}

total_aircraft_transposition_t::total_aircraft_transposition_t()
    : single_source_transposition_t(no_source_type) {}

default_transposition_options_t::default_transposition_options_t()
    : total_aircraft(boost::make_shared<total_aircraft_transposition_t>())
    , common_all_sources(boost::make_shared<common_all_sources_transposition_t>()) {
    for (int value = 0; value < source_type_count; ++value) {
        auto const type = static_cast<source_type_t>(value);
        single_sources[type] = boost::make_shared<single_source_transposition_t>(type);
    }
}
