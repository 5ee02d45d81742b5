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
        EXPECT_NEAR(Calc_AWeightedLevel(with_peak(0.0, i, 80.0)) - 80.0, table[i], 0.1) << i;
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
    // One noy in every band: N = 0.85 + 0.15 * 24 noy, and PNL rises 10 dB per doubling of N.
    std::vector<double> one_noy_everywhere = {64, 60, 56, 53, 51, 48, 46, 44, 42, 40, 40, 40,
                                              40, 40, 38, 34, 32, 30, 29, 29, 30, 31, 37, 41};
    for (row const& r : {row{with_peak(0.0, 13, 40.0), 40.0}, row{with_peak(0.0, 13, 70.0), 70.0},
                         row{one_noy_everywhere, 40.0 + 10.0 * std::log2(0.85 + 0.15 * 24.0)},
                         row{flat(0.0), 0.0}}) {
        EXPECT_NEAR(Calc_PerceivedNoiseLevel(tob_spectrum(r.levels)), r.pnl, 1e-3);
    }
}

TEST(ToneCorrection, ASmoothSlopeHasNoneAndTheLastBandFollowsTheSlope) {
    std::vector<double> sloping(24);
    for (std::size_t i = 0; i < 24; ++i) {
        sloping[i] = 90.0 - 1.5 * static_cast<double>(i);
    }
    tone_correction_t const smooth = Calc_ToneCorrectionDetail(tob_spectrum(sloping));
    EXPECT_EQ(std::make_pair(smooth.correction, smooth.band_index), std::make_pair(0.0, -1));
    // A tone in the last band is judged against the continued slope below it: F is its height.
    sloping[23] += 10.0;
    tone_correction_t const last = Calc_ToneCorrectionDetail(tob_spectrum(sloping));
    EXPECT_NEAR(last.level_differences[23], 10.0, 1e-9);
    EXPECT_NEAR(last.correction, 10.0 / 6.0, 1e-9);
}

TEST(ToneCorrection, OneProtrudingBandFollowsTheCorrectionTable) {
    // A band h dB above a flat floor: for h > 2.5 the slope changes by 2h > 5 dB past it, so
    // the band is taken out of the background and F = h; a gentler peak stays in and the
    // smoothed background rises h/3 under it, so F = 2h/3. C is then read from the table:
    // F/3 - 1/2, F/6, 3 1/3 below 500 Hz and above 5 kHz; twice that from 500 Hz to 5 kHz.
    struct row {
        std::size_t band;
        double height, f, c;
    };
    for (row const r : {row{6, 2.4, 1.6, 1.6 / 3.0 - 0.5}, row{6, 3.0, 3.0, 0.5},
                        row{6, 10.0, 10.0, 10.0 / 6.0}, row{6, 25.0, 25.0, 10.0 / 3.0},
                        row{9, 10.0, 10.0, 10.0 / 6.0}, row{10, 10.0, 10.0, 10.0 / 3.0},
                        row{13, 2.0, 4.0 / 3.0, 0.0}, row{13, 2.4, 1.6, 3.2 / 3.0 - 1.0},
                        row{13, 4.0, 4.0, 4.0 / 3.0}, row{13, 25.0, 25.0, 20.0 / 3.0},
                        row{20, 10.0, 10.0, 10.0 / 3.0}, row{21, 10.0, 10.0, 10.0 / 6.0},
                        row{22, 4.0, 4.0, 4.0 / 6.0}, row{22, 25.0, 25.0, 10.0 / 3.0}}) {
        tone_correction_t const c =
            Calc_ToneCorrectionDetail(tob_spectrum(with_peak(70.0, r.band, r.height)));
        EXPECT_NEAR(c.level_differences[r.band], r.f, 1e-9) << r.band << " +" << r.height;
        EXPECT_NEAR(c.correction, r.c, 1e-9) << r.band << " +" << r.height;
        EXPECT_EQ(c.band_index, r.c > 0.0 ? static_cast<int>(r.band) : -1);
    }
}

TEST(ToneCorrection, HandWorkedToneAndBandSharedTone) {
    // Floor 70 dB; a tone at 1 kHz (index 13) at 80 dB; a tone shared by 200 and 250 Hz
    // (indices 6 and 7), both at 76 dB.
    //  1. Slopes s(i) = L(i) - L(i-1) from index 3: s6 = +6, s7 = 0, s8 = -6, s13 = +10,
    //     s14 = -10, all others 0.
    //  2. Changes of slope above 5 dB: at 6, 7, 8, 9 (each 6) and 13, 14, 15 (10, 20, 10).
    //  3. s6 > 0 and rising: L6 is irregular; s7 = 0 after a rise: L6 again; s8, s9 follow no
    //     rise: nothing. s13 rising: L13; s14 <= 0 after a rise: L13; s15: nothing.
    //  4. L'6 = (L5 + L7)/2 = (70 + 76)/2 = 73; L'13 = (70 + 70)/2 = 70; L'7 stays 76.
    //  5. New slopes: s'6 = +3, s'7 = +3, s'8 = -6, all others 0 (the 1 kHz tone is gone).
    //  6. Three-slope means: sbar4 = 1, sbar5 = 2, sbar6 = 0, sbar7 = -1, sbar8 = -2, others 0.
    //  7. Background from index 2 at 70: L''5 = 71, L''6 = 73, L''7 = 73, L''8 = 72, L''9 = 70,
    //     and 70 elsewhere.
    //  8. F = L - L'': F5 = -1, F6 = 3, F7 = 3, F8 = -2, F13 = 10, 0 elsewhere.
    //  9. F6 and F7 below 500 Hz give 3/6 = 0.5 dB each; F13 in 500 Hz-5 kHz gives 10/3.
    // 10. C = 10/3 dB, set by the 1 kHz band.
    std::vector<double> levels = flat(70.0);
    levels[6] = levels[7] = 76.0;
    levels[13] = 80.0;
    tone_correction_t const c = Calc_ToneCorrectionDetail(tob_spectrum(levels));
    std::vector<double> const expected_f = {0, 0,  0, 0, 0, -1, 3, 3, -2, 0, 0, 0,
                                            0, 10, 0, 0, 0, 0,  0, 0, 0,  0, 0, 0};
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_NEAR(c.level_differences[i], expected_f[i], 1e-9) << i;
    }
    EXPECT_NEAR(c.correction, 10.0 / 3.0, 1e-12);
    EXPECT_EQ(c.band_index, 13);
    // Without the 1 kHz tone, the shared tone sets C at its first band.
    levels[13] = 70.0;
    EXPECT_NEAR(Calc_ToneCorrection(tob_spectrum(levels)), 0.5, 1e-12);
    EXPECT_EQ(Calc_ToneCorrectionDetail(levels).band_index, 6);
}
