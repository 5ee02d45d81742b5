// The scenario of the flyover: a two-engine aircraft and a noise sources calculation, as a
// calculation library would build it before running its models.
#include "pieces.hpp"

#include <boost/make_shared.hpp>

#include <set>

namespace {

// A source whose noise is given as a whole and, for the fans, by component.
boost::shared_ptr<source_t> make_source(source_type_t type, int engine_index) {
    auto const source = boost::make_shared<source_t>(type);
    source->engine_index = engine_index;
    source->noise = boost::make_shared<source_noise_t>();
    for (noise_component_t component : get_source_components(type)) {
        // The forward fan's buzz-saw noise belongs to supersonic fan tips, not to an approach.
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

bool is_fan(source_type_t type) {
    return type == source_fan_forward || type == source_fan_aft;
}

} // namespace

boost::shared_ptr<frequency_range_t> make_fan_grid() {
    return frequency_range_t::create_nb(25.0, 11200.0, 25.0);
}

boost::shared_ptr<simulation_t>
build_flyover_simulation(flyover_options_t const& options,
                         boost::shared_ptr<frequency_range_t> fan_grid) {
    environment_t environment;
    auto const aircraft = make_aircraft(environment);
    auto const calculation = environment.add_tsour_calculation();
    calculation->transposition_options->common_all_sources->ground_reflection_method =
        options.ground;
    auto const simulation = environment.add_tsour_simulation(aircraft, calculation);
    simulation->create_calculation_points(options.point_count);

    // The fan models work on a narrowband grid, and the whole fan keeps its narrowband source
    // spectrum; its components and every other source are held on third-octave bands.
    std::set<source_noise_t const*> fan_noise;
    for (auto const& source : aircraft->engine_sources) {
        if (is_fan(source->type)) {
            fan_noise.insert(source->noise.get());
        }
    }
    range_provider_t range_provider = [&](boost::shared_ptr<source_noise_t> noise, std::size_t) {
        return fan_noise.count(noise.get()) != 0 ? fan_grid
                                                 : boost::shared_ptr<frequency_range_t>();
    };
    simulation->prepare_noise_sources_results(range_provider);
    return simulation;
}
