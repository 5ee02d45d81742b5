// Ground models: impedance of the ground surface and the resulting plane-wave reflection.

#include "propagation/ground_impedance.hpp"

#include "frame/numeric_helpers.hpp"
#include "propagation/complex_division.hpp"

#include <cmath>

namespace VARNO {
namespace detail {

namespace {

using complex = std::complex<double>;

constexpr double two_pi = 2.0 * pi;
constexpr complex j{0.0, 1.0};

// Reflection of a surface of normalised admittance-like term w: (w - 1)/(w + 1).
complex normalised_reflection(complex const& w) {
    return smith_divide(w - 1.0, w + 1.0);
}

// Viscous and thermal function of a slit pore: 1 - tanh(g v)/(g v), g = exp(-j pi/4).
complex slit_function(double v) {
    complex const gv = complex{0.7071067811865476, -0.7071067811865476} * v;
    return 1.0 - smith_divide(std::tanh(gv), gv);
}

} // namespace

air_properties air_properties::of(ambient_conditions_t const& ambient) {
    double const density = ((ambient.pressure * 0.3485) / ambient.temperature) / 100.0;
    double const sound_speed = std::sqrt(ambient.temperature) * ground_sound_speed_per_root_kelvin;
    return {density, sound_speed, sound_speed * density};
}

double certification_ground_reflection(double frequency, std::size_t index) {
    if (!tolerantly_above(frequency, 100.0)) {
        return 0.8;
    }
    if (tolerantly_above(frequency, 2000.0)) {
        return 0.36;
    }
    // The fit runs over the band number: it is read at the position on the grid.
    double const x = static_cast<double>(index) + tob_first_band;
    return x * 1.89153862 - 12.4725695 - x * x * 0.0962274075 + x * x * x * 0.00205653836 -
           x * x * x * x * 1.5765545e-05;
}

complex delany_bazley_layer_reflection(double frequency, double sigma, double thickness,
                                       double grazing_rad, air_properties const& air) {
    double const k = (frequency * two_pi) / air.sound_speed;
    double const r = frequency / sigma;
    complex const kc = k * complex{1.0 + 10.8 * std::pow(r, -0.7), 10.3 * std::pow(r, -0.59)};
    complex const zc =
        air.impedance * complex{1.0 + 9.08 * std::pow(r, -0.75), 11.9 * std::pow(r, -0.73)};
    // Refraction into the layer, then the input impedance of a layer on a rigid backing.
    complex const m = smith_divide(complex{k * std::cos(grazing_rad), 0.0}, kc);
    complex const s = std::sqrt(1.0 - m * m);
    complex const u = (j * thickness * kc) * s;
    complex const grow = std::exp(u);
    complex const decay = std::exp(-u);
    complex const t = smith_divide((-s) * (grow - decay), grow + decay);
    complex const input_impedance = smith_divide(zc, t);
    complex const y = smith_divide(complex{air.impedance, 0.0}, input_impedance) * s;
    double const sine = std::sin(grazing_rad);
    return smith_divide(sine - y, sine + y);
}

complex attenborough_reflection(double frequency, double porosity_rate, double flow_resistivity,
                                double grazing_rad, air_properties const& air) {
    double const x = 1.0 / (frequency * 4.408345643370269);
    double const y = std::sqrt((x * flow_resistivity * 1000.0) / air.density);
    double const z = x * porosity_rate * air.sound_speed * 0.125 + y;
    return normalised_reflection(std::sin(grazing_rad) * complex{y, z});
}

complex slit_pore_reflection(double frequency, double porosity, double flow_resistivity,
                             double grazing_deg, air_properties const& air) {
    static double const root_prandtl = std::sqrt(0.71);
    double const resistivity = flow_resistivity * 1000.0;
    double const tortuosity = std::pow(porosity, -0.5);
    double const v = std::sqrt(
        ((frequency * (air.density * 3.0 * two_pi) * tortuosity) / porosity) / resistivity);
    complex const compressibility =
        (1.40322 - 0.4032199999999999 * slit_function(v * root_prandtl)) * 7.033275371759331e-06;
    complex const density = smith_divide(complex{air.density, 0.0}, slit_function(v)) *
                            (tortuosity / (porosity * porosity));
    // The impedance is made dimensionless by the air's and given its scale back, in that order.
    complex const z = std::sqrt(smith_divide(density, compressibility)) *
                      ((1.0 / air.density) / air.sound_speed) * air.impedance;
    double const sine = std::cos((90.0 - grazing_deg) * degrees_to_radians);
    return smith_divide(z * sine - air.impedance, z * sine + air.impedance);
}

} // namespace detail
} // namespace VARNO
