// The ray from the aircraft to the microphone: its geometry, the Doppler ratio of the tones and
// what spreading, the air and the ground do to each third-octave band.
#include "aircraft_sound.hpp"

#include <algorithm>
#include <cmath>

namespace {

// Grazing angle (degrees) and length (m) of the ray reflected at the ground: it comes from the
// source's image below the ground.
void reflected_ray(double horizontal, double source_z, double microphone_height,
                   double* grazing_angle, double* length) {
    double const rise = source_z + microphone_height;
    *grazing_angle = degrees(std::atan2(rise, horizontal));
    *length = std::hypot(horizontal, rise);
}

} // namespace

propagation_path_t trace_path(ray_geometry_t const& ray,
                              boost::shared_ptr<common_all_sources_transposition_t> ground,
                              boost::shared_ptr<ambient_conditions_t> ambient) {
    // Wings level and heading along +x, the nose on the flight path: no roll, heading or attack.
    double const pitch = ray.path_angle;
    double const height = ray.microphone_height;
    double const horizontal =
        std::hypot(ray.source_x - ray.observer_x, ray.source_y - ray.observer_y);
    propagation_path_t path;
    path.distance = std::hypot(horizontal, ray.source_z - height);
    double to_path = 0.0;
    double to_body = 0.0;
    Calc_EmissionAngle(pitch, ray.path_angle, 0.0, 0.0, 0.0, ray.source_x, ray.source_y,
                       ray.source_z, ray.observer_x, ray.observer_y, 0.0, height,
                       &path.emission_angle, &to_path, &to_body);
    double doppler_angle = 0.0;
    Calc_DopplerAngle(pitch, 0.0, 0.0, 0.0, ray.source_x, ray.source_y, ray.source_z,
                      ray.observer_x, ray.observer_y, 0.0, height, &doppler_angle);
    path.doppler_ratio = 1.0 / (1.0 - ray.mach * std::cos(doppler_angle));

    auto const absorption = spectrum_t::create_tob();
    VARNO::TrrApi::AtmAbsCoefficients(atm_abs_arp866, path.distance, ambient, absorption);

    double grazing_angle = 0.0;
    double reflected_length = 0.0;
    reflected_ray(horizontal, ray.source_z, height, &grazing_angle, &reflected_length);
    path.gain = spectrum_t::create_tob();
    auto const phase = spectrum_t::create_tob();
    double delay = 0.0;
    // The speed of sound of an ideal gas with the heat capacity ratio and gas constant of air.
    double const sound_speed = std::sqrt(1.4 * 287.05 * ambient->temperature);
    Calc_GroundReflectionEffect(ground, ambient, path.distance, reflected_length, sound_speed,
                                grazing_angle, path.gain, phase, &delay);
    double const divergence = VARNO::TrrApi::SphericalDivergence(path.distance, 1.0);
    for (std::size_t i = 0; i < path.gain->values.size(); ++i) {
        path.gain->at(i) += divergence - absorption->at(i);
    }
    return path;
}

void apply_path(propagation_path_t const& path, boost::shared_ptr<spectrum_t> spectrum) {
    for (std::size_t i = 0; i < spectrum->values.size(); ++i) {
        double& level = spectrum->at(i);
        if (level > 0.0) {
            level = std::max(level + path.gain->at(i), 0.0);
        }
    }
}
