#ifndef CALC_COMMON_SRC_PROPAGATION_GROUND_IMPEDANCE_HPP
#define CALC_COMMON_SRC_PROPAGATION_GROUND_IMPEDANCE_HPP

// Plane-wave reflection coefficients of the ground models at one frequency. Frequencies in Hz,
// angles of incidence measured from the ground (grazing angles).

#include <calc-common/propagation.hpp>

#include <complex>

namespace VARNO {
namespace detail {

/// Properties of the air above the ground.
struct air_properties {
    double density;     ///< kg/m^3
    double sound_speed; ///< m/s
    double impedance;   ///< characteristic impedance, density times sound speed

    static air_properties of(ambient_conditions_t const& ambient);
};

/// Magnitude of the reflection of the certification ground (SAE AIR 1672B): a fixed curve
/// over the position `index` of the band on the grid, which is taken as a third-octave grid.
double certification_ground_reflection(double frequency, std::size_t index);

/// Reflection of a porous layer of thickness `thickness` (m) on a hard backing, with the
/// Delany-Bazley wave number and impedance of flow resistivity `sigma`.
std::complex<double> delany_bazley_layer_reflection(double frequency, double sigma,
                                                    double thickness, double grazing_rad,
                                                    air_properties const& air);

/// Reflection of Attenborough's two-parameter impedance ground.
std::complex<double> attenborough_reflection(double frequency, double porosity_rate,
                                             double flow_resistivity, double grazing_rad,
                                             air_properties const& air);

/// Reflection of a slit-pore ground of `porosity` (0 to 1) and `flow_resistivity`.
std::complex<double> slit_pore_reflection(double frequency, double porosity,
                                          double flow_resistivity, double grazing_deg,
                                          air_properties const& air);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_PROPAGATION_GROUND_IMPEDANCE_HPP
