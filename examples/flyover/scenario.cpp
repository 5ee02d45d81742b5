// The scenario of the flyover: the examples' aircraft and its noise sources calculation, with
// calculation points and a result tree prepared for them.
#include "pieces.hpp"

#include <set>

boost::shared_ptr<simulation_t>
build_flyover_simulation(flyover_options_t const& options,
                         boost::shared_ptr<frequency_range_t> fan_grid) {
    auto const simulation = build_aircraft_simulation(options.ground);
    simulation->create_calculation_points(options.point_count);

    // The fan models work on a narrowband grid, and the whole fan keeps its narrowband source
    // spectrum; its components and every other source are held on third-octave bands.
    std::set<source_noise_t const*> fan_noise;
    for (auto const& source : simulation->aircraft->engine_sources) {
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
