// The flyover calculation: for each calculation point, each source's spectrum is made, carried
// along the ray to the microphone and added into the totals of the result tree; the history of
// the total aircraft is then integrated into the flight's indicators.
#include "pieces.hpp"

#include <algorithm>

namespace {

using point_ptr = boost::shared_ptr<directional_result_point_t>;

// Adds a spectrum by energy into the third-octave total of `type` at a point, when the point
// has that total (a source type with one source is its own total).
void add_into(point_ptr const& point, boost::shared_ptr<result_type_t> const& type,
              boost::shared_ptr<spectrum_t> const& spectrum) {
    if (auto const record = point->find(type)) {
        spectrum_t::log_add(record->total_tob, spectrum, record->total_tob);
    }
}

void store(boost::shared_ptr<directional_result_noise_t> const& record,
           boost::shared_ptr<spectrum_t> const& spectrum) {
    record->total_tob->values = spectrum->values;
    record->total_tob->tones = spectrum->tones;
}

bool is_landing_gear(source_type_t type) {
    return type == source_main_landing_gear || type == source_nose_landing_gear;
}

struct point_calculation {
    boost::shared_ptr<simulation_t> simulation;
    boost::shared_ptr<frequency_range_t> fan_grid;
    engine_power_t power;
    propagation_path_t path;
    point_ptr point;
    double fan_tone_received = 0.0;

    // A fan keeps its narrowband source spectrum in the whole source's first group, which the
    // results file stores, and its broadband and tone parts as the source's components.
    void keep_fan_parts(source_type_t type, int index, heard_source_t const& heard) {
        point
            ->find(result_type_t::create_engine_source(type, index, true,
                                                       static_cast<noise_component_t>(0)))
            ->first_native->values = heard.narrowband->values;
        store(point->find(result_type_t::create_engine_source_component(type, index,
                                                                        component_broadband_noise)),
              heard.broadband);
        store(point->find(
                  result_type_t::create_engine_source_component(type, index, component_tones)),
              heard.tones);
        fan_tone_received = heard.fan_tone_received;
    }

    void engine_source(source_t const& source, int index) {
        heard_source_t const heard = hear_source(source.type, path, power, fan_grid);
        if (is_fan(source.type)) {
            keep_fan_parts(source.type, index, heard);
        }
        store(point->find(result_type_t::create_engine_source(source.type, index, true,
                                                              static_cast<noise_component_t>(0))),
              heard.whole);
        add_into(point, result_type_t::create_total_by_source_type(source.type), heard.whole);
        add_into(point, result_type_t::create_total_engine(), heard.whole);
        add_into(point, result_type_t::create_total_aircraft(), heard.whole);
    }

    void airframe_source(source_t const& source, int index) {
        auto const heard = hear_source(source.type, path, power, fan_grid).whole;
        store(point->find(result_type_t::create_airframe_source(source.type, index)), heard);
        add_into(point, result_type_t::create_total_by_source_type(source.type), heard);
        add_into(point,
                 is_landing_gear(source.type) ? result_type_t::create_total_landing_gear()
                                              : result_type_t::create_total_airfoil(),
                 heard);
        add_into(point, result_type_t::create_total_airframe(), heard);
        add_into(point, result_type_t::create_total_aircraft(), heard);
    }

    void run() {
        auto const& aircraft = *simulation->aircraft;
        for (std::size_t i = 0; i < aircraft.engine_sources.size(); ++i) {
            engine_source(*aircraft.engine_sources[i], static_cast<int>(i));
        }
        for (std::size_t i = 0; i < aircraft.airframe_sources.size(); ++i) {
            airframe_source(*aircraft.airframe_sources[i], static_cast<int>(i));
        }
    }
};

// The microphone at the origin hears the aircraft level at `x` along the track.
ray_geometry_t ray_from(flyover_options_t const& options, double x) {
    ray_geometry_t ray;
    ray.source_x = x;
    ray.source_z = options.altitude;
    ray.mach = options.mach;
    ray.microphone_height = options.microphone_height;
    return ray;
}

double loudest_band(spectrum_t const& spectrum) {
    auto const loudest = std::max_element(spectrum.values.begin(), spectrum.values.end());
    // Grid index 0 is band 17, the 50 Hz band, the 17th entry of the nominal table.
    return tob_fc_nominal[16 + (loudest - spectrum.values.begin())];
}

} // namespace

flyover_t run_flyover(flyover_options_t const& options) {
    flyover_t flyover;
    engine_power_t const power = approach_power();
    flyover.fan_blade_passing_frequency = power.blade_passing_frequency();
    auto const fan_grid = make_fan_grid();
    flyover.simulation = build_flyover_simulation(options, fan_grid);
    auto const air = standard_air();
    double speed = 0.0;
    double mach = options.mach;
    Calc_Speed(&speed, &mach, 0.0, options.altitude, air->temperature);

    std::size_t const count = options.point_count;
    flyover.time_step = options.duration / static_cast<double>(count - 1);
    std::vector<boost::shared_ptr<spectrum_t>> history;
    std::vector<double> emission_angles;
    for (std::size_t k = 0; k < count; ++k) {
        double const time = -0.5 * options.duration + static_cast<double>(k) * flyover.time_step;
        flyover.simulation->calculation_points[k]->omnidir->position = speed * time;
        point_calculation calculation{
            flyover.simulation, fan_grid, power,
            trace_path(ray_from(options, speed * time),
                       flyover.simulation->tsour->transposition_options->common_all_sources, air),
            flyover.simulation->result->points[k]->directional};
        calculation.run();

        flyover_sample_t sample;
        sample.time = time;
        sample.distance = calculation.path.distance;
        sample.emission_angle = calculation.path.emission_angle;
        sample.doppler_ratio = calculation.path.doppler_ratio;
        sample.fan_tone_received = calculation.fan_tone_received;
        sample.total = calculation.point->total_aircraft->total_tob;
        sample.loudest_band = loudest_band(*sample.total);
        history.push_back(sample.total);
        emission_angles.push_back(sample.emission_angle);
        flyover.samples.push_back(sample);
    }

    flyover.metrics = Calc_TimeHistoryMetrics(history, flyover.time_step);
    Calc_FillIndicators(history, flyover.time_step,
                        flyover.simulation->result->global->total_aircraft, emission_angles);
    for (std::size_t k = 0; k < count; ++k) {
        flyover.samples[k].oaspl = flyover.metrics.oaspl[k];
        flyover.samples[k].la = flyover.metrics.dba[k];
        flyover.samples[k].pnlt = flyover.metrics.perceived.pnlt[k];
    }
    return flyover;
}
