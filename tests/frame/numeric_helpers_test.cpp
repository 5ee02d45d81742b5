#include "frame/numeric_helpers.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace VARNO::detail;

TEST(TolerantComparison, DifferencesWithinRoundingCountAsEqual) {
    double const one_ulp_up = std::nextafter(1.0, 2.0);
    EXPECT_TRUE(tolerantly_equal(1.0, one_ulp_up));
    EXPECT_FALSE(tolerantly_above(one_ulp_up, 1.0));
    EXPECT_TRUE(tolerantly_at_most(one_ulp_up, 1.0));
    EXPECT_TRUE(tolerantly_at_least(1.0, one_ulp_up));

    EXPECT_TRUE(tolerantly_above(1.0 + 1e-12, 1.0));
    EXPECT_TRUE(tolerantly_below(1.0, 1.0 + 1e-12));
    EXPECT_FALSE(tolerantly_equal(1.0, 1.0 + 1e-12));

    // Near zero the tolerance vanishes: the smallest positive number is above 0.
    EXPECT_TRUE(tolerantly_above(std::numeric_limits<double>::denorm_min(), 0.0));
    EXPECT_TRUE(tolerantly_below(-1e-300, 0.0));
}

TEST(BandArithmetic, GridIndicesAndEdges) {
    EXPECT_EQ(band_number(50.0), 17);
    EXPECT_EQ(tob_index(50.0), 0);
    EXPECT_EQ(tob_index(10000.0), 23);
    EXPECT_EQ(tob_index(1000.0), 13);
    // 10*log10(f) + 0.5 is truncated: 56.2 Hz (just above the 50/63 edge) is band 18.
    EXPECT_EQ(band_number(56.3), 18);
    EXPECT_EQ(band_number(56.2), 17);
    EXPECT_NEAR(band_lower_edge(30), 891.250938133746, 1e-9);
    EXPECT_NEAR(band_upper_edge(30), 1122.01845430196, 1e-9);
}

TEST(BandArithmetic, EnergyIsSharedLinearlyAcrossAnEdgeOverlap) {
    double const edge = band_upper_edge(30);
    edge_overlap const overlap = overlap_around(edge);
    edge_shares const at_edge = share_across_edge(overlap, edge, 2.0);
    // At the edge itself (a geometric centre) the shares are not quite one half each.
    EXPECT_NEAR(at_edge.lower, 2.0 * (1.04 - 1.0) / (1.04 - 1.0 / 1.04), 1e-12);
    EXPECT_NEAR(at_edge.lower + at_edge.upper, 2.0, 1e-15);
    edge_shares const at_bottom = share_across_edge(overlap, edge / 1.04, 1.0);
    EXPECT_NEAR(at_bottom.lower, 1.0, 1e-15);
    EXPECT_NEAR(at_bottom.upper, 0.0, 1e-15);
    EXPECT_EQ(edge_zone_of(edge, 30), edge_zone::upper_overlap);
    EXPECT_EQ(edge_zone_of(1000.0, 30), edge_zone::inside);
    EXPECT_EQ(shared_edge_of(edge_zone::lower_overlap, 30).lower_index, 12);
    // The third-octave Butterworth band of order 3 on base 2.
    EXPECT_NEAR(butterworth_band_q(2.0, 3, 3), 4.522294399688317, 1e-14);
}

// The exponential and natural-log forms stand in for the powers and decimal logarithms of ten
// across the range of levels a spectrum holds, to within a few units in the last place of the
// exponent (which grows with the level).
TEST(LevelEnergy, FastFormsAgreeWithThePowersOfTen) {
    for (double level : {-400.0, -3.5, 0.0, 0.1, 1.0, 20.0, 37.25, 94.0, 140.0, 300.0}) {
        double const energy = std::pow(10.0, level / 10.0);
        double const allowance = 1e-16 * (4.0 + std::fabs(level));
        EXPECT_NEAR(fast_energy_of_level(level), energy, allowance * energy) << level;
        EXPECT_NEAR(fast_level_of_energy(energy), level, 4.0 * allowance) << level;
    }
    EXPECT_EQ(fast_energy_of_level(0.0), 1.0);
    EXPECT_EQ(fast_level_of_energy(1.0), 0.0);
}
