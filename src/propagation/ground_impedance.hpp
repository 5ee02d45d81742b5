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
/// Delany-Bazley wave number and impedance of flow resistivity `sigma`, at a grazing angle
/// `grazing_rad`. What depends on the ground and the rays alone is taken once, at construction.
class delany_bazley_layer {
public:
    delany_bazley_layer(double sigma, double thickness, double grazing_rad,
                        air_properties const& air);

    /// Complex reflection coefficient at `frequency` (Hz).
    std::complex<double> reflection(double frequency) const;

private:
    double sigma_;
    double thickness_;
    double cosine_;
    double sine_;
    air_properties air_;
};

/// Reflection of Attenborough's two-parameter impedance ground at a grazing angle
/// `grazing_rad`.
class attenborough_ground {
public:
    attenborough_ground(double porosity_rate, double flow_resistivity, double grazing_rad,
                        air_properties const& air);

    /// Complex reflection coefficient at `frequency` (Hz).
    std::complex<double> reflection(double frequency) const;

private:
    double porosity_rate_;
    double flow_resistivity_;
    double sine_;
    air_properties air_;
};

/// Reflection of a slit-pore ground of `porosity` (0 to 1) and `flow_resistivity` at a
/// grazing angle `grazing_deg` (degrees).
class slit_pore_ground {
public:
    slit_pore_ground(double porosity, double flow_resistivity, double grazing_deg,
                     air_properties const& air);

    /// Complex reflection coefficient at `frequency` (Hz).
    std::complex<double> reflection(double frequency) const;

private:
    double porosity_;
    double resistivity_;
    double tortuosity_;
    double sine_;
    air_properties air_;
};

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_PROPAGATION_GROUND_IMPEDANCE_HPP
