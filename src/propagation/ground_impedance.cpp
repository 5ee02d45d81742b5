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

delany_bazley_layer::delany_bazley_layer(double sigma, double thickness, double grazing_rad,
                                         air_properties const& air)
    : sigma_(sigma)
    , thickness_(thickness)
    , cosine_(std::cos(grazing_rad))
    , sine_(std::sin(grazing_rad))
    , air_(air) {}

complex delany_bazley_layer::reflection(double frequency) const {
    double const k = (frequency * two_pi) / air_.sound_speed;
    // The four powers of f/sigma share one logarithm: r^a = exp(a ln r).
    double const log_r = std::log(frequency / sigma_);
    complex const kc =
        k * complex{1.0 + 10.8 * std::exp(-0.7 * log_r), 10.3 * std::exp(-0.59 * log_r)};
    complex const zc = air_.impedance * complex{1.0 + 9.08 * std::exp(-0.75 * log_r),
                                                11.9 * std::exp(-0.73 * log_r)};
    // Refraction into the layer, then the input impedance of a layer on a rigid backing.
    complex const m = smith_divide(complex{k * cosine_, 0.0}, kc);
    complex const s = std::sqrt(1.0 - m * m);
    complex const u = (j * thickness_ * kc) * s;
    // exp(u) and exp(-u) turn by opposite angles: one sine and cosine serve both.
    double const cosine = std::cos(u.imag());
    double const sine = std::sin(u.imag());
    double const growth = std::exp(u.real());
    double const decline = std::exp(-u.real());
    complex const grow{growth * cosine, growth * sine};
    complex const decay{decline * cosine, -(decline * sine)};
    complex const t = smith_divide((-s) * (grow - decay), grow + decay);
    complex const input_impedance = smith_divide(zc, t);
    complex const y = smith_divide(complex{air_.impedance, 0.0}, input_impedance) * s;
    return smith_divide(sine_ - y, sine_ + y);
}

attenborough_ground::attenborough_ground(double porosity_rate, double flow_resistivity,
                                         double grazing_rad, air_properties const& air)
    : porosity_rate_(porosity_rate)
    , flow_resistivity_(flow_resistivity)
    , sine_(std::sin(grazing_rad))
    , air_(air) {}

complex attenborough_ground::reflection(double frequency) const {
    double const x = 1.0 / (frequency * 4.408345643370269);
    double const y = std::sqrt((x * flow_resistivity_ * 1000.0) / air_.density);
    double const z = x * porosity_rate_ * air_.sound_speed * 0.125 + y;
    return normalised_reflection(sine_ * complex{y, z});
}

slit_pore_ground::slit_pore_ground(double porosity, double flow_resistivity, double grazing_deg,
                                   air_properties const& air)
    : porosity_(porosity)
    , resistivity_(flow_resistivity * 1000.0)
    , tortuosity_(std::pow(porosity, -0.5))
    , sine_(std::cos((90.0 - grazing_deg) * degrees_to_radians))
    , air_(air) {}

complex slit_pore_ground::reflection(double frequency) const {
    static double const root_prandtl = std::sqrt(0.71);
    double const v = std::sqrt(
        ((frequency * (air_.density * 3.0 * two_pi) * tortuosity_) / porosity_) / resistivity_);
    complex const compressibility =
        (1.40322 - 0.4032199999999999 * slit_function(v * root_prandtl)) * 7.033275371759331e-06;
    complex const density = smith_divide(complex{air_.density, 0.0}, slit_function(v)) *
                            (tortuosity_ / (porosity_ * porosity_));
    // The impedance is made dimensionless by the air's and given its scale back, in that order.
    complex const z = std::sqrt(smith_divide(density, compressibility)) *
                      ((1.0 / air_.density) / air_.sound_speed) * air_.impedance;
    return smith_divide(z * sine_ - air_.impedance, z * sine_ + air_.impedance);
}

} // namespace detail
} // namespace VARNO
