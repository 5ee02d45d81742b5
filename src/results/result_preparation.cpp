// Preparation of the result tree of a simulation: which records exist for which sources, on
// which grids, before the calculation libraries fill them.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

#include <array>
#include <map>

namespace {

using range_ptr = boost::shared_ptr<frequency_range_t>;
using type_ptr = boost::shared_ptr<result_type_t>;
using source_count_t = std::map<source_type_t, int>;

// The components into which a total engine is broken down when its engine gives it as a
// pseudo-breakdown.
constexpr std::array<noise_component_t, 3> pseudo_breakdown_components = {
    component_jet, component_residual, component_tones};

// A global pass needs the broadband and the tones of every decomposable source.
constexpr std::array<noise_component_t, 2> global_pass_components = {component_broadband_noise,
                                                                     component_tones};

// The narrowband grid of the ground reflection of a global pass: 25 Hz to 11.2 kHz by 5 Hz.
range_ptr ground_reflection_range() {
    return frequency_range_t::create_nb(25.0, 11200.0, 5.0);
}

// The provider's grid for a source's noise at a point; no answer means third-octave bands.
range_ptr range_or_tob(range_ptr const& range) {
    return range ? range : tob_frequency_range_ptr;
}

boost::shared_ptr<directional_result_noise_t>
directional(type_ptr const& type, range_ptr const& range, bool option_flag) {
    return boost::make_shared<directional_result_noise_t>(type, range, range, option_flag);
}

boost::shared_ptr<integrated_noise_indicators_t> integrated(type_ptr const& type) {
    return boost::make_shared<integrated_noise_indicators_t>(type);
}

// The identity of a whole engine source, which names no component.
type_ptr whole_engine_source(source_type_t type, int index) {
    return result_type_t::create_engine_source(type, index, true,
                                               static_cast<noise_component_t>(0));
}

bool has_pseudo_breakdown(engine_t const& engine) {
    return (engine.value_type & engine_t::pseudo_breakdown_bit) != 0;
}

// One preparation pass over a simulation whose result tree has just been made empty.
struct preparation {
    simulation_t& simulation;
    range_provider_t& range_provider;
    bool global_pass; // the genePass way

    aircraft_t& aircraft() const { return *simulation.aircraft; }
    directional_result_t& global() const { return *simulation.result->global; }
    std::vector<boost::shared_ptr<result_point_t>>& points() const {
        return simulation.result->points;
    }

    // A record of `make()` in the global result and, on third-octave bands, at every point.
    template <class TypeFactory>
    void prepare_slot(TypeFactory make) const {
        global().create(make());
        for (auto const& point : points()) {
            point->directional->create(make(), tob_frequency_range_ptr, tob_frequency_range_ptr,
                                       true);
        }
    }

    void prepare_totals_by_source_type(source_count_t const& source_count) const {
        for (auto const& counted : source_count) {
            // A type with a single source is its own total.
            if (counted.second > 1) {
                prepare_slot(
                    [&] { return result_type_t::create_total_by_source_type(counted.first); });
            }
        }
    }

    void prepare_engine_sources() const {
        source_count_t source_count;
        for (std::size_t i = 0; i < aircraft().engine_sources.size(); ++i) {
            if (aircraft().engine_sources[i]->active) {
                prepare_engine_source(static_cast<int>(i), source_count);
            }
        }
        prepare_totals_by_source_type(source_count);
        prepare_slot(&result_type_t::create_total_engine);
    }

    void prepare_engine_source(int index, source_count_t& source_count) const {
        source_t const& source = *aircraft().engine_sources[index];
        prepare_integrated_engine_source(source, index, source_count);

        // A global pass shares one identity of the whole source between all points.
        type_ptr const shared_whole =
            global_pass ? whole_engine_source(source.type, index) : type_ptr();
        bool const add_global_pass_components =
            shared_whole && shared_whole->is_global_decomposable_engine_source(simulation.aircraft);
        for (std::size_t j = 0; j < points().size(); ++j) {
            prepare_engine_source_at_point(source, index, j, shared_whole,
                                           add_global_pass_components);
        }
    }

    // Globally an engine given as a pseudo-breakdown has no whole source and is not counted;
    // its total engine source has the breakdown components alone.
    void prepare_integrated_engine_source(source_t const& source, int index,
                                          source_count_t& source_count) const {
        auto indicators = boost::make_shared<integrated_engine_source_noise_indicators_t>();
        global().engine_sources[index] = indicators;
        if (!has_pseudo_breakdown(*aircraft().engines[source.engine_index])) {
            indicators->whole = integrated(whole_engine_source(source.type, index));
            for (auto const& component : source.components) {
                indicators->components[component.first] =
                    integrated(result_type_t::create_engine_source_component(source.type, index,
                                                                             component.first));
            }
            ++source_count[source.type];
        } else if (source.type == source_total_engine_pseudo_breakdown) {
            for (noise_component_t component : pseudo_breakdown_components) {
                indicators->components[component] = integrated(
                    result_type_t::create_engine_source_component(source.type, index, component));
            }
        }
    }

