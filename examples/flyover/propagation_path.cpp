// The ray from the aircraft to the microphone: its geometry, the Doppler ratio of the tones and
// what spreading, the air and the ground do to each third-octave band.
#include "pieces.hpp"

#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

// Grazing angle (degrees) and length (m) of the ray reflected at the ground: it comes from the
// source's image below the ground.
void reflected_ray(double x, double altitude, double microphone_height, double* grazing_angle,
                   double* length) {
    double const rise = altitude + microphone_height;
    *grazing_angle = std::atan2(rise, std::fabs(x)) * 180.0 / pi;
    *length = std::hypot(x, rise);
}

} // namespace

propagation_path_t trace_path(flyover_options_t const& options, double x,
                              boost::shared_ptr<simulation_t> simulation,
                              boost::shared_ptr<ambient_conditions_t> ambient) {
    // Level flight along +x, wings level: pitch, path angle, heading, roll and attack are 0.
    double const z = options.altitude;
    double const height = options.microphone_height;
    propagation_path_t path;
    path.distance = std::hypot(x, z - height);
    double to_path = 0.0;
    double to_body = 0.0;
    Calc_EmissionAngle(0.0, 0.0, 0.0, 0.0, 0.0, x, 0.0, z, 0.0, 0.0, 0.0, height,
                       &path.emission_angle, &to_path, &to_body);
    double doppler_angle = 0.0;
    Calc_DopplerAngle(0.0, 0.0, 0.0, 0.0, x, 0.0, z, 0.0, 0.0, 0.0, height, &doppler_angle);
    path.doppler_ratio = 1.0 / (1.0 - options.mach * std::cos(doppler_angle));

    auto const absorption = spectrum_t::create_tob();
    VARNO::TrrApi::AtmAbsCoefficients(atm_abs_arp866, path.distance, ambient, absorption);

    double grazing_angle = 0.0;
    double reflected_length = 0.0;
    reflected_ray(x, z, height, &grazing_angle, &reflected_length);
    path.gain = spectrum_t::create_tob();
    auto const phase = spectrum_t::create_tob();
    double delay = 0.0;
    // The speed of sound of an ideal gas with the heat capacity ratio and gas constant of air.
    double const sound_speed = std::sqrt(1.4 * 287.05 * ambient->temperature);
    Calc_GroundReflectionEffect(simulation->tsour->transposition_options->common_all_sources,
                                ambient, path.distance, reflected_length, sound_speed,
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
