// What kind of noise a result holds, from the source it names in the aircraft.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "vocabulary/source_catalogue.hpp"

namespace {

// The type of the engine source that a result names: the aircraft's own source, whatever
// source type the result was created with.
source_type_t engine_source_type(aircraft_t const& aircraft, int index) {
    return aircraft.engine_sources[index]->type;
}

} // namespace

bool result_type_t::is_broadband_engine_source(boost::shared_ptr<simulation_t> simulation) const {
    return engine_source && whole_source &&
           VARNO::detail::is_broadband_engine_source(
               engine_source_type(*simulation->aircraft, source_index));
}

bool result_type_t::is_tonal_engine_source(boost::shared_ptr<simulation_t>) const {
    // Tones always come as components of a decomposable source.
    return false;
}

bool result_type_t::is_cror_engine_source(boost::shared_ptr<simulation_t> simulation) const {
    // Components of an open rotor qualify as well as the whole source.
    return engine_source && VARNO::detail::is_cror_engine_source(
                                engine_source_type(*simulation->aircraft, source_index));
}

bool result_type_t::is_global_decomposable_engine_source(
    boost::shared_ptr<aircraft_t> aircraft) const {
    return engine_source && whole_source &&
           ::is_global_decomposable_engine_source(engine_source_type(*aircraft, source_index));
}

bool result_type_t::is_broadband_component_of_decomposable_engine_source(
    boost::shared_ptr<simulation_t>) const {
    return component == component_broadband_noise;
}

bool result_type_t::is_tonal_component_of_decomposable_engine_source(
    boost::shared_ptr<simulation_t>) const {
    return component == component_buzz_saw_noise ||
           (component >= component_tones && component <= component_haystack_noise);
}

bool result_type_t::is_pure_broadband(boost::shared_ptr<simulation_t> simulation) const {
    return is_airframe_source() || is_broadband_engine_source(simulation) ||
           is_broadband_component_of_decomposable_engine_source(simulation);
}

bool result_type_t::is_pure_tones(boost::shared_ptr<simulation_t> simulation) const {
    return is_tonal_component_of_decomposable_engine_source(simulation) ||
           is_tonal_engine_source(simulation);
}

bool result_type_t::is_mixed_broadband_tones(boost::shared_ptr<aircraft_t> aircraft) const {
    // total_type is -1 on everything but totals, so it needs no test of `total`.
    return total_type == total_aircraft || is_global_decomposable_engine_source(aircraft);
}