    void prepare_engine_source_at_point(source_t const& source, int index, std::size_t point,
                                        type_ptr const& shared_whole,
                                        bool add_global_pass_components) const {
        auto entry = boost::make_shared<directional_engine_source_result_noise_t>();
        points()[point]->directional->engine_sources[index] = entry;

        range_ptr const whole_range = source.noise
                                          ? range_or_tob(range_provider(source.noise, point))
                                          : tob_frequency_range_ptr;
        type_ptr const whole_type =
            shared_whole ? shared_whole : whole_engine_source(source.type, index);
        entry->whole = directional(whole_type, whole_range, true);

        for (auto const& component : source.components) {
            range_ptr const range = range_or_tob(range_provider(component.second, point));
            entry->components[component.first] = directional(
                result_type_t::create_engine_source_component(source.type, index, component.first),
                range, true);
        }
        if (add_global_pass_components) {
            for (noise_component_t component : global_pass_components) {
                // A component the source gives keeps its own grid.
                if (entry->components.count(component) == 0) {
                    entry->components[component] =
                        directional(result_type_t::create_engine_source_component(source.type,
                                                                                  index, component),
                                    tob_frequency_range_ptr, false);
                }
            }
        }
        // The pseudo-breakdown of a total engine is prepared whatever its engine says.
        if (source.type == source_total_engine_pseudo_breakdown) {
            for (noise_component_t component : pseudo_breakdown_components) {
                entry->components[component] = directional(
                    result_type_t::create_engine_source_component(source.type, index, component),
                    tob_frequency_range_ptr, true);
            }
        }
    }

    void prepare_airframe_sources() const {
        source_count_t source_count;
        // Every airframe source is prepared, active or not.
        for (std::size_t i = 0; i < aircraft().airframe_sources.size(); ++i) {
            source_type_t const type = aircraft().airframe_sources[i]->type;
            int const index = static_cast<int>(i);
            prepare_slot([&] { return result_type_t::create_airframe_source(type, index); });
            ++source_count[type];
        }
        if (!global_pass) {
            // Other landing gears are never totalled by type, however many there are.
            source_count.erase(source_other_landing_gear);
            prepare_totals_by_source_type(source_count);
        }
        prepare_slot(&result_type_t::create_total_airfoil);
        prepare_slot(&result_type_t::create_total_landing_gear);
        prepare_slot(&result_type_t::create_total_airframe);
    }

    void prepare_ground_reflection() const {
        auto const type = [] { return result_type_t::create_genepass(genepass_ground_reflection); };
        global().create(type());
        range_ptr const range = ground_reflection_range();
        for (auto const& point : points()) {
            point->directional->create(type(), range, range, false);
        }
    }

    void prepare() const {
        simulation.create_result();
        if (simulation.tsour->engine_sources_enabled) {
            prepare_engine_sources();
        }
        if (simulation.tsour->airframe_sources_enabled) {
            prepare_airframe_sources();
        }
        prepare_slot(&result_type_t::create_total_aircraft);
        if (global_pass) {
            prepare_ground_reflection();
        }
    }
};

} // namespace

void simulation_t::create_result() {
    result = boost::make_shared<result_t>();
    for (std::size_t i = 0; i < calculation_points.size(); ++i) {
        result->points.push_back(boost::make_shared<result_point_t>(aircraft));
    }
    result->global = boost::make_shared<directional_result_t>(aircraft);
}

void simulation_t::clear_results() {
    result.reset();
}

void simulation_t::prepare_noise_sources_results(range_provider_t& range_provider) {
    if (second_switch) {
        prepare_noise_sources_results_genePass(range_provider);
    } else {
        prepare_noise_sources_results_classic(range_provider);
    }
}

void simulation_t::prepare_noise_sources_results_classic(range_provider_t& range_provider) {
    preparation{*this, range_provider, false}.prepare();
}

void simulation_t::prepare_noise_sources_results_genePass(range_provider_t& range_provider) {
    preparation{*this, range_provider, true}.prepare();
}

void simulation_t::prepare_integrated_aircraft_results() {
    create_result();
    for (auto const& point : result->points) {
        point->directional->create(result_type_t::create_total_aircraft(), tob_frequency_range_ptr,
                                   tob_frequency_range_ptr, true);
    }
    if (!second_switch) {
        return;
    }
    // All points share one ground grid and one (empty) grid of discrete tones.
    range_ptr const ground_range = ground_reflection_range();
    range_ptr const tone_range = frequency_range_t::create_dt(0);
    for (auto const& point : result->points) {
        directional_result_point_t& directional = *point->directional;
        directional.create(result_type_t::create_genepass(genepass_total_aircraft_broadband),
                           tob_frequency_range_ptr, tob_frequency_range_ptr, false);
        directional.create(result_type_t::create_genepass(genepass_total_aircraft_tones),
                           tob_frequency_range_ptr, tone_range, false);
        directional.create(result_type_t::create_genepass(genepass_ground_reflection), ground_range,
                           ground_range, false);
    }
}

void simulation_t::clear_directional_results() {
    // A result made for other points is not this run's: it is left as it is.
    if (!result || result->points.size() != calculation_points.size()) {
        return;
    }
    for (auto const& point : result->points) {
        point->directional->clear_values();
    }
    result->global->clear_values();
}
