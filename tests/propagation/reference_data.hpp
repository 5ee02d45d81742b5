#ifndef VARNO_TESTS_PROPAGATION_REFERENCE_DATA_HPP
#define VARNO_TESTS_PROPAGATION_REFERENCE_DATA_HPP

// Reference values computed by generate_propagation_reference.py.

#include <cstddef>

namespace propagation_reference {

struct absorption_reference {
    int method;
    double temperature;
    double pressure;
    double relative_humidity;
    double distance;
    double frequency;
    double loss;
};

struct iso9613_reference {
    double temperature;
    double relative_humidity;
    int band;
    double db_per_km;
};

struct ground_reference {
    int method;
    int grid; // 0 third-octave, 1 listed, 2 narrowband
    double direct_distance;
    double reflected_distance;
    double sound_speed;
    double grazing_angle;
    std::size_t count;
    double effect[24];
    double phase[24];
    double delay;
};

#include "propagation_reference.inc"

} // namespace propagation_reference

#endif
