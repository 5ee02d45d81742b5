// The examples' aircraft, a two-engine airliner with its engine and airframe sources, joined to a
// noise sources calculation as a calculation library would build it before running its models;
// and the air it flies in.
#include "aircraft_sound.hpp"

#include <boost/make_shared.hpp>

namespace {

// A source whose noise is given as a whole and, for the fans, by component.
boost::shared_ptr<source_t> make_source(source_type_t type, int engine_index) {
    auto const source = boost::make_shared<source_t>(type);
    source->engine_index = engine_index;
    source->noise = boost::make_shared<source_noise_t>();
    for (noise_component_t component : get_source_components(type)) {
        // The forward fan's buzz-saw noise belongs to supersonic fan tips, which the made-up
        // fan spectra do not model.
        if (component != component_buzz_saw_noise) {
            source->components[component] = boost::make_shared<source_noise_t>();
        }
    }
    return source;
}

boost::shared_ptr<aircraft_t> make_aircraft(environment_t& environment) {
    auto const aircraft = environment.add_aircraft();
    for (int engine = 0; engine < 2; ++engine) {
        aircraft->engines.push_back(boost::make_shared<engine_t>(engine));
        for (source_type_t type : {source_jet, source_fan_forward, source_fan_aft}) {
            aircraft->engine_sources.push_back(make_source(type, engine));
        }
    }
    for (source_type_t type : {source_slats, source_flaps, source_main_landing_gear,
                               source_main_landing_gear, source_nose_landing_gear}) {
        aircraft->airframe_sources.push_back(make_source(type, 0));
    }
    return aircraft;
}

} // namespace

boost::shared_ptr<simulation_t> build_aircraft_simulation(ground_reflection_method_t ground) {
    environment_t environment;
    auto const aircraft = make_aircraft(environment);
    auto const calculation = environment.add_tsour_calculation();
    calculation->transposition_options->common_all_sources->ground_reflection_method = ground;
    return environment.add_tsour_simulation(aircraft, calculation);
}

boost::shared_ptr<frequency_range_t> make_fan_grid() {
    return frequency_range_t::create_nb(25.0, 11200.0, 25.0);
}

bool is_fan(source_type_t type) {
    return type == source_fan_forward || type == source_fan_aft;
}

// Humid enough for the absorption to be moderate.
boost::shared_ptr<ambient_conditions_t> standard_air() {
    auto const air = boost::make_shared<ambient_conditions_t>();
    air->temperature = 288.15;
    air->pressure = 101325.0;
    air->relative_humidity = 70.0;
    return air;
}
