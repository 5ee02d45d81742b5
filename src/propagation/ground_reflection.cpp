// Two-ray ground reflection: the reflection of each band by the chosen ground model, the
// interference of the reflected ray with the direct one averaged over the band, and their sum.

#include <calc-common/frame.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>

#include "frame/numeric_helpers.hpp"
#include "propagation/ground_impedance.hpp"

#include <boost/format.hpp>

#include <algorithm>
#include <cmath>
#include <complex>
#include <vector>

using namespace VARNO::detail;

namespace {

constexpr double two_pi = 2.0 * pi;

// Averaged over a third-octave band, from fc*2^(-1/6) to fc*2^(1/6), the interference
// cos(2 pi lag f/fc + phase) of a lag in wavelengths at the centre fc becomes
// cos(lag * centre_phase + phase) * sin(lag * spread_phase) / (lag * spread_phase), with the
// two phases per wavelength below, in the six figures the band average is known by.
constexpr double centre_phase = 6.32516; // 2 pi (2^(1/6) + 2^(-1/6)) / 2
constexpr double spread_phase = 0.72748; // pi (2^(1/6) - 2^(-1/6))

// Working storage of the bands, one per thread. It survives between calls so that a run over
// many time steps and observers allocates nothing once it has grown to the largest grid.
struct ground_working_storage {
    std::vector<double> reflection;   // magnitude of the reflection coefficient
    std::vector<double> interference; // band-averaged interference factor

    void prepare(std::size_t count) {
        reflection.resize(count);
        interference.resize(count);
    }
};

ground_working_storage& working_storage() {
    thread_local ground_working_storage storage;
    return storage;
}

bool is_known_ground(ground_reflection_method_t method) {
    return method >= ground_perfect && method <= ground_slit_pore_user_defined;
}

// Geometry of the two rays for one call.
struct ray_geometry {
    double path_difference; // m, reflected minus direct
    double grazing_deg;
    double grazing_rad;
};

// Magnitude and phase of the complex reflection coefficient `coefficient_at(f)` of each band.
template <class Coefficient>
void store_reflections(frequency_range_t const& grid, Coefficient coefficient_at,
                       std::vector<double>& reflection, spectrum_t& phase) {
    for (std::size_t i = 0; i < reflection.size(); ++i) {
        std::complex<double> const coefficient = coefficient_at(grid(i));
        reflection[i] = std::abs(coefficient);
        phase.values[i] = std::atan2(coefficient.imag(), coefficient.real());
    }
}

// Reflection of every band of `grid` by the ground of `options`, magnitude and phase.
void compute_reflection(common_all_sources_transposition_t const& options,
                        air_properties const& air, ray_geometry const& rays,
                        frequency_range_t const& grid, std::vector<double>& reflection,
                        spectrum_t& phase) {
    ground_reflection_method_t const method = options.ground_reflection_method;
    switch (method) {
    case ground_perfect:
        std::fill(reflection.begin(), reflection.end(), 1.0);
        std::fill(phase.values.begin(), phase.values.begin() + reflection.size(), 0.0);
        return;
    case ground_certification_sae_air1672b:
        for (std::size_t i = 0; i < reflection.size(); ++i) {
            reflection[i] = certification_ground_reflection(grid(i), i);
            phase.values[i] = 0.0;
        }
        return;
    case ground_delany_bazley_certification:
    case ground_delany_bazley_grass:
    case ground_delany_bazley_asphalt:
    case ground_delany_bazley_user_defined: {
        bool const user_defined = method == ground_delany_bazley_user_defined;
        double const sigma =
            user_defined ? options.ground_flow_resistivity : Calc_DelanyBazleySigma(method);
        double const thickness = user_defined ? options.ground_layer_thickness * 0.001
                                              : Calc_DelanyBazleyThickness(sigma);
        store_reflections(
            grid,
            [&](double f) {
                return delany_bazley_layer_reflection(f, sigma, thickness, rays.grazing_rad, air);
            },
            reflection, phase);
        return;
    }
    case ground_attenborough_user_defined:
        store_reflections(
            grid,
            [&](double f) {
                return attenborough_reflection(f, options.attenborough_porosity_rate,
                                               options.attenborough_flow_resistivity,
                                               rays.grazing_rad, air);
            },
            reflection, phase);
        return;
    case ground_slit_pore_user_defined:
        store_reflections(
            grid,
            [&](double f) {
                return slit_pore_reflection(f, options.slit_pore_porosity,
                                            options.slit_pore_flow_resistivity, rays.grazing_deg,
                                            air);
            },
            reflection, phase);
        return;
    }
}

// Interference of the reflected ray with the direct one, averaged over the width of each band:
// by the third-octave band average on the shared third-octave grid, by the average over a
// constant bandwidth on a narrowband grid, and not at all on a listed grid.
void compute_interference(boost::shared_ptr<frequency_range_t> const& range,
                          ray_geometry const& rays, air_properties const& air, double sound_speed,
                          std::vector<double>& interferences, spectrum_t const& phase) {
    double const path_difference = rays.path_difference;
    bool const same_length = tolerantly_equal(path_difference, 0.0);
    bool const third_octave = range.get() == tob_frequency_range_ptr.get();
    bool const uniform_step = tolerantly_above(range->df, 0.0);
    double const bandwidth_phase = (path_difference * pi * range->df) / sound_speed;
    double const bandwidth_average = std::sin(bandwidth_phase) / bandwidth_phase;
    for (std::size_t i = 0; i < interferences.size(); ++i) {
        double const wavelength = air.sound_speed / (*range)(i);
        double const lag = path_difference / wavelength; // in wavelengths
        double const reflection_phase = phase.values[i];
        double& interference = interferences[i];
        if (same_length) {
            interference = std::cos(reflection_phase);
        } else if (third_octave) {
            interference = std::cos(lag * centre_phase + reflection_phase) *
                           (std::sin(lag * spread_phase) / (lag * spread_phase));
        } else if (uniform_step) {
            interference = bandwidth_average * std::cos(lag * two_pi + reflection_phase);
        } else {
            interference = std::cos(lag * two_pi + reflection_phase);
        }
    }
}

} // namespace

