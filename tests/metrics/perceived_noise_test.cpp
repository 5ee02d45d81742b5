#include <calc-common/metrics.hpp>

#include "metrics_test_support.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace metrics_test;

namespace {

double pnl_of_noisiness(double n) {
    return 40.0 + 10.0 / std::log10(2.0) * std::log10(n);
}

} // namespace

TEST(Noy, FollowsTheCertificationFormulation) {
    // Breakpoints of the regulation's formulation: 0.1 noy at SPL(d), 0.3 noy at SPL(e),
    // 1 noy at SPL(b); doubling every 10 dB above 40 dB at 1 kHz.
    struct row {
        std::size_t band;
        double level, noy;
    };
    for (row const r :
         {row{13, 40.0, 1.0}, row{13, 70.0, 8.0}, row{13, 25.0, 0.3}, row{13, 16.0, 0.1},
          row{13, 15.9, 0.0}, row{0, 64.0, 1.0}, row{0, 55.0, 0.3}, row{0, 49.0, 0.1},
          row{18, 29.0, 1.0}, row{18, 4.0, 0.1}, row{23, 41.0, 1.0}, row{23, 21.0, 0.1}}) {
        EXPECT_NEAR(Calc_Noy(r.band, r.level), r.noy, 1e-3 * r.noy) << r.band << " " << r.level;
    }
}

TEST(Noy, IsContinuousAcrossEveryBreakpointOfEveryBand) {
    // The slopes and breakpoints are typed separately; the lines must meet at 0.3 and 1 noy and
    // at the upper breakpoint, which a mistyped constant breaks.
    for (std::size_t band = 0; band < 24; ++band) {
        for (double level = 0.0; level < 130.0; level += 0.1) {
            double const below = Calc_Noy(band, level - 1e-9);
            double const above = Calc_Noy(band, level + 1e-9);
            if (below > 0.0) {
                ASSERT_NEAR(below, above, 2e-3 * above) << band << " at " << level;
            }
        }
    }
}

TEST(PerceivedNoiseLevel, CombinesTheLoudestBandAndAFractionOfAll) {
    struct row {
        std::vector<double> levels;
        double pnl;
    };
    std::vector<double> one_noy_everywhere = {64, 60, 56, 53, 51, 48, 46, 44, 42, 40, 40, 40,
                                              40, 40, 38, 34, 32, 30, 29, 29, 30, 31, 37, 41};
    for (row const& r :
         {row{with_peak(0.0, 13, 40.0), 40.0}, row{with_peak(0.0, 13, 70.0), 70.0},
          row{one_noy_everywhere, pnl_of_noisiness(0.85 + 0.15 * 24.0)}, row{flat(0.0), 0.0}}) {
        EXPECT_NEAR(Calc_PerceivedNoiseLevel(tob_spectrum(r.levels)), r.pnl, 1e-3);
    }
}
