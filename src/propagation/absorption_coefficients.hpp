#ifndef CALC_COMMON_SRC_PROPAGATION_ABSORPTION_COEFFICIENTS_HPP
#define CALC_COMMON_SRC_PROPAGATION_ABSORPTION_COEFFICIENTS_HPP

// Atmospheric absorption coefficients in dB/100 m at one positive frequency (Hz), by method.
// Each method is prepared once for the state of the air (temperature in K, pressure in Pa,
// relative humidity in percent), so that a spectrum pays only for what depends on frequency.

namespace VARNO {
namespace detail {

/// Classical plus oxygen and nitrogen relaxation absorption of a pure tone (Sutherland).
class sutherland_absorption {
public:
    sutherland_absorption(double temperature, double pressure, double relative_humidity);
    double coefficient(double frequency) const;

private:
    double pressure_ratio_;
    double classical_scale_;    // 110.4/T + 1, the temperature factor of classical absorption
    double oxygen_frequency_;   // relaxation frequency of oxygen, Hz
    double oxygen_peak_;        // oxygen term without its frequency dependence
    double nitrogen_frequency_; // relaxation frequency of nitrogen, Hz
    double nitrogen_peak_;      // nitrogen term without its frequency dependence
};

/// Pure-tone absorption of SAE ARP 866 at standard pressure. Above 4 kHz the standard's
/// effective frequency of a nominal third-octave band is used.
class arp866_absorption {
public:
    arp866_absorption(double temperature, double relative_humidity);
    double coefficient(double frequency) const;

private:
    double celsius_;
    double humidity_ratio_; // humidity term of the method, before the frequency scaling
};

/// Fixed absorption per third-octave band of SAE AIR 1845 (bands of 50 Hz to 10 kHz; 0 outside;
/// not-a-number for a frequency that is not a finite number, which has no band).
double air1845_coefficient(double frequency);

/// Absorption of a whole third-octave band over a path of `distance` m (SAE ARP 5534): the
/// pure-tone loss at the exact band mid-frequency, converted to a band loss; not-a-number for a
/// frequency that is not a finite number, which has no band.
class arp5534_absorption {
public:
    arp5534_absorption(double temperature, double pressure, double relative_humidity,
                       double distance);
    double coefficient(double frequency) const;

private:
    double distance_;
    double pressure_ratio_;
    double temperature_ratio_root_; // sqrt(T/293.15)
    double oxygen_frequency_;       // relaxation frequency of oxygen, Hz
    double nitrogen_frequency_;     // relaxation frequency of nitrogen, Hz
    double oxygen_strength_;        // exp(-2239.1/T)*0.01275
    double nitrogen_strength_;      // exp(-3352.0/T)*0.1068
    double relaxation_scale_;       // (T/293.15)^2.5
};

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_PROPAGATION_ABSORPTION_COEFFICIENTS_HPP