void Calc_GroundReflectionEffect(boost::shared_ptr<common_all_sources_transposition_t> options,
                                 boost::shared_ptr<ambient_conditions_t> ambient,
                                 double direct_distance, double reflected_distance,
                                 double sound_speed, double grazing_angle,
                                 boost::shared_ptr<spectrum_t> effect,
                                 boost::shared_ptr<spectrum_t> phase, double* delay) {
    double const path_difference = reflected_distance - direct_distance;
    // Near the source, or with rays of one length, the reflected ray arrives in phase and
    // doubles the pressure.
    if (direct_distance < 1.0 || std::fabs(path_difference / direct_distance) < 1e-10) {
        effect->fill_with(6.0);
        return;
    }
    boost::shared_ptr<frequency_range_t> const& range = effect->frequency_range;
    ground_working_storage& storage = working_storage();
    storage.prepare(range->size());

    ground_reflection_method_t const method = options->ground_reflection_method;
    if (!is_known_ground(method)) {
        throw varno_calc_error::with_message(
            (boost::format("Invalid ground type: %1%.") % static_cast<int>(method)).str());
    }
    air_properties const air = air_properties::of(*ambient);
    ray_geometry const rays{path_difference, grazing_angle, grazing_angle * degrees_to_radians};
    frequency_range_t const& grid = *range;
    compute_reflection(*options, air, rays, grid, storage.reflection, *phase);
    compute_interference(range, rays, air, sound_speed, storage.interference, *phase);

    double const q = direct_distance / reflected_distance;
    for (std::size_t i = 0; i < storage.reflection.size(); ++i) {
        double const r = storage.reflection[i];
        effect->values[i] =
            10.0 * std::log10((q + q) * r * storage.interference[i] + r * r * q * q + 1.0);
    }
    *delay = (path_difference * 1000.0) / air.sound_speed;
}

double Calc_DelanyBazleySigma(ground_reflection_method_t method) {
    switch (method) {
    case ground_delany_bazley_certification:
        return 60.0;
    case ground_delany_bazley_grass:
        return 200.0;
    case ground_delany_bazley_asphalt:
        return 20000.0;
    default:
        return 0.0;
    }
}

double Calc_DelanyBazleyThickness(double sigma) {
    if (tolerantly_equal(sigma, 0.0)) {
        return 0.0;
    }
    // Empirical layer depth of a ground of this resistivity, from mm to m.
    return std::pow(10.0, std::log10(sigma / 45104.0) / (-1.7584)) / 1000.0;
}
