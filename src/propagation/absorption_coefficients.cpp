// The four atmospheric absorption formulas. Their constants are those of the published methods
// in the forms the methods give them, so they are kept as they stand rather than simplified.

#include "propagation/absorption_coefficients.hpp"

#include "frame/numeric_helpers.hpp"

#include <cmath>
#include <limits>

namespace VARNO {
namespace detail {

namespace {

constexpr double reference_pressure = 101325.0; // Pa
constexpr double triple_point = 273.16;         // K

// Height of the Debye peak of one molecular species' relaxation, times its relaxation
// frequency; the frequency dependence is applied by relaxation_term.
double relaxation_peak(double vibrational_ratio, double species_factor, double relaxation_freq,
                       double temperature) {
    double const e = std::exp(-vibrational_ratio);
    double const strength =
        vibrational_ratio * vibrational_ratio * e / ((1.0 - e) * (1.0 - e)) * species_factor;
    return strength * 43.32959 * relaxation_freq / std::sqrt(temperature);
}

double relaxation_term(double peak, double relaxation_freq, double frequency) {
    double const ratio = relaxation_freq / frequency;
    return peak / (ratio * ratio + 1.0);
}

// ARP 866 rates bands above 4 kHz at an effective frequency below the nominal centre, to
// account for the steep fall of the loss across the band.
struct effective_band {
    double centre;
    double effective;
};

constexpr effective_band arp866_effective_bands[] = {
    {5000.0, 4500.0},   {6300.0, 5600.0},    {8000.0, 7100.0},     {10000.0, 9000.0},
    {12500.0, 11200.0}, {16000.0, 14000.0},  {20000.0, 18000.0},   {25000.0, 22400.0},
    {31500.0, 28000.0}, {40000.0, 35500.0},  {50000.0, 45000.0},   {63000.0, 56000.0},
    {80000.0, 71000.0}, {100000.0, 90000.0}, {125000.0, 112000.0}, {160000.0, 140000.0},
};

// A frequency above 4 kHz that is not a nominal centre keeps the table's fallback of 0.033, as
// the method has always done; it is not snapped to the nearest band.
constexpr double arp866_unlisted_frequency = 0.033;

double arp866_frequency(double frequency) {
    if (frequency <= 4000.0) {
        return frequency;
    }
    for (effective_band const& band : arp866_effective_bands) {
        if (std::fabs(frequency - band.centre) <= 0.001) {
            return band.effective;
        }
    }
    return arp866_unlisted_frequency;
}

// Fourth-order fit of the normalised molecular absorption against the humidity ratio.
double arp866_molecular_shape(double x) {
    if (x <= 1.1) {
        return (((x * 1.869533 - 5.417719) * x + 4.027172) * x + 0.507151) * x + 0.006931;
    }
    if (x <= 6.5) {
        return ((((0.007829 - x * 0.000275) * x - 0.086589) * x + 0.48069) * x - 1.406909) * x +
               2.032853;
    }
    return 0.2;
}

// SAE AIR 1845 coefficients of the 24 bands from 50 Hz to 10 kHz, dB/100 m.
constexpr double air1845_coefficients[tob_band_count] = {
    0.033, 0.033, 0.033, 0.066, 0.066, 0.098, 0.131, 0.131, 0.197, 0.23,  0.295, 0.361,
    0.459, 0.59,  0.754, 0.983, 1.311, 1.705, 2.295, 3.115, 3.607, 5.246, 7.213, 9.836,
};

// Conversion of a pure-tone loss A (dB) at the band mid-frequency into the loss of the whole
// band; past 150 dB the curve is continued by a straight line.
double arp5534_band_loss(double pure_tone_loss) {
    if (pure_tone_loss < 150.0) {
        return std::pow((0.95824 - pure_tone_loss * 0.008191) * 0.111761 + 1.0, 1.6) *
               (pure_tone_loss * 0.867942);
    }
    return pure_tone_loss * 0.765 + 9.2;
}

} // namespace

sutherland_absorption::sutherland_absorption(double temperature, double pressure,
                                             double relative_humidity) {
    double const t = temperature;
    // A missing pressure is read as the standard atmosphere.
    double const p = std::fabs(pressure) < 0.001 ? 1.0 : pressure / reference_pressure;
    double const saturation = std::pow(10.0, 20.5318 - 2939.0 / t - 4.922 * std::log10(t));
    double const h = (saturation / p) * relative_humidity; // molar concentration of water
    pressure_ratio_ = p;
    classical_scale_ = 110.4 / t + 1.0;
    oxygen_frequency_ =
        (p / std::sqrt(t / 293.0)) * ((h + 0.05) * (h * 44100.0) / (h + 0.391) + 24.0);
    nitrogen_frequency_ =
        (std::exp((std::pow(293.0 / t, 1.0 / 3.0) - 1.0) * (-3.763)) * (h * 350.0) + 9.0) *
        ((p / t) * 293.0);
    oxygen_peak_ = relaxation_peak(2239.1 / t, 0.0752115, oxygen_frequency_, t);
    nitrogen_peak_ = relaxation_peak(3352.0 / t, 0.2803521, nitrogen_frequency_, t);
}

double sutherland_absorption::coefficient(double frequency) const {
    double const classical =
        (frequency * 2.2032e-8 * frequency / classical_scale_) / pressure_ratio_;
    return classical + relaxation_term(oxygen_peak_, oxygen_frequency_, frequency) +
           relaxation_term(nitrogen_peak_, nitrogen_frequency_, frequency);
}

arp866_absorption::arp866_absorption(double temperature, double relative_humidity)
    : celsius_(temperature - triple_point) {
    double const t = celsius_;
    humidity_ratio_ =
        std::pow(10.0, std::log10(relative_humidity) -
                           (((0.0002173716 - t * 1.7496e-06) * t - 0.03179768) * t + 1.328924));
}

double arp866_absorption::coefficient(double frequency) const {
    double const f = arp866_frequency(frequency);
    double const log_f = std::log10(f);
    double const classical = std::pow(10.0, (celsius_ * 0.0011394 + log_f * 2.05) - 8.066984);
    double const x = humidity_ratio_ / std::sqrt(f / 1010.0);
    return std::pow(10.0, (celsius_ * 0.00842994 + log_f) - 2.755624) * arp866_molecular_shape(x) +
           classical;
}

double air1845_coefficient(double frequency) {
    if (!has_band(frequency)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    int const index = tob_index(frequency);
    if (index < 0 || index >= static_cast<int>(tob_band_count)) {
        return 0.0;
    }
    return air1845_coefficients[index];
}

arp5534_absorption::arp5534_absorption(double temperature, double pressure,
                                       double relative_humidity, double distance)
    : distance_(distance)
    , pressure_ratio_(pressure / reference_pressure) {
    double const t = temperature;
    double const p = pressure_ratio_;
    double const x = t / triple_point;
    double const s = std::pow(10.0, (x - 1.0) * (-8.29692));
    // Saturation vapour pressure ratio, log10.
    double const q = (1.0 - s) * 0.000150474 +
                     ((1.0 - 1.0 / x) * 10.79586 - std::log10(x) * 5.02808) +
                     (std::pow(10.0, (1.0 - 1.0 / x) * 4.76955) - 1.0) * 0.00042873 - 2.2195983;
    double const h = std::pow(10.0, q) * relative_humidity / p; // molar concentration of water
    double const c = std::sqrt(t / 293.15);
    temperature_ratio_root_ = c;
    oxygen_frequency_ = ((h + 0.02) * (h * 40400.0) / (h + 0.391) + 24.0) * p;
    nitrogen_frequency_ =
        (std::exp((std::pow(t / 293.15, -1.0 / 3.0) - 1.0) * (-4.17)) * (h * 280.0) + 9.0) *
        (p / c);
    oxygen_strength_ = std::exp(-2239.1 / t) * 0.01275;
    nitrogen_strength_ = std::exp(-3352.0 / t) * 0.1068;
    relaxation_scale_ = std::pow(c, 5.0);
}

double arp5534_absorption::coefficient(double frequency) const {
    if (!has_band(frequency)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    double const f_mid = std::pow(10.0, 0.1 * band_number(frequency));
    double const g = f_mid * f_mid;
    double const fo = oxygen_frequency_;
    double const fn = nitrogen_frequency_;
    double const molecular =
        (oxygen_strength_ * (fo / (fo * fo + g)) + nitrogen_strength_ * (fn / (fn * fn + g))) /
        relaxation_scale_;
    double const pure_tone_loss =
        (molecular + (1.0 / pressure_ratio_) * 1.84e-11 * temperature_ratio_root_) * (g * 8.686) *
        distance_;
    return arp5534_band_loss(pure_tone_loss) / (distance_ * 0.01);
}

} // namespace detail
} // namespace VARNO
