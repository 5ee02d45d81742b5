// Made-up source spectra. The real ones come from the jet, fan and airframe models of the
// calculation libraries; these shapes (a hump per source, a simple directivity, louder engines at
// higher power) are only plausible enough for the examples to show what the library does with
// them.
#include "aircraft_sound.hpp"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>

namespace {

// A level hump over log frequency: `peak` dB at `centre` Hz, falling `fall` dB per octave
// squared away from it.
double hump(double frequency, double peak, double centre, double fall) {
    double const octaves = std::log2(frequency / centre);
    return peak - fall * octaves * octaves;
}

// A gain in dB that peaks at `peak_angle` degrees and falls by `fall` dB at 90 degrees away.
double lobe(double emission_angle, double peak_angle, double fall) {
    double const away = (emission_angle - peak_angle) / 90.0;
    return -fall * away * away;
}

// An airframe source radiates like a dipole across the flight path.
double dipole(double emission_angle) {
    double const s = std::sin(radians(emission_angle));
    return 10.0 * std::log10(s * s + 0.1);
}

struct broadband_shape_t {
    double peak;   // dB at 1 m
    double centre; // Hz
    double fall;   // dB per octave squared
};

broadband_shape_t approach_shape_of(source_type_t type) {
    switch (type) {
    case source_jet:
        return {112.0, 250.0, 2.0};
    case source_fan_forward:
        return {106.0, 2000.0, 2.5};
    case source_fan_aft:
        return {107.0, 2500.0, 2.5};
    case source_slats:
        return {104.0, 1000.0, 2.0};
    case source_flaps:
        return {106.0, 630.0, 2.0};
    case source_main_landing_gear:
        return {110.0, 500.0, 1.5};
    default: // nose landing gear
        return {105.0, 800.0, 1.5};
    }
}

// The engines' humps grow with their power, and the fans' move up with their shaft speed.
broadband_shape_t shape_of(source_type_t type, engine_power_t const& power) {
    broadband_shape_t shape = approach_shape_of(type);
    if (type == source_jet) {
        shape.peak += power.jet_gain;
    } else if (is_fan(type)) {
        shape.peak += power.fan_gain;
        shape.centre *= power.fan_speed;
    }
    return shape;
}

double directivity(source_type_t type, double emission_angle) {
    switch (type) {
    case source_jet:
        return lobe(emission_angle, 140.0, 8.0);
    case source_fan_forward:
        return lobe(emission_angle, 60.0, 6.0);
    case source_fan_aft:
        return lobe(emission_angle, 120.0, 6.0);
    default:
        return dipole(emission_angle);
    }
}

} // namespace

engine_power_t approach_power() {
    return engine_power_t();
}

engine_power_t take_off_power() {
    engine_power_t power;
    power.jet_gain = 12.0;
    power.fan_gain = 9.0;
    power.fan_speed = 1.5;
    return power;
}

boost::shared_ptr<spectrum_t> illustrative_broadband_source(source_type_t type,
                                                            double emission_angle,
                                                            engine_power_t const& power) {
    broadband_shape_t const shape = shape_of(type, power);
    double const gain = directivity(type, emission_angle);
    auto const spectrum = spectrum_t::create_tob();
    for (std::size_t i = 0; i < spectrum->values.size(); ++i) {
        double const f = spectrum->frequency_range->at(i);
        spectrum->at(i) = hump(f, shape.peak, shape.centre, shape.fall) + gain;
    }
    return spectrum;
}

boost::shared_ptr<spectrum_t> illustrative_fan_source(source_type_t type, double emission_angle,
                                                      engine_power_t const& power,
                                                      boost::shared_ptr<frequency_range_t> grid) {
    broadband_shape_t const shape = shape_of(type, power);
    double const blade_passing_frequency = power.blade_passing_frequency();
    double const gain = directivity(type, emission_angle);
    auto const spectrum = boost::make_shared<spectrum_t>(grid);
    for (std::size_t i = 0; i < spectrum->values.size(); ++i) {
        // The hump is a band level; each line holds its share of a third-octave band.
        double const f = grid->at(i);
        double const lines_per_band = 0.2316 * f / grid->df;
        spectrum->at(i) = hump(f, shape.peak, shape.centre, shape.fall) + gain -
                          10.0 * std::log10(std::max(lines_per_band, 1.0));
    }
    // Tones at the first three blade-passing harmonics, 12, 7 and 3 dB above the hump's peak.
    double const tone_heights[] = {12.0, 7.0, 3.0};
    for (int h = 1; h <= 3; ++h) {
        double const f = h * blade_passing_frequency;
        auto const line = static_cast<std::size_t>(std::lround((f - grid->f_start) / grid->df));
        spectrum->at(line) = shape.peak + tone_heights[h - 1] + gain;
    }
    return spectrum;
}
