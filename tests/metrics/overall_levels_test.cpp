#include <calc-common/metrics.hpp>

#include "metrics_test_support.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace metrics_test;

TEST(AWeighting, MatchesTheStandardTableAtNominalFrequencies) {
    // The sound level meter standard's A-weightings, rounded to 0.1 dB, at the nominal
    // frequencies 50 Hz to 10 kHz; the grid weights at exact mid-band frequencies must agree.
    double const table[24] = {-30.2, -26.2, -22.5, -19.1, -16.1, -13.4, -10.9, -8.6,
                              -6.6,  -4.8,  -3.2,  -1.9,  -0.8,  0.0,   0.6,   1.0,
                              1.2,   1.3,   1.2,   1.0,   0.5,   -0.1,  -1.1,  -2.5};
    for (std::size_t i = 0; i < 24; ++i) {
        std::vector<double> alone(24, 0.0);
        alone[i] = 80.0;
        EXPECT_NEAR(Calc_AWeightedLevel(tob_spectrum(alone)) - 80.0, table[i], 0.1) << i;
    }
    EXPECT_NEAR(Calc_AWeighting(1000.0), 0.0, 0.001);
}

TEST(OverallLevel, AddsBandsByEnergyAndKeepsSilenceSilent) {
    struct row {
        std::vector<double> levels;
        double oaspl;
    };
    for (row const& r : {row{flat(60.0), 60.0 + 10.0 * std::log10(24.0)}, row{flat(0.0), 0.0},
                         row{flat(1.0), 0.0}, row{with_peak(0.0, 5, 70.0), 70.0}}) {
        EXPECT_NEAR(Calc_OverallLevel(tob_spectrum(r.levels)), r.oaspl, 1e-9);
    }
    // A silent band is not weighted into sound.
    EXPECT_EQ(Calc_AWeightedLevel(tob_spectrum(flat(0.0))), 0.0);
}
