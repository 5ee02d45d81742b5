#include <calc-common/spectra.hpp>

#include <gtest/gtest.h>

#include <cmath>

using acoustics::OctaveBandFilter;
using acoustics::OctaveBandFilterBank;

TEST(OctaveBandFilterBank, ThirdOctavesOnTheDecimalRatioAreTheLibraryGrid) {
    OctaveBandFilterBank const bank(3, 50.0, 10000.0, 3, false);
    // (pi/6)/sin(pi/6) / (10^0.05 - 10^-0.05)
    EXPECT_NEAR(bank.q_design, 4.537889771423653, 1e-12);
    ASSERT_EQ(bank.filters.size(), 24u);
    for (std::size_t i = 0; i < 24; ++i) {
        OctaveBandFilter const& filter = bank.filters[i];
        EXPECT_EQ(filter.band_index, static_cast<int>(17 + i));
        EXPECT_EQ(filter.nominal_frequency, tob_fc_nominal[16 + i]);
        EXPECT_NEAR(filter.lower_edge, tob_fl[16 + i], 1e-11 * tob_fl[16 + i]);
        // The edges are G^(-1/2b) and G^(1/2b) times the centre, to the last bit.
        EXPECT_EQ(filter.lower_edge,
                  std::pow(bank.octave_ratio, -1.0 / 6.0) * filter.midband_frequency);
        EXPECT_EQ(filter.upper_edge,
                  std::pow(bank.octave_ratio, 1.0 / 6.0) * filter.midband_frequency);
    }
    EXPECT_EQ(bank.filters[3].midband_frequency, 100.0) << "decade bands are exact";
    EXPECT_EQ(bank.filters[23].midband_frequency, 10000.0);

    // The design Q is computed in the order of its formula, to the last bit, for the orders
    // and ratios where a regrouped product rounds differently.
    double const pi = std::acos(-1.0);
    for (std::size_t order : {2u, 4u, 5u}) {
        OctaveBandFilterBank const octave(1, 1000.0, 1000.0, order, true);
        double const n = static_cast<double>(order);
        EXPECT_EQ(octave.q_design, (pi / 2.0 / n) *
                                       (1.0 / (std::pow(2.0, 0.5) - std::pow(2.0, -0.5))) /
                                       std::sin(pi / (2.0 * n)))
            << order;
    }
}

TEST(OctaveBandFilterBank, DecadeCorrectionsAndNominalTables) {
    // Base-two octaves from 1 Hz: band 20 is moved from 1000 * 2^-10 onto 1 Hz exactly, and
    // its edges follow the corrected centre.
    OctaveBandFilterBank const octaves(1, 1.0, 20000.0, 3, true);
    ASSERT_EQ(octaves.filters.size(), 15u);
    EXPECT_EQ(octaves.filters[0].band_index, 20);
    EXPECT_EQ(octaves.filters[0].midband_frequency, 1.0);
    EXPECT_NEAR(octaves.filters[0].upper_edge, std::sqrt(2.0), 1e-15);
    double const nominal[] = {1,   2,   4,    8,    16,   31.5, 63,   125,
                              250, 500, 1000, 2000, 4000, 8000, 16000};
    for (std::size_t i = 0; i < 15; ++i) {
        EXPECT_EQ(octaves.filters[i].nominal_frequency, nominal[i]) << i;
    }
    EXPECT_EQ(octaves.filters[11].midband_frequency, 2000.0);

    // Base-two thirds: band 20 is moved from 99.2 Hz onto 100 Hz.
    OctaveBandFilterBank const thirds(3, 90.0, 110.0, 3, true);
    ASSERT_EQ(thirds.filters.size(), 1u);
    EXPECT_EQ(thirds.filters[0].midband_frequency, 100.0);

    // Below band 0 the decades continue downwards: 0.5, 0.63, 0.8 and then 1 Hz.
    OctaveBandFilterBank const low(3, 0.5, 1.0, 3, false);
    ASSERT_EQ(low.filters.size(), 4u);
    EXPECT_EQ(low.filters[0].band_index, -3);
    double const low_nominal[] = {0.5, 0.63, 0.8, 1.0};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(low.filters[i].nominal_frequency, low_nominal[i], 1e-15) << i;
    }

    // Twelfth octaves around 1 kHz sit half a band off the reference: centres
    // 1000 * G^((2x - 59)/24), nominals rounded to three digits when they start with 1 to 4 and
    // to two otherwise, and the two middle bands meet exactly on the reference.
    OctaveBandFilterBank const twelfths(12, 900.0, 1100.0, 3, false);
    ASSERT_EQ(twelfths.filters.size(), 4u);
    EXPECT_EQ(twelfths.filters[0].band_index, 28);
    double const midband[] = {917.2759353897795, 971.6279515771062, 1029.2005271944283,
                              1090.1844923851277};
    double const rounded[] = {920.0, 970.0, 1030.0, 1090.0};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(twelfths.filters[i].midband_frequency, midband[i], 1e-9) << i;
        EXPECT_NEAR(twelfths.filters[i].nominal_frequency, rounded[i], 1e-9) << i;
    }
    EXPECT_NEAR(twelfths.filters[1].upper_edge, 1000.0, 1e-9);
}
